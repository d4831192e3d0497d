// SPDX-License-Identifier: GPL-2.0-or-later

// Scans of very many short listings: what costs more than such a listing itself is made once and used again.
#pragma once

#include "search/format/listing_text.h"
#include "search/match/segment_search.h"
#include "search/segment/segment_builder.h"
#include "support/plain_scan.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin::test {

/// A search text that is searched for in listing after listing.
class RepeatedSearch {
 public:
  RepeatedSearch(const std::string& text, int desiredMatch)
      : text_(text),
        desired_(desiredMatch),
        words_(plainWords(QString::fromStdString(text).toStdU32String())),
        query_(QString::fromStdString(text), static_cast<std::int16_t>(desiredMatch)),
        segments_(query_) {}
  RepeatedSearch(const RepeatedSearch&) = delete;
  RepeatedSearch& operator=(const RepeatedSearch&) = delete;

  const std::string& text() const { return text_; }
  int desiredMatch() const { return desired_; }
  const std::vector<std::u32string>& words() const { return words_; }
  SegmentSearch& segments() { return segments_; }

 private:
  std::string text_;
  int desired_;
  std::vector<std::u32string> words_;
  SearchQuery query_;
  SegmentSearch segments_;
};

/// How a listing is cut up on its way through the scan.
struct QuickScanLimits {
  std::size_t chunkSize;
  /// Listing bytes in a segment.
  std::size_t segmentSize;
  /// Entries searched at a time.
  std::uint32_t entriesAtOnce;
  /// Segments are searched when they are complete, as those of the segment store are, and not while they
  /// grow.
  bool whenComplete;
};

/// Puts the parts of the scan together as the program does, but for one builder that serves all listings: it
/// is brought back to its beginning by lines that empty all that is carried from line to line.
class QuickScan {
 public:
  explicit QuickScan(const QLocale& locale) : builder_(locale) {}

  PlainResult scan(std::string_view listing, RepeatedSearch& search, const QuickScanLimits& limits);

 private:
  void beginListing();
  void searchText(bool segmentIsComplete);
  void endSegment();
  void note(const FoundEntry& found);

  SegmentBuilder builder_;
  std::int64_t linesBefore_ = 0;
  RepeatedSearch* search_ = nullptr;
  QuickScanLimits limits_{};
  std::uint32_t nextEntry_ = 0;
  std::vector<FoundEntry> found_;
  EntryValues shown_;
  PlainResult result_;
};

}  // namespace quorvin::test
