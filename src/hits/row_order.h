// SPDX-License-Identifier: GPL-2.0-or-later

// Which hits are shown, and in what order.
#pragma once

#include "search/hit_filter.h"
#include "search/hit_sort.h"
#include "search/hit_table.h"

#include <QBasicTimer>
#include <QLocale>
#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// What a sorted list says about its order where that is not plain; empty otherwise. `hits` is the number of
/// hits that were sorted.
QString orderNote(const HitOrder& order, std::int64_t hits, const QLocale& locale,
                  std::int64_t mostInLocaleOrder = kMostHitsInLocaleOrder);

/// The rows of a hit table that are shown, by their numbers in the table: in found order or in that of a
/// column, all of them or those with the words of a filter. As long as all are shown in found order, nothing
/// is kept. Otherwise it takes 4 bytes for each row that is sorted, and 8 for each that is shown of a filter.
///
/// Sorting and filtering go on while events run, some milliseconds at a time. What was shown before stays
/// until they have ended. Only the user-interface thread uses it.
class RowOrder : public QObject {
  Q_OBJECT

 public:
  /// `table` must outlive the object.
  RowOrder(const HitTable& table, const QLocale& locale, QObject* parent = nullptr,
           std::int64_t mostInLocaleOrder = kMostHitsInLocaleOrder);
  ~RowOrder() override;
  RowOrder(const RowOrder&) = delete;
  RowOrder& operator=(const RowOrder&) = delete;

  /// How many rows are shown.
  int count() const;
  /// The row of the table that is shown as row `shown`, 0 <= shown < count().
  std::uint32_t tableRow(int shown) const;
  /// Rows one after another on the screen.
  struct Range {
    int first;
    int last;
  };
  /// Where `tableRow` is shown; -1 where it is not.
  int shownRow(std::int64_t tableRow) const;
  /// Where those rows of the table are shown whose bits, lowest first, are set in `rows`.
  std::vector<Range> shownRanges(const std::vector<std::uint64_t>& rows) const;
  /// How many rows of the table are known here, shown or not.
  std::int64_t knownRows() const { return known_; }

  /// Sorts the rows: at once where there is nothing to do, later where a run still adds rows.
  void sortBy(const HitOrder& order);
  /// The order that was asked for last.
  const HitOrder& order() const { return wanted_; }
  /// Whether the order that was asked for is still to come.
  bool isSorting() const { return wanted_ != sortedBy_; }
  /// Gives up a sort that is under way; the order is again that of the rows shown.
  void stopSorting();
  /// orderNote() of the order that is shown.
  QString note() const;

  /// Shows only rows with all words of `text`; without any words, all rows.
  void setFilter(const QString& text);
  /// Whether some rows are left out, or will be: the filter has words.
  bool isFiltered() const { return filter_.isOn(); }
  /// Whether the rows of the present filter are still to come.
  bool isFiltering() const;

  /// The table has `rows` rows now, more than before.
  void rowsArrived(std::int64_t rows);
  /// Rows are being added, and sorting would only have to start again: it waits until that ends.
  void setGrowing(bool isGrowing);
  /// The table is being emptied: the order is found order again, the filter stays.
  void clear();

 Q_SIGNALS:
  /// Rows `first` to `last` are about to be shown below the others; they are.
  void aboutToInsert(int first, int last);
  void inserted();
  /// All that is shown is about to change; it has. `isSameRows`: only the order is another one.
  void aboutToChange(bool isSameRows);
  void changed(bool isSameRows);
  /// order(), isSorting() or note() may have changed.
  void orderChanged();
  /// count(), knownRows() or isFiltering() may have changed.
  void countChanged();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void work();
  bool workOnFilter(const SliceEnd& isOver);
  bool compose(const SliceEnd& isOver);
  bool workOnSort(const SliceEnd& isOver);
  bool hasWork() const;
  void startSort();
  void takeSorted();
  void showComposed();
  void restartComposing();
  std::uint32_t orderedRow(std::int64_t place) const;

  const HitTable& table_;
  QLocale locale_;
  std::int64_t mostInLocaleOrder_;
  std::int64_t known_ = 0;
  bool isGrowing_ = false;

  HitOrder wanted_;
  HitOrder sortedBy_;
  std::unique_ptr<HitSort> sort_;
  /// The first rows of the table in the order `sortedBy_`; those behind them have come since. Empty in found
  /// order.
  std::vector<std::uint32_t> sorted_;

  HitFilter filter_;
  /// Whether `shown_` is what is shown.
  bool showsFiltered_ = false;
  std::vector<std::uint32_t> shown_;
  /// What is being put together of the rows in their order up to `composedTo_`. While it only adds to what is
  /// shown, that are the added rows alone.
  std::vector<std::uint32_t> composed_;
  std::int64_t composedTo_ = 0;
  bool addsToShown_ = false;

  QBasicTimer timer_;
};

}  // namespace quorvin
