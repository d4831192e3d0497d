// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/import_job.h"

#include "faults/runtime_fault.h"
#include "texts/texts.h"

#include <QMutexLocker>

#include <new>
#include <utility>

namespace quorvin {

namespace {

void addIndented(QStringList& sentences, const QString& indent, const QStringList& more) {
  for (const QString& sentence : more) sentences += indent + sentence;
}

}  // namespace

ImportJob::ImportJob(QStringList lists, ImportChoices choices, ImportControls controls)
    : lists_(std::move(lists)), choices_(std::move(choices)), controls_(std::move(controls)) {}

ImportJob::Progress ImportJob::progress() const {
  const QMutexLocker lock(&mutex_);
  return {list_, lines_};
}

bool ImportJob::work() {
  const ListImporter importer(choices_, controls_, [this] { return isStopped(); });
  for (const QString& list : std::as_const(lists_)) {
    if (isStopped()) return false;
    {
      const QMutexLocker lock(&mutex_);
      list_ = list;
      lines_ = 0;
    }
    importOne(importer, list);
  }
  return true;
}

void ImportJob::importOne(const ListImporter& importer, const QString& list) {
  try {
    const ImportedList made = importer.import(list, [this](std::int64_t lines) { lines_ = lines; });
    if (made.report.isStopped) return;
    places_ += made.place;
    if (!made.isWhole()) isWhole_ = false;
    tell(list, made);
  } catch (const RuntimeFault& fault) {
    isWhole_ = false;
    sentences_ += fault.description();
  } catch (const std::bad_alloc&) {
    isWhole_ = false;
    sentences_ += list + QStringLiteral(": ") + Texts::tr("Run-time error: Out of memory");
  }
}

void ImportJob::tell(const QString& list, const ImportedList& made) {
  const QString indent = QStringLiteral("  ");
  sentences_ += importSummary(list, made.place, made.report);
  addIndented(sentences_, indent, importRemarks(made.report));
  addIndented(sentences_, indent, importLosses(made.report, controls_));
  addIndented(sentences_, indent + indent, linesNotUnderstood(made.report));
}

}  // namespace quorvin
