// SPDX-License-Identifier: GPL-2.0-or-later

// The ways of sorting that HitSort chooses from, and what they have in common.
#pragma once

#include "search/hit_sort.h"
#include "search/segment/segment.h"

#include <QLocale>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace quorvin {

/// Fills `rowsInOrder`.
class HitSort::Way {
 public:
  virtual ~Way() = default;
  virtual bool goOn(const SliceEnd& isOver) = 0;
  std::vector<std::uint32_t> rowsInOrder;
};

/// By the texts of volume, folder or name in lower case, as UTF-8: by characters.
std::unique_ptr<HitSort::Way> sortByLowerCase(const HitTable& table, const HitOrder& order);

/// By these texts as the locale sorts them.
std::unique_ptr<HitSort::Way> sortByLocale(const HitTable& table, const HitOrder& order,
                                           const QLocale& locale);

/// Comes by the rows of a table piece by piece.
class RowWalk {
 public:
  explicit RowWalk(const HitTable& table) : table_(table), end_(table.rowCount()) {}

  std::int64_t end() const { return end_; }

  /// Calls `visit(stretch)` until the slice or the table is over; true at the end of the table.
  template <typename Visit>
  bool goOn(const SliceEnd& isOver, std::int64_t rowsPerLook, const Visit& visit) {
    while (next_ < end_) {
      if (isOver()) return false;
      HitStretch stretch = table_.stretchAt(next_);
      const std::int64_t most = std::min(rowsPerLook, end_ - next_);
      if (std::ssize(stretch.hits) > most) stretch.hits = stretch.hits.first(static_cast<std::size_t>(most));
      visit(stretch);
      next_ += std::ssize(stretch.hits);
    }
    return true;
  }

 private:
  const HitTable& table_;
  std::int64_t end_;
  std::int64_t next_ = 0;
};

/// Stretches of rows that have the same text, which is the same for all entries of a block: what is sorted by
/// volume or folder.
class TextRuns {
 public:
  explicit TextRuns(HitColumn column) : column_(column) {}

  /// Calls `begin(block)` for each run that begins in `stretch`.
  template <typename Begin>
  void add(const HitStretch& stretch, const Begin& begin) {
    const Segment& segment = *stretch.segment;
    const std::span<const std::uint32_t> starts = segment.arrays().blockStarts.all();
    if (segment_ != &segment) block_ = kNoBlock;
    segment_ = &segment;
    for (std::size_t i = 0; i < stretch.hits.size(); ++i) {
      const std::uint32_t entry = stretch.hits[i].entry;
      if (block_ != kNoBlock && isIn(starts, entry)) continue;
      block_ = blockAt(starts, entry);
      if (!hasNewText()) continue;
      firstRows_.push_back(static_cast<std::uint32_t>(stretch.firstRow + static_cast<std::int64_t>(i)));
      begin(block_);
    }
  }

  std::size_t count() const { return firstRows_.size(); }

  /// Adds the rows of `run` to `rows`, where the table has `end` rows.
  void write(std::size_t run, std::int64_t end, std::vector<std::uint32_t>& rows) const {
    const std::int64_t behind = run + 1 < firstRows_.size() ? firstRows_[run + 1] : end;
    for (std::int64_t row = firstRows_[run]; row < behind; ++row) {
      rows.push_back(static_cast<std::uint32_t>(row));
    }
  }

 private:
  static constexpr std::uint32_t kNoBlock = UINT32_MAX;

  bool isIn(std::span<const std::uint32_t> starts, std::uint32_t entry) const {
    return entry >= starts[block_] && (block_ + 1 == starts.size() || entry < starts[block_ + 1]);
  }
  bool hasNewText() {
    if (column_ == HitColumn::Folder) return true;
    const std::string_view volume = segment_->volumeOfBlock(block_);
    if (!firstRows_.empty() && volume == volume_) return false;
    volume_ = volume;
    return true;
  }

  HitColumn column_;
  const Segment* segment_ = nullptr;
  std::uint32_t block_ = kNoBlock;
  std::string volume_;
  std::vector<std::uint32_t> firstRows_;
};

}  // namespace quorvin
