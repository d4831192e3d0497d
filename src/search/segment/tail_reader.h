// SPDX-License-Identifier: GPL-2.0-or-later

// Sizes and dates of entries, one after another, out of the tails that apply to them.
#pragma once

#include "search/segment/entry_value_arrays.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace quorvin {

/// Reads tails, those that lines share only once.
class TailReader {
 public:
  explicit TailReader(EntryValuesReader reader) : reader_(std::move(reader)) {}

  /// Sets the values of `entry` by `tail`, which may be null where there has been no tail so far. `isOwn`
  /// says whether the tail is in the entry's own line, which is line `line` of the listing. A tail at the
  /// same place as the one before is taken for the same.
  void read(std::string_view tail, bool isOwn, std::int64_t line, std::uint32_t entry,
            EntryValueArrays& values);

  /// The tail that was read last is at another place now; null where it is gone.
  void moveTail(const char* tail) { last_ = tail; }
  /// Where it is; null where there is none.
  const char* lastTail() const { return last_; }

  const EntryValuesReader& values() const { return reader_; }

 private:
  EntryValuesReader reader_;
  const char* last_ = nullptr;
  /// What the last tail says: either as a tail of the usual form, or the long way.
  bool isWritten_ = false;
  CompactValues written_{};
  ValueState state_ = ValueState::Absent;
  EntryValues values_;
};

}  // namespace quorvin
