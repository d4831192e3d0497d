// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/match/segment_search.h"

#include "search/segment/segment.h"
#include "support/instruction_sets.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace quorvin {

bool operator==(const FoundEntry& a, const FoundEntry& b) {
  return a.entry == b.entry && a.match == b.match;
}

void PrintTo(const FoundEntry& hit, std::ostream* out) {
  *out << hit.entry << " (" << hit.match << "%)";
}

namespace {

using Hits = std::vector<FoundEntry>;

struct Block {
  std::string folder;
  std::vector<std::string> names;
};

class SegmentOfBlocks {
 public:
  explicit SegmentOfBlocks(const std::vector<Block>& blocks) {
    for (const Block& block : blocks) {
      segment_.beginBlock("volume", block.folder, true);
      for (const std::string& name : block.names) segment_.addEntry(name, true);
    }
    segment_.publish();
  }

  void complete() { segment_.complete(); }
  const Segment& segment() const { return segment_; }

  Hits search(const QString& words, std::int16_t desired) const {
    return search(words, desired, 0, segment_.entryCount());
  }

  Hits search(const QString& words, std::int16_t desired, std::uint32_t first, std::uint32_t last) const {
    const SearchQuery query(words, desired);
    Hits hits;
    SegmentSearch(query).search(segment_, first, last, hits);
    EXPECT_EQ(SegmentSearch(query).count(segment_, first, last), static_cast<std::int64_t>(hits.size()));
    EXPECT_EQ(marked(query, first, last), entriesOf(hits));
    return hits;
  }

 private:
  std::vector<std::uint32_t> marked(const SearchQuery& query, std::uint32_t first, std::uint32_t last) const {
    SegmentSearch search(query);
    const std::span<const std::uint64_t> bits = search.mark(segment_, first, last);
    std::vector<std::uint32_t> entries;
    for (std::size_t i = 0; i < bits.size() * 64; ++i) {
      if ((bits[i / 64] >> (i % 64) & 1U) != 0) entries.push_back(first + static_cast<std::uint32_t>(i));
    }
    return entries;
  }
  static std::vector<std::uint32_t> entriesOf(const Hits& hits) {
    std::vector<std::uint32_t> entries;
    for (const FoundEntry& hit : hits) entries.push_back(hit.entry);
    return entries;
  }

