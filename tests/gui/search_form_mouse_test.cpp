// SPDX-License-Identifier: GPL-2.0-or-later

// The mouse over as many hits as large catalogues have.
#include "gui/window_hits_fixture.h"
#include "hits/hit_list_model.h"
#include "support/eventually.h"
#include "support/sweep.h"

#include <QHeaderView>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyleOptionSlider>

#include <algorithm>

namespace quorvin::test {

namespace {

/// Enough to be sorted in slices and by lower case, or a million.
const int kManyHits = sweep(1'000'000, 110'000);

QString song(int number) {
  return QStringLiteral("song %1.txt").arg(number, 7, 10, QChar(u'0'));
}

/// Songs in found order, the last one first. The file of the one that ends the list by name is there.
class ManyHitsByMouse : public WindowHits {
 protected:
  void SetUp() override {
    QByteArray listing = blockHead("Music", listed(files_.path()));
    for (int number = kManyHits; number > 0; --number) listing += entryLine(song(number).toLatin1());
    files_.writeFile(song(kManyHits), "x");
    addOnlineSource(QStringLiteral("Music"), listing);
    state_.OnlineSources.set(1, QStringLiteral("Music"), files_.path());
    type(controls().SearchStr, QStringLiteral("song"));
    pressFind();
    ASSERT_EQ(rows(), kManyHits);
  }

  QHeaderView& header() { return *list()->header(); }
  QScrollBar& scrollBar() { return *list()->verticalScrollBar(); }
  QString firstName() { return cell(0, HitColumn::Name); }
  QString lastName() { return cell(rows() - 1, HitColumn::Name); }

  void clickTitle(HitColumn column) {
    const int section = static_cast<int>(column);
    const QPoint middle(header().sectionViewportPosition(section) + header().sectionSize(section) / 2,
                        header().height() / 2);
    QTest::mouseClick(header().viewport(), Qt::LeftButton, {}, middle);
    const RowOrder& order = static_cast<HitListModel*>(list()->model())->order();
    EXPECT_EVENTUALLY(!order.isSorting());
  }

  QRect handle() {
    QStyleOptionSlider option;
    option.initFrom(&scrollBar());
    option.orientation = Qt::Vertical;
    option.minimum = scrollBar().minimum();
    option.maximum = scrollBar().maximum();
    option.pageStep = scrollBar().pageStep();
    option.singleStep = scrollBar().singleStep();
    option.sliderPosition = scrollBar().sliderPosition();
    option.sliderValue = scrollBar().value();
    option.subControls = QStyle::SC_All;
    return scrollBar().style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                               &scrollBar());
  }
  /// Takes the handle of the scroll bar and moves it by so many pixels.
  void dragHandle(int down) {
    const QPoint start = handle().center();
    QTest::mousePress(&scrollBar(), Qt::LeftButton, {}, start);
    constexpr int kSteps = 4;
    QPoint place = start;
    for (int step = 1; step <= kSteps; ++step) {
      place = start + QPoint(0, down * step / kSteps);
      QMouseEvent move(QEvent::MouseMove, place, scrollBar().mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                       Qt::NoModifier);
      QCoreApplication::sendEvent(&scrollBar(), &move);
    }
    QTest::mouseRelease(&scrollBar(), Qt::LeftButton, {}, place);
  }
  /// The middle of the row that is the n-th on the screen.
  QPoint onScreen(int row) {
    return {list()->viewport()->width() / 2, row * list()->rowHeight() + list()->rowHeight() / 2};
  }
  void clickOnScreen(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers, onScreen(row));
  }
  std::int64_t selectedHits() { return selectedRowCount(*list()->selectionModel()); }
};

TEST_F(ManyHitsByMouse, AreSortedByAClickOnATitle) {
  EXPECT_EQ(firstName(), song(kManyHits));
  clickTitle(HitColumn::Name);
  EXPECT_EQ(firstName(), song(1));
  EXPECT_EQ(lastName(), song(kManyHits));
  clickTitle(HitColumn::Name);
  EXPECT_EQ(firstName(), song(kManyHits));
  EXPECT_EQ(lastName(), song(1));
  EXPECT_EQ(header().sortIndicatorOrder(), Qt::DescendingOrder);
  clickTitle(HitColumn::Name);
  EXPECT_EQ(header().sortIndicatorSection(), -1) << "found order";
}

TEST_F(ManyHitsByMouse, AreScrolledToTheirEndAndBackByTheHandle) {
  dragHandle(scrollBar().height());
  EXPECT_EQ(list()->firstVisibleRow(), kManyHits - list()->wholeVisibleRows());
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, onScreen(list()->wholeVisibleRows() - 1));
  EXPECT_EQ(list()->currentIndex().row(), kManyHits - 1);
  dragHandle(-scrollBar().height());
  EXPECT_EQ(list()->firstVisibleRow(), 0);
}

