// SPDX-License-Identifier: GPL-2.0-or-later

// The checksum of a file.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quorvin {

/// Told of the bytes that have been read since it was told last, a mebibyte or less; false ends the reading.
using BytesRead = std::function<bool(std::int64_t bytes)>;

/// The SHA-256 of all bytes of the file at `path`, 64 hexadecimal digits in lower case. Nothing where `read`
/// ended it. Throws RuntimeFault where it cannot be read.
std::optional<std::string> fileChecksum(const QString& path, const BytesRead& read);

}  // namespace quorvin
