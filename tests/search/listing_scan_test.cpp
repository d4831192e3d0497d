// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/listing_scan.h"

#include "dates/general_date.h"
#include "search/search_run.h"
#include "support/fault_number.h"
#include "support/listing_lines.h"
#include "support/scan_of.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using test::ReferenceResult;
using test::scanOf;

DateValue date(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return dateValueOf(QDateTime(QDate(year, month, day), QTime(hour, minute, second)));
}

TEST(ListingScan, VolumeAndDirectoryLinesSetTheCurrentVolumeAndFolder) {
  const ReferenceResult result =
      scanOf("Volume:    DATA1\r\nDirectory: \\Music\\\r\nsong.mp3\r\n", u"song"_qs, 50);
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_EQ(result.hits[0].volume, u"DATA1"_qs);
  EXPECT_EQ(result.hits[0].folder, u"\\Music\\"_qs);
  EXPECT_EQ(result.hits[0].name, u"song.mp3"_qs);
}

TEST(ListingScan, ALineMayHoldAMebibyteAndNotAByteMore) {
  const QByteArray longest = "song " + QByteArray((1 << 20) - 5, 'x');
  // The sizes of the chunks have one end right behind the line.
  ScanLimits limits;
  limits.chunkSize = 1 << 20;
  EXPECT_EQ(scanOf(longest + "\nsong b\n", u"song"_qs, 50, limits).hits.size(), 2U);
  limits.chunkSize = (1 << 20) + 1;
  EXPECT_FAULT(scanOf(longest + "x\nsong b\n", u"song"_qs, 50, limits), 6);
}

TEST(ListingScan, FileNameWithAVolumeMarkIsReadAsAVolumeLine) {
  const QByteArray listing =
      blockHead("DATA1", "\\") + entryLine("my Volume: notes.txt") + entryLine("song.mp3");
  const ReferenceResult result = scanOf(listing, u"song"_qs, 50);
  EXPECT_EQ(result.searched, 1);
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_TRUE(result.hits[0].volume.startsWith(u"my  notes.txt"_qs));
}

TEST(ListingScan, HitOnALineOf69CharactersShowsSizeAndDateOfTheLastLongerLine) {
  const QByteArray listing =
      entryLine("other.mp3", "1,234,567") + QByteArray("song.mp3").leftJustified(69) + "\r\n";
  const ReferenceResult result = scanOf(listing, u"song"_qs, 50);
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_EQ(result.hits[0].name, QString(u"song.mp3"_qs).leftJustified(69));
  EXPECT_EQ(result.hits[0].size, 1234567);
  EXPECT_EQ(result.hits[0].date, date(2004, 1, 15, 10, 20, 30));
}

TEST(ListingScan, LineOf101CharactersUpdatesSizeAndDate) {
  const QByteArray line = entryLine("song.mp3", "2,000", "15 Jan 2004  ").chopped(2);
  ASSERT_EQ(line.size(), 101);
  const ReferenceResult result = scanOf(entryLine("first song") + line + "\r\n", u"song"_qs, 50);
  ASSERT_EQ(result.hits.size(), 2U);
  EXPECT_EQ(result.hits[1].size, 2000);
  EXPECT_EQ(result.hits[1].date, date(2004, 1, 15));
}

TEST(ListingScan, LineOf100CharactersKeepsSizeAndDateOfTheHitBefore) {
  const QByteArray line = entryLine("song.mp3", "2,000", "15 Jan 2004 ").chopped(2);
  ASSERT_EQ(line.size(), 100);
  const ReferenceResult result = scanOf(entryLine("first song", "1,024") + line + "\r\n", u"song"_qs, 50);
  ASSERT_EQ(result.hits.size(), 2U);
  EXPECT_EQ(result.hits[1].size, 1024);
  EXPECT_EQ(result.hits[1].date, date(2004, 1, 15, 10, 20, 30));
}

