// SPDX-License-Identifier: GPL-2.0-or-later

// A look for copies that goes on in a thread of its own.
#pragma once

#include "catalogue/catalogue_job.h"
#include "catalogue/copy_finder.h"
#include "catalogue/run_watch.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// Looks for copies in the listings of a state of its own, with a store of segments of its own. It only reads
/// listings, each of which is replaced as a whole.
class CopiesJob : public CatalogueJob {
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

  CopiesJob(ProgramState sources, CopyWish wish, QLocale locale, std::size_t mostRows = kMostRows);

  /// How far it is, as a sentence; may be asked while it runs.
  QString progressText() const;

  // What has come of it; only once it has ended.

  const CopyWish& wish() const { return wish_; }
  /// What was said of single listings.
  const RunWatch& watch() const { return watch_; }
  const CopyFinder& finder() const { return *finder_; }
  const std::vector<Row>& rows() const { return rows_; }
  /// How many there would be without the limit.
  std::int64_t rowsAltogether() const { return rowsAltogether_; }
  const QStringList& sumLines() const { return sumLines_; }
  /// Of the listing of this number.
  SourceKind kindOf(std::uint32_t listing) const { return kinds_[listing]; }

 protected:
  bool work() override;

 private:
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
  RunWatch watch_;
  std::unique_ptr<CopyFinder> finder_;
  std::vector<SourceKind> kinds_;
  std::vector<Row> rows_;
  std::int64_t rowsAltogether_ = 0;
  QStringList sumLines_;

  std::atomic<bool> isComparing_ = false;
  std::atomic<std::int64_t> bytesRead_ = 0;
  std::atomic<std::int64_t> bytesToRead_ = 0;
};

}  // namespace quorvin
