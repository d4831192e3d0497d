// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/archive_packing.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_reader.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <zip.h>

namespace quorvin {

namespace {

// By this an archive is known as one that the program made, and may make again.
constexpr char kMark[] = "Quorvin Utility: a listing packed for sharing";
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

Archive openArchive(const QString& path) {
  int code = 0;
  Archive archive(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, &code));
  if (archive) return archive;
  zip_error_t error;
  zip_error_init_with_code(&error, code);
  const RuntimeFault fault = faultOf(&error, path);
  zip_error_fini(&error);
  throw fault;
}

/// The listing as libzip reads it. libzip has a way of its own to be stopped, but looks at it only when it
/// has written something, which with a listing that packs well is seldom.
class ListingReader {
 public:
  ListingReader(const QString& path, const ArchivePause& pause)
      : file_(path),
        size_(static_cast<std::size_t>(file_.sizeWhenOpened())),
        bytesLeft_(size_),
        pause_(pause) {}

  bool isStopped() const { return isStopped_; }
  const std::optional<RuntimeFault>& fault() const { return fault_; }

  static zip_int64_t serve(void* reader, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<ListingReader*>(reader)->answer(data, length, command);
  }

 private:
  zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
      case ZIP_SOURCE_READ:
        return read({static_cast<char*>(data), static_cast<std::size_t>(length)});
      case ZIP_SOURCE_STAT:
        return stat(static_cast<zip_stat_t*>(data));
      case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&error_, data, length);
      case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                              ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, -1);
      default:
        return 0;
    }
  }

  /// No exception may pass through libzip, which is written in C.
  zip_int64_t read(std::span<char> buffer) {
    try {
      isStopped_ = pause_(percentRead());
      if (!isStopped_) return static_cast<zip_int64_t>(readFile(buffer));
    } catch (const RuntimeFault& fault) {
      fault_ = fault;
    }
    return -1;
  }

  int percentRead() const {
    constexpr std::size_t kFull = 100;
    return size_ == 0 ? 0 : static_cast<int>((size_ - bytesLeft_) * kFull / size_);
  }

  /// Not beyond the length that was announced.
  std::size_t readFile(std::span<char> buffer) {
    const std::size_t count =
        bytesLeft_ == 0 ? 0 : file_.read(buffer.first(std::min(buffer.size(), bytesLeft_)));
    bytesLeft_ -= count;
    return count;
  }

  /// Without the size the archive would be of the kind for large files, which not every program can read.
  zip_int64_t stat(zip_stat_t* status) const {
    zip_stat_init(status);
    status->mtime = std::time(nullptr);
    status->size = size_;
    status->valid = ZIP_STAT_MTIME | ZIP_STAT_SIZE;
    return static_cast<zip_int64_t>(sizeof *status);
  }

  SequentialFile file_;
  std::size_t size_;
  std::size_t bytesLeft_;
  const ArchivePause& pause_;
  /// What libzip is told when it asks why: reading is all that can fail.
  zip_error_t error_{ZIP_ER_READ, 0, nullptr};
  bool isStopped_ = false;
  std::optional<RuntimeFault> fault_;
};

/// The archive as libzip writes it, which left alone would put a file of its own in place.
class ArchiveWriter {
 public:
  explicit ArchiveWriter(FileAside& file) : file_(file) {}

  const std::optional<RuntimeFault>& fault() const { return fault_; }

  static zip_int64_t serve(void* writer, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<ArchiveWriter*>(writer)->answer(data, length, command);
  }

