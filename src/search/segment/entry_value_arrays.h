// SPDX-License-Identifier: GPL-2.0-or-later

// Sizes and dates of many entries, as segments keep them.
#pragma once

#include "search/segment/entry_values.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvin {

/// Values that CompactValues cannot hold.
struct WideValues {
  std::uint32_t entry;
  std::uint32_t reserved;
  std::int64_t size;
  DateValue date;
};

/// An entry whose values could not be read, and the line of the listing that it is on, from 1.
struct UnreadableEntry {
  std::int64_t line;
  std::uint32_t entry;
  std::uint32_t reserved;
};

/// The values of entries 0 to count() - 1; those that have not been set count as absent.
class EntryValueArrays {
 public:
  void addEntry();
  std::uint32_t count() const { return static_cast<std::uint32_t>(compact_.size()); }

  /// What is known of size and date of `entry`, and the line it is on. Entries may be left out, but come in
  /// ascending order.
  void set(std::uint32_t entry, ValueState state, const EntryValues& values, std::int64_t line);
  /// The same for values of the entry's own in their compact form.
  void set(std::uint32_t entry, const CompactValues& values) { compact_[entry] = values; }

  /// Puts all of `read` in place of what is known of as many entries from `first` on.
  void replace(std::uint32_t first, const EntryValueArrays& read);

  void clear();
  /// Bytes of memory that they take up.
  std::size_t memorySize() const;

  const std::vector<CompactValues>& compact() const { return compact_; }
  /// No value that was set so far is missing or unreadable.
  bool allOwn() const { return allOwn_; }
  /// A bit for each entry: its line has none, or they could not be read.
  const std::vector<std::uint64_t>& notOwn() const { return notOwn_; }
  /// Both ascending by entry.
  const std::vector<WideValues>& wide() const { return wide_; }
  const std::vector<UnreadableEntry>& unreadable() const { return unreadable_; }

 private:
  void markNotOwn(std::uint32_t entry);

  std::vector<CompactValues> compact_;
  bool allOwn_ = true;
  std::vector<std::uint64_t> notOwn_;
  std::vector<WideValues> wide_;
  std::vector<UnreadableEntry> unreadable_;
};

}  // namespace quorvin
