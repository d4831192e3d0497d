#include "console/hit_writer.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace quorvin {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 16;

QString tsvField(QString text) {
  for (QChar& c : text) {
    if (c.unicode() < 0x20 || c.unicode() == 0x7F) c = u' ';
  }
  return text;
}

QString csvField(const QString& text) {
  const bool plain =
      !text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n') && !text.contains(u'\r');
  if (plain) return text;
  return u'"' + QString(text).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString jsonLine(const HitRow& row, const QLocale& locale) {
  const QJsonObject object{
      {QStringLiteral("match"), hitText(row, HitColumn::Match, locale)},
      {QStringLiteral("volume"), row.volume},
      {QStringLiteral("folder"), row.folder},
      {QStringLiteral("name"), row.name},
      {QStringLiteral("size"), hitText(row, HitColumn::Size, locale)},
      {QStringLiteral("date"), hitText(row, HitColumn::Date, locale)},
  };
  return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

}  // namespace

QString hitLine(const HitRow& row, HitFormat format, const QLocale& locale) {
  if (format == HitFormat::Json) return jsonLine(row, locale);
  QString line;
  for (int column = 0; column < kHitColumnCount; ++column) {
    if (column > 0) line += format == HitFormat::Tsv ? u'\t' : u',';
    const QString text = hitText(row, static_cast<HitColumn>(column), locale);
    line += format == HitFormat::Tsv ? tsvField(text) : csvField(text);
  }
  return line;
}

HitWriter::HitWriter(std::FILE* output, HitFormat format, const QLocale& locale)
    : output_(output), format_(format), locale_(locale) {}

void HitWriter::startListing(SourceKind kind) {
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
