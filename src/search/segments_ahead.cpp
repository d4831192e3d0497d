// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segments_ahead.h"

#include "search/listing_scan.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvin {

SegmentsAhead::SegmentsAhead(const SegmentStore::Segments& segments, const SearchQuery& query,
                             const Options& options)
    : segments_(segments), query_(query), options_(options), search_(query), places_(segments.size()) {
  std::int64_t searched = options.searchedBefore;
  for (std::size_t i = 0; i < segments.size(); ++i) {
    places_[i].searchedBefore = searched;
    searched += segments[i]->entryCount();
  }
}

SegmentsAhead::~SegmentsAhead() {
  {
    const Lock lock(mutex_);
    isEnding_ = true;
  }
  changed_.notify_all();
  for (std::thread& helper : helpers_) helper.join();
}

std::uint32_t SegmentsAhead::endOfStep(std::uint32_t first, std::uint32_t count,
                                       std::int64_t searchedBefore) {
  const std::int64_t toYield = kEntriesBetweenYields - (searchedBefore + first) % kEntriesBetweenYields;
  return first + static_cast<std::uint32_t>(std::min<std::int64_t>(toYield, count - first));
}

std::optional<SegmentFinds> SegmentsAhead::take(std::size_t segment) {
  Lock lock(mutex_);
  current_ = segment;
  if (next_ == segment) {
    ++next_;
    // The first one is the caller's in any case, so that its hits are seen as early as ever.
    if (segment == 0) startHelpers();
    changed_.notify_all();
    return std::nullopt;
  }
  // There is room for one more ahead.
  changed_.notify_all();
  while (!places_[segment].isDone) {
    if (mayTakeNext()) {
      searchNext(search_, lock);
    } else {
      changed_.wait(lock);
    }
  }
  return std::exchange(places_[segment].finds, {});
}

void SegmentsAhead::startHelpers() {
  try {
    for (int i = 0; i < options_.helpers; ++i) helpers_.emplace_back([this] { help(); });
  } catch (const std::system_error&) {
    // There are no more threads to be had: those that are there do it, or the caller alone.
  }
}

void SegmentsAhead::help() {
  SegmentSearch search(query_);
  Lock lock(mutex_);
  while (true) {
    changed_.wait(lock, [this] { return isEnding_ || mayTakeNext(); });
    if (isEnding_) return;
    searchNext(search, lock);
  }
}

/// What is found ahead is kept in memory, so nobody goes further ahead than keeps everybody at work.
bool SegmentsAhead::mayTakeNext() const {
  return next_ < segments_.size() && next_ <= current_ + static_cast<std::size_t>(options_.helpers) + 1;
}

void SegmentsAhead::searchNext(SegmentSearch& search, Lock& lock) {
  const std::size_t taken = next_++;
  lock.unlock();
  searchWhole(search, *segments_[taken], places_[taken]);
  lock.lock();
  places_[taken].isDone = true;
  changed_.notify_all();
}

/// The place is that of nobody else before it is done.
void SegmentsAhead::searchWhole(SegmentSearch& search, const Segment& segment, Place& place) const {
  SegmentFinds& finds = place.finds;
  try {
    const std::uint32_t count = segment.entryCount();
    // Memory counts only where it is used; growing would use twice as much.
    if (!options_.countsOnly) finds.hits.reserve(count);
    while (finds.searched < count && !isEnding_) {
      const std::uint32_t end = endOfStep(finds.searched, count, place.searchedBefore);
      if (options_.countsOnly) {
        finds.counts.push_back(search.count(segment, finds.searched, end));
      } else {
        search.search(segment, finds.searched, end, finds.hits);
      }
      finds.searched = end;
    }
    segment.searched();
  } catch (...) {
    // Thrown again when the caller comes to it.
    finds.fault = std::current_exception();
  }
}

}  // namespace quorvin
