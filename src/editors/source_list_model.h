// The rows of the source editor's list.
#pragma once

#include "editors/source_entry.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

namespace quorvin {

/// The entries being edited, one a row, with the columns "Description" and "Path". Rows count from 0 here, as
/// the views count them.
class SourceListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  const std::vector<SourceEntry>& entries() const { return entries_; }

  void fill(std::vector<SourceEntry> entries);
  void append(const SourceEntry& entry);

  // The commands on the selected row. Each gives the row to select afterwards; nothing when the selection is
  // left to the view. A row that is not there (none is selected) changes nothing.

  /// Removes the entry; the one above it is to be selected.
  std::optional<int> deleteEntry(int row);
  /// Exchanges the entry with the one above, or below; the selection follows it. Nothing happens at the end
  /// of the list.
  std::optional<int> moveUp(int row);
  std::optional<int> moveDown(int row);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  bool has(int row) const;
  void exchangeWithNext(int row);

  std::vector<SourceEntry> entries_;
};

}  // namespace quorvin
