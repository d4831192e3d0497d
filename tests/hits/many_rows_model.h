// SPDX-License-Identifier: GPL-2.0-or-later

// A model with any number of rows that remembers which of them were asked for.
#pragma once

#include "search/hit_table.h"

#include <QAbstractTableModel>

#include <set>

namespace quorvin::test {

class ManyRowsModel : public QAbstractTableModel {
 public:
  explicit ManyRowsModel(int rows) : rows_(rows) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : kHitColumnCount;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    ++dataCalls;
    rowsAskedFor.insert(index.row());
    if (role == Qt::ToolTipRole) return QStringLiteral("kind");
    if (role == Qt::DisplayRole) return QStringLiteral("row %1").arg(index.row());
    return {};
  }
  void append(int rows) {
    beginInsertRows({}, rows_, rows_ + rows - 1);
    rows_ += rows;
    endInsertRows();
  }

  void exchange(int rows) {
    beginResetModel();
    rows_ = rows;
    endResetModel();
  }

  mutable int dataCalls = 0;
  mutable std::set<int> rowsAskedFor;

 private:
  int rows_;
};

}  // namespace quorvin::test
