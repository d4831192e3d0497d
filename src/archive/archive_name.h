// Where an entry of an archive may be written.
#pragma once

#include <QString>
#include <QStringList>

namespace quorvin {

/// How many folders deep an entry may lie, and how many bytes of the file system each of its names may take.
inline constexpr qsizetype kMostArchiveFolders = 64;
inline constexpr qsizetype kMostNameBytes = 255;

/// The place of an entry below the target folder.
struct ArchivePlace {
  /// The names of the folders and, last, of the file; none is empty, "." or "..".
  QStringList path;
  /// The entry's name ends in a separator: it stands for a folder.
  bool isFolder = false;
};

/// The place that the entry name `name` stands for. Both "/" and "\" separate names, since programs differ;
/// names that are empty or "." are passed over. Throws ArchiveError for what leads or might lead out of the
/// folder (an absolute path, a drive, ".."), for control characters, for names that are too long, and for
/// entries that lie too deep.
ArchivePlace archivePlaceOf(const QString& name);

}  // namespace quorvin
