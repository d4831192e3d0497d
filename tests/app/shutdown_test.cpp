// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/shutdown.h"

#include "app/shutdown_fixture.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"

namespace quorvin {
namespace {

const QString kInvalidFolder =
    QStringLiteral("The Local Data Folder path is invalid.\r\n\r\nUnable to save the online sources list.");

TEST_F(ShutdownTest, SettingsAreWrittenInOrder) {
  shutdown_.Form_Unload();
  EXPECT_EQ(keysWritten(),
            QStringList({QStringLiteral("LocalFolder"), QStringLiteral("TextFile"),
                         QStringLiteral("ArchiveFile"), QStringLiteral("WebServer"),
                         QStringLiteral("JoinDate"), QStringLiteral("NickName"), QStringLiteral("Top"),
                         QStringLiteral("Left"), QStringLiteral("Width"), QStringLiteral("Height")}));
  EXPECT_EQ(stored(QStringLiteral("LocalFolder")), folder_.path());
  EXPECT_EQ(stored(QStringLiteral("TextFile")), QStringLiteral("main.lst"));
  EXPECT_EQ(stored(QStringLiteral("ArchiveFile")), QStringLiteral("main.zip"));
  EXPECT_EQ(stored(QStringLiteral("WebServer")), QStringLiteral("lists.example"));
  EXPECT_EQ(stored(QStringLiteral("JoinDate")), QStringLiteral("11/15/2004 12:00:00 PM"));
  EXPECT_EQ(stored(QStringLiteral("NickName")), QStringLiteral("Ann"));
  EXPECT_EQ(stored(QStringLiteral("Top")), QStringLiteral("15.5"));
  EXPECT_EQ(stored(QStringLiteral("Height")), QStringLiteral("3015.5"));
}

TEST_F(ShutdownTest, BothListsAreSaved) {
  addSources();
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "\"My music\",\"/music/\"\r\n");
  EXPECT_EQ(offlineList(), "\"Offline\",\"/lists/a,b.txt\"\r\n\"Offline\",\"/lists/c.txt\"\r\n");
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(ShutdownTest, AnEmptyTableWritesAnEmptyFile) {
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"old\",\"/old/\"\r\n");
  readLists();
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "");
  EXPECT_EQ(offlineList(), "");
}

TEST_F(ShutdownTest, WindowsAreUnloadedAndTheFlagsSet) {
  shutdown_.Form_Unload();
  EXPECT_EQ(windows_.log, QStringList({QStringLiteral("unload"), QStringLiteral("SndQTime")}));
  EXPECT_TRUE(state_.ShuttingDown);
  EXPECT_TRUE(state_.AbortRequested);
  EXPECT_TRUE(state_.QuitPending);
  EXPECT_FALSE(state_.RescanAbort);
}

TEST_F(ShutdownTest, ARunningRefreshIsAskedToStop) {
  state_.RescanRunning = true;
  bool abortSeen = false;
  windows_.onEvents = [&] { abortSeen = state_.RescanAbort && !state_.AbortRequested; };
  shutdown_.Form_Unload();
  EXPECT_TRUE(abortSeen);
  EXPECT_EQ(windows_.log, QStringList({QStringLiteral("events"), QStringLiteral("SndQTime"),
                                       QStringLiteral("unload"), QStringLiteral("SndQTime")}));
  EXPECT_TRUE(state_.RescanAbort);
}

TEST_F(ShutdownTest, ASecondCloseChangesNothing) {
  shutdown_.Form_Unload();
  addSources();
  state_.NickName = QStringLiteral("Bob");
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "");
  EXPECT_EQ(stored(QStringLiteral("NickName")), QStringLiteral("Ann"));
  EXPECT_EQ(windows_.log.size(), 2);
}

TEST_F(ShutdownTest, ACloseWhileEventsRunSavesNothingTwice) {
  state_.RescanRunning = true;
  windows_.onEvents = [&] { shutdown_.Form_Unload(); };
  shutdown_.Form_Unload();
  EXPECT_EQ(store_.writes.size(), 10U);
}

TEST_F(ShutdownTest, AMinimizedWindowKeepsThePlacementOfTheRunBefore) {
  store_.put(QStringLiteral("Ketta Quorvin"), QStringLiteral("Top"), QStringLiteral("42"));
  windows_.minimized = true;
  shutdown_.Form_Unload();
  EXPECT_EQ(stored(QStringLiteral("Top")), QStringLiteral("42"));
  EXPECT_EQ(store_.writes.size(), 6U);
}

TEST_F(ShutdownTest, AFolderWithoutAFileIsToldTwiceAndNeitherListIsSaved) {
  const QString empty = folder_.makeFolder(QStringLiteral("empty"));
  folder_.makeFolder(QStringLiteral("empty/sub"));
  state_.LocalFolder = empty;
  addSources();
  shutdown_.Form_Unload();
  EXPECT_EQ(boxes_.informed, std::vector<QString>({kInvalidFolder, kInvalidFolder}));
  EXPECT_FALSE(folder_.has(QStringLiteral("empty/Locations.txt")));
  EXPECT_FALSE(folder_.has(QStringLiteral("empty/OfflineLocations.txt")));
  EXPECT_EQ(store_.writes.size(), 10U);
  EXPECT_TRUE(state_.ShuttingDown);
}

