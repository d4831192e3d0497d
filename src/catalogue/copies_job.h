// SPDX-License-Identifier: GPL-2.0-or-later

// A look for copies that goes on in a thread of its own.
#pragma once

#include "catalogue/copy_finder.h"
#include "platform/message_box.h"
#include "search/search_run.h"
#include "state/program_state.h"

#include <QLocale>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// The sources of `state` alone, for a thread that is to go over them as they are now.
ProgramState sourcesOf(const ProgramState& state);

/// Looks for copies in the listings of a state of its own, with a store of segments of its own. It only reads
/// listings, each of which is replaced as a whole, so it may run beside any job of Work: that is how a search
/// in another program stands to them, and why the table of jobs knows nothing of it.
///
/// run() is called once, in any thread; until it has ended, others may only ask for progress() and
/// hasEnded(), and call stop(). Whoever lets go of a job that is shared with its thread need not wait for it.
class CopiesJob {
 public:
  /// So many rows are made at most: the first ones, for single files the largest.
  static constexpr std::size_t kMostRows = 100'000;

  /// What a row of the result stands for.
  enum class RowKind : std::uint8_t { Group, FolderSet, SingleFile, VolumeSum, FolderSum };

  struct Row {
    RowKind kind;
    /// The number of the group or set; the volume; the folder, also that of a single file.
    std::uint32_t number;
    /// Copies of a group or set; files of a sum; 1 for a single file.
    std::int64_t count;
    /// Bytes of each copy; of a sum altogether.
    std::int64_t size;
    /// Bytes beyond the first copy; 0 where there is no such thing.
    std::int64_t wasted = 0;
    /// Of a single file, as listed.
    QString name = {};
  };

  struct Progress {
    /// The listing that is being read; empty before the first.
    QString listing;
    std::int64_t searched = 0;
    /// All listings have been read.
    bool isComparing = false;
    /// Of files that are looked into; both 0 where that has not begun.
    std::int64_t bytesRead = 0;
    std::int64_t bytesToRead = 0;
  };

  CopiesJob(ProgramState sources, CopyWish wish, QLocale locale, std::size_t mostRows = kMostRows);
  CopiesJob(const CopiesJob&) = delete;
  CopiesJob& operator=(const CopiesJob&) = delete;
  ~CopiesJob();

  void run();

  /// The job is of no use any more: it ends as soon as it comes to look, at the latest when the drive that it
  /// waits for has answered.
  void stop() { isStopped_ = true; }
  bool isStopped() const { return isStopped_; }
  bool hasEnded() const { return hasEnded_; }
  Progress progress() const;

  // What has come of it; only once it has ended.

  const CopyWish& wish() const { return wish_; }
  /// Everything was found: neither stopped nor failed. Without that there are no rows.
  bool isComplete() const { return isComplete_; }
  /// Why it failed, as a sentence; empty where it did not.
  const QString& fault() const { return fault_; }
  /// What was said of single listings.
  const QStringList& messages() const;
  const CopyFinder& finder() const { return *finder_; }
  const std::vector<Row>& rows() const { return rows_; }
  /// How many there would be without the limit.
  std::int64_t rowsAltogether() const { return rowsAltogether_; }
  const QStringList& sumLines() const { return sumLines_; }
  /// Of the listing of this number.
  SourceKind kindOf(std::uint32_t listing) const { return kinds_[listing]; }

 private:
  class Messages;
  class Display;

  CopyFinder::Parts parts();
  void listingStarts(SourceKind kind, const QString& path);
  void makeRows();
  void addCopies();
  void addSingleFiles();
  void addVolumes();
  void addFolders();

  ProgramState sources_;
  CopyWish wish_;
  QLocale locale_;
  std::size_t mostRows_;
  std::unique_ptr<Messages> messages_;
  std::unique_ptr<Display> display_;
  std::unique_ptr<CopyFinder> finder_;
  std::vector<SourceKind> kinds_;
  std::vector<Row> rows_;
  std::int64_t rowsAltogether_ = 0;
  QStringList sumLines_;
  QString fault_;
  bool isComplete_ = false;

  mutable QMutex mutex_;
  QString listing_;
  std::atomic<std::int64_t> searched_ = 0;
  std::atomic<bool> isComparing_ = false;
  std::atomic<std::int64_t> bytesRead_ = 0;
  std::atomic<std::int64_t> bytesToRead_ = 0;
  std::atomic<bool> isStopped_ = false;
  std::atomic<bool> hasEnded_ = false;
};

}  // namespace quorvin
