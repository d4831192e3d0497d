// SPDX-License-Identifier: GPL-2.0-or-later

// Where the program is and where it may keep the user's files.
#pragma once

#include <QString>

namespace quorvin {

/// The two folders in which the program may keep the user's files, each with a trailing separator.
struct ProgramPlace {
  QString executableFolder;
  QString dataFolder;
};

/// Those of this run: where the executable is, and userDataFolder().
ProgramPlace usualProgramPlace();

/// Whether the program in `executableFolder` was installed, that is the help is in "share/quorvin" beside
/// that folder ("bin") or the one above it ("libexec/quorvin"), or was built there, that is CMake's cache is
/// in the folder above. Such a folder may be emptied or removed by those who make it, whoever may write
/// there.
bool isInstalledOrBuilt(const QString& executableFolder);

/// The folder that an empty `LocalFolder` stands for, with a trailing separator: the folder of the executable
/// where that was copied as it is and can be written (a portable program), else the user's data folder
/// "quorvin", which is then made together with a text file that explains it (an empty folder would not count
/// as a valid one). Throws RuntimeFault when that folder cannot be made.
QString programFolder();

/// The rule behind programFolder, with a trailing separator: `executableFolder` where it is neither installed
/// nor built and can be written, else `dataFolder`, made ready as prepareUserDataFolder does. Throws
/// RuntimeFault when that fails.
QString chooseProgramFolder(const QString& executableFolder, const QString& dataFolder);

/// The user's cache folder for the program, with a trailing separator; not made. What is there can be
/// made again.
QString userCacheFolder();

/// The user's data folder for the program, with a trailing separator; not made.
QString userDataFolder();

/// Makes `folder` and the explaining text file in it where they are missing. Throws RuntimeFault when that
/// fails.
void prepareUserDataFolder(const QString& folder);

}  // namespace quorvin
