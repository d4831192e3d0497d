// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/protected_files.h"

#include "files/file_identity.h"
#include "state/volume_notes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace quorvin {

namespace {

constexpr QStringView kOnlineListName = u"Locations.txt";
constexpr QStringView kOfflineListName = u"OfflineLocations.txt";

/// Empty where there is no such folder.
QString canonicalFolder(const QString& folder) {
  return folder.isEmpty() ? QString() : QDir(folder).canonicalPath();
}

QString canonicalFile(const QString& path) {
  const QFileInfo file(path);
  const QString folder = path.isEmpty() ? QString() : canonicalFolder(file.path());
  return folder.isEmpty() ? QString() : QDir(folder).filePath(file.fileName());
}

bool isBelow(const QString& path, const QString& folder) {
  return !folder.isEmpty() && path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

bool isNameOfWhatRuns(const QString& fileName) {
  static const QRegularExpression pattern(
      QStringLiteral("^(quorvin(-cli|-metafile)?|qt\\.conf|.*\\.(exe|dll|dylib|so(\\.[0-9]+)*))$"),
      QRegularExpression::CaseInsensitiveOption);
  return pattern.match(fileName).hasMatch();
}

/// Rights say little: on some drives every file may be run.
bool holdsWhatRuns(const QString& path) {
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray start = file.read(4);
  return start ==
             "\x7f"
             "ELF" ||
         start.startsWith("#!") || start.startsWith("MZ");
}

}  // namespace

bool isSourceListName(const QString& name) {
  return name.startsWith(kOnlineListName) || name.startsWith(kOfflineListName);
}

ProtectedFiles::ProtectedFiles(const ProgramState& state, const QString& folder, const OwnPlaces& places)
    : folder_(folder),
      userFiles_{folder + state.LocFile, folder + state.OffLineFile,
                 folder + QString::fromUtf16(VolumeNotes::kFileName)},
      canonicalFolder_(canonicalFolder(folder)),
      places_{canonicalFolder(places.executableFolder), canonicalFile(places.settingsPath),
              canonicalFolder(places.runtimeFolder)} {}

bool ProtectedFiles::has(const QStringList& path) const {
  const QString target = QDir(canonicalFolder_).filePath(path.join(u'/'));
  return isOfTheUser(path) || isOfTheSettings(target) || couldRun(target);
}

/// Only the file system knows which other names lead to the same place, as capitals do on some.
bool ProtectedFiles::isOfTheUser(const QStringList& path) const {
  const QString& top = path.first();
  if (isSourceListName(top) || top == u"history") return true;
  if (isSameFile(folder_ + top, folder_ + QStringLiteral("history"))) return true;
  const QString wanted = folder_ + path.join(u'/');
  return std::ranges::any_of(userFiles_, [&](const QString& file) { return isSameFile(wanted, file); });
}

bool ProtectedFiles::isOfTheSettings(const QString& target) const {
  const QString& settings = places_.settingsPath;
  if (!settings.isEmpty() && (target.startsWith(settings) || isSameFile(target, settings))) return true;
  return isBelow(target, places_.runtimeFolder);
}

bool ProtectedFiles::couldRun(const QString& target) const {
  if (!isBelow(target, places_.executableFolder)) return false;
  return isNameOfWhatRuns(target.mid(target.lastIndexOf(u'/') + 1)) || holdsWhatRuns(target);
}

}  // namespace quorvin
