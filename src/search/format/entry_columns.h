// The quick way to take the entry text of a plain line: trimmed, lower-cased and its capitals noted at once.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quorvin {

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

/// Copies 80 bytes from `in` to `out` with ASCII capitals made small.
FoldedColumns foldColumns(const char* in, char* out);

}  // namespace quorvin
