// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/archive_maker.h"

#include <QtEndian>

#include <random>

namespace quorvin::test {
namespace {

constexpr std::uint32_t kSeeExtra = 0xFFFFFFFFU;
constexpr std::uint16_t kSeeLargeEnd = 0xFFFFU;
constexpr std::uint16_t kSizesFollow = 1U << 3U;
constexpr std::uint16_t kVersionNeeded = 45;
constexpr std::uint16_t kMadeOnUnix = 3U << 8U | kVersionNeeded;

template <typename Number>
void put(QByteArray& bytes, Number number) {
  number = qToLittleEndian(number);
  bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

/// An entry with everything decided.
struct Told {
  QByteArray name;
  QByteArray innerName;
  std::uint16_t flags;
  std::uint16_t method;
  std::uint32_t checksum;
  std::uint64_t packedSize;
  std::uint64_t size;
  std::uint32_t mode;
  bool isLarge;
  QByteArray unicodeExtra;
  QByteArray directoryExtra;
  QByteArray comment;
  std::uint64_t place = 0;
};

QByteArray packedBytes(const MadeEntry& entry) {
  if (entry.packed) return *entry.packed;
  return entry.method == kDeflated ? deflated(entry.content) : entry.content;
}

QByteArray unicodeExtraOf(const MadeEntry& entry) {
  QByteArray bytes;
  if (!entry.unicodeName) return bytes;
  put<std::uint16_t>(bytes, 0x7075);
  put<std::uint16_t>(bytes, static_cast<std::uint16_t>(5 + entry.unicodeName->size()));
  bytes += '\1';
  put<std::uint32_t>(bytes, checksumOf(entry.name));
  return bytes + *entry.unicodeName;
}

Told toldOf(const MadeEntry& entry, const QByteArray& packed) {
  return {entry.name,
          entry.innerName.value_or(entry.name),
          static_cast<std::uint16_t>(entry.flags | (entry.isStreamed ? kSizesFollow : 0U)),
          entry.method,
          entry.toldChecksum.value_or(checksumOf(entry.content)),
          entry.toldPackedSize.value_or(static_cast<std::uint64_t>(packed.size())),
          entry.toldSize.value_or(static_cast<std::uint64_t>(entry.content.size())),
          entry.mode,
          entry.isLarge,
          unicodeExtraOf(entry),
          entry.directoryExtra,
          entry.comment};
}

void putDescription(QByteArray& bytes, const Told& told) {
  put<std::uint16_t>(bytes, kVersionNeeded);
  put<std::uint16_t>(bytes, told.flags);
  put<std::uint16_t>(bytes, told.method);
  put<std::uint16_t>(bytes, 0);
  put<std::uint16_t>(bytes, 0x21);
  put<std::uint32_t>(bytes, told.checksum);
  put<std::uint32_t>(bytes, told.isLarge ? kSeeExtra : static_cast<std::uint32_t>(told.packedSize));
  put<std::uint32_t>(bytes, told.isLarge ? kSeeExtra : static_cast<std::uint32_t>(told.size));
}

QByteArray largeExtra(const Told& told, bool withPlace) {
  QByteArray bytes;
  if (!told.isLarge) return bytes;
  put<std::uint16_t>(bytes, 1);
  put<std::uint16_t>(bytes, withPlace ? 24 : 16);
  put<std::uint64_t>(bytes, told.size);
  put<std::uint64_t>(bytes, told.packedSize);
  if (withPlace) put<std::uint64_t>(bytes, told.place);
  return bytes;
}

/// What an entry that is written in one go tells before its content.
Told beforeContent(const MadeEntry& entry, Told told) {
  if (entry.isStreamed) {
    told.checksum = 0;
    told.packedSize = 0;
    told.size = entry.headerSize;
  }
  if (entry.headerPackedSize) told.packedSize = *entry.headerPackedSize;
  return told;
}

void putBehindContent(QByteArray& bytes, const Told& told) {
  bytes += "PK\x07\x08";
  put<std::uint32_t>(bytes, told.checksum);
  put<std::uint32_t>(bytes, static_cast<std::uint32_t>(told.packedSize));
  put<std::uint32_t>(bytes, static_cast<std::uint32_t>(told.size));
}

void putBeforeContent(QByteArray& bytes, const Told& told) {
  const QByteArray extra = largeExtra(told, false) + told.unicodeExtra;
  bytes += "PK\x03\x04";
  putDescription(bytes, told);
  put<std::uint16_t>(bytes, static_cast<std::uint16_t>(told.innerName.size()));
  put<std::uint16_t>(bytes, static_cast<std::uint16_t>(extra.size()));
  bytes += told.innerName + extra;
}

void putInDirectory(QByteArray& bytes, const Told& told) {
  const QByteArray extra = largeExtra(told, true) + told.unicodeExtra + told.directoryExtra;
  bytes += "PK\x01\x02";
  put<std::uint16_t>(bytes, kMadeOnUnix);
  putDescription(bytes, told);
  put<std::uint16_t>(bytes, static_cast<std::uint16_t>(told.name.size()));
  put<std::uint16_t>(bytes, static_cast<std::uint16_t>(extra.size()));
  put<std::uint16_t>(bytes, static_cast<std::uint16_t>(told.comment.size()));
  put<std::uint16_t>(bytes, 0);
  put<std::uint16_t>(bytes, 0);
  put<std::uint32_t>(bytes, told.mode << 16U);
  put<std::uint32_t>(bytes, told.isLarge ? kSeeExtra : static_cast<std::uint32_t>(told.place));
  bytes += told.name + extra + told.comment;
}

void putLargeEnd(QByteArray& bytes, std::uint64_t count, std::uint64_t place, std::uint64_t size) {
  const auto recordPlace = static_cast<std::uint64_t>(bytes.size());
  bytes += "PK\x06\x06";
  put<std::uint64_t>(bytes, 44);
  put<std::uint16_t>(bytes, kVersionNeeded);
  put<std::uint16_t>(bytes, kVersionNeeded);
  put<std::uint32_t>(bytes, 0);
  put<std::uint32_t>(bytes, 0);
  put<std::uint64_t>(bytes, count);
  put<std::uint64_t>(bytes, count);
  put<std::uint64_t>(bytes, size);
  put<std::uint64_t>(bytes, place);
  bytes += "PK\x06\x07";
  put<std::uint32_t>(bytes, 0);
  put<std::uint64_t>(bytes, recordPlace);
  put<std::uint32_t>(bytes, 1);
}

void putEnd(QByteArray& bytes, bool isLarge, std::uint64_t count, std::uint64_t place, std::uint64_t size) {
  bytes += "PK\x05\x06";
  put<std::uint32_t>(bytes, 0);
  for (int i = 0; i < 2; ++i) {
    put<std::uint16_t>(bytes, isLarge ? kSeeLargeEnd : static_cast<std::uint16_t>(count));
  }
  put<std::uint32_t>(bytes, isLarge ? kSeeExtra : static_cast<std::uint32_t>(size));
  put<std::uint32_t>(bytes, isLarge ? kSeeExtra : static_cast<std::uint32_t>(place));
  put<std::uint16_t>(bytes, 0);
}

}  // namespace

QByteArray archiveOf(const std::vector<MadeEntry>& entries, const ArchiveForm& form) {
  QByteArray bytes;
  QByteArray directory;
  std::vector<std::uint64_t> places;
  for (const MadeEntry& entry : entries) {
    const QByteArray packed = packedBytes(entry);
    Told told = toldOf(entry, packed);
    told.place =
        entry.sharesBytesOf ? places.at(*entry.sharesBytesOf) : static_cast<std::uint64_t>(bytes.size());
    places.push_back(told.place);
    if (!entry.sharesBytesOf) {
      putBeforeContent(bytes, beforeContent(entry, told));
      bytes += packed;
      if (entry.isStreamed) putBehindContent(bytes, told);
    }
    putInDirectory(directory, told);
  }
  const auto place = static_cast<std::uint64_t>(bytes.size());
  const auto size = static_cast<std::uint64_t>(directory.size());
  const std::uint64_t count = form.toldCount.value_or(entries.size());
  bytes += directory;
  if (form.largeEnd) putLargeEnd(bytes, count, place, size);
  putEnd(bytes, form.largeEnd, count, place, size);
  return bytes;
}

QByteArray nestedOverlapOf(int count, const QByteArray& kernel) {
  // From the innermost outward; a header before the bytes so far makes the next entry.
  QByteArray bytes = kernel;
  std::vector<Told> inward;
  std::vector<qsizetype> fromEnd;
  for (int i = 0; i < count; ++i) {
    MadeEntry entry;
    entry.name = "f" + QByteArray::number(i);
    entry.content = bytes;
    inward.push_back(toldOf(entry, bytes));
    QByteArray header;
    putBeforeContent(header, inward.back());
    bytes.prepend(header);
    fromEnd.push_back(bytes.size());
  }
  const auto place = static_cast<std::uint64_t>(bytes.size());
  for (std::size_t i = 0; i < inward.size(); ++i) {
    inward[i].place = place - static_cast<std::uint64_t>(fromEnd[i]);
    putInDirectory(bytes, inward[i]);
  }
  putEnd(bytes, false, inward.size(), place, static_cast<std::uint64_t>(bytes.size()) - place);
  return bytes;
}

QByteArray archiveOf(const QByteArray& name, const QByteArray& content) {
  MadeEntry entry;
  entry.name = name;
  entry.content = content;
  entry.method = kDeflated;
  return archiveOf({entry});
}

QByteArray deflated(const QByteArray& content) {
  // The length, the two bytes of the stream's header, and the sum behind it are not part of it.
  constexpr qsizetype kBefore = 4 + 2;
  constexpr qsizetype kBehind = 4;
  if (content.isEmpty()) return QByteArray("\x03\x00", 2);
  return qCompress(content).sliced(kBefore).chopped(kBehind);
}

QByteArray madeNoise(qsizetype size) {
  std::mt19937 random(20041115);
  QByteArray bytes(size, Qt::Uninitialized);
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

std::uint32_t checksumOf(const QByteArray& content) {
  constexpr std::uint32_t kPolynomial = 0xEDB88320U;
  std::uint32_t sum = 0xFFFFFFFFU;
  for (const char byte : content) {
    sum ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = (sum & 1U) != 0 ? (sum >> 1U) ^ kPolynomial : sum >> 1U;
  }
  return ~sum;
}

}  // namespace quorvin::test
