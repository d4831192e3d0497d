// SPDX-License-Identifier: GPL-2.0-or-later

// Kept segments too large to be read at once, whose file is cut or written to while they are in use: nothing
// ends the program, and no wrong row is shown.
#include "files/file_identity.h"
#include "search/segment/segment_store_fixture.h"
#include "support/sweep.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>

namespace quorvin::test {
namespace {

/// A cache file so large that it is not read whole when it is opened.
class LargeSegmentFile : public SegmentStoreTest {
 protected:
  static constexpr int kEntries = 60'000;

  LargeSegmentFile() {
    bytes_.clear();
    for (int i = 0; i < kEntries; ++i) {
      if (i % 5000 == 0) bytes_ += blockHead("V", "\\Music\\F" + QByteArray::number(i) + "\\");
      bytes_ += entryLine("Song Of The Long Evening On The Pier " + QByteArray::number(i), "1,000");
    }
    folder_.writeFile(u"cd.lst"_qs, bytes_);
    limits_ = ScanLimits();
    SegmentStore writer({cache_, kPlenty});
    scan(writer, u"song"_qs);
    EXPECT_GT(QFileInfo(cacheFile()).size(), 2 << 20);
  }

  /// In place, as no program of ours would.
  void cutTo(qint64 size) const { ASSERT_TRUE(QFile::resize(cacheFile(), size)); }

