// What the end of an archive file tells, before the archive is opened.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace quorvin {

/// The largest number of entries that any end record near the end of the first `length` bytes of the file at
/// `path` announces; 0 when there is none. Memory is taken for each entry as an archive is opened, so absurd
/// numbers are to be known before. Throws RuntimeFault when the file cannot be read.
std::uint64_t announcedEntries(const QString& path, std::int64_t length);

/// Called every few milliseconds while a file is looked through; true ends that.
using ArchivePause = std::function<bool()>;

/// The length of the archive at the front of the file, when it ends before `length`: a shorter archive that
/// was written over a longer one. Nothing when there is no such archive. The whole file may have to be read.
/// Throws RuntimeFault when it cannot be, and ArchiveStopped when `pause` ends it.
std::optional<std::int64_t> lengthOfArchiveAtFront(const QString& path, std::int64_t length,
                                                   const ArchivePause& pause);

}  // namespace quorvin
