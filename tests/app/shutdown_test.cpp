#include "app/shutdown.h"

#include "app/start_up.h"
#include "app/start_up_fixture.h"
#include "support/fault_number.h"
#include "support/memory_settings_store.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

const QString kInvalidFolder =
    QStringLiteral("The Local Data Folder path is invalid.\r\n\r\nUnable to save the online sources list.");

class LoggingWindows : public ShutdownView {
 public:
  float placement(PlacementKey key) const override { return static_cast<float>(key) * 1000 + 15.5F; }
  void setPlacement(PlacementKey, float) override {}
  bool isMinimized() const override { return minimized; }
  void processEvents() override {
    log += QStringLiteral("events");
    if (onEvents) onEvents();
  }
  void unloadOtherWindows() override { log += QStringLiteral("unload"); }
  void enableSndQTime() override { log += QStringLiteral("SndQTime"); }

  bool minimized = false;
  QStringList log;
  std::function<void()> onEvents;
};

class ShutdownTest : public testing::Test {
 protected:
  ShutdownTest() {
    state_.resetFileNames();
    state_.LocalFolder = folder_.path();
    state_.TextFile = QStringLiteral("main.lst");
    state_.ArchiveFile = QStringLiteral("main.zip");
    state_.WebServer = QStringLiteral("lists.example");
    state_.JoinDate = 38306.5;
    state_.NickName = QStringLiteral("Ann");
    state_.settingsRead = true;
    state_.onlineListRead = folder_.pathOf(QStringLiteral("Locations.txt"));
    state_.offlineListRead = folder_.pathOf(QStringLiteral("OfflineLocations.txt"));
    folder_.writeFile(QStringLiteral("any.txt"), "a file makes the folder valid");
  }

  void addSources() {
    state_.OnlineSources.set(1, QStringLiteral("My music"), QStringLiteral("/music/"));
    state_.OnlineSourceCount = 1;
    state_.OfflineSources.set(1, QStringLiteral("Offline"), QStringLiteral("/lists/a,b.txt"));
    state_.OfflineSources.set(2, QStringLiteral("Offline"), QStringLiteral("/lists/c.txt"));
    state_.OfflineSourceCount = 2;
  }

  QStringList keysWritten() const {
    QStringList keys;
    for (const MemorySettingsStore::Access& access : store_.writes) keys += access.key;
    return keys;
  }
  QString stored(const QString& key) const { return store_.stored(QStringLiteral("Ketta Quorvin"), key); }
  QByteArray onlineList() const { return folder_.readFile(QStringLiteral("Locations.txt")); }
  QByteArray offlineList() const { return folder_.readFile(QStringLiteral("OfflineLocations.txt")); }

  TemporaryFolder folder_;
  ProgramState state_;
  MemorySettingsStore store_;
  RecordingMessageBoxes boxes_;
  LoggingWindows windows_;
  Shutdown shutdown_{state_, store_, boxes_, windows_, QLocale(QLocale::English, QLocale::UnitedStates)};
};

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
  state_.onlineListRead = folder_.pathOf(QStringLiteral("Locations.txt_music"));
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

// Lists that start-up could not read.

TEST_F(ShutdownTest, AnUnreadListIsNotReplacedByAnEmptyTable) {
  state_.onlineListRead.clear();
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"a\",\"/a/\"\r\n\"half");
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "\"a\",\"/a/\"\r\n\"half");
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt.kept")));
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(ShutdownTest, WhereNothingWasReadAndNothingStandsAnEmptyTableWritesNothing) {
  state_.onlineListRead.clear();
  shutdown_.Form_Unload();
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt")));
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(ShutdownTest, AHalfReadListIsKeptBesideTheOneThatIsSaved) {
  addSources();
  state_.onlineListRead.clear();
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"My music\",\"/music/\"\r\n\"half");
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "\"My music\",\"/music/\"\r\n");
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt.kept")), "\"My music\",\"/music/\"\r\n\"half");
  const QString path = folder_.pathOf(QStringLiteral("Locations.txt"));
  EXPECT_EQ(boxes_.informed,
            std::vector<QString>(
                {QStringLiteral("The list ") + path +
                 QStringLiteral(" was not read completely when the program started.\r\nIt is kept as ") +
                 path + QStringLiteral(".kept, and the list as it is now is saved in its place.")}));
}

TEST_F(ShutdownTest, AnEarlierKeptListIsNotOverwritten) {
  addSources();
  state_.onlineListRead.clear();
  folder_.writeFile(QStringLiteral("Locations.txt"), "second");
  folder_.writeFile(QStringLiteral("Locations.txt.kept"), "first");
  shutdown_.Form_Unload();
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt.kept")), "first");
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt.kept2")), "second");
}

TEST_F(ShutdownTest, TheListOfAnotherDataFolderIsKept) {
  addSources();
  TemporaryFolder other;
  other.writeFile(QStringLiteral("Locations.txt"), "\"theirs\",\"/theirs/\"\r\n");
  state_.LocalFolder = other.path();
  shutdown_.Form_Unload();
  EXPECT_EQ(other.readFile(QStringLiteral("Locations.txt")), "\"My music\",\"/music/\"\r\n");
  EXPECT_EQ(other.readFile(QStringLiteral("Locations.txt.kept")), "\"theirs\",\"/theirs/\"\r\n");
  const QString path = other.pathOf(QStringLiteral("Locations.txt"));
  EXPECT_EQ(boxes_.informed,
            std::vector<QString>(
                {QStringLiteral("The list ") + path +
                 QStringLiteral(" was not read, since its folder became the data folder only later.\r\nIt is "
                                "kept as ") +
                 path + QStringLiteral(".kept, and the list as it is now is saved in its place.")}));
}

