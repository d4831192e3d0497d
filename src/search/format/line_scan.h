// SPDX-License-Identifier: GPL-2.0-or-later

// The vectorised looks at the lines of a listing: where they end and which need care, and the entry text of a
// plain one. Both use the widest vectors of the processor.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quorvin {

/// markLines may read this many bytes before and behind the text it is given.
inline constexpr std::size_t kLinePadding = 128;

/// For text[0..size): bit i of `lineEnds` (64 to a word, lowest first) is set where text[i] is a line feed.
/// Bit i of `care` is set where a line may be more than a plain entry: at bytes from 0x80 on, at "<", at a
/// colon behind "e" or "y" (as in "Volume:" and "Directory:"), and at a hyphen that may end fifteen of them.
/// A line without such a bit is ASCII and holds none of the marks of docs/formats/listing.md. The bits up to
/// the next multiple of 64 are clear.
void markLines(const char* text, std::size_t size, std::uint64_t* lineEnds, std::uint64_t* care);

/// foldColumns reads and writes this many bytes whatever the text's length.
inline constexpr std::size_t kFoldWidth = 80;

/// The result of foldColumns, a bit for each of the 80 bytes.
struct FoldedColumns {
  /// Bytes that are no blanks.
  std::uint64_t textLow;
  std::uint64_t textHigh;
  /// Bytes that were ASCII capitals.
  std::uint64_t upperLow;
  std::uint64_t upperHigh;
};

/// Copies 80 bytes from `in` to `out` with ASCII capitals made small. It is the quick way to take the entry
/// text of a plain line: trimmed, lower-cased and its capitals noted at once.
FoldedColumns foldColumns(const char* in, char* out);

}  // namespace quorvin
