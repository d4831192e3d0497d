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
  kind_ = kind;
  listing_ = path.toStdString();
  values_.reset();
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
  // A segment that still grows moves its texts.
  block_ = {};
  try {
    for (const FoundEntry& hit : hits) {
      if (isLimitReached()) break;
      enterBlock(segment, hit.entry);
      const ValueState state = segment.valueState(hit.entry);
      if (hasValues(state)) values_ = segment.values(hit.entry);
      const std::string name = segment.arrays().entries.listedText(hit.entry);
      const bool areInherited = values_ && state != ValueState::Own;
      addRow({hit.match, kind_, block_.volume, block_.folder, name, values_, areInherited, listing_});
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

void HitWriter::enterBlock(const Segment& segment, std::uint32_t entry) {
  const std::span<const std::uint32_t> starts = segment.arrays().blockStarts.all();
  if (block_.segment == &segment && entry >= starts[block_.number] &&
      (block_.number + 1 == starts.size() || entry < starts[block_.number + 1])) {
    return;
  }
  block_.number = blockAt(starts, entry);
  block_.volume = segment.volumeOfBlock(block_.number);
  block_.folder = segment.folderOfBlock(block_.number);
  block_.segment = &segment;
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
  const FoundEntry& hit = stretch.hits.front();
  block_ = {};
  enterBlock(*stretch.segment, hit.entry);
  const std::string name = stretch.segment->arrays().entries.listedText(hit.entry);
  const std::string listing = table.listing(row).toStdString();
  const std::optional<std::int64_t> withValues = table.rowWithValues(row);
  std::optional<EntryValues> values;
  if (withValues) values = table.values(row);
  const bool areInherited =
      withValues && (*withValues != row || stretch.segment->valueState(hit.entry) != ValueState::Own);
  addRow({hit.match, table.kind(row), block_.volume, block_.folder, name, values, areInherited, listing});
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
