// Keeping programs that write the same settings file apart.
#pragma once

#include <QString>

namespace quorvin {

/// Holds the right to write a settings file as long as it lives. Only one program has it at a time, and the
/// system takes it back when that program ends, however it ends: a killed program never keeps the next one
/// from saving. The lock stands on an empty file "PATH.lock", which stays.
class IniSettingsLock {
 public:
  /// Waits for other programs to finish, at most `milliseconds`. The folder of `settingsPath` must exist.
  /// Throws RuntimeFault naming `settingsPath`: 75 when the time is over, others as faultOfSystemError maps
  /// them. A file system without locks is no fault: then nothing is kept apart.
  IniSettingsLock(const QString& settingsPath, int milliseconds);
  ~IniSettingsLock();
  IniSettingsLock(const IniSettingsLock&) = delete;
  IniSettingsLock& operator=(const IniSettingsLock&) = delete;

 private:
  int descriptor_;
};

}  // namespace quorvin
