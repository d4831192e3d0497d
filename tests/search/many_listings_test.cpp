// SPDX-License-Identifier: GPL-2.0-or-later

// Short listings in great numbers (ten million where everything is tried), each searched and held against a
// judge that shares no code with the search.
#include "search/quick_scan.h"
#include "support/instruction_sets.h"
#include "support/plain_scan.h"
#include "support/reference_scan.h"
#include "support/scan_of.h"
#include "support/small_listings.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <set>
#include <unordered_set>

namespace quorvin {
namespace {

using test::PlainResult;
using test::PlainScan;
using test::QuickScan;
using test::QuickScanLimits;
using test::RepeatedSearch;
using test::SmallListings;

/// They are shared out, so that they can be run side by side.
constexpr unsigned kShares = 8;
const std::size_t kListingsInAll = test::sweep<std::size_t>(10'000'000, 400'000);
/// One listing in this many has thousands of lines.
constexpr std::size_t kShortForOneLong = 4000;

/// Every kShares-th of a great number of different searches, from the `share`-th on: no two shares have any
/// search in common.
std::deque<RepeatedSearch> searchesOf(unsigned share) {
  constexpr std::size_t kSearches = 4096;
  SmallListings maker(1);
  std::set<std::pair<std::string, int>> known;
  std::deque<RepeatedSearch> searches;
  while (known.size() < kSearches) {
    const std::string text = maker.searchText();
    const int desired = 1 + static_cast<int>(maker.below(100));
    if (!known.emplace(text, desired).second) continue;
    if (known.size() % kShares == share) searches.emplace_back(text, desired);
  }
  return searches;
}

/// Chunks and segments of all sizes, most of them so small that lines are cut and listings fall into pieces.
QuickScanLimits someLimits(SmallListings& maker, bool isLong) {
  QuickScanLimits limits;
  limits.chunkSize = 1 + maker.below(maker.below(2) == 0 ? 40 : 400);
  if (isLong) limits.chunkSize *= 100;
  limits.segmentSize = 1 + maker.below(maker.below(2) == 0 ? 100 : 100000);
  limits.entriesAtOnce = 1 + maker.below(maker.below(4) == 0 ? 3 : 2000);
  limits.whenComplete = maker.below(2) == 0;
  return limits;
}

/// Makes listings and compares; goes on until `wanted` cases have been compared that all differ in listing or
/// search.
class Comparison {
 public:
  Comparison(std::uint64_t seed, unsigned share)
      : maker_(seed), searches_(searchesOf(share)), scan_(QLocale::c()), plain_(QLocale::c()) {}

  void run(std::size_t wanted) {
    seen_.reserve(wanted);
    while (seen_.size() < wanted && !testing::Test::HasFatalFailure()) {
      const bool isLong = seen_.size() % kShortForOneLong == 0;
      const std::string_view listing = isLong ? maker_.nextLong() : maker_.next();
      const std::size_t number = maker_.below(static_cast<unsigned>(searches_.size()));
      const std::size_t hash = std::hash<std::string_view>()(listing) + number * 0x9E3779B97F4A7C15U;
      if (seen_.insert(hash).second) compare(listing, searches_[number], someLimits(maker_, isLong));
    }
  }

  std::size_t compared() const { return compared_; }
  std::size_t hits() const { return hits_; }
  std::size_t unreadable() const { return unreadable_; }

 private:
  void compare(std::string_view listing, RepeatedSearch& search, const QuickScanLimits& limits) {
    const PlainResult expected = plain_.scan(listing, search.words(), search.desiredMatch());
    const PlainResult result = scan_.scan(listing, search, limits);
    ++compared_;
    hits_ += expected.hits.size();
    unreadable_ += static_cast<std::size_t>(expected.unreadable);
    if (result == expected) return;
    FAIL() << differenceOf(result, expected) << "\nwords \"" << search.text() << "\", desired "
           << search.desiredMatch() << ", chunks of " << limits.chunkSize << ", segments of "
           << limits.segmentSize << ", " << limits.entriesAtOnce
           << " entries at once, when complete: " << limits.whenComplete << "\nlisting "
           << testing::PrintToString(std::string(listing));
  }

  SmallListings maker_;
  std::deque<RepeatedSearch> searches_;
  QuickScan scan_;
  PlainScan plain_;
  std::unordered_set<std::size_t> seen_;
  std::size_t compared_ = 0;
  std::size_t hits_ = 0;
  std::size_t unreadable_ = 0;
};

class ManyListings : public testing::TestWithParam<unsigned> {};

TEST_P(ManyListings, GiveTheHitsOfThePlainScan) {
  const std::size_t wanted = kListingsInAll / kShares;
  Comparison comparison(1000 + GetParam(), GetParam());
  comparison.run(wanted);
  EXPECT_EQ(comparison.compared(), wanted);
  EXPECT_GT(comparison.hits(), wanted / 4) << "too few hits to say anything";
  EXPECT_GT(comparison.unreadable(), wanted / 100) << "too few sizes and dates to say anything";
}

INSTANTIATE_TEST_SUITE_P(Share, ManyListings, testing::Range(0U, kShares));

class ManyListingsOn : public test::InstructionSetTest {};

TEST_P(ManyListingsOn, GiveTheHitsOfThePlainScan) {
  Comparison comparison(2000, 0);
  const std::size_t wanted = test::sweep<std::size_t>(100'000, 10'000);
  comparison.run(wanted);
  EXPECT_EQ(comparison.compared(), wanted);
}

INSTANTIATE_TEST_SUITE_P(Only, ManyListingsOn, test::everyInstructionSet(), test::instructionSetName);

TEST(PlainScan, AgreesWithTheReference) {
  SmallListings maker(3);
  PlainScan plain(QLocale::c());
  const int rounds = test::sweep(50'000, 5'000);
  int hits = 0;
  for (int round = 0; round < rounds; ++round) {
    const std::string listing(round % 1000 == 0 ? maker.nextLong() : maker.next());
    const QString text = QString::fromStdString(maker.searchText());
    const int desired = 1 + static_cast<int>(maker.below(100));
    const PlainResult expected =
        test::plainForm(test::referenceScan(QByteArray::fromStdString(listing), text, desired, QLocale::c()));
    hits += static_cast<int>(expected.hits.size());
    const PlainResult result = plain.scan(listing, test::plainWords(text.toStdU32String()), desired);
    ASSERT_EQ(test::differenceOf(result, expected), "")
        << "words \"" << text.toStdString() << "\", desired " << desired << ", listing "
        << testing::PrintToString(listing);
  }
  EXPECT_GT(hits, rounds / 5);
}

TEST(QuickScan, AgreesWithTheProgramsOwnScan) {
  SmallListings maker(4);
  QuickScan quick(QLocale::c());
  for (int round = 0; round < test::sweep(2'000, 200); ++round) {
    const std::string listing(round % 100 == 0 ? maker.nextLong() : maker.next());
    RepeatedSearch search(maker.searchText(), 1 + static_cast<int>(maker.below(100)));
    const QuickScanLimits limits = someLimits(maker, false);
    ScanLimits own;
    own.chunkSize = limits.chunkSize;
    own.passingSegment = limits.segmentSize;
    const test::ReferenceResult expected =
        test::scanOf(QByteArray::fromStdString(listing), QString::fromStdString(search.text()),
                     search.desiredMatch(), own);
    ASSERT_EQ(test::differenceOf(quick.scan(listing, search, limits), test::plainForm(expected)), "")
        << testing::PrintToString(listing);
  }
}

}  // namespace
}  // namespace quorvin
