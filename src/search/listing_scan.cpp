// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/listing_scan.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "search/segment/segment_builder.h"
#include "search/segments_ahead.h"
#include "texts/texts.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

/// Searches the entries of one listing, however its segments come about, in steps between which events run.
class EntrySearch {
 public:
  EntrySearch(const ScanRequest& request, RunCounts& counts, ScanOutcome& outcome)
      : request_(request), search_(request.query), counts_(counts), outcome_(outcome) {}

  /// Searches entries `first` to `last` - 1 of `segment`, yielding at every 2000th entry of the run. For a
  /// segment that is still being built, `builder` reads the values of the hits.
  void search(const std::shared_ptr<const Segment>& segment, std::uint32_t first, std::uint32_t last,
              SegmentBuilder* builder = nullptr) {
    inSteps(first, last,
            [&](std::uint32_t from, std::uint32_t to) { searchStep(segment, from, to, builder); });
  }

  /// Takes what was found in `segment` ahead, as if it was searched now.
  void take(const std::shared_ptr<const Segment>& segment, const SegmentFinds& finds) {
    auto count = finds.counts.begin();
    auto hit = finds.hits.begin();
    inSteps(0, finds.searched, [&](std::uint32_t, std::uint32_t to) {
      if (count != finds.counts.end()) {
        counts_.hits += *count++;
        return;
      }
      const auto end = std::partition_point(hit, finds.hits.end(),
                                            [to](const FoundEntry& found) { return found.entry < to; });
      found_.assign(hit, end);
      hit = end;
      if (!found_.empty()) report(segment);
    });
    if (finds.fault && !outcome_.stopped) std::rethrow_exception(finds.fault);
  }

  /// Only the number of hits is wanted.
  bool isCountedOnly() const { return request_.hits == nullptr; }
  const SearchQuery& query() const { return request_.query; }
  std::int64_t searchedByRun() const { return counts_.searched; }

  void endSegment(const std::shared_ptr<const Segment>& segment, const std::shared_ptr<const Segment>& kept) {
    if (request_.hits != nullptr) request_.hits->endSegment(segment, kept);
  }

  /// Entries of the listing searched so far.
  std::int64_t searched() const { return searched_; }
  bool stopped() const { return outcome_.stopped; }

 private:
  /// Calls `step` for the entries `first` to `last` - 1, as many at a time as there are to the next yield.
  template <typename Step>
  void inSteps(std::uint32_t first, std::uint32_t last, Step step) {
    while (first < last && !outcome_.stopped) {
      const std::uint32_t end = SegmentsAhead::endOfStep(first, last, counts_.searched - first);
      step(first, end);
      searched_ += end - first;
      counts_.searched += end - first;
      first = end;
      if (counts_.searched % kEntriesBetweenYields == 0 && request_.yield(counts_.searched)) {
        outcome_.stopped = true;
      }
    }
  }

  void searchStep(const std::shared_ptr<const Segment>& segment, std::uint32_t first, std::uint32_t last,
                  SegmentBuilder* builder) {
    if (request_.hits == nullptr && builder == nullptr && segment->arrays().unreadable.empty()) {
      counts_.hits += search_.count(*segment, first, last);
      return;
    }
    found_.clear();
    search_.search(*segment, first, last, found_);
    if (found_.empty()) return;
    if (builder != nullptr) readValues(*builder);
    report(segment);
  }

  void readValues(SegmentBuilder& builder) {
    for (const FoundEntry& hit : found_) builder.readValues(hit.entry);
    builder.segment()->publish();
  }

  void report(const std::shared_ptr<const Segment>& segment) {
    // The values first: they may turn out to be damaged, and then none of these hits has been reported yet.
    std::int64_t unreadable = 0;
    std::int64_t firstLine = 0;
    if (!segment->arrays().unreadable.empty() &&
        !segment->allOwn(found_.front().entry, found_.back().entry)) {
      for (const FoundEntry& hit : found_) {
        if (segment->valueState(hit.entry) != ValueState::Unreadable) continue;
        if (unreadable++ == 0) firstLine = segment->unreadableLine(hit.entry);
      }
    }
    if (request_.hits != nullptr && !request_.hits->addHits(segment, found_)) {
      outcome_.stopped = outcome_.enough = true;
    }
    counts_.hits += static_cast<std::int64_t>(found_.size());
    if (unreadable > 0 && outcome_.unreadableHits == 0) outcome_.firstUnreadableLine = firstLine;
    outcome_.unreadableHits += unreadable;
  }

