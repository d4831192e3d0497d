#include "archive/archive_reader.h"

#include "archive/archive_end.h"
#include "faults/runtime_fault.h"
#include "files/random_access_file.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <zip.h>

namespace quorvin {
namespace {

constexpr std::int64_t kBlockSize = std::int64_t{1} << 16;

QString fileNameOf(const QString& path) {
  return shownEntryName(QFileInfo(path).fileName());
}

ArchiveError openingError(const QString& path, int code) {
  const auto error = [&path](ArchiveErrorCode kind, const QString& text) {
    return ArchiveError(kind, text.arg(fileNameOf(path)) + QStringLiteral(" Nothing was unpacked."));
  };
  switch (code) {
    case ZIP_ER_NOZIP:
      return error(ArchiveErrorCode::NotAnArchive,
                   QStringLiteral("\"%1\" is no zip archive, or its end is missing."));
    case ZIP_ER_EXISTS:
      return error(ArchiveErrorCode::DuplicateName,
                   QStringLiteral("The archive \"%1\" holds two entries of the same name."));
    case ZIP_ER_MULTIDISK:
      return error(ArchiveErrorCode::NotAnArchive,
                   QStringLiteral("\"%1\" is only a part of an archive of several files."));
    case ZIP_ER_OPEN:
    case ZIP_ER_READ:
    case ZIP_ER_SEEK:
    case ZIP_ER_NOENT:
      return error(ArchiveErrorCode::CannotRead, QStringLiteral("The archive \"%1\" cannot be read."));
    default:
      return error(ArchiveErrorCode::Contradictory,
                   QStringLiteral("The archive \"%1\" is damaged: its parts contradict each other."));
  }
}

zip* openFirstBytes(const QString& path, std::int64_t length) {
  zip_error_t error;
  zip_error_init(&error);
  const std::unique_ptr<zip_error_t, decltype(&zip_error_fini)> finish(&error, &zip_error_fini);
  zip_source_t* source = zip_source_file_create(QFile::encodeName(path).constData(), 0, length, &error);
  if (source == nullptr) throw openingError(path, zip_error_code_zip(&error));
  zip* archive = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error);
  if (archive != nullptr) return archive;
  zip_source_free(source);
  throw openingError(path, zip_error_code_zip(&error));
}

void checkAnnounced(const QString& path, std::int64_t length, std::uint64_t mostEntries) {
  if (announcedEntries(path, length) <= mostEntries) return;
  throw ArchiveError(ArchiveErrorCode::TooManyEntries,
                     QStringLiteral("The archive \"%1\" holds more than %2 entries. Nothing was unpacked.")
                         .arg(fileNameOf(path))
                         .arg(mostEntries));
}

// The length of the archive at the front of the file, when it ends before `length`: a shorter archive that
// was written over a longer one. The whole file may have to be read.
std::optional<std::int64_t> lengthOfArchiveAtFront(const QString& path, std::int64_t length,
                                                   const ArchivePause& pause) {
  const RandomAccessFile file(path);
  ArchiveEnd end;
  for (std::int64_t position = 0; position < length; position += kBlockSize) {
    QByteArray block(static_cast<qsizetype>(std::min(kBlockSize, length - position)), Qt::Uninitialized);
    file.read(position,
              std::as_writable_bytes(std::span(block.data(), static_cast<std::size_t>(block.size()))));
    if (position == 0 && ArchiveEnd::canStartWith(block) != true) return std::nullopt;
    const std::optional<qsizetype> last = end.feed(block);
    if (!last) {
      if (pause && pause(0)) throw ArchiveStopped();
      continue;
    }
    const std::int64_t found = position + *last;
    if (found < length) return found;
    return std::nullopt;
  }
  return std::nullopt;
}

// An archive that was written over a longer one is followed by the rest of that, with an end record of its
// own that no longer fits anything.
zip* openArchive(const QString& path, std::int64_t length, std::uint64_t mostEntries,
                 const ArchivePause& pause) {
  checkAnnounced(path, length, mostEntries);
  try {
    return openFirstBytes(path, length);
  } catch (const ArchiveError& error) {
    const bool mayHaveLeftovers =
        error.code() == ArchiveErrorCode::NotAnArchive || error.code() == ArchiveErrorCode::Contradictory;
    if (!mayHaveLeftovers) throw;
    const std::optional<std::int64_t> front = lengthOfArchiveAtFront(path, length, pause);
    if (!front) throw;
    checkAnnounced(path, *front, mostEntries);
    return openFirstBytes(path, *front);
  }
}

// The older code page of DOS has signs of its own for the control characters, which would hide them.
QString nameOfEntry(zip* archive, std::uint64_t index, const char* name) {
  const QByteArray stored(zip_get_name(archive, index, ZIP_FL_ENC_RAW));
  const bool hasControls = std::any_of(stored.begin(), stored.end(), [](char byte) {
    constexpr unsigned char kDelete = 0x7F;
    const auto code = static_cast<unsigned char>(byte);
    return code < ' ' || code == kDelete;
  });
  return hasControls ? QString::fromLatin1(stored) : QString::fromUtf8(name);
}

ArchiveError entryError(const ArchiveEntry& entry, const QString& what) {
  return {ArchiveErrorCode::DamagedEntry,
          QStringLiteral("\"%1\" in the archive is damaged: %2.").arg(shownEntryName(entry.name), what)};
}

QString textOfReadError(int code) {
  switch (code) {
    case ZIP_ER_CRC:
      return QStringLiteral("its checksum is wrong");
    case ZIP_ER_READ:
    case ZIP_ER_SEEK:
      return QStringLiteral("it cannot be read");
    default:
      return QStringLiteral("its content cannot be unpacked");
  }
}

}  // namespace

