// Where the program is and where it may keep the user's files.
#pragma once

#include <QString>

namespace quorvin {

/// The folder that an empty `LocalFolder` stands for, with a trailing separator: the folder of the
/// executable, or, where that cannot be written (an installed program), the user's data folder "quorvin",
/// which is then made together with a text file that explains it (an empty folder would not count as a valid
/// one). Throws RuntimeFault when that folder cannot be made.
QString programFolder();

/// The rule behind programFolder: `executableFolder` with a trailing separator where it can be written, else
/// `dataFolder`, made ready as prepareUserDataFolder does. Throws RuntimeFault when that fails.
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
