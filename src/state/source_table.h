// SPDX-License-Identifier: GPL-2.0-or-later

// The table of one kind of source, online or offline.
#pragma once

#include <QString>

#include <array>
#include <vector>

namespace quorvin {

/// A table of fixed capacity: rows 0 to 2000 and columns 0 to 2, all texts, empty at first. Rows 1 to the
/// count kept beside the table are in use; row 0 and column 0 never are. Column 1 is the description, column
/// 2 the path (an online source's folder, an offline source's listing file).
class SourceTable {
 public:
  static constexpr int kLastRow = 2000;
  static constexpr int kDescription = 1;
  static constexpr int kPath = 2;

  SourceTable();

  /// The text at `row` and `column`. Throws fault 9 outside rows 0 to 2000 and columns 0 to 2: the capacity
  /// is a limit that is reported, never a silent drop.
  const QString& at(int row, int column) const;
  QString& at(int row, int column);

  const QString& description(int row) const { return at(row, kDescription); }
  const QString& path(int row) const { return at(row, kPath); }

  /// Puts a record into `row`. Throws fault 9 as at() does, with nothing stored.
  void set(int row, const QString& description, const QString& path);

 private:
  using Row = std::array<QString, 3>;
  static void checkSubscripts(int row, int column);

  std::vector<Row> rows_;
};

}  // namespace quorvin
