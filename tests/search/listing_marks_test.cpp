// SPDX-License-Identifier: GPL-2.0-or-later

// Byte order marks at the start of listings, and files that are no text at all.
#include "platform/text_encoding.h"
#include "search/search_run_fixture.h"
#include "support/generated_listing.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"
#include "support/temporary_folder.h"

#include <QStringEncoder>

namespace quorvin {
namespace {

const QByteArray kUtf8Mark = "\xEF\xBB\xBF";
const QByteArray kListing =
    "Volume:    DISK \xC3\x84\r\nDirectory: \\Music \xF0\x9F\x8E\xB5\\\r\n" + test::entryLine("Song", "7");

QByteArray utf16(const QByteArray& utf8, QStringConverter::Encoding encoding) {
  // Not by Qt's short way, which would drop a mark.
  return QStringEncoder(encoding).encode(textOfUtf8({utf8.data(), static_cast<std::size_t>(utf8.size())}));
}

const QByteArray kLittle = "\xFF\xFE" + utf16(kListing, QStringConverter::Utf16LE);
const QByteArray kBig = "\xFE\xFF" + utf16(kListing, QStringConverter::Utf16BE);

void expectTheSong(const test::ReferenceResult& result) {
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_EQ(result.hits[0].volume, u"DISK \u00C4"_qs);
  EXPECT_EQ(result.hits[0].folder, u"\\Music \U0001F3B5\\"_qs);
  EXPECT_EQ(result.hits[0].name, u"Song"_qs);
  EXPECT_EQ(result.hits[0].size, 7);
  EXPECT_EQ(result.searched, 1);
}

TEST(ByteOrderMark, IsNoPartOfTheListing) {
  for (std::size_t chunk = 1; chunk <= 200; ++chunk) {
    ScanLimits limits;
    limits.chunkSize = chunk;
    for (const QByteArray& listing : {kListing, kUtf8Mark + kListing, kLittle, kBig}) {
      expectTheSong(test::scanOf(listing, u"song"_qs, 50, limits));
      if (testing::Test::HasFailure()) FAIL() << "chunks of " << chunk << ", " << int(listing[0]);
    }
  }
}

TEST(ByteOrderMark, OnlyTheFirstIsLeftOut) {
  const auto twice = test::scanOf(kUtf8Mark + kUtf8Mark + "song\n", u"song"_qs, 50);
  ASSERT_EQ(twice.hits.size(), 1U);
  EXPECT_EQ(twice.hits[0].name, u"\uFEFFsong"_qs);
  const auto utf16Twice =
      test::scanOf("\xFF\xFE" + utf16(kUtf8Mark + "song\n", QStringConverter::Utf16LE), u"song"_qs, 50);
  ASSERT_EQ(utf16Twice.hits.size(), 1U);
  EXPECT_EQ(utf16Twice.hits[0].name, u"\uFEFFsong"_qs);
}

TEST(ByteOrderMark, HalfOfAPairIsAReplacementCharacter) {
  const QByteArray listing("\xFE\xFF\0s\xDD\x64\0o\xD8\x3C\0n\0g\0\n\0s\0o\xD8\x3C", 22);
  for (std::size_t chunk = 1; chunk <= 22; ++chunk) {
    ScanLimits limits;
    limits.chunkSize = chunk;
    const auto result = test::scanOf(listing, u"s"_qs, 50, limits);
    ASSERT_EQ(result.hits.size(), 2U) << "chunks of " << chunk;
    EXPECT_EQ(result.hits[0].name, u"s\uFFFDo\uFFFDng"_qs);
    EXPECT_EQ(result.hits[1].name, u"so"_qs) << "the other half may have been cut off";
    EXPECT_EQ(result.hits, test::referenceScan(listing, u"s"_qs, 50, QLocale::c()).hits);
  }
}

TEST(ByteOrderMark, AloneIsAnEmptyListing) {
  for (const QByteArray& mark : {kUtf8Mark, QByteArray("\xFF\xFE"), QByteArray("\xFE\xFF")}) {
    EXPECT_EQ(test::scanOf(mark, u"a"_qs, 50).searched, 0);
  }
  // Half a mark is text.
  EXPECT_EQ(test::scanOf("\xEF\xBB", u"a"_qs, 50).searched, 1);
}

TEST(ByteOrderMark, GeneratedListingsAreTheSameWithAndWithout) {
  test::ListingMaker maker(31);
  for (int round = 0; round < 100; ++round) {
    const QByteArray listing = maker.listing(12);
    const auto expected = test::referenceScan(kUtf8Mark + listing, u"a"_qs, 20, QLocale::c());
    EXPECT_EQ(test::scanOf(kUtf8Mark + listing, u"a"_qs, 20).hits, expected.hits);
    const QByteArray text = QString::fromUtf8(listing).toUtf8();
    const QByteArray wide = "\xFF\xFE" + utf16(text, QStringConverter::Utf16LE);
    const auto expectedWide = test::referenceScan(wide, u"a"_qs, 20, QLocale::c());
    ScanLimits limits;
    limits.chunkSize = 61;
    ASSERT_EQ(test::scanOf(wide, u"a"_qs, 20, limits).hits, expectedWide.hits) << text.toStdString();
  }
}

TEST(ByteOrderMark, SegmentsOfAUtf16ListingAreKept) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(u"wide.lst"_qs, kLittle);
  for (int round = 0; round < 2; ++round) {
    SegmentStore store({folder.pathOf(u"cache/"_qs), 1 << 20});
    test::TestScan scan(u"song"_qs);
    scan.runFile(path, &store);
    expectTheSong(scan.result());
    EXPECT_FALSE(scan.outcome.isNoText);
    EXPECT_EQ(segmentFiles(folder.pathOf(u"cache/"_qs)).size(), 1);
  }
}

class NoText : public test::SearchRunFixture {};

TEST_F(NoText, Utf16WithoutAMarkIsReportedAtEachRun) {
  const QString path = folder_.writeFile(u"wide.lst"_qs, kLittle.sliced(2));
  addOffline(path);
  addOffline(folder_.writeFile(u"good.lst"_qs, "song good\r\n"));
  SegmentStore store({folder_.pathOf(u"cache/"_qs), 1 << 20});
  for (std::size_t round = 1; round <= 2; ++round) {
    SearchRun run({state_, messages_, QLocale::c(), &hits_, &store, &display_, [] { return false; }});
    run.Find_Click(u"song"_qs, u"50"_qs);
    ASSERT_EQ(messages_.informed.size(), round);
    EXPECT_EQ(
        messages_.informed.back(),
        u"These listings are not plain text, so little or nothing is found in them. If one was saved as "
        "UTF-16 (\"Unicode\") without a byte order mark, save it as UTF-8.\r\n"_qs +
            path);
    EXPECT_EQ(run.failedListings(), 1);
    EXPECT_EQ(names(), (QStringList{u"song good"_qs}));
  }
}

TEST_F(NoText, UnfinishedAndMarkedListingsAreText) {
  addOffline(folder_.writeFile(u"little.lst"_qs, kLittle));
  addOffline(folder_.writeFile(u"big.lst"_qs, kBig));
  addOffline(folder_.writeFile(u"marked.lst"_qs, kUtf8Mark + kListing));
  addOffline(folder_.writeFile(u"empty.lst"_qs, ""));
  find(u"song");
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_EQ(run_.failedListings(), 0);
  EXPECT_EQ(hits_.rowCount(), 3);
}

TEST_F(NoText, OnlyTheStartOfAListingIsLookedAt) {
  addOffline(folder_.writeFile(u"late.lst"_qs, QByteArray("song\n").repeated(820) + QByteArray(1, '\0')));
  find(u"song");
  EXPECT_TRUE(messages_.informed.empty());
  addOffline(folder_.writeFile(u"early.lst"_qs, QByteArray("song\n").repeated(819) + QByteArray(1, '\0')));
  find(u"song");
  EXPECT_EQ(messages_.informed.size(), 1U);
}

}  // namespace
}  // namespace quorvin
