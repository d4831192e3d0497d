// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/row_order.h"

#include "texts/texts.h"

#include <QScopeGuard>
#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace quorvin {

namespace {

/// Events run in between.
constexpr std::chrono::milliseconds kSlice{8};

SliceEnd endOfSlice() {
  const auto end = std::chrono::steady_clock::now() + kSlice;
  return [end] { return std::chrono::steady_clock::now() >= end; };
}

}  // namespace

QString orderNote(const HitOrder& order, std::int64_t hits, const QLocale& locale,
                  std::int64_t mostInLocaleOrder) {
  const bool isText = order.column == HitColumn::Volume || order.column == HitColumn::Folder ||
                      order.column == HitColumn::Name;
  if (!isText || textOrder(hits, mostInLocaleOrder) == TextOrder::Locale) return {};
  return Texts::tr("More than %1 hits: sorted by their text in lower case")
      .arg(locale.toString(mostInLocaleOrder));
}

RowOrder::RowOrder(const HitTable& table, const QLocale& locale, QObject* parent,
                   std::int64_t mostInLocaleOrder)
    : QObject(parent),
      table_(table),
      locale_(locale),
      mostInLocaleOrder_(mostInLocaleOrder),
      filter_(table) {}

RowOrder::~RowOrder() = default;

