// SPDX-License-Identifier: GPL-2.0-or-later

// How much is selected in the hit list.
#pragma once

#include <QItemSelection>
#include <QItemSelectionModel>
#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <optional>

namespace quorvin {

/// Counts the selected rows and adds up their sizes. The number is known at once; the sizes are added up in
/// slices of a few milliseconds between events, since millions of rows may be selected. A change of the
/// selection starts anew.
class SelectionSize : public QObject {
  Q_OBJECT

 public:
  /// Gives the bytes of a row; below 0 where they are not known, which counts as nothing.
  using SizeOf = std::function<std::int64_t(int row)>;

  /// `selection` must outlive the object and have a model.
  SelectionSize(const QItemSelectionModel& selection, SizeOf sizeOf);

  std::int64_t rows() const { return rows_; }
  /// The sum, or nothing while it is not known yet.
  std::optional<std::int64_t> bytes() const;

 Q_SIGNALS:
  /// rows() or bytes() is another one.
  void changed();

 private:
  void restart();
  void addSlice();
  bool isDone() const { return range_ == ranges_.size(); }

  const QItemSelectionModel& selection_;
  SizeOf sizeOf_;
  QItemSelection ranges_;
  std::int64_t rows_ = 0;
  std::int64_t sum_ = 0;
  /// Where to go on: the row `offset_` of that range.
  qsizetype range_ = 0;
  int offset_ = 0;
  QTimer nextSlice_;
};

}  // namespace quorvin
