// SPDX-License-Identifier: GPL-2.0-or-later

// Writing a file from its start to its end.
#pragma once

#include "files/descriptor.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace quorvin {

/// Writes to an open file, front to back, through a buffer. Every write is checked: a disk that fills up is a
/// fault, never a short file that nobody noticed.
class FileWriter {
 public:
  /// `descriptor` is not closed and must stay open; `name` stands for the file in messages.
  FileWriter(int descriptor, const QString& name);

  /// Throws RuntimeFault naming the file when an earlier or this part cannot be written: 61 on a full disk,
  /// and others as faultOfSystemError maps them.
  void write(std::string_view bytes);

  /// Writes what is still in the buffer, which otherwise is dropped with the object. Throws as write() does.
  void flush();

 private:
  void writeOut(std::string_view bytes);

  QString name_;
  int descriptor_;
  std::unique_ptr<char[]> buffer_;
  std::size_t filled_ = 0;
};

/// A file that is written over from its start on. It is made when it is not there; one that is there keeps
/// what is not written over, so the rest of a longer file stays behind the new bytes. This is for the archive
/// of the web update alone, whose rules ask for it: whatever goes wrong on the way, the old file is lost.
/// Everything else is a FileAside.
///
/// Half a file must not pass for the newest one, even if the program is killed on the way. So its time of
/// modification is kNotKnownToBeWhole, while it is written and afterwards: from the start for a file that is
/// new or was empty, else from the first bytes on (as soon as they are written; nothing can set the time in
/// the same step). Whoever has found it to be whole gives it the time it should have.
/// Where the system lets nobody set the time (a file of another user), it is that of the last write.
class OverwrittenFile {
 public:
  /// 1 January 1980, 00:00 UTC, in seconds since 1970.
  static constexpr std::int64_t kNotKnownToBeWhole = 315'532'800;

  /// Throws RuntimeFault as faultOfSystemError maps the error, and fault 75 for what is no regular file.
  explicit OverwrittenFile(const QString& path);
  ~OverwrittenFile();
  OverwrittenFile(const OverwrittenFile&) = delete;
  OverwrittenFile& operator=(const OverwrittenFile&) = delete;

  /// Throws as FileWriter::write does.
  void write(std::string_view bytes);
  /// Brings everything into the file; to be called last. Throws as FileWriter::write does.
  void flush();

 private:
  void setTimeBack() const;

  Descriptor file_;
  FileWriter writer_;
  bool isTouched_ = false;
  /// Bytes since the time was last set back.
  std::size_t sinceSetBack_ = 0;
};

}  // namespace quorvin
