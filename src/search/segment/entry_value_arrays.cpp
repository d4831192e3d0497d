// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/entry_value_arrays.h"

#include <algorithm>
#include <bit>

namespace quorvin {

namespace {

/// Puts `records` in place of those of the entries from `first` up to `end`.
template <typename Record>
void replaceRecords(std::vector<Record>& all, std::uint32_t first, std::uint32_t end,
                    const std::vector<Record>& records) {
  const auto from = std::ranges::lower_bound(all, first, {}, &Record::entry);
  const auto to = std::ranges::lower_bound(all, end, {}, &Record::entry);
  auto next = all.insert(all.erase(from, to), records.begin(), records.end());
  for (std::size_t i = 0; i < records.size(); ++i) (next++)->entry += first;
}

}  // namespace

void EntryValueArrays::addEntry() {
  if (compact_.size() % 64 == 0) notOwn_.push_back(0);
  compact_.push_back({0, CompactValues::kAbsent});
}

void EntryValueArrays::markNotOwn(std::uint32_t entry) {
  allOwn_ = false;
  notOwn_[entry / 64] |= std::uint64_t{1} << (entry % 64);
}

void EntryValueArrays::set(std::uint32_t entry, ValueState state, const EntryValues& values,
                           std::int64_t line) {
  const CompactValues compacted = quorvin::compact(state, values);
  compact_[entry] = compacted;
  if (state != ValueState::Own) markNotOwn(entry);
  if (compacted.second == CompactValues::kKeptAside) wide_.push_back({entry, 0, values.size, values.date});
  if (compacted.second == CompactValues::kUnreadable) unreadable_.push_back({line, entry, 0});
}

void EntryValueArrays::replace(std::uint32_t first, const EntryValueArrays& read) {
  std::ranges::copy(read.compact_, compact_.begin() + first);
  const std::uint32_t end = first + read.count();
  replaceRecords(wide_, first, end, read.wide_);
  replaceRecords(unreadable_, first, end, read.unreadable_);
  if (read.allOwn_) return;
  for (std::uint32_t word = 0; word < read.notOwn_.size(); ++word) {
    for (std::uint64_t bits = read.notOwn_[word]; bits != 0; bits &= bits - 1) {
      markNotOwn(first + word * 64 + static_cast<std::uint32_t>(std::countr_zero(bits)));
    }
  }
}

void EntryValueArrays::clear() {
  compact_.clear();
  allOwn_ = true;
  notOwn_.clear();
  wide_.clear();
  unreadable_.clear();
}

std::size_t EntryValueArrays::memorySize() const {
  return compact_.capacity() * sizeof(CompactValues) + notOwn_.capacity() * sizeof(std::uint64_t) +
         wide_.capacity() * sizeof(WideValues) + unreadable_.capacity() * sizeof(UnreadableEntry);
}

}  // namespace quorvin
