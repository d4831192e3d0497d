#include "search/segment/segment_store.h"

#include "search/listing_scan.h"
#include "support/generated_listing.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"
#include "support/temporary_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

namespace quorvin {
namespace {

constexpr QDir::Filters kAnything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;

/// A listing and a store in a temporary folder, with segments so small that there are several.
class SegmentStoreTest : public ::testing::Test {
 protected:
  SegmentStoreTest() {
    limits_.chunkSize = 5000;
    limits_.keptSegment = 40000;
    for (int i = 0; i < 3000; ++i) {
      if (i % 20 == 0) {
        bytes_ +=
            test::blockHead("V" + QByteArray::number(i / 1000), "\\Music\\F" + QByteArray::number(i) + "\\");
      }
      bytes_ += test::entryLine((i % 3 == 0 ? "Song " : "other \xC3\x84 ") + QByteArray::number(i),
                                i % 100 == 0 ? "n/a" : QByteArray::number(i * 1000));
    }
    listing_ = folder_.writeFile(u"cd.lst"_qs, bytes_);
    cache_ = folder_.pathOf(u"cache/"_qs);
  }

  test::ReferenceResult reference(const QString& words) {
    return test::referenceScan(bytes_, words, 50, QLocale::c());
  }

  /// A scan of the listing; `reads` then tells whether the listing itself was read.
  test::ReferenceResult scan(SegmentStore& store, const QString& words) {
    test::TestScan scan(words);
    scan.yields.onYield = [this](std::int64_t count) { return onYield_ && onYield_(count); };
    scan.runFile(listing_, &store, limits_);
    const test::ReferenceResult result = scan.result();
    table_ = std::move(scan.table);
    outcome_ = scan.outcome;
    return result;
  }

  void expectRight(SegmentStore& store) {
    for (const QString& words : {u"song"_qs, u"other music 7"_qs, u"\u00E4"_qs, u"f120 song"_qs}) {
      const test::ReferenceResult scanned = scan(store, words);
      const test::ReferenceResult expected = reference(words);
      EXPECT_EQ(scanned.searched, expected.searched);
      EXPECT_EQ(scanned.hits, expected.hits) << words.toStdString();
      EXPECT_EQ(scanned.unreadable, expected.unreadable);
      EXPECT_EQ(scanned.firstUnreadableLine, expected.firstUnreadableLine);
    }
  }

  QString cacheFile() const { return segmentFiles(cache_).value(0); }

