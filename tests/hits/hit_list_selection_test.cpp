// SPDX-License-Identifier: GPL-2.0-or-later

// Selecting several rows of the hit list, also very many, and the requests to open and for the menu.
#include "hits/hit_list.h"
#include "hits/hit_list_model.h"
#include "hits/many_rows_model.h"
#include "hits/shown_rows.h"
#include "support/qt_printing.h"

#include <QContextMenuEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

constexpr int kTwoThousandMillion = 2'000'000'000;

class HitListSelection : public testing::Test {
 protected:
  /// A view of 20 whole rows.
  void showRows(int rows) {
    model_ = std::make_unique<ManyRowsModel>(rows);
    view_.setModel(model_.get());
    view_.resize(700, 20 * view_.rowHeight() + view_.header()->sizeHint().height());
    view_.show();
    view_.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view_));
  }
  QPoint middleOf(int row) const { return view_.visualRect(model_->index(row, 1)).center(); }
  void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(view_.viewport(), button, modifiers, middleOf(row));
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&view_, key, modifiers);
  }
  std::vector<int> selected() const { return selectedRows(*view_.selectionModel()); }
  std::int64_t count() const { return selectedRowCount(*view_.selectionModel()); }
  bool isSelected(int row) const { return view_.selectionModel()->isRowSelected(row, {}); }

  std::unique_ptr<ManyRowsModel> model_;
  HitListView view_;
};

TEST_F(HitListSelection, AClickSelectsOneRowAndAnotherExchangesIt) {
  showRows(100);
  click(3);
  EXPECT_EQ(selected(), std::vector{3});
  click(7);
  EXPECT_EQ(selected(), std::vector{7});
  EXPECT_EQ(view_.currentSelectedRow(), 7);
}

TEST_F(HitListSelection, ShiftSelectsFromTheFirstClickToTheLast) {
  showRows(100);
  click(7);
  click(4, Qt::ShiftModifier);
  EXPECT_EQ(selected(), (std::vector{4, 5, 6, 7}));
  click(8, Qt::ShiftModifier);
  EXPECT_EQ(selected(), (std::vector{7, 8}));
}

TEST_F(HitListSelection, ControlAddsAndTakesAway) {
  showRows(100);
  click(7);
  click(3, Qt::ControlModifier);
  EXPECT_EQ(selected(), (std::vector{3, 7}));
  click(7, Qt::ControlModifier);
  EXPECT_EQ(selected(), std::vector{3});
  EXPECT_EQ(view_.currentSelectedRow(), -1);
}

TEST_F(HitListSelection, DraggingSelectsTheRowsOnTheWay) {
  showRows(100);
  QTest::mousePress(view_.viewport(), Qt::LeftButton, {}, middleOf(2));
  QTest::mouseMove(view_.viewport(), middleOf(4));
  QTest::mouseMove(view_.viewport(), middleOf(6));
  QTest::mouseRelease(view_.viewport(), Qt::LeftButton, {}, middleOf(6));
  EXPECT_EQ(selected(), (std::vector{2, 3, 4, 5, 6}));
}

TEST_F(HitListSelection, KeysWithShiftGrowAndShrinkIt) {
  showRows(100);
  click(5);
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(selected(), (std::vector{5, 6, 7}));
  press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(selected(), (std::vector{5, 6}));
  press(Qt::Key_Down);
  EXPECT_EQ(selected(), std::vector{7});
}

