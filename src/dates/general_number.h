// SPDX-License-Identifier: GPL-2.0-or-later

// Numbers as people type them and as listings hold them.
#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace quorvin {

/// The number at the front of `text`: leading blanks skipped, an optional sign, digits with an optional "."
/// and fraction, an optional exponent; reading stops at the first character that does not belong. 0 when
/// there is none, infinity when it is too large. Independent of the locale.
double leadingNumber(QStringView text);

/// `value` as a 16-bit whole number, halves rounded to the even neighbour. Throws fault 6 (overflow) when it
/// does not fit or is no number.
std::int16_t roundToInt16(double value);

/// A size in bytes as it is in a listing: an optional minus sign and digits, with any grouping sign
/// (comma, dot, blank, no-break blanks, apostrophes) singly between them, blanks around. Digits may be those
/// of any script. Nothing when there is no digit, there is anything else, or the value does not fit.
std::optional<std::int64_t> readByteCount(QStringView text);

/// A size as the hit list shows it: mebibytes with two decimals, at least one digit before the locale's
/// decimal sign, no grouping, ties rounded away from zero, followed by "mb" ("0.13mb" for 131,072 bytes).
/// A size that rounds to zero carries no minus sign.
/// For many sizes: MebibyteWriter.
QString mebibytesText(std::int64_t bytes, const QLocale& locale);

/// Writes what mebibytesText gives, as UTF-8, with the locale's signs looked up once.
class MebibyteWriter {
 public:
  explicit MebibyteWriter(const QLocale& locale);

  /// Appends the text of `bytes`.
  void add(std::string& text, std::int64_t bytes) const;

 private:
  void addNumber(std::string& text, const char* digits, const char* end) const;

  std::string point_;
  /// The locale's signs for 0 to 9; unused where they are those of ASCII.
  std::array<std::string, 10> digits_;
  bool hasAsciiDigits_;
};

/// The locale's own signs for 0 to 9.
std::array<QString, 10> digitsOf(const QLocale& locale);

/// `asciiNumber` with each ASCII digit in it written as the locale's own.
QString withLocaleDigits(const QString& asciiNumber, const QLocale& locale);

}  // namespace quorvin
