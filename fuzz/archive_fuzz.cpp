// Unpacking: nothing may appear outside the target folder, and nothing may stay half-written in it. An input
// is the archive.
#include "archive/archive_unpacking.h"
#include "faults/runtime_fault.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>
#include <map>

namespace quorvin {
namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

using Sizes = std::map<QString, std::int64_t>;

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

void requireOnly(const Sizes& planned, const Sizes& found) {
  for (const auto& [name, size] : found) {
    const auto wanted = planned.find(name);
    require(wanted != planned.end() && wanted->second == size);
  }
}

Sizes filesBelow(const QString& folder) {
  Sizes files;
  QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDirIterator::Subdirectories);
  while (all.hasNext()) {
    all.next();
    if (!all.fileInfo().isDir()) files[QDir(folder).relativeFilePath(all.filePath())] = all.fileInfo().size();
  }
  return files;
}

}  // namespace
}  // namespace quorvin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin;
  const QTemporaryDir folder;
  const QString archivePath = folder.filePath(QStringLiteral("it.zip"));
  QFile archive(archivePath);
  const auto length = static_cast<qint64>(size);
  require(archive.open(QIODevice::WriteOnly));
  require(archive.write(reinterpret_cast<const char*>(data), length) == length);
  archive.close();
  require(QDir(folder.path()).mkdir(QStringLiteral("target")));
  ArchiveLimits limits;
  limits.bytes = 1 << 20;
  const QString target = folder.filePath(QStringLiteral("target/"));
  const Sizes planned = plannedFiles(archivePath, limits);
  const auto pause = [](int percent) {
    require(percent >= 0 && percent <= 100);
    return false;
  };
  try {
    const UnpackingResult result = unpackArchive(archivePath, target, pause, limits);
    require(result.error.isEmpty() == (result.outcome == UnpackingOutcome::Unpacked));
    requireOnly(planned, filesBelow(target));
    if (result.outcome == UnpackingOutcome::Unpacked) require(filesBelow(target).size() == planned.size());
  } catch (const RuntimeFault&) {
    // A name that no file can have here, or a folder in the way.
    requireOnly(planned, filesBelow(target));
  }
  require(QDir(folder.path())
              .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
              .size() == 2);
  return 0;
}
