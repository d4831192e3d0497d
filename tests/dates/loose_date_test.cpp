// SPDX-License-Identifier: GPL-2.0-or-later

// Dates and times as people write them. Days are counted from 30 December 1899: 37987 is 1 January 2004.
#include "dates/loose_date.h"

#include <gtest/gtest.h>

#include <utility>

namespace quorvin {
namespace {

using Found = std::optional<std::pair<int, std::size_t>>;

const LooseRules kGerman{false, DayMonthOrder::DayFirst, u'.', true, 2004};
const LooseRules kAmerican{false, DayMonthOrder::MonthFirst, u'/', false, 2004};
const LooseRules kJapanese{true, DayMonthOrder::MonthFirst, u'/', false, 2004};

const DateVocabulary& words() {
  static const DateVocabulary words{monthNames(QLocale::c()), halfDayNames(QLocale::c())};
  return words;
}

Found foundOf(const std::optional<LooseReading>& reading) {
  return reading ? Found({reading->value, reading->length}) : std::nullopt;
}

Found dateAt(std::u16string_view text, const LooseRules& rules) {
  return foundOf(looseDateAt(text, words(), rules));
}

Found timeAt(std::u16string_view text, const LooseRules& rules) {
  return foundOf(looseTimeAt(text, words(), rules));
}

TEST(LooseDate, AFourDigitYearIsFoundAtEitherEnd) {
  EXPECT_EQ(dateAt(u"2004-01-15", kGerman), Found({38001, 10}));
  EXPECT_EQ(dateAt(u"15-01-2004", kGerman), Found({38001, 10}));
  EXPECT_EQ(dateAt(u"15/1 2004", kGerman), Found({38001, 9}));
}

TEST(LooseDate, TheLocaleDecidesWhatTheNumbersMean) {
  EXPECT_EQ(dateAt(u"02/01/04", kGerman), Found({37988, 8}));
  EXPECT_EQ(dateAt(u"02/01/04", kAmerican), Found({38018, 8}));
  EXPECT_EQ(dateAt(u"02/01/04", kJapanese), Found({37260, 8}));
}

TEST(LooseDate, DayAndMonthChangePlacesWhereOnlyThatMakesADate) {
  EXPECT_EQ(dateAt(u"1/15/2004", kGerman), Found({38001, 9}));
  EXPECT_EQ(dateAt(u"15/1/2004", kAmerican), Found({38001, 9}));
  EXPECT_EQ(dateAt(u"15/15/2004", kAmerican), std::nullopt);
}

TEST(LooseDate, MonthsHaveNames) {
  EXPECT_EQ(dateAt(u"15 january 2004", kAmerican), Found({38001, 15}));
  EXPECT_EQ(dateAt(u"jan 15, 04", kAmerican), Found({38001, 10}));
  EXPECT_EQ(dateAt(u"15 jan", kAmerican), Found({38001, 6}));
  EXPECT_EQ(dateAt(u"jan 2004", kAmerican), Found({37987, 8}));
  EXPECT_EQ(dateAt(u"jan feb", kAmerican), std::nullopt);
}

TEST(LooseDate, TwoNumbersWithADotAreADateOnlyWhereDatesHaveDots) {
  EXPECT_EQ(dateAt(u"15.1.", kGerman), Found({38001, 5}));
  EXPECT_EQ(dateAt(u"15.1", kGerman), Found({38001, 4}));
  EXPECT_EQ(dateAt(u"1.15", kAmerican), std::nullopt);
  EXPECT_EQ(dateAt(u"15 1", kGerman), std::nullopt);
}

TEST(LooseDate, ATimeBehindTheDateIsLeft) {
  EXPECT_EQ(dateAt(u"15/1 13:04", kGerman), Found({38001, 4}));
}

TEST(LooseTime, HasColonsOrTheDotsOfItsLocale) {
  EXPECT_EQ(timeAt(u"13:04", kAmerican), Found({47040, 5}));
  EXPECT_EQ(timeAt(u"13:04:05 tea", kAmerican), Found({47045, 8}));
  EXPECT_EQ(timeAt(u"13.04", kGerman), Found({47040, 5}));
  EXPECT_EQ(timeAt(u"13.04", kAmerican), std::nullopt);
  EXPECT_EQ(timeAt(u"25:00", kAmerican), std::nullopt);
}

TEST(LooseTime, AnHourAloneNeedsAHalfOfTheDay) {
  EXPECT_EQ(timeAt(u"1 pm", kAmerican), Found({46800, 4}));
  EXPECT_EQ(timeAt(u"pm 1:05", kAmerican), Found({47100, 7}));
  EXPECT_EQ(timeAt(u"12 am", kAmerican), Found({0, 5}));
  EXPECT_EQ(timeAt(u"13", kAmerican), std::nullopt);
}

TEST(LooseRules, AreTakenFromThePatternsOfALocale) {
  const LooseRules american =
      looseRulesOf(parseDatePattern(u"MM/dd/yyyy"), parseDatePattern(u"h:mm:ss AP"), 2004);
  EXPECT_FALSE(american.yearFirst);
  EXPECT_EQ(american.order, DayMonthOrder::MonthFirst);
  EXPECT_EQ(american.dateSign, u'/');
  EXPECT_FALSE(american.dottedTimes);
  EXPECT_EQ(american.currentYear, 2004);
  const LooseRules dotted =
      looseRulesOf(parseDatePattern(u"yyyy-MM-dd"), parseDatePattern(u"HH.mm.ss"), 2004);
  EXPECT_TRUE(dotted.yearFirst);
  EXPECT_EQ(dotted.order, DayMonthOrder::MonthFirst);
  EXPECT_EQ(dotted.dateSign, u'-');
  EXPECT_TRUE(dotted.dottedTimes);
}

}  // namespace
}  // namespace quorvin
