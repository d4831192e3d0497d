// SPDX-License-Identifier: GPL-2.0-or-later

// The fixed columns and marks of a listing, and taking one of its lines apart. The whole layout and the
// rules: docs/formats/listing.md. Columns count characters of the decoded line, from 1.
#pragma once

#include <string>
#include <string_view>

namespace quorvin {

// A line that holds one of these anywhere is not an entry; they are looked for in this order.
inline constexpr std::string_view kVolumeMark = "Volume:";
inline constexpr std::string_view kDirectoryMark = "Directory:";
inline constexpr std::string_view kSubFolderMark = "<DIR>";
inline constexpr std::string_view kSeparatorMark = "---------------";

/// The name's columns, and the characters to which a listing cuts names.
inline constexpr int kNameColumns = 65;
/// The entry text of a longer line runs to this column; the tail starts in it.
inline constexpr int kEntryColumns = 69;
/// Size and date are read only from a tail longer than this.
inline constexpr int kShortTailLength = 32;
/// The size is the tail's first 13 characters.
inline constexpr int kSizeWidth = 13;
/// The date starts at the tail's 21st character (0-based 20).
inline constexpr int kDateOffset = 20;

enum class LineKind { Empty, Volume, Directory, SubFolder, Separator, Entry };

/// The kind of `line` (without its line end); the first rule that fits wins. The marks are ASCII, so the
/// bytes of any encoding that the program reads will do.
LineKind classifyLine(std::string_view line);

/// What a volume or directory line sets: the line with every `mark` removed, trimmed of blanks.
std::string withoutMark(std::string_view line, std::string_view mark);

/// An entry line taken apart; the views are into the line.
struct EntryLine {
  std::string_view text;
  /// Empty where the line has none of its own (it is not longer than 69 characters).
  std::string_view tail;
};

/// Takes an entry line apart by its columns. `line` is UTF-8; where `ascii` is true a column is a byte.
EntryLine splitEntryLine(std::string_view line, bool ascii);

/// Whether all bytes of `line` are below 0x80.
bool isAscii(std::string_view line);

/// How many bytes the first `characters` characters of `utf8` take up; its size when it has fewer.
std::size_t bytesOfCharacters(std::string_view utf8, std::size_t characters);

}  // namespace quorvin
