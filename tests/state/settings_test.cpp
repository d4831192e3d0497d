// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/settings.h"

#include "faults/runtime_fault.h"
#include "state/source_list_file.h"
#include "support/fault_number.h"
#include "support/memory_settings_store.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace quorvin {
namespace {

using testing::ElementsAre;

const QString kApplication = QStringLiteral("Ketta Quorvin");

class FakeWindow {
 public:
  float placement(PlacementKey key) const { return values[static_cast<std::size_t>(key)]; }
  void setPlacement(PlacementKey key, float twips) {
    values[static_cast<std::size_t>(key)] = twips;
    changes.push_back(key);
  }

  /// Top, left, width, height.
  std::vector<float> values = {1500, 3000, 9000, 6000};
  std::vector<PlacementKey> changes;
};

int faultOfPlacement(const QString& text) {
  try {
    placementValue(text);
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

QStringList keysRead(const MemorySettingsStore& store) {
  QStringList keys;
  for (const auto& access : store.reads) keys += access.key;
  return keys;
}

const DateValue kJanuary2004 = 38001 + (14 * 3600 + 30 * 60 + 5) / 86400.0;
const QLocale kAmerican(QLocale::English, QLocale::UnitedStates);

class Settings : public testing::Test {
 protected:
  Settings() { state_.resetFileNames(); }

  void readWindowPlace() {
    readPlacement(
        store_, state_, [this](PlacementKey key) { return window_.placement(key); },
        [this](PlacementKey key, float twips) { window_.setPlacement(key, twips); });
  }
  void writeWindowPlace() {
    writePlacement(store_, state_, [this](PlacementKey key) { return window_.placement(key); });
  }

  MemorySettingsStore store_;
  ProgramState state_;
  FakeWindow window_;
};

TEST(PlacementText, IsAPlainNumber) {
  EXPECT_EQ(placementText(1500), QStringLiteral("1500"));
  EXPECT_EQ(placementText(-120), QStringLiteral("-120"));
  EXPECT_EQ(placementText(0), QStringLiteral("0"));
  EXPECT_EQ(placementText(1234.5F), QStringLiteral("1234.5"));
  EXPECT_EQ(placementText(0.1F), QStringLiteral("0.1"));
  EXPECT_EQ(placementText(100000), QStringLiteral("100000"));
}

TEST(PlacementText, ComesBackAsTheSameNumber) {
  for (const float twips : {0.0F, -15.0F, 4.75F, 1234.567F, 16777216.0F, 1e-20F, 3e38F}) {
    EXPECT_EQ(placementValue(placementText(twips)), twips);
  }
}

TEST(PlacementValue, TakesTheNumberAtTheFront) {
  EXPECT_EQ(placementValue(QStringLiteral("  1500 twips")), 1500.0F);
  EXPECT_EQ(placementValue(QStringLiteral(" 300")), 300.0F);
  EXPECT_EQ(placementValue(QStringLiteral("   5")), 5.0F);
  EXPECT_EQ(placementValue(QStringLiteral("-12.5")), -12.5F);
  EXPECT_EQ(placementValue(QStringLiteral("1.5E3")), 1500.0F);
}

TEST(PlacementValue, FaultsWithoutANumber) {
  EXPECT_EQ(faultOfPlacement(QString()), 13);
  EXPECT_EQ(faultOfPlacement(QStringLiteral("wide")), 13);
  EXPECT_EQ(faultOfPlacement(QStringLiteral("-")), 13);
  EXPECT_EQ(faultOfPlacement(QStringLiteral("nan")), 13);
}

TEST(PlacementValue, FaultsWhenSinglePrecisionCannotHoldIt) {
  EXPECT_EQ(faultOfPlacement(QStringLiteral("1e39")), 6);
  EXPECT_EQ(faultOfPlacement(QStringLiteral("-1e300")), 6);
}

TEST_F(Settings, PlacementIsReadInOrderWithTheWindowsOwnAsDefault) {
  readWindowPlace();
  EXPECT_EQ(keysRead(store_), QStringList({QStringLiteral("Top"), QStringLiteral("Left"),
                                           QStringLiteral("Width"), QStringLiteral("Height")}));
  ASSERT_EQ(store_.reads.size(), 4U);
  EXPECT_EQ(store_.reads[0].application, kApplication);
  EXPECT_EQ(store_.reads[0].section, QStringLiteral("Settings"));
  EXPECT_EQ(store_.reads[0].value, QStringLiteral("1500"));
  EXPECT_EQ(store_.reads[3].value, QStringLiteral("6000"));
  EXPECT_THAT(window_.values, ElementsAre(1500, 3000, 9000, 6000));
}

TEST_F(Settings, PlacementIsAppliedFourTimes) {
  store_.put(kApplication, QStringLiteral("Top"), QStringLiteral("15"));
  store_.put(kApplication, QStringLiteral("Left"), QStringLiteral("30.5"));
  store_.put(kApplication, QStringLiteral("Width"), QStringLiteral("12000"));
  store_.put(kApplication, QStringLiteral("Height"), QStringLiteral("7500"));
  readWindowPlace();
  EXPECT_THAT(window_.values, ElementsAre(15, 30.5F, 12000, 7500));
  EXPECT_THAT(window_.changes,
              ElementsAre(PlacementKey::Top, PlacementKey::Left, PlacementKey::Width, PlacementKey::Height));
}

TEST_F(Settings, AnUnreadablePlacementFaultsAndKeepsThoseBefore) {
  store_.put(kApplication, QStringLiteral("Top"), QStringLiteral("15"));
  store_.put(kApplication, QStringLiteral("Left"), QStringLiteral("far left"));
  EXPECT_FAULT(readWindowPlace(), 13);
  EXPECT_THAT(window_.values, ElementsAre(15, 3000, 9000, 6000));
}

TEST_F(Settings, AreReadInOrder) {
  readSettings(store_, state_, kJanuary2004, kAmerican);
  EXPECT_EQ(keysRead(store_), QStringList({QStringLiteral("LocalFolder"), QStringLiteral("TextFile"),
                                           QStringLiteral("ArchiveFile"), QStringLiteral("WebServer"),
                                           QStringLiteral("JoinDate"), QStringLiteral("NickName")}));
}

TEST_F(Settings, AreReadFromTheStateApplicationName) {
  state_.RegKey = QStringLiteral("D:\\lists\\music.txt");
  store_.put(kApplication, QStringLiteral("NickName"), QStringLiteral("wrong"));
  store_.put(state_.RegKey, QStringLiteral("NickName"), QStringLiteral("Ann"));
  readSettings(store_, state_, kJanuary2004, kAmerican);
  EXPECT_EQ(state_.NickName, QStringLiteral("Ann"));
}

TEST_F(Settings, TakeWhatTheStateHoldsAsDefault) {
  state_.LocalFolder = QStringLiteral("D:\\Lists\\");
  state_.TextFile = QStringLiteral("main.txt");
  state_.ArchiveFile = QStringLiteral("main.zip");
  state_.WebServer = QStringLiteral("lists.example.org");
  store_.put(kApplication, QStringLiteral("TextFile"), QStringLiteral("saved.txt"));
  readSettings(store_, state_, kJanuary2004, kAmerican);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("D:\\Lists\\"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("saved.txt"));
  EXPECT_EQ(state_.ArchiveFile, QStringLiteral("main.zip"));
  EXPECT_EQ(state_.WebServer, QStringLiteral("lists.example.org"));
}

TEST_F(Settings, AnEmptySavedTextIsNotAbsent) {
  state_.WebServer = QStringLiteral("lists.example.org");
  store_.put(kApplication, QStringLiteral("WebServer"), QString());
  readSettings(store_, state_, kJanuary2004, kAmerican);
  EXPECT_EQ(state_.WebServer, QString());
}

TEST_F(Settings, TheJoinDateIsNowWhenAbsent) {
  readSettings(store_, state_, kJanuary2004, kAmerican);
  EXPECT_NEAR(state_.JoinDate, kJanuary2004, 0.5 / 86400);
}

TEST_F(Settings, ASavedJoinDateIsKept) {
  store_.put(kApplication, QStringLiteral("JoinDate"), QStringLiteral("1/15/2004 2:30:05 PM"));
  readSettings(store_, state_, 45000, kAmerican);
  EXPECT_NEAR(state_.JoinDate, kJanuary2004, 0.5 / 86400);
}

TEST_F(Settings, AnUnreadableJoinDateFaultsAndKeepsWhatWasReadBefore) {
  store_.put(kApplication, QStringLiteral("TextFile"), QStringLiteral("saved.txt"));
  store_.put(kApplication, QStringLiteral("JoinDate"), QStringLiteral("some day"));
  try {
    readSettings(store_, state_, kJanuary2004, kAmerican);
    FAIL() << "the date was read";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 13);
    EXPECT_EQ(fault.description(), QStringLiteral("Type mismatch: \"some day\" is not a date"));
  }
  EXPECT_EQ(state_.TextFile, QStringLiteral("saved.txt"));
}

TEST_F(Settings, OnlyAnEmptyLocalFolderBecomesTheProgramsOwn) {
  completeLocalFolder(state_, [] { return QStringLiteral("C:\\Quorvin\\"); });
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("C:\\Quorvin\\"));
  completeLocalFolder(state_, [] { return QStringLiteral("/opt/quorvin/"); });
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("C:\\Quorvin\\"));
}

