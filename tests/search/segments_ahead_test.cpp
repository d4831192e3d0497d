// SPDX-License-Identifier: GPL-2.0-or-later

// A listing whose kept segments are searched by several threads: nobody may see a difference.
#include "search/segments_ahead.h"

#include "files/file_reader.h"
#include "search/segment/segment_store_fixture.h"
#include "support/eventually.h"
#include "support/sweep.h"

#include <functional>

namespace quorvin::test {
namespace {

/// Waits for another thread; false when nothing comes of it.
bool comes(const std::atomic<bool>& what) {
  const QDeadlineTimer patience(kPatienceMilliseconds);
  while (!what && !patience.hasExpired()) std::this_thread::yield();
  return what;
}

/// A segment that knows which thread has searched it.
class WatchedSegment : public GrowingSegment {
 public:
  explicit WatchedSegment(int entries) {
    beginBlock("V", "\\Music\\", true);
    for (int i = 0; i < entries; ++i) addEntry(i % 2 == 0 ? "Song" : "other", true);
    publish();
    complete();
  }

  void searched() const override {
    if (whenSearched) whenSearched();
    searchedBy = std::this_thread::get_id();
    isSearched = true;
  }

  std::function<void()> whenSearched;
  mutable std::thread::id searchedBy;
  mutable std::atomic<bool> isSearched = false;
};

class SegmentsAheadTest : public ::testing::Test {
 protected:
  const std::thread::id here_ = std::this_thread::get_id();
  std::vector<std::shared_ptr<WatchedSegment>> watched_ = {
      std::make_shared<WatchedSegment>(3000), std::make_shared<WatchedSegment>(3000),
      std::make_shared<WatchedSegment>(5000), std::make_shared<WatchedSegment>(10)};
  const SegmentStore::Segments segments_{watched_.begin(), watched_.end()};
  const SearchQuery query_{u"song", 50};
};

TEST_F(SegmentsAheadTest, AnotherThreadSearchesWhatComesNext) {
  SegmentsAhead ahead(segments_, query_, {.helpers = 1});
  EXPECT_FALSE(ahead.take(0)) << "the first is the caller's";
  EXPECT_TRUE(comes(watched_[1]->isSearched));
  const std::optional<SegmentFinds> finds = ahead.take(1);
  ASSERT_TRUE(finds);
  EXPECT_NE(watched_[1]->searchedBy, here_);
  EXPECT_EQ(finds->searched, 3000U);
  EXPECT_EQ(finds->hits.size(), 1500U);
  EXPECT_EQ(finds->hits[2].entry, 4U);
  EXPECT_TRUE(finds->counts.empty());
}

TEST_F(SegmentsAheadTest, StepsEndWhereTheRunYields) {
  SegmentsAhead ahead(segments_, query_, {.helpers = 1, .countsOnly = true, .searchedBefore = 500});
  EXPECT_FALSE(ahead.take(0));
  EXPECT_TRUE(comes(watched_[1]->isSearched));
  // The second starts at 3,500 and ends at 6,500.
  const std::optional<SegmentFinds> finds = ahead.take(1);
  ASSERT_TRUE(finds);
  EXPECT_EQ(finds->counts, (std::vector<std::int64_t>{250, 1000, 250}));
  EXPECT_TRUE(finds->hits.empty());
}

TEST_F(SegmentsAheadTest, TheCallerSearchesAnotherOneWhileItWouldHaveToWait) {
  std::atomic<bool> isAtWork = false;
  watched_[1]->whenSearched = [&] {
    isAtWork = true;
    EXPECT_TRUE(comes(watched_[2]->isSearched));
  };
  SegmentsAhead ahead(segments_, query_, {.helpers = 1});
  EXPECT_FALSE(ahead.take(0));
  EXPECT_TRUE(comes(isAtWork));
  EXPECT_TRUE(ahead.take(1));
  EXPECT_EQ(watched_[2]->searchedBy, here_);
  EXPECT_NE(watched_[1]->searchedBy, here_);
  EXPECT_EQ(ahead.take(2)->hits.size(), 2500U);
}

TEST_F(SegmentsAheadTest, WhatASearchThrowsComesWithWhatWasFoundBefore) {
  watched_[1]->whenSearched = [] { throw DamagedSegment(); };
  SegmentsAhead ahead(segments_, query_, {.helpers = 1});
  EXPECT_FALSE(ahead.take(0));
  EXPECT_TRUE(comes(watched_[2]->isSearched));
  const std::optional<SegmentFinds> finds = ahead.take(1);
  ASSERT_TRUE(finds);
  EXPECT_EQ(finds->searched, 3000U);
  EXPECT_THROW(std::rethrow_exception(finds->fault), DamagedSegment);
}

TEST_F(SegmentsAheadTest, NobodyGoesFurtherAheadThanKeepsTheThreadsAtWork) {
  SegmentsAhead ahead(segments_, query_, {.helpers = 1});
  EXPECT_FALSE(ahead.take(0));
  EXPECT_TRUE(comes(watched_[2]->isSearched));
  EXPECT_FALSE(watched_[3]->isSearched);
  static_cast<void>(ahead.take(1));
  EXPECT_TRUE(comes(watched_[3]->isSearched));
}

TEST_F(SegmentsAheadTest, WithoutAThreadTheCallerDoesAll) {
  SegmentsAhead ahead(segments_, query_, {});
  for (std::size_t i = 0; i < segments_.size(); ++i) EXPECT_FALSE(ahead.take(i));
}

/// Whole scans of listings that are in many segments.
class SearchedAheadTest : public SegmentStoreTest {
 protected:
  SearchedAheadTest() {
    limits_.searchedAhead = 1;
    SegmentStore writer({cache_, kPlenty});
    scan(writer, u"song"_qs);
  }