 private:
  zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
      case ZIP_SOURCE_WRITE:
        return write({static_cast<const char*>(data), static_cast<std::size_t>(length)});
      case ZIP_SOURCE_SEEK_WRITE:
        return seek(data, length);
      case ZIP_SOURCE_TELL_WRITE:
        return position_;
      case ZIP_SOURCE_STAT:
        return statOfNothing(static_cast<zip_stat_t*>(data));
      case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&error_, data, length);
      case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_WRITABLE;
      default:
        return 0;
    }
  }

  /// No exception may pass through libzip, which is written in C.
  zip_int64_t write(std::string_view bytes) {
    try {
      file_.writeAt(position_, bytes);
    } catch (const RuntimeFault& fault) {
      fault_ = fault;
      zip_error_set(&error_, ZIP_ER_WRITE, 0);
      return -1;
    }
    position_ += static_cast<std::int64_t>(bytes.size());
    length_ = std::max(length_, position_);
    return static_cast<zip_int64_t>(bytes.size());
  }

  zip_int64_t seek(void* data, zip_uint64_t length) {
    const zip_int64_t place = zip_source_seek_compute_offset(
        static_cast<zip_uint64_t>(position_), static_cast<zip_uint64_t>(length_), data, length, &error_);
    if (place < 0) return -1;
    position_ = place;
    return 0;
  }

  static zip_int64_t statOfNothing(zip_stat_t* status) {
    zip_stat_init(status);
    status->valid = ZIP_STAT_SIZE;
    status->size = 0;
    return static_cast<zip_int64_t>(sizeof *status);
  }

  FileAside& file_;
  std::int64_t position_ = 0;
  std::int64_t length_ = 0;
  zip_error_t error_{};
  std::optional<RuntimeFault> fault_;
};

Archive newArchive(ArchiveWriter& writer, const QString& path) {
  zip_error_t error{};
  zip_source_t* source = zip_source_function_create(ArchiveWriter::serve, &writer, &error);
  Archive archive(source ? zip_open_from_source(source, ZIP_TRUNCATE, &error) : nullptr);
  if (archive) return archive;
  zip_source_free(source);
  throw faultOf(&error, path);
}

void addListing(zip_t* archive, ListingReader& listing, const QByteArray& name) {
  zip_source_t* source = zip_source_function(archive, ListingReader::serve, &listing);
  if (source && zip_file_add(archive, name.constData(), source, ZIP_FL_ENC_UTF_8) >= 0) return;
  zip_source_free(source);
  throw faultOf(archive, QString::fromUtf8(name));
}

/// False when the work was stopped.
bool writeArchive(Archive archive, const ListingReader& listing, const ArchiveWriter& writer,
                  const QString& archivePath) {
  if (zip_close(archive.get()) == 0) {
    static_cast<void>(archive.release());
    return true;
  }
  if (listing.isStopped()) return false;
  if (writer.fault()) throw *writer.fault();
  throw listing.fault() ? *listing.fault() : faultOf(archive.get(), archivePath);
}

bool hasMark(zip_t* archive) {
  int length = 0;
  const char* comment = zip_get_archive_comment(archive, &length, ZIP_FL_ENC_RAW);
  return comment && QByteArrayView(comment, length) == QByteArrayView(kMark, kMarkLength);
}

}  // namespace

PackingOutcome packListing(const QString& listingPath, const QString& archivePath,
                           const ArchivePause& pause) {
  ListingReader listing(listingPath, pause);
  FileAside file(archivePath, {.durability = Durability::None});
  ArchiveWriter writer(file);
  Archive archive = newArchive(writer, archivePath);
  addListing(archive.get(), listing, QFileInfo(listingPath).fileName().toUtf8());
  zip_set_archive_comment(archive.get(), kMark, kMarkLength);
  if (!writeArchive(std::move(archive), listing, writer, archivePath)) return PackingOutcome::Stopped;
  file.commit();
  return PackingOutcome::Packed;
}

bool mayBeReplacedByPacking(const QString& path) {
  const QFileInfo file(path);
  if (!file.exists() && !file.isSymLink()) return true;
  if (file.isFile() && !file.isSymLink() && file.size() == 0) return true;
  return isMadeByPacking(path);
}

bool isMadeByPacking(const QString& path) {
  const QFileInfo file(path);
  if (!file.isFile() || file.isSymLink()) return false;
  try {
    return hasMark(openArchive(path).get());
  } catch (const RuntimeFault&) {
    return false;
  }
}

}  // namespace quorvin
