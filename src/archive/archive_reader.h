// SPDX-License-Identifier: GPL-2.0-or-later

// Reading a zip archive, and what can be wrong with one.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <vector>

namespace quorvin {

class RandomAccessFile;

/// What can be wrong with an archive; the values are the error codes that users may see.
enum class ArchiveErrorCode : int {
  CannotRead = 1,
  NotAnArchive = 2,
  Contradictory = 3,
  DuplicateName = 4,
  BadName = 5,
  NotAFile = 6,
  Encrypted = 7,
  UnknownMethod = 8,
  TooManyEntries = 9,
  TooLarge = 10,
  TooDeep = 11,
  Overlapping = 12,
  DamagedEntry = 13,
};

/// Thrown when an archive, or an entry of it, is not unpacked. `description` is one or two sentences for the
/// user, each with its full stop, and names the archive or the entry.
class ArchiveError : public std::runtime_error {
 public:
  ArchiveError(ArchiveErrorCode code, const QString& description)
      : std::runtime_error(description.toStdString()), code_(code), description_(description) {}

  ArchiveErrorCode code() const noexcept { return code_; }
  const QString& description() const noexcept { return description_; }

 private:
  ArchiveErrorCode code_;
  QString description_;
};

/// Thrown when an ArchivePause ended the reading of an archive.
struct ArchiveStopped {};

/// Called every few milliseconds while an archive is read, unpacked or made, with how much has been unpacked
/// or packed so far, 0 to 100. It is the caller's chance to show that and to let window events run. True ends
/// the work.
using ArchivePause = std::function<bool(int percent)>;

/// A name from an archive as a message can show it: "?" for what cannot be printed, and "..." for the middle
/// of a long one.
QString shownEntryName(const QString& name);

/// What an archive says about one of its entries; none of it can be trusted.
struct ArchiveEntry {
  QString name;
  std::uint64_t size = 0;
  std::uint64_t packedSize = 0;
  std::uint32_t checksum = 0;
  bool isEncrypted = false;
  /// Stored or deflated, the two methods that are unpacked here.
  bool hasKnownMethod = false;
  bool isDeflated = false;
  /// Access rights and file type as Unix has them; 0 when the archive does not say.
  std::uint32_t mode = 0;
  /// Where the packed bytes start in the file. All of them are in it, before the directory.
  std::int64_t place = 0;
};

/// An archive that is open for reading, and whose directory and entries agree with each other where it
/// matters. Bytes before it in the file, and behind it, are ignored.
class ArchiveReader {
 public:
  /// Opens the archive in the first `length` bytes of the file at `path`; all of them when `length` is
  /// negative. Throws ArchiveError when it cannot be read, is no archive, is damaged, cut or contradictory,
  /// holds a name twice, or announces more than `mostEntries` entries. For a damaged one the whole file may
  /// have to be read; ArchiveStopped is thrown when `pause` ends that.
  ArchiveReader(const QString& path, std::int64_t length, std::uint64_t mostEntries,
                const ArchivePause& pause = {});
  ~ArchiveReader();
  ArchiveReader(const ArchiveReader&) = delete;
  ArchiveReader& operator=(const ArchiveReader&) = delete;

  std::uint64_t entryCount() const { return entries_.size(); }
  /// The number of bytes of the file that the archive lies in.
  std::int64_t length() const { return length_; }
  /// `index` is below entryCount().
  const ArchiveEntry& entry(std::uint64_t index) const { return entries_.at(index); }

 private:
  friend class ArchiveContent;

  std::unique_ptr<RandomAccessFile> file_;
  std::int64_t length_ = 0;
  std::vector<ArchiveEntry> entries_;
};

/// The unpacked bytes of one entry, front to back.
class ArchiveContent {
 public:
  /// `archive` must outlive the object. `entry` is one of its entries, and packed by a known method.
  ArchiveContent(const ArchiveReader& archive, const ArchiveEntry& entry);
  ~ArchiveContent();
  ArchiveContent(const ArchiveContent&) = delete;
  ArchiveContent& operator=(const ArchiveContent&) = delete;

  /// Reads the next bytes into `buffer` and returns their number; 0 when all have been read, and length and
  /// checksum are right. Throws ArchiveError when the bytes are damaged or more than announced.
  std::size_t read(std::span<char> buffer);

 private:
  struct Inflating;

  std::size_t readPacked(std::span<char> buffer);
  std::size_t readInflated(std::span<char> buffer);
  [[noreturn]] void fail(const char* what) const;

  const RandomAccessFile& file_;
  ArchiveEntry entry_;
  std::uint64_t packedCount_ = 0;
  std::uint64_t count_ = 0;
  std::uint32_t checksum_ = 0;
  /// Only for a deflated entry.
  std::unique_ptr<Inflating> inflating_;
};

}  // namespace quorvin
