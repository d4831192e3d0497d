// From the places where a word stands to the texts that hold it. Places are bits, 64 to an element, lowest
// first: bit i for the i-th byte of a text of many texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quorvin {

/// Clears those bits of `places` at which `word` (not empty) does not stand in `text`. True if any stays.
/// kScanPadding bytes can be read behind `text`, and each of its texts has its end in it.
bool keepPlacesOf(std::string_view word, std::string_view text, std::uint64_t* places);

/// Sets bit k of `texts` for each text k (from 0) that has one of `places`, and clears the others. `ends` are
/// the places where texts end, at which there are no others. `texts` has room for one element more than the
/// texts need.
void textsWithPlaces(std::span<const std::uint64_t> places, const std::uint64_t* ends, std::uint64_t* texts);

}  // namespace quorvin
