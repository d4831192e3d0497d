// SPDX-License-Identifier: GPL-2.0-or-later

// A comparison that goes on in a thread of its own.
#pragma once

#include "catalogue/catalogue_job.h"
#include "catalogue/compared_place.h"
#include "catalogue/listing_comparison.h"

#include <QLocale>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// Compares two places that are known by their paths: it takes nothing else of the program.
class CompareJob : public CatalogueJob {
 public:
  /// `dataFolder` has the listing history.
  CompareJob(ComparedPlace before, ComparedPlace after, QString dataFolder, QLocale locale);

  /// What it is doing; empty while the listings are read. May be asked while it runs.
  QString status() const;

  // What has come of it; only once it has ended.

  const ComparedPlace& before() const { return beforePlace_; }
  const ComparedPlace& after() const { return afterPlace_; }
  const ListingComparison& comparison() const { return *comparison_; }
  /// The folders in which something has changed.
  const std::vector<FolderChanges>& folders() const { return folders_; }
  /// The sums of everything, and what there is to say besides, as lines for people.
  QStringList sumLines() const;

 protected:
  bool work() override;

 private:
  ListingOpener openerOf(const ComparedPlace& place);

  ComparedPlace beforePlace_;
  ComparedPlace afterPlace_;
  QLocale locale_;
  ListingHistory history_;
  std::vector<std::unique_ptr<FolderAsItIs>> listed_;
  std::unique_ptr<ComparedListing> before_;
  std::unique_ptr<ComparedListing> after_;
  std::unique_ptr<ListingComparison> comparison_;
  std::vector<FolderChanges> folders_;

  mutable QMutex mutex_;
  QString status_;
};

/// "Added: 3 files, 1.50 MB. Removed: ...", the last line of every comparison.
QString changeSumsText(const ListingComparison& comparison, const QLocale& locale);
/// That the two were compared below different folders; empty where they were not.
QString topFoldersText(const ListingComparison& comparison);

}  // namespace quorvin
