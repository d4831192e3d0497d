// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_number.h"

#include "faults/runtime_fault.h"

#include <QString>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace quorvin {

namespace {

constexpr bool isAsciiDigit(QChar sign) {
  return sign >= u'0' && sign <= u'9';
}

// Appends the digits at `place` to `number` and moves behind them; how many there were.
qsizetype takeDigits(QStringView text, qsizetype& place, QString& number) {
  const qsizetype first = place;
  while (place < text.size() && isAsciiDigit(text[place])) {
    number += text[place];
    ++place;
  }
  return place - first;
}

// Digits with an optional point among or around them; false without any digit.
bool takeMantissa(QStringView text, qsizetype& place, QString& number) {
  qsizetype digits = takeDigits(text, place, number);
  if (place < text.size() && text[place] == u'.') {
    number += u'.';
    ++place;
    digits += takeDigits(text, place, number);
  }
  return digits > 0;
}

// An exponent counts only when it is whole: "2e" is 2.
void takeExponent(QStringView text, qsizetype place, QString& number) {
  if (place >= text.size() || (text[place] != u'e' && text[place] != u'E')) return;
  ++place;
  QString exponent = QStringLiteral("e");
  if (place < text.size() && (text[place] == u'-' || text[place] == u'+')) {
    exponent += text[place];
    ++place;
  }
  if (takeDigits(text, place, exponent) > 0) number += exponent;
}

bool isGroupingSign(QChar sign) {
  constexpr QChar kRightSingleQuote(0x2019);
  constexpr QChar kArabicThousands(0x066C);
  return sign == u',' || sign == u'.' || sign == u'\'' || sign == kRightSingleQuote ||
         sign == kArabicThousands || sign.category() == QChar::Separator_Space;
}

bool isMinus(QChar sign) {
  constexpr QChar kMinusSign(0x2212);
  return sign == u'-' || sign == kMinusSign;
}

QStringView withoutOuterBlanks(QStringView text) {
  const auto isBlank = [](QChar sign) { return sign == u'\t' || sign.category() == QChar::Separator_Space; };
  while (!text.isEmpty() && isBlank(text.front())) text = text.mid(1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text;
}

// Adds `digit` behind the digits of `value`, which is kept below zero, where one more number fits.
bool appendDigit(std::int64_t& value, int digit) {
  constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
  if (value < (kLeast + digit) / 10) return false;
  value = value * 10 - digit;
  return true;
}

}  // namespace

double leadingNumber(QStringView text) {
  qsizetype place = 0;
  while (place < text.size() && (text[place] == u' ' || text[place] == u'\t')) ++place;
  QString number;
  if (place < text.size() && (text[place] == u'-' || text[place] == u'+')) {
    if (text[place] == u'-') number += u'-';
    ++place;
  }
  if (!takeMantissa(text, place, number)) return 0;
  takeExponent(text, place, number);
  // Too large a number is infinite here, too small a one 0.
  return number.toDouble();
}

std::int16_t roundToInt16(double value) {
  // The rounding mode is never changed, so this takes halves to the even neighbour.
  const double rounded = std::nearbyint(value);
  const bool fits = rounded >= std::numeric_limits<std::int16_t>::min() &&
                    rounded <= std::numeric_limits<std::int16_t>::max();
  if (!fits) throw RuntimeFault(FaultNumber::Overflow);
  return static_cast<std::int16_t>(rounded);
}

std::optional<std::int64_t> readByteCount(QStringView text) {
  QStringView rest = withoutOuterBlanks(text);
  const bool negative = !rest.isEmpty() && isMinus(rest.front());
  if (negative) rest = rest.mid(1);
  std::int64_t value = 0;
  bool digitBefore = false;
  for (const QChar sign : rest) {
    const bool digit = sign.isDigit();
    if (digit && !appendDigit(value, sign.digitValue())) return std::nullopt;
    if (!digit && !(digitBefore && isGroupingSign(sign))) return std::nullopt;
    digitBefore = digit;
  }
  if (!digitBefore) return std::nullopt;
  if (negative) return value;
  if (value == std::numeric_limits<std::int64_t>::min()) return std::nullopt;
  return -value;
}

MebibyteWriter::MebibyteWriter(const QLocale& locale)
    : point_(locale.decimalPoint().toStdString()), hasAsciiDigits_(locale.zeroDigit() == u"0") {
  if (hasAsciiDigits_) return;
  std::ranges::transform(digitsOf(locale), digits_.begin(), &QString::toStdString);
}

void MebibyteWriter::add(std::string& text, std::int64_t bytes) const {
  constexpr unsigned kMebibyteBits = 20;
  constexpr std::uint64_t kMebibyte = std::uint64_t{1} << kMebibyteBits;
  const bool negative = bytes < 0;
  const auto magnitude = negative ? 0 - static_cast<std::uint64_t>(bytes) : static_cast<std::uint64_t>(bytes);
  // Whole mebibytes are split off first, so that the hundredfold of the largest size still fits.
  const std::uint64_t partHundredths = ((magnitude % kMebibyte) * 100 + kMebibyte / 2) >> kMebibyteBits;
  const std::uint64_t hundredths = (magnitude >> kMebibyteBits) * 100 + partHundredths;
  if (negative && hundredths > 0) text += '-';
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hundredths / 100).ptr;
  addNumber(text, digits.data(), end);
  text += point_;
  const std::uint64_t part = hundredths % 100;
  const std::array<char, 2> two = {static_cast<char>('0' + part / 10), static_cast<char>('0' + part % 10)};
  addNumber(text, two.data(), two.data() + two.size());
  text += "mb";
}

void MebibyteWriter::addNumber(std::string& text, const char* digits, const char* end) const {
  if (hasAsciiDigits_) {
    text.append(digits, end);
    return;
  }
  for (; digits != end; ++digits) text += digits_[static_cast<std::size_t>(*digits - '0')];
}

QString mebibytesText(std::int64_t bytes, const QLocale& locale) {
  std::string text;
  MebibyteWriter(locale).add(text, bytes);
  return QString::fromStdString(text);
}

std::array<QString, 10> digitsOf(const QLocale& locale) {
  // A zero sign may need two units; the other digits follow it in order, and differ in the last one.
  const QString zero = locale.zeroDigit();
  std::array<QString, 10> digits;
  for (std::size_t digit = 0; digit < digits.size(); ++digit) {
    digits[digit] = zero.chopped(1) + QChar(static_cast<char16_t>(zero.back().unicode() + digit));
  }
  return digits;
}

QString withLocaleDigits(const QString& asciiNumber, const QLocale& locale) {
  if (locale.zeroDigit() == u"0") return asciiNumber;
  const std::array<QString, 10> digits = digitsOf(locale);
  QString text;
  for (const QChar sign : asciiNumber) {
    const bool digit = sign >= u'0' && sign <= u'9';
    if (digit) {
      text += digits[static_cast<std::size_t>(sign.unicode() - u'0')];
    } else {
      text += sign;
    }
  }
  return text;
}

}  // namespace quorvin
