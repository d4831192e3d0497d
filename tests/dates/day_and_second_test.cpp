// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_date.h"

#include <QDate>
#include <gtest/gtest.h>

namespace quorvin {

TEST(DayNumber, AgreesWithTheCalendarOnEveryDayFromYear100To9999) {
  QDate date(100, 1, 1);
  for (int day = kFirstDay; day <= kLastDay; ++day, date = date.addDays(1)) {
    const CalendarDate expected{date.year(), date.month(), date.day()};
    ASSERT_EQ(calendarDateOf(day), expected) << day;
    ASSERT_EQ(dayNumberOf(expected), day);
  }
  EXPECT_EQ(date, QDate(10000, 1, 1));
}

TEST(DayNumber, RefusesDaysThatAreNot) {
  EXPECT_EQ(dayNumberOf({2003, 2, 29}), std::nullopt);
  EXPECT_EQ(dayNumberOf({1900, 2, 29}), std::nullopt);
  EXPECT_EQ(dayNumberOf({2004, 4, 31}), std::nullopt);
  EXPECT_EQ(dayNumberOf({2004, 0, 1}), std::nullopt);
  EXPECT_EQ(dayNumberOf({2004, 13, 1}), std::nullopt);
  EXPECT_EQ(dayNumberOf({2004, 1, 0}), std::nullopt);
  EXPECT_EQ(dayNumberOf({2004, 1, 32}), std::nullopt);
  EXPECT_EQ(dayNumberOf({99, 12, 31}), std::nullopt);
  EXPECT_EQ(dayNumberOf({10000, 1, 1}), std::nullopt);
  EXPECT_EQ(dayNumberOf({2004, 257, 1}), std::nullopt);
  EXPECT_EQ(dayNumberOf({2004, 1, -255}), std::nullopt);
}

TEST(SplitDateValue, IsTheInverseOfJoinForEverySecond) {
  for (const int day : {kFirstDay, -1, 0, 1, 37622, kLastDay}) {
    for (int second = 0; second < kSecondsPerDay; ++second) {
      const DayAndSecond moment{day, second};
      ASSERT_EQ(splitDateValue(joinDateValue(moment)), moment) << day << ' ' << second;
    }
  }
}

}  // namespace quorvin
