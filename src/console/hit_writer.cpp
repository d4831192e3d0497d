// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/hit_writer.h"

#include "search/segment/segment.h"

#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 16;

}  // namespace

HitWriter::HitWriter(std::FILE* output, HitRows& rows, WriterOptions options)
    : output_(output), rows_(rows), options_(std::move(options)) {}

void HitWriter::writeHead() {
  rows_.addHead(buffer_);
}

void HitWriter::startListing(SourceKind kind, const QString& path) {
  setListing(kind, path);
  values_.reset();
}

void HitWriter::setListing(SourceKind kind, const QString& path) {
  kind_ = kind;
  if (path == listingPath_) return;
  listingPath_ = path;
  listing_ = path.toStdString();
}

bool HitWriter::addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) {
  addRows(*segment, hits);
  if (buffer_.size() >= kBufferSize || options_.isWatched) flush();
  return good_ && !isLimitReached();
}

void HitWriter::addRows(const Segment& segment, std::span<const FoundEntry> hits) {
  const std::size_t sizeBefore = buffer_.size();
  const std::optional<EntryValues> valuesBefore = values_;
  const std::int64_t writtenBefore = written_;
  const std::int64_t leftOutBefore = leftOut_;
  try {
    startSegment(segment);
    for (const FoundEntry& hit : hits) {
      if (isLimitReached()) break;
      enterBlock(segment, hit.entry);
      const ValueState state = segment.valueState(hit.entry);
      if (hasValues(state)) values_ = segment.values(hit.entry);
      const ListedWalk::Text name = names_.at(hit.entry);
      addRow({hit.match, name.listed, name.folded, values_, values_ && state != ValueState::Own});
    }
  } catch (const DamagedSegment&) {
    // The same hits will come again out of the listing itself.
    buffer_.resize(sizeBefore);
    values_ = valuesBefore;
    written_ = writtenBefore;
    leftOut_ = leftOutBefore;
    throw;
  }
}

/// A segment that still grows moves its texts, so this is to be done again when more of them are there.
void HitWriter::startSegment(const Segment& segment) {
  names_.start(segment.arrays().entries);
  folders_.start(segment.arrays().folders);
  block_ = {};
}

void HitWriter::enterBlock(const Segment& segment, std::uint32_t entry) {
  if (entry >= block_.first && entry < block_.last) return;
  const std::span<const std::uint32_t> starts = segment.arrays().blockStarts.all();
  const std::uint32_t block = blockAt(starts, entry);
  const ListedWalk::Text folder = folders_.at(block);
  rows_.enterFolder({kind_, segment.volumeOfBlock(block), folder.listed, folder.folded, listing_});
  block_ = {starts[block], block + 1 < starts.size() ? starts[block + 1] : UINT32_MAX};
}

std::int64_t HitWriter::writeRows(const HitTable& table, const std::vector<std::uint32_t>& tableRows) {
  std::int64_t damaged = 0;
  for (const std::uint32_t row : tableRows) {
    if (!good_ || isLimitReached()) break;
    try {
      addTableRow(table, row);
    } catch (const DamagedSegment&) {
      ++damaged;
    }
    if (buffer_.size() >= kBufferSize) flush();
  }
  return damaged;
}

void HitWriter::addTableRow(const HitTable& table, std::int64_t row) {
  const HitStretch stretch = table.stretchAt(row);
  const Segment& segment = *stretch.segment;
  const FoundEntry& hit = stretch.hits.front();
  setListing(table.kind(row), table.listing(row));
  startSegment(segment);
  enterBlock(segment, hit.entry);
  const ListedWalk::Text name = names_.at(hit.entry);
  const std::optional<std::int64_t> withValues = table.rowWithValues(row);
  std::optional<EntryValues> values;
  if (withValues) values = table.values(row);
  const bool areInherited =
      withValues && (*withValues != row || segment.valueState(hit.entry) != ValueState::Own);
  addRow({hit.match, name.listed, name.folded, values, areInherited});
}

void HitWriter::addRow(const FoundHit& hit) {
  if (rows_.add(buffer_, hit)) {
    ++written_;
  } else {
    ++leftOut_;
  }
}

void HitWriter::endSegment(const std::shared_ptr<const Segment>&, const std::shared_ptr<const Segment>&) {
  flush();
}

void HitWriter::flush() {
  if (buffer_.empty()) return;
  if (options_.beforeOutput) options_.beforeOutput();
  if (std::fwrite(buffer_.data(), 1, buffer_.size(), output_) != buffer_.size()) good_ = false;
  buffer_.clear();
  if (std::fflush(output_) != 0) good_ = false;
}

}  // namespace quorvin