  /// How many rows are right; the others must say that they are gone.
  int rightRows(const std::vector<ReferenceHit>& expected) const {
    int right = 0;
    const std::vector<ReferenceHit> shown = hitsOf(table_);
    EXPECT_EQ(shown.size(), expected.size());
    for (std::size_t i = 0; i < std::min(shown.size(), expected.size()); ++i) {
      if (shown[i] == expected[i]) {
        ++right;
      } else {
        EXPECT_EQ(shown[i].name, u"(damaged in the search cache; press Find again)"_qs);
      }
    }
    return right;
  }
};

TEST_F(LargeSegmentFile, ThatIsCutWhileItsHitsAreShownShowsThemAsGoneAndIsMadeAgain) {
  SegmentStore store({cache_, kPlenty});
  TestScan search(u"song"_qs);
  search.runFile(listing_, &store, limits_);
  table_ = std::move(search.table);
  ASSERT_EQ(table_.rowCount(), kEntries);
  cutTo(0);
  const std::vector<ReferenceHit> expected = reference(u"song"_qs).hits;
  EXPECT_LT(rightRows(expected), kEntries);
  EXPECT_EQ(scan(store, u"song"_qs).hits, expected);
  EXPECT_GT(QFileInfo(cacheFile()).size(), 2 << 20);
}

TEST_F(LargeSegmentFile, ThatIsCutAfterItsHitsWereShownShowsThemStill) {
  SegmentStore store({cache_, kPlenty});
  scan(store, u"song"_qs);
  cutTo(100'000);
  EXPECT_EQ(rightRows(reference(u"song"_qs).hits), kEntries);
}

TEST_F(LargeSegmentFile, ThatIsCutWhileItIsSearchedIsMadeAgain) {
  SegmentStore store({cache_, kPlenty});
  onYield_ = [this](std::int64_t searched) {
    if (searched == 20'000) cutTo(QFileInfo(cacheFile()).size() / 3);
    return false;
  };
  EXPECT_EQ(scan(store, u"evening 7"_qs).searched, kEntries);
  onYield_ = {};
  EXPECT_EQ(scan(store, u"evening 7"_qs).hits, reference(u"evening 7"_qs).hits);
  EXPECT_GT(QFileInfo(cacheFile()).size(), 2 << 20);
}

// A program that searches once maps the file; it has nothing to lose.
TEST_F(LargeSegmentFile, ThatIsCutWhileAMappedSearchLooksAtItEndsTheProgramWithASentence) {
  const auto searchOnce = [this] {
    explainCutMapping("a file of the search cache was cut\n");
    SegmentStore store({cache_, kPlenty, SegmentUse::Once});
    onYield_ = [this](std::int64_t) {
      cutTo(0);
      return false;
    };
    scan(store, u"song"_qs);
  };
  EXPECT_EXIT(searchOnce(), testing::ExitedWithCode(2), "^a file of the search cache was cut\n$");
}

TEST_F(LargeSegmentFile, ThatIsWrittenOverInPlaceNeverShowsWhatWasWritten) {
  SegmentStore store({cache_, kPlenty});
  TestScan search(u"song"_qs);
  search.runFile(listing_, &store, limits_);
  table_ = std::move(search.table);
  QFile file(cacheFile());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.write(QByteArray(static_cast<qsizetype>(file.size()), '?'));
  file.close();
  rightRows(reference(u"song"_qs).hits);
}

TEST_F(LargeSegmentFile, GivesItsMemoryBackWhenItIsShortAndItsHitsAreShownAllTheSame) {
  const QString first = listing_;
  const QString second = folder_.writeFile(u"second.lst"_qs, bytes_);
  SegmentStore store({cache_, 1'000'000});
  TestScan search(u"song"_qs);
  search.runFile(first, &store, limits_);
  const auto segments = store.find(*segmentKeyOf(first, QLocale::c()));
  ASSERT_EQ(segments.size(), 1U);
  table_ = std::move(search.table);
  EXPECT_EQ(rightRows(reference(u"song"_qs).hits), kEntries);
  HitTable shown = std::move(table_);
  EXPECT_GT(segments[0]->memorySize(), 500'000U);
  listing_ = second;
  scan(store, u"song"_qs);
  EXPECT_EQ(segments[0]->memorySize(), 0U);
  table_ = std::move(shown);
  EXPECT_EQ(rightRows(reference(u"song"_qs).hits), kEntries);
}

/// Its texts have been searched, and their blocks found good, when something happens to the file.
class SearchedSegmentFile : public LargeSegmentFile {
 protected:
  /// Where it happens: every so many bytes.
  static constexpr qint64 kSlice = 1'200'007;

  void searchAll(SegmentStore& store) { ASSERT_EQ(scan(store, kWords).hits, expected_); }

  /// Searches while `happen` comes after 20,000 entries. All entries are searched nevertheless.
  ReferenceResult searchWhile(SegmentStore& store, const std::function<void()>& happen) {
    onYield_ = [&happen](std::int64_t searched) {
      if (searched == 20'000) happen();
      return false;
    };
    const ReferenceResult result = scan(store, kWords);
    onYield_ = {};
    EXPECT_EQ(result.searched, kEntries);
    return result;
  }

  /// The next search is right, and so is the file after it.
  void expectMadeAgain(SegmentStore& store) {
    EXPECT_EQ(scan(store, kWords).hits, expected_);
    EXPECT_FALSE(outcome_.changedMeanwhile);
    EXPECT_EQ(folder_.readFile(cacheFile().mid(folder_.path().size())), keptBytes_);
  }

  /// In place, by another program. The clock of a file system may stand still for some milliseconds.
  void writeZeros(qint64 begin, qint64 size) const {
    const QString path = cacheFile();
    const std::int64_t before = fileIdentity(path)->modified;
    while (fileIdentity(path)->modified == before) {
      ASSERT_EQ(QProcess::execute(u"dd"_qs, {u"if=/dev/zero"_qs, u"of="_qs + path, u"bs=1024"_qs,
                                             u"seek=%1"_qs.arg(begin / 1024), u"count=%1"_qs.arg(size / 1024),
                                             u"conv=notrunc"_qs, u"status=none"_qs}),
                0);
    }
  }

  const QString kWords = u"evening 77"_qs;
  const QByteArray keptBytes_ = folder_.readFile(cacheFile().mid(folder_.path().size()));
  const std::vector<ReferenceHit> expected_ = reference(kWords).hits;
};

TEST_F(SearchedSegmentFile, ThatIsCutBeforeTheNextSearchIsMadeAgain) {
  for (qint64 left = keptBytes_.size() - 1; left >= 0; left -= sweep<qint64>(4'999, kSlice)) {
    SegmentStore store({cache_, kPlenty});
    searchAll(store);
    cutTo(left);
    expectMadeAgain(store);
    if (HasFailure()) FAIL() << "cut to " << left;
  }
}

TEST_F(SearchedSegmentFile, ThatIsCutBetweenPagesDuringASearchGivesAllHits) {
  constexpr qint64 kPage = 4096;
  for (qint64 left = 0; left < keptBytes_.size(); left += sweep<qint64>(3, 293) * kPage) {
    SegmentStore store({cache_, kPlenty});
    searchAll(store);
    const ReferenceResult found = searchWhile(store, [&] { cutTo(left); });
    EXPECT_EQ(found.hits.size(), expected_.size());
    EXPECT_TRUE(outcome_.changedMeanwhile);
    expectMadeAgain(store);
    if (HasFailure()) FAIL() << "cut to " << left;
  }
}

// What the system shows behind the new end, up to the end of that page, is zeros: the search under way may
// miss names that were there. It says so, and the next one does not.
TEST_F(SearchedSegmentFile, ThatIsCutInAPageDuringASearchHidesNoMoreThanThatPage) {
  constexpr std::size_t kMostNamesInAPage = 4096 / 38 + 2;
  for (qint64 left = 1'234; left < keptBytes_.size(); left += sweep<qint64>(12'347, kSlice)) {
    SegmentStore store({cache_, kPlenty});
    searchAll(store);
    const ReferenceResult found = searchWhile(store, [&] { cutTo(left); });
    EXPECT_LE(found.hits.size(), expected_.size());
    EXPECT_GE(found.hits.size() + kMostNamesInAPage, expected_.size());
    EXPECT_TRUE(outcome_.changedMeanwhile);
    expectMadeAgain(store);
    if (HasFailure()) FAIL() << "cut to " << left;
  }
}

// As a backup that is written back in place.
TEST_F(SearchedSegmentFile, ThatIsCutAndRestoredDuringASearchGivesAllHits) {
  SegmentStore store({cache_, kPlenty});
  searchAll(store);
  const ReferenceResult found = searchWhile(store, [this] {
    cutTo(0);
    QFile file(cacheFile());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_EQ(file.write(keptBytes_), keptBytes_.size());
  });
  EXPECT_EQ(found.hits, expected_);
  expectMadeAgain(store);
}

TEST_F(SearchedSegmentFile, ThatIsWrittenOverBeforeTheNextSearchIsMadeAgain) {
  constexpr qint64 kZeros = 4096;
  for (qint64 begin = 0; begin + kZeros < keptBytes_.size(); begin += sweep<qint64>(65'536, kSlice)) {
    SegmentStore store({cache_, kPlenty});
    searchAll(store);
    writeZeros(begin, kZeros);
    expectMadeAgain(store);
    if (HasFailure()) FAIL() << "zeros at " << begin;
  }
}

TEST_F(SearchedSegmentFile, ThatIsWrittenOverDuringASearchShowsNoOtherThanItsOwnEntriesAndSaysSo) {
  constexpr qint64 kZeros = 65'536;
  const std::vector<ReferenceHit> all = reference(u"song"_qs).hits;
  ASSERT_EQ(all.size(), static_cast<std::size_t>(kEntries));
  for (qint64 begin = 0; begin + kZeros < keptBytes_.size(); begin += sweep<qint64>(262'144, kSlice)) {
    SegmentStore store({cache_, kPlenty});
    searchAll(store);
    for (const ReferenceHit& hit : searchWhile(store, [&] { writeZeros(begin, kZeros); }).hits) {
      if (hit.name == u"(damaged in the search cache; press Find again)") continue;
      const auto number = hit.name.mid(hit.name.lastIndexOf(u' ') + 1).toUInt();
      ASSERT_TRUE(hit == all[number]) << hit.name.toStdString();
    }
    EXPECT_TRUE(outcome_.changedMeanwhile);
    expectMadeAgain(store);
    if (HasFailure()) FAIL() << "zeros at " << begin;
  }
}

}  // namespace
}  // namespace quorvin::test
