// SPDX-License-Identifier: GPL-2.0-or-later

// The flow of an update, step by step.
#include "archive/archive_maker.h"
#include "support/time_zone.h"
#include "update/web_update_fixture.h"

namespace quorvin::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

const QString kUpToDate = QStringLiteral("Your data file is up to date.");

/// Bytes that no packing makes smaller.
QByteArray storedArchive(const QByteArray& content) {
  MadeEntry entry;
  entry.name = "main.txt";
  entry.content = content;
  return archiveOf({entry});
}

TEST_F(WebUpdateTest, GoesThroughAllStepsInOrder) {
  const QByteArray archive = storedArchive(madeNoise(2386));
  ASSERT_EQ(archive.size(), 2500);
  serve(kDate, archive);
  boxes_.answers = {true};
  click();
  EXPECT_EQ(log_.mid(0, 9),
            QStringList({u"WebUpdate off"_qs, u"GET http://lists.example.org/main.zip"_qs,
                         u"header Last-Modified:"_qs, u"header Content-Length:"_qs, u"cancel"_qs,
                         u"progress shown"_qs, u"maximum 2500"_qs, u"status Starting download of update."_qs,
                         u"GET http://lists.example.org/main.zip"_qs}));
  // The first 1024 bytes are not counted.
  EXPECT_EQ(log_.mid(9, 4), QStringList({u"bar 1024"_qs, u"bar 1476"_qs, u"bar 1476"_qs, u"cancel"_qs}));
  EXPECT_EQ(log_.mid(13), QStringList({u"status Retrieved compressed data update!"_qs, u"maximum 100"_qs,
                                       u"bar 0"_qs, u"status Decompressing..."_qs, u"bar 0"_qs, u"bar 100"_qs,
                                       u"progress unloaded"_qs, u"WebUpdate on"_qs}));
  EXPECT_THAT(web_.chunkSizes, Each(1024));
  EXPECT_EQ(data_.names(), QStringList({u"main.txt"_qs, u"main.zip"_qs}));
  EXPECT_EQ(data_.readFile(u"main.txt"_qs), madeNoise(2386));
  EXPECT_EQ(data_.readFile(u"main.zip"_qs), archive);
  EXPECT_THAT(boxes_.informed, IsEmpty());
  EXPECT_FALSE(view_.pointerIsBusy);
}

TEST_F(WebUpdateTest, AsksWithTheAddress) {
  serve(kDate, "x");
  click();
  EXPECT_THAT(boxes_.asked,
              ElementsAre(u"An updated data file is avaliable at http://lists.example.org/main.zip do you "
                          u"want to download the update?"_qs));
}

