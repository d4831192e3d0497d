// SPDX-License-Identifier: GPL-2.0-or-later

// The View menu of the main window: order, columns and filter, by mouse and by keys alone.
#include "gui/keys.h"
#include "gui/search_form_fixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>

namespace quorvin::test {

namespace {

class ViewMenu : public SearchFormTest {
 protected:
  /// Four songs of different sizes; found by "song".
  void addSongs() {
    addOnlineSource(QStringLiteral("Music"), blockHead("DISK", "\\Rock\\") + entryLine("song 10", "300") +
                                                 entryLine("song 9", "20") + blockHead("DISK", "\\Jazz\\") +
                                                 entryLine("song 100", "1,000") +
                                                 entryLine("other song", "7"));
  }
  void findSongs() {
    addSongs();
    find(QStringLiteral("song"));
    ASSERT_EQ(rows(), 4);
  }
  QStringList names() {
    QStringList texts;
    for (int row = 0; row < rows(); ++row) texts.append(cell(row, HitColumn::Name));
    return texts;
  }
  void waitForRows() {
    const RowOrder& order = static_cast<HitListModel*>(controls().HitList->model())->order();
    EXPECT_EVENTUALLY(!order.isSorting() && !order.isFiltering());
  }
  QHeaderView& header() { return *controls().HitList->header(); }
  void clickTitle(HitColumn column, Qt::MouseButton button = Qt::LeftButton) {
    const int section = static_cast<int>(column);
    const QPoint middle(header().sectionViewportPosition(section) + header().sectionSize(section) / 2,
                        header().height() / 2);
    QTest::mouseClick(header().viewport(), button, {}, middle);
    waitForRows();
  }
  std::vector<int> columnWidths() {
    std::vector<int> widths;
    for (int column = 0; column < kHitColumnCount; ++column) widths.push_back(header().sectionSize(column));
    return widths;
  }
  int widthOf(HitColumn column) { return header().sectionSize(static_cast<int>(column)); }
  void openFilter() { press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier); }
  QString shown() { return controls().lblShown->text(); }

  const QStringList found_ = {QStringLiteral("song 10"), QStringLiteral("song 9"), QStringLiteral("song 100"),
                              QStringLiteral("other song")};
  const QStringList byName_ = {QStringLiteral("other song"), QStringLiteral("song 9"),
                               QStringLiteral("song 10"), QStringLiteral("song 100")};
  const QStringList bySize_ = {QStringLiteral("other song"), QStringLiteral("song 9"),
                               QStringLiteral("song 10"), QStringLiteral("song 100")};
};

TEST_F(ViewMenu, ATitleSortsWhenItIsClicked) {
  findSongs();
  EXPECT_EQ(names(), found_);
  clickTitle(HitColumn::Name);
  EXPECT_EQ(names(), byName_);
  clickTitle(HitColumn::Name);
  EXPECT_EQ(names(), QStringList(byName_.rbegin(), byName_.rend()));
  clickTitle(HitColumn::Name);
  EXPECT_EQ(names(), found_);
}

TEST_F(ViewMenu, ControlAndANumberSortByThatColumn) {
  findSongs();
  press(Qt::Key_5, Qt::ControlModifier);
  waitForRows();
  EXPECT_EQ(names(), bySize_);
  press(Qt::Key_5, Qt::ControlModifier);
  waitForRows();
  EXPECT_EQ(names().first(), QStringLiteral("song 100"));
  press(Qt::Key_3, Qt::ControlModifier);
  waitForRows();
  EXPECT_EQ(cell(0, HitColumn::Folder), QStringLiteral("\\Jazz\\"));
  EXPECT_EQ(cell(3, HitColumn::Folder), QStringLiteral("\\Rock\\"));
  press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(names(), found_);
}

TEST_F(ViewMenu, SaysByWhatAndInWhichDirectionTheHitsAreSorted) {
  findSongs();
  const SearchFormMenus& menus = form().menus();
  QAction* byName = menus.SortBy[3];
  EXPECT_TRUE(menus.FoundOrder->isChecked());
  EXPECT_FALSE(byName->isChecked());
  byName->trigger();
  EXPECT_FALSE(menus.FoundOrder->isChecked());
  EXPECT_TRUE(byName->isChecked());
  EXPECT_EQ(byName->text(), QStringLiteral("Sort by &Name (ascending)"));
  EXPECT_EQ(byName->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_4));
  byName->trigger();
  EXPECT_TRUE(byName->isChecked());
  EXPECT_EQ(byName->text(), QStringLiteral("Sort by &Name (descending)"));
  menus.FoundOrder->trigger();
  EXPECT_TRUE(menus.FoundOrder->isChecked());
  EXPECT_EQ(byName->text(), QStringLiteral("Sort by &Name"));
  menus.FoundOrder->trigger();
  EXPECT_TRUE(menus.FoundOrder->isChecked());
}

