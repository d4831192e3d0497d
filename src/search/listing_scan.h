// Scanning one listing from its start to its end.
#pragma once

#include "search/format/listing_source.h"
#include "search/match/hit_receiver.h"
#include "search/match/search_query.h"
#include "search/segment/segment_store.h"

#include <QLocale>
#include <QString>

#include <cstddef>
#include <cstdint>

namespace quorvin {

/// What a scan asks of the run around it.
class ScanListener {
 public:
  virtual ~ScanListener() = default;
  /// Comes each time that the searched count of the run has become a multiple of 2000: the moment to show
  /// counts and let events run. True asks the scan to stop at once.
  virtual bool reached(std::int64_t searchedCount) = 0;
};

/// Events are let run each time this many entries have been searched.
inline constexpr std::int64_t kEntriesBetweenYields = 2000;

/// How a scan ended.
struct ScanOutcome {
  bool stopped = false;
  /// Hits whose size or date could not be read, and the line of the first of them (from 1; 0 if none).
  std::int64_t unreadableHits = 0;
  std::int64_t firstUnreadableLine = 0;
  /// The file was written to while it was read, so that what was found may be partly of the old and partly of
  /// the new content. One that was replaced is not meant: it is read to its end as it was.
  bool changedMeanwhile = false;
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
};

/// Scans a listing for `query`. `searchedCount` is the run's and is raised by one for each entry; hits go to
/// `hits` in file order. Only one chunk, one segment and the hits are in memory. Throws RuntimeFault when
/// reading fails or a line is too long (fault 6, naming the line); `outcome` and the hits up to there stand.
void scanListing(ListingSource& source, const SearchQuery& query, const QLocale& locale,
                 std::int64_t& searchedCount, HitReceiver& hits, ScanListener& listener, ScanOutcome& outcome,
                 const ScanLimits& limits = {});

/// The same for the listing file at `path`, from its segments in `store` where they are known; else they are
/// built and handed to the store. `store` may be null. Segments that turn out to be damaged are built anew,
/// and the scan goes on where it was.
void scanListingFile(const QString& path, SegmentStore* store, const SearchQuery& query,
                     const QLocale& locale, std::int64_t& searchedCount, HitReceiver& hits,
                     ScanListener& listener, ScanOutcome& outcome, const ScanLimits& limits = {});

}  // namespace quorvin
