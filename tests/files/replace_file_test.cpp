// SPDX-License-Identifier: GPL-2.0-or-later

// Replacing a file in one call.
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/full_disk.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {

namespace {

int faultOfReplacing(const QString& path, const QByteArray& contents) {
  try {
    replaceFile(path, contents);
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

}  // namespace

TEST(ReplaceFile, PutsNewContentsInPlace) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(QStringLiteral("a"), "old and longer");
  replaceFile(path, "new");
  EXPECT_EQ(folder.readFile(QStringLiteral("a")), "new");
  replaceFile(path, "");
  EXPECT_EQ(folder.readFile(QStringLiteral("a")), "");
  EXPECT_EQ(folder.names(), QStringList{QStringLiteral("a")});
}

TEST(ReplaceFile, MakesAFileThatWasNotThere) {
  const TemporaryFolder folder;
  replaceFile(folder.pathOf(QStringLiteral("a")), "new");
  EXPECT_EQ(folder.readFile(QStringLiteral("a")), "new");
}

TEST(ReplaceFile, ALinkStaysAndItsFileIsReplaced) {
  const TemporaryFolder folder;
  const TemporaryFolder elsewhere;
  const QString target = elsewhere.writeFile(QStringLiteral("a"), "old");
  ASSERT_TRUE(QFile::link(target, folder.pathOf(QStringLiteral("link"))));
  replaceFile(folder.pathOf(QStringLiteral("link")), "new");
  EXPECT_TRUE(QFileInfo(folder.pathOf(QStringLiteral("link"))).isSymLink());
  EXPECT_EQ(elsewhere.readFile(QStringLiteral("a")), "new");
  EXPECT_EQ(elsewhere.names(), QStringList{QStringLiteral("a")});
}

// Short texts are cut while a buffer is emptied, long ones while they are written.
TEST(ReplaceFile, AFullDiskLeavesTheOldFile) {
  for (const qsizetype size : {5'000, 20'000, 300'000}) {
    const TemporaryFolder folder;
    const QString path = folder.writeFile(QStringLiteral("a"), "old");
    {
      const FullDisk disk(4096);
      EXPECT_EQ(faultOfReplacing(path, QByteArray(size, 'x')), 61) << size;
    }
    EXPECT_EQ(folder.readFile(QStringLiteral("a")), "old");
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("a")});
  }
}

TEST(ReplaceFile, AMissingFolderIsAFault) {
  const TemporaryFolder folder;
  EXPECT_EQ(faultOfReplacing(folder.pathOf(QStringLiteral("missing/a")), "x"), 75);
  EXPECT_EQ(folder.names(), QStringList());
}

TEST(ReplaceFile, AFolderIsNotReplaced) {
  const TemporaryFolder folder;
  folder.makeFolder(QStringLiteral("sub"));
  EXPECT_NE(faultOfReplacing(folder.pathOf(QStringLiteral("sub")), "x"), 0);
  EXPECT_EQ(folder.names(), QStringList{QStringLiteral("sub")});
}

TEST(ReplaceFile, APipeIsNotReplaced) {
  const TemporaryFolder folder;
  const QString path = folder.pathOf(QStringLiteral("pipe"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
  EXPECT_EQ(faultOfReplacing(path, "new"), 75);
  struct stat found {};
  ASSERT_EQ(::lstat(QFile::encodeName(path).constData(), &found), 0);
  EXPECT_TRUE(S_ISFIFO(found.st_mode));
}

}  // namespace quorvin
