#include "archive/archive_end.h"

#include "files/random_access_file.h"

#include <QtEndian>

#include <algorithm>
#include <cstddef>
#include <span>

namespace quorvin {

namespace {

constexpr QByteArrayView kZipFileStart("PK\x03\x04", 4);
constexpr QByteArrayView kZipEndRecord("PK\x05\x06", 4);
// For archives whose numbers are too large for the plain end record, which still comes last. The locator
// before it says where the large record is.
constexpr QByteArrayView kZipLargeEndRecord("PK\x06\x06", 4);
constexpr QByteArrayView kZipLargeEndLocator("PK\x06\x07", 4);

// Bytes of each record without comments and extensions.
constexpr qsizetype kZipEndRecordSize = 22;
constexpr qsizetype kZipLocatorSize = 20;
constexpr qsizetype kZipLargeEndRecordSize = 56;
constexpr qsizetype kZipDirectoryEntrySize = 46;

// The number at `at`, all of whose bytes are in `bytes`. Numbers are little-endian.
template <typename Number>
Number zipNumberAt(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<Number>(bytes.constData() + at);
}

// Whether `record` starts at `at`, which may lie before the bytes or behind them.
bool zipRecordIsAt(const QByteArray& bytes, qsizetype at, QByteArrayView record) {
  return at >= 0 && at <= bytes.size() && QByteArrayView(bytes).sliced(at).startsWith(record);
}

constexpr quint32 kSeeLargeRecord = 0xFFFFFFFFU;
constexpr quint16 kSeeLargeRecordShort = 0xFFFFU;
// How many of the bytes before are kept: the end record and locator of a large archive come before the plain
// one, and may have some data of other programs between them.
constexpr qsizetype kKept = 1024;

// An end record with the longest comment.
constexpr std::int64_t kTailSize = kZipEndRecordSize + 65535 + kZipLocatorSize;

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

std::optional<bool> ArchiveEnd::canStartWith(QByteArrayView bytes) {
  bool mayYet = false;
  for (const QByteArrayView start : {kZipFileStart, kZipEndRecord, kZipLargeEndRecord}) {
    if (bytes.startsWith(start)) return true;
    mayYet = mayYet || start.startsWith(bytes);
  }
  if (mayYet) return std::nullopt;
  return false;
}

std::optional<qsizetype> ArchiveEnd::feed(QByteArrayView bytes) {
  const std::int64_t before = windowStart_ + window_.size();
  window_.append(bytes.data(), bytes.size());
  if (!length_) length_ = endInWindow();
  if (length_) {
    window_.clear();
    windowStart_ = before + bytes.size();
    if (*length_ > windowStart_) return std::nullopt;
    return static_cast<qsizetype>(*length_ - before);
  }
  const qsizetype surplus = std::max<qsizetype>(0, searched_ - kKept);
  window_.remove(0, surplus);
  windowStart_ += surplus;
  searched_ -= surplus;
  return std::nullopt;
}

std::optional<std::int64_t> ArchiveEnd::endInWindow() {
  for (qsizetype at = window_.indexOf(kZipEndRecord, searched_); at >= 0;
       at = window_.indexOf(kZipEndRecord, at + 1)) {
    searched_ = at;
    if (window_.size() - at < kZipEndRecordSize) return std::nullopt;
    if (!isEndRecord(at)) continue;
    return windowStart_ + at + kZipEndRecordSize + zipNumberAt<quint16>(window_, at + 20);
  }
  searched_ = std::max(searched_, window_.size() - (kZipEndRecord.size() - 1));
  return std::nullopt;
}

bool ArchiveEnd::isEndRecord(qsizetype at) const {
  const bool oneDisk = zipNumberAt<quint32>(window_, at + 4) == 0;
  const auto entriesHere = zipNumberAt<quint16>(window_, at + 8);
  const auto entries = zipNumberAt<quint16>(window_, at + 10);
  const auto size = zipNumberAt<quint32>(window_, at + 12);
  const auto offset = zipNumberAt<quint32>(window_, at + 16);
  const bool isLarge =
      size == kSeeLargeRecord || offset == kSeeLargeRecord || entries == kSeeLargeRecordShort;
  if (isLarge && isEndOfLargeArchive(at)) return true;
  return oneDisk && entriesHere == entries && size >= entries * quint32{kZipDirectoryEntrySize} &&
         std::int64_t{offset} + std::int64_t{size} == windowStart_ + at;
}

bool ArchiveEnd::isEndOfLargeArchive(qsizetype at) const {
  const qsizetype locator = at - kZipLocatorSize;
  if (!zipRecordIsAt(window_, locator, kZipLargeEndLocator)) return false;
  const auto recordPlace = zipNumberAt<quint64>(window_, locator + 8);
  const auto start = static_cast<quint64>(windowStart_);
  const auto lastPlace = static_cast<quint64>(locator - kZipLargeEndRecordSize);
  if (locator < kZipLargeEndRecordSize || recordPlace < start || recordPlace - start > lastPlace)
    return false;
  const auto record = static_cast<qsizetype>(recordPlace - start);
  if (!zipRecordIsAt(window_, record, kZipLargeEndRecord)) return false;
  const auto size = zipNumberAt<quint64>(window_, record + 40);
  const auto offset = zipNumberAt<quint64>(window_, record + 48);
  return size <= recordPlace && offset == recordPlace - size;
}

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

}  // namespace quorvin
