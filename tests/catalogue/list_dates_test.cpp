// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_dates.h"

#include "catalogue/list_entries.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::momentOf;
using test::wallClockOf;

const std::optional<std::int64_t> kMade = wallClockDay(2026, 11, 23);

/// What is left of `text` after a date was taken from its front, or "no date".
template <typename Take>
std::string rest(std::string_view text, Take&& take) {
  return take(text) ? std::string(text) : "no date";
}

TEST(ListDates, IsoDatesWithAndWithoutTimeAndZone) {
  const auto read = [](std::string_view text) { return takeIsoDate(text); };
  EXPECT_EQ(read("2004-01-15 10:20:30"), wallClockOf("2004-01-15 10:20:30"));
  EXPECT_EQ(read("2004-01-15 10:20"), wallClockOf("2004-01-15 10:20:00"));
  EXPECT_EQ(read("2004-01-15"), wallClockOf("2004-01-15 00:00:00"));
  EXPECT_EQ(read("2004-01-15T10:20:30Z"), momentOf("2004-01-15 10:20:30"));
  EXPECT_EQ(read("2004-01-15 10:20:30.999999999 +0130"), momentOf("2004-01-15 08:50:30"));
  EXPECT_EQ(read("1969-12-31 23:59:59 -0100"), momentOf("1970-01-01 00:59:59"));
  for (const char* wrong : {"2004-02-30", "2004-1-15", "04-01-15", "2004/01/15", "2004-01-155"}) {
    EXPECT_EQ(read(wrong), std::nullopt) << wrong;
  }
  EXPECT_EQ(rest("2004-01-15 10:20  lead", [](auto& text) { return takeIsoDate(text); }), "  lead");
}

TEST(ListDates, MonthNamesWithTheYearOrTheTime) {
  const auto read = [](std::string_view text) { return takeMonthNameDate(text, kMade); };
  EXPECT_EQ(read("Jan 15  2004"), wallClockOf("2004-01-15 00:00:00"));
  EXPECT_EQ(read("Nov 23 02:35"), wallClockOf("2026-11-23 02:35:00"));
  EXPECT_EQ(read("Nov 24 02:35"), wallClockOf("2026-11-24 02:35:00"));
  EXPECT_EQ(read("Nov 25 02:35"), wallClockOf("2025-11-25 02:35:00"));
  EXPECT_EQ(read("Feb 29 02:35"), wallClockOf("2024-02-29 02:35:00"));
  EXPECT_EQ(read("Nov 23 02:35:10 2019"), wallClockOf("2019-11-23 02:35:10"));
  EXPECT_EQ(rest("Nov 23 02:35 2026.txt", [](auto& text) { return takeMonthNameDate(text, kMade); }),
            " 2026.txt");
  for (const char* wrong : {"Jan 32 02:35", "Jan 15", "jan 15  2004", "Feb 30 02:35"}) {
    EXPECT_EQ(read(wrong), std::nullopt) << wrong;
  }
}

TEST(ListDates, WithoutTheDayOfTheListAYearIsNotMadeUp) {
  std::string_view text = "Nov 23 02:35 name";
  EXPECT_EQ(takeMonthNameDate(text, std::nullopt), ListDate{});
  EXPECT_EQ(text, " name");
  text = "01-15 10:20";
  EXPECT_EQ(takeYearlessDate(text, std::nullopt), ListDate{});
  text = "01-15 10:20";
  EXPECT_EQ(takeYearlessDate(text, kMade), wallClockOf("2026-01-15 10:20:00"));
}

TEST(ListDates, NumbersSayTheirOrderOrNot) {
  const auto read = [](std::string_view text) { return takeNumericDate(text); };
  EXPECT_EQ(read("15.01.2004  10:20"), wallClockOf("2004-01-15 10:20:00"));
  ListDate dayFirst = wallClockOf("2004-01-15 22:20:00");
  dayFirst.evidence = DayMonthOrder::DayFirst;
  EXPECT_EQ(read("15/01/2004  10:20 PM"), dayFirst);
  ListDate monthFirst = wallClockOf("2004-01-15 00:05:00");
  monthFirst.evidence = DayMonthOrder::MonthFirst;
  EXPECT_EQ(read("01/15/04  12:05a"), monthFirst);
  EXPECT_EQ(read("04/04/2004"), wallClockOf("2004-04-04 00:00:00"));
  const std::optional<ListDate> either = read("03/04/2004 10:20");
  ASSERT_TRUE(either);
  EXPECT_EQ(either->kind, ListDate::Kind::EitherOrder);
  EXPECT_EQ(inOrder(*either, DayMonthOrder::DayFirst), wallClockOf("2004-04-03 10:20:00"));
  EXPECT_EQ(inOrder(*either, DayMonthOrder::MonthFirst), wallClockOf("2004-03-04 10:20:00"));
  EXPECT_EQ(inOrder(*either, std::nullopt), ListDate{});
  const std::optional<ListDate> old = read("03/04/1950 10:20");
  ASSERT_TRUE(old);
  EXPECT_EQ(inOrder(*old, DayMonthOrder::MonthFirst), wallClockOf("1950-03-04 10:20:00"));
  for (const char* wrong : {"31/31/2004", "1/2-2004", "12/1", "15/01/2004 13:20 PM", "01.15.2004"}) {
    EXPECT_EQ(read(wrong), std::nullopt) << wrong;
  }
}

TEST(ListDates, PartsOfSecondsSince1970AreDropped) {
  const auto read = [](std::string_view text) { return takeUnixTime(text); };
  EXPECT_EQ(read("1074162030.9999999990"), momentOf("2004-01-15 10:20:30"));
  EXPECT_EQ(read("-2.5000000000"), momentOf("1969-12-31 23:59:58"));
  EXPECT_EQ(read("-1.0000000000"), momentOf("1969-12-31 23:59:59"));
  EXPECT_EQ(read("now"), std::nullopt);
}

}  // namespace
}  // namespace quorvin