  GrowingSegment segment_;
};

const SegmentOfBlocks& music() {
  static const SegmentOfBlocks segment({{"\\Music\\Rock\\", {"Live at Wembley.mp3", "Studio.mp3"}},
                                        {"\\Music\\Live\\", {"Rock.mp3", "Jazz.mp3", "Folk.mp3"}},
                                        {"\\Text\\", {"readme.txt"}}});
  return segment;
}

TEST(SegmentSearch, FolderAloneDecidesForAllOfItsEntries) {
  EXPECT_EQ(music().search(u"music"_qs, 50), (Hits{{0, 100}, {1, 100}, {2, 100}, {3, 100}, {4, 100}}));
  EXPECT_EQ(music().search(u"text"_qs, 50), (Hits{{5, 100}}));
}

TEST(SegmentSearch, WordsOfFolderAndEntryCountTogether) {
  EXPECT_EQ(music().search(u"rock live"_qs, 50), (Hits{{0, 100}, {2, 100}}));
  EXPECT_EQ(music().search(u"rock live"_qs, 49), (Hits{{0, 100}, {1, 50}, {2, 100}, {3, 50}, {4, 50}}));
}

TEST(SegmentSearch, WordInFolderAndEntryCountsOnce) {
  EXPECT_EQ(music().search(u"rock 7 8 9"_qs, 20), (Hits{{0, 25}, {1, 25}, {2, 25}}));
}

TEST(SegmentSearch, RepeatedWordsCountAsOftenAsTheyAreAsked) {
  EXPECT_EQ(music().search(u"jazz jazz q"_qs, 50), (Hits{{3, 67}}));
  EXPECT_EQ(music().search(u"jazz q q"_qs, 30), (Hits{{3, 33}}));
  EXPECT_EQ(music().search(u"text text jazz"_qs, 50), (Hits{{5, 67}}));
}

TEST(SegmentSearch, EmptyWordsAreFoundEverywhere) {
  EXPECT_EQ(music().search(u"jazz "_qs, 49), (Hits{{0, 50}, {1, 50}, {2, 50}, {3, 100}, {4, 50}, {5, 50}}));
  EXPECT_EQ(music().search(u"jazz "_qs, 50), (Hits{{3, 100}}));
  EXPECT_EQ(music().search(u""_qs, 50).size(), 6U);
  EXPECT_EQ(music().search(u"text  q"_qs, 50), (Hits{{5, 67}}));
}

TEST(SegmentSearch, DesiredMatchOf100GivesNothing) {
  EXPECT_EQ(music().search(u"music"_qs, 100), Hits{});
  EXPECT_EQ(music().search(u""_qs, 100), Hits{});
}

TEST(SegmentSearch, OnlyTheAskedRangeIsSearched) {
  for (std::uint32_t first = 0; first <= 6; ++first) {
    for (std::uint32_t last = first; last <= 6; ++last) {
      Hits expected;
      for (const FoundEntry& hit : music().search(u"music live rock"_qs, 30)) {
        if (hit.entry >= first && hit.entry < last) expected.push_back(hit);
      }
      EXPECT_EQ(music().search(u"music live rock"_qs, 30, first, last), expected) << first << " to " << last;
    }
  }
}

TEST(SegmentSearch, HitsAreAppended) {
  const SearchQuery query(u"jazz", 50);
  Hits hits{{77, 1}};
  SegmentSearch(query).search(music().segment(), 0, 6, hits);
  EXPECT_EQ(hits, (Hits{{77, 1}, {3, 100}}));
}

TEST(SegmentSearch, OneSearchServesManySegments) {
  const SearchQuery query(u"a b", 40);
  SegmentSearch search(query);
  const SegmentOfBlocks large({{"\\b\\", std::vector<std::string>(3000, "a")}});
  const SegmentOfBlocks small({{"\\x\\", {"a", "x"}}, {"\\b\\", {"x"}}});
  for (int round = 0; round < 2; ++round) {
    Hits hits;
    search.search(large.segment(), 0, 3000, hits);
    EXPECT_EQ(hits.size(), 3000U);
    EXPECT_EQ(hits.back(), (FoundEntry{2999, 100}));
    hits.clear();
    search.search(small.segment(), 0, 3, hits);
    EXPECT_EQ(hits, (Hits{{0, 50}, {2, 50}}));
  }
}

std::string someText(std::mt19937& random, unsigned most) {
  std::string text(random() % (most + 1), '\0');
  for (char& c : text) c = "abc"[random() % 3];
  return text;
}

/// What a plain loop over all entries finds.
Hits plainSearch(const std::vector<Block>& blocks, const std::vector<std::string>& words, int desired,
                 std::uint32_t first, std::uint32_t last) {
  Hits hits;
  std::uint32_t entry = 0;
  for (const Block& block : blocks) {
    for (const std::string& name : block.names) {
      int found = 0;
      for (const std::string& word : words) {
        const std::string searched = block.folder + " " + name;
        if (searched.find(word) != std::string::npos) ++found;
      }
      const std::int16_t match = matchPercentage(found, static_cast<int>(words.size()));
      if (match > desired && entry >= first && entry < last) hits.push_back({entry, match});
      ++entry;
    }
  }
  return hits;
}

class SegmentSearchAgreement : public test::InstructionSetTest {};

TEST_P(SegmentSearchAgreement, GeneratedBlocksAgreeWithAPlainSearch) {
  std::mt19937 random(43);
  std::size_t found = 0;
  for (int round = 0; round < 400; ++round) {
    std::vector<Block> blocks(1 + random() % 150);
    std::uint32_t entries = 0;
    for (Block& block : blocks) {
      block.folder = someText(random, 4);
      block.names.resize(1 + random() % (random() % 8 == 0 ? 100 : 3));
      for (std::string& name : block.names) name = someText(random, round % 4 == 0 ? 70 : 5);
      entries += static_cast<std::uint32_t>(block.names.size());
    }
    std::vector<std::string> words(1 + random() % 4);
    QString text;
    for (std::string& word : words) {
      word = someText(random, 3);
      // A blank at the very front would not end a word.
      if (&word == &words.front() && word.empty()) word = "a";
      text += (text.isEmpty() ? u""_qs : u" "_qs) + QString::fromStdString(word);
    }
    SegmentOfBlocks segment(blocks);
    if (round % 2 == 0) segment.complete();
    const auto first = static_cast<std::uint32_t>(random() % entries);
    const auto last = first + static_cast<std::uint32_t>(random() % (entries - first + 1));
    const auto desired = static_cast<std::int16_t>(1 + random() % 100);
    const Hits expected = plainSearch(blocks, words, desired, first, last);
    found += expected.size();
    ASSERT_EQ(segment.search(text, desired, first, last), expected)
        << "round " << round << ", words \"" << text.toStdString() << "\", desired " << desired;
  }
  EXPECT_GT(found, 5000U) << "too few hits to say anything";
}

INSTANTIATE_TEST_SUITE_P(On, SegmentSearchAgreement, test::everyInstructionSet(), test::instructionSetName);

}  // namespace
}  // namespace quorvin
