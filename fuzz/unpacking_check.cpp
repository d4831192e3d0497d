// SPDX-License-Identifier: GPL-2.0-or-later
#include "fuzz/unpacking_check.h"

#include "archive/archive_unpacking.h"
#include "faults/runtime_fault.h"
#include "fuzz/require.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>

namespace quorvin::fuzz {
namespace {

using Sizes = std::map<QString, std::int64_t>;

constexpr auto kEverything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/// The files that the archive may put in place, with their sizes; none when it is not to be unpacked.
Sizes plannedFiles(const QString& archivePath, const ArchiveLimits& limits) {
  Sizes files;
  try {
    const ArchiveReader archive(archivePath, -1, limits.entries);
    for (const PlannedEntry& planned : planOf(archive, limits).entries) {
      if (planned.place.isFolder) continue;
      files[planned.place.path.join(u'/')] = static_cast<std::int64_t>(planned.entry.size);
    }
  } catch (const ArchiveError&) {
    return {};
  }
  return files;
}

Sizes filesBelow(const QString& folder) {
  Sizes files;
  QDirIterator all(folder, kEverything, QDirIterator::Subdirectories);
  while (all.hasNext()) {
    all.next();
    if (!all.fileInfo().isDir()) files[QDir(folder).relativeFilePath(all.filePath())] = all.fileInfo().size();
  }
  return files;
}

void requireOnly(const Sizes& planned, const Sizes& found) {
  for (const auto& [name, size] : found) {
    const auto wanted = planned.find(name);
    require(wanted != planned.end(), "only planned files are there: " + name.toStdString());
    require(wanted->second == size, "files have their planned sizes: " + name.toStdString());
  }
}

void requireContents(const QString& folder, const std::map<QString, QByteArray>& contents) {
  for (const auto& [name, content] : contents) {
    QFile file(folder + name);
    if (!file.open(QIODevice::ReadOnly)) continue;
    require(file.readAll() == content, "what was packed comes out: " + name.toStdString());
  }
}

void writeWhole(const QString& path, QByteArrayView bytes) {
  QFile file(path);
  const bool isWritten =
      file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size();
  require(isWritten, "the archive can be written");
}

}  // namespace

void checkUnpacking(QByteArrayView archive, const std::map<QString, QByteArray>& contents) {
  const QTemporaryDir folder;
  const QString archivePath = folder.filePath(QStringLiteral("it.zip"));
  writeWhole(archivePath, archive);
  require(QDir(folder.path()).mkdir(QStringLiteral("target")), "a folder can be made");
  ArchiveLimits limits;
  limits.bytes = 1 << 20;
  const QString target = folder.filePath(QStringLiteral("target/"));
  const Sizes planned = plannedFiles(archivePath, limits);
  const auto pause = [](int percent) {
    require(percent >= 0 && percent <= 100, "per cent are 0 to 100");
    return false;
  };
  try {
    const UnpackingResult result = unpackArchive(archivePath, target, pause, {.limits = limits});
    const bool isUnpacked = result.outcome == UnpackingOutcome::Unpacked;
    require(result.error.isEmpty() == isUnpacked, "a failure has a sentence");
    if (isUnpacked)
      require(filesBelow(target).size() == planned.size(), "all of a sound archive is unpacked");
  } catch (const RuntimeFault&) {
    // A name that no file can have here, or a folder in the way.
  }
  requireOnly(planned, filesBelow(target));
  requireContents(target, contents);
  require(QDir(folder.path()).entryList(kEverything).size() == 2, "nothing appears beside the folder");
}

}  // namespace quorvin::fuzz
