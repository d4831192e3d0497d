// SPDX-License-Identifier: GPL-2.0-or-later

// Files that are not listings: every one is reported by its name, and the others are still searched.
#include "faults/runtime_fault.h"
#include "search/search_run_fixture.h"
#include "support/fault_number.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"

#include <QDir>
#include <QFile>

#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {
namespace {

class BadInput : public test::SearchRunFixture {
 protected:
  /// Runs "song" over the bad listing and a good one behind it.
  void findWithGoodOneBehind(const QString& badPath) {
    addOffline(badPath);
    addOffline(folder_.writeFile(u"good.lst"_qs, "song good\r\n"));
    find(u"song");
  }
};

TEST_F(BadInput, ListingThatIsAFolderIsNotFound) {
  const QString path = folder_.pathOf(u"folder.lst"_qs);
  QDir().mkpath(path);
  findWithGoodOneBehind(path);
  EXPECT_EQ(messages_.informed, (std::vector<QString>{u"Listing file not found: "_qs + path}));
  EXPECT_EQ(names(), (QStringList{u"song good"_qs}));
}

TEST_F(BadInput, ListingThatIsAPipeIsNotFound) {
  const QString path = folder_.pathOf(u"pipe.lst"_qs);
  ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
  findWithGoodOneBehind(path);
  EXPECT_EQ(messages_.informed, (std::vector<QString>{u"Listing file not found: "_qs + path}));
  EXPECT_EQ(names(), (QStringList{u"song good"_qs}));
}

TEST_F(BadInput, ListingThatCannotBeReadIsToldWithItsName) {
  // Nothing is mapped at the first address of a program, so reading there fails for the administrator too.
  findWithGoodOneBehind(u"/proc/self/mem"_qs);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(
      messages_.informed[0],
      u"The listing /proc/self/mem could not be searched to its end.\r\nRun-time error '57': Device I/O "
      "error: /proc/self/mem\r\nThe hits found in it so far are kept."_qs);
  EXPECT_EQ(names(), (QStringList{u"song good"_qs}));
  EXPECT_FALSE(run_.isRunning());
}

TEST_F(BadInput, EmptyListingIsSearchedInSilence) {
  findWithGoodOneBehind(folder_.writeFile(u"empty.lst"_qs, ""));
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_EQ(display_.searched.back(), 1);
}

TEST_F(BadInput, BinaryListingHarmsNothing) {
  std::mt19937 random(3);
  QByteArray bytes;
  for (int i = 0; i < 500000; ++i) bytes += static_cast<char>(random() & 0xFF);
  findWithGoodOneBehind(folder_.writeFile(u"binary.lst"_qs, bytes));
  EXPECT_EQ(names().back(), u"song good"_qs);
}

TEST_F(BadInput, LineOverAMebibyteEndsTheListingWithItsNumber) {
  const QByteArray bytes = "song before\r\n\r\n" + QByteArray(3 << 20, 'x') + "\r\nsong behind\r\n";
  const QString path = folder_.writeFile(u"long.lst"_qs, bytes);
  findWithGoodOneBehind(path);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(messages_.informed[0],
            u"The listing %1 could not be searched to its end.\r\nRun-time error '6': Line 3 is "
            "longer than 1048576 bytes\r\nThe hits found in it so far are kept."_qs.arg(path));
  EXPECT_EQ(names(), (QStringList{u"song before"_qs, u"song good"_qs}));
}

/// A listing of one line without an end, made as it is read.
class EndlessLine {
 public:
  explicit EndlessLine(std::size_t bytes) : left_(bytes) {}
  std::size_t operator()(std::span<char> buffer) {
    const std::size_t count = std::min(buffer.size(), left_);
    std::fill_n(buffer.begin(), count, 'x');
    left_ -= count;
    taken += count;
    return count;
  }
  std::size_t taken = 0;

 private:
  std::size_t left_;
};

TEST(BadListing, LineOfAGigabyteIsRefusedAfterItsFirstChunks) {
  EndlessLine source(std::size_t{1} << 30);
  test::TestScan scan(u"x"_qs);
  EXPECT_FAULT(scan.run(std::ref(source)), 6);
  EXPECT_LE(source.taken, std::size_t{3} << 20);
  EXPECT_EQ(scan.counts.searched, 0);
}

TEST_F(BadInput, ListingThatIsCutWhileItIsReadIsToldAndItsHitsAreKept) {
  const QString path = folder_.writeFile(u"cut.lst"_qs, QByteArray("song\r\n").repeated(1000000));
  display_.onEvents = [&] {
    if (display_.eventPasses > 1) return;
    ASSERT_EQ(::truncate(QFile::encodeName(path).constData(), 100), 0);
  };
  findWithGoodOneBehind(path);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].startsWith(u"The listing "_qs + path))
      << messages_.informed[0].toStdString();
  EXPECT_TRUE(messages_.informed[0].contains(u"Run-time error '62'"_qs));
  EXPECT_GE(hits_.rowCount(), 2000);
  EXPECT_EQ(names().back(), u"song good"_qs);
}

TEST_F(BadInput, ImpossibleSizesAndDatesAreShownAsBeforeAndTold) {
  const QString path = folder_.writeFile(
      u"odd.lst"_qs, test::entryLine("song 1", "1,000", "15 Jan 2004 10:20:30") +
                         test::entryLine("song 2", "99999999999999", "15 Jan 2004 10:20:30") +
                         test::entryLine("song 3", "5", "99 Jan 2004 10:20:30 ") +
                         test::entryLine("song 4", "7", "31 Feb 2004 25:61:99 "));
  findWithGoodOneBehind(path);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].contains(path + u": 2 line(s), the first is line 3"_qs))
      << messages_.informed[0].toStdString();
  EXPECT_EQ(hits_.row(3).size, 9999999999999);
  EXPECT_EQ(names().size(), 5);
}

}  // namespace
}  // namespace quorvin
