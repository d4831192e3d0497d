// SPDX-License-Identifier: GPL-2.0-or-later

// Start-up and shutdown together.
#include "app/shutdown_fixture.h"
#include "app/start_up_fixture.h"
#include "support/qt_printing.h"

namespace quorvin {
namespace {

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

TEST_F(StartUpTest, AShortDefaultsFileChangesNoSetting) {
  saved(QStringLiteral("LocalFolder"), data_.path());
  saved(QStringLiteral("TextFile"), QStringLiteral("mine.txt"));
  const auto before = store_.values;
  current_.writeFile(QStringLiteral("defaults.txt"), "/lists/\r\nmain.txt\r\n");
  start();
  ASSERT_EQ(boxes_.informed.size(), 1U);
  LoggingWindows windows;
  windows.minimized = true;
  Shutdown(state_, store_, boxes_, windows, conditions_.locale).Form_Unload();
  EXPECT_EQ(store_.values, before);
}

TEST_F(StartUpTest, ADamagedPlaceLeavesTheMainDataFileThatIsSaved) {
  saved(QStringLiteral("LocalFolder"), data_.path());
  saved(QStringLiteral("TextFile"), QStringLiteral("mine.txt"));
  saved(QStringLiteral("Top"), QStringLiteral("high up"));
  startWithCommandLine(QStringLiteral("/no/such.txt"), kUnixPaths);
  ASSERT_EQ(boxes_.informed.size(), 2U);
  LoggingWindows windows;
  Shutdown(state_, store_, boxes_, windows, conditions_.locale).Form_Unload();
  EXPECT_EQ(store_.stored(QStringLiteral("Ketta Quorvin"), QStringLiteral("TextFile")),
            QStringLiteral("mine.txt"));
  EXPECT_EQ(store_.stored(QStringLiteral("Ketta Quorvin"), QStringLiteral("Top")), QStringLiteral("15.5"));
}

TEST_F(StartUpTest, AStartThatFailsEarlyHasADataFolderForNewSources) {
  current_.writeFile(QStringLiteral("defaults.txt"), "");
  data_.writeFile(QStringLiteral("Locations.txt"), "\"mine\",\"/mine/\"\r\n");
  saved(QStringLiteral("LocalFolder"), data_.path());
  start();
  state_.OnlineSources.set(1, QStringLiteral("new"), QStringLiteral("/new/"));
  state_.OnlineSourceCount = 1;
  LoggingWindows windows;
  Shutdown(state_, store_, boxes_, windows, conditions_.locale).Form_Unload();
  EXPECT_FALSE(current_.has(QStringLiteral("Locations.txt")));
  EXPECT_EQ(data_.readFile(QStringLiteral("Locations.txt")), "\"new\",\"/new/\"\r\n");
  EXPECT_EQ(data_.readFile(QStringLiteral("Locations.txt.kept")), "\"mine\",\"/mine/\"\r\n");
}

}  // namespace
}  // namespace quorvin
