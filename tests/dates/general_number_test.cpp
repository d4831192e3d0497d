// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_number.h"

#include "faults/runtime_fault.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quorvin {

namespace {

constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

int faultOfRounding(double value) {
  try {
    roundToInt16(value);
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

}  // namespace

TEST(LeadingNumber, ReadsWhatStandsInFront) {
  EXPECT_EQ(leadingNumber(u"50"), 50);
  EXPECT_EQ(leadingNumber(u"  50.5% of all"), 50.5);
  EXPECT_EQ(leadingNumber(u"-7"), -7);
  EXPECT_EQ(leadingNumber(u"+7"), 7);
  EXPECT_EQ(leadingNumber(u"12,5"), 12);
  EXPECT_EQ(leadingNumber(u"1 2"), 1);
  EXPECT_EQ(leadingNumber(u"0050"), 50);
}

TEST(LeadingNumber, IsZeroWithoutANumber) {
  EXPECT_EQ(leadingNumber(u""), 0);
  EXPECT_EQ(leadingNumber(u"   "), 0);
  EXPECT_EQ(leadingNumber(u"abc"), 0);
  EXPECT_EQ(leadingNumber(u"-"), 0);
  EXPECT_EQ(leadingNumber(u"."), 0);
  EXPECT_EQ(leadingNumber(u"e5"), 0);
  EXPECT_EQ(leadingNumber(u"- 5"), 0);
  EXPECT_EQ(leadingNumber(u"nan"), 0);
  EXPECT_EQ(leadingNumber(u"inf"), 0);
}

TEST(LeadingNumber, TakesAPointOnEitherSideOfTheDigits) {
  EXPECT_EQ(leadingNumber(u".5"), 0.5);
  EXPECT_EQ(leadingNumber(u"-.5"), -0.5);
  EXPECT_EQ(leadingNumber(u"5."), 5);
  EXPECT_EQ(leadingNumber(u"1.2.3"), 1.2);
}

TEST(LeadingNumber, TakesAWholeExponentOnly) {
  EXPECT_EQ(leadingNumber(u"1e3"), 1000);
  EXPECT_EQ(leadingNumber(u"1E-3x"), 0.001);
  EXPECT_EQ(leadingNumber(u"2.5e+1"), 25);
  EXPECT_EQ(leadingNumber(u"2e"), 2);
  EXPECT_EQ(leadingNumber(u"2e+"), 2);
  EXPECT_EQ(leadingNumber(u"0x10"), 0);
}

TEST(LeadingNumber, GoesToInfinityAndToZero) {
  EXPECT_EQ(leadingNumber(u"1e999"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(leadingNumber(u"-1e999"), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(leadingNumber(u"1e-999"), 0);
  EXPECT_EQ(leadingNumber(QString(400, u'9')), std::numeric_limits<double>::infinity());
  EXPECT_EQ(leadingNumber(QString(QStringLiteral("0.") + QString(400, u'0') + QStringLiteral("1"))), 0);
}

TEST(RoundToInt16, TakesHalvesToTheEvenNeighbour) {
  EXPECT_EQ(roundToInt16(50.5), 50);
  EXPECT_EQ(roundToInt16(51.5), 52);
  EXPECT_EQ(roundToInt16(-0.5), 0);
  EXPECT_EQ(roundToInt16(-1.5), -2);
  EXPECT_EQ(roundToInt16(12.5), 12);
  EXPECT_EQ(roundToInt16(37.5), 38);
  EXPECT_EQ(roundToInt16(62.5), 62);
  EXPECT_EQ(roundToInt16(33.333), 33);
}

TEST(RoundToInt16, OverflowsBeyond16Bits) {
  EXPECT_EQ(roundToInt16(32767), 32767);
  EXPECT_EQ(roundToInt16(32767.4), 32767);
  EXPECT_EQ(roundToInt16(-32768), -32768);
  EXPECT_EQ(roundToInt16(-32768.5), -32768);
  EXPECT_EQ(faultOfRounding(32767.5), 6);
  EXPECT_EQ(faultOfRounding(-32768.6), 6);
  EXPECT_EQ(faultOfRounding(1e300), 6);
  EXPECT_EQ(faultOfRounding(std::numeric_limits<double>::infinity()), 6);
  EXPECT_EQ(faultOfRounding(std::nan("")), 6);
}

TEST(ReadByteCount, SkipsGroupingSignsOfEveryLocale) {
  EXPECT_EQ(readByteCount(u"    1,234,567"), 1234567);
  EXPECT_EQ(readByteCount(u"1.234.567"), 1234567);
  EXPECT_EQ(readByteCount(u"1 234 567"), 1234567);
  EXPECT_EQ(readByteCount(u"1\u00A0234\u00A0567"), 1234567);
  EXPECT_EQ(readByteCount(u"1\u202F234\u202F567"), 1234567);
  EXPECT_EQ(readByteCount(u"1'234'567"), 1234567);
  EXPECT_EQ(readByteCount(u"1\u2019234\u2019567"), 1234567);
  EXPECT_EQ(readByteCount(u"12,34,567"), 1234567);
  EXPECT_EQ(readByteCount(u"١٬٢٣٤"), 1234);
}

TEST(ReadByteCount, TakesBlanksAroundAndAMinusSign) {
  EXPECT_EQ(readByteCount(u"0"), 0);
  EXPECT_EQ(readByteCount(u"           -1"), -1);
  EXPECT_EQ(readByteCount(u"  42  "), 42);
  EXPECT_EQ(readByteCount(u"\u22121"), -1);
  EXPECT_EQ(readByteCount(u"9999999999999"), 9999999999999);
}

TEST(ReadByteCount, RefusesWhatIsNoCount) {
  for (const QString& text :
       {QString(), QStringLiteral("   "), QStringLiteral("-"), QStringLiteral("n/a"), QStringLiteral("12a"),
        QStringLiteral("a12"), QStringLiteral("1-2"), QStringLiteral("--1"), QStringLiteral("- 1"),
        QStringLiteral("+1"), QStringLiteral("1,"), QStringLiteral(",1"), QStringLiteral("1,,2"),
        QStringLiteral("1e5"), QStringLiteral("1\t2"), QStringLiteral("²"), QStringLiteral("1\n")}) {
    EXPECT_EQ(readByteCount(text), std::nullopt) << text.toStdString();
  }
}

TEST(ReadByteCount, HoldsSixtyThreeBits) {
  EXPECT_EQ(readByteCount(u"9223372036854775807"), kMost);
  EXPECT_EQ(readByteCount(u"9,223,372,036,854,775,807"), kMost);
  EXPECT_EQ(readByteCount(u"9223372036854775808"), std::nullopt);
  EXPECT_EQ(readByteCount(u"-9223372036854775808"), kLeast);
  EXPECT_EQ(readByteCount(u"-9223372036854775809"), std::nullopt);
  EXPECT_EQ(readByteCount(u"99999999999999999999"), std::nullopt);
  EXPECT_EQ(readByteCount(QString(1000, u'0')), 0);
}

TEST(MebibytesText, HasTwoDecimals) {
  const QLocale c = QLocale::c();
  EXPECT_EQ(mebibytesText(0, c), u"0.00mb");
  EXPECT_EQ(mebibytesText(1048576, c), u"1.00mb");
  EXPECT_EQ(mebibytesText(1572864, c), u"1.50mb");
  EXPECT_EQ(mebibytesText(1234567, c), u"1.18mb");
  EXPECT_EQ(mebibytesText(2147483647, c), u"2048.00mb");
  EXPECT_EQ(mebibytesText(9999999999999, c), u"9536743.16mb");
}

TEST(MebibytesText, RoundsTiesAwayFromZero) {
  const QLocale c = QLocale::c();
  EXPECT_EQ(mebibytesText(131072, c), u"0.13mb");
  EXPECT_EQ(mebibytesText(131071, c), u"0.12mb");
  EXPECT_EQ(mebibytesText(-131072, c), u"-0.13mb");
  EXPECT_EQ(mebibytesText(393216, c), u"0.38mb");
  EXPECT_EQ(mebibytesText(1048576 + 131072, c), u"1.13mb");
  EXPECT_EQ(mebibytesText(5242, c), u"0.00mb");
  EXPECT_EQ(mebibytesText(5243, c), u"0.01mb");
  EXPECT_EQ(mebibytesText(1048575, c), u"1.00mb");
}

TEST(MebibytesText, HasNoMinusSignOnZero) {
  EXPECT_EQ(mebibytesText(-1, QLocale::c()), u"0.00mb");
  EXPECT_EQ(mebibytesText(-5243, QLocale::c()), u"-0.01mb");
}

TEST(MebibytesText, HoldsTheLargestSizes) {
  EXPECT_EQ(mebibytesText(kMost, QLocale::c()), u"8796093022208.00mb");
  EXPECT_EQ(mebibytesText(kLeast, QLocale::c()), u"-8796093022208.00mb");
}

TEST(MebibytesText, HasTheLocalesSignsAndNoGrouping) {
  EXPECT_EQ(mebibytesText(131072, QLocale(u"de_DE")), u"0,13mb");
  EXPECT_EQ(mebibytesText(2147483647, QLocale(u"fr_FR")), u"2048,00mb");
  EXPECT_EQ(mebibytesText(131072, QLocale(u"en_US")), u"0.13mb");
  EXPECT_EQ(mebibytesText(131072, QLocale(u"ar_EG")), QStringLiteral("٠٫١٣mb"));
}

TEST(MebibyteWriter, AppendsTheSame) {
  std::string text = "size: ";
  MebibyteWriter(QLocale(u"de_DE")).add(text, -131072);
  EXPECT_EQ(text, "size: -0,13mb");
  const MebibyteWriter egyptian(QLocale(u"ar_EG"));
  text.clear();
  egyptian.add(text, 131072);
  egyptian.add(text, 0);
  EXPECT_EQ(text, "\u0660\u066B\u0661\u0663mb\u0660\u066B\u0660\u0660mb");
}

}  // namespace quorvin
