// Reading a file of the user's from its start to its end.
#pragma once

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

}  // namespace quorvin
