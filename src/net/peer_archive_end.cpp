#include "net/peer_archive_end.h"

#include <QtEndian>

#include <algorithm>

namespace quorvin {

namespace {

constexpr QByteArrayView kFileStart("PK\x03\x04", 4);
constexpr QByteArrayView kEndRecord("PK\x05\x06", 4);
constexpr QByteArrayView kLargeEndRecord("PK\x06\x06", 4);
constexpr QByteArrayView kLargeEndLocator("PK\x06\x07", 4);

constexpr qsizetype kEndRecordSize = 22;
constexpr qsizetype kLocatorSize = 20;
constexpr qsizetype kLargeEndRecordSize = 56;
constexpr qsizetype kDirectoryEntrySize = 46;
constexpr quint32 kSeeLargeRecord = 0xFFFFFFFFU;
constexpr quint16 kSeeLargeRecordShort = 0xFFFFU;
// What is kept of the bytes before: a large archive's end record and locator stand before the plain one, with
// some room for data of others in it.
constexpr qsizetype kKept = 1024;

template <typename Number>
Number numberAt(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<Number>(bytes.constData() + at);
}

bool hasAt(const QByteArray& bytes, qsizetype at, QByteArrayView signature) {
  return at >= 0 && QByteArrayView(bytes).sliced(at).startsWith(signature);
}

}  // namespace

std::optional<bool> PeerArchiveEnd::canBeginWith(QByteArrayView bytes) {
  bool mayYet = false;
  for (const QByteArrayView start : {kFileStart, kEndRecord, kLargeEndRecord}) {
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
  for (qsizetype at = window_.indexOf(kEndRecord, searched_); at >= 0;
       at = window_.indexOf(kEndRecord, at + 1)) {
    searched_ = at;
    if (window_.size() - at < kEndRecordSize) return std::nullopt;
    if (!isEndRecord(at)) continue;
    return windowStart_ + at + kEndRecordSize + numberAt<quint16>(window_, at + 20);
  }
  searched_ = std::max(searched_, window_.size() - (kEndRecord.size() - 1));
  return std::nullopt;
}

bool PeerArchiveEnd::isEndRecord(qsizetype at) const {
  const bool oneDisk = numberAt<quint32>(window_, at + 4) == 0;
  const auto entriesHere = numberAt<quint16>(window_, at + 8);
  const auto entries = numberAt<quint16>(window_, at + 10);
  const auto size = numberAt<quint32>(window_, at + 12);
  const auto offset = numberAt<quint32>(window_, at + 16);
  const bool isLarge =
      size == kSeeLargeRecord || offset == kSeeLargeRecord || entries == kSeeLargeRecordShort;
  if (isLarge && isEndOfLargeArchive(at)) return true;
  return oneDisk && entriesHere == entries && size >= entries * quint32{kDirectoryEntrySize} &&
         std::int64_t{offset} + std::int64_t{size} == windowStart_ + at;
}

bool PeerArchiveEnd::isEndOfLargeArchive(qsizetype at) const {
  const qsizetype locator = at - kLocatorSize;
  if (!hasAt(window_, locator, kLargeEndLocator)) return false;
  const auto recordPlace = numberAt<quint64>(window_, locator + 8);
  const auto start = static_cast<quint64>(windowStart_);
  const auto lastPlace = static_cast<quint64>(locator - kLargeEndRecordSize);
  if (locator < kLargeEndRecordSize || recordPlace < start || recordPlace - start > lastPlace) return false;
  const auto record = static_cast<qsizetype>(recordPlace - start);
  if (!hasAt(window_, record, kLargeEndRecord)) return false;
  const auto size = numberAt<quint64>(window_, record + 40);
  const auto offset = numberAt<quint64>(window_, record + 48);
  return size <= recordPlace && offset == recordPlace - size;
}

}  // namespace quorvin
