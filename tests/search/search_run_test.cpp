// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_run.h"

#include "faults/runtime_fault.h"
#include "search/search_run_fixture.h"
#include "support/fault_number.h"
#include "support/listing_lines.h"

namespace quorvin {
namespace {

using SearchRunTest = test::SearchRunFixture;

TEST_F(SearchRunTest, WithoutAnySourceTheRunClearsAndShowsNothing) {
  find(u"song");
  EXPECT_EQ(display_.clearings, 1);
  EXPECT_EQ(display_.found, (std::vector<std::int64_t>{0}));
  EXPECT_EQ(display_.searched, (std::vector<std::int64_t>{0}));
  EXPECT_EQ(display_.running, (std::vector<bool>{true, false}));
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(SearchRunTest, DesiredMatchIsClampedAndRoundedToEven) {
  const std::vector<std::pair<QString, QString>> cases = {
      {u"0"_qs, u"1"_qs},      {u"-5"_qs, u"1"_qs},      {u"250"_qs, u"100"_qs}, {u"50.5"_qs, u"50"_qs},
      {u"51.5"_qs, u"52"_qs},  {u"abc"_qs, u"1"_qs},     {u""_qs, u"1"_qs},      {u"70%"_qs, u"70"_qs},
      {u" 33 x"_qs, u"33"_qs}, {u"100.4"_qs, u"100"_qs}, {u"0.5"_qs, u"1"_qs},   {u"32768"_qs, u"100"_qs},
      {u"-40000"_qs, u"1"_qs}, {u"1e999"_qs, u"100"_qs},
  };
  for (const auto& [typed, shown] : cases) {
    run_.Find_Click(QString(), typed);
    EXPECT_EQ(display_.desMatch, shown) << typed.toStdString();
  }
}

TEST_F(SearchRunTest, DesiredMatchBeyond16BitsIsCorrectedWithoutAWord) {
  find(u"song", u"40000");
  EXPECT_EQ(display_.desMatch, u"100"_qs);
  EXPECT_EQ(display_.clearings, 1);
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(SearchRunTest, EmptySearchTextDoesNothingButCorrectTheMatch) {
  find(u"", u"0");
  EXPECT_EQ(display_.desMatch, u"1"_qs);
  EXPECT_EQ(display_.clearings, 0);
  EXPECT_TRUE(display_.running.empty());
  EXPECT_TRUE(display_.found.empty());
}

TEST_F(SearchRunTest, TooManyWordsAreAFaultAndTheHitsStay) {
  QString words = QStringLiteral("w");
  for (int i = 0; i < 101; ++i) words += QStringLiteral(" w");
  EXPECT_FAULT(run_.Find_Click(words, u"50"_qs), 9);
  EXPECT_EQ(display_.clearings, 0);
  EXPECT_FALSE(run_.isRunning());
}

TEST_F(SearchRunTest, SourcesAreSearchedInOrderWithTheirColours) {
  folder_.writeFile(u"Music.txt"_qs, "song online 1\r\n");
  folder_.writeFile(u"More.txt"_qs, "song online 2\r\n");
  folder_.writeFile(u"main.txt"_qs, "song main\r\n");
  addOnline(u"Music"_qs);
  addOnline(u"More"_qs);
  state_.TextFile = u"main.txt"_qs;
  addOffline(folder_.writeFile(u"lists/cd1.lst"_qs, "song offline\r\n"));
  find(u"SONG");
  EXPECT_EQ(names(),
            (QStringList{u"song online 1"_qs, u"song online 2"_qs, u"song main"_qs, u"song offline"_qs}));
  EXPECT_EQ(rowColour(hits_.kind(0)), 0x0000FFU);
  EXPECT_EQ(rowColour(hits_.kind(2)), 0xFF0000U);
  EXPECT_EQ(rowColour(hits_.kind(3)), 0xFF7F00U);
  EXPECT_EQ(run_.hitCount(), 4);
  EXPECT_EQ(display_.found.back(), 4);
  EXPECT_EQ(display_.searched.back(), 4);
  EXPECT_EQ(display_.running, (std::vector<bool>{true, false}));
}

TEST_F(SearchRunTest, MainDataFileIsTakenAsItStandsOrInsideTheDataFolder) {
  EXPECT_TRUE(isTakenAsItStands(u"D:\\data\\all.txt", kWindowsPaths));
  EXPECT_TRUE(isTakenAsItStands(u"\\\\server\\share\\all.txt", kWindowsPaths));
  EXPECT_FALSE(isTakenAsItStands(u"sub\\all.txt", kWindowsPaths));
  EXPECT_FALSE(isTakenAsItStands(u"/data/all.txt", kWindowsPaths));
  EXPECT_TRUE(isTakenAsItStands(u"/data/all.txt", kUnixPaths));
  EXPECT_TRUE(isTakenAsItStands(u"host:all.txt", kUnixPaths));
  EXPECT_FALSE(isTakenAsItStands(u"sub/all.txt", kUnixPaths));
}

TEST_F(SearchRunTest, MainDataFileOutsideTheDataFolderIsSearched) {
  TemporaryFolder elsewhere;
  state_.TextFile = elsewhere.writeFile(u"all.txt"_qs, "song\r\n");
  find(u"song");
  EXPECT_EQ(hits_.rowCount(), 1);
}

TEST_F(SearchRunTest, MainDataFileInASubFolderIsSearched) {
  folder_.writeFile(u"sub/all.txt"_qs, "song\r\n");
  state_.TextFile = u"sub/all.txt"_qs;
  find(u"song");
  EXPECT_EQ(hits_.rowCount(), 1);
}

TEST_F(SearchRunTest, StopDuringTheFirstListingStillSearchesTheOthers) {
  folder_.writeFile(u"A.txt"_qs, QByteArray("song a\r\n").repeated(9000));
  folder_.writeFile(u"B.txt"_qs, "song b\r\n");
  folder_.writeFile(u"main.txt"_qs, "song main\r\n");
  addOnline(u"A"_qs);
  addOnline(u"B"_qs);
  state_.TextFile = u"main.txt"_qs;
  addOffline(folder_.writeFile(u"off.lst"_qs, "song off\r\n"));
  display_.onEvents = [this] {
    if (display_.eventPasses == 1) find(u"ignored");
  };
  find(u"song");
  EXPECT_EQ(hits_.rowCount(), 2003);
  EXPECT_EQ(names().mid(2000), (QStringList{u"song b"_qs, u"song main"_qs, u"song off"_qs}));
  EXPECT_FALSE(state_.AbortRequested);
  EXPECT_FALSE(run_.isRunning());
}

TEST_F(SearchRunTest, StopRequestThatNoScanSawCutsTheNextRunsFirstListing) {
  folder_.writeFile(u"A.txt"_qs, QByteArray("song a\r\n").repeated(5000));
  addOnline(u"A"_qs);
  state_.AbortRequested = true;
  find(u"song");
  EXPECT_EQ(hits_.rowCount(), 2000);
  EXPECT_FALSE(state_.AbortRequested);
}

TEST_F(SearchRunTest, PressWhileRunningOnlyAsksToStop) {
  folder_.writeFile(u"A.txt"_qs, QByteArray("song\r\n").repeated(9000));
  addOnline(u"A"_qs);
  display_.onEvents = [this] {
    EXPECT_TRUE(run_.isRunning());
    find(u"other", u"250");
    EXPECT_TRUE(state_.AbortRequested);
    EXPECT_EQ(display_.desMatch, u"50"_qs);
  };
  find(u"song");
  EXPECT_EQ(display_.eventPasses, 1);
  EXPECT_EQ(display_.clearings, 1);
  EXPECT_EQ(display_.running, (std::vector<bool>{true, false}));
  EXPECT_EQ(hits_.rowCount(), 2000);
}

/// Takes hits up to a number.
class LimitedSink : public HitSink {
 public:
  void startListing(SourceKind, const QString&) override { ++listings; }
  bool addHits(const std::shared_ptr<const Segment>&, std::span<const FoundEntry> hits) override {
    taken += hits.size();
    return taken < 3000;
  }
  void endSegment(const std::shared_ptr<const Segment>&, const std::shared_ptr<const Segment>&) override {}
  int listings = 0;
  std::size_t taken = 0;
};

TEST_F(SearchRunTest, SinkThatWantsNoMoreHitsEndsTheWholeRun) {
  addOffline(folder_.writeFile(u"1"_qs, QByteArray("song\r\n").repeated(9000)));
  addOffline(folder_.writeFile(u"2"_qs, "song\r\n"));
  LimitedSink sink;
  SearchRun run({state_, messages_, QLocale::c(), &sink});
  run.Find_Click(u"song"_qs, u"50"_qs);
  EXPECT_EQ(sink.listings, 1);
  EXPECT_EQ(sink.taken, 4000U);
  EXPECT_EQ(run.hitCount(), 4000);
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(SearchRunTest, WithoutASinkHitsAreCounted) {
  addOffline(folder_.writeFile(u"1"_qs, "song 1\r\nother\r\nsong 2\r\n"));
  SearchRun run({state_, messages_, QLocale::c()});
  run.Find_Click(u"song"_qs, u"50"_qs);
  EXPECT_EQ(run.hitCount(), 2);
  EXPECT_EQ(run.searchedCount(), 3);
}

TEST_F(SearchRunTest, MissingOnlineListingIsToldAndTheRunGoesOn) {
  folder_.writeFile(u"B.txt"_qs, "song b\r\n");
  addOnline(u"A"_qs);
  addOnline(u"B"_qs);
  find(u"song");
  EXPECT_EQ(messages_.informed,
            (std::vector<QString>{u"Listing file not found: "_qs + folder_.pathOf(u"A.txt"_qs)}));
  EXPECT_EQ(names(), (QStringList{u"song b"_qs}));
  EXPECT_EQ(display_.searched.back(), 1);
}

TEST_F(SearchRunTest, AListingIsFoundUnderTheNameThatTheRefreshGivesIt) {
  folder_.writeFile(u"trail.txt"_qs, "song trail\r\n");
  folder_.writeFile(u".txt"_qs, "song of blanks\r\n");
  folder_.writeFile(u".hidden.txt"_qs, "song hidden\r\n");
  addOnline(u"trail "_qs);
  addOnline(u"   "_qs);
  addOnline(u".hidden"_qs);
  find(u"song");
  EXPECT_EQ(names(), (QStringList{u"song trail"_qs, u"song of blanks"_qs, u"song hidden"_qs}));
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(SearchRunTest, AListingOfExactlyTheDescriptionComesFirst) {
  folder_.writeFile(u"trail.txt"_qs, "song trimmed\r\n");
  folder_.writeFile(u"trail .txt"_qs, "song exact\r\n");
  addOnline(u"trail "_qs);
  find(u"song");
  EXPECT_EQ(names(), (QStringList{u"song exact"_qs}));
}

TEST_F(SearchRunTest, AMissingListingIsToldUnderItsDescriptionAsItStands) {
  addOnline(u"trail "_qs);
  find(u"song");
  EXPECT_EQ(messages_.informed,
            (std::vector<QString>{u"Listing file not found: "_qs + folder_.pathOf(u"trail .txt"_qs)}));
}

TEST_F(SearchRunTest, MissingMainDataFileEndsTheRunAndLeavesTheSearchedLabel) {
  state_.TextFile = u"main.txt"_qs;
  addOffline(folder_.writeFile(u"off.lst"_qs, "song off\r\n"));
  find(u"song");
  EXPECT_EQ(messages_.informed,
            (std::vector<QString>{u"Listing file not found: "_qs + folder_.pathOf(u"main.txt"_qs)}));
  EXPECT_EQ(hits_.rowCount(), 0);
  EXPECT_TRUE(display_.searched.empty());
  EXPECT_FALSE(run_.isRunning());
}

TEST_F(SearchRunTest, MissingOfflineListingIsToldAndTheRunGoesOn) {
  addOffline(folder_.pathOf(u"gone.lst"_qs));
  addOffline(folder_.writeFile(u"off.lst"_qs, "song off\r\n"));
  find(u"song");
  EXPECT_EQ(messages_.informed,
            (std::vector<QString>{u"Listing file not found: "_qs + folder_.pathOf(u"gone.lst"_qs)}));
  EXPECT_EQ(names(), (QStringList{u"song off"_qs}));
}

TEST_F(SearchRunTest, SearchedLabelMovesEvery2000EntriesAndAtTheEnd) {
  folder_.writeFile(u"A.txt"_qs, QByteArray("song\r\n").repeated(4000));
  addOnline(u"A"_qs);
  find(u"song");
  EXPECT_EQ(display_.searched, (std::vector<std::int64_t>{2000, 4000, 4000, 4000}));
  EXPECT_EQ(display_.eventPasses, 2);
}

TEST_F(SearchRunTest, RowsArriveBeforeEventsRunAndAtTheEndOfAListing) {
  folder_.writeFile(u"A.txt"_qs, QByteArray("song\r\n").repeated(2500));
  addOnline(u"A"_qs);
  find(u"song");
  EXPECT_EQ(display_.rowsAtArrival, (std::vector<std::int64_t>{2000, 2500}));
  EXPECT_EQ(display_.found, (std::vector<std::int64_t>{0, 2000, 2500}));
}

TEST_F(SearchRunTest, HitsThatCannotBeReadWholeAreToldOncePerRunWithTheirListing) {
  const QString path = folder_.writeFile(
      u"off.lst"_qs, "\r\n" + test::entryLine("song 1", "n/a") + test::entryLine("song 2", "x"));
  addOffline(path);
  find(u"song");
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(
      messages_.informed[0],
      u"The size or date of some hits could not be read. They are shown with the size and date of the hit "
      "before them.\r\n%1: 2 line(s), the first is line 2"_qs.arg(path));
}

TEST_F(SearchRunTest, ListingsThatAreWrittenToWhileTheyAreSearchedAreTold) {
  const QString path = folder_.writeFile(u"off.lst"_qs, QByteArray("song\r\n").repeated(100'000));
  addOffline(path);
  display_.onEvents = [&] {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::Append));
    file.write("song more\r\n");
    display_.onEvents = {};
  };
  find(u"song");
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(messages_.informed[0],
            u"These listings were written to while they were searched. Hits in them may come from the old or "
            "the new content; press Find again for the new one.\r\n%1"_qs.arg(path));
  find(u"song");
  EXPECT_EQ(messages_.informed.size(), 1U);
}

TEST_F(SearchRunTest, ClosingEndsTheWholeRunWithoutMessages) {
  folder_.writeFile(u"A.txt"_qs, QByteArray("song\r\n").repeated(9000));
  addOnline(u"A"_qs);
  addOnline(u"Missing"_qs);
  display_.onEvents = [this] { closing_ = true; };
  find(u"song");
  EXPECT_EQ(hits_.rowCount(), 2000);
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(SearchRunTest, NamedListingsAreSearchedInOrder) {
  run_.searchListings(u"song"_qs, u"50"_qs,
                      {folder_.writeFile(u"1"_qs, "song 1"), folder_.pathOf(u"gone"_qs),
                       folder_.writeFile(u"2"_qs, "song 2")});
  EXPECT_EQ(names(), (QStringList{u"song 1"_qs, u"song 2"_qs}));
  EXPECT_EQ(run_.failedListings(), 1);
}

class SearchRunWithStore : public SearchRunTest {
 protected:
  void find() { run_.Find_Click(u"song"_qs, u"50"_qs); }
  bool isKept(const QString& path) { return !store_.find(*segmentKeyOf(path, QLocale::c())).empty(); }

  SegmentStore store_{{QString(), std::size_t{1} << 30}};
  SearchRun run_{{state_, messages_, QLocale::c(), &hits_, &store_, &display_, [this] { return closing_; }}};
};

TEST_F(SearchRunWithStore, ListingsThatAreNoSourcesAnyMoreAreReleased) {
  const QString first = folder_.writeFile(u"1"_qs, "song 1\r\n");
  const QString second = folder_.writeFile(u"2"_qs, "song 2\r\n");
  addOffline(first);
  addOffline(second);
  find();
  find();
  state_.OfflineSourceCount = 1;
  find();
  EXPECT_TRUE(isKept(first));
  EXPECT_FALSE(isKept(second));
}

TEST_F(SearchRunWithStore, ARunThatDoesNotComeToItsEndReleasesNothing) {
  const QString first = folder_.writeFile(u"1"_qs, "song 1\r\n");
  const QString second = folder_.writeFile(u"2"_qs, "song 2\r\n");
  addOffline(first);
  addOffline(second);
  find();
  state_.OfflineSourceCount = 1;
  state_.TextFile = u"missing.txt"_qs;
  find();
  find();
  EXPECT_TRUE(isKept(first));
  EXPECT_TRUE(isKept(second));
}

}  // namespace
}  // namespace quorvin
