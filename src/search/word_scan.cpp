#include "search/word_scan.h"

#include "search/instruction_set.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/word_scan.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace quorvin::HWY_NAMESPACE {

#include "search/text_gathering.h"

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

/// The scan for a word of kLength bytes: with the length known, its bytes stay in registers.
template <std::size_t kLength>
bool scanTextsFor(std::string_view text, const char* word, char end, std::uint64_t* texts) {
  const Lanes d;
  const auto byteAt = [&](std::size_t i) {
    return hn::Set(d, static_cast<std::uint8_t>(i < kLength ? word[i] : 0));
  };
  const auto b0 = byteAt(0);
  [[maybe_unused]] const auto b1 = byteAt(1);
  [[maybe_unused]] const auto b2 = byteAt(2);
  [[maybe_unused]] const auto b3 = byteAt(3);
  [[maybe_unused]] const auto b4 = byteAt(4);
  [[maybe_unused]] const auto b5 = byteAt(5);
  [[maybe_unused]] const auto b6 = byteAt(6);
  [[maybe_unused]] const auto b7 = byteAt(7);
  const auto ending = hn::Set(d, static_cast<std::uint8_t>(end));
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  TextGathering gathering(texts);
  std::uint64_t any = 0;
  for (std::size_t base = 0; base < text.size(); base += 64) {
    // The processor's own reading ahead ends with each page of memory.
    __builtin_prefetch(bytes + base + 4096);
    std::uint64_t places = 0;
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
      places |= bitsOf(stands) << i;
      ends |= bitsOf(hn::Eq(here, ending)) << i;
    }
    if (text.size() - base < 64) {
      const std::uint64_t inside = (std::uint64_t{1} << (text.size() - base)) - 1;
      places &= inside;
      ends &= inside;
    }
    any |= places;
    gathering.add(places, ends);
  }
  gathering.finish();
  return any != 0;
}

bool scanTexts(std::string_view text, std::string_view word, char end, std::uint64_t* texts) {
  using Scan = bool (*)(std::string_view, const char*, char, std::uint64_t*);
  static constexpr Scan kScans[kLongestScannedWord] = {scanTextsFor<1>, scanTextsFor<2>, scanTextsFor<3>,
                                                       scanTextsFor<4>, scanTextsFor<5>, scanTextsFor<6>,
                                                       scanTextsFor<7>, scanTextsFor<8>};
  return kScans[word.size() - 1](text, word.data(), end, texts);
}

}  // namespace quorvin::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace quorvin {

bool scanTexts(std::string_view text, std::string_view word, char end, std::uint64_t* texts) {
  static constexpr FunctionVersions<decltype(&scanTexts)> kVersions = QUORVIN_VERSIONS_OF(scanTexts);
  return kVersions.chosen()(text, word, end, texts);
}

}  // namespace quorvin

#endif  // HWY_ONCE