  const ScanRequest& request_;
  SegmentSearch search_;
  RunCounts& counts_;
  ScanOutcome& outcome_;
  std::int64_t searched_ = 0;
  std::vector<FoundEntry> found_;
};

std::optional<DayMonthOrder> findOrder(const ListingOpener& open, const QLocale& locale,
                                       const ScanLimits& limits) {
  ListingText text(open(), limits.chunkSize);
  SegmentBuilder builder(locale);
  while (text.readChunk()) {
    text.consume(builder.addLines(text.begin(), text.size()));
    if (const auto order = builder.orderInText()) return order;
    builder.finishText();
    builder.beginSegment();
    // The scan ends there too.
    if (text.size() > limits.longestLine) return std::nullopt;
  }
  if (text.size() > 0) builder.addLine(text.lastLine());
  return builder.orderInText();
}

/// The order of day and month of a listing: that of its first date which is one in one order only.
std::optional<DayMonthOrder> orderOfListing(const ListingOpener& open, const QLocale& locale,
                                            const ScanLimits& limits) {
  try {
    return findOrder(open, locale, limits);
  } catch (const RuntimeFault&) {
    // The scan itself reports what cannot be read when it comes there.
    return std::nullopt;
  }
}

/// A scan that reads the listing: chunks become entries of a segment, and the entries are searched.
class BuildingScan {
 public:
  /// Entries that `search` has been through already are read but not searched again. `recorder` may be null.
  BuildingScan(const ListingOpener& open, const QLocale& locale, EntrySearch& search,
               SegmentStore::Recorder* recorder, const ScanLimits& limits)
      : builder_(locale, [&open, locale, limits] { return orderOfListing(open, locale, limits); }),
        text_(open(), limits.chunkSize),
        search_(search),
        toSkip_(search.searched()),
        recorder_(recorder),
        limits_(limits) {}

  void run() {
    try {
      readListing();
    } catch (const RuntimeFault&) {
      settleSegment();
      throw;
    }
    endSegment();
    settleSegment();
  }

  bool isNoText() const { return text_.holdsZeros(); }

 private:
  void readListing() {
    while (!search_.stopped() && text_.readChunk()) {
      text_.consume(builder_.addLines(text_.begin(), text_.size()));
      searchText(text_.lastChunkSize());
      if (text_.size() > limits_.longestLine) throwLineTooLong();
    }
    if (!search_.stopped() && text_.size() > 0) {
      builder_.addLine(text_.lastLine());
      searchText(0);
    }
  }

  void searchText(std::size_t bytes) {
    if (recorder_ != nullptr) readAllValues(bytes);
    builder_.segment()->publish();
    searchNewEntries();
    builder_.finishText();
    segmentBytes_ += bytes;
    if (segmentBytes_ >= (recorder_ != nullptr ? limits_.keptSegment : limits_.passingSegment)) endSegment();
  }

  void readAllValues(std::size_t bytes) {
    if (listingBytes_ < limits_.valuesBeside) {
      builder_.readAllValues();
    } else {
      builder_.readAllValuesBeside();
    }
    listingBytes_ += bytes;
  }

  void searchNewEntries() {
    const std::uint32_t count = builder_.segment()->entryCount();
    const auto skipped = static_cast<std::uint32_t>(std::min<std::int64_t>(toSkip_, count - nextEntry_));
    toSkip_ -= skipped;
    search_.search(builder_.segment(), nextEntry_ + skipped, count, &builder_);
    nextEntry_ = count;
  }

  [[noreturn]] void throwLineTooLong() {
    endSegment();
    throw RuntimeFault(
        FaultNumber::Overflow,
        Texts::tr("Line %1 is longer than %2 bytes").arg(builder_.lineCount() + 1).arg(limits_.longestLine));
  }

  void endSegment() {
    settleSegment();
    if (recorder_ != nullptr && !search_.stopped() && builder_.segment()->entryCount() > 0) {
      builder_.finishValues();
      unsettled_ = builder_.segment();
      recorder_->add(unsettled_);
    } else {
      search_.endSegment(builder_.segment(), nullptr);
    }
    builder_.beginSegment(std::move(spare_));
    nextEntry_ = 0;
    segmentBytes_ = 0;
  }

  /// Waits for the segment that is being kept while the one behind it was read.
  void settleSegment() {
    if (!unsettled_) return;
    search_.endSegment(unsettled_, recorder_->settle());
    spare_ = std::move(unsettled_);
  }

