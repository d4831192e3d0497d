// The text of an INI file: sections of keys with their values.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace quorvin {

/// An INI file's lines, UTF-8. Lines that are not understood (comments, other people's entries) are kept as
/// they are. Section names and keys stand as they are: they hold no line end, no "=" in a key, and neither
/// brackets nor blanks at their ends. Values may be any text: backslashes, line ends, tabs, NULs, and blanks
/// at either end are written as "\\", "\n", "\r", "\t", "\0" and "\s". Of a section or key that stands there
/// twice, the first counts.
class IniText {
 public:
  IniText() = default;
  explicit IniText(const QByteArray& text);

  std::optional<QString> value(const QString& section, const QString& key) const;
  void setValue(const QString& section, const QString& key, const QString& value);

  QByteArray text() const;

 private:
  /// The line of the section's heading, or -1.
  qsizetype headingOf(const QString& section) const;
  /// The line of the key in the section that begins at `heading`, or -1.
  qsizetype lineOf(qsizetype heading, const QString& key) const;
  /// Behind the last line of that section that is not empty.
  qsizetype endOf(qsizetype heading) const;

  QList<QByteArray> lines_;
};

}  // namespace quorvin
