// The settings store in one INI file.
#pragma once

#include "platform/settings_store.h"

#include <QString>

namespace quorvin {

/// Keeps the settings in an INI file. A section of the file is the application name, a slash and the
/// section's name; these and the keys are percent-encoded (an application's name may be a path). Every write
/// reads the file again under a lock file and replaces it as a whole, so that programs that save at the same
/// time keep each other's values.
class IniSettingsStore : public SettingsStore {
 public:
  /// `path` is the INI file; it and its folder are made on the first write.
  explicit IniSettingsStore(const QString& path);

  /// A file that is missing or cannot be read counts as empty.
  QString read(const QString& application, const QString& section, const QString& key,
               const QString& fallback) const override;
  void write(const QString& application, const QString& section, const QString& key,
             const QString& value) override;

 private:
  QString path_;
};

/// The INI file of the user who runs the program: the one that the environment variable QUORVIN_SETTINGS
/// names, else "quorvin/settings.ini" in the user's configuration folder.
QString userSettingsPath();

}  // namespace quorvin
