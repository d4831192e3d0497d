// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/selection_size.h"

#include "hits/hit_list_model.h"

#include <QAbstractItemModel>
#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr qint64 kMillisecondsOfSlice = 5;
/// The clock is looked at each time that this many rows have been added.
constexpr int kRowsBetweenLooks = 1024;

}  // namespace

SelectionSize::SelectionSize(const QItemSelectionModel& selection, SizeOf sizeOf)
    : selection_(selection), sizeOf_(std::move(sizeOf)) {
  nextSlice_.setSingleShot(true);
  nextSlice_.setInterval(0);
  connect(&nextSlice_, &QTimer::timeout, this, &SelectionSize::addSlice);
  connect(&selection, &QItemSelectionModel::selectionChanged, this, &SelectionSize::restart);
  // Which takes the selection away without a word.
  connect(selection.model(), &QAbstractItemModel::modelReset, this, &SelectionSize::restart);
}

std::optional<std::int64_t> SelectionSize::bytes() const {
  return isDone() ? std::optional(sum_) : std::nullopt;
}

void SelectionSize::restart() {
  const bool wasEmpty = rows_ == 0;
  ranges_ = selection_.selection();
  rows_ = selectedRowCount(selection_);
  sum_ = 0;
  range_ = 0;
  offset_ = 0;
  if (rows_ == 0 && wasEmpty) return;
  if (isDone()) {
    nextSlice_.stop();
    Q_EMIT changed();
    return;
  }
  // Few rows are added up at once, so that the number does not flicker while the selection moves.
  addSlice();
}

void SelectionSize::addSlice() {
  QElapsedTimer clock;
  clock.start();
  while (!isDone() && !clock.hasExpired(kMillisecondsOfSlice)) {
    const QItemSelectionRange& range = ranges_[range_];
    const int end = std::min(range.height(), offset_ + kRowsBetweenLooks);
    for (; offset_ < end; ++offset_) {
      sum_ += std::max<std::int64_t>(0, sizeOf_(range.top() + offset_));
    }
    if (offset_ < range.height()) continue;
    ++range_;
    offset_ = 0;
  }
  if (!isDone()) nextSlice_.start();
  Q_EMIT changed();
}

}  // namespace quorvin
