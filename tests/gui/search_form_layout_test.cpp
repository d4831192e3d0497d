// SPDX-License-Identifier: GPL-2.0-or-later

// The layout of the main window, to the number.
#include "app/search_form_controls.h"
#include "gui/search_form_fixture.h"

#include <QHeaderView>
#include <QMenuBar>

namespace quorvin::test {

namespace {

using WindowLayout = SearchFormTest;

TEST(ColumnDivisionRule, SharesWhatTheOtherColumnsLeave) {
  // 10000 - 600 - 900 - 1100 - 340 = 7060
  const ColumnDivision division = divideColumns(10000, 600, 900, 1100);
  EXPECT_DOUBLE_EQ(division.volume, 1129.6);
  EXPECT_DOUBLE_EQ(division.folder, 1553.2);
  EXPECT_DOUBLE_EQ(division.name, 4377.2);
}

TEST(ColumnDivisionRule, RoundsTheWidthsToWholeNumbersFirst) {
  // 600.4, 900.6 and 1100.5 count as 600, 901 and 1100: 10000 - 2601 - 340 = 7059
  EXPECT_DOUBLE_EQ(divideColumns(10000, 600.4, 900.6, 1100.5).name, 62 * 7059 / 100.0);
}

TEST_F(WindowLayout, StretchesToTheInnerEdges) {
  form().resize(900, 600);
  QTest::qWait(0);
  const QSize inner = form().centralWidget()->size();
  EXPECT_EQ(inner.width(), 900);
  EXPECT_EQ(controls().SearchStr->x() + controls().SearchStr->width(), inner.width());
  EXPECT_EQ(controls().lblVer->x() + controls().lblVer->width(), inner.width());
  EXPECT_EQ(controls().MenuLine->x(), 0);
  EXPECT_EQ(controls().MenuLine->width(), inner.width());
  EXPECT_EQ(controls().HitList->x() + controls().HitList->width(), inner.width());
  EXPECT_EQ(controls().HitList->y() + controls().HitList->height(), inner.height());
}

TEST_F(WindowLayout, MovesNoControlAndLeavesTheOthersTheirSize) {
  form().resize(900, 600);
  const auto places = [&] {
    std::vector<QRect> all;
    for (const QWidget* widget :
         {static_cast<QWidget*>(controls().DesMatch), static_cast<QWidget*>(controls().Find),
          static_cast<QWidget*>(controls().lblFound), static_cast<QWidget*>(controls().lblSearched),
          static_cast<QWidget*>(controls().WebUpdate)}) {
      all.push_back(widget->geometry());
    }
    for (const QWidget* widget :
         {static_cast<QWidget*>(controls().SearchStr), static_cast<QWidget*>(controls().lblVer),
          static_cast<QWidget*>(controls().HitList)}) {
      all.emplace_back(widget->pos(), QSize());
    }
    return all;
  };
  const std::vector<QRect> before = places();
  form().resize(1300, 800);
  EXPECT_EQ(places(), before);
}

TEST_F(WindowLayout, DividesTheColumns) {
  form();
  QHeaderView* columns = controls().HitList->header();
  columns->resizeSection(0, 60);
  columns->resizeSection(4, 90);
  columns->resizeSection(5, 80);
  form().resize(900, 600);
  form().resize(901, 600);
  form().resize(900, 600);
  QTest::qWait(0);
  // 13500 - 900 - 1350 - 1200 - 340 = 9710 twips: 1553.6, 2136.2 and 6020.2
  EXPECT_EQ(columns->sectionSize(1), 104);
  EXPECT_EQ(columns->sectionSize(2), 142);
  EXPECT_EQ(columns->sectionSize(3), 401);
}

TEST_F(WindowLayout, AWidenedFixedColumnIsKeptAndTheNextResizeShrinksTheOthers) {
  QHeaderView* columns = controls().HitList->header();
  int height = 600;
  for (const int fixed : {0, 4, 5}) {
    form().resize(900, ++height);
    QTest::qWait(0);
    const int volume = columns->sectionSize(1);
    const int folder = columns->sectionSize(2);
    const int name = columns->sectionSize(3);
    columns->resizeSection(fixed, columns->sectionSize(fixed) + 100);
    const int widened = columns->sectionSize(fixed);
    EXPECT_EQ(columns->sectionSize(2), folder) << fixed;
    form().resize(900, ++height);
    QTest::qWait(0);
    EXPECT_EQ(columns->sectionSize(fixed), widened) << fixed;
    // Their shares of the 100 pixels.
    EXPECT_EQ(columns->sectionSize(1), volume - 16) << fixed;
    EXPECT_EQ(columns->sectionSize(2), folder - 22) << fixed;
    EXPECT_EQ(columns->sectionSize(3), name - 62) << fixed;
  }
}

TEST_F(WindowLayout, TheDateColumnShowsEveryDateOfEveryLanguageWhole) {
  for (const QLocale::Language language : {QLocale::German, QLocale::English, QLocale::Finnish,
                                           QLocale::Japanese, QLocale::Portuguese, QLocale::Greek}) {
    const QLocale locale(language);
    const SearchForm other(state_, messages_, shell_, locale);
    const HitListView& list = *other.controls().HitList;
    const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const int blank = list.fontMetrics().horizontalAdvance(u' ');
    const int room = list.header()->sectionSize(static_cast<int>(HitColumn::Date)) - 2 * (margin + blank);
    const QFontMetricsF metrics(list.font());
    for (QDate day(2020, 1, 1); day.year() == 2020; day = day.addDays(1)) {
      const QString text = shortMonthDateText(dateValueOf(day.startOfDay()), locale);
      EXPECT_EQ(metrics.elidedText(text, Qt::ElideRight, room - 1), text);
    }
  }
}

TEST_F(WindowLayout, IsNeverSmallerThanTheLeastSize) {
  form().resize(50, 40);
  QTest::qWait(0);
  EXPECT_EQ(form().frame().placement(PlacementKey::Width), 3000.0F);
  EXPECT_EQ(form().frame().placement(PlacementKey::Height), 1500.0F);
}

TEST_F(WindowLayout, AWindowTooLowAloneKeepsItsWidth) {
  form().resize(700, 40);
  QTest::qWait(0);
  EXPECT_EQ(form().width(), 700);
  EXPECT_EQ(form().frame().placement(PlacementKey::Height), 1500.0F);
  EXPECT_EQ(controls().HitList->width(), 700);
}

TEST_F(WindowLayout, AWindowTooNarrowAloneKeepsItsHeight) {
  form().resize(50, 500);
  QTest::qWait(0);
  EXPECT_EQ(form().frame().placement(PlacementKey::Width), 3000.0F);
  EXPECT_EQ(form().height(), 500);
  EXPECT_EQ(controls().HitList->geometry().bottom() + 1, form().centralWidget()->height());
}

TEST_F(WindowLayout, APlacementBelowTheLeastSizeGivesTheLeastSize) {
  form().frame().setPlacement(PlacementKey::Width, 2985);
  form().frame().setPlacement(PlacementKey::Height, 1485);
  QTest::qWait(0);
  EXPECT_EQ(form().frameGeometry().size(), QSize(200, 100));
}

TEST_F(WindowLayout, TheLeastSizeIsLaidOut) {
  form().frame().setPlacement(PlacementKey::Width, 3000);
  form().frame().setPlacement(PlacementKey::Height, 1500);
  QTest::qWait(0);
  ASSERT_EQ(form().frameGeometry().size(), QSize(200, 100));
  EXPECT_EQ(controls().SearchStr->x() + controls().SearchStr->width(), form().centralWidget()->width());
  EXPECT_EQ(controls().MenuLine->width(), form().centralWidget()->width());
  EXPECT_EQ(controls().HitList->width(), form().centralWidget()->width());
  // The other columns leave nothing to share.
  QHeaderView* columns = controls().HitList->header();
  EXPECT_EQ(columns->sectionSize(1) + columns->sectionSize(2) + columns->sectionSize(3), 0);
}

TEST_F(WindowLayout, NothingIsLaidOutWhileMinimized) {
  form().resize(900, 600);
  QTest::qWait(0);
  form().showMinimized();
  const QRect list = controls().HitList->geometry();
  form().resize(1000, 700);
  QTest::qWait(0);
  EXPECT_EQ(controls().HitList->geometry(), list);
  form().showNormal();
  QTest::qWait(0);
  EXPECT_EQ(controls().HitList->width(), form().centralWidget()->width());
}

TEST_F(WindowLayout, RestoringDividesTheColumnsAnew) {
  form().resize(900, 600);
  QTest::qWait(0);
  QHeaderView* columns = controls().HitList->header();
  const int folder = columns->sectionSize(2);
  columns->resizeSection(5, columns->sectionSize(5) + 100);
  form().showMinimized();
  QTest::qWait(0);
  EXPECT_EQ(columns->sectionSize(2), folder);
  form().showNormal();
  QTest::qWait(0);
  EXPECT_EQ(columns->sectionSize(2), folder - 22);
}

TEST_F(WindowLayout, MinimizingAndRestoringKeepsTheLayout) {
  form().resize(900, 600);
  QTest::qWait(0);
  const QRect list = controls().HitList->geometry();
  const int name = controls().HitList->header()->sectionSize(3);
  form().showMinimized();
  QTest::qWait(0);
  EXPECT_EQ(controls().HitList->geometry(), list);
  form().showNormal();
  QTest::qWait(0);
  EXPECT_EQ(controls().HitList->geometry(), list);
  EXPECT_EQ(controls().HitList->header()->sectionSize(3), name);
}

TEST_F(WindowLayout, PlacementIsInTwips) {
  form().frame().setPlacement(PlacementKey::Top, 300);
  form().frame().setPlacement(PlacementKey::Left, 450);
  form().frame().setPlacement(PlacementKey::Width, 12000);
  form().frame().setPlacement(PlacementKey::Height, 9000);
  EXPECT_EQ(form().frameGeometry(), QRect(30, 20, 800, 600));
  EXPECT_EQ(form().frame().placement(PlacementKey::Top), 300.0F);
  EXPECT_EQ(form().frame().placement(PlacementKey::Left), 450.0F);
  EXPECT_EQ(form().frame().placement(PlacementKey::Width), 12000.0F);
  EXPECT_EQ(form().frame().placement(PlacementKey::Height), 9000.0F);
}

TEST_F(WindowLayout, APlaceOnNoScreenIsLeftWhenTheWindowIsShown) {
  SearchForm lost(state_, messages_, shell_, QLocale::c());
  lost.frame().setPlacement(PlacementKey::Top, 900000);
  lost.frame().setPlacement(PlacementKey::Left, -900000);
  lost.show();
  EXPECT_TRUE(lost.screen()->availableGeometry().intersects(lost.frameGeometry()));
}

TEST_F(WindowLayout, ATitleBarAboveTheScreenComesBack) {
  SearchForm lost(state_, messages_, shell_, QLocale::c());
  lost.frame().setPlacement(PlacementKey::Top, -9000);
  lost.frame().setPlacement(PlacementKey::Left, 150);
  lost.frame().setPlacement(PlacementKey::Width, 9000);
  lost.show();
  EXPECT_EQ(lost.frameGeometry().top(), lost.screen()->availableGeometry().top());
  EXPECT_EQ(lost.frameGeometry().left(), 10);
}

TEST_F(WindowLayout, AWindowIsNoLargerThanItsScreen) {
  SearchForm large(state_, messages_, shell_, QLocale::c());
  for (const PlacementKey key : {PlacementKey::Width, PlacementKey::Height}) {
    large.frame().setPlacement(key, 500000);
  }
  const QRect screen = large.screen()->availableGeometry();
  EXPECT_EQ(large.frameGeometry().size(), screen.size()) << "from the start, before any memory is taken";
  large.show();
  EXPECT_EQ(large.frameGeometry(), screen);
}

TEST_F(WindowLayout, AMaximizedWindowComesBackMaximizedAndGoesBackToItsPlace) {
  form().frame().setPlacement(PlacementKey::Left, 450);
  form().frame().setPlacement(PlacementKey::Top, 300);
  form().resize(700, 500);
  EXPECT_EQ(form().frame().maximizedFrom(), QString());
  form().showMaximized();
  QTest::qWait(0);
  const QString kept = form().frame().maximizedFrom();
  EXPECT_EQ(kept, QStringLiteral("30 20 700 500"));

  SearchForm next(state_, messages_, shell_, QLocale::c());
  // What shutdown keeps of a maximized window is as large as the screen.
  next.frame().setPlacement(PlacementKey::Width, 12000);
  next.frame().setPlacement(PlacementKey::Height, 12000);
  next.frame().restoreMaximized(kept);
  next.show();
  QTest::qWait(0);
  EXPECT_TRUE(next.isMaximized());
  EXPECT_EQ(next.frame().maximizedFrom(), kept);
  next.showNormal();
  QTest::qWait(0);
  EXPECT_EQ(next.frameGeometry().topLeft(), QPoint(30, 20));
  EXPECT_EQ(next.size(), QSize(700, 500));
}

TEST_F(WindowLayout, AMaximizedWindowWhosePlaceMakesNoSenseIsStillMaximized) {
  for (const char* text : {"x", "1 2", "90000 90000 -5 0", "0 0 999999999 999999999"}) {
    SearchForm next(state_, messages_, shell_, QLocale::c());
    next.frame().restoreMaximized(QString::fromLatin1(text));
    EXPECT_LE(next.normalGeometry().width(), next.screen()->availableGeometry().width()) << text;
    next.show();
    EXPECT_TRUE(next.isMaximized()) << text;
  }
}

/// The controls of a window with a font of `points`, at its first size.
class InitialLayout : public SearchFormTest, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    QFont font = QApplication::font();
    fontBefore_ = font;
    font.setPointSize(GetParam());
    QApplication::setFont(font);
    // The first size is bounded by the screen, which is small in tests.
    form().resize(initialInnerSize(controls()) + QSize(0, form().menuBar()->height()));
    QTest::qWait(0);
  }
  void TearDown() override { QApplication::setFont(fontBefore_); }

