// SPDX-License-Identifier: GPL-2.0-or-later

// Sizes and dates that another thread reads while the listing is read on.
#include "search/segment/values_beside.h"

#include "search/format/line_scan.h"
#include "search/segment/segment_builder.h"
#include "search/segment/segment_store_fixture.h"
#include "support/generated_listing.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>
#include <string>

namespace quorvin::test {
namespace {

struct MadeTail {
  std::string text;
  bool isOwn = true;
};

/// Tails of all kinds: usual ones, wide ones, those that cannot be read, and lines without any.
std::vector<MadeTail> madeTails(std::mt19937& random, int count) {
  const std::vector<std::string> kinds = {
      "        1,024 bytes 15 Jan 2004 10:20:30", "       99,999 bytes 1 May 1999 00:00:00",
      "9999999999999 bytes 15 Jan 2004 10:20:30", "          n/a bytes 15 Jan 2004 10:20:30",
      "            7 bytes 15 Jan 1604 10:20:30", "           12 b"};
  std::vector<MadeTail> tails;
  for (int i = 0; i < count; ++i) {
    const std::size_t kind = random() % (kinds.size() + 2);
    const bool isOwn = kind < kinds.size();
    tails.push_back({isOwn ? kinds[kind] : std::string(), isOwn});
  }
  return tails;
}

void expectSame(const EntryValueArrays& read, const EntryValueArrays& expected) {
  ASSERT_EQ(read.count(), expected.count());
  for (std::uint32_t entry = 0; entry < read.count(); ++entry) {
    ASSERT_EQ(read.compact()[entry].second, expected.compact()[entry].second) << entry;
    ASSERT_EQ(read.compact()[entry].size, expected.compact()[entry].size) << entry;
  }
  EXPECT_EQ(read.allOwn(), expected.allOwn());
  EXPECT_EQ(read.notOwn(), expected.notOwn());
  ASSERT_EQ(read.wide().size(), expected.wide().size());
  for (std::size_t i = 0; i < read.wide().size(); ++i) {
    EXPECT_EQ(read.wide()[i].entry, expected.wide()[i].entry);
    EXPECT_EQ(read.wide()[i].size, expected.wide()[i].size);
    EXPECT_EQ(read.wide()[i].date, expected.wide()[i].date);
  }
  ASSERT_EQ(read.unreadable().size(), expected.unreadable().size());
  for (std::size_t i = 0; i < read.unreadable().size(); ++i) {
    EXPECT_EQ(read.unreadable()[i].entry, expected.unreadable()[i].entry);
    EXPECT_EQ(read.unreadable()[i].line, expected.unreadable()[i].line);
  }
}

TEST(ValuesBeside, AreWhatReadingThemOneByOneGives) {
  std::mt19937 random(20);
  for (int round = 0; round < sweep(500, 60); ++round) {
    std::deque<std::string> texts;
    TailReader plain{EntryValuesReader(QLocale::c())};
    // Some were read before the other thread began.
    const auto before = static_cast<std::uint32_t>(random() % 5);
    const auto batch = static_cast<std::uint32_t>(1 + random() % 40);
    ValuesBeside beside(EntryValuesReader(QLocale::c()), before, batch);
    EntryValueArrays values;
    EntryValueArrays expected;
    std::string_view tail;
    std::int64_t line = 0;
    for (const MadeTail& made : madeTails(random, 300)) {
      if (made.isOwn) {
        texts.push_back(made.text + std::string(kLinePadding, '#'));
        tail = std::string_view(texts.back()).substr(0, made.text.size());
      }
      const std::uint32_t entry = expected.count();
      ++line;
      values.addEntry();
      expected.addEntry();
      plain.read(tail, made.isOwn, line, entry, expected);
      TailReader ofHits{EntryValuesReader(QLocale::c())};
      const bool isHit = random() % 3 == 0;
      if (entry < before || isHit) ofHits.read(tail, made.isOwn, line, entry, values);
      if (entry < before) continue;
      beside.add(tail, made.isOwn, line);
      if (random() % 10 == 0) beside.goOn(values);
    }
    beside.finish(values);
    expectSame(values, expected);
  }
}

TEST(ValuesBeside, GoOnWithTheFirstEntryOfTheNextSegment) {
  const std::string text = "            8 bytes 15 Jan 2004 10:20:30" + std::string(kLinePadding, '#');
  ValuesBeside beside(EntryValuesReader(QLocale::c()), 0, 1);
  for (int segment = 0; segment < 3; ++segment) {
    EntryValueArrays values;
    values.addEntry();
    beside.add(std::string_view(text).substr(0, text.size() - kLinePadding), true, 1);
    if (segment == 1) beside.goOn(values);
    beside.finish(values);
    EXPECT_EQ(expand(values.compact()[0]).size, 8) << segment;
  }
}

// Where the other thread is busy, the tails of a text are read in place, and its hits are in there already.
TEST(ValuesBeside, ValuesOfHitsAreThereOnce) {
  constexpr std::uint32_t kTexts = 6;
  const std::string lines = (entryLine("wide", "9999999999999") + entryLine("bad", "n/a"))
                                .repeated(ValuesBeside::kBatch / 2)
                                .toStdString();
  const std::string text = std::string(kLinePadding, '\n') + lines + std::string(kLinePadding, '\n');
  SegmentBuilder builder(QLocale::c());
  for (std::uint32_t number = 0; number < kTexts; ++number) {
    builder.addLines(text.data() + kLinePadding, lines.size());
    builder.readAllValuesBeside();
    const std::uint32_t first = number * ValuesBeside::kBatch;
    for (std::uint32_t entry = first; entry < first + ValuesBeside::kBatch; ++entry)
      builder.readValues(entry);
    builder.finishText();
  }
  builder.finishValues();
  const SegmentArrays& arrays = builder.segment()->arrays();
  ASSERT_EQ(arrays.wideValues.size(), kTexts * ValuesBeside::kBatch / 2);
  ASSERT_EQ(arrays.unreadable.size(), kTexts * ValuesBeside::kBatch / 2);
  for (std::uint32_t i = 0; i < arrays.wideValues.size(); ++i) {
    ASSERT_EQ(arrays.wideValues[i].entry, 2 * i);
    ASSERT_EQ(arrays.unreadable[i].entry, 2 * i + 1);
    ASSERT_EQ(arrays.unreadable[i].line, 2 * i + 2);
  }
}

/// Listings whose values are read beside from the first chunk on.
class ListingWithValuesBeside : public SegmentStoreTest {
 protected:
  ListingWithValuesBeside() { limits_.valuesBeside = 0; }
};

TEST_F(ListingWithValuesBeside, HasTheSameHitsAndIsKeptAsTheSameBytes) {
  ListingMaker maker(31);
  for (int round = 0; round < sweep(60, 12); ++round) {
    bytes_ = maker.listing(1500).repeated(30);
    folder_.writeFile(u"cd.lst"_qs, bytes_);
    limits_.chunkSize = 4000;
    limits_.keptSegment = 300'000;
    const QString word = maker.searchText();
    SegmentStore beside({cache_, kPlenty});
    const ReferenceResult found = scan(beside, word);
    EXPECT_EQ(found.hits, reference(word).hits);
    EXPECT_EQ(outcome_.unreadableHits, reference(word).unreadable);
    const QByteArray kept = contentOfFile(cacheFile());
    limits_.valuesBeside = SIZE_MAX;
    SegmentStore inBetween({folder_.pathOf(u"other/"_qs), kPlenty});
    scan(inBetween, word);
    EXPECT_TRUE(kept == contentOfFile(segmentFiles(folder_.pathOf(u"other/"_qs)).value(0))) << round;
    limits_.valuesBeside = 0;
    beside.forget(listing_);
    inBetween.forget(listing_);
  }
}

TEST_F(ListingWithValuesBeside, FindsTheOrderOfDayAndMonthWhereItStandsFarBehind) {
  bytes_ = entryLine("song", "7", "3/4/2026 1:04:09 PM").repeated(30'000) +
           entryLine("other", "7", "3/15/2026 1:04:09 PM");
  folder_.writeFile(u"cd.lst"_qs, bytes_);
  for (const QString& word : {u"song"_qs, u"nothing"_qs}) {
    SegmentStore store({cache_, kPlenty});
    TestScan first(word, 50, QLocale(QLocale::English, QLocale::UnitedKingdom));
    first.runFile(listing_, &store, limits_);
    TestScan second(u"song"_qs, 50, QLocale(QLocale::English, QLocale::UnitedKingdom));
    second.runFile(listing_, &store, limits_);
    ASSERT_EQ(second.table.rowCount(), 30'000);
    EXPECT_EQ(dateTimeOf(second.table.row(29'999).date).toString(u"yyyy-MM-dd"), u"2026-03-04"_qs);
    store.forget(listing_);
  }
}

}  // namespace
}  // namespace quorvin::test
