// SPDX-License-Identifier: GPL-2.0-or-later

// From a hit back to the file on disk: a hit names its file only by volume, folder and entry text.
#pragma once

#include "files/path_style.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QString>

#include <functional>
#include <optional>

namespace quorvin {

/// A file on disk.
struct HitPath {
  /// The full path of the folder, with a separator at its end.
  QString folder;
  /// The real name of the file in it.
  QString name;

  bool isEmpty() const { return name.isEmpty(); }
  QString fullPath() const { return folder + name; }
};

/// Gives the name of the first ordinary file that fits the pattern, a path whose last part may hold "*" and
/// "?", or empty text; see findOrdinaryFile().
using FileLookUp = std::function<QString(const QString& pattern)>;

/// The full path of a listed folder: `sourceFolder` and what of `listedFolder` lies below it. Since a listing
/// holds the path without its drive, the part to drop is as long as the source's path without its drive;
/// whether the source's path ends in a separator does not matter. Throws fault 5 when the source's path is
/// shorter than a drive.
QString fullFolderPath(const QString& sourceFolder, const QString& listedFolder, PathStyle style);

/// The folder of the first online source whose description equals the volume of a hit exactly; empty for hits
/// from other listings than those of online sources, and where there is no such source.
QString sourceFolderOf(const ProgramState& state, const HitRow& hit);

/// The full folder path of a hit, or nothing for one that cannot be resolved: only hits from listings of
/// online sources can, and only while the first online source whose description equals the volume exactly
/// tells where. Throws as fullFolderPath() does.
std::optional<QString> folderOfHit(const ProgramState& state, const HitRow& hit, PathStyle style);

/// The name of the file in `folder` that `entryText` stands for, or empty text when there is none. A file of
/// exactly that name comes first, then the first one found that starts with it, since a listing cuts names at
/// 65 characters. An entry text beyond these carries the first digit of a very large size; when it finds
/// nothing, the look-up is made once more without it. An entry text that would lead out of the folder finds
/// nothing, and so does one whose file has a name that no text can hold. Throws fault 52 when it holds what
/// no name can hold.
QString fileOfEntry(const QString& folder, const QString& entryText, PathStyle style,
                    const FileLookUp& lookUp);

}  // namespace quorvin
