// SPDX-License-Identifier: GPL-2.0-or-later

// The segments of a large listing, searched by several threads.
#pragma once

#include "search/match/segment_search.h"
#include "search/segment/segment_store.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace quorvin {

/// What the search of a segment has found, step by step: a step ends where the run's count of searched
/// entries is at a multiple of 2000, and at the end of the segment.
struct SegmentFinds {
  /// Entries searched; fewer than the segment has where `fault` ended it. A step is searched whole or not.
  std::uint32_t searched = 0;
  /// The hits of each step where only their number is wanted.
  std::vector<std::int64_t> counts;
  /// All hits, in order, where they are.
  std::vector<FoundEntry> hits;
  /// What searching the segment has thrown.
  std::exception_ptr fault;
};

/// Searches segments on other threads while one thread goes through them in order. That thread is given what
/// was found segment by segment, when it comes to each; what it comes to before anybody else it searches by
/// itself, and while it would have to wait it searches another one. So nothing is found in another order, and
/// with no thread at all everything is as if there was only one. A segment is searched by one thread; nobody
/// else is given anything of it before that is through.
class SegmentsAhead {
 public:
  struct Options {
    /// Threads beside the one that goes through the segments. Fewer where no more are to be had.
    int helpers = 0;
    /// Only the number of hits is wanted.
    bool countsOnly = false;
    /// How many entries the run has searched before the first segment.
    std::int64_t searchedBefore = 0;
  };

  /// `segments` and `query` must outlive the object.
  SegmentsAhead(const SegmentStore::Segments& segments, const SearchQuery& query, const Options& options);
  /// Waits until the others have ended their step.
  ~SegmentsAhead();
  SegmentsAhead(const SegmentsAhead&) = delete;
  SegmentsAhead& operator=(const SegmentsAhead&) = delete;

  /// To be called for each segment in order, from the first. What was found in it, or nothing: then the
  /// caller is to search it, and nobody else does.
  std::optional<SegmentFinds> take(std::size_t segment);

  /// The end of the step that starts with the entry `first` of a segment of `count` entries, in front of
  /// which the run has searched `searchedBefore`.
  static std::uint32_t endOfStep(std::uint32_t first, std::uint32_t count, std::int64_t searchedBefore);

 private:
  /// What has become of each segment that was taken by anybody.
  struct Place {
    std::int64_t searchedBefore = 0;
    bool isDone = false;
    SegmentFinds finds;
  };
  using Lock = std::unique_lock<std::mutex>;

  void startHelpers();
  void help();
  bool mayTakeNext() const;
  void searchNext(SegmentSearch& search, Lock& lock);
  void searchWhole(SegmentSearch& search, const Segment& segment, Place& place) const;

  const SegmentStore::Segments& segments_;
  const SearchQuery& query_;
  const Options options_;
  /// Of the thread that goes through the segments.
  SegmentSearch search_;
  /// Guards all that follows but `isEnding_`.
  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<Place> places_;
  /// The first segment that nobody has taken, and the one that the caller is at.
  std::size_t next_ = 0;
  std::size_t current_ = 0;
  std::atomic<bool> isEnding_ = false;
  std::vector<std::thread> helpers_;
};

}  // namespace quorvin
