// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/text_scan.h"

#include "platform/instruction_set.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/segment/text_scan.cpp"
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
  return bitsOfStoredMask(stored);
}

bool scanBytePair(const char* text, std::size_t size, BytePair pair, std::uint64_t* bits) {
  const Lanes d;
  const std::size_t lanes = hn::Lanes(d);
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text);
  const auto first = hn::Set(d, pair.first);
  const auto second = hn::Set(d, pair.second);
  std::uint64_t any = 0;
  for (std::size_t base = 0; base < size; base += 64) {
    // The processor's own reading ahead ends with each page of memory.
    __builtin_prefetch(bytes + base + 4096);
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < 64; i += lanes) {
      const auto fits = hn::And(hn::Eq(hn::LoadU(d, bytes + base + i + pair.firstAt), first),
                                hn::Eq(hn::LoadU(d, bytes + base + i + pair.secondAt), second));
      word |= bitsOf(fits) << i;
    }
    if (size - base < 64) word &= (std::uint64_t{1} << (size - base)) - 1;
    bits[base / 64] = word;
    any |= word;
  }
  return any != 0;
}

// Counting bits and finding the lowest one are single instructions only where the processor is known to have
// them, so that this is compiled again for each set though nothing here is a vector.

#if HWY_ARCH_X86_64 && HWY_TARGET <= HWY_AVX3

/// Sets bit k of an array for each text k (from 0) that has a place. Gathering bits is a single instruction
/// on every processor that has these vectors; on some older ones it is slower than a loop. No branch depends
/// on what was found, so that a word that is everywhere costs no more than one that is in a few
/// texts.
class TextGathering {
 public:
  /// The array has room for one element more than the texts need.
  explicit TextGathering(std::uint64_t* texts) : texts_(texts) {}

  /// The next 64 bytes: the places in them, and the ends of texts, at which there is no place.
  HWY_INLINE void add(std::uint64_t places, std::uint64_t ends) {
    // The bytes of a text are a run of ones that ends below its end. Added to it, one place or more carry
    // over into the end, and from the last run into the next 64 bytes.
    unsigned long long sum = 0;
    carry_ = _addcarry_u64(carry_, ~ends, places, &sum);
    const std::uint64_t seen = _pext_u64(sum, ends);
    gathered_ |= seen << used_;
    *texts_ = gathered_;
    const std::uint64_t overflow = (seen >> 1) >> (63 - used_);
    const unsigned total = used_ + static_cast<unsigned>(__builtin_popcountll(ends));
    const bool full = total >= 64;
    texts_ += full ? 1 : 0;
    gathered_ = full ? overflow : gathered_;
    used_ = total % 64;
  }

  void finish() { *texts_ = gathered_; }

 private:
  std::uint64_t* texts_;
  std::uint64_t gathered_ = 0;
  unsigned used_ = 0;
  unsigned char carry_ = 0;
};

#else

/// Sets bit k of an array for each text k (from 0) that has a place.
class TextGathering {
 public:
  /// The array has room for one element more than the texts need.
  explicit TextGathering(std::uint64_t* texts) : texts_(texts) { texts_[0] = 0; }

  /// The next 64 bytes: the places in them, and the ends of texts, at which there is no place.
  void add(std::uint64_t places, std::uint64_t ends) {
    while (places != 0) {
      const std::uint64_t place = places & (~places + 1);
      for (; (ends & (place - 1)) != 0; ends &= ends - 1) nextText();
      texts_[text_ / 64] |= std::uint64_t{1} << (text_ % 64);
      // The rest of this text is skipped.
      places &= ~(ends ^ (ends - 1));
    }
    for (; ends != 0; ends &= ends - 1) nextText();
  }

  void finish() {}

 private:
  void nextText() {
    if (++text_ % 64 == 0) texts_[text_ / 64] = 0;
  }

  std::uint64_t* texts_;
  std::size_t text_ = 0;
};

#endif

