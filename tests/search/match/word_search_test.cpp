// SPDX-License-Identifier: GPL-2.0-or-later

// The search of a table of texts, held against a plain search text by text.
#include "search/match/word_search.h"

#include "support/instruction_sets.h"
#include "support/qt_printing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace quorvin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::unique_ptr<TextTableBuilder> tableOf(const std::vector<std::string>& texts) {
  auto builder = std::make_unique<TextTableBuilder>();
  for (const std::string& text : texts) builder->add(text, true);
  return builder;
}

SearchQuery queryOf(const std::vector<std::string>& words) {
  QString text;
  for (const std::string& word : words)
    text += (text.isEmpty() ? u""_qs : u" "_qs) + QString::fromStdString(word);
  return {text, 50};
}

/// The words of `query` are seen in exactly the texts from `first` to `last` - 1 that hold them.
void expectRightWords(WordSearch& search, SeenWords& seen, const SearchQuery& query, const TextTable& table,
                      const std::vector<std::string>& texts, std::uint32_t first, std::uint32_t last) {
  search.find(table, first, last, seen);
  bool any = false;
  for (std::uint32_t text = first; text < last; ++text) {
    bool anyHere = false;
    for (std::size_t word = 0; word < query.words().size(); ++word) {
      const bool there = texts[text].find(query.words()[word].bytes) != std::string::npos;
      ASSERT_EQ(seen.in(text).has(word), there)
          << "word \"" << query.words()[word].bytes << "\", text " << text << " \"" << texts[text]
          << "\", range " << first << " to " << last;
      anyHere |= there;
    }
    const std::uint32_t i = text - first;
    ASSERT_EQ((seen.touched()[i / 64] >> (i % 64) & 1U) != 0, anyHere) << "text " << text;
    any |= anyHere;
  }
  ASSERT_EQ(seen.none(), !any);
}

void expectRightWords(const std::vector<std::string>& words, const std::vector<std::string>& texts) {
  const auto builder = tableOf(texts);
  const SearchQuery query = queryOf(words);
  WordSearch search(query);
  SeenWords seen(false);
  const auto count = static_cast<std::uint32_t>(texts.size());
  expectRightWords(search, seen, query, builder->table(), texts, 0, count);
  builder->completeTrigrams();
  expectRightWords(search, seen, query, builder->table(), texts, 0, count);
}

class Words : public test::InstructionSetTest {};

TEST_P(Words, AreFoundWhereverTheyStandInTheText) {
  for (const std::size_t length : {1U, 2U, 3U, 15U, 16U, 17U, 63U, 64U, 65U, 80U}) {
    const std::string word = std::string(length - 1, 'w') + "q";
    std::vector<std::string> texts;
    // The texts before push the word across the ends of 64 bytes, one byte at a time.
    for (std::size_t before = 0; before <= 130; ++before) {
      texts.push_back(std::string(before % 67, 'x'));
      texts.push_back(std::string(before, '.') + word);
      texts.push_back(word + std::string(before % 5, '.'));
      texts.push_back(word.substr(1));
      texts.push_back(word.substr(0, length - 1));
    }
    expectRightWords({word}, texts);
    ASSERT_FALSE(HasFatalFailure()) << "length " << length;
  }
}

TEST_P(Words, NeverMatchAcrossTwoTexts) {
  expectRightWords({"ab", "b", "a"}, {"a", "b", "xa", "bx", "", "ab", "a", "", "b"});
}

TEST_P(Words, SeveralMatchesInOneTextAndTheNextTextsAreTold) {
  std::vector<std::string> texts;
  for (int i = 0; i < 40; ++i) {
    texts.push_back(std::string(static_cast<std::size_t>(i * 7), 'a'));
    texts.emplace_back("no");
    texts.emplace_back("aba aba");
  }
  expectRightWords({"a", "aba", "aa", "no"}, texts);
}

TEST_P(Words, SharedBeginningsAndEndsAreToldApart) {
  expectRightWords({"live", "liver", "alive", "ive"},
                   {"live", "liver", "alive", "five", "liv", "iver", "deliver", "li ve"});
}

