// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/quick_scan.h"

#include <algorithm>
#include <utility>

namespace quorvin::test {

PlainResult QuickScan::scan(std::string_view listing, RepeatedSearch& search, const QuickScanLimits& limits) {
  beginListing();
  search_ = &search;
  limits_ = limits;
  ListingText text(
      [&listing](std::span<char> buffer) {
        const std::size_t count = listing.copy(buffer.data(), buffer.size());
        listing.remove_prefix(count);
        return count;
      },
      limits.chunkSize);
  std::size_t segmentBytes = 0;
  while (text.readChunk()) {
    text.consume(builder_.addLines(text.begin(), text.size()));
    searchText(false);
    segmentBytes += text.lastChunkSize();
    if (segmentBytes < limits.segmentSize) continue;
    endSegment();
    segmentBytes = 0;
  }
  if (text.size() > 0) {
    builder_.addLine(text.lastLine());
    searchText(false);
  }
  endSegment();
  return std::exchange(result_, {});
}

void QuickScan::beginListing() {
  static const std::string reset = std::string(kLinePadding, ' ') + "Volume:\nDirectory:\n" +
                                   std::string(70, 'x') + "\n" + std::string(kLinePadding, ' ');
  builder_.addLines(reset.data() + kLinePadding, reset.size() - 2 * kLinePadding);
  builder_.finishText();
  builder_.beginSegment();
  linesBefore_ = builder_.lineCount();
  nextEntry_ = 0;
  shown_ = {};
}

void QuickScan::searchText(bool segmentIsComplete) {
  if (limits_.whenComplete && !segmentIsComplete) {
    builder_.readAllValues();
    builder_.finishText();
    return;
  }
  builder_.segment()->publish();
  const GrowingSegment& segment = *builder_.segment();
  found_.clear();
  while (nextEntry_ < segment.entryCount()) {
    const std::uint32_t end = nextEntry_ + std::min(limits_.entriesAtOnce, segment.entryCount() - nextEntry_);
    search_->segments().search(segment, nextEntry_, end, found_);
    result_.searched += end - nextEntry_;
    nextEntry_ = end;
  }
  if (!segmentIsComplete) {
    for (const FoundEntry& found : found_) builder_.readValues(found.entry);
    builder_.segment()->publish();
  }
  for (const FoundEntry& found : found_) note(found);
  builder_.finishText();
}

void QuickScan::endSegment() {
  if (limits_.whenComplete) {
    builder_.segment()->complete();
    searchText(true);
  }
  builder_.beginSegment();
  nextEntry_ = 0;
}

void QuickScan::note(const FoundEntry& found) {
  const GrowingSegment& segment = *builder_.segment();
  const ValueState state = segment.valueState(found.entry);
  if (hasValues(state)) shown_ = segment.values(found.entry);
  if (state == ValueState::Unreadable && ++result_.unreadable == 1) {
    result_.firstUnreadableLine = segment.unreadableLine(found.entry) - linesBefore_;
  }
  const std::uint32_t block = segment.blockOf(found.entry);
  result_.hits.push_back({found.match, std::string(segment.volumeOfBlock(block)),
                          segment.folderOfBlock(block), segment.arrays().entries.listedText(found.entry),
                          shown_.size, shown_.date});
}

}  // namespace quorvin::test
