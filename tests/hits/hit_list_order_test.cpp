// SPDX-License-Identifier: GPL-2.0-or-later

// Clicks on the titles of the hit list, and what happens to the selection when rows change their places.
#include "hits/hit_list_order.h"

#include "hits/scan_into.h"
#include "hits/shown_rows.h"
#include "search/hit_table_maker.h"
#include "support/eventually.h"
#include "support/qt_printing.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class HitListOrderTest : public testing::Test {
 protected:
  HitListOrderTest() {
    view_.resize(900, 400);
    view_.show();
    view_.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view_));
  }
  /// Hits of these sizes.
  void addHits(const std::vector<int>& sizes) {
    QByteArray listing = blockHead("DISK", "\\Music\\");
    for (const int size : sizes) {
      listing += entryLine("song " + QByteArray::number(size), QByteArray::number(size));
    }
    scanInto(table_, SourceKind::Online, listing, QStringLiteral("song"));
    rows_.hitsArrived();
  }
  void addManyHits(int count) {
    std::vector<int> sizes;
    for (int i = 0; i < count; ++i) sizes.push_back(i * 7919 % count);
    addHits(sizes);
  }
  void clickTitle(HitColumn column) {
    QHeaderView& header = *view_.header();
    const int section = static_cast<int>(column);
    const QPoint middle(header.sectionViewportPosition(section) + header.sectionSize(section) / 2,
                        header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, middle);
    EXPECT_EVENTUALLY(!rows_.order().isSorting());
  }
  void filter(const QString& text) {
    rows_.order().setFilter(text);
    EXPECT_EVENTUALLY(!rows_.order().isFiltering());
  }
  QStringList names() const {
    QStringList texts;
    for (int row = 0; row < rows_.rowCount(); ++row) texts.append(name(row));
    return texts;
  }
  QString name(int row) const { return rows_.index(row, 3).data().toString(); }
  void selectRow(int row, QItemSelectionModel::SelectionFlags how = QItemSelectionModel::ClearAndSelect) {
    view_.selectionModel()->setCurrentIndex(rows_.index(row, 0), how | QItemSelectionModel::Rows);
  }
  QStringList selectedNames() const {
    QStringList texts;
    for (const int row : selectedRows(*view_.selectionModel())) texts.append(table_.row(row).name);
    return texts;
  }

  HitTable table_;
  HitListModel rows_{table_, QLocale(QLocale::English, QLocale::UnitedStates)};
  HitListView view_;
  bool isModelSet_ = (view_.setModel(&rows_), true);
  HitListOrder order_{view_, rows_};
};

QStringList songs(std::initializer_list<int> sizes) {
  QStringList texts;
  for (const int size : sizes) texts.append(QStringLiteral("song %1").arg(size));
  return texts;
}

TEST_F(HitListOrderTest, AClickSortsUpTheNextDownAndTheThirdIsFoundOrder) {
  addHits({5, 30, 2, 100});
  clickTitle(HitColumn::Size);
  EXPECT_EQ(names(), songs({2, 5, 30, 100}));
  EXPECT_EQ(view_.header()->sortIndicatorSection(), 4);
  EXPECT_EQ(view_.header()->sortIndicatorOrder(), Qt::AscendingOrder);
  clickTitle(HitColumn::Size);
  EXPECT_EQ(names(), songs({100, 30, 5, 2}));
  EXPECT_EQ(view_.header()->sortIndicatorOrder(), Qt::DescendingOrder);
  clickTitle(HitColumn::Size);
  EXPECT_EQ(names(), songs({5, 30, 2, 100}));
  EXPECT_EQ(view_.header()->sortIndicatorSection(), -1);
}

TEST_F(HitListOrderTest, AClickOnAnotherTitleSortsUpByThat) {
  addHits({5, 30, 2, 100});
  clickTitle(HitColumn::Size);
  clickTitle(HitColumn::Size);
  clickTitle(HitColumn::Name);
  EXPECT_EQ(names(), songs({2, 5, 30, 100}));
  EXPECT_EQ(view_.header()->sortIndicatorSection(), 3);
}

TEST_F(HitListOrderTest, SelectionAndCurrentRowStayWithTheirHits) {
  addHits({5, 30, 2, 100, 7});
  selectRow(1);
  selectRow(4, QItemSelectionModel::Select);
  clickTitle(HitColumn::Size);
  EXPECT_EQ(selectedNames(), songs({7, 30}));
  EXPECT_EQ(view_.currentIndex().row(), 2);
  EXPECT_EQ(table_.row(view_.currentSelectedRow()).name, QStringLiteral("song 7"));
  clickTitle(HitColumn::Size);
  clickTitle(HitColumn::Size);
  EXPECT_EQ(selectedNames(), songs({30, 7}));
}