TEST_F(ViewMenu, EveryRunStartsInFoundOrder) {
  findSongs();
  clickTitle(HitColumn::Size);
  ASSERT_EQ(names(), bySize_);
  pressFind();
  EXPECT_EQ(names(), found_);
  EXPECT_TRUE(form().menus().FoundOrder->isChecked());
  EXPECT_EQ(header().sortIndicatorSection(), -1);
}

TEST_F(ViewMenu, ATitleClickedDuringTheRunSortsAtItsEnd) {
  addOnlineSource(QStringLiteral("Music"), listingOf("DISK", 5000, "song"));
  form();
  int rowsThen = -1;
  duringTheRun([&] {
    press(Qt::Key_4, Qt::ControlModifier);
    rowsThen = rows();
  });
  find(QStringLiteral("song"));
  waitForRows();
  EXPECT_GE(rowsThen, 0);
  EXPECT_LT(rowsThen, 5000);
  EXPECT_EQ(rows(), 5000);
  EXPECT_EQ(cell(1, HitColumn::Name), QStringLiteral("song 2.mp3"));
  press(Qt::Key_4, Qt::ControlModifier);
  waitForRows();
  EXPECT_EQ(cell(0, HitColumn::Name), QStringLiteral("song 5000.mp3"));
}

TEST_F(ViewMenu, EscGivesUpASort) {
  addOnlineSource(QStringLiteral("Music"), listingOf("DISK", 30'000, "song"));
  find(QStringLiteral("song"));
  controls().HitList->setFocus();
  press(Qt::Key_4, Qt::ControlModifier);
  press(Qt::Key_4, Qt::ControlModifier);
  ASSERT_TRUE(form().menus().SortBy[3]->isChecked());
  press(Qt::Key_Escape);
  EXPECT_TRUE(form().menus().FoundOrder->isChecked());
  waitForRows();
  EXPECT_EQ(cell(0, HitColumn::Name), QStringLiteral("song 1.mp3"));
}

TEST_F(ViewMenu, TheWindowCanBeClosedInTheMiddleOfASort) {
  addOnlineSource(QStringLiteral("Music"), listingOf("DISK", 30'000, "song"));
  find(QStringLiteral("song"));
  press(Qt::Key_4, Qt::ControlModifier);
  form().close();
  EXPECT_FALSE(form().isVisible());
}

TEST_F(ViewMenu, ActionsAreOfTheHitThatIsShown) {
  findSongs();
  clickTitle(HitColumn::Size);
  controls().HitList->setFocus();
  press(Qt::Key_Home);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("\tother song\t")))
      << QGuiApplication::clipboard()->text().toStdString();
}

TEST_F(ViewMenu, TheFilterIsOpenedTypedIntoAndClosed) {
  findSongs();
  EXPECT_FALSE(controls().FilterStr->isVisible());
  const QRect list = controls().HitList->geometry();
  openFilter();
  EXPECT_TRUE(controls().FilterStr->isVisible());
  EXPECT_EQ(focusName(), QStringLiteral("FilterStr"));
  EXPECT_TRUE(form().menus().FilterHits->isChecked());
  EXPECT_EQ(shown(), QStringLiteral("4 of 4 shown"));
  typeText(QStringLiteral("10 ROCK"));
  waitForRows();
  EXPECT_EQ(names(), QStringList{QStringLiteral("song 10")});
  EXPECT_EQ(shown(), QStringLiteral("1 of 4 shown"));
  EXPECT_EQ(found(), QStringLiteral("4"));
  press(Qt::Key_Escape);
  EXPECT_FALSE(controls().FilterStr->isVisible());
  EXPECT_FALSE(form().menus().FilterHits->isChecked());
  EXPECT_EQ(names(), found_);
  EXPECT_EQ(controls().HitList->geometry(), list);
  EXPECT_EQ(focusName(), QStringLiteral("HitList"));
}

TEST_F(ViewMenu, AnOpenFilterIsGoneBackToOrClosedByItsKeys) {
  findSongs();
  openFilter();
  typeText(QStringLiteral("9"));
  controls().HitList->setFocus();
  openFilter();
  EXPECT_EQ(focusName(), QStringLiteral("FilterStr"));
  EXPECT_EQ(controls().FilterStr->selectedText(), QStringLiteral("9"));
  EXPECT_TRUE(form().menus().FilterHits->isChecked());
  openFilter();
  EXPECT_FALSE(controls().FilterStr->isVisible());
  EXPECT_FALSE(form().menus().FilterHits->isChecked());
}

TEST_F(ViewMenu, EscElsewhereClosesTheFilterWhenThereIsNothingElseToStop) {
  findSongs();
  openFilter();
  typeText(QStringLiteral("9"));
  controls().HitList->setFocus();
  press(Qt::Key_Escape);
  EXPECT_FALSE(controls().FilterStr->isVisible());
  EXPECT_EQ(rows(), 4);
}

TEST_F(ViewMenu, TheFilterNarrowsWithEachKeyAndWidensAgain) {
  findSongs();
  openFilter();
  typeText(QStringLiteral("1"));
  waitForRows();
  EXPECT_EQ(rows(), 2);
  typeText(QStringLiteral("00"));
  waitForRows();
  EXPECT_EQ(names(), QStringList{QStringLiteral("song 100")});
  press(Qt::Key_Backspace);
  waitForRows();
  EXPECT_EQ(rows(), 2);
  typeText(QStringLiteral("x"));
  waitForRows();
  EXPECT_EQ(shown(), QStringLiteral("0 of 4 shown"));
  EXPECT_EQ(controls().HitList->emptyText(),
            QStringLiteral("No hit has these words.\n\nEsc closes the filter and shows all hits."));
  press(Qt::Key_Escape);
  EXPECT_EQ(controls().HitList->emptyText(), QString());
}

TEST_F(ViewMenu, SortedHitsAreFilteredInTheirOrder) {
  findSongs();
  clickTitle(HitColumn::Size);
  openFilter();
  typeText(QStringLiteral("1"));
  waitForRows();
  EXPECT_EQ(names(), (QStringList{QStringLiteral("song 10"), QStringLiteral("song 100")}));
  press(Qt::Key_5, Qt::ControlModifier);
  waitForRows();
  EXPECT_EQ(names(), (QStringList{QStringLiteral("song 100"), QStringLiteral("song 10")}));
}

TEST_F(ViewMenu, TheFilterHoldsForTheNextRunToo) {
  findSongs();
  openFilter();
  typeText(QStringLiteral("jazz"));
  waitForRows();
  find(QStringLiteral("other"));
  waitForRows();
  EXPECT_EQ(names(), QStringList{QStringLiteral("other song")});
  EXPECT_EQ(shown(), QStringLiteral("1 of 1 shown"));
}

TEST_F(ViewMenu, TheFilterLineIsBelowTheListAndInsideTheWindow) {
  form();
  openFilter();
  for (const QSize size : {QSize(900, 600), QSize(400, 300), QSize(1300, 700)}) {
    form().resize(size);
    QTest::qWait(0);
    const QRect inner(QPoint(), form().centralWidget()->size());
    const QRect line = controls().FilterStr->geometry();
    EXPECT_GT(line.top(), controls().HitList->geometry().bottom());
    EXPECT_TRUE(inner.contains(line));
    EXPECT_TRUE(inner.contains(controls().lblShown->geometry()));
    EXPECT_GT(controls().lblShown->x(), line.right());
    EXPECT_GT(line.x(), controls().filterLabel->geometry().right());
    EXPECT_GT(line.width(), 50);
  }
  controls().HitList->setFocus();
  press(Qt::Key_L, Qt::AltModifier);
  EXPECT_EQ(focusName(), QStringLiteral("FilterStr"));
}

TEST_F(ViewMenu, ResetColumnsGivesEachColumnTheWidthThatItHadAtFirst) {
  form();
  const std::vector<int> atFirst = columnWidths();
  header().resizeSection(0, 200);
  header().resizeSection(3, 20);
  header().moveSection(5, 0);
  press(Qt::Key_V, Qt::AltModifier);
  press(Qt::Key_C);
  press(Qt::Key_R);
  EXPECT_EQ(columnWidths(), atFirst);
  EXPECT_EQ(header().visualIndex(5), 5);
  EXPECT_EQ(form().view().settings().columns, QString());
}

TEST_F(ViewMenu, AWidthThatTheUserSetStaysAndTheOthersShareTheRest) {
  form().resize(900, 600);
  QTest::qWait(0);
  const int volume = widthOf(HitColumn::Volume);
  const int folder = widthOf(HitColumn::Folder);
  const int name = widthOf(HitColumn::Name);
  header().resizeSection(3, name - 38);
  form().resize(900, 601);
  QTest::qWait(0);
  EXPECT_EQ(widthOf(HitColumn::Name), name - 38);
  // 16 to 22 of the 38 pixels.
  EXPECT_EQ(widthOf(HitColumn::Volume), volume + 16);
  EXPECT_EQ(widthOf(HitColumn::Folder), folder + 22);
}

TEST_F(ViewMenu, AHiddenColumnLeavesItsRoomToTheOthers) {
  form().resize(900, 600);
  QTest::qWait(0);
  const int all = header().length();
  press(Qt::Key_V, Qt::AltModifier);
  press(Qt::Key_C);
  press(Qt::Key_V);
  EXPECT_TRUE(header().isSectionHidden(1));
  EXPECT_NEAR(header().length(), all, 2);
  press(Qt::Key_V, Qt::AltModifier);
  press(Qt::Key_C);
  press(Qt::Key_V);
  EXPECT_FALSE(header().isSectionHidden(1));
  EXPECT_NEAR(header().length(), all, 2);
}

TEST_F(ViewMenu, TheLastColumnCannotBeHidden) {
  const SearchFormMenus& menus = form().menus();
  for (std::size_t column = 0; column < 5; ++column) menus.ShowColumn[column]->trigger();
  EXPECT_EQ(controls().HitList->columns().visibleCount(), 1);
  EXPECT_FALSE(menus.ShowColumn[5]->isEnabled());
  EXPECT_TRUE(menus.ShowColumn[0]->isEnabled());
  EXPECT_TRUE(menus.ShowColumn[5]->isChecked());
  EXPECT_FALSE(menus.ShowColumn[0]->isChecked());
}

TEST_F(ViewMenu, ARightClickOnATitleOpensTheMenuOfTheColumns) {
  form();
  const QPoint middle(header().sectionSize(0) / 2, header().height() / 2);
  QContextMenuEvent click(QContextMenuEvent::Mouse, middle, header().viewport()->mapToGlobal(middle));
  QCoreApplication::sendEvent(header().viewport(), &click);
  EXPECT_TRUE(form().menus().ColumnsMenu->isVisible());
  press(Qt::Key_Escape);
  EXPECT_FALSE(form().menus().ColumnsMenu->isVisible());
}

TEST_F(ViewMenu, ColumnsComeBackAsTheyWereLeft) {
  header().resizeSection(3, 321);
  header().moveSection(header().visualIndex(4), 0);
  form().menus().ShowColumn[1]->trigger();
  const ViewSettings kept = form().view().settings();
  EXPECT_EQ(kept.columns, QStringLiteral("Size,Match,-Volume,Folder,Name 321,Date"));

  SearchForm next(state_, messages_, shell_, QLocale::c());
  next.view().take(kept);
  next.show();
  const QHeaderView& columns = *next.controls().HitList->header();
  EXPECT_EQ(columns.sectionSize(3), 321);
  EXPECT_EQ(columns.visualIndex(4), 0);
  EXPECT_TRUE(columns.isSectionHidden(1));
}

TEST_F(ViewMenu, SettingsThatTheUserChangesAreReported) {
  int changes = 0;
  form().view().setChangeHandler([&] { ++changes; });
  header().resizeSection(0, 123);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(form().view().settings().columns, QStringLiteral("Match 123,Volume,Folder,Name,Size,Date"));
  form().resize(form().width() + 10, form().height());
  QTest::qWait(0);
  EXPECT_EQ(changes, 1) << "the window's own division is no setting";
  form().menus().ResetColumns->trigger();
  EXPECT_EQ(changes, 2);
}

}  // namespace

}  // namespace quorvin::test
