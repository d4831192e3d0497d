// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_date.h"
#include "index/entry_line.h"
#include "support/qt_printing.h"
#include "support/time_zone.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace quorvin {
namespace {

QString listedDate(ListedDates& dates, std::int64_t seconds) {
  std::string text;
  dates.append(text, seconds);
  return QString::fromStdString(text);
}

QString plainDate(std::int64_t seconds, const QLocale& locale) {
  return generalDateText(dateValueOf(QDateTime::fromSecsSinceEpoch(seconds)), locale);
}

TEST(ListedDates, AreOfTheMachinesTimeZone) {
  const test::TimeZone zone(test::kCentralEurope);
  ListedDates dates(QLocale(QStringLiteral("de_DE")));
  // The last second of winter time, the first of summer time, and back.
  EXPECT_EQ(listedDate(dates, 1'080'435'599), QStringLiteral("28.03.2004 01:59:59"));
  EXPECT_EQ(listedDate(dates, 1'080'435'600), QStringLiteral("28.03.2004 03:00:00"));
  EXPECT_EQ(listedDate(dates, 1'099'184'399), QStringLiteral("31.10.2004 02:59:59"));
  EXPECT_EQ(listedDate(dates, 1'099'184'400), QStringLiteral("31.10.2004 02:00:00"));
}

TEST(ListedDates, AgreeWithTheGeneralDateInEveryLocaleAndZone) {
  for (const char* rule : {test::kUtc, test::kCentralEurope, "NST3:30NDT,M3.2.0,M11.1.0", "IST-5:30"}) {
    const test::TimeZone zone(rule);
    for (const char* name : {"C", "en_US", "de_DE", "fr_FR", "ja_JP", "sv_SE", "ar_EG", "fa_IR", "ko_KR"}) {
      const QLocale locale{QString::fromLatin1(name)};
      ListedDates dates(locale);
      std::mt19937_64 random(1);
      std::uniform_int_distribution<std::int64_t> moments(-200'000'000, 6'000'000'000);
      for (int i = 0; i < 300; ++i) {
        const std::int64_t moment = moments(random);
        EXPECT_EQ(listedDate(dates, moment), plainDate(moment, locale))
            << rule << ' ' << name << ' ' << moment;
      }
    }
  }
}

TEST(ListedDates, EveryHourRoundTheChangesOfClocksAgrees) {
  const test::TimeZone zone(test::kCentralEurope);
  const QLocale locale(QStringLiteral("en_US"));
  ListedDates dates(locale);
  for (const std::int64_t change : {1'080'435'600LL, 1'099'184'400LL}) {
    for (std::int64_t hour = -100; hour <= 100; ++hour) {
      const std::int64_t moment = change + hour * 3600;
      EXPECT_EQ(listedDate(dates, moment), plainDate(moment, locale)) << moment;
    }
  }
}

TEST(ListedDates, DatesBeyondTheCalendarAreItsEnds) {
  const test::TimeZone zone(test::kUtc);
  ListedDates dates(QLocale::c());
  EXPECT_EQ(listedDate(dates, 0), QStringLiteral("1 Jan 1970"));
  EXPECT_EQ(listedDate(dates, -1), QStringLiteral("31 Dec 1969 23:59:59"));
  EXPECT_EQ(listedDate(dates, 253'402'300'799), QStringLiteral("31 Dec 9999 23:59:59"));
  EXPECT_EQ(listedDate(dates, 253'402'300'800), QStringLiteral("31 Dec 9999 23:59:59"));
  EXPECT_EQ(listedDate(dates, std::numeric_limits<std::int64_t>::max()),
            QStringLiteral("31 Dec 9999 23:59:59"));
  EXPECT_EQ(listedDate(dates, std::numeric_limits<std::int64_t>::min()), QStringLiteral("1 Jan 0100"));
  // The zero date's day has no date of its own.
  EXPECT_EQ(listedDate(dates, -2'209'161'600 + 3600), QStringLiteral("01:00:00"));
}

}  // namespace
}  // namespace quorvin
