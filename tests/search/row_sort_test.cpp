// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/row_sort.h"

#include "search/short_slices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>

namespace quorvin {
namespace {

std::vector<std::uint32_t> sorted(RowSort sort) {
  const SliceEnd isOver = test::everyOtherTime();
  while (!sort.goOn(isOver)) {
  }
  std::vector<std::uint32_t> rows;
  for (const KeyedRow& row : sort.rows()) rows.push_back(row.row);
  return rows;
}

std::vector<std::uint32_t> sortedNumbers(const std::vector<std::uint64_t>& keys) {
  std::vector<KeyedRow> rows;
  for (std::uint32_t row = 0; row < keys.size(); ++row) rows.emplace_back(keys[row], row);
  return sorted(RowSort(std::move(rows)));
}

template <typename Value, typename IsBefore>
std::vector<std::uint32_t> plainlySorted(const std::vector<Value>& values, const IsBefore& isBefore) {
  std::vector<std::uint32_t> rows(values.size());
  for (std::uint32_t row = 0; row < rows.size(); ++row) rows[row] = row;
  std::ranges::stable_sort(
      rows, [&](std::uint32_t one, std::uint32_t other) { return isBefore(values[one], values[other]); });
  return rows;
}

std::uint64_t keyOf(const std::string& text, std::size_t from) {
  std::uint64_t key = 0;
  for (std::size_t i = from; i < from + 8; ++i) {
    key = key << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  }
  return key;
}

std::vector<std::uint32_t> sortedTexts(const std::vector<std::string>& texts, bool descending) {
  const auto keyAt = [&](std::uint32_t row, std::size_t from) {
    const std::uint64_t key = keyOf(texts[row], from);
    return descending ? ~key : key;
  };
  std::vector<KeyedRow> rows;
  for (std::uint32_t row = 0; row < texts.size(); ++row) rows.emplace_back(keyAt(row, 0), row);
  const auto nextKeys = [&](std::span<KeyedRow> some, std::size_t before) {
    for (KeyedRow& row : some) row.setKey(keyAt(row.row, before));
  };
  return sorted(RowSort(std::move(rows), nextKeys, descending));
}

void expectTextsAreSorted(const std::vector<std::string>& texts) {
  EXPECT_EQ(sortedTexts(texts, false), plainlySorted(texts, std::less<>()));
  EXPECT_EQ(sortedTexts(texts, true), plainlySorted(texts, std::greater<>()));
}

TEST(RowSort, SortsNoRowAndOneRow) {
  EXPECT_TRUE(sortedNumbers({}).empty());
  EXPECT_EQ(sortedNumbers({7}), std::vector<std::uint32_t>{0});
}

TEST(RowSort, KeepsRowsOfEqualKeysInTheirOrder) {
  EXPECT_EQ(sortedNumbers({5, 3, 5, 3, 1}), (std::vector<std::uint32_t>{4, 1, 3, 0, 2}));
}

TEST(RowSort, AgreesWithAPlainSortOfManyNumbers) {
  std::mt19937_64 random(1);
  // Few values, many, in the low bits, in the high bits, all.
  for (const std::uint64_t mask :
       {0x3ULL, 0xFFFFULL, 0x7F00000000000000ULL, 0xFF00000000000FFFULL, ~0ULL, 0ULL}) {
    std::vector<std::uint64_t> keys(60'000);
    for (std::uint64_t& key : keys) key = random() & mask;
    EXPECT_EQ(sortedNumbers(keys), plainlySorted(keys, std::less<>())) << mask;
  }
}

TEST(RowSort, AgreesWithAPlainSortOfManyTexts) {
  std::mt19937 random(2);
  std::vector<std::string> texts;
  for (int i = 0; i < 40'000; ++i) {
    std::string text = i % 3 == 0 ? "a very long beginning that many have" : "";
    for (auto length = random() % 12; length > 0; --length) text += static_cast<char>('a' + random() % 3);
    texts.push_back(text);
  }
  expectTextsAreSorted(texts);
}

TEST(RowSort, AgreesOnManyEqualTexts) {
  std::vector<std::string> texts(10'000, "changelog.Debian.gz");
  for (std::size_t i = 0; i < texts.size(); i += 3) texts[i] = "changelog.Debian.g";
  for (std::size_t i = 0; i < texts.size(); i += 7) texts[i] = "copyrigh";
  texts[5000] = "";
  expectTextsAreSorted(texts);
}

TEST(RowSort, KnowsTheEndOfAText) {
  EXPECT_TRUE(isTextOver(keyOf("seven b", 0)));
  EXPECT_FALSE(isTextOver(keyOf("eight by", 0)));
  EXPECT_TRUE(isTextOver(keyOf("eight by", 8)));
}

}  // namespace
}  // namespace quorvin
