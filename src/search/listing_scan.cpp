#include "search/listing_scan.h"

#include "platform/runtime_fault.h"
#include "search/image_builder.h"
#include "search/image_search.h"
#include "search/listing_text.h"

#include <algorithm>
#include <vector>

namespace quorvin {

namespace {

/// One scan under way: chunks become entries of an image, and the entries are searched.
class Scan {
 public:
  Scan(ListingSource& source, const SearchQuery& query, const QLocale& locale, std::int64_t& searchedCount,
       HitReceiver& hits, ScanListener& listener, ScanOutcome& outcome, const ScanLimits& limits)
      : builder_(locale),
        text_(source, limits.chunkSize),
        search_(query),
        searchedCount_(searchedCount),
        receiver_(hits),
        listener_(listener),
        outcome_(outcome),
        limits_(limits) {}

  void run() {
    while (!outcome_.stopped && text_.readChunk()) {
      text_.consume(builder_.addLines(text_.begin(), text_.size()));
      finishText(text_.lastChunkSize());
      if (text_.size() > limits_.longestLine) throwLineTooLong();
    }
    if (!outcome_.stopped && text_.size() > 0) {
      builder_.addLine(text_.lastLine());
      finishText(0);
    }
    endImage();
  }

 private:
  void finishText(std::size_t bytes) {
    searchNewEntries();
    builder_.finishText();
    imageBytes_ += bytes;
    if (imageBytes_ >= limits_.segmentSize) endImage();
  }

  [[noreturn]] void throwLineTooLong() {
    endImage();
    throw RuntimeFault(FaultNumber::Overflow, QStringLiteral("Line %1 is longer than %2 bytes")
                                                  .arg(builder_.lineCount() + 1)
                                                  .arg(limits_.longestLine));
  }

  void searchNewEntries() {
    builder_.image()->publish();
    const SearchImage& image = *builder_.image();
    while (nextEntry_ < image.entryCount() && !outcome_.stopped) {
      const std::int64_t toYield = kEntriesBetweenYields - searchedCount_ % kEntriesBetweenYields;
      const std::int64_t left = image.entryCount() - nextEntry_;
      const auto count = static_cast<std::uint32_t>(std::min(toYield, left));
      found_.clear();
      search_.search(image, nextEntry_, nextEntry_ + count, found_);
      report(image);
      nextEntry_ += count;
      searchedCount_ += count;
      if (count == toYield) outcome_.stopped = listener_.reached(searchedCount_);
    }
  }

  void report(const SearchImage& image) {
    if (found_.empty()) return;
    for (const FoundEntry& hit : found_) builder_.readValues(hit.entry);
    builder_.image()->publish();
    receiver_.addHits(builder_.image(), found_);
    for (const FoundEntry& hit : found_) {
      if (image.valueState(hit.entry) != ValueState::Unreadable) continue;
      if (outcome_.unreadableHits++ == 0) outcome_.firstUnreadableLine = image.unreadableLine(hit.entry);
    }
  }

  void endImage() {
    receiver_.endImage(builder_.image());
    builder_.beginImage();
    nextEntry_ = 0;
    imageBytes_ = 0;
  }

  ImageBuilder builder_;
  ListingText text_;
  ImageSearch search_;
  std::int64_t& searchedCount_;
  HitReceiver& receiver_;
  ScanListener& listener_;
  ScanOutcome& outcome_;
  const ScanLimits& limits_;

  std::size_t imageBytes_ = 0;
  std::uint32_t nextEntry_ = 0;
  std::vector<FoundEntry> found_;
};

}  // namespace

void scanListing(ListingSource& source, const SearchQuery& query, const QLocale& locale,
                 std::int64_t& searchedCount, HitReceiver& hits, ScanListener& listener, ScanOutcome& outcome,
                 const ScanLimits& limits) {
  outcome = {};
  Scan(source, query, locale, searchedCount, hits, listener, outcome, limits).run();
}

}  // namespace quorvin
