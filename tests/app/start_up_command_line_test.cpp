// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/start_up_fixture.h"
#include "support/qt_printing.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString kNotFound =
    QStringLiteral("Could not find file specified on command line. Using default file.");

TEST_F(StartUpTest, AnExistingFileGetsASettingsSetAndAnOnlineListOfItsOwn) {
  const QString listing = QStringLiteral("D:\\lists\\music.txt");
  writeInCurrentFolder(listing, "");
  startWithCommandLine(listing, kWindowsPaths);
  EXPECT_EQ(state_.RegKey, QStringLiteral("D:\\lists\\music.txt"));
  EXPECT_EQ(state_.LocFile, QStringLiteral("Locations.txt_music"));
  EXPECT_EQ(state_.OffLineFile, QStringLiteral("OfflineLocations.txt"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("D:\\lists\\music.txt"));
  ASSERT_EQ(store_.reads.size(), 10U);
  for (const auto& access : store_.reads) EXPECT_EQ(access.application, listing);
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(StartUpTest, AnExistingFileGetsASettingsSetAndAnOnlineListOfItsOwnOnUnix) {
  const QString listing = data_.writeFile(QStringLiteral("music.txt"), "");
  startWithCommandLine(listing, kUnixPaths);
  EXPECT_EQ(state_.RegKey, listing);
  EXPECT_EQ(state_.LocFile, QStringLiteral("Locations.txt_music"));
  EXPECT_EQ(state_.OffLineFile, QStringLiteral("OfflineLocations.txt"));
  EXPECT_EQ(state_.TextFile, listing);
  ASSERT_EQ(store_.reads.size(), 10U);
  for (const auto& access : store_.reads) EXPECT_EQ(access.application, listing);
}

TEST_F(StartUpTest, TheWindowNamesAListingThatIsThere) {
  const QString listing = data_.writeFile(QStringLiteral("music.txt"), "");
  startWithCommandLine(listing, kUnixPaths);
  EXPECT_EQ(view_.listingShown, listing);
}

TEST_F(StartUpTest, AFileWithoutADotInItsNameGivesTheWholePathToTheOnlineList) {
  writeInCurrentFolder(QStringLiteral("D:\\lists\\music"), "");
  startWithCommandLine(QStringLiteral("D:\\lists\\music"), kWindowsPaths);
  EXPECT_EQ(state_.LocFile, QStringLiteral("Locations.txt_D:\\lists\\music"));
}

TEST_F(StartUpTest, AFileWithoutADotInItsNameGivesTheWholePathToTheOnlineListOnUnix) {
  const QString listing = data_.writeFile(QStringLiteral("music"), "");
  startWithCommandLine(listing, kUnixPaths);
  EXPECT_EQ(state_.LocFile, QStringLiteral("Locations.txt_") + listing);
}

TEST_F(StartUpTest, AFilesOwnOnlineListIsLoadedAndTheOfflineListShared) {
  writeInCurrentFolder(QStringLiteral("music.txt"), "");
  data_.writeFile(QStringLiteral("Locations.txt"), "\"wrong\",\"/wrong/\"\r\n");
  data_.writeFile(QStringLiteral("Locations.txt_music"), "\"Music\",\"/music/\"\r\n");
  data_.writeFile(QStringLiteral("OfflineLocations.txt"), "\"CDs\",\"/cds.txt\"\r\n");
  store_.put(QStringLiteral("music.txt"), QStringLiteral("LocalFolder"), data_.path());
  startWithCommandLine(QStringLiteral("music.txt"), kUnixPaths);
  ASSERT_EQ(state_.OnlineSourceCount, 1);
  EXPECT_EQ(state_.OnlineSources.description(1), QStringLiteral("Music"));
  ASSERT_EQ(state_.OfflineSourceCount, 1);
  EXPECT_EQ(state_.OfflineSources.description(1), QStringLiteral("CDs"));
}

TEST_F(StartUpTest, AMissingFileIsToldAndOnlyBecomesTheDefaultDataFile) {
  startWithCommandLine(QStringLiteral("D:\\lists\\none.txt"), kWindowsPaths);
  EXPECT_THAT(boxes_.informed, ElementsAre(kNotFound));
  EXPECT_EQ(state_.RegKey, QStringLiteral("Ketta Quorvin"));
  EXPECT_EQ(state_.LocFile, QStringLiteral("Locations.txt"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("D:\\lists\\none.txt"));
  EXPECT_EQ(view_.listingShown, QString());
  EXPECT_EQ(log_.last(), QStringLiteral("events"));
}

TEST_F(StartUpTest, AMissingFileIsToldAndOnlyBecomesTheDefaultDataFileOnUnix) {
  startWithCommandLine(QStringLiteral("/no/such/none.txt"), kUnixPaths);
  EXPECT_THAT(boxes_.informed, ElementsAre(kNotFound));
  EXPECT_EQ(state_.RegKey, QStringLiteral("Ketta Quorvin"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("/no/such/none.txt"));
}

TEST_F(StartUpTest, AMissingFileIsKnownAsSuch) {
  startWithCommandLine(QStringLiteral("/no/such/none.txt"), kUnixPaths);
  EXPECT_EQ(state_.missingListing, QStringLiteral("/no/such/none.txt"));
}

TEST_F(StartUpTest, AnExistingFileIsNotMissing) {
  startWithCommandLine(data_.writeFile(QStringLiteral("music.txt"), ""), kUnixPaths);
  EXPECT_EQ(state_.missingListing, QString());
}

TEST_F(StartUpTest, AMissingFileGivesWayToTheSavedDataFile) {
  saved(QStringLiteral("TextFile"), QStringLiteral("main.txt"));
  startWithCommandLine(QStringLiteral("none.txt"), kUnixPaths);
  EXPECT_EQ(state_.TextFile, QStringLiteral("main.txt"));
}

TEST_F(StartUpTest, AQuotedPathIsLookedUpWithItsQuotes) {
  writeInCurrentFolder(QStringLiteral("D:\\my lists\\music.txt"), "");
  startWithCommandLine(QStringLiteral("\"D:\\my lists\\music.txt\""), kWindowsPaths);
  EXPECT_THAT(boxes_.informed, ElementsAre(kNotFound));
  EXPECT_EQ(state_.TextFile, QStringLiteral("\"D:\\my lists\\music.txt\""));
  EXPECT_EQ(state_.RegKey, QStringLiteral("Ketta Quorvin"));
}

TEST_F(StartUpTest, AQuotedPathIsLookedUpWithItsQuotesOnUnix) {
  const QString listing = data_.writeFile(QStringLiteral("my music.txt"), "");
  const QString quoted = u'"' + listing + u'"';
  startWithCommandLine(quoted, kUnixPaths);
  EXPECT_THAT(boxes_.informed, ElementsAre(kNotFound));
  EXPECT_EQ(state_.TextFile, quoted);
}

TEST_F(StartUpTest, ACommandLineWithBlanksIsOnePath) {
  const QString listing = data_.writeFile(QStringLiteral("my best music.txt"), "");
  startWithCommandLine(listing, kUnixPaths);
  EXPECT_EQ(state_.LocFile, QStringLiteral("Locations.txt_my best music"));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(StartUpTest, AFolderOnTheCommandLineIsNotAFile) {
  startWithCommandLine(data_.path(), kUnixPaths);
  EXPECT_THAT(boxes_.informed, ElementsAre(kNotFound));
}

TEST_F(StartUpTest, DefaultsFileIsNotReadWithACommandLine) {
  // So short a file would be a start-up error if it were read.
  current_.writeFile(QStringLiteral("defaults.txt"), "/lists/\r\n");
  startWithCommandLine(QStringLiteral("none.txt"), kUnixPaths);
  EXPECT_THAT(boxes_.informed, ElementsAre(kNotFound));
  EXPECT_EQ(state_.LocalFolder, current_.path());
}

}  // namespace
}  // namespace quorvin
