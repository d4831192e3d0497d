// SPDX-License-Identifier: GPL-2.0-or-later

// The settings store in one INI file.
#pragma once

#include "platform/settings_store.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace quorvin {

/// An INI file's lines, UTF-8. Lines that are not understood (comments, other people's entries) are kept as
/// they are. Section names and keys stand as they are: they hold no line end, no "=" in a key, and neither
/// brackets nor blanks at their ends. Values may be any text: backslashes, line ends, tabs, NULs, and blanks
/// at either end are written as "\\", "\n", "\r", "\t", "\0" and "\s". Of a section or key that is there
/// twice, the first counts. A byte order mark at the front is dropped.
class IniText {
 public:
  IniText() = default;
  explicit IniText(const QByteArray& text);

  std::optional<QString> value(const QString& section, const QString& key) const;
  void setValue(const QString& section, const QString& key, const QString& value);

  QByteArray text() const;

 private:
  /// The line of the section's heading, or -1.
  qsizetype headingOf(const QString& section) const;
  /// The line of the key in the section that begins at `heading`, or -1.
  qsizetype lineOf(qsizetype heading, const QString& key) const;
  /// Behind the last line of that section that is not empty.
  qsizetype endOf(qsizetype heading) const;

  QList<QByteArray> lines_;
};

/// Keeps the settings in an INI file. A section of the file is the application name, a slash and the
/// section's name; these and the keys are percent-encoded (an application's name may be a path). Every write
/// reads the file again under a lock file and replaces it as a whole, so that programs that save at the same
/// time keep each other's values.
class IniSettingsStore : public SettingsStore {
 public:
  /// `path` is the INI file; it and its folder are made on the first write.
  explicit IniSettingsStore(const QString& path);

  /// A missing file counts as empty. Throws RuntimeFault for one that is there and cannot be read: 70 without
  /// permission, 75 for what is no file, and others as SequentialFile does.
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
