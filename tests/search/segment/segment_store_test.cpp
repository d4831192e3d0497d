// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/segment_store_fixture.h"
#include "support/generated_listing.h"

#include <QFileInfo>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

namespace quorvin::test {
namespace {

constexpr QDir::Filters kAnything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;

TEST_F(SegmentStoreTest, SecondSearchGivesTheSameHits) {
  SegmentStore store({cache_, kPlenty});
  expectRight(store);
  EXPECT_EQ(segmentFiles(cache_).size(), 1);
}

TEST_F(SegmentStoreTest, AnotherRunUsesTheFileOfTheOneBefore) {
  SegmentStore first({cache_, kPlenty});
  scan(first, u"song"_qs);
  SegmentStore second({cache_, kPlenty});
  const std::optional<SegmentKey> key = segmentKeyOf(listing_, QLocale::c());
  ASSERT_TRUE(key);
  EXPECT_GT(second.find(*key).size(), 2U);
  expectRight(second);
}

TEST_F(SegmentStoreTest, AFileIsNamedAfterTheChecksumOfItsListingsPathInSixteenDigits) {
  EXPECT_EQ(segmentFilePath(u"/cache/"_qs, u"/lists/1.lst"_qs), u"/cache/e8881987c5049c1f.qsegments"_qs);
  EXPECT_EQ(segmentFilePath(u"/cache/"_qs, u"/lists/20.lst"_qs), u"/cache/0ab5591f1bf0a51c.qsegments"_qs);
}

TEST_F(SegmentStoreTest, FilesOfEarlierVersionsAreRemovedWhenAListingIsKept) {
  const QString kept = folder_.writeFile(u"cache/0123456789abcdef.qimage"_qs, "of an earlier version");
  const QString unfinished = folder_.writeFile(u"cache/0123456789abcdef.qimage.7.new"_qs, "begun");
  const QString other = folder_.writeFile(u"cache/notes.txt"_qs, "somebody else's");
  EXPECT_EQ(earlierSegmentFiles(cache_), (QStringList{kept, unfinished}));
  SegmentStore store({cache_, kPlenty});
  expectRight(store);
  EXPECT_TRUE(earlierSegmentFiles(cache_).isEmpty());
  EXPECT_EQ(segmentFiles(cache_).size(), 1);
  EXPECT_TRUE(cacheFile().endsWith(u".qsegments"));
  EXPECT_TRUE(QFile::exists(other));
}

TEST_F(SegmentStoreTest, WithoutCacheFolderSegmentsStayInMemory) {
  SegmentStore store({QString(), kPlenty});
  scan(store, u"song"_qs);
  EXPECT_GT(store.find(*segmentKeyOf(listing_, QLocale::c())).size(), 2U);
  expectRight(store);
}

TEST_F(SegmentStoreTest, WithoutFolderAndMemoryTheSearchStillWorks) {
  SegmentStore store({QString(), 0});
  expectRight(store);
  EXPECT_TRUE(store.find(*segmentKeyOf(listing_, QLocale::c())).empty());
}

TEST_F(SegmentStoreTest, ChangedListingIsReadAnew) {
  SegmentStore store({cache_, kPlenty});
  scan(store, u"song"_qs);
  bytes_ += entryLine("song of the end");
  folder_.writeFile(u"cd.lst"_qs, bytes_);
  expectRight(store);
  EXPECT_EQ(table_.rowCount() > 0, true);
  EXPECT_EQ(segmentFiles(cache_).size(), 1);
}

TEST_F(SegmentStoreTest, TruncatedOrReplacedListingIsReadAnew) {
  SegmentStore store({cache_, kPlenty});
  expectRight(store);
  bytes_.truncate(bytes_.size() / 2);
  folder_.writeFile(u"cd.lst"_qs, bytes_);
  expectRight(store);
  bytes_.replace("Song", "Sang");
  const QString other = folder_.writeFile(u"other.lst"_qs, bytes_);
  ASSERT_EQ(::rename(QFile::encodeName(other).constData(), QFile::encodeName(listing_).constData()), 0);
  expectRight(store);
}

TEST_F(SegmentStoreTest, AnotherYearReadsAnew) {
  // A date that names no year is of this one.
  const QString rules = segmentKeyOf(listing_, QLocale::c())->readingRules;
  EXPECT_EQ(rules.section(u'\n', -1), QString::number(QDate::currentDate().year()));
}

TEST_F(SegmentStoreTest, AnotherLocaleReadsAnew) {
  const std::optional<SegmentKey> c = segmentKeyOf(listing_, QLocale::c());
  const std::optional<SegmentKey> german = segmentKeyOf(listing_, QLocale(QLocale::German, QLocale::Germany));
  ASSERT_TRUE(c && german);
  EXPECT_FALSE(*c == *german);
}

TEST_F(SegmentStoreTest, StoppedSearchLeavesNoFile) {
  onYield_ = [](std::int64_t) { return true; };
  SegmentStore store({cache_, kPlenty});
  EXPECT_EQ(scan(store, u"song"_qs).searched, 2000);
  EXPECT_TRUE(QDir(cache_).isEmpty(kAnything));
  EXPECT_TRUE(store.find(*segmentKeyOf(listing_, QLocale::c())).empty());
}

TEST_F(SegmentStoreTest, ListingThatChangesWhileItIsReadIsNotKept) {
  onYield_ = [this](std::int64_t) {
    QFile file(listing_);
    EXPECT_TRUE(file.open(QIODevice::Append));
    file.write("song more\r\n");
    return false;
  };
  SegmentStore store({cache_, kPlenty});
  scan(store, u"song"_qs);
  EXPECT_TRUE(outcome_.changedMeanwhile);
  EXPECT_TRUE(QDir(cache_).isEmpty(kAnything));
  onYield_ = {};
  bytes_ = folder_.readFile(u"cd.lst"_qs);
  expectRight(store);
  EXPECT_FALSE(outcome_.changedMeanwhile);
}

TEST_F(SegmentStoreTest, ListingThatIsReplacedWhileItIsReadIsReadToItsEndAndNotKept) {
  bool isReplaced = false;
  onYield_ = [this, &isReplaced](std::int64_t) {
    if (isReplaced) return false;
    isReplaced = true;
    const QString other = folder_.writeFile(u"other.lst"_qs, "song elsewhere\r\n");
    EXPECT_EQ(::rename(QFile::encodeName(other).constData(), QFile::encodeName(listing_).constData()), 0);
    return false;
  };
  SegmentStore store({cache_, kPlenty});
  EXPECT_EQ(scan(store, u"song"_qs).hits, reference(u"song"_qs).hits);
  EXPECT_FALSE(outcome_.changedMeanwhile);
  EXPECT_TRUE(QDir(cache_).isEmpty(kAnything));
  bytes_ = "song elsewhere\r\n";
  expectRight(store);
}

TEST_F(SegmentStoreTest, FullDiskLeavesNoFileAndTheRightHits) {
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{100000, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  SegmentStore store({cache_, kPlenty});
  expectRight(store);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, handler);
  EXPECT_TRUE(segmentFiles(cache_).isEmpty());
}

TEST_F(SegmentStoreTest, HitsStayRightWhenTheirListingIsReplacedOrDeleted) {
  for (const QString& cacheFolder : {cache_, QString()}) {
    folder_.writeFile(u"cd.lst"_qs, bytes_);
    SegmentStore store({cacheFolder, kPlenty});
    scan(store, u"song"_qs);
    const ReferenceResult expected = reference(u"song"_qs);
    folder_.writeFile(u"cd.lst"_qs, "song of another disk\r\n");
    EXPECT_EQ(hitsOf(table_), expected.hits);
    ASSERT_TRUE(QFile::remove(listing_));
    store.forget(listing_);
    EXPECT_EQ(hitsOf(table_), expected.hits);
  }
}

TEST_F(SegmentStoreTest, OldestSegmentsGiveWayWhenMemoryIsShort) {
  const QString second = folder_.writeFile(u"second.lst"_qs, bytes_);
  const QString first = listing_;
  SegmentStore probe({QString(), kPlenty});
  scan(probe, u"song"_qs);
  std::size_t memory = 0;
  for (const auto& segment : probe.find(*segmentKeyOf(first, QLocale::c()))) {
    memory += dynamic_cast<const GrowingSegment&>(*segment).memorySize();
  }
  SegmentStore store({QString(), memory * 3 / 2});
  scan(store, u"song"_qs);
  listing_ = second;
  scan(store, u"song"_qs);
  EXPECT_TRUE(store.find(*segmentKeyOf(first, QLocale::c())).empty());
  EXPECT_FALSE(store.find(*segmentKeyOf(second, QLocale::c())).empty());
}

TEST_F(SegmentStoreTest, SameListingAsTwoKindsOfSourceKeepsItsKindsApart) {
  bytes_ = "song\r\n";
  listing_ = folder_.writeFile(u"one.lst"_qs, bytes_);
  SegmentStore store({cache_, kPlenty});
  TestScan scan(u"song"_qs);
  for (const SourceKind kind : {SourceKind::Online, SourceKind::Offline, SourceKind::MainDataFile}) {
    scan.kind = kind;
    scan.runFile(listing_, &store, limits_);
  }
  ASSERT_EQ(scan.table.rowCount(), 3);
  EXPECT_EQ(scan.table.kind(0), SourceKind::Online);
  EXPECT_EQ(scan.table.kind(1), SourceKind::Offline);
  EXPECT_EQ(scan.table.kind(2), SourceKind::MainDataFile);
}

TEST_F(SegmentStoreTest, ForgottenListingIsGoneFromMemoryAndDisk) {
  SegmentStore store({cache_, kPlenty});
  scan(store, u"song"_qs);
  store.forget(listing_);
  EXPECT_TRUE(store.find(*segmentKeyOf(listing_, QLocale::c())).empty());
  EXPECT_TRUE(segmentFiles(cache_).isEmpty());
}

TEST_F(SegmentStoreTest, GeneratedListingsAgreeWarmAndCold) {
  ListingMaker maker(99);
  for (int round = 0; round < 200; ++round) {
    bytes_ = maker.listing(60);
    listing_ = folder_.writeFile(u"g%1.lst"_qs.arg(round), bytes_);
    limits_.chunkSize = 64;
    limits_.keptSegment = static_cast<std::size_t>(1 + maker.below(1500));
    SegmentStore store({cache_, kPlenty});
    const QString words = maker.searchText();
    const ReferenceResult expected = reference(words);
    for (int run = 0; run < 2; ++run) {
      const ReferenceResult scanned = scan(store, words);
      ASSERT_EQ(scanned.hits, expected.hits) << "round " << round << " run " << run;
      ASSERT_EQ(scanned.unreadable, expected.unreadable);
      ASSERT_EQ(scanned.firstUnreadableLine, expected.firstUnreadableLine);
    }
  }
}

TEST_F(SegmentStoreTest, ListingsThatNobodySearchesAnyMoreAreReleased) {
  SegmentStore store({cache_, kPlenty});
  scan(store, u"song"_qs);
  table_ = {};
  const SegmentKey key = *segmentKeyOf(listing_, QLocale::c());
  const std::weak_ptr<const Segment> segment = store.find(key).front();
  store.releaseUnused();
  EXPECT_FALSE(segment.expired()) << "it was searched since the last call";
  store.releaseUnused();
  EXPECT_TRUE(segment.expired());
  EXPECT_FALSE(store.find(key).empty()) << "the file stays";
  expectRight(store);
}

TEST_F(SegmentStoreTest, ASmallListingTakesUpLittleMemory) {
  const QString small = folder_.writeFile(
      u"small.lst"_qs, blockHead("V", "\\Music\\") + entryLine("song 1") + entryLine("song 2"));
  for (const QString& cache : {cache_, QString()}) {
    SegmentStore store({cache, kPlenty});
    TestScan scan(u"song"_qs);
    scan.runFile(small, &store, limits_);
    EXPECT_EQ(scan.result().hits.size(), 2U);
    const SegmentStore::Segments segments = store.find(*segmentKeyOf(small, QLocale::c()));
    ASSERT_EQ(segments.size(), 1U);
    EXPECT_LT(segments.front()->memorySize(), 16'384U);
  }
}

TEST_F(SegmentStoreTest, WhatIsFoundAgainStays) {
  SegmentStore store({QString(), kPlenty});
  scan(store, u"song"_qs);
  const SegmentKey key = *segmentKeyOf(listing_, QLocale::c());
  for (int round = 0; round < 3; ++round) {
    EXPECT_FALSE(store.find(key).empty()) << round;
    store.releaseUnused();
  }
  store.releaseUnused();
  EXPECT_TRUE(store.find(key).empty());
}

}  // namespace
}  // namespace quorvin::test
