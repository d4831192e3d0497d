// Writing over a file from its start, without emptying it first.
#pragma once

#include "files/descriptor.h"
#include "files/file_writer.h"

#include <QString>

#include <string_view>

namespace quorvin {

/// A file that is written from its start on. It is made when it is not there; one that is there keeps what is
/// not written over, so the rest of a longer file stays behind the new bytes.
class OverwrittenFile {
 public:
  /// Throws RuntimeFault as faultOfSystemError maps the error, and fault 75 for what is no regular file.
  explicit OverwrittenFile(const QString& path);

  /// Throws as FileWriter::write does.
  void write(std::string_view bytes) { writer_.write(bytes); }
  /// Brings everything into the file; to be called last. Throws as FileWriter::write does.
  void flush() { writer_.flush(); }

 private:
  Descriptor file_;
  FileWriter writer_;
};

}  // namespace quorvin
