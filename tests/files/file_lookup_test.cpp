// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/file_lookup.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quorvin {

TEST(FitsWildcards, OtherCharactersStandForThemselves) {
  EXPECT_TRUE(fitsWildcards(u"a.txt", u"a.txt"));
  EXPECT_FALSE(fitsWildcards(u"A.txt", u"a.txt"));
  EXPECT_FALSE(fitsWildcards(u"axtxt", u"a.txt"));
  EXPECT_TRUE(fitsWildcards(u"[a]", u"[a]"));
  EXPECT_FALSE(fitsWildcards(u"a", u"[a]"));
  EXPECT_TRUE(fitsWildcards(u"", u""));
  EXPECT_FALSE(fitsWildcards(u"a", u""));
}

TEST(FitsWildcards, AStarStandsForAnyCharacters) {
  EXPECT_TRUE(fitsWildcards(u"a.txt", u"*"));
  EXPECT_TRUE(fitsWildcards(u"", u"*"));
  EXPECT_TRUE(fitsWildcards(u"a.txt", u"*.txt"));
  EXPECT_TRUE(fitsWildcards(u"a.b.txt", u"a*txt"));
  EXPECT_TRUE(fitsWildcards(u"abcbc", u"a*bc"));
  EXPECT_FALSE(fitsWildcards(u"abcbd", u"a*bc"));
  EXPECT_TRUE(fitsWildcards(u"abc", u"**a**c**"));
}

TEST(FitsWildcards, AQuestionMarkStandsForOneCharacter) {
  EXPECT_TRUE(fitsWildcards(u"abc", u"a?c"));
  EXPECT_FALSE(fitsWildcards(u"ac", u"a?c"));
  EXPECT_FALSE(fitsWildcards(u"abc", u"abc?"));
  EXPECT_TRUE(fitsWildcards(u"a\U0001F3B5c", u"a?c"));
  EXPECT_FALSE(fitsWildcards(u"a\U0001F3B5c", u"a??c"));
  EXPECT_TRUE(fitsWildcards(u"\U0001F3B5\U0001F3B5x", u"*?x"));
}

TEST(FitsWildcards, StarDotStarFitsEveryName) {
  EXPECT_TRUE(fitsWildcards(u"README", u"*.*"));
  EXPECT_TRUE(fitsWildcards(u"a.txt", u"*.*"));
}

TEST(FitsWildcards, ManyStarsTakeNoLongTime) {
  EXPECT_FALSE(fitsWildcards(QString(5000, u'a'), QStringLiteral("*a").repeated(500) + u'b'));
}

TEST(NamesThatFit, AreSortedAndOfTheKindsAskedFor) {
  const TemporaryFolder folder;
  for (const QString& name : {u"b.tmp"_qs, u"a.tmp"_qs, u".c.tmp"_qs, u"d.TMP"_qs, u"e.tmpx"_qs}) {
    folder.writeFile(name, "");
  }
  folder.makeFolder(u"f.tmp"_qs);
  EXPECT_EQ(namesThatFit(folder.path(), u"*.tmp"), QStringList({u"a.tmp"_qs, u"b.tmp"_qs}));
  EXPECT_EQ(namesThatFit(folder.path(), u"*.tmp", QDir::Files | QDir::Hidden),
            QStringList({u".c.tmp"_qs, u"a.tmp"_qs, u"b.tmp"_qs}));
  EXPECT_EQ(namesThatFit(folder.path(), u"[ab].tmp"), QStringList());
  EXPECT_EQ(namesThatFit(folder.pathOf(u"none"_qs), u"*"), QStringList());
}

TEST(FindOrdinaryFile, FindsAFileByItsName) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(QStringLiteral("a.txt"), "x");
  EXPECT_EQ(findOrdinaryFile(path), u"a.txt");
  EXPECT_TRUE(ordinaryFileExists(path));
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("b.txt"))), u"");
  EXPECT_FALSE(ordinaryFileExists(folder.pathOf(QStringLiteral("b.txt"))));
}

TEST(FindOrdinaryFile, FindsAFileByAPattern) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("list one.txt"), "x");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("*.*"))), u"list one.txt");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("list?one.*"))), u"list one.txt");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("*.zip"))), u"");
}

TEST(FindOrdinaryFile, TheExactNameWinsOverOthersThatFit) {
  const TemporaryFolder folder;
  for (const char* name : {"ab", "a?", "aa", "a*", "az"}) folder.writeFile(QString::fromLatin1(name), "x");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("a?"))), u"a?");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("a*"))), u"a*");
}

