// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/guarded_map.h"

#include "support/fault_number.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>

namespace quorvin {
namespace {

constexpr std::size_t kPages = 40;

/// A file of forty pages of memory, without a zero in it.
class GuardedMapTest : public testing::Test {
 protected:
  void cutTo(std::size_t size) const { ASSERT_TRUE(QFile::resize(path_, static_cast<qint64>(size))); }

  static std::size_t zerosIn(const GuardedMap& map) {
    return static_cast<std::size_t>(std::ranges::count(map.bytes(), std::byte{0}));
  }

  static std::byte at(const GuardedMap& map, std::size_t place) { return map.bytes()[place]; }

  const std::size_t page_ = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
  const std::size_t size_ = kPages * page_;
  TemporaryFolder folder_;
  QString path_ = folder_.writeFile(QStringLiteral("bytes"), QByteArray(static_cast<qsizetype>(size_), 'x'));
  RandomAccessFile file_{path_};
};

TEST_F(GuardedMapTest, ShowsTheBytesOfTheFileFromItsOffsetOn) {
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.seek(kMappingAlignment + 1));
  ASSERT_EQ(file.write("yz"), 2);
  file.close();
  const GuardedMap map(file_, kMappingAlignment, 3);
  EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(map.bytes().data()), 3), "xyz");
  EXPECT_EQ(map.bytes().size(), 3U);
  EXPECT_FALSE(map.isLost());
}

TEST_F(GuardedMapTest, OfAFileThatIsTooShortIsRefused) {
  EXPECT_FAULT(GuardedMap(file_, 0, size_ + 1), 57);
  cutTo(page_);
  EXPECT_FAULT(GuardedMap(file_, 0, page_ + 1), 57);
}

TEST_F(GuardedMapTest, OutlivesTheNameOfTheFile) {
  const GuardedMap map(file_, 0, size_);
  ASSERT_TRUE(QFile::remove(path_));
  EXPECT_EQ(zerosIn(map), 0U);
  EXPECT_FALSE(map.isLost());
}

TEST_F(GuardedMapTest, OfACutFileIsLostWhenALookGoesToWhatIsGoneAndIsZerosThen) {
  for (const std::size_t left : {std::size_t{0}, std::size_t{1}, page_, 7 * page_ + 100, size_ - page_}) {
    ASSERT_TRUE(QFile::resize(path_, 0));
    folder_.writeFile(QStringLiteral("bytes"), QByteArray(static_cast<qsizetype>(size_), 'x'));
    const RandomAccessFile file(path_);
    const GuardedMap map(file, 0, size_);
    EXPECT_EQ(zerosIn(map), 0U);
    cutTo(left);
    EXPECT_FALSE(map.isLost()) << left;
    errno = ERANGE;
    EXPECT_EQ(at(map, size_ - 1), std::byte{0}) << left;
    EXPECT_EQ(errno, ERANGE);
    EXPECT_TRUE(map.isLost()) << left;
    EXPECT_EQ(zerosIn(map), size_) << left;
  }
}

TEST_F(GuardedMapTest, StaysLostWhenTheFileIsWholeAgain) {
  const GuardedMap map(file_, 0, size_);
  cutTo(0);
  EXPECT_EQ(at(map, 0), std::byte{0});
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(QByteArray(static_cast<qsizetype>(size_), 'x')), static_cast<qint64>(size_));
  file.close();
  EXPECT_EQ(zerosIn(map), size_);
  EXPECT_TRUE(map.isLost());
  const GuardedMap another(file_, 0, size_);
  EXPECT_EQ(zerosIn(another), 0U);
}

TEST_F(GuardedMapTest, ACutInAPageOfMemoryShowsInTheLastWritingOnly) {
  const GuardedMap map(file_, 0, size_);
  const RandomAccessFile::Writing before = file_.lastWriting();
  cutTo(size_ - 100);
  EXPECT_EQ(zerosIn(map), 100U);
  EXPECT_FALSE(map.isLost());
  EXPECT_NE(file_.lastWriting(), before);
}

TEST_F(GuardedMapTest, TheLossOfOneIsNoLossOfOthers) {
  const RandomAccessFile other(folder_.writeFile(QStringLiteral("other"), QByteArray(5000, 'o')));
  const GuardedMap before(other, 0, 5000);
  const GuardedMap map(file_, 0, size_);
  const GuardedMap after(other, 0, 5000);
  cutTo(0);
  EXPECT_EQ(zerosIn(map), size_);
  EXPECT_TRUE(map.isLost());
  for (const GuardedMap* whole : {&before, &after}) {
    EXPECT_EQ(zerosIn(*whole), 0U);
    EXPECT_FALSE(whole->isLost());
  }
}

TEST_F(GuardedMapTest, SoManyCanBeThereAndNoMore) {
  std::vector<std::unique_ptr<GuardedMap>> maps;
  for (std::size_t i = 0; i < GuardedMap::kMostMaps; ++i) {
    maps.push_back(std::make_unique<GuardedMap>(file_, 0, page_));
  }
  EXPECT_FAULT(GuardedMap(file_, 0, page_), 75);
  maps[500].reset();
  const GuardedMap map(file_, 0, page_);
  cutTo(0);
  EXPECT_EQ(zerosIn(*maps.back()), page_);
  EXPECT_TRUE(maps.back()->isLost());
  EXPECT_FALSE(map.isLost());
}

