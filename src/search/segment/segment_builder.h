// SPDX-License-Identifier: GPL-2.0-or-later

// Turning the text of a listing into segments.
#pragma once

#include "search/format/line_scan.h"
#include "search/segment/segment.h"
#include "search/segment/tail_reader.h"
#include "search/segment/values_beside.h"

#include <QLocale>

#include <cstdint>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// Applies all rules of the listing format to the lines of one listing, in order. Volume, folder and tail are
/// carried from line to line and from segment to segment.
///
/// Sizes and dates are the most expensive part of a line to read, and most are never shown: the builder notes
/// where they are and reads them when they are asked for, at the latest when the text goes away.
class SegmentBuilder {
 public:
  /// `findOrder` finds the order of day and month of the whole listing. It is called at most once by each
  /// thread, if a date comes of which two orders make two dates and the listing's first text has no date that
  /// decides; without it, or where it finds none, the order is that of `locale`.
  explicit SegmentBuilder(const QLocale& locale, OrderFinder findOrder = {});
  SegmentBuilder(const SegmentBuilder&) = delete;
  SegmentBuilder& operator=(const SegmentBuilder&) = delete;

  /// Adds the lines of text[0..size) that have an end and returns how many bytes they take up. The text must
  /// stay until finishText(); kLinePadding bytes before and behind it can be read.
  std::size_t addLines(const char* text, std::size_t size);

  /// Adds one line, given without its line end, that addLines did not take; its bytes must stay as long.
  void addLine(std::string_view line);

  /// Reads size and date of entry `entry` of the segment, if that has not been done; entries come in
  /// ascending order.
  void readValues(std::uint32_t entry);
  void readAllValues();

  /// In place of readAllValues(): has them read by another thread from finishText() on. Those of hits can be
  /// read up to then; all are in the segment after finishValues(). `findOrder` may be called by that thread,
  /// too.
  void readAllValuesBeside();
  /// To be called before the segment goes on to anybody who may ask for the values of any entry.
  void finishValues();

  /// The order of day and month in the text at hand: that of its first date which is one in one order only.
  std::optional<DayMonthOrder> orderInText() const;

  /// The text of the lines added so far may go away; values that have not been read will never be asked for.
  void finishText();

  /// The segment that lines are being added to. Entries are seen in it after its publish().
  const std::shared_ptr<GrowingSegment>& segment() const { return segment_; }

  /// Starts a new segment; no more entries come to the one before. Its memory is reused if nobody else has
  /// it, else that of `spare`, which may be null.
  void beginSegment(std::shared_ptr<GrowingSegment> spare = nullptr);

  /// How many lines have been added.
  std::int64_t lineCount() const { return lineCount_; }

 private:
  /// The tail that applies to an entry whose values have not been read.
  struct Unread {
    /// Null where there has been none so far.
    const char* tail;
    std::uint32_t tailLength;
    /// Counted from the first line of the text.
    std::uint32_t line;
  };

  void addPlainLine(const char* line, std::size_t length);
  void addEntry(std::string_view line, bool ascii);
  void beginBlockIfNeeded();
  void noteEntry();
  bool hasOwnTail(std::uint32_t place) const;
  void keepTail();
  std::optional<DayMonthOrder> findOrder() const;

  OrderFinder findOrderOfListing_;
  TailReader tailReader_;
  std::optional<ValuesBeside> beside_;
  std::shared_ptr<GrowingSegment> segment_ = std::make_shared<GrowingSegment>();
  std::int64_t lineCount_ = 0;
  /// The line count at the start of the current text.
  std::int64_t textFirstLine_ = 0;

  std::string volume_;
  std::string folder_;
  /// Volume or folder have changed since the segment's last block.
  bool blockPending_ = true;

  /// The tail that applies now, null where there has been none: in the current text or, from an earlier one,
  /// in keptTail_.
  const char* tail_ = nullptr;
  std::uint32_t tailLength_ = 0;
  /// With kLinePadding bytes behind it, as all texts that tails are in.
  std::string keptTail_;

  /// The entries of the current text, from firstUnread_ on.
  std::vector<Unread> unread_;
  std::uint32_t firstUnread_ = 0;
  /// Entries before this one have been read or passed over.
  std::uint32_t nextToRead_ = 0;

  std::vector<std::uint64_t> lineEnds_;
  std::vector<std::uint64_t> care_;
  /// Lines of the current text that had to be decoded, with kLinePadding bytes behind each; tails point into
  /// them. A list, so that they stay where they are.
  std::list<std::string> decoded_;
};

}  // namespace quorvin
