#include "net/archive_tail.h"

#include "net/peer_archive_end.h"
#include "platform/random_access_file.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <cstddef>
#include <span>

namespace quorvin {
namespace {

constexpr QByteArrayView kEndRecord("PK\x05\x06", 4);
constexpr QByteArrayView kLargeLocator("PK\x06\x07", 4);
constexpr QByteArrayView kLargeEndRecord("PK\x06\x06", 4);
constexpr qsizetype kEndRecordSize = 22;
constexpr qsizetype kLocatorSize = 20;
constexpr qsizetype kLargeEndRecordSize = 56;
/// An end record with the longest comment.
constexpr std::int64_t kTailSize = kEndRecordSize + 65535 + kLocatorSize;
constexpr std::int64_t kBlockSize = std::int64_t{1} << 16;

QByteArray bytesAt(const RandomAccessFile& file, std::int64_t position, std::int64_t count) {
  QByteArray bytes(static_cast<qsizetype>(count), Qt::Uninitialized);
  file.read(position, std::as_writable_bytes(std::span(bytes.data(), static_cast<std::size_t>(count))));
  return bytes;
}

template <typename Number>
Number numberAt(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<Number>(bytes.constData() + at);
}

// The number in the large end record that the locator before the end record at `at` points to.
std::optional<std::uint64_t> entriesOfLargeRecord(const RandomAccessFile& file, std::int64_t length,
                                                  const QByteArray& tail, qsizetype at) {
  const qsizetype locator = at - kLocatorSize;
  if (locator < 0 || !QByteArrayView(tail).sliced(locator).startsWith(kLargeLocator)) return std::nullopt;
  const auto place = numberAt<quint64>(tail, locator + 8);
  if (place > static_cast<quint64>(std::max<std::int64_t>(0, length - kLargeEndRecordSize)))
    return std::nullopt;
  const QByteArray record = bytesAt(file, static_cast<std::int64_t>(place), kLargeEndRecordSize);
  if (!record.startsWith(kLargeEndRecord)) return std::nullopt;
  return std::max<std::uint64_t>(numberAt<quint64>(record, 24), numberAt<quint64>(record, 32));
}

}  // namespace

std::uint64_t announcedEntries(const QString& path, std::int64_t length) {
  const RandomAccessFile file(path);
  const std::int64_t tailSize = std::min(length, kTailSize);
  const QByteArray tail = bytesAt(file, length - tailSize, tailSize);
  std::uint64_t most = 0;
  for (qsizetype at = tail.indexOf(kEndRecord); at >= 0; at = tail.indexOf(kEndRecord, at + 1)) {
    if (tail.size() - at < kEndRecordSize) break;
    const std::uint64_t plain = numberAt<quint16>(tail, at + 10);
    most = std::max(most, entriesOfLargeRecord(file, length, tail, at).value_or(plain));
  }
  return most;
}

std::optional<std::int64_t> lengthOfArchiveAtFront(const QString& path, std::int64_t length) {
  const RandomAccessFile file(path);
  PeerArchiveEnd end;
  for (std::int64_t position = 0; position < length; position += kBlockSize) {
    const QByteArray block = bytesAt(file, position, std::min(kBlockSize, length - position));
    if (position == 0 && PeerArchiveEnd::canBeginWith(block) != true) return std::nullopt;
    const std::optional<qsizetype> last = end.feed(block);
    if (!last) continue;
    const std::int64_t found = position + *last;
    if (found < length) return found;
    return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace quorvin
