// SPDX-License-Identifier: GPL-2.0-or-later

// Reading files, from front to back, at any place, and as memory. Only regular files are opened, and none
// ever holds the program up.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <span>

namespace quorvin {

/// A regular file that is open for reading, front to back, by plain read calls. It is never mapped: a file
/// that is cut, or a medium that is pulled, becomes a RuntimeFault instead of a signal.
class SequentialFile {
 public:
  /// Opens `path`. Throws RuntimeFault: 53 not found, 70 no permission, 75 not a regular file, and others as
  /// faultOfSystemError maps them.
  explicit SequentialFile(const QString& path);
  ~SequentialFile();
  SequentialFile(const SequentialFile&) = delete;
  SequentialFile& operator=(const SequentialFile&) = delete;

  /// Fills as much of `buffer` as the file still holds and returns the number of bytes; 0 at the end of the
  /// file. Throws RuntimeFault when reading fails, and fault 62 when the file turns out shorter than it was
  /// when it was opened.
  std::size_t read(std::span<char> buffer);

  /// The file's length in bytes when it was opened.
  std::int64_t sizeWhenOpened() const { return size_; }

 private:
  QString path_;
  int descriptor_ = -1;
  std::int64_t size_ = 0;
  std::int64_t position_ = 0;
};

/// All bytes of the regular file at `path`; for small files. Throws as SequentialFile does.
QByteArray contentOfFile(const QString& path);

/// A regular file that is open for reading at any place, by plain read calls.
class RandomAccessFile {
 public:
  /// Opens `path`. Throws as SequentialFile does.
  explicit RandomAccessFile(const QString& path);
  ~RandomAccessFile();
  RandomAccessFile(const RandomAccessFile&) = delete;
  RandomAccessFile& operator=(const RandomAccessFile&) = delete;

  /// Fills `buffer` with the bytes from `position` on. Throws RuntimeFault when reading fails, fault 62 when
  /// the file ends before the buffer is full.
  void read(std::int64_t position, std::span<std::byte> buffer) const;
  /// The `count` bytes from `position` on. Throws as read() does.
  QByteArray read(std::int64_t position, std::int64_t count) const;

  /// The file's length in bytes when it was opened.
  std::int64_t sizeWhenOpened() const { return size_; }

  /// Whether the program has so many files open that this one should not stay open for long: the system
  /// allows a thousand or so.
  bool isOneOfMany() const;

  /// How long the file is, and when it was last written to, in nanoseconds since 1970. Being renamed or
  /// removed changes neither.
  struct Writing {
    std::int64_t size;
    std::int64_t time;

    bool operator==(const Writing&) const = default;
  };
  /// Of the file as it is now. Throws RuntimeFault when the system does not say.
  Writing lastWriting() const;

 private:
  friend class GuardedMap;

  QString path_;
  int descriptor_ = -1;
  std::int64_t size_ = 0;
};

/// A stretch of a file mapped for reading. Looking at a part that somebody has cut off in the meantime ends
/// the program with a signal, so only a program that has nothing to lose may do that, one that has called
/// explainCutMapping(); any other takes a GuardedMap. The mapping outlives the file's name.
class MappedFile {
 public:
  /// Maps `size` bytes (more than 0) from `offset` on, which is a multiple of kMappingAlignment. Throws
  /// RuntimeFault when the file cannot be opened, is shorter than that, or cannot be mapped.
  MappedFile(const QString& path, std::int64_t offset, std::size_t size);
  ~MappedFile();
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  std::span<const std::byte> bytes() const { return {data_, size_}; }

 private:
  const std::byte* data_ = nullptr;
  std::size_t size_ = 0;
};

/// A multiple of every page size in use.
inline constexpr std::size_t kMappingAlignment = std::size_t{1} << 16;

/// From now on the program ends with `sentence` on standard error and exit status 2 when it looks at a mapped
/// file where that has been cut. `sentence` must outlive the program.
void explainCutMapping(const char* sentence);

}  // namespace quorvin