TEST_F(ShutdownTest, TheListOfAnotherDataFolderIsNotReplacedByAnEmptyTable) {
  TemporaryFolder other;
  other.writeFile(QStringLiteral("Locations.txt"), "\"theirs\",\"/theirs/\"\r\n");
  state_.LocalFolder = other.path();
  shutdown_.Form_Unload();
  EXPECT_EQ(other.readFile(QStringLiteral("Locations.txt")), "\"theirs\",\"/theirs/\"\r\n");
  EXPECT_EQ(other.names(),
            QStringList({QStringLiteral("Locations.txt"), QStringLiteral("OfflineLocations.txt")}));
  EXPECT_TRUE(boxes_.informed.empty()) << "Nothing is lost, so nothing is reported.";
}

// The folder of the lists that were read, written in another way.

class OtherSpelling : public ShutdownTest {
 protected:
  OtherSpelling() {
    folder_.writeFile(QStringLiteral("Locations.txt"), "\"old\",\"/old/\"\r\n");
    folder_.writeFile(QStringLiteral("OfflineLocations.txt"), "\"old\",\"/old.txt\"\r\n");
  }

  void expectNothingKeptAndNothingTold() {
    EXPECT_EQ(folder_.names(),
              QStringList({QStringLiteral("Locations.txt"), QStringLiteral("OfflineLocations.txt"),
                           QStringLiteral("any.txt")}));
    EXPECT_TRUE(boxes_.informed.empty());
  }
};

TEST_F(OtherSpelling, AnEmptiedListIsSavedEmpty) {
  state_.LocalFolder = folder_.path() + QStringLiteral("./");
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "");
  EXPECT_EQ(offlineList(), "");
  expectNothingKeptAndNothingTold();
}

TEST_F(OtherSpelling, AListIsSavedWithoutACopy) {
  addSources();
  state_.LocalFolder = folder_.path() + QStringLiteral("./");
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "\"My music\",\"/music/\"\r\n");
  EXPECT_EQ(offlineList(), "\"Offline\",\"/lists/a,b.txt\"\r\n\"Offline\",\"/lists/c.txt\"\r\n");
  expectNothingKeptAndNothingTold();
}

TEST_F(OtherSpelling, ALinkToTheFolderIsTheFolder) {
  TemporaryFolder links;
  ASSERT_TRUE(QFile::link(folder_.path().chopped(1), links.pathOf(QStringLiteral("data"))));
  state_.LocalFolder = links.pathOf(QStringLiteral("data")) + QDir::separator();
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "");
  EXPECT_EQ(offlineList(), "");
  expectNothingKeptAndNothingTold();
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

// Start-up and shutdown together.

TEST_F(StartUpTest, WhatShutdownSavedStartUpRestores) {
  data_.writeFile(QStringLiteral("any.txt"), "x");
  saved(QStringLiteral("LocalFolder"), data_.path());
  start();
  state_.NickName = QStringLiteral("Ann");
  state_.JoinDate = 38306;
  state_.OnlineSources.set(1, QStringLiteral("a,b"), QStringLiteral("/c d/"));
  state_.OnlineSourceCount = 1;
  LoggingWindows windows;
  Shutdown(state_, store_, boxes_, windows, conditions_.locale).Form_Unload();

  ProgramState again;
  startOf(again);
  EXPECT_EQ(again.NickName, QStringLiteral("Ann"));
  EXPECT_EQ(again.JoinDate, 38306);
  EXPECT_EQ(again.OnlineSourceCount, 1);
  EXPECT_EQ(again.OnlineSources.description(1), QStringLiteral("a,b"));
  EXPECT_EQ(again.OnlineSources.path(1), QStringLiteral("/c d/"));
  EXPECT_EQ(view_.twips.at(PlacementKey::Width), 2015.5F);
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(StartUpTest, ABrokenListAtStartUpCostsNothingAtShutdown) {
  const QByteArray broken = "\"one\",\"/1/\"\r\n\"half\r\n";
  data_.writeFile(QStringLiteral("Locations.txt"), broken);
  const QByteArray offline = "\"Offline\",\"/lists/cds.txt\"\r\n";
  data_.writeFile(QStringLiteral("OfflineLocations.txt"), offline);
  saved(QStringLiteral("LocalFolder"), data_.path());
  start();
  ASSERT_EQ(boxes_.informed.size(), 1U);
  EXPECT_EQ(state_.OnlineSourceCount, 1);
  LoggingWindows windows;
  Shutdown(state_, store_, boxes_, windows, conditions_.locale).Form_Unload();
  EXPECT_EQ(data_.readFile(QStringLiteral("Locations.txt")), "\"one\",\"/1/\"\r\n");
  EXPECT_EQ(data_.readFile(QStringLiteral("Locations.txt.kept")), broken);
  EXPECT_EQ(data_.readFile(QStringLiteral("OfflineLocations.txt")), offline);
}

}  // namespace
}  // namespace quorvin
