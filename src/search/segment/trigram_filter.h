// Which stretches of text can be skipped because a word cannot be in them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvin {

/// The set of trigrams (three bytes in a row, hashed) of a stretch of text. It may say that a word might be
/// there when it is not, never the other way round.
using TrigramSet = std::array<std::uint64_t, 128>;

/// Adds the trigrams of `text`.
void addTrigrams(TrigramSet& set, std::string_view text);

/// The trigrams of one word, ready to be looked up in many sets.
class TrigramProbe {
 public:
  explicit TrigramProbe(std::string_view word);

  /// False only if no text that was added to `set` holds the word. Always true for words of one or two bytes.
  bool mayBeIn(const TrigramSet& set) const {
    for (const std::uint16_t bit : bits_) {
      if ((set[bit / 64] >> (bit % 64) & 1U) == 0) return false;
    }
    return true;
  }

 private:
  std::vector<std::uint16_t> bits_;
};

}  // namespace quorvin
