// SPDX-License-Identifier: GPL-2.0-or-later

// A comparison that goes on in a thread of its own.
#pragma once

#include "catalogue/compared_place.h"
#include "catalogue/listing_comparison.h"

#include <QLocale>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <atomic>
#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// Compares two places that are known by their paths: it takes nothing else of the program, and changes no
/// listing, so it may run beside any job of Work.
///
/// run() is called once, in any thread; until it has ended, others may only ask for status() and hasEnded(),
/// and call stop(). Whoever lets go of a job that is shared with its thread need not wait for it.
class CompareJob {
 public:
  /// `dataFolder` has the listing history.
  CompareJob(ComparedPlace before, ComparedPlace after, QString dataFolder, QLocale locale);
  CompareJob(const CompareJob&) = delete;
  CompareJob& operator=(const CompareJob&) = delete;
  ~CompareJob();

  void run();

  /// The job is of no use any more: it ends as soon as it comes to look, at the latest when the drive that it
  /// waits for has answered.
  void stop() { isStopped_ = true; }
  bool hasEnded() const { return hasEnded_; }
  /// What it is doing; empty while the listings are read.
  QString status() const;

  // What has come of it; only once it has ended.

  const ComparedPlace& before() const { return beforePlace_; }
  const ComparedPlace& after() const { return afterPlace_; }
  /// Everything was compared: neither stopped nor failed. Without that there is no comparison.
  bool isComplete() const { return isComplete_; }
  /// Why it failed, as a sentence; empty where it did not.
  const QString& fault() const { return fault_; }
  const ListingComparison& comparison() const { return *comparison_; }
  /// The folders in which something has changed.
  const std::vector<FolderChanges>& folders() const { return folders_; }
  /// The sums of everything, and what there is to say besides, as lines for people.
  QStringList sumLines() const;

 private:
  ListingOpener openerOf(const ComparedPlace& place);
  void compare();

  ComparedPlace beforePlace_;
  ComparedPlace afterPlace_;
  QLocale locale_;
  ListingHistory history_;
  std::vector<std::unique_ptr<FolderAsItIs>> listed_;
  std::unique_ptr<ComparedListing> before_;
  std::unique_ptr<ComparedListing> after_;
  std::unique_ptr<ListingComparison> comparison_;
  std::vector<FolderChanges> folders_;
  QString fault_;
  bool isComplete_ = false;

  mutable QMutex mutex_;
  QString status_;
  std::atomic<bool> isStopped_ = false;
  std::atomic<bool> hasEnded_ = false;
};

/// "Added: 3 files, 1.50 MB. Removed: ...", the last line of every comparison.
QString changeSumsText(const ListingComparison& comparison, const QLocale& locale);
/// That the two were compared below different folders; empty where they were not.
QString topFoldersText(const ListingComparison& comparison);

}  // namespace quorvin