int RowOrder::shownRow(std::int64_t tableRow) const {
  if (!showsFiltered_ && tableRow >= std::ssize(sorted_))
    return tableRow < known_ ? static_cast<int>(tableRow) : -1;
  const std::vector<std::uint32_t>& rows = showsFiltered_ ? shown_ : sorted_;
  const auto found = std::ranges::find(rows, static_cast<std::uint32_t>(tableRow));
  return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

std::vector<RowOrder::Range> RowOrder::shownRanges(const std::vector<std::uint64_t>& rows) const {
  std::vector<Range> ranges;
  const int shown = count();
  for (int row = 0; row < shown; ++row) {
    const std::uint32_t at = tableRow(row);
    if (at / 64 >= rows.size() || (rows[at / 64] >> (at % 64) & 1U) == 0) continue;
    if (!ranges.empty() && ranges.back().last == row - 1) {
      ranges.back().last = row;
    } else {
      ranges.push_back({row, row});
    }
  }
  return ranges;
}

int RowOrder::count() const {
  return static_cast<int>(showsFiltered_ ? std::ssize(shown_) : known_);
}

std::uint32_t RowOrder::tableRow(int shown) const {
  return showsFiltered_ ? shown_[static_cast<std::size_t>(shown)] : orderedRow(shown);
}

/// Rows that have come since the last sort are behind the others.
std::uint32_t RowOrder::orderedRow(std::int64_t place) const {
  const auto at = static_cast<std::size_t>(place);
  return at < sorted_.size() ? sorted_[at] : static_cast<std::uint32_t>(at);
}

void RowOrder::sortBy(const HitOrder& order) {
  if (order == wanted_) return;
  wanted_ = order;
  sort_.reset();
  if (!wanted_.column) {
    takeSorted();
  } else if (wanted_ != sortedBy_ && !isGrowing_) {
    startSort();
  }
  Q_EMIT orderChanged();
}

void RowOrder::startSort() {
  sort_ = std::make_unique<HitSort>(table_, wanted_, locale_, mostInLocaleOrder_);
  work();
}

void RowOrder::stopSorting() {
  if (!isSorting()) return;
  sort_.reset();
  wanted_ = sortedBy_;
  // Rows that came since the last sort are behind the others, which is no order at all.
  if (!wanted_.column && !sorted_.empty()) takeSorted();
  Q_EMIT orderChanged();
}

QString RowOrder::note() const {
  return orderNote(sortedBy_, std::ssize(sorted_), locale_, mostInLocaleOrder_);
}

void RowOrder::setFilter(const QString& text) {
  filter_.setText(text);
  restartComposing();
  if (filter_.isOn()) {
    work();
  } else if (showsFiltered_) {
    Q_EMIT aboutToChange(false);
    showsFiltered_ = false;
    shown_ = {};
    composed_ = {};
    Q_EMIT changed(false);
  }
  Q_EMIT countChanged();
}

bool RowOrder::isFiltering() const {
  return filter_.isOn() && (!showsFiltered_ || !addsToShown_ || composedTo_ < known_);
}

void RowOrder::rowsArrived(std::int64_t rows) {
  rows = std::min<std::int64_t>(rows, std::numeric_limits<int>::max());
  if (rows <= known_) return;
  if (showsFiltered_) {
    known_ = rows;
  } else {
    Q_EMIT aboutToInsert(static_cast<int>(known_), static_cast<int>(rows - 1));
    known_ = rows;
    Q_EMIT inserted();
  }
  // What was sorted or put together without them has to be done again.
  if (!sorted_.empty() || sort_ != nullptr) {
    sort_.reset();
    sortedBy_ = {};
    if (!isGrowing_) startSort();
    Q_EMIT orderChanged();
  }
  if (filter_.isOn()) work();
  Q_EMIT countChanged();
}

void RowOrder::setGrowing(bool isGrowing) {
  isGrowing_ = isGrowing;
  if (isGrowing_) {
    sort_.reset();
  } else if (isSorting() && sort_ == nullptr) {
    startSort();
  }
}

void RowOrder::clear() {
  known_ = 0;
  wanted_ = {};
  sortedBy_ = {};
  sort_.reset();
  sorted_ = {};
  filter_.restart();
  shown_ = {};
  restartComposing();
  addsToShown_ = showsFiltered_;
  timer_.stop();
  Q_EMIT orderChanged();
  Q_EMIT countChanged();
}

void RowOrder::timerEvent(QTimerEvent* event) {
  if (event->timerId() != timer_.timerId()) return QObject::timerEvent(event);
  work();
}

bool RowOrder::hasWork() const {
  return sort_ != nullptr || isFiltering();
}

/// One slice. The filter comes first: somebody is typing.
void RowOrder::work() {
  const SliceEnd isOver = endOfSlice();
  if (workOnFilter(isOver)) workOnSort(isOver);
  if (!hasWork()) return timer_.stop();
  if (!timer_.isActive()) timer_.start(0, this);
}

bool RowOrder::workOnFilter(const SliceEnd& isOver) {
  if (!isFiltering()) return true;
  if (!filter_.goOn(known_, isOver) || !compose(isOver)) return false;
  showComposed();
  return true;
}

/// Picks the rows with the words, in their order.
bool RowOrder::compose(const SliceEnd& isOver) {
  while (composedTo_ < known_) {
    if (isOver()) return false;
    const std::int64_t end = std::min(composedTo_ + kRowsPerLook, known_);
    if (sorted_.empty()) {
      filter_.addRows(composedTo_, end, composed_);
    } else {
      for (std::int64_t place = composedTo_; place < end; ++place) {
        const std::uint32_t row = orderedRow(place);
        if (filter_.has(row)) composed_.push_back(row);
      }
    }
    composedTo_ = end;
  }
  return true;
}

void RowOrder::showComposed() {
  if (addsToShown_) {
    if (!composed_.empty()) {
      const auto first = static_cast<int>(shown_.size());
      Q_EMIT aboutToInsert(first, first + static_cast<int>(composed_.size()) - 1);
      shown_.insert(shown_.end(), composed_.begin(), composed_.end());
      composed_.clear();
      Q_EMIT inserted();
    }
  } else {
    Q_EMIT aboutToChange(false);
    // The memory stays for the next key: new memory costs more than what is written to it.
    shown_.swap(composed_);
    composed_.clear();
    showsFiltered_ = true;
    addsToShown_ = true;
    Q_EMIT changed(false);
  }
  Q_EMIT countChanged();
}

void RowOrder::restartComposing() {
  composed_.clear();
  composedTo_ = 0;
  addsToShown_ = false;
}

bool RowOrder::workOnSort(const SliceEnd& isOver) {
  if (sort_ == nullptr) return true;
  if (!sort_->goOn(isOver)) return false;
  takeSorted();
  Q_EMIT orderChanged();
  return true;
}

/// The order that is wanted is there, or is found order.
void RowOrder::takeSorted() {
  const bool isHere = !showsFiltered_;
  if (isHere) Q_EMIT aboutToChange(true);
  sorted_ = sort_ != nullptr ? sort_->takeRows() : std::vector<std::uint32_t>();
  sort_.reset();
  sortedBy_ = wanted_;
  if (isHere) {
    if (filter_.isOn()) restartComposing();
    Q_EMIT changed(true);
    return;
  }
  // What is left by the filter is picked again in the new order.
  restartComposing();
  work();
}

}  // namespace quorvin
