// SPDX-License-Identifier: GPL-2.0-or-later

// The source editor in the mode for folders, by clicks.
#include "editors/last_resort_faults.h"
#include "editors/local_loc_fixture.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QToolTip>

namespace quorvin::test {

namespace {

using FolderEditor = LocalLocTest;

TEST_F(FolderEditor, ControlsBearTheirNamesAndTexts) {
  EXPECT_EQ(dialog().objectName(), QStringLiteral("LocalLoc"));
  EXPECT_EQ(dialog().windowTitle(), QStringLiteral("Local File Search Locations"));
  const std::vector<std::pair<QString, QString>> buttons = {
      {QStringLiteral("SaveOffLine"), QStringLiteral("Save")},
      {QStringLiteral("Cancel"), QStringLiteral("Cancel")},
      {QStringLiteral("OK"), QStringLiteral("Save")},
      {QStringLiteral("MvUp"), QStringLiteral("Move Selected Up")},
      {QStringLiteral("MvDn"), QStringLiteral("Move Selected Down")},
      {QStringLiteral("GetListName"), QStringLiteral("...")},
      {QStringLiteral("LocDel"), QStringLiteral("Delete Selected")},
      {QStringLiteral("LocAdd"), QStringLiteral("Add")}};
  for (const auto& [name, caption] : buttons) {
    const auto* button = dialog().findChild<QPushButton*>(name);
    ASSERT_TRUE(button) << name.toStdString();
    EXPECT_EQ(button->text(), caption);
  }
  EXPECT_EQ(dialog().findChild<QLabel*>(QStringLiteral("Label1"))->text(), QStringLiteral("Description"));
  EXPECT_EQ(dialog().findChild<QLabel*>(QStringLiteral("Label2"))->text(), QStringLiteral("Path"));
  EXPECT_EQ(dialog().findChild<QLineEdit*>(QStringLiteral("Desc"))->text(), QStringLiteral("Online"));
  EXPECT_EQ(dialog().findChild<QLineEdit*>(QStringLiteral("LocalDataFolder"))->text(), QString());
  EXPECT_TRUE(dialog().findChild<QTreeView*>(QStringLiteral("Online")));
  EXPECT_EQ(controls().GetListName->toolTip(), QStringLiteral("Browse for a File Location Path"));
}

TEST_F(FolderEditor, OnlyTheSaveButtonForFoldersIsShown) {
  EXPECT_TRUE(controls().OK->isVisible());
  EXPECT_FALSE(controls().SaveOffLine->isVisible());
}

TEST_F(FolderEditor, EveryControlHasAnAccessibleName) {
  EXPECT_EQ(controls().Online->accessibleName(), QStringLiteral("Search locations"));
  EXPECT_EQ(controls().Desc->accessibleName(), QStringLiteral("Description"));
  EXPECT_EQ(controls().LocalDataFolder->accessibleName(), QStringLiteral("Path"));
  EXPECT_EQ(controls().GetListName->accessibleName(), QStringLiteral("Browse for a File Location Path"));
}

TEST_F(FolderEditor, ShowsTheOnlineSourcesInTableOrder) {
  haveOnline(threeFolders());
  EXPECT_EQ(edited(), threeFolders());
  EXPECT_EQ(controls().Online->model()->index(2, 1).data().toString(), QStringLiteral("E:\\"));
}

TEST_F(FolderEditor, AddAppendsAndKeepsTheBoxes) {
  haveOnline(threeFolders());
  add(QStringLiteral("Music CDs"), QStringLiteral("C:\\"));
  Entries expected = threeFolders();
  expected.push_back({QStringLiteral("Music CDs"), QStringLiteral("C:\\")});
  EXPECT_EQ(edited(), expected);
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("Music CDs"));
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("C:\\"));
  EXPECT_EQ(selected(), 0);
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(FolderEditor, TheGivenDescriptionIsAccepted) {
  type(controls().LocalDataFolder, QStringLiteral("C:\\"));
  click(controls().LocAdd);
  EXPECT_EQ(edited(), (Entries{{QStringLiteral("Online"), QStringLiteral("C:\\")}}));
}

TEST_F(FolderEditor, AShortPathIsRefusedFirstAndChangesNothing) {
  add(QStringLiteral("a/b"), QStringLiteral("C:"));
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("The Path must be at lease 3 characters long. (ex: C:\\)")});
  EXPECT_TRUE(edited().empty());
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("a/b"));
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("C:"));
}

