// SPDX-License-Identifier: GPL-2.0-or-later

// The vectorised looks at texts: where two bytes are at a given distance, the quickest way to see that a word
// is nowhere, and which texts hold a word. All use the widest vectors of the processor. Bits are packed 64 to
// an element, lowest first: for the bytes of a text of many texts, or for those texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
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

/// Each look may read this many bytes past the end of the text that it is given.
inline constexpr std::size_t kScanPadding = 2 * kFarthestPairByte;

/// The pair of bytes of `word` (not empty) that are rarest in names of files; only its first 64 bytes are
/// looked at.
BytePair rarestPair(std::string_view word);

/// Sets bit i of `bits` where position i of text[0..size) fits the pair, clears the others up to the next
/// multiple of 64. True if any bit is set.
bool scanBytePair(const char* text, std::size_t size, BytePair pair, std::uint64_t* bits);

/// The longest word that scanTexts() looks for.
inline constexpr std::size_t kLongestScannedWord = 8;

/// `text` is many texts, each followed by `end`. Sets bit k of `texts` for each text k that holds
/// `word`, which is 1 to kLongestScannedWord bytes long and has no `end` in it; clears the others. True if
/// any holds it. `texts` has room for one element more than the texts need. kScanPadding bytes past the end
/// of `text` are readable.
///
/// It is for words that are found often. For others scanBytePair is faster, but what that finds must be
/// looked at place by place: with keepPlacesOf(), then textsWithPlaces().
bool scanTexts(std::string_view text, std::string_view word, char end, std::uint64_t* texts);

/// Clears those bits of `places` at which `word` (not empty) does not occur in `text`. True if any stays.
/// kScanPadding bytes past the end of `text` are readable, and the end of each of its texts is in it.
bool keepPlacesOf(std::string_view word, std::string_view text, std::uint64_t* places);

/// Sets bit k of `texts` for each text k (from 0) that has one of `places`, and clears the others. `ends` are
/// the places where texts end; none of them is among `places`. `texts` has room for one element more than the
/// texts need.
void textsWithPlaces(std::span<const std::uint64_t> places, const std::uint64_t* ends, std::uint64_t* texts);

}  // namespace quorvin
