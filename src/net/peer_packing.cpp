#include "net/peer_packing.h"

#include "platform/file_writer.h"
#include "platform/runtime_fault.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <memory>
#include <zip.h>

namespace quorvin {

namespace {

// By this an archive is known as one that the program made, and may make again.
constexpr char kMark[] = "Quorvin Utility: a listing packed for sharing";
constexpr zip_int64_t kToTheEnd = 0;
constexpr zip_uint16_t kMarkLength = sizeof kMark - 1;

struct Discard {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, Discard>;

RuntimeFault faultOf(zip_error_t* error, const QString& path) {
  if (zip_error_system_type(error) == ZIP_ET_SYS)
    return faultOfSystemError(zip_error_code_system(error), path);
  return {FaultNumber::PathFileAccess,
          QString::fromUtf8(zip_error_strerror(error)) + QStringLiteral(": ") + path};
}

RuntimeFault faultOf(zip_t* archive, const QString& path) {
  return faultOf(zip_get_error(archive), path);
}

Archive openArchive(const QString& path, int flags) {
  int code = 0;
  Archive archive(zip_open(QFile::encodeName(path).constData(), flags, &code));
  if (archive) return archive;
  zip_error_t error;
  zip_error_init_with_code(&error, code);
  const RuntimeFault fault = faultOf(&error, path);
  zip_error_fini(&error);
  throw fault;
}

void addListing(zip_t* archive, const QString& listingPath) {
  const QByteArray name = QFileInfo(listingPath).fileName().toUtf8();
  zip_source_t* source = zip_source_file(archive, QFile::encodeName(listingPath).constData(), 0, kToTheEnd);
  if (!source) throw faultOf(archive, listingPath);
  if (zip_file_add(archive, name.constData(), source, ZIP_FL_ENC_UTF_8) >= 0) return;
  zip_source_free(source);
  throw faultOf(archive, listingPath);
}

int askWhetherToStop(zip_t*, void* pause) {
  return (*static_cast<const PackingPause*>(pause))() ? 1 : 0;
}

/// False when the work was stopped.
bool writeArchive(Archive archive, const QString& listingPath, PackingPause pause) {
  zip_register_cancel_callback_with_state(archive.get(), askWhetherToStop, nullptr, &pause);
  if (zip_close(archive.get()) == 0) {
    static_cast<void>(archive.release());
    return true;
  }
  if (zip_error_code_zip(zip_get_error(archive.get())) == ZIP_ER_CANCELLED) return false;
  throw faultOf(archive.get(), listingPath);
}

bool hasMark(zip_t* archive) {
  int length = 0;
  const char* comment = zip_get_archive_comment(archive, &length, ZIP_FL_ENC_RAW);
  return comment && QByteArrayView(comment, length) == QByteArrayView(kMark, kMarkLength);
}

/// A folder beside the archive, so that the finished file can be renamed into its place.
QTemporaryDir workFolderBeside(const QString& path) {
  return QTemporaryDir(QFileInfo(path).absolutePath() + QStringLiteral("/.quorvin-XXXXXX"));
}

}  // namespace

PackingOutcome packListing(const QString& listingPath, const QString& archivePath,
                           const PackingPause& pause) {
  if (!QFileInfo(listingPath).isFile()) throw RuntimeFault(FaultNumber::FileNotFound);
  const QTemporaryDir work = workFolderBeside(archivePath);
  if (!work.isValid()) {
    throw RuntimeFault(FaultNumber::PathFileAccess, work.errorString() + QStringLiteral(": ") + archivePath);
  }
  const QString aside = work.filePath(QStringLiteral("list.zip"));
  Archive archive = openArchive(aside, ZIP_CREATE | ZIP_EXCL);
  addListing(archive.get(), listingPath);
  zip_set_archive_comment(archive.get(), kMark, kMarkLength);
  if (!writeArchive(std::move(archive), listingPath, pause)) return PackingOutcome::Stopped;
  putInPlace(aside, archivePath);
  return PackingOutcome::Packed;
}

bool mayBeReplacedByPacking(const QString& path) {
  const QFileInfo file(path);
  if (!file.exists() && !file.isSymLink()) return true;
  if (!file.isFile() || file.isSymLink()) return false;
  if (file.size() == 0) return true;
  try {
    return hasMark(openArchive(path, ZIP_RDONLY).get());
  } catch (const RuntimeFault&) {
    return false;
  }
}

}  // namespace quorvin
