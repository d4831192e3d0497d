// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/file_lock.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <optional>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quorvin {

namespace {

int faultOfLocking(const QString& path) {
  try {
    const FileLock lock(path, 50);
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

TEST(FileLock, IsHeldByOneAtATime) {
  const TemporaryFolder place;
  const QString path = place.pathOf(QStringLiteral("settings.ini"));
  {
    const FileLock lock(path, 50);
    EXPECT_EQ(faultOfLocking(path), 75);
  }
  EXPECT_EQ(faultOfLocking(path), 0);
}

TEST(FileLock, OfAKilledProgramIsFree) {
  const TemporaryFolder place;
  const QString path = place.pathOf(QStringLiteral("settings.ini"));
  const pid_t child = ::fork();
  if (child == 0) {
    const FileLock lock(path, 50);
    ::raise(SIGKILL);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(faultOfLocking(path), 0);
}

TEST(FileLock, NamesTheFileWhenItCannotBeMade) {
  const TemporaryFolder place;
  const QString path = place.pathOf(QStringLiteral("none/settings.ini"));
  try {
    const FileLock lock(path, 50);
    FAIL() << "a lock in a folder that is not there";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.description(), QStringLiteral("File not found: ") + path);
  }
}

TEST(FileLock, DoesNotFollowALink) {
  const TemporaryFolder place;
  ASSERT_TRUE(QFile::link(place.pathOf(u"elsewhere"_qs), place.pathOf(u"a.lock"_qs)));
  EXPECT_NE(faultOfLocking(place.pathOf(u"a"_qs)), 0);
  EXPECT_FALSE(place.has(u"elsewhere"_qs));
}

TEST(FolderLock, IsHeldByOneAtATimeAndLeavesNothingBehind) {
  const TemporaryFolder place;
  {
    const std::optional<FolderLock> lock = FolderLock::take(place.path());
    EXPECT_TRUE(lock);
    EXPECT_FALSE(FolderLock::take(place.path()));
  }
  EXPECT_TRUE(FolderLock::take(place.path()));
  EXPECT_EQ(place.names(), QStringList());
}

TEST(FolderLock, OfAKilledProgramIsFree) {
  const TemporaryFolder place;
  const pid_t child = ::fork();
  if (child == 0) {
    const std::optional<FolderLock> lock = FolderLock::take(place.path());
    ::raise(lock ? SIGKILL : SIGABRT);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_EQ(WTERMSIG(status), SIGKILL);
  EXPECT_TRUE(FolderLock::take(place.path()));
}

TEST(FolderLock, OfAFolderThatIsNotThereKeepsNobodyOut) {
  const TemporaryFolder place;
  const std::optional<FolderLock> lock = FolderLock::take(place.pathOf(u"none/"_qs));
  EXPECT_TRUE(lock);
  EXPECT_TRUE(FolderLock::take(place.pathOf(u"none/"_qs)));
  EXPECT_TRUE(FolderLock::take(QString()));
}

// A lock on the file itself.

TEST(FileLockOnItself, IsHeldByOneAtATimeAndLeavesNoFile) {
  const TemporaryFolder place;
  const QString path = place.writeFile(QStringLiteral("Locations.txt"), "list");
  {
    const FileLock lock = FileLock::onFileItself(path, 50);
    EXPECT_FAULT(FileLock::onFileItself(path, 50), 75);
  }
  const FileLock again = FileLock::onFileItself(path, 50);
  EXPECT_EQ(place.names(), QStringList{QStringLiteral("Locations.txt")});
}

TEST(FileLockOnItself, IsOnTheFileThatWasPutThereMeanwhile) {
  const TemporaryFolder place;
  const QString path = place.writeFile(QStringLiteral("Locations.txt"), "old");
  std::optional<FileLock> first = FileLock::onFileItself(path, 50);
  std::thread second([&] {
    // Waits on the old file; by the time it has that one, a new file is there.
    const FileLock lock = FileLock::onFileItself(path, 60'000);
    EXPECT_EQ(place.readFile(QStringLiteral("Locations.txt")), "new");
    EXPECT_FAULT(FileLock::onFileItself(path, 50), 75);
  });
  replaceFile(path, "new");
  first.reset();
  second.join();
}

TEST(FileLockOnItself, OfAFileThatIsNotThereKeepsNobodyApart) {
  const TemporaryFolder place;
  const QString path = place.pathOf(QStringLiteral("Locations.txt"));
  const FileLock first = FileLock::onFileItself(path, 50);
  const FileLock second = FileLock::onFileItself(path, 50);
  EXPECT_EQ(place.names(), QStringList());
}

TEST(IsHeld, AsLongAsTheObjectThatPutTheFileInPlaceLives) {
  const TemporaryFolder folder;
  const QString path = folder.pathOf(QStringLiteral("a"));
  {
    FileAside file(path);
    file.write("x");
    file.commit();
    EXPECT_TRUE(isHeld(path));
  }
  EXPECT_FALSE(isHeld(path));
}

}  // namespace

}  // namespace quorvin
