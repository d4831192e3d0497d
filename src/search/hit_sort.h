// SPDX-License-Identifier: GPL-2.0-or-later

// Sorting the rows of a hit table by one of their columns.
#pragma once

#include "search/hit_table.h"
#include "search/row_sort.h"

#include <QLocale>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// An order of hits: found order, or that of a column.
struct HitOrder {
  /// Nothing for the order in which the hits were found.
  std::optional<HitColumn> column;
  bool isDescending = false;

  bool operator==(const HitOrder&) const = default;
};

/// Up to so many hits are sorted as the locale sorts texts; with more that would take many seconds.
inline constexpr std::int64_t kMostHitsInLocaleOrder = 100'000;

/// How HitSort compares the texts of so many hits; the other columns are sorted by value.
enum class TextOrder { Locale, LowerCase };
constexpr TextOrder textOrder(std::int64_t hits, std::int64_t mostInLocaleOrder = kMostHitsInLocaleOrder) {
  return hits <= mostInLocaleOrder ? TextOrder::Locale : TextOrder::LowerCase;
}

/// Finds the order of the rows that a table has when the sort is made. Match, size and date are compared by
/// value; volume, folder and name as the locale does, with digits in them as numbers, or by their text in
/// lower case. What is alike stays in found order, also when descending.
///
/// It takes up to 16 bytes for each row, and goes on in slices. The rows must stay what they are meanwhile.
class HitSort {
 public:
  /// `table` must outlive the sort; `order` has a column.
  HitSort(const HitTable& table, const HitOrder& order, const QLocale& locale,
          std::int64_t mostInLocaleOrder = kMostHitsInLocaleOrder);
  ~HitSort();
  HitSort(const HitSort&) = delete;
  HitSort& operator=(const HitSort&) = delete;

  /// Goes on until the slice or the work is over; true when all is sorted. It looks whether the slice is over
  /// several times a millisecond.
  bool goOn(const SliceEnd& isOver);

  /// The rows of the table in their order. To be called once, when goOn() has been true.
  std::vector<std::uint32_t> takeRows();

  /// One way of sorting.
  class Way;

 private:
  std::unique_ptr<Way> way_;
};

}  // namespace quorvin
