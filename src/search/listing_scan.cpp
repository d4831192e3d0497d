#include "search/listing_scan.h"

#include "faults/runtime_fault.h"
#include "files/sequential_file.h"
#include "search/entry_search.h"
#include "search/format/listing_text.h"
#include "search/segment/segment_builder.h"

#include <algorithm>

namespace quorvin {

namespace {

class FileSource : public ListingSource {
 public:
  explicit FileSource(const QString& path) : file_(path) {}
  std::size_t read(std::span<char> buffer) override { return file_.read(buffer); }

 private:
  SequentialFile file_;
};

/// A scan that reads the listing: chunks become entries of an segment, and the entries are searched.
class BuildingScan {
 public:
  /// The first `alreadySearched` entries are read but not searched again. `recorder` may be null.
  BuildingScan(ListingSource& source, const QLocale& locale, EntrySearch& search, HitReceiver& hits,
               std::int64_t alreadySearched, SegmentStore::Recorder* recorder, const ScanLimits& limits)
      : builder_(locale),
        text_(source, limits.chunkSize),
        search_(search),
        receiver_(hits),
        toSkip_(alreadySearched),
        recorder_(recorder),
        limits_(limits) {}

  void run() {
    while (!search_.stopped() && text_.readChunk()) {
      text_.consume(builder_.addLines(text_.begin(), text_.size()));
      searchText(text_.lastChunkSize());
      if (text_.size() > limits_.longestLine) throwLineTooLong();
    }
    if (!search_.stopped() && text_.size() > 0) {
      builder_.addLine(text_.lastLine());
      searchText(0);
    }
    endSegment();
  }

 private:
  void searchText(std::size_t bytes) {
    if (recorder_ != nullptr) builder_.readAllValues();
    builder_.segment()->publish();
    searchNewEntries();
    builder_.finishText();
    segmentBytes_ += bytes;
    if (segmentBytes_ >= (recorder_ != nullptr ? limits_.keptSegment : limits_.passingSegment)) endSegment();
  }

  void searchNewEntries() {
    const std::uint32_t count = builder_.segment()->entryCount();
    const auto skipped = static_cast<std::uint32_t>(std::min<std::int64_t>(toSkip_, count - nextEntry_));
    toSkip_ -= skipped;
    search_.search(builder_.segment(), nextEntry_ + skipped, count, [this](std::span<const FoundEntry> hits) {
      for (const FoundEntry& hit : hits) builder_.readValues(hit.entry);
      builder_.segment()->publish();
    });
    nextEntry_ = count;
  }

  [[noreturn]] void throwLineTooLong() {
    endSegment();
    throw RuntimeFault(FaultNumber::Overflow, QStringLiteral("Line %1 is longer than %2 bytes")
                                                  .arg(builder_.lineCount() + 1)
                                                  .arg(limits_.longestLine));
  }

  void endSegment() {
    std::shared_ptr<const Segment> kept;
    if (recorder_ != nullptr && !search_.stopped() && builder_.segment()->entryCount() > 0) {
      builder_.segment()->complete();
      kept = recorder_->add(builder_.segment());
    }
    receiver_.endSegment(builder_.segment(), kept);
    builder_.beginSegment();
    nextEntry_ = 0;
    segmentBytes_ = 0;
  }

  SegmentBuilder builder_;
  ListingText text_;
  EntrySearch& search_;
  HitReceiver& receiver_;
  std::int64_t toSkip_;
  SegmentStore::Recorder* recorder_;
  const ScanLimits& limits_;
  std::size_t segmentBytes_ = 0;
  std::uint32_t nextEntry_ = 0;
};

/// Whether it is the same file with another content.
bool wasWritten(const FileIdentity& before, const FileIdentity& now) {
  return before.device == now.device && before.file == now.file &&
         (before.size != now.size || before.modified != now.modified);
}

/// Searches segments that are known. False where one was damaged; what was searched before it stands.
bool searchSegments(const SegmentStore::Segments& segments, EntrySearch& search, HitReceiver& hits) {
  try {
    for (const auto& segment : segments) {
      search.search(segment, 0, segment->entryCount());
      segment->searched();
      hits.endSegment(segment, segment);
    }
  } catch (const DamagedSegment&) {
    return false;
  }
  return true;
}

}  // namespace

void scanListing(ListingSource& source, const SearchQuery& query, const QLocale& locale,
                 std::int64_t& searchedCount, HitReceiver& hits, ScanListener& listener, ScanOutcome& outcome,
                 const ScanLimits& limits) {
  outcome = {};
  EntrySearch search(query, searchedCount, hits, listener, outcome);
  BuildingScan(source, locale, search, hits, 0, nullptr, limits).run();
}

void scanListingFile(const QString& path, SegmentStore* store, const SearchQuery& query,
                     const QLocale& locale, std::int64_t& searchedCount, HitReceiver& hits,
                     ScanListener& listener, ScanOutcome& outcome, const ScanLimits& limits) {
  outcome = {};
  EntrySearch search(query, searchedCount, hits, listener, outcome);
  const std::optional<SegmentKey> key = segmentKeyOf(path, locale);
  if (store != nullptr && key) {
    const SegmentStore::Segments segments = store->find(*key);
    if (!segments.empty() && searchSegments(segments, search, hits)) return;
    if (!segments.empty()) store->forget(key->listing);
  }
  FileSource source(path);
  std::optional<SegmentStore::Recorder> recorder;
  if (store != nullptr && key) recorder.emplace(*store, *key);
  BuildingScan(source, locale, search, hits, search.searched(), recorder ? &*recorder : nullptr, limits)
      .run();
  const std::optional<SegmentKey> keyNow = segmentKeyOf(path, locale);
  outcome.changedMeanwhile = key && keyNow && wasWritten(key->identity, keyNow->identity);
  if (recorder && !outcome.stopped && keyNow == key) recorder->finish();
}

}  // namespace quorvin
