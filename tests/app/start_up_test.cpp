// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/start_up_fixture.h"
#include "support/qt_printing.h"

#include <QDateTime>
#include <gmock/gmock.h>

namespace quorvin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(StartUpTest, GoesThroughItsStepsInOrder) {
  start();
  EXPECT_EQ(log_, QStringList({QStringLiteral("lblVer Ver:2.5(64)"), QStringLiteral("WebUpdate off"),
                               QStringLiteral("read Top"), QStringLiteral("set Top 1500"),
                               QStringLiteral("read Left"), QStringLiteral("set Left 3000"),
                               QStringLiteral("read Width"), QStringLiteral("set Width 9000"),
                               QStringLiteral("read Height"), QStringLiteral("set Height 6000"),
                               QStringLiteral("read LocalFolder"), QStringLiteral("read TextFile"),
                               QStringLiteral("read ArchiveFile"), QStringLiteral("read WebServer"),
                               QStringLiteral("read JoinDate"), QStringLiteral("read NickName"),
                               QStringLiteral("events")}));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(StartUpTest, FirstRunStartsFromTheProgramsFolderAndToday) {
  start();
  EXPECT_EQ(state_.RegKey, QStringLiteral("Ketta Quorvin"));
  EXPECT_EQ(state_.LocFile, QStringLiteral("Locations.txt"));
  EXPECT_EQ(state_.OffLineFile, QStringLiteral("OfflineLocations.txt"));
  EXPECT_EQ(state_.LocalFolder, current_.path());
  EXPECT_EQ(state_.TextFile, QString());
  EXPECT_EQ(state_.ArchiveFile, QString());
  EXPECT_EQ(state_.WebServer, QString());
  EXPECT_EQ(state_.NickName, QString());
  EXPECT_NEAR(state_.JoinDate, 38001.5, 0.5 / 86400);
  EXPECT_EQ(view_.twips.at(PlacementKey::Top), 1500);
  EXPECT_EQ(view_.twips.at(PlacementKey::Left), 3000);
  EXPECT_EQ(view_.twips.at(PlacementKey::Width), 9000);
  EXPECT_EQ(view_.twips.at(PlacementKey::Height), 6000);
  EXPECT_EQ(state_.OnlineSourceCount, 0);
  EXPECT_EQ(state_.OfflineSourceCount, 0);
}

TEST_F(StartUpTest, TheProgramsFolderGetsOneSeparatorOfItsStyle) {
  programFolder_ = QStringLiteral("C:\\Quorvin");
  conditions_.pathStyle = kWindowsPaths;
  start();
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("C:\\Quorvin\\"));
}

TEST_F(StartUpTest, TheProgramsFolderGetsOneSeparatorOfItsStyleOnUnix) {
  programFolder_ = QStringLiteral("/opt/quorvin");
  start();
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/opt/quorvin/"));
}

TEST_F(StartUpTest, ASavedEmptyLocalFolderIsReplacedAtEveryStart) {
  saved(QStringLiteral("LocalFolder"), QString());
  start();
  EXPECT_EQ(state_.LocalFolder, current_.path());
  programFolder_ = data_.path();
  start();
  EXPECT_EQ(state_.LocalFolder, data_.path());
}

TEST_F(StartUpTest, ASavedEmptyLocalFolderIsReplacedEvenWithADefaultsFile) {
  current_.writeFile(QStringLiteral("defaults.txt"), "/elsewhere/\r\n\r\n\r\n\r\n");
  saved(QStringLiteral("LocalFolder"), QString());
  start();
  EXPECT_EQ(state_.LocalFolder, current_.path());
}