  struct Seen {
    ReferenceResult result;
    std::vector<std::int64_t> yields;
    bool stopped = false;
    std::int64_t hits = 0;
  };
  Seen see(const QString& words, SegmentUse use, int helpers, bool countsOnly, std::int64_t stopAt = -1) {
    SegmentStore store({cache_, kPlenty, use});
    TestScan search(words);
    search.counts.searched = 700;
    search.yields.onYield = [stopAt](std::int64_t count) { return count == stopAt; };
    ScanRequest request = search.request();
    if (countsOnly) request.hits = nullptr;
    limits_.helpers = helpers;
    search.table.startListing(SourceKind::Online, listing_);
    scanListingFile(listing_, &store, request, search.counts, search.outcome, limits_);
    return {search.result(), search.yields.counts, search.outcome.stopped, search.counts.hits};
  }
  void expectNoDifference(std::int64_t stopAt = -1) {
    for (const QString& words : {u"song"_qs, u"other music 7"_qs, u"\u00E4"_qs, u"nowhere"_qs}) {
      for (const SegmentUse use : {SegmentUse::Repeated, SegmentUse::Once}) {
        for (const bool countsOnly : {false, true}) {
          const Seen alone = see(words, use, 0, countsOnly, stopAt);
          const Seen together = see(words, use, 3, countsOnly, stopAt);
          EXPECT_EQ(together.result.hits, alone.result.hits) << words.toStdString();
          EXPECT_EQ(together.result.searched, alone.result.searched);
          EXPECT_EQ(together.result.unreadable, alone.result.unreadable);
          EXPECT_EQ(together.result.firstUnreadableLine, alone.result.firstUnreadableLine);
          EXPECT_EQ(together.yields, alone.yields);
          EXPECT_EQ(together.stopped, alone.stopped);
          EXPECT_EQ(together.hits, alone.hits) << words.toStdString();
        }
      }
    }
  }
  void keepReadableListing() {
    bytes_.replace("n/a", "  7");
    bytes_ += bytes_;
    folder_.writeFile(u"cd.lst"_qs, bytes_);
    SegmentStore writer({cache_, kPlenty});
    scan(writer, u"song"_qs);
  }
};

TEST_F(SearchedAheadTest, HitsYieldsAndUnreadableLinesAreTheSame) {
  expectNoDifference();
  EXPECT_EQ(see(u"song"_qs, SegmentUse::Once, 3, false).result.hits, reference(u"song"_qs).hits);
  EXPECT_GT(see(u"song"_qs, SegmentUse::Once, 3, false).result.unreadable, 0);
}

TEST_F(SearchedAheadTest, CountsOfLinesThatCanAllBeReadAreTheSame) {
  keepReadableListing();
  expectNoDifference();
  EXPECT_EQ(see(u"song"_qs, SegmentUse::Repeated, 3, true).hits,
            static_cast<std::int64_t>(reference(u"song"_qs).hits.size()));
}

TEST_F(SearchedAheadTest, AStopEndsItAtTheSameEntry) {
  keepReadableListing();
  expectNoDifference(2000);
  expectNoDifference(4000);
  EXPECT_EQ(see(u"song"_qs, SegmentUse::Repeated, 3, false, 4000).result.searched, 4000);
}

TEST_F(SearchedAheadTest, DamageIsFoundAndTheListingReadAgain) {
  const QByteArray good = contentOfFile(cacheFile());
  const QString path = cacheFile();
  const ReferenceResult expected = reference(u"song"_qs);
  for (qsizetype place = 100; place < good.size(); place += sweep(4001, 40009)) {
    QByteArray damaged = good;
    damaged[place] = static_cast<char>(~damaged[place]);
    for (const SegmentUse use : {SegmentUse::Repeated, SegmentUse::Once}) {
      ASSERT_TRUE(QFile::remove(path));
      folder_.writeFile(u"cache/"_qs + path.section(u'/', -1), damaged);
      const ReferenceResult found = see(u"song"_qs, use, 3, false).result;
      ASSERT_EQ(found.hits.size(), expected.hits.size()) << "byte " << place;
      ASSERT_EQ(found.searched, expected.searched + 700) << "byte " << place;
    }
  }
}

}  // namespace
}  // namespace quorvin::test
