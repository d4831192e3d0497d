// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/hit_table.h"

#include "support/listing_lines.h"
#include "support/scan_of.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

HitTable scanned(const QByteArray& listing, SourceKind kind, const ScanLimits& limits = {}) {
  test::TestScan scan(u"song"_qs);
  scan.kind = kind;
  scan.run(test::MemoryListing(listing), limits);
  return std::move(scan.table);
}

TEST(HitTable, RowShowsSixColumns) {
  const HitTable table = scanned(
      test::blockHead("CD 7", "\\Music\\") + test::entryLine("Song.mp3", "131,072"), SourceKind::Online);
  ASSERT_EQ(table.rowCount(), 1);
  const HitRow row = table.row(0);
  const QLocale locale = QLocale::c();
  EXPECT_EQ(hitText(row, HitColumn::Match, locale), u"100%"_qs);
  EXPECT_EQ(hitText(row, HitColumn::Volume, locale), u"CD 7"_qs);
  EXPECT_EQ(hitText(row, HitColumn::Folder, locale), u"\\Music\\"_qs);
  EXPECT_EQ(hitText(row, HitColumn::Name, locale), u"Song.mp3"_qs);
  EXPECT_EQ(hitText(row, HitColumn::Size, locale), u"0.13mb"_qs);
  EXPECT_EQ(hitText(row, HitColumn::Date, locale), u"Jan, 15 04"_qs);
}

TEST(HitTable, RowsKnowTheListingThatTheyWereFoundIn) {
  const QByteArray listing = test::blockHead("CD", "\\") + test::entryLine("song");
  test::TestScan scan(u"song"_qs);
  for (const char16_t* path : {u"/lists/a.txt", u"/lists/b.txt"}) {
    scan.table.startListing(SourceKind::Offline, QString::fromUtf16(path));
    scanListing([&] { return test::MemoryListing(listing); }, scan.request(), scan.counts, scan.outcome);
  }
  ASSERT_EQ(scan.table.rowCount(), 2);
  EXPECT_EQ(scan.table.listing(0), u"/lists/a.txt"_qs);
  EXPECT_EQ(scan.table.listing(1), u"/lists/b.txt"_qs);
}

TEST(HitTable, TellsWhetherItHasBeenClearedSince) {
  HitTable table = scanned("song", SourceKind::Offline);
  const std::int64_t before = table.timesCleared();
  table.clear();
  EXPECT_EQ(table.timesCleared(), before + 1);
}

TEST(HitTable, KindsHaveTheirColours) {
  EXPECT_EQ(rowColour(SourceKind::Online), 0x0000FFU);
  EXPECT_EQ(rowColour(SourceKind::MainDataFile), 0xFF0000U);
  EXPECT_EQ(rowColour(SourceKind::Offline), 0xFF7F00U);
  EXPECT_EQ(scanned("song", SourceKind::Offline).kind(0), SourceKind::Offline);
}

TEST(HitTable, RowsStayRightWhenTheirSegmentIsMadeSmaller) {
  QByteArray listing;
  for (int i = 0; i < 1000; ++i) {
    listing += test::blockHead("V" + QByteArray::number(i / 100), "\\F" + QByteArray::number(i / 10) + "\\");
    listing +=
        test::entryLine((i % 7 == 0 ? "Song " : "Other ") + QByteArray::number(i), QByteArray::number(i));
  }
  ScanLimits limits;
  limits.chunkSize = 1000;
  limits.passingSegment = 20000;
  const HitTable table = scanned(listing, SourceKind::Online, limits);
  ASSERT_EQ(table.rowCount(), 143);
  for (std::int64_t row = 0; row < 143; ++row) {
    const std::int64_t i = row * 7;
    ASSERT_EQ(table.row(row).name, u"Song %1"_qs.arg(i));
    ASSERT_EQ(table.row(row).volume, u"V%1"_qs.arg(i / 100));
    ASSERT_EQ(table.row(row).folder, u"\\F%1\\"_qs.arg(i / 10));
    ASSERT_EQ(table.row(row).size, i);
  }
}

TEST(HitTable, CarriedValuesCrossFromSegmentToSegment) {
  QByteArray listing = test::entryLine("song first", "4,711");
  for (int i = 0; i < 50; ++i) listing += test::entryLine("song short", "1", "1 May 99").chopped(2) + "\r\n";
  ScanLimits limits;
  limits.chunkSize = 200;
  limits.passingSegment = 200;
  const HitTable table = scanned(listing, SourceKind::Online, limits);
  ASSERT_EQ(table.rowCount(), 51);
  EXPECT_EQ(table.row(50).size, 4711);
}

TEST(HitTable, CarriedValuesStartAfreshWithEachListing) {
  test::TestScan scan(u"song"_qs);
  for (const QByteArray& listing : {test::entryLine("song"), QByteArray("song")}) {
    scan.run(test::MemoryListing(listing));
  }
  const HitTable& table = scan.table;
  ASSERT_EQ(table.rowCount(), 2);
  EXPECT_EQ(table.row(0).size, 1024);
  EXPECT_EQ(table.row(1).size, 0);
}

TEST(HitTable, RowsWithoutValuesShowThoseBeforeThemInTheirListing) {
  static_assert(sizeof(FoundEntry) == 8);
  test::TestScan scan(u"song"_qs);
  const QByteArray none = "song without\r\n";
  const QByteArray one = test::entryLine("song", "1");
  const QByteArray seven = test::entryLine("song", "7");
  for (const QByteArray& listing :
       {none + one + none + none + seven + none, none + none, none + one + none, seven, one + none}) {
    scan.run(test::MemoryListing(listing));
  }
  const HitTable& table = scan.table;
  std::vector<std::int64_t> sizes;
  for (std::int64_t row = 0; row < table.rowCount(); ++row) sizes.push_back(table.row(row).size);
  EXPECT_EQ(sizes, (std::vector<std::int64_t>{0, 1, 1, 1, 7, 7, 0, 0, 0, 1, 1, 7, 1, 1}));
}

TEST(HitTable, ClearedTableHasNoRowsAndStartsAgain) {
  HitTable table = scanned("song 1\r\nsong 2\r\n", SourceKind::Online);
  ASSERT_EQ(table.rowCount(), 2);
  table.clear();
  EXPECT_EQ(table.rowCount(), 0);
}

TEST(HitTable, HundredThousandRowsStandInOrder) {
  QByteArray listing;
  for (int i = 0; i < 100000; ++i) listing += "song " + QByteArray::number(i) + "\r\n";
  const HitTable table = scanned(listing, SourceKind::Online);
  ASSERT_EQ(table.rowCount(), 100000);
  EXPECT_EQ(table.row(0).name, u"song 0"_qs);
  EXPECT_EQ(table.row(65535).name, u"song 65535"_qs);
  EXPECT_EQ(table.row(65536).name, u"song 65536"_qs);
  EXPECT_EQ(table.row(99999).name, u"song 99999"_qs);
}

}  // namespace
}  // namespace quorvin
