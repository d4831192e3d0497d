// SPDX-License-Identifier: GPL-2.0-or-later

// What a look for copies has found, as a tree for views.
#pragma once

#include "catalogue/copies_job.h"
#include "search/hit_table.h"

#include <QAbstractItemModel>
#include <QLocale>
#include <QModelIndex>
#include <QString>
#include <QVariant>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// The rows of a CopiesJob; below a group of files and a set of folders, a row for each place. Texts are made
/// when they are asked for. Sorting is by value, of groups only: their places stay as listed.
class CopiesModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  enum class Column : std::uint8_t { Name, Count, Size, Wasted, Volume, Folder, Listing };

  explicit CopiesModel(const QLocale& locale) : locale_(locale) {}

  /// Shows a job that is complete; null for nothing.
  void show(std::shared_ptr<const CopiesJob> job);

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  void sort(int column, Qt::SortOrder order) override;

  /// What is shown in a column of the table as it is now.
  Column columnAt(int section) const { return columns_[static_cast<std::size_t>(section)]; }

  /// The file that a row stands for, for those who look for it on its drive: a place of a file, or a single
  /// file. A folder comes with an empty name. Nothing for groups and sums of volumes.
  std::optional<HitRow> fileOf(const QModelIndex& index) const;

 private:
  /// A row of the job, and which of its places; none for the row itself.
  struct Item {
    std::size_t row;
    std::optional<std::uint32_t> place;
  };

  Item itemOf(const QModelIndex& index) const;
  std::uint32_t placeCount(const CopiesJob::Row& row) const;
  std::uint32_t folderOfPlace(const CopiesJob::Row& row, std::uint32_t place) const;
  /// Where the row is; nothing where it is in several places.
  std::optional<std::uint32_t> folderOf(const Item& item) const;
  std::uint32_t volumeOf(const CopiesJob::Row& row) const;
  QString text(const Item& item, Column column) const;
  QString nameOf(const Item& item) const;
  QString setName(const QString& folder, std::int64_t files) const;
  QString volumesOf(const CopiesJob::Row& row) const;
  QString listingOf(std::uint32_t volume) const;
  QString folderText(std::uint32_t folder) const;
  QString sizeText(std::int64_t bytes) const;
  std::vector<std::uint32_t> sorted(Column column, Qt::SortOrder order) const;
  void takeOrder(std::vector<std::uint32_t> order);

  QLocale locale_;
  std::shared_ptr<const CopiesJob> job_;
  std::vector<Column> columns_;
  /// The number of the job's row at each position, and the position of each.
  std::vector<std::uint32_t> order_;
  std::vector<std::uint32_t> position_;
};

}  // namespace quorvin
