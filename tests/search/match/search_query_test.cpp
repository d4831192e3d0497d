// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/match/search_query.h"

#include "faults/runtime_fault.h"
#include "search/match/search_query.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

std::vector<QString> words(const char16_t* text) {
  return splitSearchText(QString::fromUtf16(text));
}

TEST(SearchWords, WordsStandInTheOrderOfTheText) {
  EXPECT_EQ(words(u"rock live 2004"), (std::vector<QString>{u"rock"_qs, u"live"_qs, u"2004"_qs}));
}

TEST(SearchWords, TrailingBlankAddsAnEmptyWord) {
  EXPECT_EQ(words(u"abc "), (std::vector<QString>{u"abc"_qs, u""_qs}));
}

TEST(SearchWords, TwoBlanksHoldAnEmptyWordBetweenThem) {
  EXPECT_EQ(words(u"a  b"), (std::vector<QString>{u"a"_qs, u""_qs, u"b"_qs}));
}

TEST(SearchWords, BlankInTheFirstCharacterEndsNoWord) {
  EXPECT_EQ(words(u" a"), (std::vector<QString>{u"a"_qs}));
  EXPECT_EQ(words(u" "), (std::vector<QString>{u""_qs}));
  EXPECT_EQ(words(u"  a"), (std::vector<QString>{u""_qs, u"a"_qs}));
}

TEST(SearchWords, TabsAreNoBlanks) {
  EXPECT_EQ(words(u"a\tb"), (std::vector<QString>{u"a\tb"_qs}));
}

TEST(SearchWords, HundredAndOneWordsFit) {
  QString text = QStringLiteral("w");
  for (int i = 1; i < 101; ++i) text += QStringLiteral(" w");
  EXPECT_EQ(splitSearchText(text).size(), 101U);
}

TEST(SearchWords, HundredAndSecondWordIsAFault) {
  QString text = QStringLiteral("w");
  for (int i = 1; i < 102; ++i) text += QStringLiteral(" w");
  try {
    splitSearchText(text);
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 9);
    EXPECT_EQ(fault.description(), u"Subscript out of range"_qs);
  }
}

TEST(MatchPercentage, HalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(matchPercentage(1, 8), 12);
  EXPECT_EQ(matchPercentage(3, 8), 38);
  EXPECT_EQ(matchPercentage(5, 8), 62);
  EXPECT_EQ(matchPercentage(7, 8), 88);
}

TEST(MatchPercentage, OtherFractionsGoToTheNearest) {
  EXPECT_EQ(matchPercentage(1, 3), 33);
  EXPECT_EQ(matchPercentage(2, 3), 67);
  EXPECT_EQ(matchPercentage(0, 5), 0);
  EXPECT_EQ(matchPercentage(5, 5), 100);
  EXPECT_EQ(matchPercentage(1, 101), 1);
}

TEST(MatchText, HasThreeDigitsAndAPercentSign) {
  EXPECT_EQ(matchText(7), u"007%"_qs);
  EXPECT_EQ(matchText(67), u"067%"_qs);
  EXPECT_EQ(matchText(100), u"100%"_qs);
}

TEST(SearchQuery, RepeatedWordsAreSearchedOnceAndCountedEachTime) {
  const SearchQuery query(u"rock rock live  ", 50);
  ASSERT_EQ(query.words().size(), 2U);
  EXPECT_EQ(query.words()[0].bytes, "rock");
  EXPECT_EQ(query.words()[0].times, 2);
  EXPECT_EQ(query.words()[1].bytes, "live");
  EXPECT_EQ(query.emptyWords(), 2);
  EXPECT_EQ(query.wordCount(), 5);
}

TEST(SearchQuery, FewestForHitIsStrictlyAboveTheDesiredMatch) {
  EXPECT_EQ(SearchQuery(u"a b", 50).fewestForHit(), 2);
  EXPECT_EQ(SearchQuery(u"a b", 49).fewestForHit(), 1);
  EXPECT_EQ(SearchQuery(u"a b c", 50).fewestForHit(), 2);
  EXPECT_EQ(SearchQuery(u"a b c", 99).fewestForHit(), 3);
}

TEST(SearchQuery, NothingIsAHitForADesiredMatchOfAHundred) {
  EXPECT_EQ(SearchQuery(u"a b c", 100).fewestForHit(), 4);
}

}  // namespace
}  // namespace quorvin
