// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/import_sentences.h"

#include "texts/texts.h"

#include <QLocale>

#include <string_view>

namespace quorvin {

namespace {

QString textOf(std::string_view name) {
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

QString countOf(std::int64_t count) {
  return QLocale().toString(qlonglong{count});
}

QString formatText(const ImportReport& report) {
  const QString name = textOf(report.format->name);
  return report.decided.isEmpty() ? name : name + QStringLiteral(" (") + report.decided + u')';
}

void note(QStringList& sentences, const QString& text, std::int64_t count) {
  if (count > 0) sentences += text.arg(countOf(count));
}

}  // namespace

QString listFormatNames() {
  QStringList names;
  for (const ListFormat& format : listFormats()) names += textOf(format.name);
  return names.join(QStringLiteral(", "));
}

QString importSummary(const QString& list, const QString& place, const ImportReport& report) {
  return Texts::tr("%1: read as %2; %3 has %4 files, %5 folders")
      .arg(list, formatText(report), place, countOf(report.counts.files), countOf(report.counts.folders));
}

QStringList importRemarks(const ImportReport& report) {
  QStringList sentences;
  note(sentences, Texts::tr("files without an exact size: %1"), report.counts.withoutSize);
  note(sentences, Texts::tr("files without a date: %1"), report.counts.withoutDate);
  return sentences;
}

QStringList importLosses(const ImportReport& report, const ImportControls& controls) {
  const ImportCounts& counts = report.counts;
  QStringList sentences;
  if (counts.undecidedDates > 0) {
    sentences += Texts::tr("dates in which day and month may have changed places, left out (see %1): %2")
                     .arg(controls.dates, countOf(counts.undecidedDates));
  }
  note(sentences, Texts::tr("names that came again, of which the last one counts: %1"), counts.repeated);
  note(sentences, Texts::tr("names that a listing cannot hold, left out: %1"), counts.leftOut);
  note(sentences, Texts::tr("names that hold a mark of listings, so that a search misreads their lines: %1"),
       counts.misread);
  if (report.noText > 0) {
    sentences += Texts::tr("lines whose bytes are no UTF-8 (see %1): %2")
                     .arg(controls.encoding, countOf(report.noText));
  }
  note(sentences, Texts::tr("lines that were not understood: %1"), report.notUnderstood);
  return sentences;
}

QStringList linesNotUnderstood(const ImportReport& report) {
  QStringList sentences;
  for (const ImportReport::Line& line : report.firstNotUnderstood) {
    sentences += Texts::tr("line %1: %2").arg(countOf(line.number), line.text);
  }
  return sentences;
}

QString importProgressText(const QString& list, std::int64_t lines) {
  return Texts::tr("%1: %2 lines").arg(list, countOf(lines));
}

}  // namespace quorvin
