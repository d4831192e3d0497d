// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/path_style.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {

TEST(PathStyle, TheNativeOneHasTheSystemsSeparator) {
#ifdef Q_OS_WIN
  EXPECT_EQ(nativePathStyle(), kWindowsPaths);
#else
  EXPECT_EQ(nativePathStyle(), kUnixPaths);
#endif
}

TEST(PathStyle, ATrailingSeparatorIsAddedOnce) {
  EXPECT_EQ(withTrailingSeparator(QStringLiteral("D:\\Music"), kWindowsPaths), u"D:\\Music\\");
  EXPECT_EQ(withTrailingSeparator(QStringLiteral("D:\\Music\\"), kWindowsPaths), u"D:\\Music\\");
  EXPECT_EQ(withTrailingSeparator(QStringLiteral("/home/ann/Music"), kUnixPaths), u"/home/ann/Music/");
  EXPECT_EQ(withTrailingSeparator(QStringLiteral("/home/ann/Music/"), kUnixPaths), u"/home/ann/Music/");
  EXPECT_EQ(withTrailingSeparator(QStringLiteral("/"), kUnixPaths), u"/");
  EXPECT_EQ(withTrailingSeparator(QString(), kUnixPaths), u"/");
}

TEST(PathStyle, TheOtherStylesSeparatorIsNotOne) {
  EXPECT_EQ(withTrailingSeparator(QStringLiteral("/home/a\\"), kUnixPaths), u"/home/a\\/");
  EXPECT_EQ(withTrailingSeparator(QStringLiteral("D:/Music/"), kWindowsPaths), u"D:/Music/\\");
}

TEST(PathStyle, AFolderIsListedWithBackslashesAndWithoutItsDrive) {
  EXPECT_EQ(listedFolder(u"D:\\Music\\", kWindowsPaths), u"\\Music\\");
  EXPECT_EQ(listedFolder(u"D:\\", kWindowsPaths), u"\\");
  EXPECT_EQ(listedFolder(u"/home/ann/Music/", kUnixPaths), u"\\home\\ann\\Music\\");
  EXPECT_EQ(listedFolder(u"/", kUnixPaths), u"\\");
  EXPECT_EQ(listedFolder(u"", kUnixPaths), u"");
  EXPECT_EQ(listedFolder(u"D", kWindowsPaths), u"");
}

TEST(PathStyle, AWholePathIsTakenAsItStands) {
  EXPECT_TRUE(isTakenAsItStands(u"D:\\lists\\main.txt", kWindowsPaths));
  EXPECT_TRUE(isTakenAsItStands(u"\\\\server\\share\\main.txt", kWindowsPaths));
  EXPECT_TRUE(isTakenAsItStands(u"a\\\\b", kWindowsPaths));
  EXPECT_TRUE(isTakenAsItStands(u"/srv/main.txt", kUnixPaths));
  EXPECT_TRUE(isTakenAsItStands(u"odd:name", kUnixPaths));
}

TEST(PathStyle, ANameInsideTheDataFolderIsNot) {
  EXPECT_FALSE(isTakenAsItStands(u"main.txt", kWindowsPaths));
  EXPECT_FALSE(isTakenAsItStands(u"sub\\main.txt", kWindowsPaths));
  EXPECT_FALSE(isTakenAsItStands(u"\\main.txt", kWindowsPaths));
  EXPECT_FALSE(isTakenAsItStands(u"/main.txt", kWindowsPaths));
  EXPECT_FALSE(isTakenAsItStands(u"sub/main.txt", kUnixPaths));
  EXPECT_FALSE(isTakenAsItStands(u"", kUnixPaths));
}

}  // namespace quorvin
