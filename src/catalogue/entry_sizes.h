// SPDX-License-Identifier: GPL-2.0-or-later

// The sizes and dates of entries that stand one behind the other.
#pragma once

#include "search/segment/segment.h"

#include <cstdint>
#include <span>

namespace quorvin {

/// The values of the entries from `first` to `last` - 1 of a segment, which must outlive the object.
class EntrySizes {
 public:
  EntrySizes(const Segment& segment, std::uint32_t first, std::uint32_t last)
      : segment_(segment),
        first_(first),
        values_(segment.arrays().values.part(first, last - first)),
        allOwn_(segment.allOwn(first, last - 1)) {}

  /// Bytes; negative where the line has none of its own.
  std::int64_t of(std::uint32_t entry) const {
    if (!allOwn_ && segment_.valueState(entry) != ValueState::Own) return -1;
    const CompactValues& compact = values_[entry - first_];
    return compact.second == CompactValues::kKeptAside ? segment_.values(entry).size : compact.size;
  }

  /// When it was last changed; only where of() is not negative.
  DateValue dateOf(std::uint32_t entry) const {
    const CompactValues& compact = values_[entry - first_];
    return compact.second == CompactValues::kKeptAside ? segment_.values(entry).date : expand(compact).date;
  }

 private:
  const Segment& segment_;
  std::uint32_t first_;
  std::span<const CompactValues> values_;
  bool allOwn_;
};

}  // namespace quorvin
