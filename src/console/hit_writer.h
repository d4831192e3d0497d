// SPDX-License-Identifier: GPL-2.0-or-later

// Hits as rows on a stream.
#pragma once

#include "console/hit_rows.h"
#include "search/hit_sink.h"
#include "search/hit_table.h"
#include "search/segment/text_table.h"

#include <cstdint>
#include <cstdio>
#include <functional>
#include <limits>
#include <string>

namespace quorvin {

/// How a HitWriter writes.
struct WriterOptions {
  /// No more rows than these are written.
  std::int64_t limit = std::numeric_limits<std::int64_t>::max();
  /// Somebody watches the rows come.
  bool isWatched = false;
  /// Called before anything goes to the output; may be empty.
  std::function<void()> beforeOutput = {};
};

/// Writes each hit as soon as it comes and keeps none. Wants no more of them once a write has failed or all
/// the rows that are wanted have been written.
class HitWriter : public HitSink {
 public:
  /// `output` and `rows` must outlive the writer.
  HitWriter(std::FILE* output, HitRows& rows, WriterOptions options = {});

  /// Whether all output so far has been taken; false once a write failed.
  bool good() const { return good_; }
  /// The rows that have been made, and the hits without a row.
  std::int64_t written() const { return written_; }
  std::int64_t leftOut() const { return leftOut_; }
  bool isLimitReached() const { return written_ >= options_.limit; }

  void writeHead();
  /// Writes rows of a table, by their numbers. Rows that turn out to be damaged are left out; gives their
  /// number.
  std::int64_t writeRows(const HitTable& table, const std::vector<std::uint32_t>& tableRows);
  /// Hands what is still buffered to the output.
  void flush();

  void startListing(SourceKind kind, const QString& path) override;
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override;
  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override;

 private:
  /// The hits of an entry's block, from `first` to `last` - 1; none at first.
  struct Block {
    std::uint32_t first = 0;
    std::uint32_t last = 0;
  };

  void addRows(const Segment& segment, std::span<const FoundEntry> hits);
  void startSegment(const Segment& segment);
  void enterBlock(const Segment& segment, std::uint32_t entry);
  void addTableRow(const HitTable& table, std::int64_t row);
  void setListing(SourceKind kind, const QString& path);
  void addRow(const FoundHit& hit);

  std::FILE* output_;
  HitRows& rows_;
  WriterOptions options_;
  SourceKind kind_ = SourceKind::Online;
  QString listingPath_;
  std::string listing_;
  ListedWalk names_;
  ListedWalk folders_;
  /// That of the entry before.
  Block block_;
  /// Size and date last read in the current listing.
  std::optional<EntryValues> values_;
  std::string buffer_;
  std::int64_t written_ = 0;
  std::int64_t leftOut_ = 0;
  bool good_ = true;
};

}  // namespace quorvin
