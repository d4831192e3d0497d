// SPDX-License-Identifier: GPL-2.0-or-later

// In which order a listing has day and month: its own dates decide, wherever one of them can.
#include "dates/general_date.h"
#include "support/generated_listing.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"
#include "support/sweep.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::entryLine;

const QLocale kAmerican(QLocale::English, QLocale::UnitedStates);
const QLocale kBritish(QLocale::English, QLocale::UnitedKingdom);

QString dateOf(DateValue value) {
  return dateTimeOf(value).toString(u"yyyy-MM-dd");
}

QStringList datesOf(const test::ReferenceResult& result) {
  QStringList dates;
  for (const test::ReferenceHit& hit : result.hits) dates += dateOf(hit.date);
  return dates;
}

/// The dates that a search for "song" shows under `locale`.
QStringList datesIn(const QByteArray& listing, const QLocale& locale, const ScanLimits& limits = {}) {
  return datesOf(test::scanOf(listing, u"song"_qs, 50, limits, locale));
}

TEST(DatesOfAListing, ADateThatIsOneInOneOrderOnlyDecides) {
  const QByteArray american =
      entryLine("song 1", "7", "3/4/2026 1:04:09 PM") + entryLine("song 2", "7", "3/15/2026 1:04:09 PM");
  const QStringList expected = {u"2026-03-04"_qs, u"2026-03-15"_qs};
  EXPECT_EQ(datesIn(american, kBritish), expected);
  EXPECT_EQ(datesIn(american, kAmerican), expected);
  const QByteArray british =
      entryLine("song 1", "7", "03/04/2026 13:04:09") + entryLine("song 2", "7", "15/03/2026 13:04:09");
  const QStringList dayFirst = {u"2026-04-03"_qs, u"2026-03-15"_qs};
  EXPECT_EQ(datesIn(british, kBritish), dayFirst);
  EXPECT_EQ(datesIn(british, kAmerican), dayFirst);
}

TEST(DatesOfAListing, ItNeedNotBeTheDateOfAHit) {
  const QByteArray listing =
      entryLine("song 1", "7", "3/4/2026 1:04:09 PM") + entryLine("other", "7", "3/15/2026 1:04:09 PM");
  EXPECT_EQ(datesIn(listing, kBritish), (QStringList{u"2026-03-04"_qs}));
}

TEST(DatesOfAListing, TheFirstThatDecidesDecides) {
  const QByteArray listing = entryLine("song 1", "7", "3/4/2026 1:04:09 PM") +
                             entryLine("song 2", "7", "3/15/2026 1:04:09 PM") +
                             entryLine("song 3", "7", "15/3/2026 1:04:09 PM");
  const QStringList expected = {u"2026-03-04"_qs, u"2026-03-15"_qs, u"2026-03-15"_qs};
  EXPECT_EQ(datesIn(listing, kBritish), expected);
}

TEST(DatesOfAListing, WithoutOneTheLocaleDecides) {
  const QByteArray listing = entryLine("song 1", "7", "3/4/2026 1:04:09 PM") +
                             entryLine("song 2", "7", "2026-03-15 13:04:09") +
                             entryLine("song 3", "7", "no date at all, 3/15/2026");
  EXPECT_EQ(datesIn(listing, kBritish), (QStringList{u"2026-04-03"_qs, u"2026-03-15"_qs, u"2026-03-15"_qs}));
  EXPECT_EQ(datesIn(listing, kAmerican), (QStringList{u"2026-03-04"_qs, u"2026-03-15"_qs, u"2026-03-15"_qs}));
}

TEST(DatesOfAListing, DatesInLinesThatAreTooShortToShowOneDoNotDecide) {
  const QByteArray listing =
      entryLine("song 1", "7", "3/4/2026 1:04:09 PM") + entryLine("song 2", "7", "3/15/2026");
  EXPECT_EQ(datesIn(listing, kBritish).front(), u"2026-04-03"_qs);
}

/// A listing, and how often it has been opened.
class CountedListing {
 public:
  explicit CountedListing(QByteArray bytes) : bytes_(std::move(bytes)) {}

  /// The dates of the hits, read in chunks of `chunkSize` bytes.
  QStringList dates(std::size_t chunkSize) {
    test::TestScan scan(u"song"_qs, 50, kBritish);
    ScanLimits limits;
    limits.chunkSize = chunkSize;
    const ListingOpener open = [this] {
      ++opened;
      return test::MemoryListing(bytes_);
    };
    scan.table.startListing(scan.kind, {});
    scanListing(open, scan.request(), scan.counts, scan.outcome, limits);
    return datesOf(scan.result());
  }

  int opened = 0;

 private:
  QByteArray bytes_;
};

TEST(OrderOfAListing, IsLookedForBeyondTheFirstChunk) {
  CountedListing listing(entryLine("song 1", "7", "3/4/2026 1:04:09 PM").repeated(50) +
                         entryLine("other", "7", "3/15/2026 1:04:09 PM"));
  EXPECT_EQ(listing.dates(1000), QStringList(50, u"2026-03-04"_qs));
  EXPECT_EQ(listing.opened, 2);
}

TEST(OrderOfAListing, MayBeThatOfALastLineWithoutAnEnd) {
  CountedListing listing(entryLine("song 1", "7", "3/4/2026 1:04:09 PM").repeated(50) +
                         entryLine("other", "7", "3/15/2026 1:04:09 PM").chopped(2));
  EXPECT_EQ(listing.dates(1000), QStringList(50, u"2026-03-04"_qs));
}

