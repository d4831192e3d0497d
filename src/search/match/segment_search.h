// SPDX-License-Identifier: GPL-2.0-or-later

// Searching a segment.
#pragma once

#include "search/match/word_search.h"
#include "search/segment/segment.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace quorvin {

/// One entry above the desired match.
struct FoundEntry {
  /// The entry's number in its segment.
  std::uint32_t entry;
  /// The match, 1 to 100.
  std::int16_t match;
};

/// Searches segments for one query. A word holds no blank, so it is found in the folder or in the entry,
/// never across: both are searched on their own, and an entry is looked at only where a word was seen in it
/// or where its folder alone decides.
class SegmentSearch {
 public:
  /// `query` must outlive the search.
  explicit SegmentSearch(const SearchQuery& query);

  /// Appends the hits among entries `first` to `last` - 1 of `segment` to `hits`, in order.
  void search(const Segment& segment, std::uint32_t first, std::uint32_t last, std::vector<FoundEntry>& hits);

  /// How many hits search() would append.
  std::int64_t count(const Segment& segment, std::uint32_t first, std::uint32_t last);

  /// The same hits as a bit for each entry, that of `first` lowest in the first element; none at all where
  /// nothing is a hit. Valid until the next call.
  std::span<const std::uint64_t> mark(const Segment& segment, std::uint32_t first, std::uint32_t last);

 private:
  bool findCandidates(const Segment& segment, std::uint32_t first, std::uint32_t last);
  void searchFolders(const Segment& segment, std::uint32_t first, std::uint32_t last);
  void addCandidatesOfFolders(std::uint32_t first, std::uint32_t last);
  void score(std::uint32_t first, std::vector<FoundEntry>& hits) const;
  std::int64_t candidateCount() const;
  void takeAllCandidates(std::uint32_t first, std::vector<FoundEntry>& hits) const;
  /// How many words of the query are found where those of `seen` are, repetitions and empty ones counted.
  int countOf(const WordSet& seen) const {
    return fewWords_ ? counts_[seen.firstEight()] : countOfMany(seen);
  }
  int countOfMany(const WordSet& seen) const;

  const SearchQuery& query_;
  /// The query has eight different words at most; then counts_ has the answer for each set of them.
  bool fewWords_;
  /// There is one different word, and nothing is a hit without it: then every candidate is a hit.
  bool wordDecides_;
  std::array<int, 256> counts_{};
  /// One for each, since each remembers what words its texts are likely to hold.
  WordSearch entryWords_;
  WordSearch folderWords_;
  SeenWords inEntries_;
  SeenWords inFolders_;
  /// Of the segment being searched: the first entry of each block; the blocks that are searched.
  std::span<const std::uint32_t> blockStarts_;
  std::uint32_t firstBlock_ = 0;
  std::uint32_t lastBlock_ = 0;
  /// A bit for each entry that has to be looked at.
  std::vector<std::uint64_t> candidates_;
  /// Hits that are only counted.
  std::vector<FoundEntry> counted_;
};

}  // namespace quorvin
