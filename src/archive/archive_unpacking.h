// Unpacking a zip archive into a folder.
#pragma once

#include "archive/archive_plan.h"

#include <QString>

#include <cstdint>

namespace quorvin {

/// What happens while an archive is unpacked.
class ArchiveEvents {
 public:
  virtual ~ArchiveEvents() = default;

  /// The archive, or an entry of it, is not unpacked. `code` is an ArchiveErrorCode, `description` tells the
  /// user why, and what has become of the files. It is the last event.
  virtual void archiveError(std::int32_t code, const QString& description) = 0;
  /// How much has been unpacked, 0 to 100.
  virtual void percentDone(double percentage) = 0;
  /// Comes every few milliseconds, with a running number: the time to let window events run.
  virtual void idleTick(std::int32_t number) = 0;
  /// A file of `bytes` bytes has been put in place; `name` is its path below the target folder, with "/".
  virtual void fileNotice(const QString& name, std::int64_t bytes) = 0;
  /// Asked after every tick; true ends the unpacking.
  virtual bool stopRequested() const = 0;
};

enum class UnpackingOutcome {
  Unpacked,
  /// The error event has told why.
  Failed,
  Stopped,
};

/// Unpacks every entry of the zip archive in the first `archiveLength` bytes of the file at `archivePath`
/// (all of them when negative) into `targetFolder`, which must exist, replacing files of the same names.
///
/// The whole archive is looked at first (planOf), and nothing is written when anything in it is wrong. Then
/// each file is written aside and put in its place when it is whole and its checksum holds; until then the
/// file that was there stays. When unpacking fails or is stopped on the way, the files that are already in
/// place stay. Throws RuntimeFault when a file cannot be written: a full disk (61), no permission (70), a
/// link or a folder in the way (75).
UnpackingOutcome unpackArchive(const QString& archivePath, const QString& targetFolder, ArchiveEvents& events,
                               const ArchiveLimits& limits = {}, std::int64_t archiveLength = -1);

}  // namespace quorvin