TEST_F(ManyHitsByMouse, AreScrolledToTheirMiddleByTheHandle) {
  const int track = scrollBar().height();
  dragHandle(track / 4);
  const int after = list()->firstVisibleRow();
  EXPECT_GT(after, kManyHits / 8);
  EXPECT_LT(after, kManyHits / 2);
}

TEST_F(ManyHitsByMouse, AreSelectedFromTheFirstToTheLastByAShiftClick) {
  clickOnScreen(0);
  EXPECT_EQ(selectedHits(), 1);
  dragHandle(scrollBar().height());
  clickOnScreen(list()->wholeVisibleRows() - 1, Qt::ShiftModifier);
  EXPECT_EQ(selectedHits(), kManyHits);
  clickOnScreen(0, Qt::ControlModifier);
  EXPECT_EQ(selectedHits(), kManyHits - 1) << "one is taken out again";
  clickOnScreen(1);
  EXPECT_EQ(selectedHits(), 1);
}

TEST_F(ManyHitsByMouse, StaySelectedWhenTheyAreSorted) {
  clickOnScreen(2);
  clickOnScreen(4, Qt::ShiftModifier);
  clickTitle(HitColumn::Name);
  EXPECT_EQ(selectedHits(), 3);
  std::vector<int> selected;
  for (const QModelIndex& index : list()->selectionModel()->selectedRows()) selected.push_back(index.row());
  std::ranges::sort(selected);
  EXPECT_EQ(selected, (std::vector{kManyHits - 5, kManyHits - 4, kManyHits - 3}));
}

TEST_F(ManyHitsByMouse, HaveTheMenuOfTheHitThatIsClicked) {
  clickTitle(HitColumn::Name);
  dragHandle(scrollBar().height());
  const int last = list()->wholeVisibleRows() - 1;
  QTest::mouseClick(form().windowHandle(), Qt::RightButton, {},
                    list()->viewport()->mapTo(&form(), onScreen(last)));
  EXPECT_EVENTUALLY(menu()->isVisible());
  EXPECT_EQ(list()->currentIndex().row(), kManyHits - 1);
  QTest::mouseClick(menu(), Qt::LeftButton, {}, menu()->actionGeometry(form().itemMenu().CtLaunch).center());
  EXPECT_EQ(shell_.calls, std::vector{openCall(song(kManyHits))});
}

TEST_F(ManyHitsByMouse, AreFilteredFromTheMenuAndShownAgain) {
  const auto chooseFilter = [this] {
    QMenu& view = *form().menus().ViewMenu;
    QTest::mouseClick(form().menuBar(), Qt::LeftButton, {},
                      form().menuBar()->actionGeometry(view.menuAction()).center());
    ASSERT_TRUE(view.isVisible());
    QTest::mouseClick(&view, Qt::LeftButton, {}, view.actionGeometry(form().menus().FilterHits).center());
  };
  const RowOrder& order = static_cast<HitListModel*>(list()->model())->order();
  chooseFilter();
  ASSERT_TRUE(controls().FilterStr->isVisible());
  QTest::keyClicks(controls().FilterStr, QStringLiteral("0000012"));
  EXPECT_EVENTUALLY(!order.isFiltering() && rows() == 1);
  EXPECT_EQ(firstName(), song(12));
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, onScreen(0));
  EXPECT_EQ(selectedHits(), 1);
  QTest::mouseClick(controls().FilterStr, Qt::LeftButton, {}, controls().FilterStr->rect().center());
  chooseFilter();
  EXPECT_FALSE(controls().FilterStr->isVisible());
  EXPECT_EVENTUALLY(!order.isFiltering() && rows() == kManyHits);
  EXPECT_EQ(selectedHits(), 1) << "the hit stays selected";
}

}  // namespace

}  // namespace quorvin::test