TEST(ListingScan, ShortTailShowsTheValuesOfTheHitBeforeNotOfTheLineBefore) {
  const QByteArray shortLine = entryLine("song two", "2,000", "15 Jan 2004").chopped(2) + "\r\n";
  const QByteArray listing = entryLine("song one", "111") + entryLine("no hit", "222") + shortLine;
  const ReferenceResult result = scanOf(listing, u"song"_qs, 50);
  ASSERT_EQ(result.hits.size(), 2U);
  EXPECT_EQ(result.hits[1].size, 111);
}

TEST(ListingScan, SizeFieldWithFourBlanksAndGroupingIsRead) {
  const ReferenceResult result = scanOf(entryLine("song.mp3", "1,234,567"), u"song"_qs, 50);
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_EQ(result.hits[0].size, 1234567);
}

TEST(ListingScan, FirstDigitOfAThirteenCharacterSizeStaysInTheEntryText) {
  const ReferenceResult result = scanOf(entryLine("film.mpg", "1,073,741,824"), u"film"_qs, 50);
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_EQ(result.hits[0].name, QString(u"film.mpg"_qs).leftJustified(68) + u'1');
  EXPECT_EQ(result.hits[0].size, 1073741824);
}

TEST(ListingScan, NameOf70CharactersWasWrittenCutTo65) {
  const QByteArray name = QByteArray("0123456789").repeated(7);
  const ReferenceResult result = scanOf(entryLine(name), u"0123456789"_qs, 50);
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_EQ(result.hits[0].name, u"01234567890123456789012345678901234567890123456789012345678901234"_qs);
}

TEST(ListingScan, WordsInFolderAndNameBothCount) {
  const QByteArray listing = blockHead("CD 7", "\\Music\\Rock\\") + entryLine("Live at Wembley.mp3");
  const ReferenceResult result = scanOf(listing, u"rock live"_qs, 99);
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_EQ(result.hits[0].match, 100);
}

TEST(ListingScan, EmptyWordOfATrailingBlankCountsAsFound) {
  EXPECT_EQ(scanOf("xyz\r\n", u"abc "_qs, 49).hits.size(), 1U);
  EXPECT_EQ(scanOf("xyz\r\n", u"abc "_qs, 49).hits[0].match, 50);
  EXPECT_EQ(scanOf("xyz\r\n", u"abc "_qs, 50).hits.size(), 0U);
}

TEST(ListingScan, EmptyWordBetweenTwoBlanksIsAlwaysFound) {
  const ReferenceResult result = scanOf("axe\r\nbe\r\nab\r\nxy\r\n", u"a  b"_qs, 33);
  ASSERT_EQ(result.hits.size(), 3U);
  EXPECT_EQ(result.hits[0].match, 67);
  EXPECT_EQ(result.hits[1].match, 67);
  EXPECT_EQ(result.hits[2].match, 100);
}

TEST(ListingScan, MatchMustBeAboveTheDesiredMatch) {
  EXPECT_EQ(scanOf("one\r\n", u"one two"_qs, 50).hits.size(), 0U);
  EXPECT_EQ(scanOf("one\r\n", u"one two three"_qs, 50).hits.size(), 0U);
  const ReferenceResult twoOfThree = scanOf("one two\r\n", u"one two three"_qs, 50);
  ASSERT_EQ(twoOfThree.hits.size(), 1U);
  EXPECT_EQ(twoOfThree.hits[0].match, 67);
}

TEST(ListingScan, DesiredMatchOfAHundredYieldsNoHits) {
  EXPECT_EQ(scanOf("one\r\n", u"one"_qs, 100).hits.size(), 0U);
  EXPECT_EQ(scanOf("one\r\n", u"one"_qs, 99).hits.size(), 1U);
}

TEST(ListingScan, YieldsAtEvery2000thEntryOfTheRun) {
  test::TestScan scan(u"song"_qs);
  scan.run(test::MemoryListing(QByteArray("song\r\n").repeated(4000)));
  EXPECT_EQ(scan.yields.counts, (std::vector<std::int64_t>{2000, 4000}));
  EXPECT_EQ(scan.counts.searched, 4000);
  EXPECT_EQ(scan.table.rowCount(), 4000);
}