TEST_F(WebUpdateTest, ThatIsNotWantedEndsThere) {
  serve(kDate, "x");
  boxes_.answers = {false};
  click();
  EXPECT_EQ(log_.last(), u"WebUpdate on"_qs);
  EXPECT_FALSE(log_.contains(u"progress shown"_qs));
  EXPECT_EQ(data_.names(), QStringList());
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(WebUpdateTest, CountsAnOddLastChunkAsOneMore) {
  serve(kDate, madeNoise(2501));
  boxes_.answers = {true};
  click();
  EXPECT_THAT(log_, Contains(u"bar 1478"_qs));
}

TEST_F(WebUpdateTest, WithoutACopyIsOfferedFromTwoMinutesAfterTheBeginOf1980) {
  serve(u"01 Jan 1980 00:01:59"_qs, "x");
  click();
  EXPECT_THAT(boxes_.informed, ElementsAre(kUpToDate));
  EXPECT_FALSE(wasOffered());
  serve(u"01 Jan 1980 00:02:00"_qs, "x");
  click();
  EXPECT_TRUE(wasOffered());
}

TEST_F(WebUpdateTest, OneMinuteNewerIsUpToDate) {
  haveArchive("old", utc(2004, 11, 15, 10, 19, 0));
  serve(kDate, "x");
  click();
  EXPECT_THAT(boxes_.informed, ElementsAre(kUpToDate));
  EXPECT_FALSE(wasOffered());
  EXPECT_EQ(data_.readFile(u"main.zip"_qs), QByteArray("old"));
  EXPECT_TRUE(webUpdateEnabled_);
}

TEST_F(WebUpdateTest, TwoMinutesNewerIsOffered) {
  haveArchive("old", utc(2004, 11, 15, 10, 18, 59));
  serve(kDate, "x");
  click();
  EXPECT_THAT(boxes_.informed, IsEmpty());
  EXPECT_TRUE(wasOffered());
}

TEST_F(WebUpdateTest, CountsMinuteBoundariesAndNotSixtySeconds) {
  haveArchive("old", utc(2004, 11, 15, 10, 18, 59));
  serve(u"15 Nov 2004 10:20:00"_qs, "x");
  click();
  EXPECT_TRUE(wasOffered());
}

TEST_F(WebUpdateTest, OfAnOlderServerCopyIsUpToDate) {
  haveArchive("old", utc(2024, 1, 1, 0, 0));
  serve(kDate, "x");
  click();
  EXPECT_THAT(boxes_.informed, ElementsAre(kUpToDate));
}

TEST_F(WebUpdateTest, ComparesACopyOfDaylightTimeWithTheDaylightBias) {
  const TimeZone zone(kCentralEurope);
  // 12:00 by the wall clock, which is two hours ahead.
  haveArchive("old", utc(2004, 7, 15, 10, 0));
  serve(u"15 Jul 2004 10:01:00"_qs, "x");
  click();
  EXPECT_THAT(boxes_.informed, ElementsAre(kUpToDate));
  serve(u"15 Jul 2004 10:02:00"_qs, "x");
  click();
  EXPECT_TRUE(wasOffered());
}

TEST_F(WebUpdateTest, ComparesACopyOfStandardTimeWithTheBias) {
  const TimeZone zone(kCentralEurope);
  haveArchive("old", utc(2004, 1, 15, 11, 0));
  serve(u"15 Jan 2004 11:01:00"_qs, "x");
  click();
  EXPECT_THAT(boxes_.informed, ElementsAre(kUpToDate));
  serve(u"15 Jan 2004 11:02:00"_qs, "x");
  click();
  EXPECT_TRUE(wasOffered());
}

TEST_F(WebUpdateTest, ComparesInAZoneWestOfGreenwichWithoutDaylightTime) {
  const TimeZone zone("XYZ3:30");
  haveArchive("old", utc(2004, 7, 15, 1, 0));
  serve(u"15 Jul 2004 01:01:00"_qs, "x");
  click();
  EXPECT_THAT(boxes_.informed, ElementsAre(kUpToDate));
  serve(u"15 Jul 2004 01:02:00"_qs, "x");
  click();
  EXPECT_TRUE(wasOffered());
}

TEST_F(WebUpdateTest, WritesOverALongerArchiveWithoutCuttingIt) {
  const QByteArray earlier = storedArchive(madeNoise(5000));
  const QByteArray archive = storedArchive("new");
  haveArchive(earlier, utc(2001, 1, 1, 0, 0));
  serve(kDate, archive);
  boxes_.answers = {true};
  click();
  const QByteArray file = data_.readFile(u"main.zip"_qs);
  EXPECT_EQ(file.size(), earlier.size());
  EXPECT_EQ(file, archive + earlier.sliced(archive.size()));
  EXPECT_EQ(data_.readFile(u"main.txt"_qs), QByteArray("new"));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(WebUpdateTest, ThatWasUnpackedWholeDatesFromItsArrival) {
  const QDateTime before = QDateTime::currentDateTimeUtc();
  serve(kDate, storedArchive("new"));
  boxes_.answers = {true};
  click();
  EXPECT_GE(modified(), before);
  EXPECT_LE(modified(), QDateTime::currentDateTimeUtc());
  serve(kDate, storedArchive("new"));
  click();
  EXPECT_THAT(boxes_.informed, ElementsAre(kUpToDate));
}

TEST_F(WebUpdateTest, OfAnEmptyArchiveNameIsReceivedButNotUnpacked) {
  state_.ArchiveFile.clear();
  data_.writeFile(u"keep.txt"_qs, "mine");
  serve(kDate, storedArchive(madeNoise(3000)));
  boxes_.answers = {true};
  click();
  EXPECT_THAT(log_, Contains(u"GET http://lists.example.org/"_qs).Times(2));
  EXPECT_THAT(log_, Contains(u"bar 2090"_qs));
  EXPECT_FALSE(log_.contains(u"status Decompressing..."_qs));
  EXPECT_EQ(log_.mid(log_.size() - 2), QStringList({u"progress unloaded"_qs, u"WebUpdate on"_qs}));
  EXPECT_EQ(data_.names(), QStringList{u"keep.txt"_qs});
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(WebUpdateTest, ThatIsNoArchiveIsAnArchiveError) {
  serve(kDate, "<html>Not here</html>");
  boxes_.answers = {true};
  click();
  EXPECT_THAT(boxes_.informed, ElementsAre(u"Archive Error: \"main.zip\" is no zip archive, or its end is "
                                           u"missing. Nothing was unpacked."_qs));
  EXPECT_EQ(log_.mid(log_.size() - 2), QStringList({u"progress unloaded"_qs, u"WebUpdate on"_qs}));
  EXPECT_EQ(data_.names(), QStringList{u"main.zip"_qs});
}

TEST_F(WebUpdateTest, OfNothingIsAnArchiveError) {
  serve(kDate, "");
  boxes_.answers = {true};
  click();
  EXPECT_EQ(boxes_.informed.size(), 1U);
  EXPECT_TRUE(boxes_.informed[0].startsWith(u"Archive Error: "_qs));
  EXPECT_TRUE(webUpdateEnabled_);
}

TEST_F(WebUpdateTest, LetsEventsRunWhileHeadersAndChunksAreAwaited) {
  serve(kDate, storedArchive(madeNoise(100)));
  web_.answers[0].pollsUntilHeaders = 5;
  web_.answers[1].pollsUntilHeaders = 3;
  web_.answers[1].pollsUntilChunk = 4;
  boxes_.answers = {true};
  view_.onWait = [this] {
    const bool isChecking = view_.waits <= 5;
    EXPECT_EQ(view_.pointerIsBusy, isChecking);
  };
  click();
  EXPECT_EQ(view_.waits, 12);
}

TEST_F(WebUpdateTest, TheArchiveIsOpenedOnceItsFirstBytesAreThere) {
  serve(u"15 Nov 2004 10:20:30"_qs, "no archive");
  web_.answers[1].pollsUntilChunk = 2;
  boxes_.answers = {true};
  bool isThere = false;
  view_.onWait = [&] { isThere = isThere || data_.has(u"main.zip"_qs); };
  click();
  EXPECT_EQ(view_.waits, 2);
  EXPECT_FALSE(isThere);
  EXPECT_EQ(data_.readFile(u"main.zip"_qs), "no archive");
}

TEST_F(WebUpdateTest, LetsEventsRunAfterEachChunk) {
  serve(kDate, madeNoise(10 * 1024));
  boxes_.answers = {true};
  click();
  EXPECT_EQ(view_.eventPasses, 10);
}

TEST_F(WebUpdateTest, IgnoresARequestToStopThatIsLeftFromBefore) {
  state_.AbortRequested = true;
  serve(kDate, storedArchive("new"));
  boxes_.answers = {true};
  click();
  EXPECT_EQ(data_.readFile(u"main.txt"_qs), QByteArray("new"));
  EXPECT_TRUE(webUpdateEnabled_);
}

}  // namespace
}  // namespace quorvin::test
