// SPDX-License-Identifier: GPL-2.0-or-later

// How dates are written.
#include "dates/general_date.h"
#include "dates/general_date_writer.h"
#include "dates/read_general_date.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

struct WritingCase {
  const char* locale;
  QDateTime moment;
  const char* text;
};

void PrintTo(const WritingCase& row, std::ostream* out) {
  *out << row.locale;
}

QDateTime at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

const WritingCase kCases[] = {
    {"en_US", at(2004, 1, 15, 13, 4, 9), "1/15/2004 1:04:09 PM"},
    {"en_US", at(2004, 1, 15), "1/15/2004"},
    {"en_US", at(2004, 12, 5, 0, 0, 1), "12/5/2004 12:00:01 AM"},
    {"en_US", at(2004, 12, 5, 12, 0, 0), "12/5/2004 12:00:00 PM"},
    {"en_US", at(1899, 12, 30), "12:00:00 AM"},
    {"en_US", at(1899, 12, 30, 23, 59, 59), "11:59:59 PM"},
    {"en_US", at(1899, 12, 29), "12/29/1899"},
    {"en_US", at(100, 1, 1), "1/1/0100"},
    {"en_US", at(9999, 12, 31, 23, 59, 59), "12/31/9999 11:59:59 PM"},
    {"en_GB", at(2004, 1, 5, 3, 4, 9), "05/01/2004 03:04:09"},
    {"en_GB", at(2004, 1, 5), "05/01/2004"},
    {"en_GB", at(1899, 12, 30), "00:00:00"},
    {"de_DE", at(2004, 1, 5, 3, 4, 9), "05.01.2004 03:04:09"},
    {"de_DE", at(1899, 12, 30), "00:00:00"},
    {"fr_FR", at(2004, 1, 5, 3, 4, 9), "05/01/2004 03:04:09"},
    {"fr_FR", at(1899, 12, 30, 13, 4, 9), "13:04:09"},
    {"sv_SE", at(2004, 1, 5, 3, 4, 9), "2004-01-05 03:04:09"},
    {"sv_SE", at(1999, 12, 31), "1999-12-31"},
    {"ja_JP", at(2004, 1, 5, 3, 4, 9), "2004/01/05 3時04分09秒"},
    {"ja_JP", at(1899, 12, 30), "0時00分00秒"},
    {"C", at(2004, 1, 5, 3, 4, 9), "5 Jan 2004 03:04:09"},
    {"C", at(1899, 12, 30), "00:00:00"},
    {"fi_FI", at(2004, 1, 5, 3, 4, 9), "5.1.2004 3.04.09"},
    {"hu_HU", at(2004, 1, 5, 3, 4, 9), "2004. 01. 05. 3:04:09"},
    {"bg_BG", at(2004, 1, 5, 3, 4, 9), "5.01.2004 г. 3:04:09 ч."},
    {"zh_TW", at(2004, 1, 5, 13, 4, 9), "2004/1/5 13:04:09"},
    {"ar_EG", at(2004, 1, 5, 13, 4, 9), "٥\u200F/١\u200F/٢٠٠٤ ١:٠٤:٠٩ م"},
};

}  // namespace

class WriteGeneralDate : public testing::TestWithParam<WritingCase> {};

TEST_P(WriteGeneralDate, HasTheLocalesForm) {
  const WritingCase& row = GetParam();
  const DateValue value = dateValueOf(row.moment);
  EXPECT_EQ(generalDateText(value, localeNamed(row.locale)), QString::fromUtf8(row.text));
}

INSTANTIATE_TEST_SUITE_P(Literal, WriteGeneralDate, testing::ValuesIn(kCases), [](const auto& row) {
  return std::string(row.param.locale) + "_" + std::to_string(row.index + 1);
});

TEST(GeneralDateText, RoundsToTheSecondBeforeItLooksForMidnight) {
  constexpr double kSecond = 1.0 / 86400;
  EXPECT_EQ(generalDateText(37623 - 0.4 * kSecond, QLocale(u"en_US")), u"1/2/2003");
  EXPECT_EQ(generalDateText(-0.4 * kSecond, QLocale(u"en_US")), u"12:00:00 AM");
}

TEST(GeneralDateText, AgreesWithTheDesktopsOwnWritingInEveryLocale) {
  const QDateTime moment = at(2014, 11, 25, 13, 4, 9);
  int compared = 0;
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    QString date = locale.dateFormat(QLocale::ShortFormat);
    QString time = locale.timeFormat(QLocale::LongFormat);
    // Zones beside the time and letters that print as themselves are cut out by rules of our own.
    if (!time.endsWith(u"s t") && !time.endsWith(u"AP t")) continue;
    time.chop(2);
    if (!date.contains(u"yyyy")) date.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    QString expected = locale.toString(moment, date + u' ' + time);
    expected.replace(QChar(0x00A0), u' ').replace(QChar(0x202F), u' ');
    EXPECT_EQ(generalDateText(dateValueOf(moment), locale), expected) << locale.name().toStdString();
    ++compared;
  }
  EXPECT_GT(compared, 500);
}

}  // namespace quorvin
