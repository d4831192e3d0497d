// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/hit_sort.h"

#include "platform/text_encoding.h"
#include "search/hit_table_maker.h"
#include "search/short_slices.h"
#include "support/qt_printing.h"

#include <QCollator>
#include <gtest/gtest.h>

#include <algorithm>
#include <compare>
#include <functional>

namespace quorvin {
namespace {

const QLocale kLocale(QLocale::English, QLocale::UnitedStates);

std::vector<std::uint32_t> sorted(const HitTable& table, const HitOrder& order,
                                  std::int64_t mostInLocaleOrder) {
  HitSort sort(table, order, kLocale, mostInLocaleOrder);
  const SliceEnd isOver = test::everyOtherTime();
  while (!sort.goOn(isOver)) {
  }
  return sort.takeRows();
}

/// Below zero where `one` comes before `other` when going up.
using Compare = std::function<int(const HitRow& one, const HitRow& other)>;

template <typename Value>
int compared(const Value& one, const Value& other) {
  return one < other ? -1 : other < one ? 1 : 0;
}

/// The plain reference: every row read and compared as a whole.
std::vector<std::uint32_t> plainlySorted(const HitTable& table, const Compare& compare, bool descending) {
  std::vector<HitRow> hits;
  std::vector<std::uint32_t> rows;
  for (std::int64_t row = 0; row < table.rowCount(); ++row) {
    hits.push_back(table.row(row));
    rows.push_back(static_cast<std::uint32_t>(row));
  }
  std::ranges::stable_sort(rows, [&](std::uint32_t one, std::uint32_t other) {
    return descending ? compare(hits[other], hits[one]) < 0 : compare(hits[one], hits[other]) < 0;
  });
  return rows;
}

QString columnText(const HitRow& row, HitColumn column) {
  return column == HitColumn::Volume ? row.volume : column == HitColumn::Folder ? row.folder : row.name;
}

Compare byLocale(HitColumn column) {
  QCollator collator(kLocale);
  collator.setNumericMode(true);
  return [=](const HitRow& one, const HitRow& other) {
    return collator.compare(columnText(one, column), columnText(other, column));
  };
}

Compare byLowerCase(HitColumn column) {
  return [=](const HitRow& one, const HitRow& other) {
    return compared(simpleLowerCase(columnText(one, column)).toStdString(),
                    simpleLowerCase(columnText(other, column)).toStdString());
  };
}

Compare byValue(HitColumn column) {
  return [=](const HitRow& one, const HitRow& other) {
    if (column == HitColumn::Match) return compared(one.match, other.match);
    return column == HitColumn::Size ? compared(one.size, other.size) : compared(one.date, other.date);
  };
}

bool isText(HitColumn column) {
  return column == HitColumn::Volume || column == HitColumn::Folder || column == HitColumn::Name;
}

class SortedHits : public testing::TestWithParam<HitColumn> {
 protected:
  void expectSorted(const HitTable& table) {
    const HitColumn column = GetParam();
    const std::int64_t count = table.rowCount();
    for (const bool descending : {false, true}) {
      const HitOrder order{column, descending};
      if (!isText(column)) {
        EXPECT_EQ(sorted(table, order, 0), plainlySorted(table, byValue(column), descending)) << descending;
        continue;
      }
      // Both sides of the limit.
      EXPECT_EQ(sorted(table, order, count), plainlySorted(table, byLocale(column), descending))
          << descending;
      EXPECT_EQ(sorted(table, order, count - 1), plainlySorted(table, byLowerCase(column), descending))
          << descending;
    }
  }
};

TEST_P(SortedHits, AreInTheOrderOfAPlainStableSort) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    // Every entry is a hit; with one, two or three of the words more.
    test::TestScan scan(u"live 1 2  "_qs, 1);
    test::fill(scan, test::mixedListing(6000, seed));
    ASSERT_EQ(scan.table.rowCount(), 6000);
    expectSorted(scan.table);
  }
}