TEST_F(Settings, ALocalFolderWithoutASeparatorAtItsEndGetsOne) {
  const auto notAsked = []() -> QString { throw RuntimeFault(FaultNumber::PathFileAccess); };
  state_.LocalFolder = QStringLiteral("/home/ann/local");
  completeLocalFolder(state_, notAsked);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/home/ann/local/"));
  completeLocalFolder(state_, notAsked);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/home/ann/local/"));
  state_.LocalFolder = QStringLiteral("D:\\Lists\\");
  completeLocalFolder(state_, notAsked);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("D:\\Lists\\"));
}

TEST(ValidDataFolder, IsNeverTheCurrentFolderByAnEmptyName) {
  const TemporaryFolder current;
  current.writeFile(QStringLiteral("any.txt"), "x");
  const CurrentFolder inCurrent(current.path());
  EXPECT_FALSE(isValidDataFolder(QString()));
  EXPECT_TRUE(isValidDataFolder(current.path()));
}

TEST_F(Settings, MissingSourceListsLeaveTheTablesEmpty) {
  const TemporaryFolder folder;
  state_.LocalFolder = folder.path();
  loadSourceLists(state_);
  EXPECT_EQ(state_.OnlineSourceCount, 0);
  EXPECT_EQ(state_.OfflineSourceCount, 0);
}

