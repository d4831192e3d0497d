// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/dir_io.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

QString windowsName(const QString& path) {
  return BaseNameOf(path, kWindowsPaths);
}

QString unixName(const QString& path) {
  return BaseNameOf(path, kUnixPaths);
}

TEST(BaseNameOf, IsWhatStandsBetweenTheLastSeparatorAndTheLastDot) {
  EXPECT_EQ(windowsName(QStringLiteral("D:\\lists\\music.txt")), QStringLiteral("music"));
  EXPECT_EQ(unixName(QStringLiteral("/home/ann/lists/music.txt")), QStringLiteral("music"));
}

TEST(BaseNameOf, NeedsNoFolder) {
  EXPECT_EQ(windowsName(QStringLiteral("music.txt")), QStringLiteral("music"));
  EXPECT_EQ(unixName(QStringLiteral("music.txt")), QStringLiteral("music"));
}

TEST(BaseNameOf, KeepsEarlierDots) {
  EXPECT_EQ(windowsName(QStringLiteral("a.b.c")), QStringLiteral("a.b"));
  EXPECT_EQ(unixName(QStringLiteral("a.b.c")), QStringLiteral("a.b"));
  EXPECT_EQ(windowsName(QStringLiteral("D:\\x\\a.b.c")), QStringLiteral("a.b"));
  EXPECT_EQ(unixName(QStringLiteral("/x/a.b.c")), QStringLiteral("a.b"));
}

TEST(BaseNameOf, LeavesANameWithoutADotWhole) {
  EXPECT_EQ(windowsName(QStringLiteral("D:\\lists\\music")), QStringLiteral("D:\\lists\\music"));
  EXPECT_EQ(unixName(QStringLiteral("/lists/music")), QStringLiteral("/lists/music"));
  EXPECT_EQ(unixName(QStringLiteral("music")), QStringLiteral("music"));
}

TEST(BaseNameOf, LeavesAPathWholeWhoseLastDotIsInAFolder) {
  EXPECT_EQ(windowsName(QStringLiteral("D:\\lists.old\\music")), QStringLiteral("D:\\lists.old\\music"));
  EXPECT_EQ(unixName(QStringLiteral("/lists.old/music")), QStringLiteral("/lists.old/music"));
}

TEST(BaseNameOf, LeavesANameWholeThatBeginsWithItsOnlyDot) {
  EXPECT_EQ(windowsName(QStringLiteral("D:\\lists\\.txt")), QStringLiteral("D:\\lists\\.txt"));
  EXPECT_EQ(unixName(QStringLiteral("/lists/.txt")), QStringLiteral("/lists/.txt"));
  EXPECT_EQ(unixName(QStringLiteral(".txt")), QStringLiteral(".txt"));
}

TEST(BaseNameOf, TakesOneCharacter) {
  EXPECT_EQ(windowsName(QStringLiteral("D:\\a.txt")), QStringLiteral("a"));
  EXPECT_EQ(unixName(QStringLiteral("/a.txt")), QStringLiteral("a"));
}

TEST(BaseNameOf, TakesANameThatEndsInADot) {
  EXPECT_EQ(windowsName(QStringLiteral("D:\\music.")), QStringLiteral("music"));
  EXPECT_EQ(unixName(QStringLiteral("/music.")), QStringLiteral("music"));
}

TEST(BaseNameOf, LeavesEmptyTextAndFoldersWhole) {
  EXPECT_EQ(unixName(QString()), QString());
  EXPECT_EQ(windowsName(QStringLiteral("D:\\lists\\")), QStringLiteral("D:\\lists\\"));
  EXPECT_EQ(unixName(QStringLiteral("/lists/")), QStringLiteral("/lists/"));
}

TEST(BaseNameOf, KnowsOnlyTheSeparatorOfItsStyle) {
  EXPECT_EQ(windowsName(QStringLiteral("/lists/music.txt")), QStringLiteral("/lists/music"));
  EXPECT_EQ(unixName(QStringLiteral("D:\\lists\\music.txt")), QStringLiteral("D:\\lists\\music"));
}

}  // namespace
}  // namespace quorvin
