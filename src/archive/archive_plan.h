// SPDX-License-Identifier: GPL-2.0-or-later

// Deciding what of an archive is unpacked, and where to, before anything is.
#pragma once

#include "archive/archive_reader.h"

#include <QStringList>

#include <cstdint>
#include <functional>
#include <vector>

namespace quorvin {

/// How much an archive may ask for.
struct ArchiveLimits {
  /// Entries, including the folders that these only imply.
  std::uint64_t entries = 50'000;
  /// Bytes of all files together, unpacked.
  std::uint64_t bytes = std::uint64_t{4} << 30;
};

/// The place of an entry below the target folder.
struct ArchivePlace {
  /// The names of the folders and, last, of the file; none is empty, "." or "..".
  QStringList path;
  /// The entry stands for a folder.
  bool isFolder = false;
};

/// An entry that may be unpacked, and its place.
struct PlannedEntry {
  ArchiveEntry entry;
  ArchivePlace place;
};

/// Whether the file at this place (see ArchivePlace::path) is not to be written, whatever the archive holds.
using IsProtected = std::function<bool(const QStringList& path)>;

struct ArchivePlan {
  std::vector<PlannedEntry> entries;
  /// The names of the files that are sound but protected, in the archive's order.
  QStringList leftOut;
  /// Bytes of all files in `entries` together, as the archive announces them.
  std::uint64_t bytes = 0;
};

/// Looks at every entry of `archive`; those that are `isProtected`, which may be empty, are left out. Throws
/// ArchiveError when one of them must not be unpacked:
/// - its name leads or might lead out of the folder (an absolute path, a drive, ".."), holds control
///   characters, is too long (255 bytes) or lies too deep (64 folders),
/// - it is no regular file or folder, is encrypted or packed by an unknown method,
/// - two entries have the same place or share packed bytes,
/// - there are more entries, folders or bytes than `limits` allow.
ArchivePlan planOf(const ArchiveReader& archive, const ArchiveLimits& limits,
                   const IsProtected& isProtected = {});

}  // namespace quorvin