TEST_F(ShutdownTest, ACommandLineFileHasItsOwnSettingsAndOnlineList) {
  state_.RegKey = QStringLiteral("D:\\lists\\music.txt");
  state_.LocFile = QStringLiteral("Locations.txt_music");
  readLists();
  addSources();
  shutdown_.Form_Unload();
  EXPECT_EQ(store_.stored(QStringLiteral("D:\\lists\\music.txt"), QStringLiteral("NickName")),
            QStringLiteral("Ann"));
  EXPECT_FALSE(store_.has(QStringLiteral("Ketta Quorvin"), QStringLiteral("NickName")));
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt_music")), "\"My music\",\"/music/\"\r\n");
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt")));
  EXPECT_EQ(offlineList(), "\"Offline\",\"/lists/a,b.txt\"\r\n\"Offline\",\"/lists/c.txt\"\r\n");
}

TEST_F(ShutdownTest, AFaultEndsItAndTheProgramGoesOn) {
  addSources();
  store_.refusesWrites = true;
  EXPECT_FAULT(shutdown_.Form_Unload(), 75);
  EXPECT_FALSE(state_.ShuttingDown);
  EXPECT_FALSE(state_.AbortRequested);
  EXPECT_TRUE(windows_.log.isEmpty());
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt")));
}

TEST_F(ShutdownTest, AfterAFaultTheSecondCloseSavesWhatItCanAndLeaves) {
  addSources();
  store_.refusesWrites = true;
  EXPECT_FAULT(shutdown_.Form_Unload(), 75);
  shutdown_.Form_Unload();
  EXPECT_EQ(boxes_.informed,
            std::vector<QString>({QStringLiteral("Run-time error '75': Path/File access error\r\n\r\nThis "
                                                 "happened while saving the settings."),
                                  QStringLiteral("Run-time error '75': Path/File access error\r\n\r\nThis "
                                                 "happened while saving the window's place.")}));
  EXPECT_EQ(onlineList(), "\"My music\",\"/music/\"\r\n");
  EXPECT_TRUE(state_.ShuttingDown);
}

TEST_F(ShutdownTest, AListThatCannotBeWrittenStaysAsItWas) {
  addSources();
  // A folder of that name cannot be replaced by a file.
  folder_.makeFolder(QStringLiteral("Locations.txt"));
  EXPECT_FAULT(shutdown_.Form_Unload(), 75);
  EXPECT_FALSE(folder_.has(QStringLiteral("OfflineLocations.txt")));
  shutdown_.Form_Unload();
  EXPECT_EQ(offlineList(), "\"Offline\",\"/lists/a,b.txt\"\r\n\"Offline\",\"/lists/c.txt\"\r\n");
}

TEST_F(ShutdownTest, SettingsThatCouldNotBeReadAreNotEmptied) {
  for (const char* key : {"LocalFolder", "WebServer", "JoinDate", "NickName"}) {
    store_.put(QStringLiteral("Ketta Quorvin"), QString::fromLatin1(key), QStringLiteral("kept"));
  }
  const QString folder = state_.LocalFolder;
  state_ = ProgramState();
  state_.resetFileNames();
  state_.LocalFolder = folder;
  shutdown_.Form_Unload();
  EXPECT_EQ(stored(QStringLiteral("LocalFolder")), folder);
  EXPECT_EQ(stored(QStringLiteral("WebServer")), QStringLiteral("kept"));
  EXPECT_EQ(stored(QStringLiteral("JoinDate")), QStringLiteral("kept"));
  EXPECT_EQ(stored(QStringLiteral("NickName")), QStringLiteral("kept"));
}

// The recovery copy.

class ShutdownWithRecovery : public ShutdownTest {
 protected:
  ShutdownWithRecovery() {
    shutdown_.setRecoveryCopy(&recovery_);
    recovery_.offer(boxes_);
  }
  bool isKept() const { return QFile::exists(recovery_.path()); }

  TemporaryFolder settings_;
  RecoveryCopy recovery_{state_, QLocale(QLocale::English, QLocale::UnitedStates),
                         settings_.pathOf(QStringLiteral("settings.ini"))};
};

TEST_F(ShutdownWithRecovery, WhatIsSavedNeedsNoCopy) {
  addSources();
  recovery_.keep();
  ASSERT_TRUE(isKept());
  shutdown_.Form_Unload();
  EXPECT_FALSE(isKept());
}

TEST_F(ShutdownWithRecovery, WhatCannotBeSavedIsKept) {
  addSources();
  store_.refusesWrites = true;
  EXPECT_FAULT(shutdown_.Form_Unload(), 75);
  shutdown_.Form_Unload();
  EXPECT_TRUE(state_.ShuttingDown);
  EXPECT_TRUE(isKept());
}

TEST_F(ShutdownWithRecovery, ListsWithoutAFolderAreKept) {
  state_.LocalFolder = folder_.makeFolder(QStringLiteral("empty"));
  addSources();
  shutdown_.Form_Unload();
  EXPECT_TRUE(state_.ShuttingDown);
  EXPECT_TRUE(isKept());
}

}  // namespace
}  // namespace quorvin
