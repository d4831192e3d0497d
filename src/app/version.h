// SPDX-License-Identifier: GPL-2.0-or-later

// The program's name and version, as people see them.
#pragma once

#include <QString>

namespace quorvin {

/// The three numbers of the version; they come from the project's version in the top CMakeLists.txt.
struct ProgramVersion {
  int majorNumber;
  int minorNumber;
  int revision;
};

ProgramVersion programVersion();

/// The caption of `lblVer`: "Ver:2.5(64)".
QString versionCaption();

/// The version as the about window shows it: "Version 2.5.64".
QString versionText();

/// The title of the windows and of all message boxes: "Quorvin Utility".
QString applicationTitle();

/// The title of the main window that shows the listing at `path`, which the command line has named: its file
/// name comes first ("cds.txt - Quorvin Utility").
QString windowTitle(const QString& path);

/// One line that says what the program is: "Text file / folder list searching utility".
QString applicationDescription();

}  // namespace quorvin
