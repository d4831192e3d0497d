// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/status_texts.h"

#include "platform/text_direction.h"
#include "texts/texts.h"

#include <algorithm>

namespace quorvin {

namespace {

QString number(std::int64_t value, const QLocale& locale) {
  return locale.toString(static_cast<qlonglong>(value));
}

QString listings(std::int64_t count, const QLocale& locale) {
  return (count == 1 ? Texts::tr("%1 listing") : Texts::tr("%1 listings", nullptr, Texts::plural(count)))
      .arg(number(count, locale));
}

QString stoppedText(const RunReport& report, const QLocale& locale) {
  return Texts::tr("stopped after %1 of %2")
      .arg(locale.toString(report.searchedToTheEnd), listings(report.listings, locale));
}

QString missingText(const RunReport& report, const QLocale& locale) {
  return (report.missing == 1 ? Texts::tr("%1 listing missing")
                              : Texts::tr("%1 listings missing", nullptr, Texts::plural(report.missing)))
      .arg(number(report.missing, locale));
}

QString nothingFoundText(const RunReport& report, const QLocale& locale) {
  if (report.missing > 0 && report.missing == report.listings) {
    return Texts::tr("Nothing was searched: %1.").arg(missingText(report, locale));
  }
  if (report.isStopped) return Texts::tr("No file found: %1.").arg(stoppedText(report, locale));
  const QString missing = report.missing > 0 ? QStringLiteral("; ") + missingText(report, locale) : QString();
  return Texts::tr("No file found in %1%2.").arg(listings(report.listings - report.missing, locale), missing);
}

/// What a lower match would find; empty where one word decides anyway.
QString fewerWordsText(const SearchQuery& query, const RunReport& report) {
  const int fewest = query.fewestForHit();
  if (fewest < 2 || query.emptyWords() > 0) return {};
  const int enough = fewest - 1;
  const int lower = std::max(1, query.match(enough) - 1);
  const QString needed = fewest == query.wordCount()
                             ? Texts::tr("all %1 of them").arg(fewest)
                             : Texts::tr("%1 of %2").arg(fewest).arg(query.wordCount());
  return Texts::tr("More than %1% of the words means %2; with %3, %4 is enough.")
      .arg(report.desiredMatch)
      .arg(needed)
      .arg(lower)
      .arg(enough);
}

}  // namespace

QString hitCountText(std::int64_t hits, const QLocale& locale) {
  return (hits == 1 ? Texts::tr("%1 hit") : Texts::tr("%1 hits", nullptr, Texts::plural(hits)))
      .arg(number(hits, locale));
}

QString statusLine(QStringList parts, Qt::LayoutDirection direction) {
  parts.removeAll(QString());
  for (QString& part : parts) part = englishWithin(direction, part);
  return parts.join(QStringLiteral("  \u00B7  "));
}

QString shownText(std::int64_t shown, std::int64_t hits, const QLocale& locale) {
  return Texts::tr("%1 of %2 shown").arg(number(shown, locale), number(hits, locale));
}

QString selectionText(std::int64_t rows, std::optional<std::int64_t> bytes, const QLocale& locale) {
  if (rows == 0) return {};
  const QString selected = Texts::tr("%1 selected").arg(number(rows, locale));
  if (!bytes) return selected;
  return selected + QStringLiteral(", ") +
         locale.formattedDataSize(*bytes, 2, QLocale::DataSizeTraditionalFormat);
}

QStringList runTexts(const RunReport& report, const QLocale& locale) {
  QStringList texts;
  if (report.isStopped) texts += stoppedText(report, locale);
  if (report.missing > 0) texts += missingText(report, locale);
  if (report.isMainDataFileMissing) {
    texts += Texts::tr("without the main data file offline lists are not searched");
  }
  return texts;
}

QString refreshText(const RefreshOutcome& outcome, const QLocale& locale) {
  QStringList parts{listings(outcome.made, locale)};
  parts += outcome.entries == 1 ? Texts::tr("1 entry")
                                : Texts::tr("%1 entries", nullptr, Texts::plural(outcome.entries))
                                      .arg(number(outcome.entries, locale));
  if (outcome.areChangesKnown) {
    parts += Texts::tr("%1 new").arg(number(outcome.changes.added, locale));
    parts += Texts::tr("%1 gone").arg(number(outcome.changes.gone, locale));
  }
  if (outcome.missing > 0) {
    parts += (outcome.missing == 1 ? Texts::tr("%1 drive missing")
                                   : Texts::tr("%1 drives missing", nullptr, Texts::plural(outcome.missing)))
                 .arg(number(outcome.missing, locale));
  }
  if (outcome.isStopped) parts += Texts::tr("stopped");
  return parts.join(QStringLiteral(", "));
}

QString copyingText(std::int64_t done, std::int64_t all, const QLocale& locale) {
  return Texts::tr("%1 of %2 copied so far; Esc stops").arg(number(done, locale), hitCountText(all, locale));
}

QString copiedText(std::int64_t hits, const QLocale& locale) {
  return Texts::tr("%1 were copied.").arg(hitCountText(hits, locale));
}

QString notFoundText(std::int64_t missing, std::int64_t all, const QLocale& locale) {
  return Texts::tr("%1 of %2 could not be found on a connected drive.")
      .arg(number(missing, locale), number(all, locale));
}

QString letGoText(std::int64_t hits, const QLocale& locale) {
  return Texts::tr("%1 are no longer selected: they are scattered too widely now")
      .arg(hitCountText(hits, locale));
}

QString emptyResultText(const SearchQuery& query, const RunReport& report, const QLocale& locale) {
  if (query.fewestForHit() > query.wordCount()) {
    return Texts::tr("No file holds more than 100% of the words; 99 asks for all of them.");
  }
  QStringList lines{nothingFoundText(report, locale)};
  if (report.isMainDataFileMissing) {
    lines += Texts::tr("Without the main data file the offline lists are not searched.");
  }
  if (report.searchText.contains(u'/')) {
    lines += Texts::tr("Folders are written with \\: try %1")
                 .arg(QString(report.searchText).replace(u'/', u'\\').trimmed());
  }
  const QString fewerWords = fewerWordsText(query, report);
  if (!fewerWords.isEmpty()) lines += fewerWords;
  return lines.join(u'\n');
}

}  // namespace quorvin
