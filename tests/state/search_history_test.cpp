// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/search_history.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

QStringList added(const QStringList& texts) {
  QStringList searches;
  for (const QString& text : texts) addSearch(searches, text);
  return searches;
}

TEST(SearchHistory, TheNewestTextIsTheFirst) {
  EXPECT_EQ(added({u"rock"_qs, u"live"_qs, u"tune"_qs}), (QStringList{u"tune"_qs, u"live"_qs, u"rock"_qs}));
}

TEST(SearchHistory, ATextThatComesAgainMovesToTheFrontAsItIsWrittenNow) {
  EXPECT_EQ(added({u"rock"_qs, u"live"_qs, u"Rock"_qs}), (QStringList{u"Rock"_qs, u"live"_qs}));
  EXPECT_EQ(added({u"abc"_qs, u"abc "_qs}), (QStringList{u"abc "_qs, u"abc"_qs}))
      << "a blank at the end is a word";
}

TEST(SearchHistory, KeepsFifty) {
  QStringList texts;
  for (int number = 1; number <= 60; ++number) texts.append(QString::number(number));
  const QStringList searches = added(texts);
  ASSERT_EQ(searches.size(), 50);
  EXPECT_EQ(searches.first(), u"60"_qs);
  EXPECT_EQ(searches.last(), u"11"_qs);
}

TEST(SearchHistory, BlanksAndVeryLongTextsAreNotKept) {
  EXPECT_EQ(added({u""_qs, u"   "_qs, QString(1001, u'x')}), QStringList());
  EXPECT_EQ(added({QString(1000, u'x')}).size(), 1);
}

TEST(SearchHistory, CompletesWithTheNewestThatGoesOn) {
  const QStringList searches{u"Rock live"_qs, u"rocket"_qs, u"rock"_qs};
  EXPECT_EQ(completionOf(searches, u"roc"_qs), u"Rock live"_qs);
  EXPECT_EQ(completionOf(searches, u"ROCKE"_qs), u"rocket"_qs);
  EXPECT_EQ(completionOf(searches, u"rocket"_qs), QString());
  EXPECT_EQ(completionOf(searches, u"zebra"_qs), QString());
  EXPECT_EQ(completionOf(searches, QString()), QString());
}

TEST(SearchHistory, ComesBackFromItsText) {
  const QStringList searches{u"rock live"_qs, u" tune  "_qs, u"50% \\n & more"_qs};
  EXPECT_EQ(splitSearches(joinedSearches(searches)), searches);
  EXPECT_EQ(splitSearches(QString()), QStringList());
}

TEST(SearchHistory, OfATextThatSomebodyElseWroteOnlyWhatFitsIsTaken) {
  EXPECT_EQ(splitSearches(u"rock\n\nROCK\n  \nlive"_qs), (QStringList{u"rock"_qs, u"live"_qs}));
  EXPECT_EQ(splitSearches(u"a\n"_qs.repeated(1000) + u"b"_qs), (QStringList{u"a"_qs, u"b"_qs}));
}

}  // namespace
}  // namespace quorvin