TEST_P(Words, RangesMayBeginAndEndAnywhere) {
  std::mt19937 random(31);
  std::vector<std::string> texts;
  for (int i = 0; i < 2600; ++i) {
    std::string text(random() % 9, '\0');
    for (char& c : text) c = "abc"[random() % 3];
    texts.push_back(text);
  }
  const auto builder = tableOf(texts);
  const SearchQuery query = queryOf({"ab", "c", "abca"});
  WordSearch search(query);
  SeenWords seen(false);
  for (int round = 0; round < 400; ++round) {
    if (round == 200) builder->completeTrigrams();
    const auto first = static_cast<std::uint32_t>(random() % 2600);
    const auto last = first + static_cast<std::uint32_t>(random() % (2601 - first));
    expectRightWords(search, seen, query, builder->table(), texts, first, last);
    ASSERT_FALSE(HasFatalFailure()) << "round " << round;
  }
}

TEST_P(Words, OneWordIsToldByABitForEachTextOfAnyRange) {
  std::mt19937 random(32);
  std::vector<std::string> texts;
  for (int i = 0; i < 2600; ++i) texts.push_back(random() % 3 == 0 ? "live at" : "alone");
  const auto builder = tableOf(texts);
  builder->completeTrigrams();
  const SearchQuery query = queryOf({"live"});
  WordSearch search(query);
  SeenWords seen(true);
  for (int round = 0; round < 400; ++round) {
    const auto first = static_cast<std::uint32_t>(random() % 2600);
    const auto last = first + static_cast<std::uint32_t>(random() % (2601 - first));
    search.find(builder->table(), first, last, seen);
    std::vector<std::uint64_t> expected((last - first + 63) / 64);
    for (std::uint32_t text = first; text < last; ++text) {
      const std::uint32_t i = text - first;
      if (texts[text] == "live at") expected[i / 64] |= std::uint64_t{1} << (i % 64);
    }
    ASSERT_EQ(seen.touched(), expected) << "range " << first << " to " << last;
  }
}

TEST_P(Words, GeneratedTablesAgreeWithAPlainSearch) {
  std::mt19937 random(37);
  for (int round = 0; round < 300; ++round) {
    std::vector<std::string> texts(random() % 200);
    for (std::string& text : texts) {
      text.resize(random() % (round % 3 == 0 ? 150 : 12));
      for (char& c : text) c = "ab."[random() % 3];
    }
    std::vector<std::string> words(1 + random() % 4);
    for (std::string& word : words) {
      word.resize(1 + random() % 6);
      for (char& c : word) c = "ab."[random() % 3];
    }
    expectRightWords(words, texts);
    ASSERT_FALSE(HasFatalFailure()) << "round " << round;
  }
}

TEST_P(Words, WordOnOnePageOnlyIsFoundThere) {
  for (const std::size_t place : {0U, 1023U, 1024U, 2047U, 2048U, 4999U}) {
    std::vector<std::string> texts(5000, "common name");
    texts[place] = "a needle";
    expectRightWords({"needle", "needles", "name"}, texts);
    ASSERT_FALSE(HasFatalFailure()) << "text " << place;
  }
}

TEST_P(Words, AHundredAndOneWordsAreToldApart) {
  std::vector<std::string> words;
  std::vector<std::string> texts;
  for (int i = 100; i <= 200; ++i) words.push_back(std::to_string(i));
  for (int i = 0; i < 300; ++i) texts.push_back(std::to_string(i) + " " + std::to_string(i + 50));
  expectRightWords(words, texts);
}

std::vector<std::size_t> wordsIn(const WordSet& set) {
  std::vector<std::size_t> words;
  for (std::size_t word = 0; word < static_cast<std::size_t>(kMostWords); ++word) {
    if (set.has(word)) words.push_back(word);
  }
  return words;
}

