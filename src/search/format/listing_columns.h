// The fixed columns and marks of a listing, as the reader takes lines apart. The whole layout:
// docs/formats/listing.md. Columns count characters of the decoded line, from 1.
#pragma once

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

}  // namespace quorvin