TEST_P(SortedHits, OfSeveralListingsAndFewOfManyEntries) {
  test::TestScan scan(u"live 7"_qs, 60);
  for (const unsigned seed : {11U, 12U}) {
    test::fill(scan, test::mixedListing(20'000, seed));
    test::fill(scan, test::mixedListing(3000, seed), 1'000'000);
  }
  ASSERT_GT(scan.table.rowCount(), 3000);
  ASSERT_LT(scan.table.rowCount(), 20'000);
  expectSorted(scan.table);
}

TEST_P(SortedHits, MayBeNoneOrOne) {
  test::TestScan scan(u"song"_qs);
  EXPECT_EQ(sorted(scan.table, {GetParam(), false}, 0), std::vector<std::uint32_t>());
  test::fill(scan, test::entryLine("song"));
  EXPECT_EQ(sorted(scan.table, {GetParam(), true}, 0), std::vector<std::uint32_t>{0});
  EXPECT_EQ(sorted(scan.table, {GetParam(), true}, 1), std::vector<std::uint32_t>{0});
}

INSTANTIATE_TEST_SUITE_P(ByEachColumn, SortedHits,
                         testing::Values(HitColumn::Match, HitColumn::Volume, HitColumn::Folder,
                                         HitColumn::Name, HitColumn::Size, HitColumn::Date));

std::vector<QString> namesInOrder(const HitTable& table, const std::vector<std::uint32_t>& rows) {
  std::vector<QString> texts;
  for (const std::uint32_t row : rows) texts.push_back(table.row(row).name);
  return texts;
}

class SortedSongs : public testing::Test {
 protected:
  void addSong(const QByteArray& name, const QByteArray& size = "1") {
    test::fill(scan_, test::entryLine("song " + name, size));
  }
  std::vector<QString> namesBy(const HitOrder& order, std::int64_t mostInLocaleOrder) {
    return namesInOrder(scan_.table, sorted(scan_.table, order, mostInLocaleOrder));
  }

  test::TestScan scan_{u"song"_qs};
};

TEST_F(SortedSongs, DigitsInTextsCountAsNumbers) {
  for (const char* name : {"10", "9", "100"}) addSong(name);
  EXPECT_EQ(namesBy({HitColumn::Name}, 3),
            (std::vector<QString>{u"song 9"_qs, u"song 10"_qs, u"song 100"_qs}));
}

TEST_F(SortedSongs, BeyondTheLimitTheyAreCharacters) {
  for (const char* name : {"9", "10", "100"}) addSong(name);
  EXPECT_EQ(namesBy({HitColumn::Name}, 2),
            (std::vector<QString>{u"song 10"_qs, u"song 100"_qs, u"song 9"_qs}));
}

TEST_F(SortedSongs, LettersOfTheLanguageHaveTheirPlace) {
  for (const char* name : {"Zebra", "\xC3\x84hre", "ahorn", "Birke"}) addSong(name);
  EXPECT_EQ(namesBy({HitColumn::Name}, 4),
            (std::vector<QString>{u"song ahorn"_qs, u"song Ähre"_qs, u"song Birke"_qs, u"song Zebra"_qs}));
}

TEST_F(SortedSongs, SizesAreNumbersHoweverLarge) {
  addSong("small", "999");
  addSong("huge", "9999999999");
  addSong("large", "4294967296");
  EXPECT_EQ(namesBy({HitColumn::Size}, 0),
            (std::vector<QString>{u"song small"_qs, u"song large"_qs, u"song huge"_qs}));
  EXPECT_EQ(namesBy({HitColumn::Size, true}, 0),
            (std::vector<QString>{u"song huge"_qs, u"song large"_qs, u"song small"_qs}));
}

TEST_F(SortedSongs, EqualOnesStayInFoundOrderBothWays) {
  for (const char* name : {"one", "two", "three"}) addSong(name, "7");
  const std::vector<QString> found = {u"song one"_qs, u"song two"_qs, u"song three"_qs};
  EXPECT_EQ(namesBy({HitColumn::Size, false}, 0), found);
  EXPECT_EQ(namesBy({HitColumn::Size, true}, 0), found);
  EXPECT_EQ(namesBy({HitColumn::Match, true}, 0), found);
  EXPECT_EQ(namesBy({HitColumn::Volume, true}, 0), found);
}

TEST(TextOrderOfHits, IsTheLocalesUpToAHundredThousand) {
  EXPECT_EQ(textOrder(100'000), TextOrder::Locale);
  EXPECT_EQ(textOrder(100'001), TextOrder::LowerCase);
}

}  // namespace
}  // namespace quorvin
