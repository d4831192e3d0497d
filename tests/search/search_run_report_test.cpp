// SPDX-License-Identifier: GPL-2.0-or-later

// What a run reports of itself: how many listings it has searched, what was missing, and what cut it short.
#include "search/search_run_fixture.h"

namespace quorvin::test {

namespace {

class SearchRunReport : public SearchRunFixture {
 protected:
  void addListing(const QString& description, int entries) {
    folder_.writeFile(description + u".txt"_qs, QByteArray("song\r\n").repeated(entries));
    addOnline(description);
  }
};

TEST_F(SearchRunReport, CountsListingsAndThoseThatAreMissing) {
  addListing(u"A"_qs, 1);
  addOnline(u"gone"_qs);
  addOffline(folder_.writeFile(u"off.lst"_qs, "song\r\n"));
  addOffline(folder_.pathOf(u"gone.lst"_qs));
  find(u"song");
  EXPECT_EQ(run_.report().listings, 4);
  EXPECT_EQ(run_.report().searchedToTheEnd, 2);
  EXPECT_EQ(run_.report().missing, 2);
  EXPECT_FALSE(run_.report().isStopped);
  EXPECT_FALSE(run_.report().isMainDataFileMissing);
}

TEST_F(SearchRunReport, SaysWhatWasAskedFor) {
  find(u"Rock LIVE", u"250");
  EXPECT_EQ(run_.report().searchText, u"Rock LIVE"_qs);
  EXPECT_EQ(run_.report().desiredMatch, 100);
  EXPECT_EQ(run_.query().wordCount(), 2);
}

TEST_F(SearchRunReport, AMissingMainDataFileLeavesTheOfflineListsUnsearched) {
  state_.TextFile = u"gone.lst"_qs;
  addOffline(folder_.writeFile(u"off.lst"_qs, "song\r\n"));
  find(u"song");
  EXPECT_EQ(run_.report().listings, 2);
  EXPECT_EQ(run_.report().searchedToTheEnd, 0);
  EXPECT_EQ(run_.report().missing, 1);
  EXPECT_TRUE(run_.report().isMainDataFileMissing);
}

TEST_F(SearchRunReport, AStopCutsOneListingShort) {
  addListing(u"A"_qs, 5000);
  addListing(u"B"_qs, 1);
  addListing(u"C"_qs, 1);
  display_.onEvents = [this] {
    if (display_.eventPasses == 1) find(u"ignored");
  };
  find(u"song");
  EXPECT_TRUE(run_.report().isStopped);
  EXPECT_EQ(run_.report().searchedToTheEnd, 2);
  EXPECT_EQ(run_.report().listings, 3);
}

TEST_F(SearchRunReport, AStopRequestFromBeforeIsSeenToo) {
  addListing(u"A"_qs, 5000);
  state_.AbortRequested = true;
  find(u"song");
  EXPECT_TRUE(run_.report().isStopped);
  EXPECT_EQ(run_.report().searchedToTheEnd, 0);
  find(u"song");
  EXPECT_FALSE(run_.report().isStopped);
  EXPECT_EQ(run_.report().searchedToTheEnd, 1);
}

TEST_F(SearchRunReport, FurtherMissingListingsAreOnlyCountedWhenTheUserWantsNoMoreMessages) {
  for (const QString& name : {u"one"_qs, u"two"_qs, u"three"_qs}) addOnline(name);
  state_.TextFile = u"main.lst"_qs;
  messages_.mostOfAKind = 2;
  find(u"song");
  EXPECT_EQ(messages_.informed.size(), 2U);
  EXPECT_EQ(run_.report().missing, 4);
  messages_.mostOfAKind = 100;
  find(u"song");
  EXPECT_EQ(messages_.informed.size(), 2U + 4U) << "the next run starts afresh";
}

TEST_F(SearchRunReport, AQuietRunTellsNothingAndCountsEverything) {
  addOnline(u"gone"_qs);
  addListing(u"A"_qs, 2);
  folder_.writeFile(u"zeros.txt"_qs, QByteArray("song\r\n\0", 7));
  addOnline(u"zeros"_qs);
  run_.searchQuietly(u"song"_qs, u"250"_qs);
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_EQ(display_.desMatch, QString()) << "the field is left alone";
  EXPECT_EQ(run_.report().missing, 1);
  EXPECT_EQ(run_.report().desiredMatch, 100);
  run_.searchQuietly(u"song"_qs, u"50"_qs);
  EXPECT_EQ(hits_.rowCount(), 3);
  find(u"song");
  EXPECT_EQ(messages_.informed.size(), 2U);
}

TEST_F(SearchRunReport, AStopRequestForARunThatEndsAnywayIsUsedUp) {
  addListing(u"A"_qs, 5000);
  display_.onEvents = [this] {
    closing_ = true;
    state_.AbortRequested = true;
  };
  find(u"song");
  EXPECT_EQ(hits_.rowCount(), 2000);
  EXPECT_FALSE(state_.AbortRequested);
}

TEST_F(SearchRunReport, AStopRequestThatComesWithTheEndOfTheProgramStaysForOthers) {
  addListing(u"A"_qs, 5000);
  display_.onEvents = [this] {
    closing_ = true;
    state_.QuitPending = true;
    state_.AbortRequested = true;
  };
  find(u"song");
  EXPECT_EQ(hits_.rowCount(), 2000);
  EXPECT_TRUE(state_.AbortRequested);
}

}  // namespace

}  // namespace quorvin::test
