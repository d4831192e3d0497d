// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/format/line_scan.h"

#include "platform/instruction_set.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/format/line_scan.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace quorvin::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

template <class D, class Mask>
std::uint64_t maskBits(D d, Mask mask) {
  alignas(8) std::uint8_t bytes[8] = {};
  hn::StoreMaskBits(d, mask, bytes);
  return bitsOfStoredMask(bytes);
}

void markLines(const char* text, std::size_t size, std::uint64_t* lineEnds, std::uint64_t* care) {
  const hn::CappedTag<std::int8_t, 64> d;
  const std::size_t lanes = hn::Lanes(d);
  const auto* bytes = reinterpret_cast<const std::int8_t*>(text);
  const auto is = [&](auto vector, char c)
                      HWY_ATTR { return hn::Eq(vector, hn::Set(d, static_cast<std::int8_t>(c))); };
  for (std::size_t base = 0; base < size; base += 64) {
    std::uint64_t ends = 0;
    std::uint64_t special = 0;
    for (std::size_t i = 0; i < 64; i += lanes) {
      const std::int8_t* at = bytes + base + i;
      const auto here = hn::LoadU(d, at);
      const auto before = hn::LoadU(d, at - 1);
      const auto colon = hn::And(is(here, ':'), hn::Or(is(before, 'e'), is(before, 'y')));
      // Fifteen hyphens in a row have one here, seven and fourteen places before.
      const auto hyphens =
          hn::And(is(here, '-'), hn::And(is(hn::LoadU(d, at - 7), '-'), is(hn::LoadU(d, at - 14), '-')));
      const auto other = hn::Or(hn::Lt(here, hn::Zero(d)), is(here, '<'));
      ends |= maskBits(d, is(here, '\n')) << i;
      special |= maskBits(d, hn::Or(hn::Or(colon, hyphens), other)) << i;
    }
    if (size - base < 64) {
      const std::uint64_t inside = (std::uint64_t{1} << (size - base)) - 1;
      ends &= inside;
      special &= inside;
    }
    lineEnds[base / 64] = ends;
    care[base / 64] = special;
  }
}

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
    text[i / 64] |= maskBits(d, hn::Ne(bytes, blank)) << (i % 64);
    upper[i / 64] |= maskBits(d, capital) << (i % 64);
  }
  return {text[0], text[1], upper[0], upper[1]};
}

}  // namespace quorvin::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace quorvin {

void markLines(const char* text, std::size_t size, std::uint64_t* lineEnds, std::uint64_t* care) {
  static constexpr FunctionVersions<decltype(&markLines)> kVersions = QUORVIN_VERSIONS_OF(markLines);
  kVersions.chosen()(text, size, lineEnds, care);
}

FoldedColumns foldColumns(const char* in, char* out) {
  static constexpr FunctionVersions<decltype(&foldColumns)> kVersions = QUORVIN_VERSIONS_OF(foldColumns);
  return kVersions.chosen()(in, out);
}

}  // namespace quorvin

#endif  // HWY_ONCE
