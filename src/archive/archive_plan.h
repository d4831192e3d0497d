// Deciding what of an archive is unpacked, before anything is.
#pragma once

#include "archive/archive_name.h"
#include "archive/archive_reader.h"

#include <cstdint>
#include <vector>

namespace quorvin {

/// How much an archive may ask for.
struct ArchiveLimits {
  /// Entries, and the folders that these only imply.
  std::uint64_t entries = 50'000;
  /// Bytes of all files together, unpacked.
  std::uint64_t bytes = std::uint64_t{4} << 30;
};

/// An entry that may be unpacked, and its place.
struct PlannedEntry {
  ArchiveEntry entry;
  ArchivePlace place;
};

struct ArchivePlan {
  std::vector<PlannedEntry> entries;
  /// Bytes of all files together, as the archive announces them.
  std::uint64_t bytes = 0;
};

/// Looks at every entry of `archive`. Throws ArchiveError when one of them is
/// not to be unpacked: for its name, because it is no regular file or folder, because it is encrypted or
/// packed by an unknown method, because two have the same place, because they share packed bytes, or because
/// there are more of them, of their folders, or of their bytes, than `limits` allow.
ArchivePlan planOf(const ArchiveReader& archive, const ArchiveLimits& limits);

}  // namespace quorvin