TEST_F(StartUpTest, WhatKilledProgramsLeftInTheDataFolderIsRemoved) {
  // No process has so high a number.
  const QString left = QStringLiteral(".quorvin-999999999-0123456789abcdef.part");
  data_.writeFile(left, "half a lis");
  data_.writeFile(QStringLiteral("Music.tmp"), "mine");
  for (const QString& list :
       {QStringLiteral("Locations.txt.bXcQwz"), QStringLiteral("OfflineLocations.txt.aBCdef")}) {
    QFile file(data_.writeFile(list, "half a list of an earlier version"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        file.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime));
  }
  saved(QStringLiteral("LocalFolder"), data_.path());
  start();
  // Nobody has to wait for that before the window is there.
  EXPECT_TRUE(data_.has(left));
  EXPECT_TRUE(data_.has(QStringLiteral("Locations.txt.bXcQwz")));
  paint();
  EXPECT_FALSE(data_.has(left));
  EXPECT_FALSE(data_.has(QStringLiteral("Locations.txt.bXcQwz")));
  EXPECT_FALSE(data_.has(QStringLiteral("OfflineLocations.txt.aBCdef")));
  EXPECT_TRUE(data_.has(QStringLiteral("Music.tmp")));
}

TEST_F(StartUpTest, TheProgramsFolderIsNotAskedForWhenAFolderIsSaved) {
  saved(QStringLiteral("LocalFolder"), data_.path());
  conditions_.programFolder = []() -> QString { throw RuntimeFault(FaultNumber::PathFileAccess); };
  start();
  EXPECT_EQ(state_.LocalFolder, data_.path());
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(StartUpTest, AProgramFolderThatCannotBeMadeIsAStartUpError) {
  conditions_.programFolder = []() -> QString { throw RuntimeFault(FaultNumber::PathFileAccess); };
  start();
  EXPECT_THAT(boxes_.informed, ElementsAre(QStringLiteral("Statup error: 75 Path/File access error")));
}

TEST_F(StartUpTest, SavedPlacementMovesTheWindow) {
  saved(QStringLiteral("Top"), QStringLiteral("15"));
  saved(QStringLiteral("Left"), QStringLiteral("30"));
  saved(QStringLiteral("Width"), QStringLiteral("12000"));
  saved(QStringLiteral("Height"), QStringLiteral("7500.5"));
  start();
  EXPECT_EQ(view_.twips.at(PlacementKey::Top), 15);
  EXPECT_EQ(view_.twips.at(PlacementKey::Left), 30);
  EXPECT_EQ(view_.twips.at(PlacementKey::Width), 12000);
  EXPECT_EQ(view_.twips.at(PlacementKey::Height), 7500.5F);
}

TEST_F(StartUpTest, DefaultsFileGivesTheDefaultsOfAFirstRun) {
  current_.writeFile(QStringLiteral("defaults.txt"),
                     "/lists/\r\nmain.txt\r\nmain.zip\r\nlists.example.org\r\n");
  start();
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/lists/"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("main.txt"));
  EXPECT_EQ(state_.ArchiveFile, QStringLiteral("main.zip"));
  EXPECT_EQ(state_.WebServer, QStringLiteral("lists.example.org"));
  EXPECT_TRUE(view_.webUpdateEnabled);
}

TEST_F(StartUpTest, DefaultsFileNeverOverridesWhatIsSaved) {
  current_.writeFile(QStringLiteral("defaults.txt"),
                     "D:\\Lists\\\r\nmain.txt\r\nmain.zip\r\nlists.example.org\r\n");
  saved(QStringLiteral("LocalFolder"), QStringLiteral("D:\\Mine\\"));
  saved(QStringLiteral("TextFile"), QStringLiteral("mine.txt"));
  saved(QStringLiteral("ArchiveFile"), QStringLiteral("mine.zip"));
  saved(QStringLiteral("WebServer"), QStringLiteral("mine.example.org"));
  start();
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("D:\\Mine\\"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("mine.txt"));
  EXPECT_EQ(state_.ArchiveFile, QStringLiteral("mine.zip"));
  EXPECT_EQ(state_.WebServer, QStringLiteral("mine.example.org"));
}

TEST_F(StartUpTest, DefaultsFileInTheLocalFolderIsNotRead) {
  data_.writeFile(QStringLiteral("defaults.txt"), "/lists/\r\nmain.txt\r\nmain.zip\r\nx\r\n");
  saved(QStringLiteral("LocalFolder"), data_.path());
  start();
  EXPECT_EQ(state_.TextFile, QString());
}

TEST_F(StartUpTest, AShortDefaultsFileEndsStartUp) {
  current_.writeFile(QStringLiteral("defaults.txt"), "/lists/\r\nmain.txt\r\nmain.zip\r\n");
  start();
  EXPECT_THAT(boxes_.informed,
              ElementsAre(QStringLiteral("Statup error: 62 Input past end of file: defaults.txt")));
  EXPECT_EQ(state_.TextFile, QStringLiteral("main.txt"));
  EXPECT_EQ(log_, QStringList({QStringLiteral("lblVer Ver:2.5(64)"), QStringLiteral("WebUpdate off")}));
}

TEST_F(StartUpTest, WebUpdateNeedsBothServerAndArchive) {
  saved(QStringLiteral("WebServer"), QStringLiteral("lists.example.org"));
  start();
  EXPECT_FALSE(view_.webUpdateEnabled);

  saved(QStringLiteral("ArchiveFile"), QStringLiteral("main.zip"));
  start();
  EXPECT_TRUE(view_.webUpdateEnabled);

  saved(QStringLiteral("WebServer"), QString());
  start();
  EXPECT_FALSE(view_.webUpdateEnabled);
}

TEST_F(StartUpTest, LoadsBothSourceLists) {
  data_.writeFile(QStringLiteral("Locations.txt"), "\"a,b\",\"c\"\r\n");
  data_.writeFile(QStringLiteral("OfflineLocations.txt"), "\"CDs\",\"D:\\cds.txt\"\r\n");
  saved(QStringLiteral("LocalFolder"), data_.path());
  start();
  ASSERT_EQ(state_.OnlineSourceCount, 1);
  EXPECT_EQ(state_.OnlineSources.description(1), QStringLiteral("a,b"));
  EXPECT_EQ(state_.OnlineSources.path(1), QStringLiteral("c"));
  ASSERT_EQ(state_.OfflineSourceCount, 1);
  EXPECT_EQ(state_.OfflineSources.path(1), QStringLiteral("D:\\cds.txt"));
}

QByteArray records(int count) {
  QByteArray bytes;
  for (int i = 1; i <= count; ++i) bytes += "\"source " + QByteArray::number(i) + "\",\"/music/\"\r\n";
  return bytes;
}

TEST_F(StartUpTest, Loads2000Records) {
  data_.writeFile(QStringLiteral("Locations.txt"), records(2000));
  saved(QStringLiteral("LocalFolder"), data_.path());
  start();
  EXPECT_EQ(state_.OnlineSourceCount, 2000);
  EXPECT_THAT(boxes_.informed, IsEmpty());
  EXPECT_EQ(log_.last(), QStringLiteral("events"));
}

TEST_F(StartUpTest, Record2001StopsStartUp) {
  data_.writeFile(QStringLiteral("Locations.txt"), records(2001));
  data_.writeFile(QStringLiteral("OfflineLocations.txt"), "\"CDs\",\"D:\\cds.txt\"\r\n");
  saved(QStringLiteral("LocalFolder"), data_.path());
  saved(QStringLiteral("NickName"), QStringLiteral("Ann"));
  start();
  EXPECT_THAT(boxes_.informed, ElementsAre(QStringLiteral("Statup error: 9 Subscript out of range: ") +
                                           data_.pathOf(QStringLiteral("Locations.txt")) +
                                           QStringLiteral(" holds more than 2000 records")));
  EXPECT_EQ(state_.OnlineSourceCount, 2000);
  EXPECT_EQ(state_.OnlineSources.description(2000), QStringLiteral("source 2000"));
  EXPECT_EQ(state_.OfflineSourceCount, 0);
  EXPECT_EQ(state_.NickName, QStringLiteral("Ann"));
  EXPECT_EQ(log_.last(), QStringLiteral("read NickName"));
}

TEST_F(StartUpTest, AnUnreadableJoinDateEndsStartUp) {
  saved(QStringLiteral("JoinDate"), QStringLiteral("some day"));
  start();
  EXPECT_THAT(boxes_.informed,
              ElementsAre(QStringLiteral("Statup error: 13 Type mismatch: \"some day\" is not a date")));
  EXPECT_EQ(log_.last(), QStringLiteral("read JoinDate"));
}

}  // namespace
}  // namespace quorvin
