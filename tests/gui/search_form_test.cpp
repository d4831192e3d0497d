// SPDX-License-Identifier: GPL-2.0-or-later

// The main window before a run: its controls, menus, keys and what it shows.
#include "app/search_form_controls.h"
#include "gui/search_form_fixture.h"
#include "support/eventually.h"
#include "support/timer_tick.h"

#include <QApplication>
#include <QMenuBar>

namespace quorvin::test {

namespace {

using MainWindow = SearchFormTest;

TEST_F(MainWindow, CarriesTheTitleAndTheVersion) {
  EXPECT_EQ(form().windowTitle(), QStringLiteral("Quorvin Utility"));
  EXPECT_EQ(controls().lblVer->text(), QStringLiteral("Ver:2.5(64)"));
}

TEST_F(MainWindow, StartsIdleWithFiftyPercentAndZeroCounts) {
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
  EXPECT_EQ(controls().WebUpdate->text(), QStringLiteral("Web Update?"));
  EXPECT_EQ(controls().DesMatch->text(), QStringLiteral("50"));
  EXPECT_EQ(controls().SearchStr->text(), QString());
  EXPECT_EQ(found(), QStringLiteral("0"));
  EXPECT_EQ(searched(), QStringLiteral("0"));
  EXPECT_EQ(rows(), 0);
}

TEST_F(MainWindow, ControlsCarryTheirNames) {
  for (const char* name : {"SearchStr", "DesMatch", "Find", "lblFound", "lblSearched", "lblVer", "WebUpdate",
                           "MenuLine", "HitList"}) {
    EXPECT_NE(form().findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << name;
  }
}

TEST_F(MainWindow, HitListHasItsSixColumns) {
  QStringList titles;
  for (int column = 0; column < controls().HitList->model()->columnCount(); ++column) {
    titles.append(controls().HitList->model()->headerData(column, Qt::Horizontal).toString());
  }
  EXPECT_EQ(titles.join(u'|'), QStringLiteral("Match|Volume|Folder|Name|Size|Date"));
}

TEST_F(MainWindow, FocusStartsInTheSearchText) {
  form();
  EXPECT_EQ(QApplication::focusWidget(), controls().SearchStr);
}

TEST_F(MainWindow, TabGoesFromTheSearchTextToTheHits) {
  addMissingOnlineSource(QStringLiteral("Music"));
  form().frame().setWebUpdateEnabled(true);
  const std::vector<QWidget*> order = {controls().DesMatch, controls().Find, controls().WebUpdate,
                                       controls().HitList, controls().SearchStr};
  for (QWidget* next : order) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), next) << next->objectName().toStdString();
  }
}

/// Writes down when a widget is painted.
class PaintLog : public QObject {
 public:
  PaintLog(QWidget& widget, QStringList& log) : log_(log) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) log_ += QStringLiteral("painted");
    return false;
  }

 private:
  QStringList& log_;
};

TEST_F(MainWindow, WhatCanWaitIsDoneOnceTheWindowIsPainted) {
  SearchForm window(state_, messages_, shell_, QLocale::c());
  QStringList log;
  PaintLog paintings(*window.centralWidget(), log);
  window.frame().whenPainted([&] { log += QStringLiteral("done"); });
  QCoreApplication::processEvents();
  EXPECT_EQ(log, QStringList());
  window.show();
  EXPECT_EVENTUALLY(log.contains(QStringLiteral("done")));
  EXPECT_EQ(log.first(), QStringLiteral("painted"));
  EXPECT_EQ(log.count(QStringLiteral("done")), 1);

  bool isDone = false;
  window.frame().whenPainted([&] { isDone = true; });
  EXPECT_FALSE(isDone) << "only from the event loop";
  QCoreApplication::processEvents();
  EXPECT_TRUE(isDone);
}

TEST_F(MainWindow, WhatCanWaitDoesNotWaitForeverForAWindowThatNobodySees) {
  SearchForm window(state_, messages_, shell_, QLocale::c());
  bool isDone = false;
  window.frame().whenPainted([&] { isDone = true; });
  tick(timerOf(window, QStringLiteral("untilSeen")));
  EXPECT_TRUE(eventually([&] { return isDone; }));
}

TEST_F(MainWindow, ControlFGoesToTheSearchTextAndSelectsIt) {
  type(controls().SearchStr, QStringLiteral("rock"));
  controls().HitList->setFocus();
  QTest::keyClick(controls().HitList, Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), controls().SearchStr);
  EXPECT_EQ(controls().SearchStr->selectedText(), QStringLiteral("rock"));
}

