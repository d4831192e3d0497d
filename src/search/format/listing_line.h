// Taking one line of a listing apart. The rules: docs/formats/listing.md.
#pragma once

#include <string>
#include <string_view>

namespace quorvin {

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