TEST_F(FolderEditor, ADescriptionThatNoFileNameCanHoldIsRefused) {
  const std::vector descriptions = {QStringLiteral("a/b"), QStringLiteral("x:y"), QStringLiteral("*"),
                                    QStringLiteral("?"), QStringLiteral("\\")};
  for (const QString& description : descriptions) add(description, QStringLiteral("C:\\"));
  EXPECT_EQ(messages_.informed,
            std::vector<QString>(5, QStringLiteral("Description must not be left blank or contain the "
                                                   "characters /?\\:|*")));
  EXPECT_TRUE(edited().empty());
}

TEST_F(FolderEditor, ADoubleQuoteInADescriptionBecomesAnApostropheWithAWordOnWhy) {
  type(controls().Desc, QStringLiteral("12\" vinyl"));
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("12' vinyl"));
  EXPECT_EQ(QToolTip::text(),
            QStringLiteral("A list of sources cannot keep a double quote, so ' takes its place."));
  controls().Desc->setCursorPosition(0);
  QTest::keyClicks(controls().Desc, QStringLiteral("\"a"));
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("'a12' vinyl"));
}

TEST_F(FolderEditor, APathWithADoubleQuoteIsRefused) {
  add(QStringLiteral("Vinyl"), QStringLiteral("/music/12\"/"));
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral(
                "The Path must not contain a double quote, since a list of sources "
                "cannot keep one. Please give the folder another name, or use a link to it.")});
  EXPECT_TRUE(edited().empty());
}

TEST_F(FolderEditor, MoveUpKeepsTheEntrySelectedAndStopsAtTheTop) {
  haveOnline(threeFolders());
  select(2);
  click(controls().MvUp);
  const Entries moved = {threeFolders()[1], threeFolders()[0], threeFolders()[2]};
  EXPECT_EQ(edited(), moved);
  EXPECT_EQ(selected(), 1);
  click(controls().MvUp);
  EXPECT_EQ(edited(), moved);
  EXPECT_EQ(selected(), 1);
}

TEST_F(FolderEditor, MoveDownKeepsTheEntrySelectedAndStopsAtTheBottom) {
  haveOnline(threeFolders());
  select(2);
  click(controls().MvDn);
  const Entries moved = {threeFolders()[0], threeFolders()[2], threeFolders()[1]};
  EXPECT_EQ(edited(), moved);
  EXPECT_EQ(selected(), 3);
  click(controls().MvDn);
  EXPECT_EQ(edited(), moved);
  EXPECT_EQ(selected(), 3);
}

TEST_F(FolderEditor, DeletingTheThirdRowSelectsTheSecond) {
  haveOnline(threeFolders());
  select(3);
  click(controls().LocDel);
  EXPECT_EQ(edited(), (Entries{threeFolders()[0], threeFolders()[1]}));
  EXPECT_EQ(selected(), 2);
}

TEST_F(FolderEditor, DeletingTheFirstRowLeavesTheOthers) {
  haveOnline(threeFolders());
  select(1);
  click(controls().LocDel);
  EXPECT_EQ(edited(), (Entries{threeFolders()[1], threeFolders()[2]}));
}