  TemporaryFolder folder_;
  QByteArray bytes_;
  QString listing_;
  QString cache_;
  ScanLimits limits_;
  HitTable table_;
  ScanOutcome outcome_;
  std::function<bool(std::int64_t)> onYield_;
};

constexpr std::size_t kPlenty = std::size_t{1} << 30;

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
  bytes_ += test::entryLine("song of the end");
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

TEST_F(SegmentStoreTest, DamageWhereOnlySomeEntriesHaveValuesNeverChangesAResult) {
  // No value is unreadable, and whole stretches have none: these show those of a hit before them.
  bytes_ = test::blockHead("V", "\\Music\\");
  for (int i = 0; i < 5000; ++i) {
    const QByteArray name = "Song " + QByteArray::number(i);
    const bool hasValues = i < 2000 || i == 2010 || i % 997 == 0;
    bytes_ += hasValues ? test::entryLine(name, QByteArray::number(i)) : name + "\r\n";
  }
  folder_.writeFile(u"cd.lst"_qs, bytes_);
  limits_ = {};
  SegmentStore writer({cache_, kPlenty});
  scan(writer, u"song"_qs);
  QFile file(cacheFile());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray good = file.readAll();
  file.close();
  const test::ReferenceResult expected = reference(u"song"_qs);
  constexpr qsizetype kStride = 1500;
  for (qsizetype place = 0; place < good.size(); place += kStride) {
    QByteArray damaged = good;
    damaged[place] = static_cast<char>(~damaged[place]);
    folder_.writeFile(u"cache/"_qs + QFileInfo(cacheFile()).fileName(), damaged);
    SegmentStore store({cache_, kPlenty});
    // Damage in what is only shown is found by showing it: such a row says so, and the next search is right.
    ASSERT_EQ(scan(store, u"song"_qs).hits.size(), expected.hits.size()) << "byte " << place;
    ASSERT_EQ(scan(store, u"song"_qs).hits, expected.hits) << "byte " << place;
    folder_.writeFile(u"cache/"_qs + QFileInfo(segmentFilePath(cache_, listing_)).fileName(), good);
  }
}

TEST_F(SegmentStoreTest, AnotherLocaleReadsAnew) {
  const std::optional<SegmentKey> c = segmentKeyOf(listing_, QLocale::c());
  const std::optional<SegmentKey> german = segmentKeyOf(listing_, QLocale(QLocale::German, QLocale::Germany));
  ASSERT_TRUE(c && german);
  EXPECT_FALSE(*c == *german);
}

TEST_F(SegmentStoreTest, DamagedByteAnywhereNeverChangesAResult) {
  SegmentStore writer({cache_, kPlenty});
  scan(writer, u"song"_qs);
  const QString path = cacheFile();
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray whole = file.readAll();
  file.close();
  for (qsizetype at = 0; at < whole.size(); at += 4099) {
    QByteArray damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
    // A new file each time: the old one may still be mapped.
    ASSERT_TRUE(QFile::remove(path));
    QFile out(path);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    ASSERT_EQ(out.write(damaged), damaged.size());
    out.close();
    SegmentStore store({cache_, kPlenty});
    expectRight(store);
    if (HasFailure()) FAIL() << "byte " << at;
  }
}

TEST_F(SegmentStoreTest, EveryByteOfASmallFileMayBeDamaged) {
  bytes_ = test::blockHead("V", "\\Music\\") + test::entryLine("Song \xC3\x84", "n/a") +
           test::entryLine("OTHER 7", "7,000") + test::blockHead("V2", "\\Films\\") +
           test::entryLine("song 120", "99,999,999,999");
  folder_.writeFile(u"cd.lst"_qs, bytes_);
  SegmentStore writer({cache_, kPlenty});
  scan(writer, u"song"_qs);
  const QString path = cacheFile();
  const QByteArray whole = folder_.readFile(path.mid(folder_.path().size()));
  for (const SegmentUse use : {SegmentUse::Repeated, SegmentUse::Once}) {
    for (qsizetype at = 0; at < whole.size(); ++at) {
      QByteArray damaged = whole;
      damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
      ASSERT_TRUE(QFile::remove(path));
      folder_.writeFile(path.mid(folder_.path().size()), damaged);
      SegmentStore store({cache_, kPlenty, use});
      scan(store, u"song"_qs);
      scan(store, u"other"_qs);
      expectRight(store);
      if (HasFailure()) FAIL() << "byte " << at;
    }
  }
}

/// Enough entries for texts to be read piece by piece.
class SegmentsForOneSearch : public SegmentStoreTest {
 protected:
  SegmentsForOneSearch() {
    bytes_.clear();
    for (int i = 0; i < 60000; ++i) {
      if (i % 5000 == 0) bytes_ += test::blockHead("V", "\\Music\\F" + QByteArray::number(i) + "\\");
      bytes_ += test::entryLine((i % 3 == 0 ? "Song " : "other \xC3\x84 ") + QByteArray::number(i), "1,000");
    }
    folder_.writeFile(u"cd.lst"_qs, bytes_);
    limits_ = ScanLimits();
    SegmentStore writer({cache_, kPlenty});
    scan(writer, u"song"_qs);
  }
};

TEST_F(SegmentsForOneSearch, GiveTheSameHits) {
  SegmentStore store({cache_, kPlenty, SegmentUse::Once});
  expectRight(store);
}

TEST_F(SegmentsForOneSearch, DamageIsNoticed) {
  const QString path = cacheFile();
  const QByteArray whole = folder_.readFile(path.mid(folder_.path().size()));
  constexpr auto kStep = static_cast<qsizetype>(ByteCheck::kBlockSize);
  ASSERT_GT(whole.size(), 20 * kStep);
  const test::ReferenceResult expected = reference(u"song"_qs);
  for (qsizetype at = 1000; at < whole.size(); at += kStep) {
    QByteArray damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
    ASSERT_TRUE(QFile::remove(path));
    folder_.writeFile(path.mid(folder_.path().size()), damaged);
    SegmentStore store({cache_, kPlenty, SegmentUse::Once});
    scan(store, u"song"_qs);
    // Damage in what is only shown is found out by showing it; the search after that is right.
    const test::ReferenceResult scanned = scan(store, u"song"_qs);
    EXPECT_EQ(scanned.searched, 60000) << "byte " << at;
    EXPECT_EQ(scanned.hits, expected.hits) << "byte " << at;
  }
}

TEST_F(SegmentStoreTest, CutFileIsMadeAnew) {
  SegmentStore writer({cache_, kPlenty});
  scan(writer, u"song"_qs);
  const qint64 size = QFileInfo(cacheFile()).size();
  for (const qint64 left : {qint64{0}, qint64{10}, qint64{40}, size / 2, size - 1}) {
    const QString path = cacheFile();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray part = file.read(left);
    file.close();
    ASSERT_TRUE(QFile::remove(path));
    QFile out(path);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(part);
    out.close();
    SegmentStore store({cache_, kPlenty});
    expectRight(store);
    EXPECT_EQ(QFileInfo(cacheFile()).size(), size) << left;
  }
}

TEST_F(SegmentStoreTest, FileOfAnotherListingIsNotTrusted) {
  SegmentStore writer({cache_, kPlenty});
  scan(writer, u"song"_qs);
  const QString foreign = cacheFile();
  const QString other = folder_.writeFile(u"other.lst"_qs, "song elsewhere\r\n");
  ASSERT_TRUE(QFile::copy(foreign, segmentFilePath(cache_, other)));
  listing_ = other;
  bytes_ = "song elsewhere\r\n";
  SegmentStore store({cache_, kPlenty});
  expectRight(store);
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
    const test::ReferenceResult expected = reference(u"song"_qs);
    folder_.writeFile(u"cd.lst"_qs, "song of another disk\r\n");
    EXPECT_EQ(test::hitsOf(table_), expected.hits);
    ASSERT_TRUE(QFile::remove(listing_));
    store.forget(listing_);
    EXPECT_EQ(test::hitsOf(table_), expected.hits);
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
  test::TestScan scan(u"song"_qs);
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
  test::ListingMaker maker(99);
  for (int round = 0; round < 200; ++round) {
    bytes_ = maker.listing(60);
    listing_ = folder_.writeFile(u"g%1.lst"_qs.arg(round), bytes_);
    limits_.chunkSize = 64;
    limits_.keptSegment = static_cast<std::size_t>(1 + maker.below(1500));
    SegmentStore store({cache_, kPlenty});
    const QString words = maker.searchText();
    const test::ReferenceResult expected = reference(words);
    for (int run = 0; run < 2; ++run) {
      const test::ReferenceResult scanned = scan(store, words);
      ASSERT_EQ(scanned.hits, expected.hits) << "round " << round << " run " << run;
      ASSERT_EQ(scanned.unreadable, expected.unreadable);
      ASSERT_EQ(scanned.firstUnreadableLine, expected.firstUnreadableLine);
    }
  }
}

}  // namespace
}  // namespace quorvin