TEST(FindOrdinaryFile, BracketsAreNoWildcards) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("a"), "x");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("[a]"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("[a]*"))), u"");
  folder.writeFile(QStringLiteral("[a] b"), "x");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("[a]*"))), u"[a] b");
}

TEST(FindOrdinaryFile, FoldersAndHiddenFilesAreNotOrdinary) {
  const TemporaryFolder folder;
  folder.makeFolder(QStringLiteral("sub"));
  folder.writeFile(QStringLiteral(".hidden"), "x");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("*"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("sub"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral(".hidden"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral(".*"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral(".."))), u"");
}

TEST(FindOrdinaryFile, PipesAndBrokenLinksAreNotOrdinary) {
  const TemporaryFolder folder;
  const QByteArray pipe = QFile::encodeName(folder.pathOf(QStringLiteral("pipe")));
  ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
  ASSERT_TRUE(QFile::link(folder.pathOf(QStringLiteral("nowhere")), folder.pathOf(QStringLiteral("broken"))));
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("*"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("pipe"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("broken"))), u"");
}

TEST(FindOrdinaryFile, ALinkToAFileIsOrdinary) {
  const TemporaryFolder folder;
  const QString target = folder.writeFile(QStringLiteral("sub/.target"), "x");
  ASSERT_TRUE(QFile::link(target, folder.pathOf(QStringLiteral("link"))));
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("*"))), u"link");
}

TEST(FindOrdinaryFile, NothingIsFoundInAFolderThatIsMissing) {
  const TemporaryFolder folder;
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("missing/a.txt"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("missing/*"))), u"");
  EXPECT_EQ(findOrdinaryFile(folder.path()), u"");
  EXPECT_EQ(findOrdinaryFile(QString()), u"");
}

TEST(FindOrdinaryFile, ARelativePathStartsAtTheCurrentFolder) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("a.txt"), "x");
  folder.writeFile(QStringLiteral(":/b.txt"), "x");
  const CurrentFolder current(folder.path());
  EXPECT_EQ(findOrdinaryFile(QStringLiteral("a.txt")), u"a.txt");
  EXPECT_EQ(findOrdinaryFile(QStringLiteral("*.txt")), u"a.txt");
  EXPECT_EQ(findOrdinaryFile(QStringLiteral(":/b.txt")), u"b.txt");
}

TEST(FindOrdinaryFile, WildcardsInTheFolderAreNone) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("sub/a.txt"), "x");
  EXPECT_EQ(findOrdinaryFile(folder.pathOf(QStringLiteral("s*/a.txt"))), u"");
}

TEST(PathFromTop, ARelativePathStartsInTheCurrentFolder) {
  const TemporaryFolder folder;
  const CurrentFolder inside(folder.path());
  EXPECT_EQ(pathFromTop(u"lists/disk.txt"_qs), QDir::currentPath() + u"/lists/disk.txt"_qs);
  EXPECT_EQ(pathFromTop(u"./disk.txt"_qs), QDir::currentPath() + u"/disk.txt"_qs);
  EXPECT_EQ(pathFromTop(u"/lists/disk.txt"_qs), u"/lists/disk.txt"_qs);
}

TEST(PathFromTop, TheFolderAboveIsThatOfTheSystem) {
  const TemporaryFolder folder;
  folder.writeFile(u"real/disk.txt"_qs, "x");
  folder.makeFolder(u"real/sub"_qs);
  ASSERT_TRUE(QFile::link(folder.pathOf(u"real/sub"_qs), folder.pathOf(u"link"_qs)));
  EXPECT_EQ(pathFromTop(folder.pathOf(u"link/../disk.txt"_qs)),
            QFileInfo(folder.pathOf(u"real/disk.txt"_qs)).canonicalFilePath());
}

TEST(FileExists, HiddenOnesToo) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral(".hidden"), "x");
  folder.makeFolder(QStringLiteral("sub"));
  ASSERT_TRUE(QFile::link(folder.pathOf(QStringLiteral(".hidden")), folder.pathOf(QStringLiteral(".link"))));
  EXPECT_TRUE(fileExists(folder.pathOf(QStringLiteral(".hidden"))));
  EXPECT_TRUE(fileExists(folder.pathOf(QStringLiteral(".link"))));
  EXPECT_FALSE(fileExists(folder.pathOf(QStringLiteral("sub"))));
  EXPECT_FALSE(fileExists(folder.path()));
  EXPECT_FALSE(fileExists(folder.pathOf(QStringLiteral("missing"))));
  EXPECT_FALSE(fileExists(folder.pathOf(QStringLiteral("*"))));
}

}  // namespace quorvin
