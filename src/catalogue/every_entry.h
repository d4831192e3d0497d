// SPDX-License-Identifier: GPL-2.0-or-later

// For what goes over whole listings.
#pragma once

#include "catalogue/listed_files.h"
#include "search/hit_sink.h"
#include "search/search_run.h"
#include "search/segment/segment_store.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace quorvin {

/// For going over listings twice: between the two times nothing has to stay in memory.
inline SegmentStore::Options storeForTwoReadings() {
  SegmentStore::Options options = SegmentStore::defaultOptions(SegmentUse::Repeated);
  options.memoryBudget = 0;
  return options;
}

/// Goes over all entries of `listings`, or of the sources of the run where there are none.
inline void findEveryEntry(SearchRun& run, const std::vector<QString>& listings) {
  const QString everything = QString::fromUtf16(ListedFiles::kEveryEntry);
  const QString anyMatch = QStringLiteral("1");
  if (listings.empty()) {
    run.Find_Click(everything, anyMatch);
  } else {
    run.searchListings(everything, anyMatch, listings);
  }
}

/// Takes all entries of listings, block by block. The search must be one that finds every entry.
class EveryEntry : public HitSink {
 public:
  void startListing(SourceKind, const QString&) override {}
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override {
    const std::uint32_t first = hits.front().entry;
    const std::uint32_t end = hits.back().entry + 1;
    checkPlaces(place_, end - first);
    const std::span<const std::uint32_t> starts = segment->arrays().blockStarts.all();
    std::uint32_t block = blockAt(starts, first);
    for (std::uint32_t entry = first; entry < end; ++block) {
      const std::uint32_t last = block + 1 < starts.size() ? std::min(starts[block + 1], end) : end;
      takeBlock(*segment, block, entry, last);
      entry = last;
    }
    return true;
  }
  void endSegment(const std::shared_ptr<const Segment>&, const std::shared_ptr<const Segment>&) override {}

 protected:
  /// Entries from `first` to `end` - 1 of a block. Each is to be counted in `place_`.
  virtual void takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                         std::uint32_t end) = 0;

  std::uint32_t place_ = 0;
};

}  // namespace quorvin