/// Each thread cuts files of its own under its maps, while others make and remove theirs.
TEST_F(GuardedMapTest, ThreadsLoseTheirOwnMapsAtOnce) {
  constexpr int kThreads = 4;
  std::atomic<int> right = 0;
  std::vector<std::thread> threads;
  for (int number = 0; number < kThreads; ++number) {
    threads.emplace_back([this, number, &right] {
      const QString path = folder_.pathOf(QStringLiteral("own%1").arg(number));
      for (int round = 0; round < 50; ++round) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) return;
        file.write(QByteArray(static_cast<qsizetype>(4 * page_), 'x'));
        file.close();
        const RandomAccessFile opened(path);
        const GuardedMap whole(file_, 0, size_);
        const GuardedMap cut(opened, 0, 4 * page_);
        const bool wasWhole = zerosIn(cut) == 0;
        QFile::resize(path, 0);
        const bool isRight =
            wasWhole && zerosIn(cut) == 4 * page_ && cut.isLost() && zerosIn(whole) == 0 && !whole.isLost();
        if (isRight) ++right;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(right, kThreads * 50);
}

/// Two threads look at the same map when it is lost: for both it is.
TEST_F(GuardedMapTest, IsLostForAllThreadsThatLookAtIt) {
  for (int round = 0; round < 50; ++round) {
    const RandomAccessFile file(
        folder_.writeFile(QStringLiteral("both"), QByteArray(static_cast<qsizetype>(size_), 'x')));
    const GuardedMap map(file, 0, size_);
    ASSERT_TRUE(QFile::resize(folder_.pathOf(QStringLiteral("both")), 0));
    std::atomic<int> lost = 0;
    const auto look = [&] {
      if (zerosIn(map) == size_ && map.isLost()) ++lost;
    };
    std::thread other(look);
    look();
    other.join();
    EXPECT_EQ(lost, 2);
  }
}

/// A file in memory, since a process that ends by a signal tidies up no folder.
class FileInMemory {
 public:
  FileInMemory() : number_(::memfd_create("bytes", 0)) { cutTo(kSize); }
  ~FileInMemory() { ::close(number_); }

  static constexpr std::size_t kSize = 100;
  QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(number_); }
  void cutTo(std::size_t size) const {
    if (::ftruncate(number_, static_cast<off_t>(size)) != 0) std::_Exit(9);
  }

 private:
  int number_;
};

void exitWithSeven(int) {
  std::_Exit(7);
}

/// Looks at a map that nobody guards.
void lookAtCutFile() {
  const FileInMemory file;
  const MappedFile unguarded(file.path(), 0, FileInMemory::kSize);
  file.cutTo(0);
  const volatile std::byte first = unguarded.bytes()[0];
  static_cast<void>(first);
}

/// As often as it is called.
void loseAMap() {
  const FileInMemory file;
  const RandomAccessFile opened(file.path());
  const GuardedMap map(opened, 0, FileInMemory::kSize);
  file.cutTo(0);
  if (map.bytes()[0] != std::byte{0} || !map.isLost()) std::_Exit(8);
}

/// Each in a process that has had no map before.
class GuardedMapDeathTest : public testing::Test {
 protected:
  GuardedMapDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(GuardedMapDeathTest, ElsewhereTheSignalEndsTheProgramAsBefore) {
  const auto look = [] {
    std::signal(SIGBUS, SIG_DFL);
    loseAMap();
    const FileInMemory file;
    const RandomAccessFile opened(file.path());
    const GuardedMap map(opened, 0, FileInMemory::kSize);
    lookAtCutFile();
  };
  EXPECT_EXIT(look(), testing::KilledBySignal(SIGBUS), "");
}

TEST_F(GuardedMapDeathTest, WhoeverHadTheSignalBeforeGetsItFromElsewhere) {
  const auto look = [] {
    std::signal(SIGBUS, exitWithSeven);
    loseAMap();
    lookAtCutFile();
  };
  EXPECT_EXIT(look(), testing::ExitedWithCode(7), "");
}

TEST_F(GuardedMapDeathTest, ASignalThatIsSentEndsTheProgram) {
  const auto send = [] {
    std::signal(SIGBUS, SIG_DFL);
    loseAMap();
    std::raise(SIGBUS);
  };
  EXPECT_EXIT(send(), testing::KilledBySignal(SIGBUS), "");
}

TEST_F(GuardedMapDeathTest, ASignalThatIsSentIsIgnoredWhereItWasBefore) {
  const auto send = [] {
    std::signal(SIGBUS, SIG_IGN);
    loseAMap();
    std::raise(SIGBUS);
    loseAMap();
    std::_Exit(0);
  };
  EXPECT_EXIT(send(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace quorvin
