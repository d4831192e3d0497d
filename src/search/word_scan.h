// Where a whole word stands, for words that are found often.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvin {

/// Of longer words only so many bytes are compared.
inline constexpr std::size_t kScannedWordBytes = 8;

/// Sets bit i of `wordBits` (64 to an element, lowest first) where the first kScannedWordBytes bytes of
/// `word` (not empty) stand at text[i], and bit i of `endBits` where text[i] is `end`; clears the others up
/// to the next multiple of 64. `endBits` may be null. True if the word stands anywhere. kScanPadding bytes
/// can be read behind the text.
///
/// scanBytePair is the faster scan, but what it finds must be looked at one by one.
bool scanWord(std::string_view text, std::string_view word, std::uint64_t* wordBits, char end,
              std::uint64_t* endBits);

}  // namespace quorvin
