// SPDX-License-Identifier: GPL-2.0-or-later

// Finding the words of a query in a table of texts.
#pragma once

#include "search/match/search_query.h"
#include "search/segment/text_table.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace quorvin {

/// A set of words of a query, by their numbers in SearchQuery::words().
class WordSet {
 public:
  void add(std::size_t word) { bits_[word / 64] |= std::uint64_t{1} << (word % 64); }
  bool has(std::size_t word) const { return (bits_[word / 64] >> (word % 64) & 1U) != 0; }
  bool empty() const { return (bits_[0] | bits_[1]) == 0; }
  int size() const { return std::popcount(bits_[0]) + std::popcount(bits_[1]); }
  /// The first eight words as bits.
  std::uint8_t firstEight() const { return static_cast<std::uint8_t>(bits_[0]); }
  WordSet operator|(const WordSet& other) const {
    WordSet both;
    both.bits_[0] = bits_[0] | other.bits_[0];
    both.bits_[1] = bits_[1] | other.bits_[1];
    return both;
  }

 private:
  std::uint64_t bits_[2] = {0, 0};
};
static_assert(kMostWords <= 128);

/// Which words were seen in which texts of a stretch.
class SeenWords {
 public:
  /// With `oneWord` there is only one word: touched() is then the whole answer, and in() must not be called.
  explicit SeenWords(bool oneWord) : oneWord_(oneWord) {}

  /// Forgets everything and takes texts `first` to `first` + `count` - 1.
  void reset(std::uint32_t first, std::uint32_t count);

  void see(std::uint32_t text, std::size_t word) {
    const std::uint32_t i = text - first_;
    if (!oneWord_) words_[i].add(word);
    touched_[i / 64] |= std::uint64_t{1} << (i % 64);
    none_ = false;
  }

  /// Calls see() for each text whose bit is set. Bit k is for text `text` + k; only bits of this stretch may
  /// be set.
  void seeAll(std::uint32_t text, std::span<const std::uint64_t> bits, std::size_t word);

  const WordSet& in(std::uint32_t text) const { return words_[text - first_]; }

  /// A bit for each text of the stretch: some word was seen in it.
  const std::vector<std::uint64_t>& touched() const { return touched_; }
  bool none() const { return none_; }
  /// The words seen in any text. Must not be called with `oneWord`.
  WordSet all() const;

 private:
  void clear();

  bool oneWord_;
  bool none_ = true;
  std::uint32_t first_ = 0;
  std::vector<WordSet> words_;
  std::vector<std::uint64_t> touched_;
};

/// Searches tables of texts for the words of one query.
class WordSearch {
 public:
  /// `query` must outlive the search.
  explicit WordSearch(const SearchQuery& query);

  /// Fills `seen` with texts `first` to `last` - 1 of `table` and the words that each holds.
  void find(const TextTable& table, std::uint32_t first, std::uint32_t last, SeenWords& seen) {
    find(table, first, last, seen, {}, std::numeric_limits<int>::max());
  }

  /// As above, but words may be left unseen in a text that lacks more than `mostMissing` words of the search
  /// text, repetitions counted, even when it is given those of `elsewhere`.
  void find(const TextTable& table, std::uint32_t first, std::uint32_t last, SeenWords& seen,
            const WordSet& elsewhere, int mostMissing);

 private:
  struct Needle {
    std::string_view bytes;
    BytePair pair;
    TrigramProbe probe;
    int times;
    /// The current page certainly does not hold it.
    bool isRuledOut = false;
    /// The stretch that was searched before held it, so the next one is likely to.
    bool isLikely = false;
  };
  /// Texts of one page for which the answer is wanted.
  struct Stretch {
    std::uint32_t first;
    std::uint32_t last;

    /// What is searched for them starts with the mark before.
    std::uint32_t firstText() const { return first / kTextsPerMark * kTextsPerMark; }
  };
  /// How many words may be missing before a page is given up.
  struct Slack {
    const WordSet& elsewhere;
    int most;
  };

  void makeRoom(std::size_t blocks);
  void findInPage(const TextTable& table, const Stretch& stretch, SeenWords& seen, const Slack& slack);
  int ruleOut(const TrigramRows& trigrams, std::size_t page, const Slack& slack);
  std::string_view textToSearch(const TextTable& table, const Stretch& stretch);
  bool findTexts(std::string_view text, const Needle& needle, bool& endsKnown);
  void seeTexts(const Stretch& stretch, std::size_t word, SeenWords& seen);

  std::vector<Needle> needles_;
  /// For the current stretch, a bit for each byte: the current word starts there; a text ends there.
  std::vector<std::uint64_t> places_;
  std::vector<std::uint64_t> ends_;
  /// And a bit for each text, which holds the word.
  std::vector<std::uint64_t> texts_ = std::vector<std::uint64_t>(kTextsPerPage / 64 + 2);
};

}  // namespace quorvin
