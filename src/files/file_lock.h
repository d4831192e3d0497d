// Keeping programs that change the same files apart.
#pragma once

#include "files/descriptor.h"

#include <QString>

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

 private:
  Descriptor file_;
};

}  // namespace quorvin
