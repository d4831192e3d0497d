// SPDX-License-Identifier: GPL-2.0-or-later

// Keeping programs that change the same files apart.
#pragma once

#include "files/descriptor.h"

#include <QString>

#include <optional>
#include <utility>

namespace quorvin {

/// Holds the right to change a file as long as it lives. Only one program has it at a time, and the system
/// takes it back when that program ends, however it ends: a killed program never keeps the next one from
/// saving. The lock is on an empty file "PATH.lock", which stays.
class FileLock {
 public:
  /// Waits for other programs to finish, at most `milliseconds`. The folder of `path` must exist. Throws
  /// RuntimeFault naming `path`: 75 when the time is over, others as faultOfSystemError maps them. A file
  /// system without locks is no fault: then nothing is kept apart.
  FileLock(const QString& path, int milliseconds);

  /// The same right by a lock on the file at `path` itself, without a file beside it: whoever replaces the
  /// file under such a lock replaces what was there when the lock was taken. Where there is no file, or it
  /// cannot be opened, nothing is kept apart.
  static FileLock onFileItself(const QString& path, int milliseconds);

 private:
  explicit FileLock(Descriptor file) : file_(std::move(file)) {}

  Descriptor file_;
};

/// Holds a folder as long as it lives, for work that only one program at a time may do in it. The lock is on
/// the folder itself, so that it leaves no file behind, and the system takes it back when its program ends,
/// however it ends.
class FolderLock {
 public:
  /// Nothing while another holder has the folder, in this program or another. Never waits, never throws: a
  /// folder that cannot be opened, or a file system without locks, keeps nobody apart.
  static std::optional<FolderLock> take(const QString& folder);

 private:
  explicit FolderLock(Descriptor folder) : folder_(std::move(folder)) {}

  Descriptor folder_;
};

}  // namespace quorvin
