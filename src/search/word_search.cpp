#include "search/word_search.h"

#include "search/word_matches.h"

#include <algorithm>

namespace quorvin {

void SeenWords::reset(std::uint32_t first, std::uint32_t count) {
  first_ = first;
  if (oneWord_) {
    touched_.assign((count + 63) / 64, 0);
    return;
  }
  // Only what was touched is cleared: most stretches hold no word at all.
  for (std::size_t block = 0; block < touched_.size(); ++block) {
    for (std::uint64_t left = touched_[block]; left != 0; left &= left - 1) {
      words_[block * 64 + static_cast<std::size_t>(std::countr_zero(left))] = {};
    }
    touched_[block] = 0;
  }
  if (words_.size() < count) words_.resize(count);
  touched_.resize((count + 63) / 64);
}

bool SeenWords::none() const {
  return std::all_of(touched_.begin(), touched_.end(), [](std::uint64_t bits) { return bits == 0; });
}

WordSearch::WordSearch(const SearchQuery& query) {
  for (const SearchQuery::Word& word : query.words()) {
    needles_.push_back({word.bytes, rarestPair(word.bytes), TrigramProbe(word.bytes)});
  }
}

void WordSearch::find(const TextTable& table, std::uint32_t first, std::uint32_t last, SeenWords& seen) {
  seen.reset(first, last - first);
  while (first < last) {
    const std::uint32_t pageEnd = std::min((first / kTextsPerPage + 1) * kTextsPerPage, table.count);
    const std::uint32_t stretchLast = std::min(last, pageEnd);
    const std::uint32_t beginMark = first / kTextsPerMark;
    const std::uint32_t endMark = (stretchLast + kTextsPerMark - 1) / kTextsPerMark;
    findInPage(table, {table.between(beginMark, endMark), beginMark * kTextsPerMark, first, stretchLast},
               seen);
    first = stretchLast;
  }
}

void WordSearch::findInPage(const TextTable& table, Stretch stretch, SeenWords& seen) {
  const TrigramSet* trigrams =
      table.trigrams.empty() ? nullptr : &table.trigrams[stretch.first / kTextsPerPage];
  if (trigrams != nullptr) table.require(trigrams, sizeof(TrigramSet));
  bool textChecked = false;
  const std::size_t blocks = (stretch.text.size() + 63) / 64;
  if (matches_.size() < blocks) {
    matches_.resize(blocks);
    ends_.resize(blocks);
    endsBefore_.resize(blocks);
  }
  bool endsKnown = false;
  for (std::size_t word = 0; word < needles_.size(); ++word) {
    const Needle& needle = needles_[word];
    if (trigrams != nullptr && !needle.probe.mayBeIn(*trigrams)) continue;
    if (!textChecked) stretch.text = table.toSearch(stretch.text);
    textChecked = true;
    if (!scanBytePair(stretch.text.data(), stretch.text.size(), needle.pair, matches_.data())) continue;
    if (!endsKnown) {
      scanByte(stretch.text.data(), stretch.text.size(), kTextEnd, ends_.data(), endsBefore_.data());
    }
    endsKnown = true;
    if (needle.bytes.size() == 1) {
      seeManyMatches(stretch, word, seen);
    } else {
      seeFewMatches(stretch, word, seen);
    }
  }
}

/// The way for words that few texts hold: it takes every match, since a second one in the same text is too
/// rare to be worth a branch that the processor would often guess wrong.
void WordSearch::seeFewMatches(const Stretch& stretch, std::size_t word, SeenWords& seen) {
  if (numbers_.size() <= stretch.text.size()) numbers_.resize(stretch.text.size() + 1);
  const std::size_t count =
      textsWithWord(stretch.text, needles_[word].bytes, {matches_.data(), ends_.data(), endsBefore_.data()},
                    numbers_.data());
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t text = stretch.firstText + numbers_[i];
    if (text >= stretch.first && text < stretch.last) seen.see(text, word);
  }
}

/// The way for a single letter, which stands in most texts and often more than once: after a text's first
/// match the rest of it is passed over, as far as need be into the next blocks.
void WordSearch::seeManyMatches(const Stretch& stretch, std::size_t word, SeenWords& seen) const {
  const std::size_t blocks = (stretch.text.size() + 63) / 64;
  bool skipping = false;
  for (std::size_t block = 0; block < blocks; ++block) {
    const std::uint64_t ends = ends_[block];
    std::uint64_t matches = matches_[block];
    if (skipping) {
      if (ends == 0) continue;
      matches &= ~std::uint64_t{0} << std::countr_zero(ends);
      skipping = false;
    }
    std::uint32_t text = stretch.firstText + endsBefore_[block];
    std::uint64_t endsLeft = ends;
    while (matches != 0) {
      const std::uint64_t bit = matches & (~matches + 1);
      for (; (endsLeft & (bit - 1)) != 0; endsLeft &= endsLeft - 1) ++text;
      if (text >= stretch.first && text < stretch.last) seen.see(text, word);
      if (endsLeft == 0) {
        skipping = true;
        break;
      }
      matches &= ~std::uint64_t{0} << std::countr_zero(endsLeft);
    }
  }
}

}  // namespace quorvin