TEST_F(HitListOrderTest, AllRowsStaySelected) {
  addManyHits(5000);
  view_.selectAll();
  clickTitle(HitColumn::Size);
  EXPECT_EQ(selectedRowCount(*view_.selectionModel()), 5000);
  EXPECT_EQ(view_.selectionModel()->selection().size(), 1);
}

TEST_F(HitListOrderTest, ALongSelectionStaysWithItsHits) {
  addManyHits(30'000);
  view_.setCurrentIndex(rows_.index(100, 0));
  view_.selectionModel()->select(
      QItemSelection(rows_.index(100, 0), rows_.index(20'099, kHitColumnCount - 1)),
      QItemSelectionModel::ClearAndSelect);
  const std::vector<int> before = selectedRows(*view_.selectionModel());
  clickTitle(HitColumn::Size);
  std::vector<int> after = selectedRows(*view_.selectionModel());
  EXPECT_NE(after, before);
  std::ranges::sort(after);
  EXPECT_EQ(after, before);
}

TEST_F(HitListOrderTest, ASelectionThatWouldBeScatteredTooWidelyIsLetGoAndThatIsTold) {
  // Sorted by size, selected and other hits follow each other in turn.
  constexpr int kHalf = HitListOrder::kMostStretches + 1;
  std::vector<int> sizes;
  for (int i = 0; i < kHalf; ++i) sizes.push_back(2 * i);
  for (int i = 0; i < kHalf; ++i) sizes.push_back(2 * i + 1);
  addHits(sizes);
  view_.selectionModel()->select(
      QItemSelection(rows_.index(0, 0), rows_.index(kHalf - 1, kHitColumnCount - 1)),
      QItemSelectionModel::ClearAndSelect);
  QSignalSpy letGo(&order_, &HitListOrder::selectionLetGo);
  clickTitle(HitColumn::Size);
  ASSERT_EQ(letGo.size(), 1);
  EXPECT_EQ(letGo[0][0].toLongLong(), kHalf);
  EXPECT_EQ(selectedRowCount(*view_.selectionModel()), 0);
  clickTitle(HitColumn::Size);
  EXPECT_EQ(letGo.size(), 1) << "there is nothing more to let go";
}

TEST_F(HitListOrderTest, TheCurrentRowStaysOnTheScreen) {
  addManyHits(5000);
  selectRow(3);
  const QString current = name(3);
  clickTitle(HitColumn::Name);
  EXPECT_EQ(name(view_.currentIndex().row()), current);
  EXPECT_FALSE(view_.rowRect(view_.currentIndex().row()).isEmpty());
}

TEST_F(HitListOrderTest, OneThatWasNotOnTheScreenLeavesTheListAtItsTop) {
  addManyHits(5000);
  selectRow(4000);
  view_.verticalScrollBar()->setValue(0);
  clickTitle(HitColumn::Name);
  EXPECT_EQ(view_.firstVisibleRow(), 0);
  EXPECT_TRUE(view_.currentIndex().isValid());
}

TEST_F(HitListOrderTest, AFilterKeepsTheSelectionOfWhatIsLeft) {
  addHits({5, 30, 2, 100, 35});
  selectRow(1);
  selectRow(3, QItemSelectionModel::Select);
  filter(QStringLiteral("3"));
  EXPECT_EQ(names(), songs({30, 35}));
  EXPECT_EQ(selectedNames(), songs({30}));
  EXPECT_EQ(view_.currentIndex(), QModelIndex());
  filter({});
  EXPECT_EQ(names(), songs({5, 30, 2, 100, 35}));
  EXPECT_EQ(selectedNames(), songs({30}));
}

TEST_F(HitListOrderTest, ANewRunSelectsNothing) {
  addHits({5, 30, 2});
  selectRow(1);
  clickTitle(HitColumn::Size);
  rows_.clear();
  EXPECT_EQ(view_.header()->sortIndicatorSection(), -1);
  addHits({9, 8});
  EXPECT_EQ(names(), songs({9, 8}));
  EXPECT_EQ(selectedNames(), QStringList());
}

TEST(OrderAfterClick, IsUpThenDownThenFoundOrder) {
  EXPECT_EQ(orderAfterClick({}, HitColumn::Size), (HitOrder{HitColumn::Size, false}));
  EXPECT_EQ(orderAfterClick({HitColumn::Size, false}, HitColumn::Size), (HitOrder{HitColumn::Size, true}));
  EXPECT_EQ(orderAfterClick({HitColumn::Size, true}, HitColumn::Size), HitOrder());
  EXPECT_EQ(orderAfterClick({HitColumn::Size, true}, HitColumn::Date), (HitOrder{HitColumn::Date, false}));
}

}  // namespace

}  // namespace quorvin::test
