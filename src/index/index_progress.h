// SPDX-License-Identifier: GPL-2.0-or-later

// How far an indexing has come.
#pragma once

#include "work/work.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// What has been indexed, all folders since the start together.
struct IndexCounts {
  std::int64_t folders = 0;
  std::int64_t files = 0;
};

/// Estimates how much of a refresh is done from the listings of last time: a source that had a long listing
/// takes long again. Nothing is known of a source without a listing.
class RefreshShare {
 public:
  RefreshShare() = default;
  /// `listingSizes` are the bytes of the sources' present listings, in order, 0 where there is none.
  explicit RefreshShare(std::vector<std::int64_t> listingSizes);

  /// The source in `row` (from 1) is being indexed from now on.
  void beginSource(int row);
  /// What has been indexed since the start of the refresh.
  void indexed(const IndexCounts& counts);

  /// 0 to 100, never less than before; nothing where there is no telling.
  std::optional<int> percent();

 private:
  double doneInSource() const;
  double sizeOf(std::size_t source) const;

  std::vector<std::int64_t> sizes_;
  /// Stands for the listings that do not exist yet.
  double usualSize_ = 1;
  double total_ = 0;
  double before_ = 0;
  std::int64_t size_ = 0;
  IndexCounts counts_;
  IndexCounts countsBefore_;
  int percent_ = 0;
};

/// Shows an indexing in its job's display. A walk reports many thousand times a second; texts are made of
/// that only when the display is due.
class IndexProgress {
 public:
  /// `job` must outlive the object; counts are written in `locale`.
  IndexProgress(Job& job, const QLocale& locale) : job_(job), locale_(locale) {}

  Job& job() const { return job_; }

  /// The bar follows `share` from now on; without one it only moves to and fro.
  void follow(RefreshShare share) { share_ = std::move(share); }
  void beginSource(int row) { share_.beginSource(row); }

  /// The folder `listedPath`, as it is written in the listing, is being indexed from now on.
  void enterFolder(std::string_view listedPath);
  /// Lets events run; what has been counted may be shown before.
  void letEventsRun(const IndexCounts& counts);
  /// Shows how far the indexing is, due or not.
  void show();

 private:
  QString countsText() const;

  Job& job_;
  QLocale locale_;
  RefreshShare share_;
  IndexCounts counts_;
  std::string folder_;
  bool isFolderNew_ = false;
};

}  // namespace quorvin
