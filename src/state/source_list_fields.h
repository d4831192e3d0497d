// The fields of a source list file, before they are records.
#pragma once

#include "state/text_line_reader.h"

#include <QString>

namespace quorvin {

/// Reads the comma-separated fields of a text file one after another, whatever lines they stand on. The rules
/// are in docs/formats/source-lists.md.
class SourceListFields {
 public:
  /// Opens `path`; throws RuntimeFault as SequentialFile does.
  explicit SourceListFields(const QString& path);

  /// Whether nothing is left of the file, not even a blank. Throws RuntimeFault when reading fails.
  bool atEnd();

  /// The next field. Throws RuntimeFault: 62 when there is none, and when reading fails.
  QString next();

 private:
  QString takeQuoted();
  QString takeUnquoted();
  void skipBlanks();
  void skipSeparator();

  QString path_;
  TextLineReader lines_;
  /// The current line with its end, how much of it is text, and where the next field begins.
  QString line_;
  qsizetype textSize_ = 0;
  qsizetype position_ = 0;
};

}  // namespace quorvin
