// SPDX-License-Identifier: GPL-2.0-or-later

// Unpacking a zip archive into a folder.
#pragma once

#include "archive/archive_plan.h"
#include "work/work.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

namespace quorvin {

enum class UnpackingOutcome { Unpacked, Failed, Stopped };

/// What came of an unpacking.
struct UnpackingResult {
  UnpackingOutcome outcome = UnpackingOutcome::Unpacked;
  /// Only for `Failed`: what is wrong with the archive, and sentences for the user that say so and what has
  /// become of the files.
  ArchiveErrorCode errorCode = {};
  QString error;
  /// The names of the entries that were left out, since they are protected.
  QStringList leftOut;
};

/// Called before a file is put in its place, when it is whole: `name` is its path below the target folder,
/// parted by "/", and `made` is where it is until then.
using BeforeReplacing = std::function<void(const QString& name, const QString& made)>;

struct UnpackingOptions {
  ArchiveLimits limits = {};
  /// How many bytes of the file, from its start, are the archive; all of them when negative.
  std::int64_t archiveLength = -1;
  /// Both may be empty.
  BeforeReplacing beforeReplacing = {};
  IsProtected isProtected = {};
};

/// Unpacks every entry of the zip archive at `archivePath` that is not protected into `targetFolder`, which
/// must exist, replacing files of the same names. `pause` is called at the start, every few milliseconds, and
/// at the end.
///
/// The whole archive is judged first (planOf), and nothing is written when anything in it is wrong. Then each
/// file is written aside and put in its place when it is whole and its checksum is right; until then the
/// earlier file stays. When unpacking fails or is stopped on the way, the files that are already in place
/// stay. Throws RuntimeFault when a file cannot be written: a full disk (61), no permission (70), a link or a
/// folder in the way (75).
UnpackingResult unpackArchive(const QString& archivePath, const QString& targetFolder,
                              const ArchivePause& pause, const UnpackingOptions& options = {});

/// The same as a part of `job`: what has been done is shown on the bar of its display, in per cent, and a
/// stop request ends the unpacking.
UnpackingResult unpackArchive(Job& job, const QString& archivePath, const QString& targetFolder,
                              const UnpackingOptions& options = {});

}  // namespace quorvin
