// SPDX-License-Identifier: GPL-2.0-or-later

// Scanning one listing from its start to its end.
#pragma once

#include "search/format/listing_text.h"
#include "search/hit_sink.h"
#include "search/match/search_query.h"
#include "search/segment/segment_store.h"

#include <QLocale>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace quorvin {

/// The counts of a run. Each scan adds its own.
struct RunCounts {
  std::int64_t searched = 0;
  std::int64_t hits = 0;
};

/// Events are let run each time this many entries have been searched.
inline constexpr std::int64_t kEntriesBetweenYields = 2000;

/// What a run hands to each of its scans. All of it must outlive the scan.
struct ScanRequest {
  const SearchQuery& query;
  /// The locale in which the listings' sizes and dates are read.
  QLocale locale;
  /// Where hits go; null where only their number is wanted.
  HitSink* hits;
  /// Called each time that the run's searched count has become a multiple of 2000: the moment to show counts
  /// and let events run. True stops the scan at once.
  std::function<bool(std::int64_t searchedCount)> yield;
};

/// How a scan ended.
struct ScanOutcome {
  bool stopped = false;
  /// Stopped because the sink wants no more hits.
  bool enough = false;
  /// Hits whose size or date could not be read, and the line of the first of them (from 1; 0 if none).
  std::int64_t unreadableHits = 0;
  std::int64_t firstUnreadableLine = 0;
  /// The file, or what is kept of it, was written to while it was searched, so that what was found may be
  /// partly of the old and partly of the new content. One that was replaced is not meant: it is read to its
  /// end as it was.
  bool changedMeanwhile = false;
  /// There are zero bytes near its start: it is UTF-16 without a mark, or no text at all.
  bool isNoText = false;
};

/// How a listing is read; the defaults are the program's, tests take small ones.
struct ScanLimits {
  /// Bytes read at a time, at least 1. Small enough that all that is made of them stays in the processor's
  /// caches.
  std::size_t chunkSize = std::size_t{1} << 18;
  /// A line with more bytes is no line of a listing: the scan ends there with a fault.
  std::size_t longestLine = std::size_t{1} << 20;
  /// Listing bytes in one segment that is not kept, and in one that is.
  std::size_t passingSegment = std::size_t{1} << 18;
  std::size_t keptSegment = std::size_t{64} << 20;
  /// Behind so many bytes, the values of a listing that is kept are read by another thread: in a smaller one
  /// that takes hardly longer than to start it.
  std::size_t valuesBeside = std::size_t{4} << 20;
  /// A listing of so many entries whose segments are known is searched by several threads: on smaller ones
  /// they would be hardly longer at work than they take to start.
  std::int64_t searchedAhead = 5'000'000;
  /// So many threads beside the caller's; nothing for as many as the machine has other processors, up to
  /// three.
  std::optional<int> helpers = {};
};

/// Scans the listing that `open` opens. `counts` is raised by the entries searched and the hits; hits go to
/// the sink in file order. Only one chunk, one segment and the hits are in memory. The listing is opened a
/// second time where the order of its days and months has to be looked for beyond the first chunk. Throws
/// RuntimeFault when reading fails or a line is too long (fault 6, naming the line); `outcome`, `counts` and
/// the hits up to there are kept.
void scanListing(const ListingOpener& open, const ScanRequest& request, RunCounts& counts,
                 ScanOutcome& outcome, const ScanLimits& limits = {});

/// The same for the listing file at `path`, from its segments in `store` where they are known; else they are
/// built and handed to the store, unless it is no text. `store` may be null. Segments that turn out to be
/// damaged are rebuilt, and the scan goes on where it was.
void scanListingFile(const QString& path, SegmentStore* store, const ScanRequest& request, RunCounts& counts,
                     ScanOutcome& outcome, const ScanLimits& limits = {});

}  // namespace quorvin
