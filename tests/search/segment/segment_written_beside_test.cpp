// SPDX-License-Identifier: GPL-2.0-or-later

// Segments that are written by a thread of its own while their listing is read on.
#include "files/file_reader.h"
#include "search/segment/segment_store_fixture.h"
#include "support/fault_number.h"

#include <csignal>
#include <sys/resource.h>

namespace quorvin::test {
namespace {

constexpr QDir::Filters kAnyFile = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;

class SegmentWrittenBeside : public SegmentStoreTest {
 protected:
  static SegmentStore::Options options(const QString& cache, SegmentUse use = SegmentUse::Repeated) {
    return {cache, kPlenty, use, 0};
  }
  SegmentStore::Options options() const { return options(cache_); }

  /// Segments that are large enough to be held in the file.
  void makeLarge() {
    limits_.chunkSize = std::size_t{1} << 16;
    limits_.keptSegment = std::size_t{2} << 20;
    bytes_.clear();
    for (int i = 0; i < 50'000; ++i) {
      if (i % 100 == 0) bytes_ += blockHead("V", "\\Music\\F" + QByteArray::number(i) + "\\");
      const QByteArray name = (i % 3 == 0 ? "Song " : "other ") + QByteArray::number(i);
      bytes_ += entryLine(name.leftJustified(64, '.'), QByteArray::number(i));
    }
    folder_.writeFile(u"cd.lst"_qs, bytes_);
  }
  const Segment& segmentOf(std::int64_t row) const { return *table_.stretchAt(row).segment; }
  bool isInMemory(std::int64_t row) const {
    return dynamic_cast<const GrowingSegment*>(&segmentOf(row)) != nullptr;
  }
};

TEST_F(SegmentWrittenBeside, GivesTheSameHitsTheFirstTimeAndLater) {
  for (const SegmentUse use : {SegmentUse::Repeated, SegmentUse::Once}) {
    SegmentStore store(options(cache_, use));
    expectRight(store);
    EXPECT_EQ(segmentFiles(cache_).size(), 1);
    SegmentStore second(options(cache_, use));
    EXPECT_GT(second.find(*segmentKeyOf(listing_, QLocale::c())).size(), 2U);
    expectRight(second);
    store.forget(listing_);
  }
}

TEST_F(SegmentWrittenBeside, KeepsTheSameBytesAsOneThatIsWrittenInBetween) {
  SegmentStore inBetween({cache_, kPlenty});
  scan(inBetween, u"song"_qs);
  const QString other = folder_.pathOf(u"other/"_qs);
  SegmentStore beside(options(other));
  scan(beside, u"song"_qs);
  EXPECT_TRUE(contentOfFile(cacheFile()) == contentOfFile(segmentFiles(other).value(0)));
}

TEST_F(SegmentWrittenBeside, HitsAreThoseOfTheFileOnceItIsWritten) {
  makeLarge();
  SegmentStore store(options());
  const ReferenceResult found = scan(store, u"song"_qs);
  EXPECT_EQ(found.hits, reference(u"song"_qs).hits);
  ASSERT_GT(table_.rowCount(), 10'000);
  EXPECT_NE(&segmentOf(0), &segmentOf(table_.rowCount() - 1));
  EXPECT_FALSE(isInMemory(0));
}

TEST_F(SegmentWrittenBeside, HitsCanBeLookedAtWhileTheyAreWritten) {
  makeLarge();
  const std::vector<ReferenceHit> expected = reference(u"song"_qs).hits;
  TestScan search(u"song"_qs);
  std::int64_t looked = 0;
  search.yields.onYield = [&](std::int64_t) {
    // Those at the end of the segment before, which is just being written.
    for (std::int64_t row = 0; row < search.table.rowCount(); row += 997) {
      const HitRow hit = search.table.row(row);
      EXPECT_EQ(hit.name, expected[static_cast<std::size_t>(row)].name);
      EXPECT_EQ(hit.size, expected[static_cast<std::size_t>(row)].size);
      ++looked;
    }
    return false;
  };
  SegmentStore store(options());
  search.runFile(listing_, &store, limits_);
  EXPECT_GT(looked, 100);
  EXPECT_EQ(search.result().hits, expected);
}

TEST_F(SegmentWrittenBeside, StoppedSearchLeavesNoFile) {
  makeLarge();
  // In the third segment.
  onYield_ = [](std::int64_t count) { return count >= 40'000; };
  SegmentStore store(options());
  EXPECT_EQ(scan(store, u"song"_qs).searched, 40'000);
  EXPECT_TRUE(outcome_.stopped);
  EXPECT_TRUE(QDir(cache_).isEmpty(kAnyFile));
  EXPECT_TRUE(store.find(*segmentKeyOf(listing_, QLocale::c())).empty());
}

TEST_F(SegmentWrittenBeside, ListingThatCannotBeReadToItsEndLeavesNoFileAndTheHitsUpToThere) {
  makeLarge();
  bytes_ += QByteArray(2'000'000, 'x');
  folder_.writeFile(u"cd.lst"_qs, bytes_);
  SegmentStore store(options());
  TestScan search(u"song"_qs);
  EXPECT_FAULT(search.runFile(listing_, &store, limits_), 6);
  EXPECT_GT(search.table.rowCount(), 10'000);
  EXPECT_TRUE(search.table.row(search.table.rowCount() - 1).name.startsWith(u"Song 49998."_qs));
  EXPECT_TRUE(QDir(cache_).isEmpty(kAnyFile));
}

TEST_F(SegmentWrittenBeside, FullDiskLeavesNoFileAndTheRightHits) {
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{100000, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  SegmentStore store(options());
  expectRight(store);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, handler);
  EXPECT_TRUE(segmentFiles(cache_).isEmpty());
  EXPECT_GT(store.find(*segmentKeyOf(listing_, QLocale::c())).size(), 2U) << "they are held in memory";
}

}  // namespace
}  // namespace quorvin::test
