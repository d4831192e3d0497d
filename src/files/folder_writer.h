// SPDX-License-Identifier: GPL-2.0-or-later

// Writing files below a folder without ever leaving it.
#pragma once

#include "files/file_aside.h"

#include <QString>
#include <QStringList>

namespace quorvin {

/// The folder below which files are written. Folders on the way are made as they are needed; a link on the
/// way is refused, since it may lead anywhere.
class FolderWriter {
 public:
  /// Opens `folder`, which may itself be reached by links. Throws RuntimeFault when it cannot be opened.
  explicit FolderWriter(const QString& folder);

  /// Makes the folder that the names in `path` lead to, if it is not there. The names must be names: not
  /// empty, not "." or "..", without separators. Throws RuntimeFault: 75 for a link or a file on the way, and
  /// others as faultOfSystemError maps them.
  void makeFolder(const QStringList& path) const;

  /// Starts the file that the names in `path` lead to. A link there is replaced itself, not what it leads to.
  /// Throws as makeFolder() does.
  FileAside newFile(const QStringList& path) const;

 private:
  Descriptor enter(const QStringList& path, qsizetype count) const;
  QString shownPath(const QStringList& path, qsizetype count) const;

  QString folder_;
  Descriptor top_;
};

}  // namespace quorvin
