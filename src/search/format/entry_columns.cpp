#include "search/format/entry_columns.h"

#include "platform/instruction_set.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/format/entry_columns.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace quorvin::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

FoldedColumns foldColumns(const char* in, char* out) {
  // Sixteen at most: the width is a multiple of it, and lines are short.
  const hn::CappedTag<std::int8_t, 16> d;
  const std::size_t lanes = hn::Lanes(d);
  const auto blank = hn::Set(d, std::int8_t{' '});
  const auto small = hn::Set(d, std::int8_t{0x20});
  const auto beforeA = hn::Set(d, std::int8_t{'A' - 1});
  const auto behindZ = hn::Set(d, std::int8_t{'Z' + 1});
  std::uint64_t text[2] = {0, 0};
  std::uint64_t upper[2] = {0, 0};
  for (std::size_t i = 0; i < kFoldWidth; i += lanes) {
    const auto bytes = hn::LoadU(d, reinterpret_cast<const std::int8_t*>(in) + i);
    const auto capital = hn::And(hn::Gt(bytes, beforeA), hn::Lt(bytes, behindZ));
    const auto folded = hn::Or(bytes, hn::IfThenElseZero(capital, small));
    hn::StoreU(folded, d, reinterpret_cast<std::int8_t*>(out) + i);
    alignas(8) std::uint8_t mask[8] = {};
    hn::StoreMaskBits(d, hn::Ne(bytes, blank), mask);
    text[i / 64] |= bitsOfStoredMask(mask) << (i % 64);
    hn::StoreMaskBits(d, capital, mask);
    upper[i / 64] |= bitsOfStoredMask(mask) << (i % 64);
  }
  return {text[0], text[1], upper[0], upper[1]};
}

}  // namespace quorvin::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace quorvin {

FoldedColumns foldColumns(const char* in, char* out) {
  static constexpr FunctionVersions<decltype(&foldColumns)> kVersions = QUORVIN_VERSIONS_OF(foldColumns);
  return kVersions.chosen()(in, out);
}

}  // namespace quorvin

#endif  // HWY_ONCE
