// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/standard_folders.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/path_style.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace quorvin {

QString userCacheFolder() {
  const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  return withTrailingSeparator(QDir::toNativeSeparators(base + QStringLiteral("/quorvin")),
                               nativePathStyle());
}

QString userDataFolder() {
  const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return withTrailingSeparator(QDir::toNativeSeparators(base + QStringLiteral("/quorvin")),
                               nativePathStyle());
}

void prepareUserDataFolder(const QString& folder) {
  if (!QDir().mkpath(folder)) {
    throw RuntimeFault(FaultNumber::PathFileAccess,
                       describe(FaultNumber::PathFileAccess) + QStringLiteral(": ") + folder);
  }
  const QString note =
      withTrailingSeparator(folder, nativePathStyle()) + QStringLiteral("about-this-folder.txt");
  if (QFileInfo::exists(note)) return;
  replaceFile(note,
              "Quorvin Utility keeps its listings and its lists of sources in this folder.\r\n"
              "You can choose another folder under File, Options.\r\n");
}

ProgramPlace usualProgramPlace() {
  const QString executableFolder = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
  return {withTrailingSeparator(executableFolder, nativePathStyle()), userDataFolder()};
}

bool isInstalledOrBuilt(const QString& executableFolder) {
  return QFileInfo(executableFolder + QStringLiteral("/../share/quorvin/help")).isDir() ||
         QFileInfo(executableFolder + QStringLiteral("/../../share/quorvin/help")).isDir() ||
         QFileInfo(executableFolder + QStringLiteral("/../CMakeCache.txt")).isFile();
}

QString chooseProgramFolder(const QString& executableFolder, const QString& dataFolder) {
  if (!isInstalledOrBuilt(executableFolder) && QFileInfo(executableFolder).isWritable()) {
    return withTrailingSeparator(QDir::toNativeSeparators(executableFolder), nativePathStyle());
  }
  prepareUserDataFolder(dataFolder);
  return dataFolder;
}

QString programFolder() {
  return chooseProgramFolder(QCoreApplication::applicationDirPath(), userDataFolder());
}

}  // namespace quorvin
