// SPDX-License-Identifier: GPL-2.0-or-later

// What is no date, or none that can be trusted.
#include "dates/general_date_reader.h"
#include "dates/read_general_date.h"

#include <QString>

namespace quorvin {

// Printed without its text, whose signs test runners stumble over.
struct Nonsense {
  const char* text;
};
void PrintTo(const Nonsense&, std::ostream* out) {
  *out << "nonsense";
}

namespace {

// Refused in every locale.
const Nonsense kNonsense[] = {
    {""},
    {" "},
    {"\t"},
    {"n/a"},
    {"none"},
    {"?"},
    {"-"},
    {"--"},
    {"/"},
    {":"},
    {"."},
    {","},
    {"//"},
    {"::"},
    {"am"},
    {"PM"},
    {"T"},
    // Numbers alone.
    {"0"},
    {"1"},
    {"15"},
    {"99"},
    {"2004"},
    {"37622"},
    {"20040115"},
    {"-1"},
    {"+5"},
    {"3,5"},
    {"1e5"},
    {"1 2"},
    {"15 1"},
    {"2004 1"},
    {"12345678901234567890"},
    {"1,2,2004"},
    // Days that are not.
    {"31/2/2004"},
    {"2/31/2004"},
    {"31.2.2004"},
    {"2004-02-31"},
    {"31 Feb 2004"},
    {"Feb 31, 2004"},
    {"29 Feb 2003"},
    {"29/2/2003"},
    {"2/29/2003"},
    {"2003-02-29"},
    {"29/2/1900"},
    {"30/2/2000"},
    {"31/4/2004"},
    {"31 Apr 2004"},
    {"0/1/2004"},
    {"1/0/2004"},
    {"0/0/0"},
    {"00/00/0000"},
    {"2004-00-10"},
    {"2004-10-00"},
    {"13/13/2004"},
    {"32/1/2004"},
    {"32 Jan 2004"},
    {"0 Jan 2004"},
    {"Jan 0 2004"},
    {"15/15/15"},
    {"99/99/99"},
    {"31/31/2031"},
    // Years that are not.
    {"1/1/0099"},
    {"1/1/0000"},
    {"1/1/20045"},
    {"15 Jan 004"},
    {"15 Jan 4"},
    {"1/1/999"},
    {"0099-01-01"},
    // Times that are not.
    {"24:00"},
    {"25:00"},
    {"25:00:00"},
    {"10:60"},
    {"10:00:60"},
    {"13:00 PM"},
    {"13 AM"},
    {"1:00 AM PM"},
    {"AM 1:00 PM"},
    {"10:"},
    {":10"},
    {"10:00:"},
    {"10:00:00:00"},
    {"-1:00"},
    {"10:00.5"},
    {"100:00"},
    {"10:000"},
    {"1 pm pm"},
    {"15 Jan 2004 24:00:00"},
    {"15 Jan 2004 25:00"},
    {"15 Jan 2004 10:60"},
    {"2004-01-15T"},
    {"2004-01-15T25:00"},
    // More than a date.
    {"15 Jan 2004 x"},
    {"15 Jan 2004 10:00 x"},
    {"15 Jan 2004 10:00 GMT"},
    {"2004-01-15T10:00Z"},
    {"2004-01-15T10:00:00+01:00"},
    {"2004-01-15T10:00:00.5"},
    {"15 Jan 2004 15 Jan 2004"},
    {"10:00 10:00"},
    {"15 Jan 2004 -"},
    {"x 15 Jan 2004"},
    {"15 Jan 2004.5"},
    {"10:00 AMx"},
    {"1/2/2004/5"},
    {"1/2/3/2004"},
    {"1//2/2004"},
    {"1/-2/2004"},
    {"2004--01-15"},
    {"15/Jan/Feb/2004"},
    {"15 Jan Feb 2004"},
    {"Jan Jan 2004"},
    {"2004-01-15\n"},
    {"2004-01-15\r"},
    {"2004-01\n-15"},
    // Less than a date.
    {"Jan"},
    {"January"},
    {"Jan 15 2004 10"},
    {"15 Jan 2004,"},
    {"15 Foo 2004"},
    {"15 Janu 2004"},
    {"15 Janx 2004"},
    {"January the 15th"},
    {"tomorrow"},
    {"now"},
    {"Monday"},
    {"Mon, 15 Nov 2004"},
};

// Refused because the locale reads them differently than others.
const DateCase kForeign[] = {
    // Two numbers with a dot are an amount where dates have no dots.
    {"en_US", "1.15", kRefused},
    {"en_GB", "15.1", kRefused},
    {"en_US", "12.5", kRefused},
    {"fr_FR", "15.1", kRefused},
    {"ja_JP", "1.15", kRefused},
    // Two digits at the wrong end are never taken for a year.
    {"en_US", "99/12/31", kRefused},
    {"en_GB", "99/12/31", kRefused},
    {"de_DE", "32.01.04", kRefused},
    {"de_DE", "31.02.04", kRefused},
    {"sv_SE", "31/12/99", kRefused},
    {"ja_JP", "31/12/99", kRefused},
    // Words of other languages.
    {"en_US", "15 Januar 2004", kRefused},
    {"de_DE", "15 janvier 2004", kRefused},
    {"fr_FR", "15 Okt 2004", kRefused},
    {"en_US", "2004年1月15日", kRefused},
    {"sv_SE", "午後1:04", kRefused},
    // Dots in times where the locale has none.
    {"en_GB", "13.04", kRefused},
    {"de_DE", "15.01.2004 13.04", kRefused},
    // Signs beyond ASCII that look like something.
    {"en_US", "²/³/2004", kRefused},
    {"en_US", "½", kRefused},
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Foreign, ReadGeneralDate, testing::ValuesIn(kForeign), nameOfCase);

class RefuseNonsense : public testing::TestWithParam<Nonsense> {};

TEST_P(RefuseNonsense, InEveryLocale) {
  for (const char* name : kTestedLocales) {
    const GeneralDateReader reader(localeNamed(name), kTestYear);
    EXPECT_EQ(isoOf(reader.read(QString::fromUtf8(GetParam().text))), kRefused)
        << name << ": " << GetParam().text;
  }
}

INSTANTIATE_TEST_SUITE_P(Nonsense, RefuseNonsense, testing::ValuesIn(kNonsense),
                         [](const auto& row) { return std::to_string(row.index + 1); });

TEST(ReadGeneralDateYear, TakesTheYearOfTodayWhereTheTextNamesNone) {
  const int year = QDate::currentDate().year();
  const auto value = readGeneralDate(u"15 Jan", QLocale::c());
  ASSERT_TRUE(value.has_value());
  const int read = dateTimeOf(*value).date().year();
  // The year may change between the two looks at the calendar.
  EXPECT_TRUE(read == year || read == year + 1) << read;
}

TEST(ReadGeneralDateYear, RefusesTheLeapDayWithoutAYearInACommonYear) {
  const GeneralDateReader reader(QLocale::c(), 2003);
  EXPECT_EQ(isoOf(reader.read(u"29 Feb")), kRefused);
  EXPECT_EQ(isoOf(reader.read(u"28 Feb")), "2003-02-28 00:00:00");
}

}  // namespace quorvin
