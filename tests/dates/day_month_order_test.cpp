// SPDX-License-Identifier: GPL-2.0-or-later

// Which of two numbers is the day, and what a date says about that. 38080 is 3 April 2004, 38050 4 March.
#include "dates/general_date_reader.h"
#include "dates/read_general_date.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

constexpr auto kDayFirst = DayMonthOrder::DayFirst;
constexpr auto kMonthFirst = DayMonthOrder::MonthFirst;

TEST(DayInOrder, ReadsSmallNumbersInTheOrderAskedFor) {
  EXPECT_EQ(dayInOrder(2004, 3, 4, kDayFirst), (OrderedDay{38080, OrderEvidence::Either}));
  EXPECT_EQ(dayInOrder(2004, 3, 4, kMonthFirst), (OrderedDay{38050, OrderEvidence::Either}));
  EXPECT_EQ(dayInOrder(2004, 12, 11, kDayFirst)->evidence, OrderEvidence::Either);
}

TEST(DayInOrder, EqualNumbersSayNothing) {
  EXPECT_EQ(dayInOrder(2004, 4, 4, kDayFirst), (OrderedDay{38081, OrderEvidence::None}));
  EXPECT_EQ(dayInOrder(2004, 4, 4, kMonthFirst), (OrderedDay{38081, OrderEvidence::None}));
  EXPECT_EQ(dayInOrder(2004, 13, 13, kMonthFirst), std::nullopt);
}

TEST(DayInOrder, ANumberAboveTwelveIsTheDay) {
  EXPECT_EQ(dayInOrder(2004, 13, 4, kMonthFirst), (OrderedDay{38090, OrderEvidence::DayFirst}));
  EXPECT_EQ(dayInOrder(2004, 4, 13, kDayFirst), (OrderedDay{38090, OrderEvidence::MonthFirst}));
  EXPECT_EQ(dayInOrder(2004, 31, 4, kDayFirst), std::nullopt);
  EXPECT_EQ(dayInOrder(2004, 0, 4, kDayFirst), std::nullopt);
  EXPECT_EQ(dayInOrder(2004, 13, 14, kDayFirst), std::nullopt);
}

struct EvidenceCase {
  const char* locale;
  const char* text;
  OrderEvidence evidence;
};

TEST(OrderEvidence, IsWhatADateSaysOfItself) {
  const EvidenceCase kCases[] = {
      {"en_US", "3/4/2004 1:04:09 PM", OrderEvidence::Either},
      {"en_US", "3/15/2004 1:04:09 PM", OrderEvidence::MonthFirst},
      {"en_US", "15/3/2004 1:04:09 PM", OrderEvidence::DayFirst},
      {"en_US", "3/3/2004 1:04:09 PM", OrderEvidence::None},
      {"en_GB", "03/04/2004 13:04:09", OrderEvidence::Either},
      {"en_GB", "03/15/2004 13:04:09", OrderEvidence::MonthFirst},
      {"en_GB", "3-4-04", OrderEvidence::Either},
      {"en_GB", "15-4-04", OrderEvidence::DayFirst},
      {"en_GB", "13:04 3/4", OrderEvidence::Either},
      {"de_DE", "03.04.2004 13:04:09", OrderEvidence::Either},
      {"de_DE", "13.04.2004 13:04:09", OrderEvidence::DayFirst},
      {"en_US", "03/04/2004 13.04.09", OrderEvidence::Either},
      {"en_US", "15/04/2004 13.04.09", OrderEvidence::DayFirst},
      // The month has a name, or comes after the year; or there is no date.
      {"en_US", "3 Apr 2004 13:04:09", OrderEvidence::None},
      {"en_US", "2004-04-03 13:04:09", OrderEvidence::None},
      {"en_US", "2004/15/3", OrderEvidence::None},
      {"sv_SE", "04-05-06", OrderEvidence::None},
      {"en_US", "1:04:09 PM", OrderEvidence::None},
  };
  for (const EvidenceCase& one : kCases) {
    const auto reading =
        GeneralDateReader(localeNamed(one.locale), kTestYear).reading(QString::fromUtf8(one.text));
    ASSERT_TRUE(reading.has_value()) << one.text;
    EXPECT_EQ(reading->evidence, one.evidence) << one.locale << ": " << one.text;
  }
}

TEST(OrderThatIsSet, GoesBeforeThatOfTheLocale) {
  GeneralDateReader british(localeNamed("en_GB"), kTestYear);
  british.setOrder(kMonthFirst);
  EXPECT_EQ(isoOf(british.readAscii("03/04/2004 13:04:09")), "2004-03-04 13:04:09");
  EXPECT_EQ(isoOf(british.read(u"3/4/2004 1:04:09 PM")), "2004-03-04 13:04:09");
  EXPECT_EQ(isoOf(british.read(u"3.4.2004 13:04:09")), "2004-03-04 13:04:09");
  EXPECT_EQ(isoOf(british.read(u"03/04/2004 13.04.09")), "2004-03-04 13:04:09");
  EXPECT_EQ(isoOf(british.read(u"3/4/04")), "2004-03-04 00:00:00");
  EXPECT_EQ(isoOf(british.read(u"3/4")), "2004-03-04 00:00:00");
  // Where only the other order makes a date it is still one.
  EXPECT_EQ(isoOf(british.read(u"15/4/2004")), "2004-04-15 00:00:00");
  EXPECT_EQ(isoOf(british.read(u"2004-03-04")), "2004-03-04 00:00:00");
  GeneralDateReader swedish(localeNamed("sv_SE"), kTestYear);
  swedish.setOrder(kDayFirst);
  EXPECT_EQ(isoOf(swedish.read(u"3/4/2004 13:04:09")), "2004-04-03 13:04:09");
  EXPECT_EQ(isoOf(swedish.read(u"04-05-06")), "2004-05-06 00:00:00");
}

}  // namespace
}  // namespace quorvin