  SegmentBuilder builder_;
  ListingText text_;
  EntrySearch& search_;
  std::int64_t toSkip_;
  SegmentStore::Recorder* recorder_;
  const ScanLimits& limits_;
  std::size_t segmentBytes_ = 0;
  std::size_t listingBytes_ = 0;
  std::uint32_t nextEntry_ = 0;
  /// The recorder has it and is not done with it.
  std::shared_ptr<GrowingSegment> unsettled_;
  /// Its memory can be used again.
  std::shared_ptr<GrowingSegment> spare_;
};

/// Whether it is the same file with another content.
bool wasWritten(const FileIdentity& before, const FileIdentity& now) {
  return before.device == now.device && before.file == now.file &&
         (before.size != now.size || before.modified != now.modified);
}

/// More gain less each, and what they find ahead is in memory.
constexpr int kMostHelpers = 3;

int otherProcessors() {
  return std::max(static_cast<int>(std::thread::hardware_concurrency()) - 1, 0);
}

/// How many threads search the segments beside this one.
int helpersFor(const SegmentStore::Segments& segments, const ScanLimits& limits) {
  std::int64_t entries = 0;
  for (const auto& segment : segments) entries += segment->entryCount();
  if (entries < limits.searchedAhead) return 0;
  const int most = limits.helpers ? *limits.helpers : std::min(otherProcessors(), kMostHelpers);
  return std::min(most, static_cast<int>(segments.size()) - 1);
}

/// Searches segments that are known. False where one was damaged; what was searched before it counts.
bool searchSegments(const SegmentStore::Segments& segments, EntrySearch& search, const ScanLimits& limits) {
  // Lines whose values cannot be read are counted one by one.
  const auto hasUnreadable = [](const auto& segment) { return !segment->arrays().unreadable.empty(); };
  const bool countsOnly = search.isCountedOnly() && std::ranges::none_of(segments, hasUnreadable);
  std::optional<SegmentsAhead> ahead;
  if (const int helpers = helpersFor(segments, limits); helpers > 0) {
    ahead.emplace(segments, search.query(),
                  SegmentsAhead::Options{helpers, countsOnly, search.searchedByRun()});
  }
  try {
    for (std::size_t i = 0; i < segments.size() && !search.stopped(); ++i) {
      const auto& segment = segments[i];
      const auto finds = ahead ? ahead->take(i) : std::nullopt;
      if (finds) {
        search.take(segment, *finds);
      } else {
        search.search(segment, 0, segment->entryCount());
        segment->searched();
      }
      search.endSegment(segment, segment);
    }
  } catch (const DamagedSegment&) {
    return false;
  }
  return true;
}

/// Whether somebody has written to the files of segments, so that a search of them may have gone wrong.
bool wereChanged(const SegmentStore::Segments& segments) {
  return std::ranges::any_of(segments, [](const auto& segment) { return segment->wasChanged(); });
}

}  // namespace

void scanListing(const ListingOpener& open, const ScanRequest& request, RunCounts& counts,
                 ScanOutcome& outcome, const ScanLimits& limits) {
  outcome = {};
  EntrySearch search(request, counts, outcome);
  BuildingScan scan(open, request.locale, search, nullptr, limits);
  scan.run();
  outcome.isNoText = scan.isNoText();
}

void scanListingFile(const QString& path, SegmentStore* store, const ScanRequest& request, RunCounts& counts,
                     ScanOutcome& outcome, const ScanLimits& limits) {
  outcome = {};
  EntrySearch search(request, counts, outcome);
  const std::optional<SegmentKey> key = segmentKeyOf(path, request.locale);
  if (store != nullptr && key) {
    const SegmentStore::Segments segments = store->find(*key);
    const bool areWhole = searchSegments(segments, search, limits);
    outcome.changedMeanwhile = wereChanged(segments);
    if (!segments.empty() && areWhole) return;
    if (!segments.empty()) store->forget(key->listing);
  }
  const ListingOpener open = [&path] {
    // Shared, since functions are copied.
    const auto file = std::make_shared<SequentialFile>(path);
    return ListingReader([file](std::span<char> buffer) { return file->read(buffer); });
  };
  std::optional<SegmentStore::Recorder> recorder;
  if (store != nullptr && key) recorder.emplace(*store, *key);
  BuildingScan scan(open, request.locale, search, recorder ? &*recorder : nullptr, limits);
  scan.run();
  outcome.isNoText = scan.isNoText();
  const std::optional<SegmentKey> keyNow = segmentKeyOf(path, request.locale);
  if (key && keyNow && wasWritten(key->identity, keyNow->identity)) outcome.changedMeanwhile = true;
  // Each run is to say that it is no text.
  if (recorder && !outcome.stopped && !outcome.isNoText && keyNow == key) recorder->finish();
}

}  // namespace quorvin
