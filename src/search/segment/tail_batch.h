// SPDX-License-Identifier: GPL-2.0-or-later

// Tails of many lines, to be read by another thread while more lines come.
#pragma once

#include "search/segment/tail_reader.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvin {

/// Copies of the tails that apply to entries which follow each other. Lines without a tail of their own share
/// that of the line before, as in the listing.
class TailBatch {
 public:
  /// The next entry's tail, which may be null where there has been none so far; at least kLinePadding bytes
  /// behind its start can be read. `isOwn` and `line` as for TailReader::read; a tail that is not the entry's
  /// own is that of the entry before, where there is one.
  void add(std::string_view tail, bool isOwn, std::int64_t line);

  std::uint32_t count() const { return static_cast<std::uint32_t>(tails_.size()); }

  /// Reads them all into values(), those of the entry that was added first as entry 0. To be called once; it
  /// may run in any thread.
  void read(TailReader& reader);
  const EntryValueArrays& values() const { return values_; }

  /// Forgets everything and keeps the memory for the next tails.
  void clear();

 private:
  struct Tail {
    std::size_t start;
    std::uint32_t length;
    bool exists;
    bool isOwn;
    std::int64_t line;
  };

  void copy(std::string_view tail);

  /// The tails one behind another, with room behind the last.
  std::vector<char> text_;
  std::size_t size_ = 0;
  std::vector<Tail> tails_;
  EntryValueArrays values_;
};

}  // namespace quorvin