TEST(OrderOfAListing, IsLookedForBeforeTheFirstDateInQuestion) {
  CountedListing listing(entryLine("other", "7", "3/15/2026 1:04:09 PM") +
                         entryLine("other", "7", "2026-03-15 13:04:09").repeated(50) +
                         entryLine("song", "7", "3/4/2026 1:04:09 PM"));
  EXPECT_EQ(listing.dates(1000), (QStringList{u"2026-03-04"_qs}));
  EXPECT_EQ(listing.opened, 2);
}

TEST(OrderOfAListing, NeedsNoSecondReadingWhereTheFirstChunkDecides) {
  CountedListing listing(entryLine("song", "7", "3/4/2026 1:04:09 PM") +
                         entryLine("other", "7", "3/15/2026 1:04:09 PM").repeated(50));
  EXPECT_EQ(listing.dates(1000), (QStringList{u"2026-03-04"_qs}));
  EXPECT_EQ(listing.opened, 1);
}

TEST(OrderOfAListing, NeedsNoSecondReadingWhereNoDateIsInQuestion) {
  CountedListing listing(entryLine("song", "7", "2026-03-04 13:04:09").repeated(50) +
                         entryLine("other", "7", "3/4/2026 1:04:09 PM").repeated(50));
  EXPECT_EQ(listing.dates(1000), QStringList(50, u"2026-03-04"_qs));
  EXPECT_EQ(listing.opened, 1);
}

TEST(OrderOfAListing, AListingThatCanBeReadOnlyOnceIsReadOn) {
  const QByteArray bytes = entryLine("song", "7", "3/4/2026 1:04:09 PM").repeated(50) +
                           entryLine("other", "7", "3/15/2026 1:04:09 PM");
  test::TestScan scan(u"song"_qs, 50, kBritish);
  ScanLimits limits;
  limits.chunkSize = 1000;
  int opened = 0;
  const ListingOpener open = [&] { return test::MemoryListing(opened++ == 0 ? bytes : QByteArray()); };
  scan.table.startListing(scan.kind, {});
  scanListing(open, scan.request(), scan.counts, scan.outcome, limits);
  // Nothing in the first chunk decides.
  EXPECT_EQ(datesOf(scan.result()), QStringList(50, u"2026-04-03"_qs));
}

TEST(OrderOfAListing, IsThatOfThePlainReferenceHoweverTheListingIsCutUp) {
  test::ListingMaker maker(12);
  int turned = 0;
  for (int round = 0; round < test::sweep(2000, 150); ++round) {
    const QByteArray listing = maker.listing(12);
    for (const QLocale& locale : {kBritish, kAmerican}) {
      const QStringList expected = datesOf(test::referenceScan(listing, u"a"_qs, 1, locale));
      for (const std::size_t chunk : {1U, 90U, 300U, 100000U}) {
        ScanLimits limits;
        limits.chunkSize = chunk;
        limits.passingSegment = 200;
        const auto result = test::scanOf(listing, u"a"_qs, 1, limits, locale);
        ASSERT_EQ(datesOf(result), expected) << "chunks of " << chunk << '\n' << listing.toStdString();
      }
    }
    const auto dates = [&](const QLocale& locale) {
      return datesOf(test::referenceScan(listing, u"a"_qs, 1, locale));
    };
    if (listing.contains("3/15/2004") && dates(kBritish) == dates(kAmerican)) ++turned;
  }
  EXPECT_GT(turned, 10) << "too few to say anything";
}

TEST(OrderOfAListing, IsKeptWithTheSegments) {
  const TemporaryFolder folder;
  const QString path =
      folder.writeFile(u"us.lst"_qs, entryLine("song", "7", "3/4/2026 1:04:09 PM").repeated(90) +
                                         entryLine("other", "7", "3/15/2026 1:04:09 PM"));
  ScanLimits limits;
  limits.chunkSize = 1000;
  for (int round = 0; round < 2; ++round) {
    SegmentStore store({folder.pathOf(u"cache/"_qs), 1 << 20});
    test::TestScan scan(u"song"_qs, 50, kBritish);
    scan.runFile(path, &store, limits);
    EXPECT_EQ(datesOf(scan.result()), QStringList(90, u"2026-03-04"_qs)) << round;
  }
}

// Under another locale the other order may be that of a listing that does not say: nothing kept is used.
TEST(OrderOfAListing, IsLookedForAgainUnderAnotherLocale) {
  const TemporaryFolder folder;
  const QString path = folder.writeFile(u"any.lst"_qs, entryLine("song", "7", "3/4/2026 1:04:09 PM"));
  SegmentStore store({folder.pathOf(u"cache/"_qs), 1 << 20});
  const auto dates = [&](const QLocale& locale) {
    test::TestScan scan(u"song"_qs, 50, locale);
    scan.runFile(path, &store);
    return datesOf(scan.result());
  };
  EXPECT_EQ(dates(kBritish), (QStringList{u"2026-04-03"_qs}));
  EXPECT_EQ(dates(kAmerican), (QStringList{u"2026-03-04"_qs}));
  EXPECT_EQ(dates(kBritish), (QStringList{u"2026-04-03"_qs}));
}

}  // namespace
}  // namespace quorvin
