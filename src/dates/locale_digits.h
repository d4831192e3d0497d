// The ten digits of a locale.
#pragma once

#include <QLocale>
#include <QString>

#include <array>

namespace quorvin {

/// The locale's own signs for 0 to 9.
std::array<QString, 10> digitsOf(const QLocale& locale);

/// `asciiNumber` with each ASCII digit in it written as the locale's own.
QString withLocaleDigits(const QString& asciiNumber, const QLocale& locale);

}  // namespace quorvin
