// Searching the entries of one listing, segment after segment, in steps between which events can run.
#pragma once

#include "search/listing_scan.h"
#include "search/match/hit_receiver.h"
#include "search/match/segment_search.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace quorvin {

/// One listing's search, however its segments come about.
class EntrySearch {
 public:
  /// Everything handed over must outlive the search.
  EntrySearch(const SearchQuery& query, std::int64_t& searchedCount, HitReceiver& hits,
              ScanListener& listener, ScanOutcome& outcome);

  /// Searches entries `first` to `last` - 1 of `segment`, yielding at every 2000th entry of the run.
  /// `prepare`, if any, is called with the hits before their values are looked at. Stops where the listener
  /// says so.
  void search(const std::shared_ptr<const Segment>& segment, std::uint32_t first, std::uint32_t last,
              const std::function<void(std::span<const FoundEntry>)>& prepare = {});

  /// Entries of the listing searched so far.
  std::int64_t searched() const { return searched_; }
  bool stopped() const { return outcome_.stopped; }

 private:
  void searchStep(const std::shared_ptr<const Segment>& segment, std::uint32_t first, std::uint32_t last,
                  const std::function<void(std::span<const FoundEntry>)>& prepare);
  void report(const std::shared_ptr<const Segment>& segment);

  SegmentSearch search_;
  std::int64_t& searchedCount_;
  HitReceiver& receiver_;
  ScanListener& listener_;
  ScanOutcome& outcome_;
  std::int64_t searched_ = 0;
  std::vector<FoundEntry> found_;
};

}  // namespace quorvin
