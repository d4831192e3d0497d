// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/match/word_search.h"

#include "search/segment/text_scan.h"

#include <algorithm>
#include <optional>

namespace quorvin {

void SeenWords::reset(std::uint32_t first, std::uint32_t count) {
  first_ = first;
  // Only what was touched is cleared: most stretches hold no word at all.
  if (!none_) clear();
  if (!oneWord_ && words_.size() < count) words_.resize(count);
  touched_.resize((count + 63) / 64);
}

void SeenWords::clear() {
  none_ = true;
  if (oneWord_) {
    std::ranges::fill(touched_, 0);
    return;
  }
  for (std::size_t block = 0; block < touched_.size(); ++block) {
    for (std::uint64_t left = touched_[block]; left != 0; left &= left - 1) {
      words_[block * 64 + static_cast<std::size_t>(std::countr_zero(left))] = {};
    }
    touched_[block] = 0;
  }
}

WordSet SeenWords::all() const {
  WordSet words;
  for (std::size_t block = 0; block < touched_.size(); ++block) {
    for (std::uint64_t left = touched_[block]; left != 0; left &= left - 1) {
      words = words | words_[block * 64 + static_cast<std::size_t>(std::countr_zero(left))];
    }
  }
  return words;
}

void SeenWords::seeAll(std::uint32_t text, std::span<const std::uint64_t> bits, std::size_t word) {
  if (!oneWord_) {
    for (std::size_t block = 0; block < bits.size(); ++block) {
      const auto base = text + static_cast<std::uint32_t>(block * 64);
      for (std::uint64_t left = bits[block]; left != 0; left &= left - 1) {
        see(base + static_cast<std::uint32_t>(std::countr_zero(left)), word);
      }
    }
    return;
  }
  // The first bits may be for texts before the stretch; they are not set.
  const std::uint32_t skipped = text < first_ ? first_ - text : 0;
  const std::uint32_t begin = text + skipped - first_;
  for (std::size_t block = 0; block < bits.size(); ++block) {
    const std::uint64_t next = block + 1 < bits.size() ? bits[block + 1] : 0;
    const std::uint64_t wanted = skipped == 0 ? bits[block] : bits[block] >> skipped | next << (64 - skipped);
    if (wanted == 0) continue;
    none_ = false;
    const std::size_t at = begin / 64 + block;
    touched_[at] |= wanted << (begin % 64);
    const std::uint64_t over = (wanted >> 1) >> (63 - begin % 64);
    if (over != 0) touched_[at + 1] |= over;
  }
}

WordSearch::WordSearch(const SearchQuery& query) {
  for (const SearchQuery::Word& word : query.words()) {
    needles_.push_back({word.bytes, rarestPair(word.bytes), TrigramProbe(word.bytes), word.times});
  }
}

void WordSearch::find(const TextTable& table, std::uint32_t first, std::uint32_t last, SeenWords& seen,
                      const WordSet& elsewhere, int mostMissing) {
  seen.reset(first, last - first);
  while (first < last) {
    const std::uint32_t pageEnd = std::min((first / kTextsPerPage + 1) * kTextsPerPage, table.count);
    const std::uint32_t stretchLast = std::min(last, pageEnd);
    findInPage(table, {first, stretchLast}, seen, {elsewhere, mostMissing});
    first = stretchLast;
  }
  table.requireSearched();
}

void WordSearch::makeRoom(std::size_t blocks) {
  if (places_.size() >= blocks) return;
  places_.resize(blocks);
  ends_.resize(blocks);
  // Each byte of a mapped file may have become the end of a text.
  texts_.resize(std::max(texts_.size(), blocks + 1));
}

/// Rules out the words that cannot be in the page by its trigrams, if they are known. Returns how many words
/// are certainly missing.
int WordSearch::ruleOut(const TrigramRows& trigrams, std::size_t page, const Slack& slack) {
  int missing = 0;
  for (std::size_t word = 0; word < needles_.size(); ++word) {
    Needle& needle = needles_[word];
    needle.isRuledOut = !needle.probe.mayBeIn(trigrams, page);
    if (needle.isRuledOut && !slack.elsewhere.has(word)) missing += needle.times;
  }
  return missing;
}

void WordSearch::findInPage(const TextTable& table, const Stretch& stretch, SeenWords& seen,
                            const Slack& slack) {
  int missing = ruleOut(table.trigramRows(), stretch.first / kTextsPerPage, slack);
  std::optional<std::string_view> text;
  bool endsKnown = false;
  for (std::size_t word = 0; word < needles_.size() && missing <= slack.most; ++word) {
    Needle& needle = needles_[word];
    if (needle.isRuledOut) continue;
    if (!text) text = textToSearch(table, stretch);
    needle.isLikely = findTexts(*text, needle, endsKnown);
    if (needle.isLikely) {
      seeTexts(stretch, word, seen);
    } else if (!slack.elsewhere.has(word)) {
      missing += needle.times;
    }
  }
}

/// Only for pages that are searched at all: in the others, not even the marks are read.
std::string_view WordSearch::textToSearch(const TextTable& table, const Stretch& stretch) {
  const std::uint32_t endMark = (stretch.last + kTextsPerMark - 1) / kTextsPerMark;
  const TextTable::Stretch place = table.between(stretch.first / kTextsPerMark, endMark);
  makeRoom((place.size + 63) / 64);
  return table.toSearch(place);
}

/// Whether the word is anywhere in the text; if so, `texts_` are known.
bool WordSearch::findTexts(std::string_view text, const Needle& needle, bool& endsKnown) {
  if (needle.isLikely && needle.bytes.size() <= kLongestScannedWord) {
    return scanTexts(text, needle.bytes, kTextEnd, texts_.data());
  }
  if (!scanBytePair(text.data(), text.size(), needle.pair, places_.data())) return false;
  if (!keepPlacesOf(needle.bytes, text, places_.data())) return false;
  constexpr auto kEnd = static_cast<std::uint8_t>(kTextEnd);
  if (!endsKnown) scanBytePair(text.data(), text.size(), {kEnd, kEnd, 0, 0}, ends_.data());
  endsKnown = true;
  textsWithPlaces({places_.data(), (text.size() + 63) / 64}, ends_.data(), texts_.data());
  return true;
}

/// The word has been found in the stretch: notes the texts that hold it, except those outside of what is
/// wanted.
void WordSearch::seeTexts(const Stretch& stretch, std::size_t word, SeenWords& seen) {
  const std::uint32_t before = stretch.first - stretch.firstText();
  const std::uint32_t end = stretch.last - stretch.firstText();
  texts_[0] &= ~std::uint64_t{0} << before;
  texts_[end / 64] &= (std::uint64_t{1} << (end % 64)) - 1;
  seen.seeAll(stretch.firstText(), {texts_.data(), end / 64 + 1}, word);
}

}  // namespace quorvin
