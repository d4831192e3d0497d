// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/match/segment_search.h"

#include <algorithm>
#include <bit>

namespace quorvin {

namespace {

/// Sets bits `from` to `to` - 1.
void setBits(std::vector<std::uint64_t>& bits, std::uint32_t from, std::uint32_t to) {
  if (from >= to) return;
  constexpr std::uint64_t kAll = ~std::uint64_t{0};
  const std::uint64_t first = kAll << (from % 64);
  const std::uint64_t last = kAll >> (63 - (to - 1) % 64);
  const std::size_t begin = from / 64;
  const std::size_t end = (to - 1) / 64;
  if (begin == end) {
    bits[begin] |= first & last;
    return;
  }
  bits[begin] |= first;
  std::fill(bits.begin() + static_cast<std::ptrdiff_t>(begin) + 1,
            bits.begin() + static_cast<std::ptrdiff_t>(end), kAll);
  bits[end] |= last;
}

/// The first of `starts` from `from` on that is not below `value`. Nearby ones are tried first: each stretch
/// follows the one before and holds few of very many blocks.
std::uint32_t firstNotBelow(std::span<const std::uint32_t> starts, std::uint32_t from, std::uint32_t value) {
  std::size_t step = 1;
  std::size_t end = from;
  while (end < starts.size() && starts[end] < value) {
    from = static_cast<std::uint32_t>(end) + 1;
    end += step;
    step *= 2;
  }
  const auto behind = starts.begin() + static_cast<std::ptrdiff_t>(std::min(end, starts.size()));
  return static_cast<std::uint32_t>(std::lower_bound(starts.begin() + from, behind, value) - starts.begin());
}

}  // namespace

SegmentSearch::SegmentSearch(const SearchQuery& query)
    : query_(query),
      fewWords_(query.words().size() <= 8),
      wordDecides_(query.words().size() == 1 && query.emptyWords() < query.fewestForHit()),
      entryWords_(query),
      folderWords_(query),
      inEntries_(wordDecides_),
      inFolders_(wordDecides_) {
  if (!fewWords_) return;
  for (std::size_t set = 0; int& count : counts_) {
    WordSet seen;
    for (std::size_t word = 0; word < query.words().size(); ++word) {
      if ((set >> word & 1U) != 0) seen.add(word);
    }
    count = countOfMany(seen);
    ++set;
  }
}

void SegmentSearch::search(const Segment& segment, std::uint32_t first, std::uint32_t last,
                           std::vector<FoundEntry>& hits) {
  if (!findCandidates(segment, first, last)) return;
  if (wordDecides_) {
    takeAllCandidates(first, hits);
  } else {
    score(first, hits);
  }
}

std::int64_t SegmentSearch::count(const Segment& segment, std::uint32_t first, std::uint32_t last) {
  if (!findCandidates(segment, first, last)) return 0;
  if (wordDecides_) return candidateCount();
  counted_.clear();
  score(first, counted_);
  return static_cast<std::int64_t>(counted_.size());
}

std::span<const std::uint64_t> SegmentSearch::mark(const Segment& segment, std::uint32_t first,
                                                   std::uint32_t last) {
  if (!findCandidates(segment, first, last)) return {};
  if (wordDecides_) return candidates_;
  counted_.clear();
  score(first, counted_);
  std::ranges::fill(candidates_, 0);
  for (const FoundEntry& hit : counted_) {
    const std::uint32_t i = hit.entry - first;
    candidates_[i / 64] |= std::uint64_t{1} << (i % 64);
  }
  return candidates_;
}

/// False where nothing can be a hit.
bool SegmentSearch::findCandidates(const Segment& segment, std::uint32_t first, std::uint32_t last) {
  if (first == last || query_.fewestForHit() > query_.wordCount()) return false;
  searchFolders(segment, first, last);
  if (wordDecides_) {
    entryWords_.find(segment.arrays().entries, first, last, inEntries_);
  } else {
    const int mostMissing = query_.wordCount() - query_.fewestForHit();
    entryWords_.find(segment.arrays().entries, first, last, inEntries_, inFolders_.all(), mostMissing);
  }
  const bool needsWord = query_.emptyWords() < query_.fewestForHit();
  if (needsWord && inEntries_.none() && inFolders_.none()) return false;
  candidates_ = inEntries_.touched();
  addCandidatesOfFolders(first, last);
  return true;
}

std::int64_t SegmentSearch::candidateCount() const {
  std::int64_t count = 0;
  for (const std::uint64_t bits : candidates_) count += std::popcount(bits);
  return count;
}

void SegmentSearch::searchFolders(const Segment& segment, std::uint32_t first, std::uint32_t last) {
  blockStarts_ = segment.arrays().blockStarts.all();
  // Most often the step before was of the same segment, and this one goes on from its last block.
  const std::uint32_t hint = lastBlock_ == 0 ? 0 : lastBlock_ - 1;
  const bool isBehindHint = hint < blockStarts_.size() && blockStarts_[hint] <= first;
  firstBlock_ =
      isBehindHint ? firstNotBelow(blockStarts_, hint, first + 1) - 1 : blockAt(blockStarts_, first);
  lastBlock_ = firstNotBelow(blockStarts_, firstBlock_ + 1, last);
  folderWords_.find(segment.arrays().folders, firstBlock_, lastBlock_, inFolders_);
}

void SegmentSearch::addCandidatesOfFolders(std::uint32_t first, std::uint32_t last) {
  if (query_.emptyWords() >= query_.fewestForHit()) {
    setBits(candidates_, 0, last - first);
    return;
  }
  for (std::size_t i = 0; i < inFolders_.touched().size(); ++i) {
    for (std::uint64_t left = inFolders_.touched()[i]; left != 0; left &= left - 1) {
      const std::uint32_t block = firstBlock_ + static_cast<std::uint32_t>(i * 64) +
                                  static_cast<std::uint32_t>(std::countr_zero(left));
      if (!wordDecides_ && countOf(inFolders_.in(block)) < query_.fewestForHit()) continue;
      const std::uint32_t end = block + 1 < lastBlock_ ? blockStarts_[block + 1] : last;
      setBits(candidates_, std::max(blockStarts_[block], first) - first, end - first);
    }
  }
}

void SegmentSearch::score(std::uint32_t first, std::vector<FoundEntry>& hits) const {
  const bool foldersMatter = !inFolders_.none();
  std::uint32_t block = firstBlock_;
  for (std::size_t i = 0; i < candidates_.size(); ++i) {
    for (std::uint64_t left = candidates_[i]; left != 0; left &= left - 1) {
      const std::uint32_t entry =
          first + static_cast<std::uint32_t>(i * 64) + static_cast<std::uint32_t>(std::countr_zero(left));
      WordSet seen = inEntries_.in(entry);
      if (foldersMatter) {
        while (block + 1 < lastBlock_ && blockStarts_[block + 1] <= entry) ++block;
        seen = seen | inFolders_.in(block);
      }
      const int found = countOf(seen);
      if (found >= query_.fewestForHit()) hits.push_back({entry, query_.match(found)});
    }
  }
}

void SegmentSearch::takeAllCandidates(std::uint32_t first, std::vector<FoundEntry>& hits) const {
  const std::int16_t match = query_.match(query_.wordCount());
  const auto count = static_cast<std::size_t>(candidateCount());
  hits.resize(hits.size() + count);
  FoundEntry* hit = hits.data() + (hits.size() - count);
  for (std::size_t i = 0; i < candidates_.size(); ++i) {
    const auto base = first + static_cast<std::uint32_t>(i * 64);
    for (std::uint64_t left = candidates_[i]; left != 0; left &= left - 1) {
      *hit++ = {base + static_cast<std::uint32_t>(std::countr_zero(left)), match};
    }
  }
}

int SegmentSearch::countOfMany(const WordSet& seen) const {
  int count = query_.emptyWords();
  for (std::size_t word = 0; word < query_.words().size(); ++word) {
    if (seen.has(word)) count += query_.words()[word].times;
  }
  return count;
}

}  // namespace quorvin