QString shownEntryName(const QString& name) {
  constexpr qsizetype kMostShown = 120;
  constexpr qsizetype kEndShown = 40;
  QString shown = name;
  for (QChar& character : shown) {
    if (!character.isPrint() && !character.isSurrogate()) character = u'?';
  }
  if (shown.size() <= kMostShown) return shown;
  return shown.left(kMostShown - kEndShown) + QStringLiteral("...") + shown.right(kEndShown);
}

ArchiveReader::ArchiveReader(const QString& path, std::int64_t length, std::uint64_t mostEntries,
                             const ArchivePause& pause) {
  const QFileInfo file(path);
  if (!file.isFile()) throw openingError(path, ZIP_ER_NOENT);
  length_ = length < 0 ? file.size() : std::min<std::int64_t>(length, file.size());
  // For the library a length of 0 stands for the whole file.
  if (length_ == 0) throw openingError(path, ZIP_ER_NOZIP);
  try {
    archive_ = openArchive(path, length_, mostEntries, pause);
  } catch (const RuntimeFault&) {
    throw openingError(path, ZIP_ER_READ);
  }
}

ArchiveReader::~ArchiveReader() {
  zip_discard(archive_);
}

std::uint64_t ArchiveReader::entryCount() const {
  return static_cast<std::uint64_t>(zip_get_num_entries(archive_, 0));
}

ArchiveEntry ArchiveReader::entry(std::uint64_t index) const {
  zip_stat_t status;
  zip_stat_init(&status);
  constexpr zip_uint64_t kNeeded =
      ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_ENCRYPTION_METHOD;
  const bool isKnown =
      zip_stat_index(archive_, index, 0, &status) == 0 && (status.valid & kNeeded) == kNeeded;
  if (!isKnown) {
    throw ArchiveError(
        ArchiveErrorCode::Contradictory,
        QStringLiteral("The archive is damaged: it does not say what its entry %1 is. Nothing was unpacked.")
            .arg(index + 1));
  }
  ArchiveEntry entry{index, nameOfEntry(archive_, index, status.name), status.size, status.comp_size};
  entry.isEncrypted = status.encryption_method != ZIP_EM_NONE;
  entry.hasKnownMethod = status.comp_method == ZIP_CM_STORE || status.comp_method == ZIP_CM_DEFLATE;
  zip_uint8_t system = 0;
  zip_uint32_t attributes = 0;
  if (zip_file_get_external_attributes(archive_, index, 0, &system, &attributes) == 0) {
    entry.mode = attributes >> 16U;
  }
  return entry;
}

ArchiveContent::ArchiveContent(const ArchiveReader& archive, const ArchiveEntry& entry)
    : entry_(entry), content_(zip_fopen_index(archive.archive_, entry.index, 0)) {
  if (content_ != nullptr) return;
  throw entryError(entry, textOfReadError(zip_error_code_zip(zip_get_error(archive.archive_))));
}

ArchiveContent::~ArchiveContent() {
  zip_fclose(content_);
}

std::size_t ArchiveContent::read(std::span<char> buffer) {
  const zip_int64_t count = zip_fread(content_, buffer.data(), buffer.size());
  if (count < 0) {
    throw entryError(entry_, textOfReadError(zip_error_code_zip(zip_file_get_error(content_))));
  }
  count_ += static_cast<std::uint64_t>(count);
  if (count_ > entry_.size) throw entryError(entry_, QStringLiteral("it is longer than it should be"));
  if (count == 0 && count_ < entry_.size) {
    throw entryError(entry_, QStringLiteral("it is shorter than it should be"));
  }
  return static_cast<std::size_t>(count);
}

}  // namespace quorvin