 private:
  QFont fontBefore_;
};

TEST_P(InitialLayout, ClipsNoControl) {
  for (const QWidget* widget :
       {static_cast<QWidget*>(controls().searchLabel), static_cast<QWidget*>(controls().matchLabel),
        static_cast<QWidget*>(controls().Find), static_cast<QWidget*>(controls().foundLabel),
        static_cast<QWidget*>(controls().searchedLabel), static_cast<QWidget*>(controls().WebUpdate),
        static_cast<QWidget*>(controls().lblVer)}) {
    EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->objectName().toStdString();
    EXPECT_GE(widget->height(), widget->sizeHint().height()) << widget->objectName().toStdString();
  }
  EXPECT_GE(controls().DesMatch->height(), controls().DesMatch->sizeHint().height());
}

TEST_P(InitialLayout, CoversNoControlWithAnother) {
  const std::vector<QWidget*> row = {controls().matchLabel,  controls().DesMatch,  controls().Find,
                                     controls().foundLabel,  controls().lblFound,  controls().searchedLabel,
                                     controls().lblSearched, controls().WebUpdate, controls().lblVer};
  for (std::size_t next = 1; next < row.size(); ++next) {
    const QRect before = row[next - 1]->geometry();
    // What would leave the screen goes on in a row below, at its start.
    if (row[next]->y() > before.y()) {
      EXPECT_GT(row[next]->y(), before.bottom()) << next;
      EXPECT_EQ(row[next]->x(), controls().matchLabel->x()) << next;
    } else {
      EXPECT_EQ(row[next]->y(), before.y()) << next;
      EXPECT_GT(row[next]->x(), before.right()) << next;
    }
  }
  EXPECT_GT(controls().HitList->y(), controls().lblVer->geometry().bottom());
  EXPECT_GT(controls().DesMatch->y(), controls().SearchStr->geometry().bottom());
}

TEST_P(InitialLayout, HasRoomForTheLargestCount) {
  controls().lblFound->setText(QStringLiteral("2,147,483,647"));
  EXPECT_GE(controls().lblFound->width(), controls().lblFound->sizeHint().width());
}

INSTANTIATE_TEST_SUITE_P(AtFontSizes, InitialLayout, testing::Values(6, 9, 12, 24));

}  // namespace

}  // namespace quorvin::test
