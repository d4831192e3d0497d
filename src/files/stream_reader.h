// SPDX-License-Identifier: GPL-2.0-or-later

// Reading what can be read only once: pipes, and what another program hands over.
#pragma once

#include "files/descriptor.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <span>

namespace quorvin {

/// Whether `path` leads to something that is neither a file nor a folder, but can be read: a pipe, as a
/// shell's process substitution makes one, a terminal, a device.
bool isStream(const QString& path);

/// Standard input, or something for which isStream() is true, open for reading from front to back.
class StreamReader {
 public:
  /// Whether what is read is of no use any more. It is asked several times a second while there is nothing to
  /// read, and when a signal arrives.
  using EndRequested = std::function<bool()>;

  /// Opens `path`; of a named pipe this waits for its writer. Throws RuntimeFault as faultOfSystemError maps
  /// errors.
  StreamReader(const QString& path, EndRequested endRequested);
  /// The program's standard input.
  static StreamReader standardInput(EndRequested endRequested);

  /// Waits until `buffer` is full or the stream has ended, and gives the number of bytes; 0 at the end of the
  /// stream. Less, or 0, when an end has been requested. Throws RuntimeFault when reading fails.
  std::size_t read(std::span<char> buffer);

 private:
  StreamReader(Descriptor stream, QString name, EndRequested endRequested);
  bool waitForBytes() const;

  Descriptor stream_;
  QString name_;
  EndRequested endRequested_;
};

}  // namespace quorvin
