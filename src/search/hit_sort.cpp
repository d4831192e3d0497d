// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/hit_sort.h"

#include "dates/general_date.h"
#include "search/hit_sort_ways.h"

#include <bit>
#include <cmath>
#include <limits>
#include <utility>

namespace quorvin {

namespace {

/// A number as a key: keys compare as the numbers do.
std::uint64_t keyOf(std::int64_t number) {
  return static_cast<std::uint64_t>(number) ^ (std::uint64_t{1} << 63);
}

class ByNumber : public HitSort::Way {
 public:
  ByNumber(const HitTable& table, const HitOrder& order)
      : table_(table), order_(order), walk_(table), sort_({}) {
    keyed_.reserve(static_cast<std::size_t>(walk_.end()));
  }

  bool goOn(const SliceEnd& isOver) override {
    if (!isRead_) {
      if (!walk_.goOn(isOver, kRowsPerLook, [this](const HitStretch& stretch) { read(stretch); }))
        return false;
      isRead_ = true;
      rowBits_ = static_cast<int>(std::bit_width(keyed_.size()));
      canJoin_ = least_ <= most_ && static_cast<int>(std::bit_width(most_ - least_)) + rowBits_ <= 64;
    }
    if (!isJoined_) {
      if (canJoin_ && !join(isOver)) return false;
      isJoined_ = true;
      sort_ = RowSort(std::move(keyed_));
    }
    if (!sort_.goOn(isOver)) return false;
    return write(isOver);
  }

 private:
  void read(const HitStretch& stretch) {
    for (std::size_t i = 0; i < stretch.hits.size(); ++i) {
      const std::int64_t row = stretch.firstRow + static_cast<std::int64_t>(i);
      const std::uint64_t up = keyOf(number(stretch, i, row));
      const std::uint64_t key = order_.isDescending ? ~up : up;
      least_ = std::min(least_, key);
      most_ = std::max(most_, key);
      keyed_.emplace_back(key, static_cast<std::uint32_t>(row));
    }
  }

  std::int64_t number(const HitStretch& stretch, std::size_t i, std::int64_t row) const {
    const FoundEntry& hit = stretch.hits[i];
    if (order_.column == HitColumn::Match) return hit.match;
    try {
      const bool isOwn = hasValues(stretch.segment->valueState(hit.entry));
      const EntryValues values = isOwn ? stretch.segment->values(hit.entry) : table_.values(row);
      return order_.column == HitColumn::Size ? values.size : std::llround(values.date * kSecondsPerDay);
    } catch (const DamagedSegment&) {
      return 0;
    }
  }

  /// Where number and row fit into one key, no two keys are alike.
  bool join(const SliceEnd& isOver) {
    for (; joined_ < keyed_.size(); ++joined_) {
      if (joined_ % kRowsPerLook == 0 && isOver()) return false;
      KeyedRow& row = keyed_[joined_];
      row.setKey((row.key() - least_) << rowBits_ | row.row);
    }
    return true;
  }

  bool write(const SliceEnd& isOver) {
    const std::vector<KeyedRow>& sorted = sort_.rows();
    rowsInOrder.reserve(sorted.size());
    while (rowsInOrder.size() < sorted.size()) {
      if (rowsInOrder.size() % kRowsPerLook == 0 && isOver()) return false;
      rowsInOrder.push_back(sorted[rowsInOrder.size()].row);
    }
    return true;
  }

  const HitTable& table_;
  HitOrder order_;
  RowWalk walk_;
  std::vector<KeyedRow> keyed_;
  std::uint64_t least_ = std::numeric_limits<std::uint64_t>::max();
  std::uint64_t most_ = 0;
  int rowBits_ = 0;
  bool isRead_ = false;
  bool canJoin_ = false;
  bool isJoined_ = false;
  std::size_t joined_ = 0;
  RowSort sort_;
};

bool isText(HitColumn column) {
  return column == HitColumn::Volume || column == HitColumn::Folder || column == HitColumn::Name;
}

}  // namespace

HitSort::HitSort(const HitTable& table, const HitOrder& order, const QLocale& locale,
                 std::int64_t mostInLocaleOrder) {
  if (!isText(*order.column)) {
    way_ = std::make_unique<ByNumber>(table, order);
  } else if (textOrder(table.rowCount(), mostInLocaleOrder) == TextOrder::Locale) {
    way_ = sortByLocale(table, order, locale);
  } else {
    way_ = sortByLowerCase(table, order);
  }
}

HitSort::~HitSort() = default;

bool HitSort::goOn(const SliceEnd& isOver) {
  return way_->goOn(isOver);
}

std::vector<std::uint32_t> HitSort::takeRows() {
  return std::move(way_->rowsInOrder);
}

}  // namespace quorvin
