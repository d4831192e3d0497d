// SPDX-License-Identifier: GPL-2.0-or-later
#include "vocabulary.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace quorvin {
namespace {

constexpr std::size_t kMadeWords = 40000;
constexpr std::size_t kFolderWords = 4000;
constexpr std::uint64_t kRankOffset = 6;
constexpr std::uint64_t kVocabularySeed = 1;

constexpr auto kCommonWords = std::to_array<std::string_view>({
    "live",    "photo",   "report",  "summer",  "music",   "copy",    "letter",   "track",    "house",
    "night",   "old",     "project", "garden",  "backup",  "river",   "blue",     "winter",   "family",
    "street",  "final",   "dance",   "party",   "notes",   "love",    "city",     "mountain", "invoice",
    "world",   "green",   "morning", "draft",   "concert", "travel",  "holiday",  "school",   "light",
    "budget",  "ocean",   "train",   "paper",   "radio",   "spring",  "birthday", "table",    "heart",
    "video",   "golden",  "church",  "market",  "window",  "index",   "second",   "picture",  "autumn",
    "north",   "meeting", "kitchen", "island",  "silver",  "wedding", "address",  "bridge",   "stone",
    "record",  "dream",   "forest",  "station", "minutes", "beach",   "friend",   "version",  "studio",
    "flower",  "story",   "harbour", "orange",  "manual",  "sunset",  "castle",   "tax",      "contract",
    "village", "south",   "museum",  "bicycle", "answer",  "evening", "guitar",   "recipe",   "wild",
    "library", "shadow",  "theatre", "poster",  "weekend", "quarter", "cover",    "football", "piano",
    "lesson",
});

constexpr auto kRareWords = std::to_array<std::string_view>({
    "kumquat",   "wyvern",       "bivouac", "quincunx",  "jackalope", "mugwump",     "zymurgy",  "flugelhorn",
    "sassafras", "ptarmigan",    "syzygy",  "kerfuffle", "xylophage", "vorticity",   "uxorious", "tchotchke",
    "ombudsman", "whippoorwill", "cwtch",   "zephyrine", "yttrium",   "hobbledehoy", "xenolith", "axolotl",
});

// A made word may hold a common word, as real names do; rare words are kept out of them.
constexpr auto kOnsets = std::to_array<std::string_view>({
    "",  "b", "c", "d", "f", "g",  "h",  "j",  "k",  "l",  "m",  "n",  "p",
    "r", "s", "t", "v", "z", "br", "ch", "dr", "fl", "gr", "pl", "sh", "st",
});
constexpr auto kNuclei = std::to_array<std::string_view>({
    "a",
    "e",
    "i",
    "o",
    "u",
    "a",
    "e",
    "i",
    "o",
    "ai",
    "ea",
    "ei",
    "ou",
});
constexpr auto kCodas = std::to_array<std::string_view>({
    "",
    "",
    "",
    "",
    "n",
    "r",
    "s",
    "l",
    "t",
    "m",
    "nd",
    "rk",
});

template <std::size_t Count>
std::string_view anyOf(const std::array<std::string_view, Count>& parts, RandomSource& random) {
  return parts[random.below(static_cast<std::uint32_t>(Count))];
}

std::string madeWord(RandomSource& random) {
  std::string word;
  const std::uint32_t syllables = 2 + random.below(3);
  for (std::uint32_t i = 0; i < syllables; ++i) {
    word += anyOf(kOnsets, random);
    word += anyOf(kNuclei, random);
    word += anyOf(kCodas, random);
  }
  return word;
}

bool holdsARareWord(std::string_view word) {
  return std::any_of(kRareWords.begin(), kRareWords.end(),
                     [word](std::string_view rare) { return word.find(rare) != std::string_view::npos; });
}

void addMadeWords(std::vector<std::string>& words) {
  std::unordered_set<std::string> known(words.begin(), words.end());
  RandomSource random(kVocabularySeed);
  const std::size_t wanted = words.size() + kMadeWords;
  while (words.size() < wanted) {
    std::string word = madeWord(random);
    if (word.size() < 4 || holdsARareWord(word) || !known.insert(word).second) continue;
    words.push_back(std::move(word));
  }
}

}  // namespace

std::span<const std::string_view> commonWords() {
  return kCommonWords;
}
std::span<const std::string_view> rareWords() {
  return kRareWords;
}

Vocabulary::Vocabulary() : words_(kCommonWords.begin(), kCommonWords.end()) {
  addMadeWords(words_);
  words_.insert(words_.end(), kRareWords.begin(), kRareWords.end());

  std::uint64_t sum = 0;
  cumulativeWeights_.reserve(words_.size());
  for (std::uint64_t rank = 0; rank < words_.size(); ++rank) {
    sum += (std::uint64_t{1} << 36U) / (rank + kRankOffset);
    cumulativeWeights_.push_back(sum);
  }
  folderWeight_ = cumulativeWeights_[kFolderWords - 1];
}

double Vocabulary::share(std::size_t rank) const {
  const std::uint64_t before = rank == 0 ? 0 : cumulativeWeights_[rank - 1];
  return static_cast<double>(cumulativeWeights_[rank] - before) /
         static_cast<double>(cumulativeWeights_.back());
}

std::string_view Vocabulary::drawBelow(std::uint64_t weight, RandomSource& random) const {
  const std::uint64_t point = random.next() % weight;
  const auto found = std::upper_bound(cumulativeWeights_.begin(), cumulativeWeights_.end(), point);
  return words_[static_cast<std::size_t>(found - cumulativeWeights_.begin())];
}

}  // namespace quorvin
