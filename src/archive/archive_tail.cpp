#include "archive/archive_tail.h"

#include "archive/archive_end.h"
#include "archive/archive_error.h"
#include "archive/zip_records.h"
#include "files/random_access_file.h"

#include <QByteArray>

#include <algorithm>
#include <cstddef>
#include <span>

namespace quorvin {
namespace {

/// An end record with the longest comment.
constexpr std::int64_t kTailSize = kZipEndRecordSize + 65535 + kZipLocatorSize;
constexpr std::int64_t kBlockSize = std::int64_t{1} << 16;

QByteArray bytesAt(const RandomAccessFile& file, std::int64_t position, std::int64_t count) {
  QByteArray bytes(static_cast<qsizetype>(count), Qt::Uninitialized);
  file.read(position, std::as_writable_bytes(std::span(bytes.data(), static_cast<std::size_t>(count))));
  return bytes;
}

// The number in the large end record that the locator before the end record at `at` points to.
std::optional<std::uint64_t> entriesOfLargeRecord(const RandomAccessFile& file, std::int64_t length,
                                                  const QByteArray& tail, qsizetype at) {
  const qsizetype locator = at - kZipLocatorSize;
  if (!zipRecordIsAt(tail, locator, kZipLargeEndLocator)) return std::nullopt;
  const auto place = zipNumberAt<quint64>(tail, locator + 8);
  if (place > static_cast<quint64>(std::max<std::int64_t>(0, length - kZipLargeEndRecordSize)))
    return std::nullopt;
  const QByteArray record = bytesAt(file, static_cast<std::int64_t>(place), kZipLargeEndRecordSize);
  if (!record.startsWith(kZipLargeEndRecord)) return std::nullopt;
  return std::max<std::uint64_t>(zipNumberAt<quint64>(record, 24), zipNumberAt<quint64>(record, 32));
}

}  // namespace

std::uint64_t announcedEntries(const QString& path, std::int64_t length) {
  const RandomAccessFile file(path);
  const std::int64_t tailSize = std::min(length, kTailSize);
  const QByteArray tail = bytesAt(file, length - tailSize, tailSize);
  std::uint64_t most = 0;
  for (qsizetype at = tail.indexOf(kZipEndRecord); at >= 0; at = tail.indexOf(kZipEndRecord, at + 1)) {
    if (tail.size() - at < kZipEndRecordSize) break;
    const std::uint64_t plain = zipNumberAt<quint16>(tail, at + 10);
    most = std::max(most, entriesOfLargeRecord(file, length, tail, at).value_or(plain));
  }
  return most;
}

std::optional<std::int64_t> lengthOfArchiveAtFront(const QString& path, std::int64_t length,
                                                   const ArchivePause& pause) {
  const RandomAccessFile file(path);
  PeerArchiveEnd end;
  for (std::int64_t position = 0; position < length; position += kBlockSize) {
    const QByteArray block = bytesAt(file, position, std::min(kBlockSize, length - position));
    if (position == 0 && PeerArchiveEnd::canBeginWith(block) != true) return std::nullopt;
    const std::optional<qsizetype> last = end.feed(block);
    if (!last) {
      if (pause && pause()) throw ArchiveStopped();
      continue;
    }
    const std::int64_t found = position + *last;
    if (found < length) return found;
    return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace quorvin