TEST_F(FolderEditor, AnEmptyListTakesEveryCommand) {
  click(controls().LocDel);
  click(controls().MvUp);
  click(controls().MvDn);
  EXPECT_TRUE(edited().empty());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(FolderEditor, WithoutASelectionNoRowIsDeletedOrMoved) {
  haveOnline(threeFolders());
  click(controls().LocDel);
  click(controls().MvUp);
  click(controls().MvDn);
  EXPECT_EQ(edited(), threeFolders());
}

TEST_F(FolderEditor, BrowsingStartsWithThePrefilledNameInTheTypedFolder) {
  type(controls().LocalDataFolder, QStringLiteral("D:\\Music\\"));
  click(controls().GetListName);
  ASSERT_EQ(picker_.askedForFolder.size(), 1U);
  EXPECT_EQ(picker_.askedForFolder[0].fileName, QStringLiteral("All Files"));
  EXPECT_EQ(picker_.askedForFolder[0].defaultExtension, QStringLiteral(".txt"));
  EXPECT_EQ(picker_.askedForFolder[0].initialFolder, QStringLiteral("D:\\Music\\"));
  EXPECT_TRUE(picker_.askedForFile.empty());
}

TEST_F(FolderEditor, APickedFolderGetsItsBackslash) {
  picker_.pick = QStringLiteral("D:\\Data");
  click(controls().GetListName);
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("D:\\Data\\"));
}

TEST_F(FolderEditor, APickedFolderIsCutAtTheFirstOccurrenceOfThePrefilledName) {
  picker_.pick = QStringLiteral("D:\\All Files");
  click(controls().GetListName);
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("D:\\"));
}

TEST_F(FolderEditor, APickedFolderIsNativeWithoutDrives) {
  pathStyle_ = kUnixPaths;
  picker_.pick = QStringLiteral("/home/ann/Music");
  click(controls().GetListName);
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("/home/ann/Music/"));
}

TEST_F(FolderEditor, APickedFolderNamesTheDescriptionWhileTheUserHasTypedNone) {
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("Online"));
  picker_.pick = QStringLiteral("D:\\Data\\Music");
  click(controls().GetListName);
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("Music"));
  // What was proposed is no text of the user's.
  picker_.pick = QStringLiteral("D:\\Films");
  click(controls().GetListName);
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("Films"));
  type(controls().Desc, QStringLiteral("My films"));
  picker_.pick = QStringLiteral("D:\\Papers");
  click(controls().GetListName);
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("My films"));
}

TEST_F(FolderEditor, APickedFolderWithoutANameLeavesTheDescription) {
  picker_.pick = QStringLiteral("D:\\");
  click(controls().GetListName);
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("D:\\"));
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("Online"));
}

TEST_F(FolderEditor, ADescriptionThatIsThereTwiceIsToldInTheDialog) {
  state_.LocalFolder = QStringLiteral("D:\\lists\\");
  haveOnline(threeFolders());
  EXPECT_FALSE(controls().Notice->isVisible());
  add(QStringLiteral(" Music "), QStringLiteral("C:\\"));
  EXPECT_TRUE(controls().Notice->isVisible());
  EXPECT_EQ(controls().Notice->accessibleName(),
            QStringLiteral("\" Music \" is there twice; both would share one listing."));
  EXPECT_EQ(edited().size(), 4U);
  EXPECT_TRUE(messages_.informed.empty());
  select(1);
  click(controls().LocDel);
  EXPECT_FALSE(controls().Notice->isVisible());
}

TEST_F(FolderEditor, ADescriptionThatIsAFileOfTheProgramIsToldInTheDialog) {
  state_.resetFileNames();
  state_.TextFile = QStringLiteral("main.txt");
  for (const QString& name : {QStringLiteral("Locations"), QStringLiteral("main")}) {
    add(name, QStringLiteral("C:\\"));
    EXPECT_EQ(controls().Notice->accessibleName(),
              QStringLiteral("\"%1\" is a file of the program; it needs another description.").arg(name));
    select(1);
    click(controls().LocDel);
  }
}

TEST_F(FolderEditor, ALongNoticeIsCutToItsLine) {
  const QString description(300, u'x');
  add(description, QStringLiteral("C:\\"));
  add(description, QStringLiteral("D:\\"));
  const QLabel* notice = controls().Notice;
  EXPECT_LE(notice->fontMetrics().horizontalAdvance(notice->text()), notice->width());
  EXPECT_TRUE(notice->toolTip().contains(description));
}

TEST_F(FolderEditor, ACancelledOrFailedPickerChangesNothing) {
  type(controls().LocalDataFolder, QStringLiteral("D:\\Music\\"));
  click(controls().GetListName);
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("D:\\Music\\"));
  picker_.fails = true;
  click(controls().GetListName);
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("D:\\Music\\"));
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_TRUE(lastResortFaults().empty());
}

