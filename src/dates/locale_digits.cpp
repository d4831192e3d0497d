#include "dates/locale_digits.h"

namespace quorvin {

std::array<QString, 10> digitsOf(const QLocale& locale) {
  // A zero sign may need two units; the other digits follow it in order.
  const QString zeroSign = locale.zeroDigit();
  const char32_t zero = zeroSign.toUcs4().value(0, U'0');
  std::array<QString, 10> digits;
  for (std::size_t digit = 0; digit < digits.size(); ++digit) {
    digits[digit] = QStringView(QChar::fromUcs4(zero + static_cast<char32_t>(digit))).toString();
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
