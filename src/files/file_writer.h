// Writing a file from its start to its end, and putting it in the place of another.
#pragma once

#include <QString>

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvin {

/// A file that is written front to back through a buffer. Every write is checked: a disk that fills up is a
/// fault, never a short file that nobody noticed.
class FileWriter {
 public:
  /// Makes the file at `path`, or empties the one that is there. Throws RuntimeFault as faultOfSystemError
  /// maps the error, and fault 75 for what is no regular file. `name` stands for it in messages; empty for
  /// the path itself.
  explicit FileWriter(const QString& path, const QString& name = {});
  /// Writes to a descriptor that is open already and stays open; `name` stands for it in messages.
  FileWriter(int descriptor, const QString& name);
  /// Drops what has not been written yet and closes the file.
  ~FileWriter();
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  /// Throws RuntimeFault naming the file when an earlier or this part cannot be written: 61 on a full disk,
  /// and others as faultOfSystemError maps them.
  void write(std::string_view bytes);

  /// Writes what is still in the buffer. Throws as write() does.
  void flush();
  /// Has the system bring everything that was flushed to the medium. Throws as write() does.
  void sync();
  /// Flushes and closes. Throws as write() does; the file is closed in any case.
  void close();

 private:
  void writeOut(std::string_view bytes);
  [[noreturn]] void fail(int errorNumber) const;

  QString name_;
  int descriptor_;
  bool owned_;
  std::vector<char> buffer_;
  std::size_t filled_ = 0;
};

/// Gives the file at `finished` the path `place`. A file that is there is replaced in one step: at any moment
/// there is the old one or the new one, whole. Throws RuntimeFault naming `place`; both files then stay.
void putInPlace(const QString& finished, const QString& place);

}  // namespace quorvin
