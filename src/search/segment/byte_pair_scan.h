// Finding two bytes at a given distance: the quickest way to see that a word is nowhere.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvin {

/// Two bytes to look for at once: a text position i fits where text[i + firstAt] is `first` and
/// text[i + secondAt] is `second`.
struct BytePair {
  std::uint8_t first;
  std::uint8_t second;
  /// Offsets in the word, below kFarthestPairByte; equal for a word of one byte.
  std::uint8_t firstAt;
  std::uint8_t secondAt;
};

inline constexpr std::size_t kFarthestPairByte = 64;

/// scanBytePair may read this many bytes past the end of the text it is given.
inline constexpr std::size_t kScanPadding = 2 * kFarthestPairByte;

/// The pair of bytes of `word` (not empty) that are rarest in names of files; only its first 64 bytes are
/// looked at.
BytePair rarestPair(std::string_view word);

/// Sets bit i of `bits` (64 to a word, lowest first) where position i of text[0..size) fits the pair, clears
/// the others up to the next multiple of 64. True if any bit is set. Uses the widest vectors of the
/// processor.
bool scanBytePair(const char* text, std::size_t size, BytePair pair, std::uint64_t* bits);

}  // namespace quorvin
