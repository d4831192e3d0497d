// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/trigram_rows.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace quorvin {
namespace {

std::vector<std::uint64_t> rowsOf(const std::vector<std::string>& pages) {
  TrigramRowsBuilder builder(pages.size());
  for (const std::string& page : pages) builder.addPage(page);
  return builder.finish();
}

std::string randomText(std::mt19937& random, std::size_t longest) {
  std::string text(random() % longest, '\0');
  for (char& c : text) c = static_cast<char>(random() % 256);
  return text;
}

/// Row by row and trigram by trigram, as the format says it.
std::vector<std::uint64_t> plainRowsOf(const std::vector<std::string>& pages) {
  std::vector<std::uint64_t> bits(16384 * pages.size() / 64);
  for (std::size_t page = 0; page < pages.size(); ++page) {
    const std::string& text = pages[page];
    for (std::size_t at = 0; at + 3 <= text.size(); ++at) {
      std::uint32_t trigram = 0;
      for (std::size_t i = 3; i-- > 0;) trigram = trigram << 8 | static_cast<unsigned char>(text[at + i]);
      const std::size_t bit = std::size_t{(trigram * 0x9E3779B1U) >> 18} * pages.size() + page;
      bits[bit / 64] |= std::uint64_t{1} << (bit % 64);
    }
  }
  return bits;
}

TEST(TrigramRows, WordThatIsThereIsNeverDenied) {
  std::mt19937 random(12);
  std::vector<std::string> pages;
  for (int i = 0; i < 150; ++i) pages.push_back(randomText(random, 400));
  const auto bits = rowsOf(pages);
  const TrigramRows rows(bits, pages.size());
  for (std::size_t page = 0; page < pages.size(); ++page) {
    for (std::size_t at = 0; at < pages[page].size(); ++at) {
      const std::size_t length = 1 + random() % 90;
      const TrigramProbe probe(std::string_view(pages[page]).substr(at, length));
      ASSERT_TRUE(probe.mayBeIn(rows, page)) << length << " bytes at " << at << " of page " << page;
    }
  }
}

// Kept files hold the rows, so each bit is part of their format.
TEST(TrigramRows, EachBitIsThatOfTheFormat) {
  std::mt19937 random(13);
  for (const std::size_t count : {0U, 1U, 2U, 63U, 64U, 65U, 127U, 128U, 130U, 200U}) {
    std::vector<std::string> pages;
    for (std::size_t i = 0; i < count; ++i) pages.push_back(randomText(random, 300));
    ASSERT_EQ(rowsOf(pages), plainRowsOf(pages)) << count << " pages";
  }
}

TEST(TrigramRows, TextsOfEveryLengthAddAllTheirTrigrams) {
  std::mt19937 random(14);
  for (std::size_t size = 0; size < 100; ++size) {
    std::string text(size, '\0');
    for (char& c : text) c = static_cast<char>(random() % 256);
    ASSERT_EQ(rowsOf({"kept", text}), plainRowsOf({"kept", text})) << size;
  }
}

TEST(TrigramRows, APageThatIsFullHasEachBitOfItsColumnAndNoOther) {
  std::string all;
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      all += static_cast<char>(first);
      all += static_cast<char>(second);
      all += "e";
    }
  }
  std::vector<std::string> pages(70);
  pages[65] = all;
  const auto bits = rowsOf(pages);
  const TrigramRows rows(bits, pages.size());
  for (std::size_t row = 0; row < TrigramRows::kCount; ++row) {
    ASSERT_TRUE(rows.has(row, 65)) << row;
    ASSERT_FALSE(rows.has(row, 64) || rows.has(row, 66)) << row;
  }
}

TEST(TrigramRows, WordsOfEveryTextOfAPageArePossible) {
  const auto bits = rowsOf({"other", "live at wembley\xFFstudio", "more"});
  const TrigramRows rows(bits, 3);
  EXPECT_TRUE(TrigramProbe("wembley").mayBeIn(rows, 1));
  EXPECT_TRUE(TrigramProbe("studio").mayBeIn(rows, 1));
  EXPECT_FALSE(TrigramProbe("wembley").mayBeIn(rows, 0));
  EXPECT_FALSE(TrigramProbe("wembley").mayBeIn(rows, 2));
}

TEST(TrigramRows, WordThatIsNotThereIsMostlyDenied) {
  const auto bits = rowsOf({"the quick brown fox jumps over the lazy dog"});
  const TrigramRows rows(bits, 1);
  int denied = 0;
  std::mt19937 random(2);
  for (int round = 0; round < 1000; ++round) {
    std::string word(5, '\0');
    for (char& c : word) c = static_cast<char>('0' + random() % 10);
    if (!TrigramProbe(word).mayBeIn(rows, 0)) ++denied;
  }
  EXPECT_GT(denied, 990);
}

TEST(TrigramRows, EveryByteOfATrigramCounts) {
  const auto bits = rowsOf({"abc"});
  const TrigramRows rows(bits, 1);
  EXPECT_TRUE(TrigramProbe("abc").mayBeIn(rows, 0));
  EXPECT_FALSE(TrigramProbe("xbc").mayBeIn(rows, 0));
  EXPECT_FALSE(TrigramProbe("axc").mayBeIn(rows, 0));
  EXPECT_FALSE(TrigramProbe("abx").mayBeIn(rows, 0));
}

TEST(TrigramRows, WordsOfOneOrTwoBytesAreAlwaysPossible) {
  const auto bits = rowsOf({""});
  const TrigramRows rows(bits, 1);
  EXPECT_TRUE(TrigramProbe("a").mayBeIn(rows, 0));
  EXPECT_TRUE(TrigramProbe("ab").mayBeIn(rows, 0));
  EXPECT_FALSE(TrigramProbe("abc").mayBeIn(rows, 0));
}

TEST(TrigramRows, WhereNobodyHasMadeThemEveryWordIsPossible) {
  EXPECT_TRUE(TrigramProbe("abc").mayBeIn(TrigramRows(), 0));
  EXPECT_TRUE(TrigramProbe("abc").mayBeIn(TrigramRows({}, 7), 6));
}

TEST(TrigramRows, AnotherNumberOfPagesIsDamage) {
  const auto bits = rowsOf({"a page", "and another"});
  EXPECT_THROW(TrigramRows(bits, 1), DamagedSegment);
  EXPECT_THROW(TrigramRows(bits, 3), DamagedSegment);
}

}  // namespace
}  // namespace quorvin
