// SPDX-License-Identifier: GPL-2.0-or-later

// What is written is read back, to the second.
#include "dates/general_date.h"
#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "dates/read_general_date.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

namespace quorvin {

class RoundTrip : public testing::TestWithParam<const char*> {
 protected:
  void expectBack(DateValue value) const {
    const QString text = writer_.text(value);
    ASSERT_EQ(reader_.read(text), value) << text.toStdString();
    const std::string bytes = text.toStdString();
    ASSERT_EQ(reader_.readAscii(bytes), value) << bytes;
  }

  const QLocale locale_ = localeNamed(GetParam());
  const GeneralDateReader reader_{locale_, kTestYear};
  const GeneralDateWriter writer_{locale_};
};

TEST_P(RoundTrip, EverySecondOfALeapDay) {
  const int leapDay = *dayNumberOf({2004, 2, 29});
  for (int second = 0; second < kSecondsPerDay; second += test::sweep(1, 41)) {
    ASSERT_NO_FATAL_FAILURE(expectBack(joinDateValue({leapDay, second})));
  }
}

TEST_P(RoundTrip, EverySecondOfTheZeroDay) {
  for (int second = 0; second < kSecondsPerDay; second += test::sweep(1, 41)) {
    ASSERT_NO_FATAL_FAILURE(expectBack(joinDateValue({0, second})));
  }
}

TEST_P(RoundTrip, EveryDayOfTheCalendar) {
  for (int day = kFirstDay; day <= kLastDay; day += test::sweep(3, 311)) {
    ASSERT_NO_FATAL_FAILURE(expectBack(joinDateValue({day, 0})));
  }
  for (int day = *dayNumberOf({1899, 12, 1}); day <= *dayNumberOf({2040, 12, 31});
       day += test::sweep(1, 11)) {
    ASSERT_NO_FATAL_FAILURE(expectBack(joinDateValue({day, 49449})));
  }
}

TEST_P(RoundTrip, TheEndsOfTheCalendar) {
  expectBack(joinDateValue({kFirstDay, 0}));
  expectBack(joinDateValue({kFirstDay, kSecondsPerDay - 1}));
  expectBack(joinDateValue({kLastDay, kSecondsPerDay - 1}));
  expectBack(joinDateValue({-1, 1}));
}

TEST_P(RoundTrip, AValueBetweenSecondsComesBackRounded) {
  const DateValue value = 38000 + 1.3 / 86400;
  EXPECT_EQ(readGeneralDate(generalDateText(value, locale_), locale_), 38000 + 1.0 / 86400);
}

// Two digits of a year, in the locale's order and with its sign.
TEST_P(RoundTrip, EveryTwoDigitYear) {
  const QString sign =
      QString::fromLatin1(GetParam()) == u"de_DE" ? QStringLiteral(".") : QStringLiteral("/");
  const bool yearFirst = locale_.name() == u"sv_SE" || locale_.name() == u"ja_JP";
  const bool monthFirst = yearFirst || locale_.name() == u"en_US";
  for (int twoDigits = 0; twoDigits < 100; ++twoDigits) {
    const QString year = QString::number(twoDigits).rightJustified(2, u'0');
    const QString rest = monthFirst ? QStringLiteral("03") + sign + QStringLiteral("05")
                                    : QStringLiteral("05") + sign + QStringLiteral("03");
    const QString text = yearFirst ? year + sign + rest : rest + sign + year;
    const int fullYear = twoDigits < 30 ? 2000 + twoDigits : 1900 + twoDigits;
    const int day = *dayNumberOf({fullYear, 3, 5});
    EXPECT_EQ(reader_.read(text), day) << text.toStdString();
    EXPECT_EQ(reader_.read(QString(QStringLiteral("5 Mar ") + year)), day) << twoDigits;
  }
}

TEST_P(RoundTrip, EveryMonthName) {
  for (int month = 1; month <= 12; ++month) {
    const int day = *dayNumberOf({2004, month, 5});
    for (const QLocale& words : {locale_, QLocale::c()}) {
      for (const QLocale::FormatType length : {QLocale::LongFormat, QLocale::ShortFormat}) {
        for (const QString& name :
             {words.monthName(month, length), words.standaloneMonthName(month, length)}) {
          // Names that are a number and a sign have the locale's long form instead.
          if (name.front().isDigit()) continue;
          EXPECT_EQ(reader_.read(QString(QStringLiteral("5 ") + name + QStringLiteral(" 2004"))), day)
              << name.toStdString();
          EXPECT_EQ(reader_.read(QString(QStringLiteral("5 ") + name.toUpper() + QStringLiteral(" 2004"))),
                    day)
              << name.toStdString();
          EXPECT_EQ(reader_.read(QString(name + QStringLiteral(" 5, 2004"))), day) << name.toStdString();
        }
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Locales, RoundTrip, testing::ValuesIn(kTestedLocales),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace quorvin
