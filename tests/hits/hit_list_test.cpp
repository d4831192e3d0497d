// SPDX-License-Identifier: GPL-2.0-or-later

// The hit list's view: scrolling, selecting and painting without a cost for rows that are not seen.
#include "hits/hit_list.h"

#include "hits/hit_list_delegate.h"
#include "hits/many_rows_model.h"
#include "support/qt_printing.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include <limits>

namespace quorvin::test {

namespace {

constexpr int kTenMillion = 10'000'000;
constexpr int kMostRows = std::numeric_limits<int>::max();

class HitListTest : public testing::Test {
 protected:
  /// A view of 20 whole rows.
  void showRows(int rows) {
    model_ = std::make_unique<ManyRowsModel>(rows);
    view_.setModel(model_.get());
    view_.resize(700, 20 * view_.rowHeight() + view_.header()->sizeHint().height());
    view_.show();
    view_.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view_));
    ASSERT_EQ(view_.wholeVisibleRows(), 20);
  }
  void paint() {
    model_->dataCalls = 0;
    model_->rowsAskedFor.clear();
    view_.viewport()->repaint();
  }
  int current() const { return view_.currentIndex().row(); }
  void press(Qt::Key key) { QTest::keyClick(&view_, key); }
  QPoint middleOf(int row, int column) const { return view_.visualRect(model_->index(row, column)).center(); }
  int selectedRow() const {
    const QModelIndexList rows = view_.selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.first().row() : -1;
  }

  std::unique_ptr<ManyRowsModel> model_;
  HitListView view_;
};

TEST_F(HitListTest, AsksOnlyForRowsOnTheScreen) {
  showRows(kTenMillion);
  view_.verticalScrollBar()->setValue(5'000'000);
  paint();
  ASSERT_FALSE(model_->rowsAskedFor.empty());
  EXPECT_EQ(*model_->rowsAskedFor.begin(), 5'000'000);
  EXPECT_EQ(*model_->rowsAskedFor.rbegin(), 5'000'019);
}

TEST_F(HitListTest, PaintingCostsTheSameForTenRowsMoreThanTheScreenAndForTenMillion) {
  showRows(30);
  paint();
  const int forFew = model_->dataCalls;
  showRows(kTenMillion);
  paint();
  EXPECT_EQ(model_->dataCalls, forFew);
  EXPECT_LE(forFew, 20 * kHitColumnCount * 12);
}

TEST_F(HitListTest, RowsThatArriveBelowTheScreenAskForNothing) {
  showRows(kTenMillion);
  paint();
  QTest::qWait(0);
  model_->dataCalls = 0;
  model_->append(kTenMillion);
  QTest::qWait(0);
  EXPECT_EQ(model_->dataCalls, 0);
  EXPECT_EQ(view_.verticalScrollBar()->maximum(), 2 * kTenMillion - 20);
}

TEST_F(HitListTest, RowsThatArriveOnTheScreenArePainted) {
  showRows(3);
  QTest::qWait(0);
  model_->rowsAskedFor.clear();
  model_->append(2);
  QTest::qWait(50);
  EXPECT_TRUE(model_->rowsAskedFor.contains(4));
}

TEST_F(HitListTest, RowsOfTheNextSearchArePaintedOnce) {
  showRows(30);
  QTest::qWait(0);
  paint();
  const int forOnePainting = model_->dataCalls;
  model_->dataCalls = 0;
  model_->exchange(0);
  model_->append(30);
  // Its frame, too, as when a scroll bar comes or goes.
  view_.update();
  QTest::qWait(0);
  QTest::qWait(0);
  EXPECT_EQ(model_->dataCalls, forOnePainting);
}

TEST_F(HitListTest, TheLastOfTheMostRowsCanBeReachedAndSeen) {
  showRows(kMostRows);
  press(Qt::Key_Home);
  press(Qt::Key_End);
  EXPECT_EQ(current(), kMostRows - 1);
  EXPECT_EQ(view_.firstVisibleRow(), kMostRows - 20);
  EXPECT_EQ(view_.visualRect(view_.currentIndex()).top(), 19 * view_.rowHeight());
  EXPECT_EQ(view_.indexAt(middleOf(kMostRows - 1, 0)).row(), kMostRows - 1);
}

