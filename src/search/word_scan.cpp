#include "search/word_scan.h"

#include "search/instruction_set.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/word_scan.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace quorvin::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// At most 64 lanes, so that one mask word takes a whole number of vectors.
using Lanes = hn::CappedTag<std::uint8_t, 64>;

template <typename Mask>
HWY_INLINE std::uint64_t bitsOf(Mask mask) {
  alignas(8) std::uint8_t stored[8] = {};
  hn::StoreMaskBits(Lanes(), mask, stored);
  std::uint64_t bits = 0;
  __builtin_memcpy(&bits, stored, sizeof bits);
  return bits;
}

/// The positions of the 64 from `base` on that are in the text.
HWY_INLINE std::uint64_t insideText(std::size_t base, std::size_t size) {
  return size - base < 64 ? (std::uint64_t{1} << (size - base)) - 1 : ~std::uint64_t{0};
}

/// The scan for a word of kLength bytes: with the length known, its bytes stay in registers.
template <std::size_t kLength, bool kWithEnds>
bool scanWordOf(const char* text, std::size_t size, const char* word, std::uint64_t* wordBits, char end,
                std::uint64_t* endBits) {
  const Lanes d;
  const auto byteAt = [&](std::size_t i) {
    return hn::Set(d, static_cast<std::uint8_t>(i < kLength ? word[i] : 0));
  };
  const auto b0 = byteAt(0);
  const auto b1 = byteAt(1);
  const auto b2 = byteAt(2);
  const auto b3 = byteAt(3);
  const auto b4 = byteAt(4);
  const auto b5 = byteAt(5);
  const auto b6 = byteAt(6);
  const auto b7 = byteAt(7);
  const auto ending = hn::Set(d, static_cast<std::uint8_t>(end));
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text);
  std::uint64_t any = 0;
  for (std::size_t base = 0; base < size; base += 64) {
    // The processor's own reading ahead ends with each page of memory.
    __builtin_prefetch(bytes + base + 4096);
    std::uint64_t found = 0;
    std::uint64_t ends = 0;
    for (std::size_t i = 0; i < 64; i += hn::Lanes(d)) {
      const std::uint8_t* at = bytes + base + i;
      const auto here = hn::LoadU(d, at);
      auto stands = hn::Eq(here, b0);
      if constexpr (kLength > 1) stands = hn::And(stands, hn::Eq(hn::LoadU(d, at + 1), b1));
      if constexpr (kLength > 2) stands = hn::And(stands, hn::Eq(hn::LoadU(d, at + 2), b2));
      if constexpr (kLength > 3) stands = hn::And(stands, hn::Eq(hn::LoadU(d, at + 3), b3));
      if constexpr (kLength > 4) stands = hn::And(stands, hn::Eq(hn::LoadU(d, at + 4), b4));
      if constexpr (kLength > 5) stands = hn::And(stands, hn::Eq(hn::LoadU(d, at + 5), b5));
      if constexpr (kLength > 6) stands = hn::And(stands, hn::Eq(hn::LoadU(d, at + 6), b6));
      if constexpr (kLength > 7) stands = hn::And(stands, hn::Eq(hn::LoadU(d, at + 7), b7));
      found |= bitsOf(stands) << i;
      if constexpr (kWithEnds) ends |= bitsOf(hn::Eq(here, ending)) << i;
    }
    const std::uint64_t inside = insideText(base, size);
    wordBits[base / 64] = found & inside;
    any |= found & inside;
    if constexpr (kWithEnds) endBits[base / 64] = ends & inside;
  }
  return any != 0;
}

template <bool kWithEnds>
bool scanWordOfAnyLength(std::string_view text, std::string_view word, std::uint64_t* wordBits, char end,
                         std::uint64_t* endBits) {
  using Scan = bool (*)(const char*, std::size_t, const char*, std::uint64_t*, char, std::uint64_t*);
  static constexpr Scan kScans[kScannedWordBytes] = {
      scanWordOf<1, kWithEnds>, scanWordOf<2, kWithEnds>, scanWordOf<3, kWithEnds>, scanWordOf<4, kWithEnds>,
      scanWordOf<5, kWithEnds>, scanWordOf<6, kWithEnds>, scanWordOf<7, kWithEnds>, scanWordOf<8, kWithEnds>};
  const std::size_t length = word.size() < kScannedWordBytes ? word.size() : kScannedWordBytes;
  return kScans[length - 1](text.data(), text.size(), word.data(), wordBits, end, endBits);
}

bool scanWord(std::string_view text, std::string_view word, std::uint64_t* wordBits, char end,
              std::uint64_t* endBits) {
  if (endBits == nullptr) return scanWordOfAnyLength<false>(text, word, wordBits, end, nullptr);
  return scanWordOfAnyLength<true>(text, word, wordBits, end, endBits);
}

}  // namespace quorvin::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace quorvin {

bool scanWord(std::string_view text, std::string_view word, std::uint64_t* wordBits, char end,
              std::uint64_t* endBits) {
  static constexpr FunctionVersions<decltype(&scanWord)> kVersions = QUORVIN_VERSIONS_OF(scanWord);
  return kVersions.chosen()(text, word, wordBits, end, endBits);
}

}  // namespace quorvin

#endif  // HWY_ONCE
