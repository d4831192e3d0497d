// Which texts hold a word. Bits are packed 64 to an element, lowest first: for the bytes of a text of many
// texts, or for those texts. kScanPadding and the quicker look for rare words are in byte_pair_scan.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quorvin {

/// The longest word that scanTexts() looks for.
inline constexpr std::size_t kLongestScannedWord = 8;

/// `text` is many texts, each followed by `end`. Sets bit k of `texts`
/// for each text k that holds `word`, which is 1 to kLongestScannedWord bytes long and has no `end` in it;
/// clears the others. True if any holds it. `texts` has room for one element more than the texts need.
/// kScanPadding bytes past the end of `text` are readable.
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
