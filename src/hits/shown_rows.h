// SPDX-License-Identifier: GPL-2.0-or-later

// Which rows of the hit table the rows of the list show.
#pragma once

#include <QItemSelectionModel>
#include <QMetaObject>

#include <cstdint>
#include <vector>

namespace quorvin {

/// Which rows of the list are meant.
enum class ListRows : std::uint8_t { All, Selected };

/// Takes down which rows of the hit table are shown by rows of the list (see hitAt()), in the order of the
/// list. There may be tens of millions, so they are taken a stretch at a time, between which events may run:
/// when rows change their places meanwhile, it starts again.
class ShownRows {
 public:
  /// So many rows take a millisecond or two.
  static constexpr int kRowsOfStretch = 1 << 19;

  /// `selection` is the list's, has a model, and must outlive the object.
  ShownRows(const QItemSelectionModel& selection, ListRows which, int rowsOfStretch = kRowsOfStretch);
  ~ShownRows();
  ShownRows(const ShownRows&) = delete;
  ShownRows& operator=(const ShownRows&) = delete;

  /// Takes the next stretch; false when all rows have been taken.
  bool goOn();
  /// What has been taken so far.
  std::vector<int>& rows() { return rows_; }

 private:
  struct Range {
    int next;
    int last;
  };

  void restart();

  const QItemSelectionModel& selection_;
  ListRows which_;
  int rowsOfStretch_;
  QMetaObject::Connection connection_;
  bool haveMoved_ = true;
  /// What is still to be taken, the next one last.
  std::vector<Range> ranges_;
  std::vector<int> rows_;
};

/// The selected rows (see ShownRows), all at once.
std::vector<int> selectedRows(const QItemSelectionModel& selection);

}  // namespace quorvin