TEST_F(HitListTest, KeysMoveTheCurrentRow) {
  showRows(1000);
  press(Qt::Key_Home);
  EXPECT_EQ(current(), 0);
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(current(), 2);
  press(Qt::Key_Up);
  EXPECT_EQ(current(), 1);
  press(Qt::Key_PageDown);
  EXPECT_EQ(current(), 20);
  EXPECT_EQ(view_.firstVisibleRow(), 1);
  press(Qt::Key_PageUp);
  EXPECT_EQ(current(), 1);
  press(Qt::Key_End);
  EXPECT_EQ(current(), 999);
  press(Qt::Key_Down);
  EXPECT_EQ(current(), 999);
  press(Qt::Key_Home);
  press(Qt::Key_Up);
  EXPECT_EQ(current(), 0);
  EXPECT_EQ(selectedRow(), 0);
}

TEST_F(HitListTest, AClickSelectsTheWholeRowAndOnlyOne) {
  showRows(1000);
  QTest::mouseClick(view_.viewport(), Qt::LeftButton, {}, middleOf(3, 2));
  EXPECT_EQ(selectedRow(), 3);
  QTest::mouseClick(view_.viewport(), Qt::LeftButton, {}, middleOf(7, 0));
  EXPECT_EQ(selectedRow(), 7);
  EXPECT_EQ(current(), 7);
}

TEST_F(HitListTest, AClickBelowTheRowsSelectsNothing) {
  showRows(2);
  QTest::mouseClick(view_.viewport(), Qt::LeftButton, {}, QPoint(10, 10 * view_.rowHeight()));
  EXPECT_EQ(selectedRow(), -1);
}

TEST_F(HitListTest, TheWheelScrollsByRows) {
  showRows(1000);
  const QPointF at(20, 20);
  QWheelEvent wheel(at, view_.viewport()->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(view_.viewport(), &wheel);
  EXPECT_EQ(view_.firstVisibleRow(), QApplication::wheelScrollLines());
}

TEST_F(HitListTest, LettersLookForNothing) {
  showRows(kTenMillion);
  press(Qt::Key_Home);
  QTest::qWait(0);
  model_->dataCalls = 0;
  press(Qt::Key_R);
  EXPECT_EQ(model_->dataCalls, 0);
  EXPECT_EQ(current(), 0);
}

TEST_F(HitListTest, ADoubleClickOnAColumnsEdgeFitsItToTheRowsOnTheScreen) {
  showRows(kTenMillion);
  QHeaderView* columns = view_.header();
  columns->resizeSection(3, 5);
  model_->rowsAskedFor.clear();
  Q_EMIT columns->sectionHandleDoubleClicked(3);
  EXPECT_GE(columns->sectionSize(3), view_.fontMetrics().horizontalAdvance(QStringLiteral("row 19")));
  EXPECT_LE(*model_->rowsAskedFor.rbegin(), 20);
}

TEST_F(HitListTest, ATooltipTellsTheTextThatDoesNotFit) {
  showRows(5);
  auto* delegate = qobject_cast<HitListDelegate*>(view_.itemDelegate());
  ASSERT_NE(delegate, nullptr);
  QStyleOptionViewItem option;
  option.initFrom(&view_);
  option.rect = QRect(0, 0, 10, view_.rowHeight());
  EXPECT_EQ(delegate->tooltip(option, model_->index(2, 3)),
            QStringLiteral("<p style='white-space:pre-wrap'>row 2\nkind</p>"));
  option.rect.setWidth(500);
  EXPECT_EQ(delegate->tooltip(option, model_->index(2, 3)),
            QStringLiteral("<p style='white-space:pre-wrap'>kind</p>"));
}

TEST_F(HitListTest, WideColumnsScrollSideways) {
  showRows(5);
  view_.header()->resizeSection(3, 2000);
  EXPECT_EQ(view_.horizontalScrollBar()->maximum(), view_.header()->length() - view_.viewport()->width());
  const int before = view_.visualRect(model_->index(0, 1)).left();
  view_.horizontalScrollBar()->setValue(30);
  EXPECT_EQ(view_.visualRect(model_->index(0, 1)).left(), before - 30);
}

}  // namespace

}  // namespace quorvin::test