/// The scan for a word of kLength bytes: with the length known, its bytes stay in registers.
template <std::size_t kLength>
bool scanTextsFor(std::string_view text, const char* word, char end, std::uint64_t* texts) {
  const Lanes d;
  const auto byteAt = [&](std::size_t i) HWY_ATTR {
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

bool keepPlacesOf(std::string_view word, std::string_view text, std::uint64_t* places) {
  constexpr std::size_t kHeadSize = sizeof(std::uint64_t);
  const std::size_t headSize = word.size() < kHeadSize ? word.size() : kHeadSize;
  std::uint64_t head = 0;
  __builtin_memcpy(&head, word.data(), headSize);
  std::uint64_t headMask = 0;
  __builtin_memset(&headMask, 0xFF, headSize);
  std::uint64_t any = 0;
  for (std::size_t block = 0; block * 64 < text.size(); ++block) {
    std::uint64_t kept = 0;
    for (std::uint64_t left = places[block]; left != 0; left &= left - 1) {
      const std::size_t at = block * 64 + static_cast<unsigned>(__builtin_ctzll(left));
      // The head may reach behind the text, where no word goes: it would go on over the end of the last text.
      std::uint64_t there = 0;
      __builtin_memcpy(&there, text.data() + at, kHeadSize);
      bool stands = ((there ^ head) & headMask) == 0;
      if (word.size() > kHeadSize && stands) {
        stands = word.size() <= text.size() - at &&
                 __builtin_memcmp(text.data() + at, word.data(), word.size()) == 0;
      }
      kept |= stands ? left & (~left + 1) : 0;
    }
    places[block] = kept;
    any |= kept;
  }
  return any != 0;
}

void textsWithPlaces(std::span<const std::uint64_t> places, const std::uint64_t* ends, std::uint64_t* texts) {
  TextGathering gathering(texts);
  for (std::size_t block = 0; block < places.size(); ++block) gathering.add(places[block], ends[block]);
  gathering.finish();
}

}  // namespace quorvin::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <algorithm>
#include <array>

namespace quorvin {

bool scanBytePair(const char* text, std::size_t size, BytePair pair, std::uint64_t* bits) {
  static constexpr FunctionVersions<decltype(&scanBytePair)> kVersions = QUORVIN_VERSIONS_OF(scanBytePair);
  return kVersions.chosen()(text, size, pair, bits);
}

namespace {

/// How common a byte is in lower-cased names, 0 the rarest. Only the order matters.
int commonness(std::uint8_t byte) {
  static constexpr std::string_view kFromCommonToRare = "e.aiotnrsl-_cdmpuhgbfy0k1v2w3x4z5j6789q ";
  const std::size_t at = kFromCommonToRare.find(static_cast<char>(byte));
  if (at != kFromCommonToRare.npos) return static_cast<int>(kFromCommonToRare.size() - at) + 1;
  // Every character of a script has the same lead bytes.
  return byte >= 0xC0 ? 30 : byte >= 0x80 ? 1 : 0;
}

}  // namespace

BytePair rarestPair(std::string_view word) {
  const std::size_t length = std::min(word.size(), kFarthestPairByte);
  const auto byteAt = [&](std::size_t i) { return static_cast<std::uint8_t>(word[i]); };
  std::size_t first = 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (commonness(byteAt(i)) < commonness(byteAt(first))) first = i;
  }
  std::size_t second = first == 0 ? length - 1 : 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (i != first && commonness(byteAt(i)) < commonness(byteAt(second))) second = i;
  }
  return {byteAt(first), byteAt(second), static_cast<std::uint8_t>(first), static_cast<std::uint8_t>(second)};
}

bool scanTexts(std::string_view text, std::string_view word, char end, std::uint64_t* texts) {
  static constexpr FunctionVersions<decltype(&scanTexts)> kVersions = QUORVIN_VERSIONS_OF(scanTexts);
  return kVersions.chosen()(text, word, end, texts);
}

bool keepPlacesOf(std::string_view word, std::string_view text, std::uint64_t* places) {
  static constexpr FunctionVersions<decltype(&keepPlacesOf)> kVersions = QUORVIN_VERSIONS_OF(keepPlacesOf);
  return kVersions.chosen()(word, text, places);
}

void textsWithPlaces(std::span<const std::uint64_t> places, const std::uint64_t* ends, std::uint64_t* texts) {
  static constexpr FunctionVersions<decltype(&textsWithPlaces)> kVersions =
      QUORVIN_VERSIONS_OF(textsWithPlaces);
  kVersions.chosen()(places, ends, texts);
}

}  // namespace quorvin

#endif  // HWY_ONCE
