#include "archive/archive_end.h"

#include "archive/zip_records.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr quint32 kSeeLargeRecord = 0xFFFFFFFFU;
constexpr quint16 kSeeLargeRecordShort = 0xFFFFU;
// What is kept of the bytes before: a large archive's end record and locator stand before the plain one, with
// some room for data of others in it.
constexpr qsizetype kKept = 1024;

}  // namespace

std::optional<bool> PeerArchiveEnd::canBeginWith(QByteArrayView bytes) {
  bool mayYet = false;
  for (const QByteArrayView start : {kZipFileStart, kZipEndRecord, kZipLargeEndRecord}) {
    if (bytes.startsWith(start)) return true;
    mayYet = mayYet || start.startsWith(bytes);
  }
  if (mayYet) return std::nullopt;
  return false;
}

std::optional<qsizetype> PeerArchiveEnd::feed(QByteArrayView bytes) {
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

std::optional<std::int64_t> PeerArchiveEnd::endInWindow() {
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

bool PeerArchiveEnd::isEndRecord(qsizetype at) const {
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

bool PeerArchiveEnd::isEndOfLargeArchive(qsizetype at) const {
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

}  // namespace quorvin
