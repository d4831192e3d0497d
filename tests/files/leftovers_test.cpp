// SPDX-License-Identifier: GPL-2.0-or-later

// What killed programs leave behind, and what of it is removed.
#include "files/file_aside.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin {

namespace {

/// The number of a process that does not run any more.
pid_t deadProcess() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  return child;
}

class Leftovers : public testing::Test {
 protected:
  static QString nameOf(pid_t process) { return u".quorvin-%1-0123456789abcdef.part"_qs.arg(process); }

  QString leave(pid_t process, std::int64_t hoursAgo) const { return leave(nameOf(process), hoursAgo); }

  QString leave(const QString& name, std::int64_t hoursAgo) const {
    const QString path = folder_.writeFile(name, "part");
    const timespec time{::time(nullptr) - hoursAgo * 3600, 0};
    const timespec times[2] = {time, time};
    EXPECT_EQ(::utimensat(AT_FDCWD, path.toUtf8().constData(), times, 0), 0);
    return path;
  }

  TemporaryFolder folder_;
};

TEST_F(Leftovers, OfAProgramThatIsGoneAreRemovedAtOnce) {
  const QString path = leave(deadProcess(), 0);
  EXPECT_EQ(filesAside(folder_.path()), QStringList{path});
  EXPECT_TRUE(isOfDeadProcess(path));
  removeLeftovers(folder_.path());
  EXPECT_EQ(folder_.names(), QStringList());
}

TEST_F(Leftovers, OfAProcessWithTheSameNumberAreRemovedAfterADay) {
  const QString path = leave(::getpid(), 23);
  EXPECT_FALSE(isOfDeadProcess(path));
  removeLeftovers(folder_.path());
  EXPECT_TRUE(folder_.has(nameOf(::getpid())));
  leave(::getpid(), 25);
  removeLeftovers(folder_.path());
  EXPECT_EQ(folder_.names(), QStringList());
}

TEST_F(Leftovers, AFileThatIsBeingWrittenIsNone) {
  FileAside file(folder_.pathOf(u"a"_qs));
  EXPECT_EQ(filesAside(folder_.path()), QStringList{file.path()});
  EXPECT_FALSE(isOfDeadProcess(file.path()));
  const timespec longAgo[2] = {{1, 0}, {1, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, file.path().toUtf8().constData(), longAgo, 0), 0);
  removeLeftovers(folder_.path());
  file.commit();
  EXPECT_EQ(folder_.names(), QStringList{u"a"_qs});
}

// Another machine's process on a network drive.
TEST_F(Leftovers, AFileThatAnUnknownProcessHoldsIsNone) {
  FileAside file(folder_.pathOf(u"a"_qs));
  const QString other = folder_.pathOf(nameOf(deadProcess()));
  ASSERT_TRUE(QFile::rename(file.path(), other));
  EXPECT_FALSE(isOfDeadProcess(other));
  removeLeftovers(folder_.path());
  EXPECT_TRUE(QFile::exists(other));
}

TEST_F(Leftovers, NamesThatOnlyLookSimilarStay) {
  const QString process = QString::number(deadProcess());
  const QStringList names = {
      u".quorvin-"_qs + process + u".part"_qs, u".quorvin-"_qs + process + u"-0123456789ABCDEF.part"_qs,
      u".quorvin-0-0123456789abcdef.part"_qs, u".quorvin-"_qs + process + u"-0123456789abcdef.part.txt"_qs,
      u"quorvin-"_qs + process + u"-0123456789abcdef.part"_qs};
  for (const QString& name : names) folder_.writeFile(name, "mine");
  folder_.makeFolder(nameOf(deadProcess()));
  EXPECT_EQ(filesAside(folder_.path()), QStringList());
  removeLeftovers(folder_.path());
  EXPECT_EQ(folder_.names().size(), names.size() + 1);
}

TEST_F(Leftovers, OfEarlierVersionsAreRemovedToo) {
  const QString process = QString::number(deadProcess());
  leave(u".quorvin-"_qs + process + u"-17.part"_qs, 0);
  leave(u".quorvin-"_qs + process + u".tmp"_qs, 0);
  EXPECT_EQ(filesAside(folder_.path()).size(), 2);
  removeLeftovers(folder_.path());
  EXPECT_EQ(folder_.names(), QStringList());
}

TEST_F(Leftovers, OfEarlierVersionsThatNameNoProcessAreRemovedAfterADay) {
  leave(u"Locations.txt.bXcQwz"_qs, 25);
  leave(u"Locations.txt.aBCDEF"_qs, 25);
  leave(u"Locations.txt.newOne"_qs, 23);
  const QStringList own = {u"Locations.txt"_qs,          u"Locations.txt.backup"_qs,
                           u"Locations.txt.Backup"_qs,   u"Locations.txt.BACKUP"_qs,
                           u"Locations.txt.bXcQw"_qs,    u"Locations.txt.bXcQw1"_qs,
                           u"OldLocations.txt.bXcQwz"_qs};
  for (const QString& name : own) leave(name, 25);
  removeEarlierLeftovers(folder_.pathOf(u"Locations.txt"_qs));
  QStringList left = own + QStringList{u"Locations.txt.newOne"_qs};
  left.sort();
  EXPECT_EQ(folder_.names(), left);
  removeEarlierLeftovers(folder_.pathOf(u"gone/Locations.txt"_qs));
}

TEST_F(Leftovers, OfAFolderThatIsNotThereAreNone) {
  EXPECT_EQ(filesAside(folder_.pathOf(u"gone/"_qs)), QStringList());
  removeLeftovers(folder_.pathOf(u"gone/"_qs));
}

}  // namespace

}  // namespace quorvin