TEST(ListingScan, CountsOfEarlierListingsMoveTheYields) {
  test::TestScan scan(u"song"_qs);
  scan.counts.searched = 1500;
  scan.run(test::MemoryListing(QByteArray("song\r\n").repeated(1000)));
  EXPECT_EQ(scan.yields.counts, (std::vector<std::int64_t>{2000}));
  EXPECT_EQ(scan.counts.searched, 2500);
}

TEST(ListingScan, StopRequestEndsTheListingAtOnce) {
  test::TestScan scan(u"song"_qs);
  scan.yields.onYield = [](std::int64_t count) { return count == 4000; };
  scan.run(test::MemoryListing(QByteArray("song\r\n").repeated(10000)));
  EXPECT_TRUE(scan.outcome.stopped);
  EXPECT_EQ(scan.counts.searched, 4000);
  EXPECT_EQ(scan.table.rowCount(), 4000);
}

TEST(ListingScan, ShortFirstHitShowsNoSizeAndTheZeroDate) {
  test::TestScan scan(u"song"_qs);
  scan.run(test::MemoryListing("song.mp3\r\n"));
  ASSERT_EQ(scan.table.rowCount(), 1);
  EXPECT_EQ(hitText(scan.table.row(0), HitColumn::Size, QLocale::c()), u"0.00mb"_qs);
  EXPECT_EQ(hitText(scan.table.row(0), HitColumn::Date, QLocale::c()), u"Dec, 30 99"_qs);
}

TEST(ListingScan, LinesThatAreNoEntriesAreNotCounted) {
  const QByteArray listing = blockHead("DATA1", "\\") + "<DIR> Rock\r\n\r\n---------------\r\nsong\r\n";
  EXPECT_EQ(scanOf(listing, u"song"_qs, 50).searched, 1);
  EXPECT_EQ(
      scanOf(blockHead("DATA1", "\\") + "<DIR> Rock\r\n\r\n---------------\r\n", u"song"_qs, 50).searched, 0);
}

TEST(ListingScan, SizesAndDatesThatCannotBeReadAreCountedAndShownAsBefore) {
  const QByteArray listing = entryLine("song 1", "1,024") + entryLine("song 2", "n/a") +
                             entryLine("other", "n/a") + entryLine("song 3", "2,048", "yesterday evening");
  const ReferenceResult result = scanOf(listing, u"song"_qs, 50);
  ASSERT_EQ(result.hits.size(), 3U);
  EXPECT_EQ(result.hits[1].size, 1024);
  EXPECT_EQ(result.hits[2].size, 1024);
  EXPECT_EQ(result.unreadable, 2);
  EXPECT_EQ(result.firstUnreadableLine, 2);
}

TEST(ListingScan, LowerCaseOfOtherLettersIsFound) {
  const ReferenceResult result = scanOf("\xC3\x84rger.txt\r\n", u"\u00E4rger"_qs, 50);
  ASSERT_EQ(result.hits.size(), 1U);
  EXPECT_EQ(result.hits[0].name, u"\u00C4rger.txt"_qs);
}

TEST(ListingScan, LineThatIsNotValidIsReadAsWindows1252) {
  const ReferenceResult result = scanOf("caf\xE9 \x80.txt\r\nna\xC3\xAFve.txt\r\n", u".txt"_qs, 50);
  ASSERT_EQ(result.hits.size(), 2U);
  EXPECT_EQ(result.hits[0].name, u"caf\u00E9 \u20AC.txt"_qs);
  EXPECT_EQ(result.hits[1].name, u"na\u00EFve.txt"_qs);
}

TEST(ListingScan, LastLineMayLackItsEnd) {
  EXPECT_EQ(scanOf("one\r\ntwo", u"two"_qs, 50).hits.size(), 1U);
  EXPECT_EQ(scanOf("one\ntwo\n", u"two"_qs, 50).searched, 2);
  EXPECT_EQ(scanOf("", u"two"_qs, 50).searched, 0);
}

}  // namespace
}  // namespace quorvin