TEST_F(Settings, BothSourceListsAreLoadedFromTheLocalFolder) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("Locations.txt"), "\"Music\",\"/music/\"\r\n");
  folder.writeFile(QStringLiteral("OfflineLocations.txt"),
                   "\"CDs\",\"/cds.txt\"\r\n\"Old\",\"/old.txt\"\r\n");
  state_.LocalFolder = folder.path();
  loadSourceLists(state_);
  ASSERT_EQ(state_.OnlineSourceCount, 1);
  EXPECT_EQ(state_.OnlineSources.path(1), QStringLiteral("/music/"));
  ASSERT_EQ(state_.OfflineSourceCount, 2);
  EXPECT_EQ(state_.OfflineSources.description(2), QStringLiteral("Old"));
}

TEST_F(Settings, AFaultInTheOnlineListLeavesTheOfflineListUnread) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("Locations.txt"), "\"Music\",\"/music/\"\r\n\"half\"\r\n");
  folder.writeFile(QStringLiteral("OfflineLocations.txt"), "\"CDs\",\"/cds.txt\"\r\n");
  state_.LocalFolder = folder.path();
  EXPECT_FAULT(loadSourceLists(state_), 62);
  EXPECT_EQ(state_.OnlineSourceCount, 1);
  EXPECT_EQ(state_.OfflineSourceCount, 0);
}

// What start-up could not read.

class AfterAFailedStart : public Settings {
 protected:
  AfterAFailedStart() {
    for (const char* key : {"LocalFolder", "TextFile", "ArchiveFile", "WebServer", "NickName"}) {
      store_.put(kApplication, QString::fromLatin1(key), QStringLiteral("/stored/"));
    }
  }

  /// Start-up has ended without reading the settings.
  void endStartUp() {
    noteSettingsAtStart(store_, state_, kAmerican, [] { return QStringLiteral("/program/"); });
  }
  QString stored(const char* key) const { return store_.stored(kApplication, QString::fromLatin1(key)); }
};

TEST_F(AfterAFailedStart, WhatWasNotReadIsNotWritten) {
  state_.LocalFolder = QStringLiteral("/from the defaults/");
  state_.TextFile = QStringLiteral("/no/such.txt");
  endStartUp();
  writeSettings(store_, state_, kAmerican);
  EXPECT_TRUE(store_.writes.empty());
}

