#include "search/segment/byte_pair_scan.h"

#include "platform/instruction_set.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/segment/byte_pair_scan.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace quorvin::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

bool scanBytePair(const char* text, std::size_t size, BytePair pair, std::uint64_t* bits) {
  // At most 64 lanes, so that one mask word takes a whole number of vectors.
  const hn::CappedTag<std::uint8_t, 64> d;
  const std::size_t lanes = hn::Lanes(d);
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text);
  const auto first = hn::Set(d, pair.first);
  const auto second = hn::Set(d, pair.second);
  std::uint64_t any = 0;
  for (std::size_t base = 0; base < size; base += 64) {
    // The processor's own reading ahead ends with each page of memory.
    __builtin_prefetch(bytes + base + 4096);
    alignas(8) std::uint64_t word = 0;
    for (std::size_t i = 0; i < 64; i += lanes) {
      const auto fits = hn::And(hn::Eq(hn::LoadU(d, bytes + base + i + pair.firstAt), first),
                                hn::Eq(hn::LoadU(d, bytes + base + i + pair.secondAt), second));
      alignas(8) std::uint8_t mask[8] = {};
      hn::StoreMaskBits(d, fits, mask);
      word |= bitsOfStoredMask(mask) << i;
    }
    if (size - base < 64) word &= (std::uint64_t{1} << (size - base)) - 1;
    bits[base / 64] = word;
    any |= word;
  }
  return any != 0;
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
  for (std::size_t i = 0; i < length; ++i) {
    if (i != first && commonness(byteAt(i)) < commonness(byteAt(second))) second = i;
  }
  return {byteAt(first), byteAt(second), static_cast<std::uint8_t>(first), static_cast<std::uint8_t>(second)};
}

}  // namespace quorvin

#endif  // HWY_ONCE
