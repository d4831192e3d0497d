// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/archive_reader.h"
#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <zlib.h>

namespace quorvin {
namespace {

constexpr std::size_t kPackedBytes = std::size_t{1} << 16;

std::uint32_t addToChecksum(std::uint32_t checksum, std::span<const char> bytes) {
  return static_cast<std::uint32_t>(
      crc32_z(checksum, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

}  // namespace

/// The state of an unpacking, and the packed bytes that are next.
struct ArchiveContent::Inflating {
  Inflating() { isReady = inflateInit2(&stream, -MAX_WBITS) == Z_OK; }
  ~Inflating() { inflateEnd(&stream); }
  Inflating(const Inflating&) = delete;
  Inflating& operator=(const Inflating&) = delete;

  z_stream stream{};
  std::array<char, kPackedBytes> packed{};
  bool isReady = false;
  bool isAtEnd = false;
};

ArchiveContent::ArchiveContent(const ArchiveReader& archive, const ArchiveEntry& entry)
    : file_(*archive.file_), entry_(entry) {
  if (entry.isDeflated) inflating_ = std::make_unique<Inflating>();
  if (inflating_ && !inflating_->isReady) fail(QT_TRANSLATE_NOOP("Texts", "its content cannot be unpacked"));
}

ArchiveContent::~ArchiveContent() = default;

void ArchiveContent::fail(const char* what) const {
  throw ArchiveError(
      ArchiveErrorCode::DamagedEntry,
      Texts::tr("\"%1\" in the archive is damaged: %2.").arg(shownEntryName(entry_.name), Texts::tr(what)));
}

std::size_t ArchiveContent::read(std::span<char> buffer) {
  const std::size_t count = inflating_ ? readInflated(buffer) : readPacked(buffer);
  count_ += count;
  checksum_ = addToChecksum(checksum_, buffer.first(count));
  if (count_ > entry_.size) fail(QT_TRANSLATE_NOOP("Texts", "it is longer than it should be"));
  if (count == 0 && count_ < entry_.size) fail(QT_TRANSLATE_NOOP("Texts", "it is shorter than it should be"));
  if (count == 0 && checksum_ != entry_.checksum) fail(QT_TRANSLATE_NOOP("Texts", "its checksum is wrong"));
  return count;
}

std::size_t ArchiveContent::readPacked(std::span<char> buffer) {
  const std::uint64_t left = entry_.packedSize - packedCount_;
  const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(left, buffer.size()));
  try {
    file_.read(entry_.place + static_cast<std::int64_t>(packedCount_),
               std::as_writable_bytes(buffer.first(count)));
  } catch (const RuntimeFault&) {
    fail(QT_TRANSLATE_NOOP("Texts", "it cannot be read"));
  }
  packedCount_ += count;
  return count;
}

std::size_t ArchiveContent::readInflated(std::span<char> buffer) {
  Inflating& it = *inflating_;
  it.stream.next_out = reinterpret_cast<Bytef*>(buffer.data());
  it.stream.avail_out = static_cast<uInt>(buffer.size());
  while (!it.isAtEnd && it.stream.avail_out > 0) {
    if (it.stream.avail_in == 0) {
      it.stream.avail_in = static_cast<uInt>(readPacked(it.packed));
      it.stream.next_in = reinterpret_cast<Bytef*>(it.packed.data());
    }
    const int status = inflate(&it.stream, Z_NO_FLUSH);
    it.isAtEnd = status == Z_STREAM_END;
    if (status != Z_OK && !it.isAtEnd) fail(QT_TRANSLATE_NOOP("Texts", "its content cannot be unpacked"));
  }
  return buffer.size() - it.stream.avail_out;
}

}  // namespace quorvin