TEST_F(AfterAFailedStart, WhatTheUserHasChangedIsWritten) {
  state_.TextFile = QStringLiteral("/no/such.txt");
  endStartUp();
  state_.WebServer = QStringLiteral("lists.example.org");
  state_.NickName = QStringLiteral("Ann");
  state_.JoinDate = kJanuary2004;
  writeSettings(store_, state_, kAmerican);
  EXPECT_EQ(store_.writes.size(), 3U);
  EXPECT_EQ(stored("TextFile"), QStringLiteral("/stored/"));
  EXPECT_EQ(stored("WebServer"), QStringLiteral("lists.example.org"));
  EXPECT_EQ(stored("NickName"), QStringLiteral("Ann"));
  EXPECT_EQ(stored("JoinDate"), QStringLiteral("1/15/2004 2:30:05 PM"));
}

TEST_F(AfterAFailedStart, ASettingThatIsEmptiedByTheUserIsWrittenEmpty) {
  state_.TextFile = QStringLiteral("main.txt");
  endStartUp();
  state_.TextFile.clear();
  writeSettings(store_, state_, kAmerican);
  EXPECT_EQ(stored("TextFile"), QString());
}

TEST_F(AfterAFailedStart, WhatWasReadBeforeTheFaultIsWritten) {
  store_.put(kApplication, QStringLiteral("JoinDate"), QStringLiteral("some day"));
  EXPECT_FAULT(readSettings(store_, state_, kJanuary2004, kAmerican), 13);
  endStartUp();
  writeSettings(store_, state_, kAmerican);
  ASSERT_EQ(store_.writes.size(), 4U);
  EXPECT_EQ(store_.writes.back().key, QStringLiteral("WebServer"));
  EXPECT_EQ(stored("JoinDate"), QStringLiteral("some day"));
}

TEST_F(AfterAFailedStart, TheDataFolderIsTheStoredOne) {
  endStartUp();
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/stored/"));
  writeSettings(store_, state_, kAmerican);
  EXPECT_TRUE(store_.writes.empty());
}

TEST_F(AfterAFailedStart, WithoutAStoredDataFolderItIsThePrograms) {
  store_.put(kApplication, QStringLiteral("LocalFolder"), QString());
  endStartUp();
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/program/"));
  writeSettings(store_, state_, kAmerican);
  EXPECT_TRUE(store_.writes.empty());
}

TEST_F(AfterAFailedStart, AStoreThatCannotBeReadLeavesTheProgramsFolder) {
  store_.refusesReads = true;
  endStartUp();
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/program/"));
}

TEST_F(AfterAFailedStart, OnlyAPlaceThatIsNoNumberIsReplaced) {
  store_.put(kApplication, QStringLiteral("Top"), QStringLiteral("15"));
  store_.put(kApplication, QStringLiteral("Left"), QStringLiteral("far left"));
  store_.put(kApplication, QStringLiteral("Width"), QStringLiteral("12000"));
  store_.put(kApplication, QStringLiteral("Height"), QStringLiteral("1e39"));
  EXPECT_FAULT(readWindowPlace(), 13);
  writeWindowPlace();
  EXPECT_EQ(stored("Top"), QStringLiteral("15"));
  EXPECT_EQ(stored("Left"), QStringLiteral("3000"));
  EXPECT_EQ(stored("Width"), QStringLiteral("12000"));
  EXPECT_EQ(stored("Height"), QStringLiteral("6000"));
}

TEST_F(AfterAFailedStart, AStoreThatCannotBeReadKeepsNobodyFromLeaving) {
  store_.refusesReads = true;
  endStartUp();
  writeSettings(store_, state_, kAmerican);
  writeWindowPlace();
  EXPECT_TRUE(store_.writes.empty());
}

TEST(ProgramState, AListingIsNamedByItsDescriptionWithoutBlanksAtTheEnds) {
  ProgramState state;
  state.LocalFolder = QStringLiteral("/lists/");
  EXPECT_EQ(state.onlineListingPath(QStringLiteral(" Old Music ")), QStringLiteral("/lists/Old Music.txt"));
}

TEST(ProgramStateSources, AnySourceOrTheNameOfAMainDataFileIsSomethingToSearch) {
  ProgramState none;
  EXPECT_FALSE(none.hasSources());
  ProgramState online;
  online.OnlineSourceCount = 1;
  EXPECT_TRUE(online.hasSources());
  ProgramState offline;
  offline.OfflineSourceCount = 1;
  EXPECT_TRUE(offline.hasSources());
  ProgramState mainDataFile;
  mainDataFile.TextFile = QStringLiteral("main.txt");
  EXPECT_TRUE(mainDataFile.hasSources());
}

}  // namespace
}  // namespace quorvin
