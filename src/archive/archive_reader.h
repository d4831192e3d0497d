// Reading a zip archive.
#pragma once

#include "archive/archive_tail.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

struct zip;
struct zip_file;

namespace quorvin {

/// What an archive tells of one of its entries; none of it is to be trusted.
struct ArchiveEntry {
  std::uint64_t index = 0;
  QString name;
  std::uint64_t size = 0;
  std::uint64_t packedSize = 0;
  bool isEncrypted = false;
  /// Stored or deflated, the two methods that are unpacked here.
  bool hasKnownMethod = false;
  /// Access rights and file type as Unix has them; 0 when the archive tells nothing.
  std::uint32_t mode = 0;
};

/// An archive that is open for reading and whose directory and entries agree with each other. Bytes before it
/// in the file are passed over; so are bytes behind it.
class ArchiveReader {
 public:
  /// Opens the archive in the first `length` bytes of the file at `path`; all of them when `length` is
  /// negative. Throws ArchiveError when it cannot be read, is none, is damaged, cut or contradictory, holds a
  /// name twice, or announces more than `mostEntries` entries. Of a damaged one the whole file may have to be
  /// read; ArchiveStopped is thrown when `pause` ends that.
  ArchiveReader(const QString& path, std::int64_t length, std::uint64_t mostEntries,
                const ArchivePause& pause = {});
  ~ArchiveReader();
  ArchiveReader(const ArchiveReader&) = delete;
  ArchiveReader& operator=(const ArchiveReader&) = delete;

  std::uint64_t entryCount() const;
  /// How many bytes of the file the archive lies in.
  std::int64_t length() const { return length_; }
  /// `index` is below entryCount(). Throws ArchiveError when the archive does not tell enough of the entry.
  ArchiveEntry entry(std::uint64_t index) const;

 private:
  friend class ArchiveContent;

  std::int64_t length_ = 0;
  zip* archive_ = nullptr;
};

/// The unpacked bytes of one entry, front to back.
class ArchiveContent {
 public:
  /// `archive` must outlive the object. Throws ArchiveError when the entry cannot be opened.
  ArchiveContent(const ArchiveReader& archive, const ArchiveEntry& entry);
  ~ArchiveContent();
  ArchiveContent(const ArchiveContent&) = delete;
  ArchiveContent& operator=(const ArchiveContent&) = delete;

  /// Reads the next bytes into `buffer` and gives their number; 0 when all have been read and length and
  /// checksum are right. Throws ArchiveError when the bytes are damaged or more than were announced.
  std::size_t read(std::span<char> buffer);

 private:
  ArchiveEntry entry_;
  std::uint64_t count_ = 0;
  zip_file* content_;
};

}  // namespace quorvin
