// SPDX-License-Identifier: GPL-2.0-or-later

// The words that generated names are made of. They are the same for every seed, so that the words of a
// benchmark query are known beforehand.
#pragma once

#include "random_source.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// Words by rank, the commonest first. The word of rank r (from 0) is drawn with a weight of 1 / (r + 6), as
/// words are spread in real names.
///
/// Common: the first ranks, everyday words. "live" (rank 0) is nearly 2% of the words drawn, so it stands in
/// some 5% of all names.
/// Middle: 40,000 words made of syllables.
/// Rare: the last ranks, kRareWords, real words that no made word contains. Each is drawn about 70
/// times for 10 million names.
class Vocabulary {
 public:
  Vocabulary();

  /// Lower-case ASCII letters, at least 3. The view is valid as long as the vocabulary.
  std::string_view word(std::size_t rank) const { return words_[rank]; }
  std::size_t size() const { return words_.size(); }

  /// A word drawn by weight from all ranks.
  std::string_view draw(RandomSource& random) const { return drawBelow(cumulativeWeights_.back(), random); }
  /// A word drawn by weight from the ranks that folder names use: rare words are kept out of them, because a
  /// word in a folder's name is found with every entry below.
  std::string_view drawForFolder(RandomSource& random) const { return drawBelow(folderWeight_, random); }

  /// The part of all draws that gives the word of `rank`.
  double share(std::size_t rank) const;

 private:
  std::string_view drawBelow(std::uint64_t weight, RandomSource& random) const;

  std::vector<std::string> words_;
  /// For each rank the sum of the weights up to and with it.
  std::vector<std::uint64_t> cumulativeWeights_;
  std::uint64_t folderWeight_ = 0;
};

/// The words of the first and of the last ranks, in order.
std::span<const std::string_view> commonWords();
std::span<const std::string_view> rareWords();

}  // namespace quorvin
