#include "console/hit_writer.h"

namespace quorvin {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 16;

}  // namespace

HitWriter::HitWriter(std::FILE* output, HitFormat format, const QLocale& locale)
    : output_(output), format_(format), locale_(locale) {}

void HitWriter::startListing(SourceKind kind, const QString&) {
  kind_ = kind;
  values_ = {};
}

bool HitWriter::addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) {
  addLines(*segment, hits);
  if (buffer_.size() >= kBufferSize) flush();
  return good_;
}

void HitWriter::addLines(const Segment& segment, std::span<const FoundEntry> hits) {
  const std::size_t sizeBefore = buffer_.size();
  const EntryValues valuesBefore = values_;
  try {
    for (const FoundEntry& hit : hits) {
      if (segment.valueState(hit.entry) == ValueState::Own) values_ = segment.values(hit.entry);
      const HitRow row{hit.match,
                       kind_,
                       segment.volume(hit.entry),
                       segment.folder(hit.entry),
                       segment.name(hit.entry),
                       values_.size,
                       values_.date};
      const QByteArray line = hitLine(row, format_, locale_).toLocal8Bit();
      buffer_.append(line.constData(), static_cast<std::size_t>(line.size()));
      buffer_ += '\n';
    }
  } catch (const DamagedSegment&) {
    // The same hits will come again out of the listing itself.
    buffer_.resize(sizeBefore);
    values_ = valuesBefore;
    throw;
  }
}

void HitWriter::endSegment(const std::shared_ptr<const Segment>&, const std::shared_ptr<const Segment>&) {
  flush();
}

void HitWriter::flush() {
  if (!buffer_.empty() && std::fwrite(buffer_.data(), 1, buffer_.size(), output_) != buffer_.size())
    good_ = false;
  buffer_.clear();
  if (std::fflush(output_) != 0) good_ = false;
}

}  // namespace quorvin
