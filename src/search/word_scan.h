// Which texts hold a word, for words that are found often.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvin {

/// The longest word that scanTexts() looks for.
inline constexpr std::size_t kLongestScannedWord = 8;

/// `text` is many texts, each with `end` behind it. Sets bit k of `texts` (64 to an element, lowest first)
/// for each text k that holds `word`, which is 1 to kLongestScannedWord bytes long and has no `end` in it;
/// clears the others. True if any holds it. `texts` has room for one element more than the texts need.
/// kScanPadding bytes can be read behind `text`.
///
/// scanBytePair is the faster scan, but what it finds must be looked at place by place.
bool scanTexts(std::string_view text, std::string_view word, char end, std::uint64_t* texts);

}  // namespace quorvin
