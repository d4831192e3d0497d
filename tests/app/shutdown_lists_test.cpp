// SPDX-License-Identifier: GPL-2.0-or-later

// What becomes of a list on disk that is not the one that was read.
#include "app/shutdown_fixture.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"

#include <sys/stat.h>

namespace quorvin {
namespace {

// Lists that start-up could not read.

TEST_F(ShutdownTest, AnUnreadListIsNotReplacedByAnEmptyTable) {
  state_.onlineListRead = {};
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"a\",\"/a/\"\r\n\"half");
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "\"a\",\"/a/\"\r\n\"half");
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt.kept")));
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(ShutdownTest, WhereNothingWasReadAndNothingStandsAnEmptyTableWritesNothing) {
  state_.onlineListRead = {};
  shutdown_.Form_Unload();
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt")));
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(ShutdownTest, AHalfReadListIsKeptBesideTheOneThatIsSaved) {
  addSources();
  state_.onlineListRead = {};
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
  state_.onlineListRead = {};
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
    readLists();
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

// Lists that are not the ones that were read.

QString reported(const QString& list, const QString& reason) {
  return QStringLiteral("The list ") + list + reason + QStringLiteral("\r\nIt is kept as ") + list +
         QStringLiteral(".kept, and the list as it is now is saved in its place.");
}

class AnothersList : public ShutdownTest {
 protected:
  QString path() const { return folder_.pathOf(QStringLiteral("Locations.txt")); }
  void expectKept(const QByteArray& theirs, const QString& reason) {
    EXPECT_EQ(onlineList(), "\"My music\",\"/music/\"\r\n");
    EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt.kept")), theirs);
    EXPECT_EQ(boxes_.informed, std::vector<QString>{reported(path(), reason)});
  }

  const QByteArray kTheirs = "\"theirs\",\"/theirs/\"\r\n";
};

TEST_F(AnothersList, ThatCameWithItsDriveIsKept) {
  folder_.writeFile(QStringLiteral("Locations.txt"), kTheirs);
  addSources();
  shutdown_.Form_Unload();
  expectKept(kTheirs, QStringLiteral(" was not there when the program started."));
}

TEST_F(AnothersList, ThatCameWithItsDriveStaysWhereThereIsNothingToSave) {
  folder_.writeFile(QStringLiteral("Locations.txt"), kTheirs);
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), kTheirs);
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(AnothersList, OfAnotherProgramIsKept) {
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"old\",\"/old/\"\r\n");
  readLists();
  addSources();
  folder_.writeFile(QStringLiteral("Locations.txt"), kTheirs);
  shutdown_.Form_Unload();
  expectKept(kTheirs, QStringLiteral(" has been changed by another program."));
}

TEST_F(AnothersList, OfAnotherProgramStaysWhereNothingWasChangedHere) {
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"old\",\"/old/\"\r\n");
  loadSourceLists(state_);
  ASSERT_EQ(state_.OnlineSourceCount, 1);
  folder_.writeFile(QStringLiteral("Locations.txt"), kTheirs);
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), kTheirs);
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt.kept")));
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(AnothersList, WithTheBytesThatWereReadIsTheOneThatWasRead) {
  // As on a drive that was pulled out and put back: another file to the system.
  folder_.writeFile(QStringLiteral("Locations.txt"), kTheirs);
  readLists();
  addSources();
  ASSERT_TRUE(QFile::remove(path()));
  folder_.writeFile(QStringLiteral("Locations.txt"), kTheirs);
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "\"My music\",\"/music/\"\r\n");
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt.kept")));
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(AnothersList, IsNotTheOneThatThisProgramSavedBefore) {
  addSources();
  ASSERT_TRUE(saveOnlineSources(state_, boxes_));
  state_.OnlineSources.set(1, QStringLiteral("More music"), QStringLiteral("/more/"));
  ASSERT_TRUE(saveOnlineSources(state_, boxes_));
  EXPECT_EQ(onlineList(), "\"More music\",\"/more/\"\r\n");
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt.kept")));
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(AnothersList, WithAByteOrderMarkThatWasReadIsReplaced) {
  folder_.writeFile(QStringLiteral("Locations.txt"), "\xEF\xBB\xBF\"old\",\"/old/\"\r\n");
  readLists();
  addSources();
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "\"My music\",\"/music/\"\r\n");
  EXPECT_TRUE(boxes_.informed.empty());
}

TEST_F(AnothersList, APipeInTheListsPlaceIsNotReplaced) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
  readLists();
  addSources();
  EXPECT_FAULT(shutdown_.Form_Unload(), 75);
  EXPECT_FALSE(QFileInfo(path()).isFile());
}

// Lists whose records are shifted.

class ShiftedList : public AnothersList {
 protected:
  ShiftedList() {
    folder_.writeFile(QStringLiteral("Locations.txt"), kShifted);
    loadSourceLists(state_);
  }
  QString damage() const {
    return QStringLiteral("The list ") + path() +
           QStringLiteral(
               " looks damaged: it has the path \"/vinyl/\" where a description should be. A double quote in "
               "a "
               "description or a path does that.");
  }

  // What a double quote in the first description has made of two sources.
  const QByteArray kShifted = "\"12\" vinyl\",\"/vinyl/\"\r\n\"Films\",\"/films/\"\r\n\"end\"\r\n";
};

TEST_F(ShiftedList, IsLeftAsItIsWhereNothingWasChanged) {
  ASSERT_EQ(state_.OnlineSources.description(2), QStringLiteral("/vinyl/"));
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), kShifted);
  EXPECT_FALSE(folder_.has(QStringLiteral("Locations.txt.kept")));
  EXPECT_EQ(boxes_.informed, std::vector<QString>{damage() + QStringLiteral("\r\nIt was left as it is.")});
}

TEST_F(ShiftedList, IsKeptWhenTheTableHasBeenChanged) {
  addSources();
  shutdown_.Form_Unload();
  EXPECT_EQ(onlineList(), "\"My music\",\"/music/\"\r\n");
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt.kept")), kShifted);
  EXPECT_EQ(boxes_.informed,
            std::vector<QString>{damage() + QStringLiteral("\r\nIt is kept as ") + path() +
                                 QStringLiteral(".kept, and the list as it is now is saved in its place.")});
}

// A list whose name has separators, since it is that of a listing without a dot in its name.

TEST_F(ShutdownTest, AListWithAPathForItsNameIsSavedAndReadAgain) {
  state_.LocFile = QStringLiteral("Locations.txt_/home/ann/./lists/music");
  readLists();
  addSources();
  shutdown_.Form_Unload();
  EXPECT_TRUE(boxes_.informed.empty());
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt_/home/ann/lists/music")),
            "\"My music\",\"/music/\"\r\n");
  loadSourceLists(state_);
  EXPECT_EQ(state_.OnlineSourceCount, 2);
}

TEST_F(ShutdownTest, AListNeverLeavesTheDataFolder) {
  state_.LocalFolder = folder_.makeFolder(QStringLiteral("data"));
  folder_.writeFile(QStringLiteral("data/any.txt"), "x");
  state_.LocFile = QStringLiteral("Locations.txt_a/../../music");
  readLists();
  addSources();
  EXPECT_FAULT(shutdown_.Form_Unload(), 75);
  EXPECT_FALSE(folder_.has(QStringLiteral("music")));
}

}  // namespace
}  // namespace quorvin
