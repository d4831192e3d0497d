// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/shown_rows.h"

#include "hits/hit_list_model.h"

#include <algorithm>

namespace quorvin {

ShownRows::ShownRows(const QItemSelectionModel& selection, ListRows which, int rowsOfStretch)
    : selection_(selection),
      which_(which),
      rowsOfStretch_(rowsOfStretch),
      connection_(QObject::connect(selection.model(), &QAbstractItemModel::modelReset,
                                   [this] { haveMoved_ = true; })) {}

ShownRows::~ShownRows() {
  QObject::disconnect(connection_);
}

void ShownRows::restart() {
  haveMoved_ = false;
  rows_.clear();
  ranges_.clear();
  if (which_ == ListRows::All) {
    const int count = selection_.model()->rowCount();
    if (count > 0) ranges_.push_back({0, count - 1});
    rows_.reserve(static_cast<std::size_t>(count));
    return;
  }
  for (const QItemSelectionRange& range : selection_.selection()) {
    ranges_.push_back({range.top(), range.bottom()});
  }
  std::ranges::sort(ranges_, std::ranges::greater(), &Range::next);
  rows_.reserve(static_cast<std::size_t>(selectedRowCount(selection_)));
}

bool ShownRows::goOn() {
  if (haveMoved_) restart();
  const auto* hits = qobject_cast<const HitListModel*>(selection_.model());
  int left = rowsOfStretch_;
  while (!ranges_.empty() && left > 0) {
    Range& range = ranges_.back();
    for (; range.next <= range.last && left > 0; ++range.next, --left) {
      rows_.push_back(hits ? static_cast<int>(hits->order().tableRow(range.next)) : range.next);
    }
    if (range.next > range.last) ranges_.pop_back();
  }
  return !ranges_.empty();
}

std::vector<int> selectedRows(const QItemSelectionModel& selection) {
  ShownRows rows(selection, ListRows::Selected);
  while (rows.goOn()) {
  }
  return std::move(rows.rows());
}

}  // namespace quorvin
