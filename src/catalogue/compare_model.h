// SPDX-License-Identifier: GPL-2.0-or-later

// What a comparison has found, as a tree for views.
#pragma once

#include "catalogue/compare_job.h"
#include "search/hit_table.h"

#include <QAbstractItemModel>
#include <QLocale>
#include <QModelIndex>
#include <QString>
#include <QVariant>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// The folders of a CompareJob in which something has changed, and below each the changes, in the order of
/// the comparison. What was and what is stand side by side. Texts are made when they are asked for.
class CompareModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  enum class Column : std::uint8_t {
    Name,
    Change,
    EarlierSize,
    EarlierDate,
    LaterSize,
    LaterDate,
    EarlierFolder
  };
  static constexpr int kColumns = 7;

  /// So many changes are shown at most.
  static constexpr std::size_t kMostRows = 100'000;

  explicit CompareModel(const QLocale& locale) : locale_(locale) {}

  /// Shows a job that is complete; null for nothing. Only changes of `kind`, or all of them.
  void show(std::shared_ptr<const CompareJob> job, std::optional<ChangeKind> kind = {},
            std::size_t mostRows = kMostRows);

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Changes that are shown, and how many there would be without the limit.
  std::size_t shownChanges() const { return changes_.size(); }
  std::size_t changesAltogether() const { return changesAltogether_; }

  /// The file that a row stands for, for those who look for it on its drive: as it is later, or as it was if
  /// it is gone. A folder comes with an empty name.
  HitRow fileOf(const QModelIndex& index) const;

 private:
  struct Folder {
    /// In CompareJob::folders().
    std::size_t number;
    /// In `changes_`.
    std::size_t first;
    std::size_t count;
  };
  /// The change of a row below a folder; null for a folder.
  const FileChange* changeAt(const QModelIndex& index) const;
  const FolderChanges& folderAt(const QModelIndex& index) const;
  QString textOfFolder(const FolderChanges& folder, Column column) const;
  QString textOfChange(const FileChange& change, Column column) const;
  QString pathOf(const FolderTree& tree, std::uint32_t folder) const;
  std::int64_t bytesOf(const FolderChanges& folder, bool isEarlier) const;
  const ComparedFile* fileOf(const FileChange& change, bool isEarlier) const;

  QLocale locale_;
  std::shared_ptr<const CompareJob> job_;
  std::vector<Folder> folders_;
  /// Numbers in ListingComparison::changes().
  std::vector<std::uint32_t> changes_;
  std::size_t changesAltogether_ = 0;
};

/// "added", as people read it.
QString textOfKind(ChangeKind kind);

}  // namespace quorvin
