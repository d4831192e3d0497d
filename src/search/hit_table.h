// SPDX-License-Identifier: GPL-2.0-or-later

// The hits of the last run, as rows of six columns. Rows are made into text only when they are asked for.
#pragma once

#include "dates/general_date.h"
#include "search/hit_sink.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quorvin {

/// The columns of the hit list, in order.
enum class HitColumn { Match, Volume, Folder, Name, Size, Date };
inline constexpr int kHitColumnCount = 6;

/// What one row holds.
struct HitRow {
  std::int16_t match = 0;
  SourceKind kind = SourceKind::Online;
  QString volume;
  /// As listed: with backslashes, without the drive.
  QString folder;
  /// The entry text as listed.
  QString name;
  /// Bytes; of the row itself or of the hit before it in the same listing, 0 if there was none.
  std::int64_t size = 0;
  DateValue date = 0;
};

/// The text of one column of `row`, as the hit list and the console show it.
QString hitText(const HitRow& row, HitColumn column, const QLocale& locale);

/// Rows one after another whose hits are in one segment, in entry order.
struct HitStretch {
  std::int64_t firstRow;
  const std::shared_ptr<const Segment>& segment;
  std::span<const FoundEntry> hits;
};

/// Keeps hits as references into segments, 8 bytes each, and 16 for each stretch of hits without values of
/// their own.
class HitTable : public HitSink {
 public:
  /// The number of rows so far.
  std::int64_t rowCount() const { return rowCount_; }

  /// The content of `row`, 0 <= row < rowCount(). A row that turns out to be damaged in the search cache has
  /// a name that says so.
  HitRow row(std::int64_t row) const;
  SourceKind kind(std::int64_t row) const;
  /// HitRow::size of that row, without making its texts; 0 for a damaged one.
  std::int64_t size(std::int64_t row) const;
  /// The path of the listing that `row` was found in.
  QString listing(std::int64_t row) const;

  /// As many rows from `row` on, 0 <= row < rowCount(), as lie together; valid until the table changes.
  HitStretch stretchAt(std::int64_t row) const;
  /// Size and date of `row`. Throws DamagedSegment.
  EntryValues values(std::int64_t row) const;
  /// The row whose entry has the size and date that `row` shows: itself or one before it; nothing where the
  /// listing has none up to there.
  std::optional<std::int64_t> rowWithValues(std::int64_t row) const;

  /// Removes all rows and releases the segments. Memory for as many rows stays, so that a next run with as
  /// many hits need not ask for it.
  void clear();
  /// How often clear() has been called: while it stays the same, so do the rows that there are.
  std::int64_t timesCleared() const { return timesCleared_; }

  void startListing(SourceKind kind, const QString& path) override;
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override;
  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override;

 private:
  /// Consecutive rows that belong to one segment.
  struct SegmentRows {
    std::int64_t firstRow;
    std::shared_ptr<const Segment> segment;
    SourceKind kind;
    QString listing;
  };
  /// Rows one after another whose own entries have no values. They show those of the row before the first of
  /// them, or none where the listing starts with them.
  struct CarriedRows {
    std::int64_t firstRow;
    std::uint32_t count;
    bool beginListing;
  };
  static constexpr std::int64_t kNoRow = -1;
  /// Hits are kept in pages, so that growing never copies them.
  static constexpr std::int64_t kPageSize = 1 << 16;
  /// This many (16 MB) stay for the next run, or as many as the last run has filled: new memory costs more
  /// than what is written to it.
  static constexpr std::size_t kPagesKept = 32;

  void readRow(std::int64_t row, HitRow& result) const;
  const FoundEntry& hit(std::int64_t row) const;
  FoundEntry& hit(std::int64_t row);
  const SegmentRows& segmentRows(std::int64_t row) const;
  std::int64_t valueRowOf(std::int64_t row) const;
  bool findOwnValues(const Segment& segment, std::span<const FoundEntry> hits);
  void noteCarriedRow(std::int64_t row);

  std::vector<std::unique_ptr<FoundEntry[]>> pages_;
  std::int64_t rowCount_ = 0;
  std::vector<SegmentRows> segments_;
  std::vector<CarriedRows> carried_;
  /// Of the hits that are being added: the entry has values of its own.
  std::vector<std::uint8_t> ownValues_;
  SourceKind kind_ = SourceKind::Online;
  QString listing_;
  std::int64_t timesCleared_ = 0;
  /// No hit of the listing has come yet. The same listing may come again as another kind of source, with the
  /// same segments.
  bool listingBegins_ = true;
  /// A row of the listing has values of its own.
  bool valuesSeen_ = false;
};

}  // namespace quorvin
