// SPDX-License-Identifier: GPL-2.0-or-later

// Taking a line of a list apart: words, numbers, and names with escapes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvin {

// Each of the functions that take something from the front of `text` leaves what follows in it, and gives
// nothing, with `text` as it was, where it is not there.

/// Takes blanks away, and says how many.
std::size_t takeBlanks(std::string_view& text);
/// The bytes up to the next blank or the end; nothing where there are none.
std::optional<std::string_view> takeWord(std::string_view& text);
bool takeText(std::string_view& text, std::string_view wanted);
/// Up to eighteen digits.
std::optional<std::int64_t> takeNumber(std::string_view& text);

inline bool isAsciiDigit(char byte) {
  return byte >= '0' && byte <= '9';
}
bool isAllDigits(std::string_view text);
/// A whole number of bytes, of digits alone or with "," between thousands. A rounded one ("1.5K") is nothing.
std::optional<std::int64_t> exactSize(std::string_view word);
/// Whether `word` is a size of any kind: exact, rounded, or the "8," and "8,1" that devices have.
bool looksLikeSize(std::string_view word);

/// `text` with backslash escapes as C has them (\n, \t, \\, \", \', "\ ", "\:" and up to three octal digits)
/// replaced by what they stand for; nothing where a backslash is followed by anything else.
std::optional<std::string> withoutEscapes(std::string_view text);

/// The text in double quotes at the front, escapes replaced.
std::optional<std::string> takeQuoted(std::string_view& text);

}  // namespace quorvin
