// SPDX-License-Identifier: GPL-2.0-or-later

// A folder of a test's own, removed with everything in it at the end of the test.
#pragma once

#include "files/path_style.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace quorvin {

/// Throws std::runtime_error when the test's files cannot be made or read, so that a test never goes on
/// with less than it asked for.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    if (!folder_.isValid()) throw std::runtime_error("no temporary folder could be made");
  }
  ~TemporaryFolder() {
    // Qt leaves files behind whose names are no valid text.
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(folder_.path()).constData(), ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The folder's path with a trailing separator, as `LocalFolder` holds it.
  QString path() const {
    return withTrailingSeparator(QDir::toNativeSeparators(folder_.path()), nativePathStyle());
  }

  /// The path of `name` (which may hold sub-folders) inside the folder.
  QString pathOf(const QString& name) const { return path() + name; }

  /// Writes a file with exactly these bytes, making sub-folders as needed, and gives its path.
  QString writeFile(const QString& name, const QByteArray& bytes) const {
    const QString filePath = pathOf(name);
    QDir().mkpath(filePath.left(filePath.lastIndexOf(QDir::separator())));
    QFile file(filePath);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    if (!written) throw std::runtime_error("could not write " + filePath.toStdString());
    return filePath;
  }

  /// The bytes of a file in the folder.
  QByteArray readFile(const QString& name) const {
    QFile file(pathOf(name));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("could not read " + name.toStdString());
    return file.readAll();
  }

  bool has(const QString& name) const { return QFile::exists(pathOf(name)); }

  /// Makes a sub-folder, with those above it, and gives its path with a trailing separator.
  QString makeFolder(const QString& name) const {
    if (!QDir().mkpath(pathOf(name))) throw std::runtime_error("could not make " + name.toStdString());
    return withTrailingSeparator(pathOf(name), nativePathStyle());
  }

  /// The names of all files and folders directly in the folder, hidden ones too, sorted.
  QStringList names() const {
    return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  }

 private:
  QTemporaryDir folder_;
};

/// Makes `folder` the current folder as long as the object lives.
class CurrentFolder {
 public:
  explicit CurrentFolder(const QString& folder) : before_(QDir::currentPath()) {
    if (!QDir::setCurrent(folder)) throw std::runtime_error("could not enter " + folder.toStdString());
  }
  ~CurrentFolder() { QDir::setCurrent(before_); }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;

 private:
  QString before_;
};

}  // namespace quorvin
