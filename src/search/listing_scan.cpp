#include "search/listing_scan.h"

#include "platform/runtime_fault.h"
#include "platform/sequential_file.h"
#include "search/entry_search.h"
#include "search/image_builder.h"
#include "search/listing_text.h"

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

/// A scan that reads the listing: chunks become entries of an image, and the entries are searched.
class BuildingScan {
 public:
  /// The first `alreadySearched` entries are read but not searched again. `recorder` may be null.
  BuildingScan(ListingSource& source, const QLocale& locale, EntrySearch& search, HitReceiver& hits,
               std::int64_t alreadySearched, ImageStore::Recorder* recorder, const ScanLimits& limits)
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
    endImage();
  }

 private:
  void searchText(std::size_t bytes) {
    if (recorder_ != nullptr) builder_.readAllValues();
    builder_.image()->publish();
    searchNewEntries();
    builder_.finishText();
    imageBytes_ += bytes;
    if (imageBytes_ >= (recorder_ != nullptr ? limits_.keptSegment : limits_.passingSegment)) endImage();
  }

  void searchNewEntries() {
    const std::uint32_t count = builder_.image()->entryCount();
    const auto skipped = static_cast<std::uint32_t>(std::min<std::int64_t>(toSkip_, count - nextEntry_));
    toSkip_ -= skipped;
    search_.search(builder_.image(), nextEntry_ + skipped, count, [this](std::span<const FoundEntry> hits) {
      for (const FoundEntry& hit : hits) builder_.readValues(hit.entry);
      builder_.image()->publish();
    });
    nextEntry_ = count;
  }

  [[noreturn]] void throwLineTooLong() {
    endImage();
    throw RuntimeFault(FaultNumber::Overflow, QStringLiteral("Line %1 is longer than %2 bytes")
                                                  .arg(builder_.lineCount() + 1)
                                                  .arg(limits_.longestLine));
  }

  void endImage() {
    std::shared_ptr<const SearchImage> kept;
    if (recorder_ != nullptr && !search_.stopped() && builder_.image()->entryCount() > 0) {
      builder_.image()->complete();
      kept = recorder_->add(builder_.image());
    }
    receiver_.endImage(builder_.image(), kept);
    builder_.beginImage();
    nextEntry_ = 0;
    imageBytes_ = 0;
  }

  ImageBuilder builder_;
  ListingText text_;
  EntrySearch& search_;
  HitReceiver& receiver_;
  std::int64_t toSkip_;
  ImageStore::Recorder* recorder_;
  const ScanLimits& limits_;
  std::size_t imageBytes_ = 0;
  std::uint32_t nextEntry_ = 0;
};

/// Whether it is the same file with another content.
bool wasWritten(const FileIdentity& before, const FileIdentity& now) {
  return before.device == now.device && before.file == now.file &&
         (before.size != now.size || before.modified != now.modified);
}

/// Searches images that are known. False where one was damaged; what was searched before it stands.
bool searchImages(const ImageStore::Images& images, EntrySearch& search, HitReceiver& hits) {
  try {
    for (const auto& image : images) {
      search.search(image, 0, image->entryCount());
      image->searched();
      hits.endImage(image, image);
    }
  } catch (const DamagedImage&) {
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

void scanListingFile(const QString& path, ImageStore* store, const SearchQuery& query, const QLocale& locale,
                     std::int64_t& searchedCount, HitReceiver& hits, ScanListener& listener,
                     ScanOutcome& outcome, const ScanLimits& limits) {
  outcome = {};
  EntrySearch search(query, searchedCount, hits, listener, outcome);
  const std::optional<ImageKey> key = imageKeyOf(path, locale);
  if (store != nullptr && key) {
    const ImageStore::Images images = store->find(*key);
    if (!images.empty() && searchImages(images, search, hits)) return;
    if (!images.empty()) store->forget(key->listing);
  }
  FileSource source(path);
  std::optional<ImageStore::Recorder> recorder;
  if (store != nullptr && key) recorder.emplace(*store, *key);
  BuildingScan(source, locale, search, hits, search.searched(), recorder ? &*recorder : nullptr, limits)
      .run();
  const std::optional<ImageKey> keyNow = imageKeyOf(path, locale);
  outcome.changedMeanwhile = key && keyNow && wasWritten(key->identity, keyNow->identity);
  if (recorder && !outcome.stopped && keyNow == key) recorder->finish();
}

}  // namespace quorvin
