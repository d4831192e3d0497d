// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/status_texts.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);

/// A run that has searched everything.
RunReport reportOf(int listings, std::int16_t desiredMatch = 50) {
  RunReport report;
  report.listings = report.searchedToTheEnd = listings;
  report.desiredMatch = desiredMatch;
  return report;
}

std::string emptyText(const QString& words, RunReport report) {
  report.searchText = words;
  return emptyResultText(SearchQuery(words, report.desiredMatch), report, kEnglish).toStdString();
}

TEST(HitCountText, IsGroupedAsTheLocaleDoes) {
  EXPECT_EQ(hitCountText(0, kEnglish), u"0 hits"_qs);
  EXPECT_EQ(hitCountText(1, kEnglish), u"1 hit"_qs);
  EXPECT_EQ(hitCountText(7325923, kEnglish), u"7,325,923 hits"_qs);
  EXPECT_EQ(hitCountText(7325923, QLocale(QLocale::German)), u"7.325.923 hits"_qs);
}

TEST(StatusLine, LeavesOutWhatIsEmpty) {
  EXPECT_EQ(statusLine({u"3 hits"_qs, QString(), u"stopped"_qs}, Qt::LeftToRight),
            u"3 hits  \u00B7  stopped"_qs);
  EXPECT_EQ(statusLine({QString()}, Qt::LeftToRight), QString());
}

TEST(StatusLine, NumbersStayInFrontOfTheirWordsFromRightToLeft) {
  EXPECT_EQ(statusLine({u"3 hits"_qs, u"2 selected"_qs}, Qt::RightToLeft),
            u"\u20663 hits\u2069  \u00B7  \u20662 selected\u2069"_qs);
}

TEST(ShownText, SaysHowManyOfHowMany) {
  EXPECT_EQ(shownText(12, 3481, kEnglish), u"12 of 3,481 shown"_qs);
}

