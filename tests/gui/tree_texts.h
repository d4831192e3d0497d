// SPDX-License-Identifier: GPL-2.0-or-later

// What a tree shows, as text that can be compared.
#pragma once

#include <QAbstractItemModel>

#include <string>

namespace quorvin::test {

/// A line for each row, with "|" between its columns and those below it behind, indented.
inline std::string textsOfTree(const QAbstractItemModel& model, const QModelIndex& parent = {}) {
  std::string text;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    if (parent.isValid()) text += "  ";
    for (int column = 0; column < model.columnCount(); ++column) {
      if (column > 0) text += '|';
      text += model.index(row, column, parent).data().toString().toStdString();
    }
    text += '\n' + textsOfTree(model, model.index(row, 0, parent));
  }
  return text;
}

}  // namespace quorvin::test
