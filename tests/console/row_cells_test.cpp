// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/row_cells.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

std::string cellOf(CellRule rule, bool isForTerminal, std::string_view value) {
  std::string text = "before\t";
  CellForm(rule, isForTerminal).add(text, value);
  return text.substr(7);
}

TEST(CellForm, QuotesWhatHasCommasQuotesOrLineEnds) {
  EXPECT_EQ(cellOf(CellRule::Quotes, false, "plain \xC3\xA4\t"), "plain \xC3\xA4\t");
  EXPECT_EQ(cellOf(CellRule::Quotes, false, ""), "");
  EXPECT_EQ(cellOf(CellRule::Quotes, false, "a,b"), "\"a,b\"");
  EXPECT_EQ(cellOf(CellRule::Quotes, false, "\"\""), "\"\"\"\"\"\"");
  EXPECT_EQ(cellOf(CellRule::Quotes, false, "two\r\nlines"), "\"two\r\nlines\"");
}

TEST(CellForm, LeavesWhatIsInFrontOfTheCell) {
  std::string text = "\"a\n\xC2\x9B";
  CellForm(CellRule::Quotes, true).add(text, "\n\"");
  EXPECT_EQ(text,
            "\"a\n\xC2\x9B"
            "\"?\"\"\"");
}

TEST(CellForm, TurnsControlsIntoBlanksWhereTheyWouldEndACell) {
  EXPECT_EQ(cellOf(CellRule::Blanks, false, "a\tb\nc\x7F\xC2\x9B"), "a b c \xC2\x9B");
  EXPECT_EQ(cellOf(CellRule::AsItIs, false, "a\tb\nc\x7F\xC2\x9B"), "a\tb\nc\x7F\xC2\x9B");
}

TEST(CellForm, LetsNoControlThroughToATerminal) {
  EXPECT_EQ(cellOf(CellRule::AsItIs, true, "a\x1B\xC2\x9B\xE4\xC3\xA4\xE2\x82\xAC"),
            "a ??\xC3\xA4\xE2\x82\xAC");
  EXPECT_EQ(cellOf(CellRule::Blanks, true, "\xF4\x90\x80\x80"), "????");
  EXPECT_EQ(cellOf(CellRule::Quotes, true, "a\x1B,"), "\"a?,\"");
}

TEST(Moment, HasTwoDigitsOfEachAndFourOfTheYear) {
  const auto momentOf = [](int day, int second) {
    std::string text = "at ";
    addMoment(text, joinDateValue({day, second}));
    return text;
  };
  EXPECT_EQ(momentOf(38001, 37230), "at 2004-01-15T10:20:30");
  EXPECT_EQ(momentOf(0, 0), "at 1899-12-30T00:00:00");
  EXPECT_EQ(momentOf(kFirstDay, 86399), "at 0100-01-01T23:59:59");
  EXPECT_EQ(momentOf(kLastDay, 86399), "at 9999-12-31T23:59:59");
}

TEST(DayTexts, AreMadeOnceForEachDay) {
  int made = 0;
  DayTexts days([&made](int day) {
    ++made;
    return std::to_string(day);
  });
  for (int round = 0; round < 3; ++round) {
    for (int day = -5000; day < 11000; day += 7) ASSERT_EQ(days.of(day), std::to_string(day));
  }
  EXPECT_EQ(made, 2286);
}

TEST(DayTexts, AreRightForDaysThatShareAPlace) {
  DayTexts days([](int day) { return std::to_string(day); });
  for (const int day : {0, 1 << 14, 0, -(1 << 14), kFirstDay, kLastDay, 0}) {
    EXPECT_EQ(days.of(day), std::to_string(day));
  }
}

}  // namespace
}  // namespace quorvin
