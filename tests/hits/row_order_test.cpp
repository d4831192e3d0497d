// SPDX-License-Identifier: GPL-2.0-or-later

// Which rows of a table are shown and in what order, while events run.
#include "hits/row_order.h"

#include "search/hit_table_maker.h"
#include "support/eventually.h"
#include "support/qt_printing.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace quorvin::test {

namespace {

const QLocale kAmerican(QLocale::English, QLocale::UnitedStates);
constexpr HitOrder kBySize{HitColumn::Size, false};
constexpr HitOrder kByNameDown{HitColumn::Name, true};

class RowOrderTest : public testing::Test {
 protected:
  void addHits(int count, unsigned seed = 1) {
    fill(scan_, mixedListing(count, seed), 100'000);
    order_.rowsArrived(scan_.table.rowCount());
  }
  std::vector<std::uint32_t> shown() const {
    std::vector<std::uint32_t> rows;
    for (int row = 0; row < order_.count(); ++row) rows.push_back(order_.tableRow(row));
    return rows;
  }
  std::vector<std::uint32_t> foundOrder() const {
    std::vector<std::uint32_t> rows(static_cast<std::size_t>(scan_.table.rowCount()));
    std::iota(rows.begin(), rows.end(), 0U);
    return rows;
  }
  std::vector<std::uint32_t> bySize(bool descending = false) const {
    std::vector<std::uint32_t> rows = foundOrder();
    std::ranges::stable_sort(rows, [&](std::uint32_t one, std::uint32_t other) {
      const std::int64_t a = scan_.table.row(one).size;
      const std::int64_t b = scan_.table.row(other).size;
      return descending ? b < a : a < b;
    });
    return rows;
  }
  std::vector<std::uint32_t> only(std::vector<std::uint32_t> rows, const QString& word) const {
    std::erase_if(rows, [&](std::uint32_t row) {
      const HitRow hit = scan_.table.row(row);
      return !hit.name.contains(word, Qt::CaseInsensitive) && !hit.folder.contains(word, Qt::CaseInsensitive);
    });
    return rows;
  }
  void waitUntilSorted() { EXPECT_EVENTUALLY(!order_.isSorting()); }
  void waitUntilFiltered() { EXPECT_EVENTUALLY(!order_.isFiltering()); }

  TestScan scan_{QStringLiteral("live  "), 1};
  RowOrder order_{scan_.table, kAmerican};
};

TEST_F(RowOrderTest, IsFoundOrderAtFirst) {
  addHits(100);
  EXPECT_EQ(shown(), foundOrder());
  EXPECT_EQ(order_.order(), HitOrder());
  EXPECT_EQ(order_.shownRow(99), 99);
  EXPECT_EQ(order_.shownRow(100), -1);
}

TEST_F(RowOrderTest, SortsUpAndDownAndBack) {
  addHits(20'000);
  QSignalSpy changed(&order_, &RowOrder::changed);
  order_.sortBy(kBySize);
  EXPECT_EQ(order_.order(), kBySize);
  waitUntilSorted();
  EXPECT_EQ(shown(), bySize());
  order_.sortBy({HitColumn::Size, true});
  waitUntilSorted();
  EXPECT_EQ(shown(), bySize(true));
  EXPECT_EQ(order_.shownRow(bySize(true)[17]), 17);
  order_.sortBy({});
  EXPECT_FALSE(order_.isSorting());
  EXPECT_EQ(shown(), foundOrder());
  EXPECT_EQ(changed.size(), 3);
}

TEST_F(RowOrderTest, ShowsWhatWasShownUntilTheSortHasEnded) {
  addHits(60'000);
  // By the locale, that takes many slices.
  order_.sortBy(kByNameDown);
  ASSERT_TRUE(order_.isSorting());
  QCoreApplication::processEvents();
  ASSERT_TRUE(order_.isSorting());
  EXPECT_EQ(shown(), foundOrder());
  waitUntilSorted();
  EXPECT_NE(shown(), foundOrder());
}

TEST_F(RowOrderTest, ASortThatIsStoppedLeavesTheOrderBefore) {
  addHits(60'000);
  order_.sortBy(kBySize);
  waitUntilSorted();
  order_.sortBy(kByNameDown);
  ASSERT_TRUE(order_.isSorting());
  order_.stopSorting();
  EXPECT_FALSE(order_.isSorting());
  EXPECT_EQ(order_.order(), kBySize);
  EXPECT_EQ(shown(), bySize());
}

TEST_F(RowOrderTest, ANewRunEndsTheSortAndIsInFoundOrder) {
  addHits(60'000);
  order_.sortBy(kByNameDown);
  ASSERT_TRUE(order_.isSorting());
  scan_.table.clear();
  order_.clear();
  EXPECT_EQ(order_.count(), 0);
  EXPECT_EQ(order_.order(), HitOrder());
  addHits(10, 2);
  QCoreApplication::processEvents();
  EXPECT_EQ(shown(), foundOrder());
}

TEST_F(RowOrderTest, WhileRowsAreBeingAddedItSortsWhenTheyAreThere) {
  order_.setGrowing(true);
  addHits(100);
  order_.sortBy(kBySize);
  EXPECT_TRUE(order_.isSorting());
  addHits(100, 2);
  QCoreApplication::processEvents();
  EXPECT_EQ(shown(), foundOrder());
  order_.setGrowing(false);
  waitUntilSorted();
  EXPECT_EQ(shown(), bySize());
}

TEST_F(RowOrderTest, RowsThatComeLaterAreSortedIn) {
  addHits(1000);
  order_.sortBy(kBySize);
  waitUntilSorted();
  addHits(1000, 2);
  waitUntilSorted();
  EXPECT_EQ(shown(), bySize());
  order_.sortBy(kByNameDown);
  addHits(60'000, 3);
  order_.stopSorting();
  EXPECT_EQ(order_.order(), HitOrder());
  EXPECT_EQ(shown(), foundOrder());
}

TEST_F(RowOrderTest, EndsInTheMiddleOfASort) {
  addHits(60'000);
  RowOrder other(scan_.table, kAmerican);
  other.rowsArrived(scan_.table.rowCount());
  other.sortBy(kByNameDown);
  EXPECT_TRUE(other.isSorting());
}

TEST_F(RowOrderTest, FiltersWithoutRegardToCapitals) {
  addHits(20'000);
  order_.setFilter(QStringLiteral("TRACK"));
  waitUntilFiltered();
  EXPECT_EQ(shown(), only(foundOrder(), QStringLiteral("track")));
  EXPECT_LT(order_.count(), 20'000);
  EXPECT_EQ(order_.knownRows(), 20'000);
  const std::uint32_t last = shown().back();
  EXPECT_EQ(order_.shownRow(last), order_.count() - 1);
  order_.setFilter({});
  EXPECT_EQ(shown(), foundOrder());
}

TEST_F(RowOrderTest, FiltersWhatIsSortedAndSortsWhatIsFiltered) {
  addHits(20'000);
  order_.sortBy(kBySize);
  waitUntilSorted();
  order_.setFilter(QStringLiteral("track"));
  waitUntilFiltered();
  EXPECT_EQ(shown(), only(bySize(), QStringLiteral("track")));
  order_.sortBy({HitColumn::Size, true});
  waitUntilSorted();
  waitUntilFiltered();
  EXPECT_EQ(shown(), only(bySize(true), QStringLiteral("track")));
  order_.sortBy({});
  waitUntilFiltered();
  EXPECT_EQ(shown(), only(foundOrder(), QStringLiteral("track")));
  order_.sortBy(kBySize);
  waitUntilSorted();
  order_.setFilter(QStringLiteral(" "));
  EXPECT_EQ(shown(), bySize());
}

TEST_F(RowOrderTest, FilteredRowsThatArriveAreAddedBelowTheOthers) {
  addHits(1000);
  order_.setFilter(QStringLiteral("track"));
  waitUntilFiltered();
  QSignalSpy changed(&order_, &RowOrder::changed);
  QSignalSpy aboutToInsert(&order_, &RowOrder::aboutToInsert);
  const int before = order_.count();
  addHits(1000, 2);
  waitUntilFiltered();
  EXPECT_EQ(shown(), only(foundOrder(), QStringLiteral("track")));
  EXPECT_EQ(changed.size(), 0);
  ASSERT_EQ(aboutToInsert.size(), 1);
  EXPECT_EQ(aboutToInsert[0][0].toInt(), before);
  EXPECT_EQ(aboutToInsert[0][1].toInt(), order_.count() - 1);
}

TEST_F(RowOrderTest, TheFilterStaysForTheNextRun) {
  addHits(1000);
  order_.setFilter(QStringLiteral("track"));
  waitUntilFiltered();
  scan_.table.clear();
  order_.clear();
  EXPECT_EQ(order_.count(), 0);
  addHits(500, 2);
  waitUntilFiltered();
  EXPECT_EQ(shown(), only(foundOrder(), QStringLiteral("track")));
}

TEST_F(RowOrderTest, EachKeyCountsHoweverSoonTheNextOneComes) {
  addHits(60'000);
  for (const char* text : {"t", "tr", "tra", "trac", "img", "i", "tr", "track"}) {
    order_.setFilter(QString::fromLatin1(text));
  }
  waitUntilFiltered();
  EXPECT_EQ(shown(), only(foundOrder(), QStringLiteral("track")));
}

TEST_F(RowOrderTest, FindsWhereRowsAreShown) {
  addHits(200);
  order_.sortBy(kBySize);
  waitUntilSorted();
  std::vector<std::uint64_t> rows(4);
  for (const std::uint32_t row : {bySize()[3], bySize()[4], bySize()[150]}) {
    rows[row / 64] |= std::uint64_t{1} << (row % 64);
  }
  const std::vector<RowOrder::Range> ranges = order_.shownRanges(rows);
  ASSERT_EQ(ranges.size(), 2U);
  EXPECT_EQ(ranges[0].first, 3);
  EXPECT_EQ(ranges[0].last, 4);
  EXPECT_EQ(ranges[1].first, 150);
}

TEST(OrderNote, SaysThatVeryManyTextsAreSortedInLowerCase) {
  const HitOrder byName{HitColumn::Name, false};
  EXPECT_EQ(orderNote(byName, 100'000, kAmerican), QString());
  EXPECT_EQ(orderNote(byName, 100'001, kAmerican),
            QStringLiteral("More than 100,000 hits: sorted by their text in lower case"));
  EXPECT_EQ(orderNote(kBySize, 100'001, kAmerican), QString());
  EXPECT_EQ(orderNote({}, 100'001, kAmerican), QString());
}

}  // namespace

}  // namespace quorvin::test