TEST(SelectionText, SaysHowManyAndHowMuch) {
  EXPECT_EQ(selectionText(0, 0, kEnglish), QString());
  EXPECT_EQ(selectionText(1234, std::nullopt, kEnglish), u"1,234 selected"_qs);
  EXPECT_EQ(selectionText(2, 1536, kEnglish), u"2 selected, 1.50 kB"_qs);
  EXPECT_EQ(selectionText(12, 5'000'000'000, kEnglish), u"12 selected, 4.66 GB"_qs);
}

TEST(CopyTexts, SayHowFarACopyIsAndWhatCameOfIt) {
  EXPECT_EQ(copyingText(45'000, 100'000, kEnglish), u"45,000 of 100,000 hits copied so far; Esc stops"_qs);
  EXPECT_EQ(copiedText(100'000, kEnglish), u"100,000 hits were copied."_qs);
  EXPECT_EQ(notFoundText(1'200, 100'000, kEnglish),
            u"1,200 of 100,000 could not be found on a connected drive."_qs);
}

TEST(LetGoText, SaysHowManyHitsAreNoLongerSelectedAndWhy) {
  EXPECT_EQ(letGoText(350'000, kEnglish),
            u"350,000 hits are no longer selected: they are scattered too widely now"_qs);
}

TEST(RunTexts, AUsualRunNeedsNone) {
  EXPECT_EQ(runTexts(reportOf(412), kEnglish), QStringList());
}

TEST(RunTexts, TellOfAStop) {
  RunReport report = reportOf(1412);
  report.isStopped = true;
  report.searchedToTheEnd = 1003;
  EXPECT_EQ(runTexts(report, kEnglish), QStringList{u"stopped after 1,003 of 1,412 listings"_qs});
}

TEST(RunTexts, TellOfMissingListings) {
  RunReport report = reportOf(3);
  report.missing = 1;
  EXPECT_EQ(runTexts(report, kEnglish), QStringList{u"1 listing missing"_qs});
  report.missing = 2000;
  report.isMainDataFileMissing = true;
  EXPECT_EQ(runTexts(report, kEnglish),
            (QStringList{u"2,000 listings missing"_qs,
                         u"without the main data file offline lists are not searched"_qs}));
}

TEST(RefreshText, SaysWhatTheRescanDid) {
  RefreshOutcome outcome;
  outcome.made = 3;
  outcome.entries = 81204;
  outcome.changes = {412, 18};
  outcome.missing = 1;
  EXPECT_EQ(refreshText(outcome, kEnglish),
            u"3 listings, 81,204 entries, 412 new, 18 gone, 1 drive missing"_qs);
}

TEST(RefreshText, LeavesOutWhatIsNotKnownOrNotSo) {
  RefreshOutcome outcome;
  outcome.made = 1;
  outcome.entries = 1;
  EXPECT_EQ(refreshText(outcome, kEnglish), u"1 listing, 1 entry, 0 new, 0 gone"_qs);
  outcome.areChangesKnown = false;
  outcome.isStopped = true;
  EXPECT_EQ(refreshText(outcome, kEnglish), u"1 listing, 1 entry, stopped"_qs);
}

TEST(EmptyResultText, SaysHowMuchWasSearched) {
  EXPECT_EQ(emptyText(u"zebra"_qs, reportOf(412)), "No file found in 412 listings.");
  EXPECT_EQ(emptyText(u"zebra"_qs, reportOf(1)), "No file found in 1 listing.");
}

TEST(EmptyResultText, NothingIsMoreThanAHundredPerCent) {
  EXPECT_EQ(emptyText(u"rock live"_qs, reportOf(3, 100)),
            "No file holds more than 100% of the words; 99 asks for all of them.");
}

TEST(EmptyResultText, FoldersAreWrittenWithBackslashes) {
  EXPECT_EQ(emptyText(u"gui/media"_qs, reportOf(3)),
            "No file found in 3 listings.\n"
            "Folders are written with \\: try gui\\media");
}

TEST(EmptyResultText, TwoWordsAtFiftyMustBothBeThere) {
  EXPECT_EQ(emptyText(u"rock live"_qs, reportOf(3)),
            "No file found in 3 listings.\n"
            "More than 50% of the words means all 2 of them; with 49, 1 is enough.");
}

TEST(EmptyResultText, SaysWhichLowerMatchFindsFewerWords) {
  // Two of three are 67%, one is 33%.
  EXPECT_EQ(emptyText(u"rock live wembley"_qs, reportOf(3, 60)),
            "No file found in 3 listings.\n"
            "More than 60% of the words means 2 of 3; with 32, 1 is enough.");
  EXPECT_EQ(emptyText(u"rock live wembley"_qs, reportOf(3, 99)),
            "No file found in 3 listings.\n"
            "More than 99% of the words means all 3 of them; with 66, 2 is enough.");
}

TEST(EmptyResultText, TellsOfMissingListings) {
  RunReport report = reportOf(3);
  report.missing = 1;
  report.searchedToTheEnd = 2;
  EXPECT_EQ(emptyText(u"zebra"_qs, report), "No file found in 2 listings; 1 listing missing.");
  report.missing = 3;
  EXPECT_EQ(emptyText(u"zebra"_qs, report), "Nothing was searched: 3 listings missing.");
  report.missing = 1;
  report.isMainDataFileMissing = true;
  EXPECT_EQ(emptyText(u"zebra"_qs, report),
            "No file found in 2 listings; 1 listing missing.\n"
            "Without the main data file the offline lists are not searched.");
}

TEST(EmptyResultText, TellsOfAStop) {
  RunReport report = reportOf(3);
  report.isStopped = true;
  report.searchedToTheEnd = 2;
  EXPECT_EQ(emptyText(u"zebra"_qs, report), "No file found: stopped after 2 of 3 listings.");
}

}  // namespace
}  // namespace quorvin
