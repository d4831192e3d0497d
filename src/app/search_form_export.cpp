// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_export.h"

#include "app/fault_report.h"
#include "texts/texts.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QStandardPaths>

namespace quorvin {

namespace {

/// What is over sooner needs no window of its own.
constexpr qint64 kMillisecondsUnseen = 250;

QStringList forms() {
  return {Texts::tr("Table (*.csv)"), Texts::tr("Page with its own search box (*.html)"),
          Texts::tr("Listing that can be searched (*.txt)")};
}

}  // namespace

SearchFormExport::SearchFormExport(const SearchFormExportParts& parts)
    : parts_(parts), folder_(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)) {}

void SearchFormExport::ExportHits_Click() {
  exportRows(ListRows::All);
}

void SearchFormExport::ExportSelected_Click() {
  exportRows(ListRows::Selected);
}

bool SearchFormExport::stop() {
  isStopped_ = isRunning_;
  return isRunning_;
}

void SearchFormExport::exportRows(ListRows which) {
  const bool isAny = which == ListRows::All ? parts_.list.model()->rowCount() > 0
                                            : parts_.list.selectionModel()->hasSelection();
  if (!isAny) return parts_.messages.inform(Texts::tr("There are no hits to export."));
  timesCleared_ = parts_.table.timesCleared();
  const QString refusal = parts_.work.refusalOf(JobKind::Export);
  if (!refusal.isEmpty()) return parts_.messages.inform(refusal);
  const std::optional<QString> path =
      parts_.picker.saveFile({Texts::tr("Export Hits"), QStringLiteral("hits"), folder_, forms()});
  if (!path || !mayWriteTo(*path)) return;
  folder_ = QFileInfo(*path).path();
  const std::optional<ExportFormat> format = exportFormatOf(*path);
  const auto action = [&](Job& job) { write(job, *path, *format, which); };
  if (parts_.work.run(JobKind::Export, action) != Answer::Refused) return;
  // Something else has started while the user was choosing.
  const QString why = parts_.work.refusalOf(JobKind::Export);
  if (!why.isEmpty()) parts_.messages.inform(why);
}

bool SearchFormExport::mayWriteTo(const QString& path) const {
  if (!exportFormatOf(path)) {
    parts_.messages.inform(
        Texts::tr("The ending of the name says what is written: .csv, .html or .txt. %1 has none of "
                  "these.")
            .arg(path));
    return false;
  }
  if (!parts_.state.isOwnFile(path) && !parts_.state.isListing(path)) return true;
  parts_.messages.inform(Texts::tr("%1 belongs to what is searched. Please choose another name.").arg(path));
  return false;
}

void SearchFormExport::write(Job& job, const QString& path, ExportFormat format, ListRows which) {
  isRunning_ = true;
  isStopped_ = false;
  isShown_ = false;
  sinceStart_.start();
  bool isWhole = false;
  const QString title = job.display().title();
  reportFaults(parts_.messages, Texts::tr("exporting hits to %1").arg(path), [&] {
    job.display().setTitle(Texts::tr("Export Hits"));
    job.display().setStatus(path);
    isWhole = writeRows(job, path, format, which);
    if (!isWhole) tellUnfinished(job);
  });
  isRunning_ = false;
  // The request was this job's; a later search or rescan must not end by it.
  if (isShown_ && job.display().isCancelled()) job.dropStopRequest();
  job.display().setTitle(title);
  job.end();
  if (!isWhole || parts_.work.isClosing()) return;
  parts_.status.setNote(Texts::tr("%1 hits were written to %2.").arg(parts_.locale.toString(all_), path));
}

/// Whether the file is whole.
bool SearchFormExport::writeRows(Job& job, const QString& path, ExportFormat format, ListRows which) {
  // While a file was chosen, a search may have come.
  if (!areHitsThere()) return false;
  ShownRows rows(*parts_.list.selectionModel(), which);
  while (rows.goOn()) {
    if (!mayGoOn(job)) return false;
  }
  all_ = std::ssize(rows.rows());
  const std::unique_ptr<ExportText> text =
      makeExportText(format, parts_.locale, QGuiApplication::layoutDirection());
  return exportHits(path, *text, parts_.table, rows.rows(),
                    [&](std::int64_t written) { return goOn(job, written); });
}

bool SearchFormExport::goOn(Job& job, std::int64_t written) {
  if (!isShown_ && written < all_ && sinceStart_.hasExpired(kMillisecondsUnseen)) {
    isShown_ = true;
    job.show();
  }
  if (isShown_ && job.display().isDue()) {
    job.display().setBar(static_cast<std::int32_t>(written * kFullBar / all_));
    job.display().setDetail(
        Texts::tr("%1 of %2 hits").arg(parts_.locale.toString(written), parts_.locale.toString(all_)));
  }
  return mayGoOn(job);
}

/// Lets events run.
bool SearchFormExport::mayGoOn(const Job& job) const {
  job.letEventsRun();
  return !isCancelled(job) && !job.isClosing() && areHitsThere();
}

bool SearchFormExport::isCancelled(const Job& job) const {
  return isStopped_ || (isShown_ && job.display().isCancelled());
}

bool SearchFormExport::areHitsThere() const {
  return parts_.table.timesCleared() == timesCleared_;
}

void SearchFormExport::tellUnfinished(const Job& job) const {
  if (job.isClosing()) return;
  // Who has stopped it knows; who has started a search may not.
  if (isCancelled(job)) {
    return parts_.status.setNote(Texts::tr("The export was stopped. Nothing was written."));
  }
  parts_.messages.inform(
      Texts::tr("The export was given up, since a new search has replaced the hits. Nothing was "
                "written."));
}

}  // namespace quorvin
