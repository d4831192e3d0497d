// SPDX-License-Identifier: GPL-2.0-or-later

// Names of files and folders as a listing can hold them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorvin {

/// What the bytes of a name hold, as bits; 0 for a name that a listing holds as it is.
using NameTraits = std::uint8_t;

/// "?" or what has to be replaced by it: CR, LF, a backslash, or bytes that are no text in the system code
/// page.
inline constexpr NameTraits kHoldsQuestion = 1;
/// A sign that a mark of the listing format ends with or begins with; holdsMark() tells whether there is one.
inline constexpr NameTraits kMayHoldMark = 2;

NameTraits traitsOfName(std::string_view name);

/// `name` in the system code page with "?" in place of each CR, LF, NUL, backslash and byte that is no text.
std::string listedText(std::string_view name);

/// A whole line's text or a part of it that may hold backslashes (a path, a label): "?" in place of each CR,
/// LF, NUL and byte that is no text.
std::string lineText(std::string_view text);

/// `listed` cut to its first `columns` characters.
std::string_view cutToColumns(std::string_view listed, std::size_t columns);

/// The number of characters of text in the system code page.
std::size_t characterCount(std::string_view text);

/// The mark that makes a reader take the entry line of this name for another kind of line; empty if none.
std::string_view markInEntry(std::string_view cutName);

/// The same for the lines that hold a folder's name: its sub-folder line and the directory lines below.
std::string_view markInFolder(std::string_view name);

}  // namespace quorvin
