// SPDX-License-Identifier: GPL-2.0-or-later

// Which files nothing that comes from elsewhere may replace.
#pragma once

#include "state/program_state.h"

#include <QString>
#include <QStringList>

namespace quorvin {

/// Whether a file of this name in a data folder is a source list: the one of a settings set, or a copy that
/// was kept of one.
bool isSourceListName(const QString& name);

/// Where the program and what it keeps outside the data folder are.
struct OwnPlaces {
  /// The folder of the executable.
  QString executableFolder;
  /// The settings file; the recovery copies and the lock are beside it.
  QString settingsPath;
  /// The folder of the locks of running programs.
  QString runtimeFolder;
};

/// The files below a data folder that an archive must not write, whether they are there already or not: the
/// source lists, the notes on volumes and the listing history; the settings with their recovery copies and
/// the locks of running programs, where the data folder holds them too; and, where it holds the program, what
/// could run in its place: programs, libraries, and the file that says where to look for these. Everything
/// else in a data folder may be replaced: listings, the main data file, pages of the manual.
class ProtectedFiles {
 public:
  /// `folder` is the data folder, with a trailing separator. It is looked at now and in has().
  ProtectedFiles(const ProgramState& state, const QString& folder, const OwnPlaces& places);

  /// Whether the file that the names in `path` lead to, from the data folder on, is one of them. None of the
  /// names is empty, "." or "..", and none of the folders on the way is a link.
  bool has(const QStringList& path) const;

 private:
  bool isOfTheUser(const QStringList& path) const;
  bool isOfTheSettings(const QString& target) const;
  bool couldRun(const QString& target) const;

  QString folder_;
  QStringList userFiles_;
  /// Without links in them, so that paths can be compared.
  QString canonicalFolder_;
  OwnPlaces places_;
};

}  // namespace quorvin
