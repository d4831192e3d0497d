#include "search/entry_search.h"

#include <algorithm>

namespace quorvin {

EntrySearch::EntrySearch(const SearchQuery& query, std::int64_t& searchedCount, HitReceiver& hits,
                         ScanListener& listener, ScanOutcome& outcome)
    : search_(query),
      searchedCount_(searchedCount),
      receiver_(hits),
      listener_(listener),
      outcome_(outcome) {}

void EntrySearch::search(const std::shared_ptr<const Segment>& segment, std::uint32_t first,
                         std::uint32_t last,
                         const std::function<void(std::span<const FoundEntry>)>& prepare) {
  while (first < last && !outcome_.stopped) {
    const std::int64_t toYield = kEntriesBetweenYields - searchedCount_ % kEntriesBetweenYields;
    const auto count = static_cast<std::uint32_t>(std::min<std::int64_t>(toYield, last - first));
    if (!prepare && receiver_.countsOnly() && segment->arrays().unreadable.empty()) {
      receiver_.addCount(search_.count(*segment, first, first + count));
    } else {
      searchStep(segment, first, first + count, prepare);
    }
    first += count;
    searched_ += count;
    searchedCount_ += count;
    if (count == toYield) outcome_.stopped = listener_.reached(searchedCount_);
  }
}

void EntrySearch::searchStep(const std::shared_ptr<const Segment>& segment, std::uint32_t first,
                             std::uint32_t last,
                             const std::function<void(std::span<const FoundEntry>)>& prepare) {
  found_.clear();
  search_.search(*segment, first, last, found_);
  if (found_.empty()) return;
  if (prepare) prepare(found_);
  report(segment);
}

void EntrySearch::report(const std::shared_ptr<const Segment>& segment) {
  if (segment->arrays().unreadable.empty() || segment->allOwn(found_.front().entry, found_.back().entry)) {
    receiver_.addHits(segment, found_);
    return;
  }
  // The values first: they may turn out to be damaged, and then none of these hits has been told yet.
  std::int64_t unreadable = 0;
  std::int64_t firstLine = 0;
  for (const FoundEntry& hit : found_) {
    if (segment->valueState(hit.entry) != ValueState::Unreadable) continue;
    if (unreadable++ == 0) firstLine = segment->unreadableLine(hit.entry);
  }
  receiver_.addHits(segment, found_);
  if (unreadable > 0 && outcome_.unreadableHits == 0) outcome_.firstUnreadableLine = firstLine;
  outcome_.unreadableHits += unreadable;
}

}  // namespace quorvin
