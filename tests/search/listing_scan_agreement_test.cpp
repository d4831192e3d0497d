// SPDX-License-Identifier: GPL-2.0-or-later

// The program's scan held against the plain reference on generated listings.
#include "support/generated_listing.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::ListingMaker;
using test::ReferenceHit;
using test::ReferenceResult;

void expectSame(const ReferenceResult& scanned, const ReferenceResult& reference) {
  ASSERT_EQ(scanned.searched, reference.searched);
  ASSERT_EQ(scanned.hits.size(), reference.hits.size());
  for (std::size_t i = 0; i < scanned.hits.size(); ++i) {
    const ReferenceHit& own = scanned.hits[i];
    const ReferenceHit& expected = reference.hits[i];
    ASSERT_EQ(own.match, expected.match) << "hit " << i;
    ASSERT_EQ(own.volume, expected.volume) << "hit " << i;
    ASSERT_EQ(own.folder, expected.folder) << "hit " << i;
    ASSERT_EQ(own.name, expected.name) << "hit " << i;
    ASSERT_EQ(own.size, expected.size) << "hit " << i;
    ASSERT_EQ(own.date, expected.date) << "hit " << i;
  }
  ASSERT_EQ(scanned.unreadable, reference.unreadable);
  ASSERT_EQ(scanned.firstUnreadableLine, reference.firstUnreadableLine);
}

TEST(ListingScanAgreement, GeneratedListingsGiveTheSameHits) {
  ListingMaker maker(20260101);
  const int rounds = test::sweep(20000, 1000);
  int hits = 0;
  for (int round = 0; round < rounds; ++round) {
    const QByteArray listing = maker.listing(12);
    const QString words = maker.searchText();
    const int desired = 1 + maker.below(100);
    const ReferenceResult reference = test::referenceScan(listing, words, desired, QLocale::c());
    hits += static_cast<int>(reference.hits.size());
    expectSame(test::scanOf(listing, words, desired), reference);
    if (HasFatalFailure()) {
      FAIL() << "round " << round << ", words \"" << words.toStdString() << "\", desired " << desired
             << ", listing:\n"
             << listing.toStdString();
    }
  }
  EXPECT_GT(hits, rounds / 2) << "too few hits to say anything";
}

TEST(ListingScanAgreement, ChunksMayEndAtEveryByte) {
  ListingMaker maker(7);
  QByteArray listing;
  while (listing.size() < 1500) listing += maker.listing(12);
  const ReferenceResult reference = test::referenceScan(listing, u"a b"_qs, 49, QLocale::c());
  ASSERT_GT(reference.hits.size(), 3U);
  for (std::size_t chunk = 1; chunk <= static_cast<std::size_t>(listing.size());
       chunk += chunk < 130 ? 1 : test::sweep<std::size_t>(1, 17)) {
    ScanLimits limits;
    limits.chunkSize = chunk;
    expectSame(test::scanOf(listing, u"a b"_qs, 49, limits), reference);
    if (HasFatalFailure()) FAIL() << "chunk size " << chunk;
  }
}

TEST(ListingScanAgreement, SegmentsMayEndAfterEveryChunk) {
  ListingMaker maker(11);
  QByteArray listing;
  while (listing.size() < 30000) listing += maker.listing(40);
  for (const char16_t* words : {u"a", u"a b mp3", u"q"}) {
    const QString text = QString::fromUtf16(words);
    const ReferenceResult reference = test::referenceScan(listing, text, 20, QLocale::c());
    for (const std::size_t segment : {1U, 100U, 1000U, 20000U}) {
      ScanLimits limits;
      limits.chunkSize = 97;
      limits.passingSegment = segment;
      expectSame(test::scanOf(listing, text, 20, limits), reference);
      if (HasFatalFailure()) FAIL() << "segment size " << segment;
    }
  }
}

TEST(ListingScanAgreement, EntryLinesOfEveryLengthAgree) {
  QByteArray listing;
  for (int length = 0; length <= 120; ++length) {
    const QByteArray line = test::entryLine("song of " + QByteArray::number(length), "1,234,567",
                                            "15 Jan 2004 10:20:30 and more text")
                                .left(length);
    listing += line + "\r\n" + QByteArray(length, 's') + "\r\n" + QByteArray("\xC3\xA9").repeated(length) +
               "\r\n" + QByteArray("\xE9").repeated(length) + "\r\n";
  }
  for (const char16_t* words : {u"song", u"s", u"\u00E9", u"song s"}) {
    const QString text = QString::fromUtf16(words);
    const ReferenceResult reference = test::referenceScan(listing, text, 40, QLocale::c());
    ASSERT_GT(reference.hits.size(), 100U);
    expectSame(test::scanOf(listing, text, 40), reference);
  }
}

}  // namespace
}  // namespace quorvin
