// SPDX-License-Identifier: GPL-2.0-or-later

// Reading numbers as people type them and listings hold them, held against their rules written down once
// more. An input is the text in UTF-8.
#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "fuzz/require.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace quorvin::fuzz {
namespace {

double plainLeadingNumber(const QString& text) {
  static const QRegularExpression number(
      QStringLiteral("^[ \\t]*([-+]?(?:[0-9]+(?:\\.[0-9]*)?|\\.[0-9]+)(?:[eE][-+]?[0-9]+)?)"));
  const QRegularExpressionMatch match = number.match(text);
  if (!match.hasMatch()) return 0;
  // The library's own reader, which knows no bounds.
  return std::strtod(match.captured(1).toLatin1().constData(), nullptr);
}

bool isBlank(QChar sign) {
  return sign == u'\t' || sign.category() == QChar::Separator_Space;
}

bool isGrouping(QChar sign) {
  return QStringLiteral(",.'\u2019\u066C").contains(sign) || sign.category() == QChar::Separator_Space;
}

std::optional<std::int64_t> plainByteCount(QString text) {
  while (!text.isEmpty() && isBlank(text.front())) text.remove(0, 1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  const bool isNegative = text.startsWith(u'-') || text.startsWith(QChar(0x2212));
  if (isNegative) text.remove(0, 1);
  if (text.isEmpty() || !text.front().isDigit() || !text.back().isDigit()) return std::nullopt;
  // Exact for whatever fits.
  long double value = 0;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at].isDigit()) {
      value = value * 10 + text[at].digitValue();
    } else if (!isGrouping(text[at]) || !text[at - 1].isDigit()) {
      return std::nullopt;
    }
  }
  constexpr long double kTooLarge = 9223372036854775808.0L;
  if (value > kTooLarge || (value == kTooLarge && !isNegative)) return std::nullopt;
  return isNegative ? static_cast<std::int64_t>(-value) : static_cast<std::int64_t>(value);
}

/// Mebibytes by the rule as it is written, for a size whose hundredfold can be calculated.
QString plainMebibytes(std::int64_t bytes) {
  const std::int64_t hundredths = (std::abs(bytes) * 100 + 1048576 / 2) / 1048576;
  const QString digits = QString::number(hundredths).rightJustified(3, u'0');
  const QString sign = bytes < 0 && hundredths > 0 ? QStringLiteral("-") : QString();
  return sign + digits.chopped(2) + u'.' + digits.right(2) + QStringLiteral("mb");
}

bool isSame(double one, double other) {
  return one == other || (std::isnan(one) && std::isnan(other));
}

void checkRounding(double value) {
  try {
    const int rounded = roundToInt16(value);
    require(std::fabs(rounded - value) <= 0.5, "a number is rounded to the nearest");
    require(std::fabs(rounded - value) < 0.5 || rounded % 2 == 0, "halves are rounded to the even neighbour");
  } catch (const RuntimeFault& fault) {
    require(fault.number() == 6, "a number that does not fit is an overflow");
    require(!(value > -32768.5 && value < 32767.5), "a number that fits is none");
  }
}

}  // namespace
}  // namespace quorvin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin;
  using namespace quorvin::fuzz;
  const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const double number = leadingNumber(text);
  require(isSame(number, plainLeadingNumber(text)), "the number at the front is read");
  checkRounding(number);
  const std::optional<std::int64_t> count = readByteCount(text);
  require(count == plainByteCount(text), "a size is read");
  if (!count) return 0;
  constexpr std::int64_t kLargest = 90'000'000'000'000'000;
  const bool isUsual = *count >= -kLargest && *count <= kLargest;
  require(!isUsual || mebibytesText(*count, QLocale::c()) == plainMebibytes(*count),
          "a size is shown in mebibytes");
  for (const char* name : {"ar_EG", "de_DE", "hi_IN"}) {
    const QString shown = mebibytesText(*count, QLocale(QString::fromLatin1(name)));
    require(shown.endsWith(u"mb") && shown.size() >= 6, "a size is shown in every locale");
  }
  return 0;
}
