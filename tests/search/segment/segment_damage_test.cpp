// SPDX-License-Identifier: GPL-2.0-or-later

// Kept segments that were damaged, cut or exchanged: the hits stay right.
#include "search/segment/segment_store_fixture.h"
#include "support/sweep.h"

#include <QFileInfo>

namespace quorvin::test {
namespace {

TEST_F(SegmentStoreTest, DamageWhereOnlySomeEntriesHaveValuesNeverChangesAResult) {
  // No value is unreadable, and whole stretches have none: these show those of a hit before them.
  bytes_ = blockHead("V", "\\Music\\");
  for (int i = 0; i < 5000; ++i) {
    const QByteArray name = "Song " + QByteArray::number(i);
    const bool hasValues = i < 2000 || i == 2010 || i % 997 == 0;
    bytes_ += hasValues ? entryLine(name, QByteArray::number(i)) : name + "\r\n";
  }
  folder_.writeFile(u"cd.lst"_qs, bytes_);
  limits_ = {};
  SegmentStore writer({cache_, kPlenty});
  scan(writer, u"song"_qs);
  QFile file(cacheFile());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray good = file.readAll();
  file.close();
  const ReferenceResult expected = reference(u"song"_qs);
  const qsizetype stride = sweep(1500, 30011);
  for (qsizetype place = 0; place < good.size(); place += stride) {
    QByteArray damaged = good;
    damaged[place] = static_cast<char>(~damaged[place]);
    folder_.writeFile(u"cache/"_qs + QFileInfo(cacheFile()).fileName(), damaged);
    SegmentStore store({cache_, kPlenty});
    // A hit whose size and date cannot be read says so; none shows another's.
    const std::vector<ReferenceHit> first = scan(store, u"song"_qs).hits;
    ASSERT_EQ(first.size(), expected.hits.size()) << "byte " << place;
    for (std::size_t i = 0; i < first.size(); ++i) {
      if (first[i].name == u"(damaged in the search cache; press Find again)") continue;
      ASSERT_TRUE(first[i] == expected.hits[i]) << "byte " << place << ", hit " << i;
    }
    ASSERT_EQ(scan(store, u"song"_qs).hits, expected.hits) << "byte " << place;
    folder_.writeFile(u"cache/"_qs + QFileInfo(segmentFilePath(cache_, listing_)).fileName(), good);
  }
}

TEST_F(SegmentStoreTest, DamagedByteAnywhereNeverChangesAResult) {
  SegmentStore writer({cache_, kPlenty});
  scan(writer, u"song"_qs);
  const QString path = cacheFile();
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray whole = file.readAll();
  file.close();
  for (qsizetype at = 0; at < whole.size(); at += sweep(4099, 100003)) {
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
  bytes_ = blockHead("V", "\\Music\\") + entryLine("Song \xC3\x84", "n/a") + entryLine("OTHER 7", "7,000") +
           blockHead("V2", "\\Films\\") + entryLine("song 120", "99,999,999,999");
  folder_.writeFile(u"cd.lst"_qs, bytes_);
  SegmentStore writer({cache_, kPlenty});
  scan(writer, u"song"_qs);
  const QString path = cacheFile();
  const QByteArray whole = folder_.readFile(path.mid(folder_.path().size()));
  for (const SegmentUse use : {SegmentUse::Repeated, SegmentUse::Once}) {
    for (qsizetype at = 0; at < whole.size(); at += sweep(1, 31)) {
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
      if (i % 5000 == 0) bytes_ += blockHead("V", "\\Music\\F" + QByteArray::number(i) + "\\");
      bytes_ += entryLine((i % 3 == 0 ? "Song " : "other \xC3\x84 ") + QByteArray::number(i), "1,000");
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
  const ReferenceResult expected = reference(u"song"_qs);
  for (qsizetype at = 1000; at < whole.size(); at += sweep(1, 19) * kStep) {
    QByteArray damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
    ASSERT_TRUE(QFile::remove(path));
    folder_.writeFile(path.mid(folder_.path().size()), damaged);
    SegmentStore store({cache_, kPlenty, SegmentUse::Once});
    scan(store, u"song"_qs);
    // Damage in what is only shown is found out by showing it; the search after that is right.
    const ReferenceResult scanned = scan(store, u"song"_qs);
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

}  // namespace
}  // namespace quorvin::test
