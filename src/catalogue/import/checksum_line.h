// SPDX-License-Identifier: GPL-2.0-or-later

// A line of the programs that write checksums of files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvin {

struct ChecksumLine {
  /// Hexadecimal digits, as they stand in the line: 32 to 128 of them.
  std::string_view checksum;
  /// Escapes replaced.
  std::string path;
};

/// Whether it is as many hexadecimal digits as a checksum of one of the usual kinds has.
bool isChecksum(std::string_view text);

/// "CHECKSUM  path", "CHECKSUM *path", with a backslash before where the path has escapes, or "MD5 (path) =
/// CHECKSUM". Nothing for another line.
std::optional<ChecksumLine> checksumLineIn(std::string_view line);

}  // namespace quorvin
