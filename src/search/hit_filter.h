// SPDX-License-Identifier: GPL-2.0-or-later

// Which rows of a hit table hold certain words.
#pragma once

#include "search/hit_table.h"
#include "search/match/segment_search.h"
#include "search/row_sort.h"

#include <QString>

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace quorvin {

/// Finds the rows whose folder or name holds each of a few words, without regard to capitals, as a search
/// does. It goes on in slices, and follows a table that grows. A text that only says more than the one before
/// is looked for in the rows that are left alone.
class HitFilter {
 public:
  /// `table` must outlive the filter.
  explicit HitFilter(const HitTable& table) : table_(table) {}

  /// From now on the rows with all words of `text` are wanted. Of very many words, the first ones.
  void setText(const QString& text);
  /// Whether the text has any words: without any there is nothing to look for.
  bool isOn() const { return !words_.empty(); }

  /// To be called when the rows of the table have been exchanged: none has been looked at.
  void restart();

  /// Goes on until the slice is over or the rows below `end` have been looked at, which is when it is true.
  bool goOn(std::int64_t end, const SliceEnd& isOver);

  /// Rows below this have been looked at.
  std::int64_t lookedAt() const { return lookedAt_; }
  /// Whether `row`, which has been looked at, has the words.
  bool has(std::int64_t row) const {
    return (bits_[static_cast<std::size_t>(row / 64)] >> (row % 64) & 1U) != 0;
  }
  /// Adds those rows from `begin` to `end` - 1, which have been looked at, that have the words to `rows`.
  void addRows(std::int64_t begin, std::int64_t end, std::vector<std::uint32_t>& rows) const;

 private:
  /// One word to look for.
  struct Word {
    explicit Word(const QString& text);
    std::string bytes;
    SearchQuery query;
    SegmentSearch search;
  };
  /// Looks at single rows, with what it knows of the folder it looked at last.
  class RowLook;

  void look(const HitStretch& stretch);
  void lookAtAll(const HitStretch& stretch);
  void lookAtEach(const HitStretch& stretch);
  std::int64_t candidates(const HitStretch& stretch) const;
  const std::vector<Word*>& wordsFor(std::int64_t row) const {
    return row < narrowedUntil_ ? newWords_ : allWords_;
  }
  std::uint64_t bitsAt(std::int64_t row) const;
  void keepBits(std::int64_t row, std::int64_t count, std::uint64_t bits);

  const HitTable& table_;
  /// In a deque, since a search refers to its query.
  std::deque<Word> words_;
  std::vector<Word*> allWords_;
  /// Those that the text before did not have.
  std::vector<Word*> newWords_;
  std::int64_t lookedAt_ = 0;
  /// The bits of rows below this are those of the text before, which the present one narrows.
  std::int64_t narrowedUntil_ = 0;
  std::vector<std::uint64_t> bits_;
  std::shared_ptr<const Segment> segment_;
};

}  // namespace quorvin
