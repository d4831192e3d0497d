// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/hit_filter.h"

#include "platform/text_encoding.h"
#include "search/hit_table_maker.h"
#include "search/segment/segment_store.h"
#include "search/short_slices.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace quorvin {
namespace {

/// The same rows, asked for in pieces that start anywhere.
void expectSameInPieces(const HitFilter& filter, const std::vector<std::int64_t>& rows, std::int64_t end) {
  std::vector<std::uint32_t> pieces;
  const std::int64_t cut = std::min<std::int64_t>(end, 77);
  filter.addRows(0, cut, pieces);
  filter.addRows(cut, end, pieces);
  EXPECT_TRUE(std::ranges::equal(pieces, rows));
}

std::vector<std::int64_t> rowsWith(HitFilter& filter, const HitTable& table) {
  const SliceEnd isOver = test::everyOtherTime();
  while (!filter.goOn(table.rowCount(), isOver)) {
  }
  std::vector<std::int64_t> rows;
  for (std::int64_t row = 0; row < table.rowCount(); ++row) {
    if (filter.has(row)) rows.push_back(row);
  }
  expectSameInPieces(filter, rows, table.rowCount());
  return rows;
}

/// The plain reference: every row read as a whole.
std::vector<std::int64_t> plainRowsWith(const HitTable& table, const QString& text) {
  const QStringList words = simpleLowerCase(text).split(u' ', Qt::SkipEmptyParts);
  std::vector<std::int64_t> rows;
  for (std::int64_t row = 0; row < table.rowCount(); ++row) {
    const HitRow hit = table.row(row);
    const QString folder = simpleLowerCase(hit.folder);
    const QString name = simpleLowerCase(hit.name);
    const bool hasAll = std::ranges::all_of(
        words, [&](const QString& word) { return folder.contains(word) || name.contains(word); });
    if (hasAll) rows.push_back(row);
  }
  return rows;
}

const QStringList kTexts = {u"a"_qs,     u"live"_qs,    u"TRACK"_qs,      u"track 1"_qs, u"track 12"_qs,
                            u"är"_qs,    u"zoë li"_qs,  u"img_ lib"_qs,   u"nowhere"_qs, u" live  1 "_qs,
                            u"\\lib"_qs, u"debian."_qs, u"index.html"_qs, u"1 2 3"_qs};

class FilteredHits : public testing::Test {
 protected:
  /// Each text by itself, then typed key by key.
  void expectAgreement(const HitTable& table) {
    HitFilter filter(table);
    for (const QString& text : kTexts) {
      HitFilter fresh(table);
      fresh.setText(text);
      EXPECT_EQ(rowsWith(fresh, table), plainRowsWith(table, text)) << text.toStdString();
      for (qsizetype length = 1; length <= text.size(); ++length) {
        filter.setText(text.first(length));
        if (!filter.isOn()) continue;
        EXPECT_EQ(rowsWith(filter, table), plainRowsWith(table, text.first(length))) << text.toStdString();
      }
    }
  }
};

TEST_F(FilteredHits, AreThoseOfAPlainLookAtEachRow) {
  test::TestScan scan(u"live  "_qs, 1);
  test::fill(scan, test::mixedListing(20'000, 21), 100'000);
  test::fill(scan, test::mixedListing(1000, 22), 2'000);
  ASSERT_EQ(scan.table.rowCount(), 21'000);
  expectAgreement(scan.table);
}

TEST_F(FilteredHits, MayBeAmongFewRowsOfManyEntries) {
  test::TestScan scan(u"117"_qs, 50);
  for (const unsigned seed : {31U, 32U, 33U}) {
    test::fill(scan, test::mixedListing(30'000, seed), 1'000'000);
  }
  ASSERT_GT(scan.table.rowCount(), 100);
  ASSERT_LT(scan.table.rowCount(), 3000);
  expectAgreement(scan.table);
}

TEST_F(FilteredHits, MayBeSomeOfTheEntriesOfAKeptListing) {
  const TemporaryFolder folder;
  const QString listing = folder.writeFile(u"many.txt"_qs, test::mixedListing(6000, 51));
  SegmentStore store({QString(), std::size_t{1} << 30});
  ScanLimits limits;
  limits.keptSegment = 120'000;
  // All entries between the first hit and the last are searched; then each hit by itself.
  for (const auto& [text, fewest, most] :
       {std::tuple(u"live"_qs, 1500, 3000), std::tuple(u"117"_qs, 5, 100)}) {
    for (int time = 0; time < 2; ++time) {
      test::TestScan scan(text);
      scan.runFile(listing, &store, limits);
      ASSERT_GT(scan.table.rowCount(), fewest);
      ASSERT_LT(scan.table.rowCount(), most);
      expectAgreement(scan.table);
    }
  }
}

TEST_F(FilteredHits, MayBeTheFirstEntriesOfTheirFolders) {
  QByteArray bytes;
  for (int folder = 0; folder < 200; ++folder) {
    bytes += test::blockHead("Disk", folder % 2 == 0 ? "\\even\\" : "\\odd\\");
    bytes += test::entryLine("song") + test::entryLine("other").repeated(49);
  }
  const TemporaryFolder folder;
  SegmentStore store({QString(), std::size_t{1} << 30});
  test::TestScan scan(u"song"_qs);
  scan.runFile(folder.writeFile(u"songs.txt"_qs, bytes), &store);
  ASSERT_EQ(scan.table.rowCount(), 200);
  HitFilter filter(scan.table);
  filter.setText(u"even"_qs);
  std::vector<std::int64_t> everyOther;
  for (std::int64_t row = 0; row < 200; row += 2) everyOther.push_back(row);
  EXPECT_EQ(rowsWith(filter, scan.table), everyOther);
}

class Filter : public testing::Test {
 protected:
  Filter() {
    test::fill(scan_, test::mixedListing(30'000, 41), 100'000);
    filter_.setText(u"t"_qs);
  }
  /// Looks at some rows only, as when the next key comes soon.
  void lookAtSome(int pieces) {
    filter_.goOn(scan_.table.rowCount(), [looks = 0, pieces]() mutable { return looks++ == pieces; });
  }
  void expectRowsOf(const QString& text) {
    EXPECT_EQ(rowsWith(filter_, scan_.table), plainRowsWith(scan_.table, text)) << text.toStdString();
  }

  test::TestScan scan_{u"live  "_qs, 1};
  HitFilter filter_{scan_.table};
};

TEST_F(Filter, MayGetTheNextKeyInTheMiddle) {
  lookAtSome(2);
  ASSERT_GT(filter_.lookedAt(), 0);
  ASSERT_LT(filter_.lookedAt(), scan_.table.rowCount());
  for (const char16_t* text : {u"tr", u"tra", u"tra 1", u"trac 1 liv", u"track 1 live"}) {
    filter_.setText(QString::fromUtf16(text));
    lookAtSome(1);
  }
  expectRowsOf(u"track 1 live"_qs);
}

TEST_F(Filter, MayBeTakenBackInTheMiddle) {
  rowsWith(filter_, scan_.table);
  filter_.setText(u"track"_qs);
  lookAtSome(1);
  filter_.setText(u"track 1"_qs);
  lookAtSome(2);
  filter_.setText(u"tr"_qs);
  lookAtSome(1);
  filter_.setText(u"trac"_qs);
  expectRowsOf(u"trac"_qs);
  filter_.setText(u"img"_qs);
  expectRowsOf(u"img"_qs);
}

TEST_F(Filter, FollowsATableThatGrows) {
  filter_.setText(u"track"_qs);
  expectRowsOf(u"track"_qs);
  test::fill(scan_, test::mixedListing(5000, 42));
  EXPECT_EQ(filter_.lookedAt(), 30'000);
  expectRowsOf(u"track"_qs);
  filter_.setText(u"track 2"_qs);
  test::fill(scan_, test::mixedListing(5000, 43));
  expectRowsOf(u"track 2"_qs);
}

TEST_F(Filter, StartsAgainWhenTheRowsAreOthers) {
  filter_.setText(u"track"_qs);
  rowsWith(filter_, scan_.table);
  scan_.table.clear();
  filter_.restart();
  test::fill(scan_, test::mixedListing(2000, 44));
  expectRowsOf(u"track"_qs);
}

TEST_F(Filter, IsOffWithoutWords) {
  EXPECT_TRUE(filter_.isOn());
  filter_.setText(u"   "_qs);
  EXPECT_FALSE(filter_.isOn());
  filter_.setText(u"live"_qs);
  expectRowsOf(u"live"_qs);
}

TEST_F(Filter, CountsRepeatedWordsOnce) {
  const QString text = u"t "_qs.repeated(150) + u"live"_qs;
  filter_.setText(text);
  EXPECT_EQ(rowsWith(filter_, scan_.table), plainRowsWith(scan_.table, u"t live"_qs));
}

TEST_F(Filter, TakesTheFirstOfVeryManyWords) {
  QStringList words;
  for (int word = 0; word < 150; ++word) words.append(u"e"_qs.repeated(1) + QString::number(word));
  filter_.setText(words.join(u' '));
  EXPECT_EQ(rowsWith(filter_, scan_.table), std::vector<std::int64_t>());
}

}  // namespace
}  // namespace quorvin
