// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/program_state.h"

#include "files/file_identity.h"
#include "files/path_style.h"
#include "platform/text_encoding.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace quorvin {

void ProgramState::resetFileNames() {
  RegKey = QStringLiteral("Ketta Quorvin");
  LocFile = QStringLiteral("Locations.txt");
  OffLineFile = QStringLiteral("OfflineLocations.txt");
}

QString ProgramState::placeOf(const QString& name) const {
  return isTakenAsItStands(name, nativePathStyle()) ? name : LocalFolder + name;
}

QString ProgramState::onlineListingPath(const QString& description) const {
  return LocalFolder + trimBlanks(description).toString() + QStringLiteral(".txt");
}

bool ProgramState::isOwnFile(const QString& path) const {
  QStringList ownFiles;
  for (const QString& name : {LocFile, OffLineFile, TextFile}) {
    if (!name.isEmpty()) ownFiles += placeOf(name);
  }
  if (ownFiles.contains(path)) return true;
  // Only the file system knows which names are one to it.
  const std::optional<FileIdentity> identity = fileIdentity(path);
  return identity &&
         std::ranges::any_of(ownFiles, [&](const QString& own) { return fileIdentity(own) == identity; });
}

bool ProgramState::isListing(const QString& path) const {
  if (!TextFile.isEmpty() && path == placeOf(TextFile)) return true;
  for (int row = 1; row <= OnlineSourceCount; ++row) {
    if (path == onlineListingPath(OnlineSources.description(row))) return true;
  }
  for (int row = 1; row <= OfflineSourceCount; ++row) {
    if (path == OfflineSources.path(row)) return true;
  }
  return false;
}

bool ProgramState::hasSources() const {
  return OnlineSourceCount > 0 || OfflineSourceCount > 0 || !TextFile.isEmpty();
}

std::function<bool(const QString& path)> ownFileCheck(const ProgramState& state) {
  ProgramState files;
  files.LocalFolder = state.LocalFolder;
  files.LocFile = state.LocFile;
  files.OffLineFile = state.OffLineFile;
  files.TextFile = state.TextFile;
  return [files](const QString& path) { return files.isOwnFile(path); };
}

}  // namespace quorvin
