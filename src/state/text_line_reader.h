// SPDX-License-Identifier: GPL-2.0-or-later

// Reading a small text file line by line.
#pragma once

#include "files/file_reader.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>

#include <optional>

namespace quorvin {

/// One line of a text file.
struct TextLine {
  /// The line without its end.
  QString text;
  /// How the line ends: CR LF, LF, or, in the last line of a file only, CR or nothing.
  QString end;

  bool operator==(const TextLine&) const = default;
};

/// The lines of a text file in the system code page, from first to last. Lines end at LF; a CR before it
/// belongs to the line end. Each line is decoded by itself, so that one damaged line spoils no other. A byte
/// order mark at the front of the file is passed over.
class TextLineReader {
 public:
  /// Opens `path`; throws RuntimeFault as SequentialFile does.
  explicit TextLineReader(const QString& path);

  /// The next line, or nothing at the end of the file. A file that ends in a line end has no further, empty
  /// line after it. Throws RuntimeFault when reading fails.
  std::optional<TextLine> next();

  /// Tells the bytes that have been read so far from any others; once next() has given nothing, those of the
  /// whole file.
  QByteArray digest() const { return digest_.result(); }

 private:
  bool readChunk();
  TextLine take(qsizetype length);

  SequentialFile file_;
  QCryptographicHash digest_;
  bool isAtStart_ = true;
  QByteArray bytes_;
  qsizetype start_ = 0;
};

/// What TextLineReader::digest() gives for a file of these bytes.
QByteArray digestOf(QByteArrayView bytes);

}  // namespace quorvin
