// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_list_order.h"

#include <QAccessible>
#include <QHeaderView>

namespace quorvin {

namespace {

void addBit(std::vector<std::uint64_t>& bits, std::uint32_t at) {
  bits[at / 64] |= std::uint64_t{1} << (at % 64);
}

}  // namespace

HitOrder orderAfterClick(const HitOrder& now, HitColumn column) {
  if (now.column != column) return {column, false};
  return now.isDescending ? HitOrder() : HitOrder{column, true};
}

HitListOrder::HitListOrder(HitListView& list, HitListModel& rows)
    : list_(list), rows_(rows), order_(rows.order()) {
  connect(list_.header(), &QHeaderView::sectionClicked, this, [this](int section) {
    order_.sortBy(orderAfterClick(order_.order(), static_cast<HitColumn>(section)));
  });
  connect(&order_, &RowOrder::orderChanged, this, &HitListOrder::showArrow);
  // The model hears of both first: before the change its rows are still the old ones, and afterwards the
  // list has forgotten its selection already.
  connect(&order_, &RowOrder::aboutToChange, this, &HitListOrder::keepPlaces);
  connect(&order_, &RowOrder::changed, this, &HitListOrder::restorePlaces);
  showArrow();
}

void HitListOrder::showArrow() {
  constexpr int kNoSection = -1;
  const HitOrder& order = order_.order();
  list_.header()->setSortIndicator(order.column ? static_cast<int>(*order.column) : kNoSection,
                                   order.isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&list_, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

void HitListOrder::keepPlaces(bool isSameRows) {
  const QItemSelectionModel& selection = *list_.selectionModel();
  const QModelIndex current = list_.currentIndex();
  currentHit_ = current.isValid() ? std::int64_t{order_.tableRow(current.row())} : -1;
  wasOnScreen_ = current.isValid() && !list_.rowRect(current.row()).isEmpty();
  const std::int64_t count = selectedRowCount(selection);
  areAllSelected_ = isSameRows && count > 0 && count == order_.count();
  selected_.clear();
  if (count == 0 || areAllSelected_) return;
  selected_.resize(static_cast<std::size_t>(order_.knownRows() / 64 + 1));
  for (const QItemSelectionRange& range : selection.selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) addBit(selected_, order_.tableRow(row));
  }
}

void HitListOrder::restorePlaces() {
  restoreSelection();
  restoreCurrentRow();
  selected_ = {};
}

void HitListOrder::restoreSelection() {
  std::vector<RowOrder::Range> ranges;
  if (areAllSelected_) ranges = {{0, order_.count() - 1}};
  if (!selected_.empty()) ranges = order_.shownRanges(selected_);
  if (ranges.empty()) return;
  if (ranges.size() > kMostStretches) {
    std::int64_t hits = 0;
    for (const auto& [first, last] : ranges) hits += last - first + 1;
    Q_EMIT selectionLetGo(hits);
    return;
  }
  QItemSelection selection;
  selection.reserve(static_cast<qsizetype>(ranges.size()));
  const int lastColumn = rows_.columnCount() - 1;
  for (const auto& [first, last] : ranges) {
    selection.append(QItemSelectionRange(rows_.index(first, 0), rows_.index(last, lastColumn)));
  }
  list_.selectionModel()->select(selection, QItemSelectionModel::Select);
}

void HitListOrder::restoreCurrentRow() {
  if (currentHit_ < 0) return;
  const int row = order_.shownRow(currentHit_);
  if (row < 0) return;
  const QModelIndex current = rows_.index(row, 0);
  list_.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  // The list has gone to its current row, wherever that is.
  wasOnScreen_ ? list_.scrollTo(current, QAbstractItemView::PositionAtCenter) : list_.scrollToTop();
}

}  // namespace quorvin
