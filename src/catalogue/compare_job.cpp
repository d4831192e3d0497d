// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/compare_job.h"

#include "catalogue/sum_texts.h"
#include "texts/texts.h"

#include <QMutexLocker>

#include <utility>

namespace quorvin {

CompareJob::CompareJob(ComparedPlace before, ComparedPlace after, QString dataFolder, QLocale locale)
    : beforePlace_(std::move(before)),
      afterPlace_(std::move(after)),
      locale_(std::move(locale)),
      history_(dataFolder) {}

QString CompareJob::status() const {
  const QMutexLocker lock(&mutex_);
  return status_;
}

bool CompareJob::work() {
  const ListingOpener before = openerOf(beforePlace_);
  const ListingOpener after = openerOf(afterPlace_);
  if (isStopped()) return false;
  before_ = std::make_unique<ComparedListing>(before, locale_);
  after_ = std::make_unique<ComparedListing>(after, locale_);
  comparison_ = std::make_unique<ListingComparison>(*before_, *after_);
  if (!comparison_->run([this] { return isStopped(); })) return false;
  if (before_->isNoText() || after_->isNoText()) {
    return fail(Texts::tr("One of the two is no listing, since it is not plain text."));
  }
  folders_ = changesOfFolders(*comparison_);
  return true;
}

ListingOpener CompareJob::openerOf(const ComparedPlace& place) {
  const ComparedSource& source = place.source;
  if (place.state == ComparedPlace::State::Listing) return openerOfListing(source.listing);
  if (place.state == ComparedPlace::State::Version) {
    return openerOfVersion(history_, source.inHistory, place.version);
  }
  const auto tell = [this](const QString& status) {
    const QMutexLocker lock(&mutex_);
    status_ = status;
  };
  const auto isStopped = [this] { return CatalogueJob::isStopped(); };
  listed_.push_back(std::make_unique<FolderAsItIs>(source.folder, source.title, locale_, isStopped, tell));
  tell({});
  // One that was ended early is not to be compared.
  if (!listed_.back()->isWhole()) stop();
  return openerOfListing(listed_.back()->path());
}

QStringList CompareJob::sumLines() const {
  QStringList lines{changeSumsText(*comparison_, locale_)};
  const QString tops = topFoldersText(*comparison_);
  if (!tops.isEmpty()) lines += tops;
  std::int64_t leftOut = 0;
  for (const auto& folder : listed_) leftOut += folder->leftOut();
  if (leftOut > 0) {
    lines +=
        Texts::tr("Left out, since they could not be read: %1").arg(locale_.toString(qlonglong{leftOut}));
  }
  return lines;
}

QString changeSumsText(const ListingComparison& comparison, const QLocale& locale) {
  const auto sum = [&](ChangeKind kind) { return sumText(comparison.sum(kind), locale); };
  return Texts::tr("Added: %1. Removed: %2. Changed: %3. Moved: %4. The same: %5")
      .arg(sum(ChangeKind::Added), sum(ChangeKind::Removed), sum(ChangeKind::Changed), sum(ChangeKind::Moved),
           sumText(comparison.same(), locale));
}

QString topFoldersText(const ListingComparison& comparison) {
  if (!comparison.rule().belowTop) return {};
  return Texts::tr("Compared below %1 and %2, since they have no folder in common")
      .arg(QString::fromStdString(comparison.before().top()),
           QString::fromStdString(comparison.after().top()));
}

}  // namespace quorvin