TEST_P(Words, PagesThatLackTooManyWordsAreLeftOut) {
  // Three pages: with both words, with one, with one and a text that only looks like the other by its
  // trigrams.
  std::vector<std::string> texts(3 * kTextsPerPage, "nothing");
  texts[5] = "walrus";
  texts[900] = "pelican";
  texts[kTextsPerPage + 3] = "walrus";
  texts[2 * kTextsPerPage + 3] = "pelican";
  texts[2 * kTextsPerPage + 7] = "walr alru lrus";
  const auto builder = tableOf(texts);
  builder->completeTrigrams();
  const SearchQuery query = queryOf({"walrus", "pelican"});
  WordSearch search(query);
  const auto seenTexts = [&](const WordSet& elsewhere, int mostMissing) {
    SeenWords seen(false);
    search.find(builder->table(), 0, builder->count(), seen, elsewhere, mostMissing);
    std::vector<std::uint32_t> found;
    for (std::uint32_t text = 0; text < builder->count(); ++text) {
      if (!seen.in(text).empty()) found.push_back(text);
    }
    return found;
  };
  EXPECT_THAT(seenTexts({}, 1), ElementsAre(5, 900, kTextsPerPage + 3, 2 * kTextsPerPage + 3));
  EXPECT_THAT(seenTexts({}, 0), ElementsAre(5, 900));
  WordSet pelican;
  pelican.add(1);
  EXPECT_THAT(seenTexts(pelican, 0), ElementsAre(5, 900, kTextsPerPage + 3));
}

INSTANTIATE_TEST_SUITE_P(On, Words, test::everyInstructionSet(), test::instructionSetName);

TEST(SeenWords, ForgetEverythingWhenReset) {
  SeenWords seen(false);
  seen.reset(0, 100);
  seen.see(0, 0);
  seen.see(99, 100);
  seen.reset(50, 60);
  EXPECT_TRUE(seen.none());
  for (std::uint32_t text = 50; text < 110; ++text) EXPECT_THAT(wordsIn(seen.in(text)), IsEmpty());
  seen.see(109, 64);
  EXPECT_THAT(wordsIn(seen.in(109)), ElementsAre(64));
}

TEST(SeenWords, TellAllThatWereSeen) {
  SeenWords seen(false);
  seen.reset(10, 100);
  EXPECT_THAT(wordsIn(seen.all()), IsEmpty());
  seen.see(10, 3);
  seen.see(109, 64);
  EXPECT_THAT(wordsIn(seen.all()), ElementsAre(3, 64));
}

TEST(WordSet, JoinsTwoSets) {
  WordSet one;
  one.add(0);
  one.add(63);
  WordSet other;
  other.add(63);
  other.add(64);
  other.add(100);
  EXPECT_THAT(wordsIn(one | other), ElementsAre(0, 63, 64, 100));
}

/// What is searched may change after it was checked.
TEST(WordSearch, TextsThatBecameOthersDoNotLeadOutOfBounds) {
  std::vector<std::string> texts;
  for (int i = 0; i < 3000; ++i) texts.push_back("song of the long evening " + std::to_string(i));
  const auto builder = tableOf(texts);
  std::string changed(textOf(builder->table().folded.all()));
  changed.append(kScanPadding, '\0');
  const std::size_t size = changed.size() - kScanPadding;
  for (const InstructionSet set : test::instructionSets()) {
    const test::OnlyInstructionSet only(set);
    for (const std::string& filling : {std::string(1, kTextEnd), "s" + std::string(1, kTextEnd),
                                       std::string("s"), std::string("song"), std::string(1, '\0')}) {
      for (std::size_t i = 0; i < size; ++i) changed[i] = filling[i % filling.size()];
      TextTable table = builder->table();
      table.folded = std::string_view(changed).substr(0, size);
      const SearchQuery query = queryOf({"s", "song", "evening"});
      WordSearch search(query);
      SeenWords seen(false);
      for (int times = 0; times < 2; ++times) {
        for (std::uint32_t first = 0; first < 3000; first += 1500) {
          search.find(table, first, first + 1500, seen);
          EXPECT_EQ(seen.touched().size(), 24U);
        }
      }
    }
  }
}

}  // namespace
}  // namespace quorvin
