// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/archive_end.h"

#include "archive/zip_record.h"
#include "files/file_reader.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace quorvin {

namespace {

// How many of the bytes before are kept: the end record and locator of a large archive come before the plain
// one, and may have some data of other programs between them.
constexpr qsizetype kKept = 1024;
// An end record with the longest comment, and the locator before it.
constexpr std::int64_t kTailSize = kZipLocatorSize + kZipEndRecordSize + 65535;

// The large end record that the locator at `locator` belongs to: where the locator says, or right before it
// when other bytes come before the archive.
std::optional<EndRecord> largeEndRecord(const RandomAccessFile& file, quint64 recorded,
                                        std::int64_t locator) {
  const auto before = static_cast<quint64>(std::max<std::int64_t>(0, locator - kZipLargeEndRecordSize));
  for (const quint64 place : {recorded, before}) {
    if (place > before) continue;
    const QByteArray bytes = file.read(static_cast<std::int64_t>(place), kZipLargeEndRecordSize);
    const ZipBytes record(bytes);
    if (!record.has(kZipLargeEndRecord)) continue;
    EndRecord end{record.number<quint64>(32), record.number<quint64>(40), record.number<quint64>(48),
                  static_cast<std::int64_t>(place)};
    end.isOfSeveralFiles = record.number<quint64>(16) != 0 || record.number<quint64>(24) != end.entries;
    return end;
  }
  return std::nullopt;
}

// The end record at `at` in the last bytes of the file, which start at `start`.
EndRecord endRecordAt(const RandomAccessFile& file, const QByteArray& tail, std::int64_t start,
                      qsizetype at) {
  const ZipBytes bytes(tail);
  const qsizetype locator = at - kZipLocatorSize;
  if (bytes.has(kZipLargeEndLocator, locator)) {
    const auto large = largeEndRecord(file, bytes.number<quint64>(locator + 8), start + locator);
    if (large) return *large;
  }
  EndRecord end{bytes.number<quint16>(at + 10), bytes.number<quint32>(at + 12),
                bytes.number<quint32>(at + 16), start + at};
  end.isOfSeveralFiles = bytes.number<quint32>(at + 4) != 0 || bytes.number<quint16>(at + 8) != end.entries;
  return end;
}

bool hasDirectory(const RandomAccessFile& file, const EndRecord& end) {
  const auto place = static_cast<std::uint64_t>(end.place);
  if (end.directorySize == 0) return end.entries == 0;
  if (end.directorySize > place || end.directorySize < kZipDirectoryEntrySize) return false;
  const auto start = static_cast<std::int64_t>(place - end.directorySize);
  return ZipBytes(file.read(start, kZipDirectoryEntry.size())).has(kZipDirectoryEntry);
}

}  // namespace

std::optional<bool> ArchiveEnd::canStartWith(QByteArrayView bytes) {
  bool mayYet = false;
  for (const QByteArrayView start : {kZipFileHeader, kZipEndRecord, kZipLargeEndRecord}) {
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
    return windowStart_ + at + kZipEndRecordSize + ZipBytes(window_).number<quint16>(at + 20);
  }
  searched_ = std::max(searched_, window_.size() - (kZipEndRecord.size() - 1));
  return std::nullopt;
}

bool ArchiveEnd::isEndRecord(qsizetype at) const {
  const ZipBytes bytes(window_);
  const bool oneDisk = bytes.number<quint32>(at + 4) == 0;
  const auto entriesHere = bytes.number<quint16>(at + 8);
  const auto entries = bytes.number<quint16>(at + 10);
  const auto size = bytes.number<quint32>(at + 12);
  const auto offset = bytes.number<quint32>(at + 16);
  const bool isLarge = size == kZipSeeLarge || offset == kZipSeeLarge || entries == kZipSeeLargeShort;
  if (isLarge && isEndOfLargeArchive(at)) return true;
  return oneDisk && entriesHere == entries && size >= entries * quint32{kZipDirectoryEntrySize} &&
         std::int64_t{offset} + std::int64_t{size} == windowStart_ + at;
}

bool ArchiveEnd::isEndOfLargeArchive(qsizetype at) const {
  const ZipBytes bytes(window_);
  const qsizetype locator = at - kZipLocatorSize;
  if (!bytes.has(kZipLargeEndLocator, locator)) return false;
  const auto recordPlace = bytes.number<quint64>(locator + 8);
  const auto start = static_cast<quint64>(windowStart_);
  const auto lastPlace = static_cast<quint64>(locator - kZipLargeEndRecordSize);
  if (locator < kZipLargeEndRecordSize || recordPlace < start || recordPlace - start > lastPlace)
    return false;
  const auto record = static_cast<qsizetype>(recordPlace - start);
  if (!bytes.has(kZipLargeEndRecord, record)) return false;
  const auto size = bytes.number<quint64>(record + 40);
  const auto offset = bytes.number<quint64>(record + 48);
  return size <= recordPlace && offset == recordPlace - size;
}

std::optional<EndRecord> endRecordOf(const RandomAccessFile& file, std::int64_t length) {
  const std::int64_t start = std::max<std::int64_t>(0, length - kTailSize);
  const QByteArray tail = file.read(start, length - start);
  std::optional<EndRecord> last;
  const QByteArrayView bytes(tail);
  for (qsizetype at = bytes.lastIndexOf(kZipEndRecord); at >= 0;
       at = bytes.first(at).lastIndexOf(kZipEndRecord)) {
    if (tail.size() - at < kZipEndRecordSize) continue;
    if (tail.size() - at - kZipEndRecordSize < ZipBytes(tail).number<quint16>(at + 20)) continue;
    const EndRecord record = endRecordAt(file, tail, start, at);
    if (hasDirectory(file, record)) return record;
    if (!last) last = record;
  }
  return last;
}

}  // namespace quorvin