TEST_F(HitListSelection, ReachesFromTheFirstRowToTheLastOfVeryMany) {
  showRows(kTwoThousandMillion);
  press(Qt::Key_Home);
  press(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(count(), kTwoThousandMillion);
  press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(count(), kTwoThousandMillion - 1);
  EXPECT_TRUE(isSelected(0));
  EXPECT_FALSE(isSelected(kTwoThousandMillion - 1));
}

TEST_F(HitListSelection, ControlASelectsAllRowsOfVeryMany) {
  showRows(kTwoThousandMillion);
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(count(), kTwoThousandMillion);
}

TEST_F(HitListSelection, BeginsAtTheCurrentRowWhereverItCameFrom) {
  showRows(100);
  click(50 - 40);
  view_.setCurrentIndex(model_->index(15, 0));
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(selected(), (std::vector{15, 16}));
}

TEST_F(HitListSelection, ARightClickOnASelectedRowKeepsTheOthers) {
  showRows(100);
  click(3);
  click(6, Qt::ShiftModifier);
  click(4, Qt::NoModifier, Qt::RightButton);
  EXPECT_EQ(count(), 4);
  EXPECT_EQ(view_.currentSelectedRow(), 4);
  click(9, Qt::NoModifier, Qt::RightButton);
  EXPECT_EQ(selected(), std::vector{9});
}

TEST_F(HitListSelection, IsGoneWithTheRows) {
  showRows(100);
  click(3);
  showRows(50);
  EXPECT_EQ(count(), 0);
  EXPECT_EQ(view_.currentSelectedRow(), -1);
}

TEST_F(HitListSelection, ADoubleClickOfTheLeftButtonAsksToOpen) {
  showRows(10);
  QSignalSpy opened(&view_, &HitListView::openRequested);
  click(3);
  QTest::mouseDClick(view_.viewport(), Qt::LeftButton, {}, middleOf(3));
  EXPECT_EQ(opened.count(), 1);
  QTest::mouseDClick(view_.viewport(), Qt::RightButton, {}, middleOf(3));
  const QPoint belowTheRows = middleOf(3) + QPoint(0, 12 * view_.rowHeight());
  QTest::mouseDClick(view_.viewport(), Qt::LeftButton, {}, belowTheRows);
  EXPECT_EQ(opened.count(), 1);
}

TEST_F(HitListSelection, EnterAsksToOpen) {
  showRows(10);
  QSignalSpy opened(&view_, &HitListView::openRequested);
  click(3);
  press(Qt::Key_Return);
  press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(opened.count(), 2);
  press(Qt::Key_Return, Qt::AltModifier);
  EXPECT_EQ(opened.count(), 2);
}

TEST_F(HitListSelection, TheMenuIsAskedForWhereTheMouseIs) {
  showRows(10);
  QSignalSpy asked(&view_, &HitListView::menuRequested);
  const QPoint place = view_.viewport()->mapToGlobal(middleOf(3));
  QContextMenuEvent event(QContextMenuEvent::Mouse, middleOf(3), place);
  QCoreApplication::sendEvent(view_.viewport(), &event);
  ASSERT_EQ(asked.count(), 1);
  EXPECT_EQ(asked[0][0].toPoint(), place);
}

TEST_F(HitListSelection, TheKeysAskForTheMenuBelowTheCurrentRowEvenWhenItWasScrolledAway) {
  showRows(1000);
  click(3);
  view_.verticalScrollBar()->setValue(500);
  QSignalSpy asked(&view_, &HitListView::menuRequested);
  press(Qt::Key_F10, Qt::ShiftModifier);
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(&view_, &menuKey);
  ASSERT_EQ(asked.count(), 2);
  const QPoint belowRow = view_.rowRect(3).bottomLeft() + QPoint(view_.rowHeight(), 1);
  EXPECT_EQ(asked[0][0].toPoint(), view_.viewport()->mapToGlobal(belowRow));
  EXPECT_EQ(asked[1][0].toPoint(), asked[0][0].toPoint());
}

TEST_F(HitListSelection, KeysMeanTheCurrentRowOfAListThatHasJustGotTheFocus) {
  showRows(10);
  ASSERT_EQ(view_.currentIndex().row(), 0);
  ASSERT_EQ(count(), 0);
  press(Qt::Key_Return);
  EXPECT_EQ(view_.currentSelectedRow(), 0);
}

TEST_F(HitListSelection, WithoutRowsTheKeysAskForNoMenu) {
  showRows(0);
  QSignalSpy asked(&view_, &HitListView::menuRequested);
  press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(asked.count(), 0);
}

}  // namespace

}  // namespace quorvin::test
