#include "hits/hit_lines.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace quorvin {

namespace {

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

QString hitHeadLine(HitFormat format) {
  switch (format) {
    case HitFormat::Tsv:
      return QStringLiteral("Match\tVolume\tFolder\tName\tSize\tDate");
    case HitFormat::Csv:
      return QStringLiteral("Match,Volume,Folder,Name,Size,Date");
    case HitFormat::Json:
      break;
  }
  return {};
}

}  // namespace quorvin
