// From the places where a word may stand to the texts that hold it.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvin {

/// What scanBytePair and scanByte say of a text of many texts, 64 bytes to an element.
struct PlacesInText {
  /// Where the word may begin.
  const std::uint64_t* matches;
  /// Where texts end, and how many end before each 64 bytes.
  const std::uint64_t* ends;
  const std::uint32_t* endsBefore;
};

/// Writes to `numbers` the number (from 0) of each text in which `word` (not empty) really begins at a match,
/// in ascending order; a text that holds it twice comes twice. Returns how many. `numbers` has room for one
/// more than there are matches. kScanPadding bytes can be read behind `text`, and each of its texts has its
/// end in it.
std::size_t textsWithWord(std::string_view text, std::string_view word, const PlacesInText& places,
                          std::uint32_t* numbers);

}  // namespace quorvin
