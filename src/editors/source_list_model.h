// SPDX-License-Identifier: GPL-2.0-or-later

// The list that the source editor edits.
#pragma once

#include "state/source_entries.h"

#include <QAbstractTableModel>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace quorvin {

/// What is known of a source: a few words for its row, and sentences; both empty while nothing is.
struct SourceStatus {
  QString brief;
  QString full;
};

/// The role of SourceStatus::brief.
inline constexpr int kSourceStatusRole = Qt::UserRole;

/// The entries being edited, one a row, with the columns "Description" and "Path". Rows count from 0 here, as
/// the views count them.
class SourceListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  const std::vector<SourceEntry>& entries() const { return entries_; }

  void fill(std::vector<SourceEntry> entries);
  /// From now on rows have what `statusOf` says of their entries.
  void setStatuses(std::function<SourceStatus(const SourceEntry&)> statusOf);
  /// What is said of some entries has changed.
  void statusesChanged();
  void append(const SourceEntry& entry);

  // The commands on selected rows. Each returns the row to select afterwards; nothing when the selection is
  // left to the view. A row that is not there changes nothing.

  /// Removes the entries in `rows`, which ascend. The one above the first of them should be selected.
  std::optional<int> deleteEntries(const std::vector<int>& rows);
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
  std::function<SourceStatus(const SourceEntry&)> statusOf_;
};

}  // namespace quorvin
