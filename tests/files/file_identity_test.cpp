// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/file_identity.h"

#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace quorvin {
namespace {

class FileIdentityTest : public testing::Test {
 protected:
  FileIdentity now() const { return fileIdentity(path_).value(); }
  /// Gives the file back the modification time that it had.
  void restoreTime(const FileIdentity& before) const {
    const timespec time{before.modified / 1'000'000'000, before.modified % 1'000'000'000};
    const timespec times[2] = {time, time};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path_).constData(), times, 0), 0);
  }

  TemporaryFolder folder_;
  QString path_ = folder_.writeFile(u"cd.lst"_qs, "song one");
};

TEST_F(FileIdentityTest, StaysWhileNothingChanges) {
  EXPECT_TRUE(now() == now());
  EXPECT_EQ(now().size, 8);
}

TEST_F(FileIdentityTest, ThereIsNoneWithoutAFile) {
  EXPECT_FALSE(fileIdentity(folder_.pathOf(u"none"_qs)));
}

TEST_F(FileIdentityTest, AFileThatCannotBeLookedAtIsNotTakenForMissing) {
  const TemporaryFolder folder;
  EXPECT_TRUE(fileIsThere(folder.writeFile(QStringLiteral("a.txt"), "a")));
  EXPECT_FALSE(fileIsThere(folder.pathOf(QStringLiteral("b.txt"))));
  EXPECT_FALSE(fileIsThere(folder.pathOf(QStringLiteral("a.txt/b.txt"))));
  EXPECT_FALSE(fileIsThere(folder.path()));
  EXPECT_FAULT(fileIsThere(folder.pathOf(QString(300, u'x'))), 52);
}

TEST_F(FileIdentityTest, ContentOfTheSameSizeAndTimeIsAnother) {
  const FileIdentity before = now();
  folder_.writeFile(u"cd.lst"_qs, "song two");
  restoreTime(before);
  EXPECT_EQ(now().size, before.size);
  EXPECT_EQ(now().modified, before.modified);
  EXPECT_FALSE(now() == before);
}

TEST_F(FileIdentityTest, AFileInItsPlaceIsAnother) {
  const FileIdentity before = now();
  const QString other = folder_.writeFile(u"other"_qs, "song one");
  ASSERT_EQ(::rename(QFile::encodeName(other).constData(), QFile::encodeName(path_).constData()), 0);
  restoreTime(before);
  EXPECT_NE(now().file, before.file);
  EXPECT_FALSE(now() == before);
}

}  // namespace
}  // namespace quorvin