TEST_F(FolderEditor, AnyModeButOfflinePicksFolders) {
  LocMode_ = QStringLiteral("offline");
  click(controls().GetListName);
  EXPECT_EQ(picker_.askedForFolder.size(), 1U);
}

TEST_F(FolderEditor, SaveStoresThenAsksThenCloses) {
  haveOnline(threeFolders());
  add(QStringLiteral("Music CDs"), QStringLiteral("C:\\"));
  const Entries expected = edited();
  Entries whenAsked;
  bool visibleWhenAsked = false;
  messages_.whenAsked = [&] {
    whenAsked = online();
    visibleWhenAsked = dialog().isVisible();
  };
  click(controls().OK);
  EXPECT_EQ(whenAsked, expected);
  EXPECT_TRUE(visibleWhenAsked);
  EXPECT_EQ(online(), expected);
  EXPECT_EQ(messages_.asked, std::vector{QStringLiteral("Rescan Local Search Locations?")});
  EXPECT_FALSE(dialog().isVisible());
}

TEST_F(FolderEditor, NoKeepsTheListWithoutARescan) {
  haveOnline(threeFolders());
  messages_.answers = {false};
  click(controls().OK);
  EXPECT_EQ(online(), threeFolders());
  EXPECT_EQ(refreshes_, 0);
}

TEST_F(FolderEditor, YesRescansWithTheDialogHidden) {
  haveOnline(threeFolders());
  dialog().entries().append({QStringLiteral("New"), QStringLiteral("F:\\")});
  messages_.answers = {true};
  bool visibleMeanwhile = true;
  int countMeanwhile = 0;
  QSignalSpy closed(&dialog(), &QDialog::finished);
  duringRefresh_ = [&] {
    visibleMeanwhile = dialog().isVisible();
    countMeanwhile = state_.OnlineSourceCount;
    EXPECT_TRUE(closed.isEmpty());
  };
  click(controls().OK);
  EXPECT_EQ(refreshes_, 1);
  EXPECT_FALSE(visibleMeanwhile);
  EXPECT_EQ(countMeanwhile, 4);
  EXPECT_EQ(closed.size(), 1);
}

TEST_F(FolderEditor, AFaultOfTheRefreshLeavesTheDialogHidden) {
  messages_.answers = {true};
  duringRefresh_ = [] { throw RuntimeFault(FaultNumber::DiskFull, QStringLiteral("Disk full")); };
  click(controls().OK);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(lastResortFaults(), std::vector{QStringLiteral("Disk full")});
  lastResortFaults().clear();
}

TEST_F(FolderEditor, SavingAnEmptiedListLeavesTheOldRowsBeyondTheCount) {
  haveOnline(threeFolders());
  select(3);
  for (int row = 3; row >= 1; --row) {
    select(row);
    click(controls().LocDel);
  }
  click(controls().OK);
  EXPECT_EQ(state_.OnlineSourceCount, 0);
  EXPECT_EQ(state_.OnlineSources.description(1), QStringLiteral("Music"));
  EXPECT_EQ(state_.OnlineSources.path(3), QStringLiteral("E:\\"));
}

TEST_F(FolderEditor, CancelLeavesTheTableAsItWas) {
  haveOnline(threeFolders());
  add(QStringLiteral("Music CDs"), QStringLiteral("C:\\"));
  select(1);
  click(controls().MvDn);
  click(controls().LocDel);
  ASSERT_NE(edited(), threeFolders());
  click(controls().Cancel);
  EXPECT_EQ(online(), threeFolders());
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_TRUE(messages_.asked.empty());
}

TEST_F(FolderEditor, TheCloseBoxDiscardsAsCancelDoes) {
  haveOnline(threeFolders());
  add(QStringLiteral("Music CDs"), QStringLiteral("C:\\"));
  dialog().close();
  EXPECT_EQ(online(), threeFolders());
  EXPECT_TRUE(messages_.asked.empty());
}

}  // namespace

}  // namespace quorvin::test
