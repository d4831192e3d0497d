// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/start_up_fixture.h"
#include "support/qt_printing.h"

#include <QDateTime>
#include <gmock/gmock.h>

namespace quorvin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A data folder that is saved together with the names of the data file and its archive.
class StartUpDataFile : public StartUpTest {
 protected:
  StartUpDataFile() {
    saved(QStringLiteral("LocalFolder"), data_.path());
    saved(QStringLiteral("TextFile"), QStringLiteral("main.txt"));
    saved(QStringLiteral("ArchiveFile"), QStringLiteral("main.zip"));
  }
};

TEST_F(StartUpDataFile, IsUnpackedWhenOnlyItsArchiveIsThere) {
  const QString archive = data_.writeFile(QStringLiteral("main.zip"), "PK");
  start();
  EXPECT_EQ(extraction_.archivePaths, QStringList{archive});
  EXPECT_EQ(extraction_.targetFolders, QStringList{data_.path()});
  EXPECT_EQ(log_.mid(log_.size() - 2), QStringList({QStringLiteral("extract"), QStringLiteral("events")}));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(StartUpDataFile, IsUnpackedAfterTheSourceListsAreLoaded) {
  data_.writeFile(QStringLiteral("main.zip"), "PK");
  data_.writeFile(QStringLiteral("OfflineLocations.txt"), "\"half\"\r\n");
  start();
  EXPECT_EQ(extraction_.archivePaths, QStringList());
  EXPECT_EQ(boxes_.informed.size(), 1U);
}

TEST_F(StartUpDataFile, IsLeftAloneWhenItExistsThoughTheArchiveIsNewer) {
  const QString dataFile = data_.writeFile(QStringLiteral("main.txt"), "old");
  const QString archive = data_.writeFile(QStringLiteral("main.zip"), "PK");
  QFile old(dataFile);
  ASSERT_TRUE(old.open(QIODevice::ReadWrite));
  ASSERT_TRUE(old.setFileTime(QDateTime(QDate(2001, 1, 1), QTime(12, 0)), QFileDevice::FileModificationTime));
  start();
  EXPECT_EQ(extraction_.archivePaths, QStringList());
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(StartUpDataFile, WithoutANameIsNeverUnpacked) {
  data_.writeFile(QStringLiteral("main.zip"), "PK");
  saved(QStringLiteral("TextFile"), QString());
  start();
  EXPECT_EQ(extraction_.archivePaths, QStringList());
}

TEST_F(StartUpDataFile, WithoutAnArchiveNameIsNotUnpacked) {
  saved(QStringLiteral("ArchiveFile"), QString());
  start();
  EXPECT_EQ(extraction_.archivePaths, QStringList());
}

TEST_F(StartUpDataFile, WithoutItsArchiveIsSilentlyLeftMissing) {
  start();
  EXPECT_EQ(extraction_.archivePaths, QStringList());
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(StartUpDataFile, FromTheCommandLineIsLookedUpBelowTheDataFolder) {
  // The first run of a listing's own settings set, with an archive configured there.
  const QString listing = QStringLiteral("D:\\lists\\music.txt");
  writeInCurrentFolder(listing, "");
  writeInCurrentFolder(QStringLiteral("D:\\data\\main.zip"), "PK");
  store_.put(listing, QStringLiteral("LocalFolder"), QStringLiteral("D:\\data\\"));
  store_.put(listing, QStringLiteral("ArchiveFile"), QStringLiteral("main.zip"));
  startWithCommandLine(listing, kWindowsPaths);
  EXPECT_EQ(state_.TextFile, listing);
  EXPECT_EQ(extraction_.archivePaths, QStringList{QStringLiteral("D:\\data\\main.zip")});
  EXPECT_EQ(extraction_.targetFolders, QStringList{QStringLiteral("D:\\data\\")});
}

TEST_F(StartUpDataFile, FromTheCommandLineIsLookedUpBelowTheDataFolderOnUnix) {
  const QString listing = current_.writeFile(QStringLiteral("music.txt"), "");
  const QString archive = data_.writeFile(QStringLiteral("main.zip"), "PK");
  store_.put(listing, QStringLiteral("LocalFolder"), data_.path());
  store_.put(listing, QStringLiteral("ArchiveFile"), QStringLiteral("main.zip"));
  startWithCommandLine(listing, kUnixPaths);
  EXPECT_EQ(state_.TextFile, listing);
  EXPECT_EQ(extraction_.archivePaths, QStringList{archive});
}

TEST_F(StartUpDataFile, ThatCannotBeUnpackedIsAStartUpError) {
  data_.writeFile(QStringLiteral("main.zip"), "PK");
  extraction_.fails = true;
  start();
  EXPECT_THAT(boxes_.informed, ElementsAre(QStringLiteral("Statup error: 57 Device I/O error")));
  EXPECT_EQ(log_.last(), QStringLiteral("extract"));
}

}  // namespace
}  // namespace quorvin
