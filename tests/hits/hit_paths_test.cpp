// SPDX-License-Identifier: GPL-2.0-or-later

// Many look-ups in the same folders, with no folder read twice.
#include "hits/hit_paths.h"

#include "files/file_lookup.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class FoldersReadOnceTest : public testing::Test {
 protected:
  FoldersReadOnce folders_{[this](const QString& folder) {
    foldersRead_ += folder;
    return names_;
  }};
  QStringList names_{QStringLiteral("b2.txt"), QStringLiteral("a.txt"), QStringLiteral("b1.txt")};
  QStringList foldersRead_;
};

TEST_F(FoldersReadOnceTest, ReadsAFolderOnceForAllItsPatterns) {
  EXPECT_EQ(folders_.find(QStringLiteral("/music/a?txt")), QStringLiteral("a.txt"));
  EXPECT_EQ(folders_.find(QStringLiteral("/music/c*")), QString());
  EXPECT_EQ(folders_.find(QStringLiteral("/talk/a*")), QStringLiteral("a.txt"));
  EXPECT_EQ(foldersRead_, (QStringList{QStringLiteral("/music/"), QStringLiteral("/talk/")}));
}

TEST_F(FoldersReadOnceTest, OfSeveralThatFitTheFirstInTheFileSystemsOrderWins) {
  EXPECT_EQ(folders_.find(QStringLiteral("/music/b?.txt")), QStringLiteral("b2.txt"));
  EXPECT_EQ(folders_.find(QStringLiteral("/music/?.txt")), QStringLiteral("a.txt"));
}

TEST_F(FoldersReadOnceTest, TheExactNameWinsOverAnEarlierOneThatFits) {
  names_ = {QStringLiteral("b2.txt"), QStringLiteral("b?.txt")};
  EXPECT_EQ(folders_.find(QStringLiteral("/music/b?.txt")), QStringLiteral("b?.txt"));
}

TEST_F(FoldersReadOnceTest, ANameWithoutWildcardsReadsNoFolder) {
  EXPECT_EQ(folders_.find(QStringLiteral("/no/such/folder/a.txt")), QString());
  EXPECT_TRUE(foldersRead_.isEmpty());
}

TEST(FoldersReadOnceOnDisk, FindsWhatTheSingleLookUpFinds) {
  const TemporaryFolder folder;
  for (const char* name : {"one.txt", "two.txt", ".hidden.txt", "three"}) {
    folder.writeFile(QString::fromLatin1(name), "x");
  }
  FoldersReadOnce folders;
  folder.makeFolder(QStringLiteral("folder"));
  QFile::link(folder.pathOf(QStringLiteral("one.txt")), folder.pathOf(QStringLiteral("link.txt")));
  QFile::link(folder.pathOf(QStringLiteral("nothing")), folder.pathOf(QStringLiteral("broken.txt")));
  for (const char* name : {"*", "t*", "*.txt", ".h*", "one.txt", "o?e.txt", "four*", "link.txt", "broken.txt",
                           ".hidden.txt", "folder", "folder/one.txt", "gone", "", ".", "../one.txt"}) {
    const QString pattern = folder.path() + QString::fromLatin1(name);
    EXPECT_EQ(folders.find(pattern), findOrdinaryFile(pattern)) << name;
  }
}

TEST(FoldersReadOnceOnDisk, GoesFromFolderToFolderAndBack) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("a/one.txt"), "x");
  folder.writeFile(QStringLiteral("b/two.txt"), "x");
  FoldersReadOnce folders;
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(folders.find(folder.pathOf(QStringLiteral("a/one.txt"))), QStringLiteral("one.txt"));
    EXPECT_EQ(folders.find(folder.pathOf(QStringLiteral("a/two.txt"))), QString());
    EXPECT_EQ(folders.find(folder.pathOf(QStringLiteral("gone/two.txt"))), QString());
    EXPECT_EQ(folders.find(folder.pathOf(QStringLiteral("b/two.txt"))), QStringLiteral("two.txt"));
  }
}

class PathsOfHits : public testing::Test {
 protected:
  PathsOfHits() {
    state_.OnlineSources.set(1, QStringLiteral("Music"), files_.path());
    state_.OnlineSources.set(2, QStringLiteral("Bad"), QString());
    state_.OnlineSourceCount = 2;
  }
  HitRow hit(const QString& below, const QString& name, const QString& volume = QStringLiteral("Music")) {
    HitRow row;
    row.volume = volume;
    row.folder = listedFolder(files_.path(), nativePathStyle()) + below;
    row.name = name;
    return row;
  }
  QString path(const HitRow& row) { return paths_.of(row).fullPath(); }

  TemporaryFolder files_;
  ProgramState state_;
  HitPaths paths_{state_};
};

TEST_F(PathsOfHits, AreThoseOfTheirFilesWhereTheseAreThere) {
  files_.writeFile(QStringLiteral("a.mp3"), "x");
  files_.writeFile(QStringLiteral("Rock/a.mp3"), "x");
  EXPECT_EQ(path(hit({}, QStringLiteral("a.mp3"))), files_.pathOf(QStringLiteral("a.mp3")));
  EXPECT_EQ(path(hit({}, QStringLiteral("b.mp3"))), QString());
  EXPECT_EQ(path(hit(QStringLiteral("Rock\\"), QStringLiteral("a.mp3"))),
            files_.pathOf(QStringLiteral("Rock/a.mp3")));
}

TEST_F(PathsOfHits, AreNotThoseOfTheHitBeforeWhereOnlyTheFolderIsTheSame) {
  files_.writeFile(QStringLiteral("a.mp3"), "x");
  ASSERT_NE(path(hit({}, QStringLiteral("a.mp3"))), QString());
  EXPECT_EQ(path(hit({}, QStringLiteral("a.mp3"), QStringLiteral("Other"))), QString());
  HitRow offline = hit({}, QStringLiteral("a.mp3"));
  offline.kind = SourceKind::Offline;
  EXPECT_EQ(path(offline), QString());
  EXPECT_NE(path(hit({}, QStringLiteral("a.mp3"))), QString());
}

TEST_F(PathsOfHits, AreEmptyWhereAFaultKeepsThemFromBeingFound) {
  EXPECT_EQ(path(hit({}, QStringLiteral("a\0b.mp3"))), QString());
  EXPECT_EQ(path(hit({}, QString(QChar(u'\0')))), QString());
}

}  // namespace

}  // namespace quorvin::test