TEST_F(MainWindow, AltSGoesToTheSearchText) {
  controls().HitList->setFocus();
  QTest::keyClick(controls().HitList, Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(QApplication::focusWidget(), controls().SearchStr);
}

TEST_F(MainWindow, MenusCarryTheirNamesAndCaptions) {
  QStringList captions;
  for (const QAction* top : form().menuBar()->actions()) {
    captions.append(top->menu()->objectName() + u'=' + top->text());
    for (const QAction* item : top->menu()->actions())
      captions.append(item->objectName() + u'=' + item->text());
  }
  EXPECT_EQ(captions.join(u'\n'), QStringLiteral("FileMenu=&File\n"
                                                 "AddLocal=&Add/Edit Local Folder To Search List\n"
                                                 "EditOffline=Add/Edit Offline List files\n"
                                                 "ReScan=Rescan Local Search Folders\n"
                                                 "ListingHistory=Listing &History...\n"
                                                 "Copies=&Copies...\n"
                                                 "Compare=Co&mpare...\n"
                                                 "Volumes=&Volumes...\n"
                                                 "Import=&Import...\n"
                                                 "ExportHits=&Export Hits...\n"
                                                 "OptionsMenu=&Options\n"
                                                 "MenuQuit=&Quit\n"
                                                 "ViewMenu=&View\n"
                                                 "FilterHits=&Filter Hits\n"
                                                 "=\n"
                                                 "FoundOrder=F&ound Order\n"
                                                 "SortByMatch=Sort by &Match\n"
                                                 "SortByVolume=Sort by &Volume\n"
                                                 "SortByFolder=Sort by Fol&der\n"
                                                 "SortByName=Sort by &Name\n"
                                                 "SortBySize=Sort by &Size\n"
                                                 "SortByDate=Sort by D&ate\n"
                                                 "=\n"
                                                 "ColumnsMenu=&Columns\n"
                                                 "=\n"
                                                 "SearchWhileTyping=Search While &Typing\n"
                                                 "KeepSearchHistory=&Keep Search History\n"
                                                 "ClearSearchHistory=Clear Search &History\n"
                                                 "HitsMenu=H&its\n"
                                                 "OpenHits=&Open\n"
                                                 "ShowInFolder=Show in &Folder\n"
                                                 "WhichDisk=&Which Disk?\n"
                                                 "FetchPlan=Fetch P&lan...\n"
                                                 "=\n"
                                                 "CopyRows=&Copy\n"
                                                 "CopyNames=Copy &Names\n"
                                                 "CopyPaths=Copy Full P&ath\n"
                                                 "ExportSelected=&Export Selected...\n"
                                                 "=\n"
                                                 "HitProperties=P&roperties\n"
                                                 "PeersMenu=&Peers\n"
                                                 "ShareLists=&Share My Lists\n"
                                                 "GetLists=&Get Lists From Peer...\n"
                                                 "HlpMnu=&Help\n"
                                                 "HlpGen=Program &Usage\n"
                                                 "RelInfo=&Release Information\n"
                                                 "AboutMenu=&About"));
}

TEST_F(MainWindow, QuitClosesTheWindow) {
  ASSERT_TRUE(form().isVisible());
  form().menus().MenuQuit->trigger();
  EXPECT_FALSE(form().isVisible());
}

TEST_F(MainWindow, WebUpdateIsDisabledUntilStartUpEnablesIt) {
  EXPECT_FALSE(controls().WebUpdate->isEnabled());
  form().frame().setWebUpdateEnabled(true);
  EXPECT_TRUE(controls().WebUpdate->isEnabled());
}

TEST_F(MainWindow, AnUpdateFromAServerThatIsNotThereIsToldAndEnds) {
  state_.WebServer = QStringLiteral("127.0.0.1:1");
  state_.ArchiveFile = QStringLiteral("main.zip");
  form().frame().setWebUpdateEnabled(true);
  QTest::mouseClick(controls().WebUpdate, Qt::LeftButton);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].contains(QStringLiteral(": Could not get an update.")))
      << messages_.informed[0].toStdString();
  EXPECT_TRUE(controls().WebUpdate->isEnabled());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindow, EmptyListSaysWhatToDoFirstWhileThereIsNoSource) {
  EXPECT_EQ(controls().HitList->emptyText(), QStringLiteral("There is nothing to search yet."));
}

TEST_F(MainWindow, EmptyListIsQuietWhenThereIsASource) {
  state_.TextFile = QStringLiteral("main.lst");
  EXPECT_EQ(controls().HitList->emptyText(), QString());
}

TEST_F(MainWindow, EmptyListGoesQuietWhenASourceIsAdded) {
  form();
  addMissingOnlineSource(QStringLiteral("Music"));
  form().sourcesChanged();
  EXPECT_EQ(controls().HitList->emptyText(), QString());
}

TEST_F(MainWindow, EmptyTextIsPainted) {
  const QImage withText = controls().HitList->viewport()->grab().toImage();
  controls().HitList->setEmptyText({});
  const QImage without = controls().HitList->viewport()->grab().toImage();
  EXPECT_NE(withText, without);
}

}  // namespace

}  // namespace quorvin::test
