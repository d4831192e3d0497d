#include "search/word_search.h"

#include <algorithm>
#include <cstring>

namespace quorvin {

namespace {

bool holdsAt(std::string_view text, std::size_t at, std::string_view word) {
  return word.size() <= text.size() - at && std::memcmp(text.data() + at, word.data(), word.size()) == 0;
}

}  // namespace

void SeenWords::reset(std::uint32_t first, std::uint32_t count) {
  // Only what was touched is cleared: most stretches hold no word at all.
  for (std::size_t block = 0; block < touched_.size(); ++block) {
    for (std::uint64_t left = touched_[block]; left != 0; left &= left - 1) {
      words_[block * 64 + static_cast<std::size_t>(std::countr_zero(left))] = {};
    }
    touched_[block] = 0;
  }
  first_ = first;
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
    const std::size_t begin = table.marks[beginMark].text;
    const std::size_t end = endMark < table.marks.size() ? table.marks[endMark].text : table.folded.size();
    findInPage(table,
               {table.folded.substr(begin, end - begin), beginMark * kTextsPerMark, first, stretchLast},
               seen);
    first = stretchLast;
  }
}

void WordSearch::findInPage(const TextTable& table, const Stretch& stretch, SeenWords& seen) {
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
    if (!textChecked) table.require(stretch.text.data(), stretch.text.size());
    textChecked = true;
    if (!scanBytePair(stretch.text.data(), stretch.text.size(), needle.pair, matches_.data())) continue;
    if (!endsKnown) {
      scanByte(stretch.text.data(), stretch.text.size(), kTextEnd, ends_.data(), endsBefore_.data());
    }
    endsKnown = true;
    seeMatches(stretch, word, seen);
  }
}

void WordSearch::seeMatches(const Stretch& stretch, std::size_t word, SeenWords& seen) const {
  const std::string_view bytes = needles_[word].bytes;
  const std::size_t blocks = (stretch.text.size() + 63) / 64;
  // After a text's first match the rest of it is passed over, as far as need be into the next blocks.
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
      const std::size_t at = block * 64 + static_cast<std::size_t>(std::countr_zero(bit));
      matches ^= bit;
      if (bytes.size() > 1 && !holdsAt(stretch.text, at, bytes)) continue;
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
