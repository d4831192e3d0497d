// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_date.h"
#include "support/qt_printing.h"

#include <QTimeZone>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quorvin {

namespace {

QDateTime moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

}  // namespace

TEST(DateValueOf, CountsDaysFromThe30thOfDecember1899) {
  EXPECT_EQ(dateValueOf(moment(1899, 12, 30)), 0);
  EXPECT_EQ(dateValueOf(moment(1899, 12, 31)), 1);
  EXPECT_EQ(dateValueOf(moment(2003, 1, 1)), 37622);
  EXPECT_EQ(dateValueOf(moment(9999, 12, 31)), 2958465);
  EXPECT_EQ(dateValueOf(moment(100, 1, 1)), -657434);
}

TEST(DateValueOf, HasTheTimeOfDayInTheFraction) {
  EXPECT_EQ(dateValueOf(moment(1899, 12, 30, 6)), 0.25);
  EXPECT_EQ(dateValueOf(moment(2003, 1, 1, 12)), 37622.5);
  EXPECT_EQ(dateValueOf(moment(2003, 1, 1, 0, 0, 1)), 37622 + 1.0 / 86400);
}

TEST(DateValueOf, CountsTheFractionAwayFromZeroBeforeTheZeroDate) {
  EXPECT_EQ(dateValueOf(moment(1899, 12, 29, 6)), -1.25);
}

TEST(DateValueOf, DropsPartsOfASecond) {
  EXPECT_EQ(dateValueOf(QDateTime(QDate(2003, 1, 1), QTime(0, 0, 1, 999), Qt::UTC)),
            dateValueOf(moment(2003, 1, 1, 0, 0, 1)));
}

TEST(DateValueOf, TakesTheWallClockAsItStandsInAnyZone) {
  const QDateTime tokyo(QDate(2003, 1, 1), QTime(12, 0), QTimeZone("Asia/Tokyo"));
  const QDateTime ahead(QDate(2003, 1, 1), QTime(12, 0), Qt::OffsetFromUTC, 3600 * 5);
  EXPECT_EQ(dateValueOf(tokyo), 37622.5);
  EXPECT_EQ(dateValueOf(ahead), 37622.5);
}

TEST(DateValueOf, KeepsInsideTheDatesThatCanBeWritten) {
  EXPECT_EQ(dateValueOf(moment(99, 12, 31, 23)), -657434);
  EXPECT_EQ(dateTimeOf(dateValueOf(moment(10000, 1, 1))), moment(9999, 12, 31, 23, 59, 59));
  EXPECT_EQ(dateTimeOf(dateValueOf(QDateTime::fromMSecsSinceEpoch(std::numeric_limits<qint64>::max()))),
            moment(9999, 12, 31, 23, 59, 59));
  EXPECT_EQ(dateValueOf(QDateTime()), 0);
}

TEST(DateTimeOf, GivesTheWallClockBack) {
  EXPECT_EQ(dateTimeOf(0), moment(1899, 12, 30));
  EXPECT_EQ(dateTimeOf(37622.5), moment(2003, 1, 1, 12));
  EXPECT_EQ(dateTimeOf(-1.25), moment(1899, 12, 29, 6));
  EXPECT_EQ(dateTimeOf(-0.25), moment(1899, 12, 30, 6));
}

TEST(DateTimeOf, RoundsToTheNearestSecond) {
  constexpr double kSecond = 1.0 / 86400;
  EXPECT_EQ(dateTimeOf(37622 + 1.4 * kSecond), moment(2003, 1, 1, 0, 0, 1));
  EXPECT_EQ(dateTimeOf(37622 + 1.6 * kSecond), moment(2003, 1, 1, 0, 0, 2));
  EXPECT_EQ(dateTimeOf(37623 - 0.4 * kSecond), moment(2003, 1, 2));
  EXPECT_EQ(dateTimeOf(-1 - (1 - 0.4 * kSecond)), moment(1899, 12, 30));
}

TEST(DateTimeOf, KeepsInsideTheDatesThatCanBeWritten) {
  EXPECT_EQ(dateTimeOf(1e300), moment(9999, 12, 31, 23, 59, 59));
  EXPECT_EQ(dateTimeOf(2958466), moment(9999, 12, 31, 23, 59, 59));
  EXPECT_EQ(dateTimeOf(std::nextafter(2958466.0, 0)), moment(9999, 12, 31, 23, 59, 59));
  EXPECT_EQ(dateTimeOf(std::numeric_limits<double>::infinity()), moment(9999, 12, 31, 23, 59, 59));
  EXPECT_EQ(dateTimeOf(-1e300), moment(100, 1, 1));
  EXPECT_EQ(dateTimeOf(std::nan("")), moment(1899, 12, 30));
}

TEST(DateTimeOf, KeepsAnHourThatSummerTimeSkips) {
  // Half past two on a morning when clocks went from two to three in much of Europe.
  const DateValue value = dateValueOf(moment(2004, 3, 28, 2, 30));
  EXPECT_EQ(dateTimeOf(value).time(), QTime(2, 30));
}

TEST(ShortMonthDateText, HasMonthCommaDayAndYear) {
  EXPECT_EQ(shortMonthDateText(dateValueOf(moment(2004, 1, 15)), QLocale::c()), u"Jan, 15 04");
  EXPECT_EQ(shortMonthDateText(dateValueOf(moment(2004, 1, 5, 23, 59)), QLocale::c()), u"Jan, 05 04");
  EXPECT_EQ(shortMonthDateText(dateValueOf(moment(2100, 12, 31)), QLocale(u"en_US")), u"Dec, 31 00");
}

TEST(ShortMonthDateText, ShowsTheZeroDate) {
  EXPECT_EQ(shortMonthDateText(0, QLocale::c()), u"Dec, 30 99");
  EXPECT_EQ(shortMonthDateText(0, QLocale(u"en_US")), u"Dec, 30 99");
}

TEST(ShortMonthDateText, HasTheLocalesWordsAndDigits) {
  const DateValue value = dateValueOf(moment(2004, 3, 5));
  EXPECT_EQ(shortMonthDateText(value, QLocale(u"de_DE")), QStringLiteral("Mär, 05 04"));
  EXPECT_EQ(shortMonthDateText(value, QLocale(u"sv_SE")), QStringLiteral("mars, 05 04"));
  EXPECT_EQ(shortMonthDateText(value, QLocale(u"ja_JP")), QStringLiteral("3月, 05 04"));
  EXPECT_EQ(shortMonthDateText(value, QLocale(u"ar_EG")), QStringLiteral("مارس, ٠٥ ٠٤"));
}

TEST(ShortMonthDateText, ReadsBackAsADate) {
  for (int month = 1; month <= 12; ++month) {
    const DateValue value = dateValueOf(moment(2004, month, 5));
    for (const char* name : {"C", "en_US", "en_GB", "de_DE", "fr_FR", "sv_SE"}) {
      const QLocale locale = qstrcmp(name, "C") == 0 ? QLocale::c() : QLocale(QString::fromLatin1(name));
      EXPECT_EQ(readGeneralDate(shortMonthDateText(value, locale), locale), value) << name << ' ' << month;
    }
  }
}

}  // namespace quorvin
