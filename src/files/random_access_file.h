// Reading a file of the program's own at any place.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <span>

namespace quorvin {

/// A file that is open for reading, by plain read calls.
class RandomAccessFile {
 public:
  /// Opens `path`. Throws RuntimeFault as faultOfSystemError maps the system's errors.
  explicit RandomAccessFile(const QString& path);
  ~RandomAccessFile();
  RandomAccessFile(const RandomAccessFile&) = delete;
  RandomAccessFile& operator=(const RandomAccessFile&) = delete;

  /// Fills `buffer` with the bytes from `position` on. Throws RuntimeFault when reading fails, fault 62 when
  /// the file ends before the buffer is full.
  void read(std::int64_t position, std::span<std::byte> buffer) const;

 private:
  QString path_;
  int descriptor_ = -1;
};

}  // namespace quorvin
