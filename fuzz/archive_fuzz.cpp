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

class FileLog : public ArchiveEvents {
 public:
  void archiveError(std::int32_t, const QString& description) override { require(!description.isEmpty()); }
  void percentDone(double percentage) override { require(percentage >= 0 && percentage <= 100); }
  void idleTick(std::int32_t) override {}
  void fileNotice(const QString& name, std::int64_t bytes) override { files[name] = bytes; }
  bool stopRequested() const override { return false; }

  std::map<QString, std::int64_t> files;
};

std::map<QString, std::int64_t> filesBelow(const QString& folder) {
  std::map<QString, std::int64_t> files;
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
  FileLog log;
  try {
    unpackArchive(archivePath, folder.filePath(QStringLiteral("target/")), log, limits);
  } catch (const RuntimeFault&) {
    // A name that no file can have here, or a folder in the way.
  }
  require(filesBelow(folder.filePath(QStringLiteral("target"))) == log.files);
  require(QDir(folder.path())
              .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
              .size() == 2);
  return 0;
}
