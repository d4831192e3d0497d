// The vectorised first look at the text of a listing: where lines end, and which lines need care.
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
/// the next multiple of 64 are clear. Uses the widest vectors of the processor.
void markLines(const char* text, std::size_t size, std::uint64_t* lineEnds, std::uint64_t* care);

}  // namespace quorvin
