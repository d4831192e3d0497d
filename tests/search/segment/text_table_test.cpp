// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/text_table.h"

#include "search/format/line_scan.h"
#include "search/segment/folded_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace quorvin {
namespace {

struct Pair {
  std::string listed;
  std::string folded;
};

bool isAsciiText(const std::string& text) {
  for (const char c : text) {
    if ((static_cast<unsigned char>(c) & 0x80U) != 0) return false;
  }
  return true;
}

void add(TextTableBuilder& builder, const std::string& text) {
  builder.add(text, isAsciiText(text));
}

void expectTexts(const TextTable& table, const std::vector<Pair>& texts) {
  ASSERT_EQ(table.count, texts.size());
  for (std::uint32_t i = 0; i < table.count; ++i) {
    ASSERT_EQ(test::foldedText(table, i), texts[i].folded) << "text " << i;
    ASSERT_EQ(table.listedText(i), texts[i].listed) << "text " << i;
  }
}

std::string lowered(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

const std::vector<Pair>& hardTexts() {
  static const std::vector<Pair> texts = {
      {"", ""},
      {"Song.MP3", "song.mp3"},
      {"plain", "plain"},
      {"ALL CAPITALS, LONGER THAN A SINGLE WORD OF SIXTY-FOUR BITS CAN EVER TELL",
       "all capitals, longer than a single word of sixty-four bits can ever tell"},
      // A with diaeresis; then lower case of the same length in bytes, shorter, longer, and none at all.
      {"\xC3\x84rger", "\xC3\xA4rger"},
      {"\xC3\xA4rger", "\xC3\xA4rger"},
      {"300 \xE2\x84\xAA", "300 k"},
      {"\xC8\xBA", "\xE2\xB1\xA5"},
      {"\xC4\xB0stanbul", "istanbul"},
      {"\xF0\x90\x90\x80", "\xF0\x90\x90\xA8"},
      {"\xE2\x82\xAC", "\xE2\x82\xAC"},
      {"\xC3\x84 and ASCII Capitals", "\xC3\xA4 and ascii capitals"},
      // A byte order mark is a character like any other here.
      {"\xEF\xBB\xBFname", "\xEF\xBB\xBFname"},
      {"\xEF\xBB\xBFName", "\xEF\xBB\xBFname"},
      {"@AZ[`az{", "@az[`az{"},
      {std::string("a\0B", 3), std::string("a\0b", 3)}};
  return texts;
}

TEST(TextTable, TextsComeBackFoldedAndAsListed) {
  TextTableBuilder builder;
  for (const Pair& text : hardTexts()) add(builder, text.listed);
  expectTexts(builder.table(), hardTexts());
}

TEST(TextTable, ManyTextsComeBackAcrossMarksAndPages) {
  std::mt19937 random(17);
  for (const std::size_t count : {31U, 32U, 33U, 63U, 64U, 65U, 1023U, 1024U, 1025U, 5000U}) {
    TextTableBuilder builder;
    std::vector<Pair> texts;
    while (texts.size() < count) {
      const Pair& text = hardTexts()[random() % hardTexts().size()];
      texts.push_back(text);
      add(builder, text.listed);
    }
    expectTexts(builder.table(), texts);
    ASSERT_FALSE(HasFatalFailure()) << count << " texts";
    builder.completeTrigrams();
    expectTexts(builder.table(), texts);
    ASSERT_EQ(builder.table().marks.size(), (count + 31) / 32);
    ASSERT_EQ(builder.table().trigrams.size(), (count + 1023) / 1024 * 256);
  }
}

TEST(ListedWalk, GivesWhatListedTextGivesInAnyOrder) {
  std::mt19937 random(19);
  TextTableBuilder builder;
  std::vector<Pair> texts;
  while (texts.size() < 3000) {
    texts.push_back(hardTexts()[random() % hardTexts().size()]);
    add(builder, texts.back().listed);
  }
  const TextTable table = builder.table();
  ListedWalk walk;
  for (const std::uint32_t farthest : {1U, 2U, 5U, 40U, 1000U}) {
    walk.start(table);
    for (std::uint32_t at = 0; at < table.count; at += 1 + static_cast<std::uint32_t>(random() % farthest)) {
      ASSERT_EQ(walk.at(at).listed, texts[at].listed) << "text " << at;
      ASSERT_EQ(walk.at(at).folded, texts[at].folded) << "text " << at;
    }
  }
  for (int i = 0; i < 3000; ++i) {
    const auto at = static_cast<std::uint32_t>(random() % table.count);
    ASSERT_EQ(walk.at(at).listed, texts[at].listed) << "text " << at;
  }
}

TEST(ListedWalk, GoesFromTableToTable) {
  TextTableBuilder first;
  TextTableBuilder second;
  for (const char* text : {"A", "\xC3\x84rger", "C"}) add(first, text);
  for (const char* text : {"Other", "\xC3\x96l"}) add(second, text);
  ListedWalk walk;
  const TextTable one = first.table();
  const TextTable two = second.table();
  walk.start(one);
  EXPECT_EQ(walk.at(1).listed, "\xC3\x84rger");
  walk.start(two);
  EXPECT_EQ(walk.at(1).listed, "\xC3\x96l");
  EXPECT_EQ(walk.at(0).listed, "Other");
  walk.start(one);
  EXPECT_EQ(walk.at(2).listed, "C");
}

TEST(TextTable, EveryTextEndsWithTheEndByteAndPaddingFollows) {
  TextTableBuilder builder;
  for (const char* text : {"A", "", "bc"}) add(builder, text);
  const std::string_view folded = textOf(builder.table().folded.all());
  EXPECT_EQ(folded,
            "a\xFF\xFF"
            "bc\xFF");
  // The scan reads as far as this; a sanitizer notices if it cannot.
  for (std::size_t i = 0; i < kScanPadding; ++i) {
    const volatile char readable = folded.data()[folded.size() + i];
    static_cast<void>(readable);
  }
}

TEST(TextTable, EmptyTableHasNothing) {
  TextTableBuilder builder;
  builder.completeTrigrams();
  EXPECT_EQ(builder.table().count, 0U);
  EXPECT_TRUE(builder.table().folded.empty());
  EXPECT_TRUE(builder.table().trigrams.empty());
}

TEST(TextTable, TrigramsOfAPageHoldAllWordsOfItsTexts) {
  TextTableBuilder builder;
  for (int i = 0; i < 3000; ++i) add(builder, "Name" + std::to_string(i * 7919));
  builder.completeTrigrams();
  const TextTable table = builder.table();
  for (std::uint32_t i = 0; i < table.count; ++i) {
    ASSERT_TRUE(TrigramProbe(test::foldedText(table, i)).mayBeIn(table.trigramRows(), i / kTextsPerPage))
        << "text " << i;
  }
  EXPECT_FALSE(TrigramProbe("zebra").mayBeIn(table.trigramRows(), 1));
}

TEST(TextTable, ColumnsGiveWhatAddGives) {
  std::mt19937 random(23);
  for (const bool trimmed : {false, true}) {
    TextTableBuilder columns;
    std::vector<Pair> texts;
    for (std::size_t length = 0; length <= 69; ++length) {
      for (int round = 0; round < 40; ++round) {
        std::string line(kFoldWidth, '\0');
        // Lines of many blanks, of many letters, of capitals alone and of blanks alone.
        for (char& c : line) c = "   aBZ"[(random() % 6 + static_cast<unsigned>(round / 8)) % 6];
        if (round == 0) line.assign(kFoldWidth, 'Q');
        if (round == 1) line.assign(kFoldWidth, ' ');
        if (round == 2) line.replace(0, length, std::string(length, ' '));
        columns.addColumns(line.data(), length, trimmed);
        std::string text = line.substr(0, length);
        if (trimmed) text.resize(text.find_last_not_of(' ') + 1);
        texts.push_back({text, lowered(text)});
      }
    }
    expectTexts(columns.table(), texts);
    TextTableBuilder whole;
    for (const Pair& text : texts) whole.add(text.listed, true);
    EXPECT_EQ(textOf(columns.table().folded.all()), textOf(whole.table().folded.all()));
    EXPECT_TRUE(std::ranges::equal(columns.table().upperBits.all(), whole.table().upperBits.all()));
    EXPECT_TRUE(std::ranges::equal(columns.table().hasUpper.all(), whole.table().hasUpper.all()));
  }
}

TEST(TextTable, ColumnsAndWholeTextsMayBeMixed) {
  TextTableBuilder builder;
  std::vector<Pair> texts;
  const std::string line = "Some Name" + std::string(kFoldWidth, ' ');
  for (int i = 0; i < 200; ++i) {
    const Pair& text = hardTexts()[static_cast<std::size_t>(i) % hardTexts().size()];
    add(builder, text.listed);
    builder.addColumns(line.data(), 69, true);
    texts.push_back(text);
    texts.push_back({"Some Name", "some name"});
  }
  expectTexts(builder.table(), texts);
}

TEST(TextTable, ClearedBuilderStartsAfresh) {
  TextTableBuilder builder;
  for (int i = 0; i < 100; ++i) add(builder, "OLD \xC3\x84 " + std::to_string(i));
  builder.completeTrigrams();
  builder.clear();
  EXPECT_EQ(builder.count(), 0U);
  EXPECT_TRUE(builder.table().trigrams.empty());
  std::vector<Pair> texts;
  for (int i = 0; i < 100; ++i) {
    texts.push_back({"New " + std::to_string(i), "new " + std::to_string(i)});
    add(builder, texts.back().listed);
  }
  expectTexts(builder.table(), texts);
}

TEST(TextTable, TableIsRightAfterEachText) {
  TextTableBuilder builder;
  std::vector<Pair> texts;
  for (int i = 0; i < 150; ++i) {
    texts.push_back(hardTexts()[static_cast<std::size_t>(i) % hardTexts().size()]);
    add(builder, texts.back().listed);
    expectTexts(builder.table(), texts);
    ASSERT_FALSE(HasFatalFailure()) << "after " << i + 1 << " texts";
  }
}

TEST(TextTable, LongTextsFit) {
  TextTableBuilder builder;
  const std::string longText(300000, 'X');
  builder.add(longText, true);
  builder.add("after", true);
  expectTexts(builder.table(), {{longText, std::string(300000, 'x')}, {"after", "after"}});
  EXPECT_GT(builder.memorySize(), 300000U);
}

TEST(TextTable, MemoryGrowsWithTheTextsThatOnlyTheirCapitalsTellApart) {
  TextTableBuilder builder;
  builder.add("plain", true);
  const std::size_t before = builder.memorySize();
  for (int i = 0; i < 10'000; ++i) builder.add("\xC3\x84", false);
  // At least the text itself, its capitals, and where they are.
  EXPECT_GT(builder.memorySize(), before + 10'000 * (3 + 2 + sizeof(TextTable::Exception)));
}

}  // namespace
}  // namespace quorvin
