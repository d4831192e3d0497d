// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_export.h"

#include "files/file_aside.h"
#include "hits/hit_lines.h"

#include <QElapsedTimer>

namespace quorvin {

namespace {

constexpr qint64 kMillisecondsBetweenEvents = 8;
/// So few that they take no time, so many that asking the clock takes none either.
constexpr std::int64_t kRowsBetweenLooks = 32;
constexpr std::size_t kPiece = std::size_t{1} << 16;

class ExportedTable : public ExportText {
 public:
  explicit ExportedTable(const QLocale& locale) : locale_(locale) {}

  void start(std::string& text) override { addLine(text, csvHeadLine()); }
  void add(std::string& text, const HitRow& row) override { addLine(text, csvLine(row, locale_)); }
  void end(std::string&) override {}

 private:
  static void addLine(std::string& text, const QString& line) { text += line.toStdString() + "\r\n"; }

  QLocale locale_;
};

}  // namespace

std::optional<ExportFormat> exportFormatOf(const QString& path) {
  const auto endsIn = [&path](const QString& ending) { return path.endsWith(ending, Qt::CaseInsensitive); };
  if (endsIn(QStringLiteral(".csv"))) return ExportFormat::Csv;
  if (endsIn(QStringLiteral(".html")) || endsIn(QStringLiteral(".htm"))) return ExportFormat::Html;
  if (endsIn(QStringLiteral(".txt"))) return ExportFormat::Listing;
  return std::nullopt;
}

std::unique_ptr<ExportText> makeExportText(ExportFormat format, const QLocale& locale,
                                           Qt::LayoutDirection direction) {
  switch (format) {
    case ExportFormat::Csv:
      break;
    case ExportFormat::Html:
      return makePageText(locale, direction);
    case ExportFormat::Listing:
      return makeListingText();
  }
  return std::make_unique<ExportedTable>(locale);
}

bool exportHits(const QString& path, ExportText& text, const HitTable& table,
                const std::vector<int>& tableRows, const ExportProgress& goOn) {
  // What is exported can be exported again; waiting for the medium would hold the window up.
  FileAside file(path, {.durability = Durability::None, .followsLink = true});
  std::string piece;
  text.start(piece);
  QElapsedTimer sinceEvents;
  sinceEvents.start();
  std::int64_t written = 0;
  for (const int row : tableRows) {
    text.add(piece, table.row(row));
    if (piece.size() >= kPiece) {
      file.write(piece);
      piece.clear();
    }
    if (++written % kRowsBetweenLooks != 0 || !sinceEvents.hasExpired(kMillisecondsBetweenEvents)) continue;
    if (!goOn(written)) return false;
    sinceEvents.start();
  }
  text.end(piece);
  file.write(piece);
  if (!goOn(written)) return false;
  file.finish();
  file.commit();
  return true;
}

}  // namespace quorvin
