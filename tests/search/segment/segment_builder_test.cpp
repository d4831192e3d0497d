// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/segment_builder.h"

#include "search/segment/folded_text.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <list>
#include <string>

namespace quorvin {
namespace {

/// A builder and the texts that it is given, which stay until the end of the test.
class SegmentBuilderTest : public testing::Test {
 protected:
  /// Adds all lines of `text` that have an end; gives the number of bytes that they take up.
  std::size_t add(const QByteArray& text) {
    texts_.push_back(std::string(kLinePadding, '\n') + text.toStdString() + std::string(kLinePadding, '\n'));
    const std::size_t used =
        builder_.addLines(texts_.back().data() + kLinePadding, static_cast<std::size_t>(text.size()));
    builder_.segment()->publish();
    return used;
  }

  /// The text of the last add() goes away.
  void finishText() {
    builder_.finishText();
    // What must not be read any more is not what it was.
    texts_.back().assign(texts_.back().size(), '#');
  }

  const GrowingSegment& segment() const { return *builder_.segment(); }

  SegmentBuilder builder_{QLocale::c()};
  std::list<std::string> texts_;
};

TEST_F(SegmentBuilderTest, LinesOfAllKindsTakeTheirEffect) {
  const QByteArray text = "before all blocks\r\n" + test::blockHead("DATA1", "\\Music\\") +
                          "<DIR> Rock\r\n---------------\r\n" + test::entryLine("Song.MP3") + "short\n";
  EXPECT_EQ(add(text), static_cast<std::size_t>(text.size()));
  ASSERT_EQ(segment().entryCount(), 3U);
  EXPECT_EQ(builder_.lineCount(), 9);
  EXPECT_EQ(segment().volume(0), u""_qs);
  EXPECT_EQ(segment().folder(0), u""_qs);
  EXPECT_EQ(segment().name(0), u"before all blocks"_qs);
  EXPECT_EQ(segment().volume(1), u"DATA1"_qs);
  EXPECT_EQ(segment().folder(1), u"\\Music\\"_qs);
  EXPECT_EQ(segment().name(1), u"Song.MP3"_qs);
  EXPECT_EQ(test::foldedText(segment().arrays().entries, 1), "song.mp3");
  EXPECT_EQ(segment().name(2), u"short"_qs);
}

TEST_F(SegmentBuilderTest, LineWithoutAnEndIsLeftOver) {
  EXPECT_EQ(add("one\r\ntw"), 5U);
  EXPECT_EQ(segment().entryCount(), 1U);
  finishText();
  EXPECT_EQ(add("two\n"), 4U);
  EXPECT_EQ(segment().name(1), u"two"_qs);
  EXPECT_EQ(add("no end at all"), 0U);
  EXPECT_EQ(segment().entryCount(), 2U);
}

TEST_F(SegmentBuilderTest, LineThatIsNotUtf8IsReadAsWindows1252) {
  add("caf\xE9\ncaf\xC3\xA9\n");
  EXPECT_EQ(segment().name(0), u"caf\u00E9"_qs);
  EXPECT_EQ(segment().name(1), u"caf\u00E9"_qs);
}

TEST_F(SegmentBuilderTest, ByteOrderMarksAreCharacters) {
  add("\xEF\xBB\xBFName\nVolume: \xEF\xBB\xBFV\nDirectory: \xEF\xBB\xBF"
      "F\nName\n");
  EXPECT_EQ(segment().name(0), u"\uFEFFName"_qs);
  EXPECT_EQ(test::foldedText(segment().arrays().entries, 0), "\xEF\xBB\xBFname");
  EXPECT_EQ(segment().volume(1), u"\uFEFFV"_qs);
  EXPECT_EQ(segment().folder(1),
            u"\uFEFF"
            u"F"_qs);
}

TEST_F(SegmentBuilderTest, OnlyTheAskedValuesAreRead) {
  add(test::entryLine("a", "1") + test::entryLine("b", "n/a") + test::entryLine("c", "3") +
      test::entryLine("d", "n/a"));
  builder_.readValues(1);
  builder_.readValues(2);
  builder_.segment()->publish();
  EXPECT_EQ(segment().arrays().values[0].second, CompactValues::kAbsent);
  EXPECT_EQ(segment().valueState(1), ValueState::Unreadable);
  EXPECT_EQ(segment().unreadableLine(1), 2);
  EXPECT_EQ(segment().valueState(2), ValueState::Own);
  EXPECT_EQ(segment().unreadableLine(2), 0);
  EXPECT_EQ(segment().values(2).size, 3);
  EXPECT_EQ(segment().arrays().values[3].second, CompactValues::kAbsent);
}

TEST(GrowingSegment, HasTheValuesOfItsOwnEntriesOnlyAfterItWasCleared) {
  GrowingSegment segment;
  segment.beginBlock("V1", "\\Music\\", true);
  for (const std::uint32_t entry : {0U, 1U}) {
    segment.addEntry("Song", true);
    segment.valueArrays().set(entry, ValueState::Own, {1500, 1}, entry);
  }
  segment.clear();
  segment.beginBlock("V2", "\\Films\\", true);
  segment.addEntry("Film", true);
  segment.publish();
  ASSERT_EQ(segment.arrays().values.size(), 1U);
  EXPECT_EQ(segment.arrays().values[0].second, CompactValues::kAbsent);
}

TEST_F(SegmentBuilderTest, ReadingAgainChangesNothing) {
  add(test::entryLine("a", "n/a") + test::entryLine("b", "99999999999"));
  builder_.readValues(0);
  builder_.readValues(0);
  builder_.readAllValues();
  builder_.readAllValues();
  builder_.readValues(1);
  builder_.segment()->publish();
  EXPECT_EQ(segment().arrays().unreadable.size(), 1U);
  EXPECT_EQ(segment().arrays().wideValues.size(), 1U);
  EXPECT_EQ(segment().values(1).size, 99999999999);
}

TEST_F(SegmentBuilderTest, AllValuesAreReadAtOnce) {
  add(test::entryLine("a", "1") + "short\n" + test::entryLine("c", "3"));
  builder_.readAllValues();
  builder_.segment()->publish();
  EXPECT_EQ(segment().valueState(0), ValueState::Own);
  EXPECT_EQ(segment().valueState(1), ValueState::Carried);
  EXPECT_EQ(segment().valueState(2), ValueState::Own);
  EXPECT_EQ(segment().values(1).size, 1);
  EXPECT_EQ(segment().values(2).size, 3);
}

TEST_F(SegmentBuilderTest, TailIsCarriedIntoTheNextText) {
  add(test::entryLine("a", "4,711"));
  finishText();
  add("short\n");
  builder_.readAllValues();
  builder_.segment()->publish();
  EXPECT_EQ(segment().valueState(1), ValueState::Carried);
  EXPECT_EQ(segment().values(1).size, 4711);
}

TEST_F(SegmentBuilderTest, ValuesAreCarriedAlsoWhereThoseOfTheirOwnLineWereNotAskedFor) {
  add(test::entryLine("a", "4,711") + "short\n" + test::entryLine("b", "3"));
  builder_.readValues(1);
  builder_.readValues(2);
  builder_.segment()->publish();
  EXPECT_EQ(segment().valueState(1), ValueState::Carried);
  EXPECT_EQ(segment().values(1).size, 4711);
  EXPECT_EQ(segment().valueState(2), ValueState::Own);
}

TEST_F(SegmentBuilderTest, UnreadableTailIsCarriedWithEachLinesOwnNumber) {
  add(test::entryLine("a", "n/a"));
  finishText();
  add("\nshort\n");
  builder_.readAllValues();
  builder_.segment()->publish();
  EXPECT_EQ(segment().valueState(1), ValueState::Unreadable);
  EXPECT_EQ(segment().unreadableLine(1), 3);
}

TEST_F(SegmentBuilderTest, StretchesKnowWhetherAllHaveValuesOfTheirOwn) {
  QByteArray listing;
  for (int i = 0; i < 300; ++i) listing += test::entryLine("a", i == 5 || i == 200 ? "n/a" : "1");
  add(listing);
  builder_.readAllValues();
  builder_.segment()->publish();
  EXPECT_TRUE(segment().allOwn(0, 4));
  EXPECT_FALSE(segment().allOwn(0, 5));
  EXPECT_FALSE(segment().allOwn(5, 5));
  EXPECT_TRUE(segment().allOwn(6, 199));
  EXPECT_FALSE(segment().allOwn(6, 200));
  EXPECT_FALSE(segment().allOwn(64, 299));
  EXPECT_FALSE(segment().allOwn(192, 255));
  EXPECT_TRUE(segment().allOwn(201, 299));
  EXPECT_TRUE(segment().allOwn(299, 299));
  EXPECT_FALSE(segment().allOwn(0, 299));
}

TEST_F(SegmentBuilderTest, ShortTailTakesTheCarriedValuesAway) {
  add(test::entryLine("a", "1"));
  finishText();
  add(QByteArray(70, 'b') + "\nc\n");
  builder_.readAllValues();
  builder_.segment()->publish();
  EXPECT_EQ(segment().valueState(1), ValueState::Absent);
  EXPECT_EQ(segment().valueState(2), ValueState::Absent);
}

TEST_F(SegmentBuilderTest, DecodedTailIsCarriedToo) {
  add(test::entryLine("caf\xE9", "4,711") + test::entryLine("caf\xE9", "n/a") + "short\n");
  builder_.readAllValues();
  finishText();
  add("short\n");
  builder_.readAllValues();
  builder_.segment()->publish();
  EXPECT_EQ(segment().values(0).size, 4711);
  EXPECT_EQ(segment().unreadableLine(2), 3);
  EXPECT_EQ(segment().unreadableLine(3), 4);
}

TEST_F(SegmentBuilderTest, NewSegmentGoesOnWhereTheOldOneEnded) {
  add("Volume: V\nDirectory: F\n" + test::entryLine("a", "4,711"));
  finishText();
  const std::shared_ptr<const GrowingSegment> old = builder_.segment();
  builder_.beginSegment();
  EXPECT_NE(builder_.segment(), old);
  add("short\n");
  builder_.readAllValues();
  builder_.segment()->publish();
  ASSERT_EQ(segment().entryCount(), 1U);
  EXPECT_EQ(segment().volume(0), u"V"_qs);
  EXPECT_EQ(segment().folder(0), u"F"_qs);
  EXPECT_EQ(segment().values(0).size, 4711);
  EXPECT_EQ(builder_.lineCount(), 4);
  EXPECT_EQ(old->entryCount(), 1U);
  EXPECT_EQ(old->name(0), u"a"_qs);
}

TEST_F(SegmentBuilderTest, SegmentThatNobodyElseHasIsUsedAgain) {
  add("one\ntwo\n");
  finishText();
  const GrowingSegment* before = builder_.segment().get();
  builder_.beginSegment();
  EXPECT_EQ(builder_.segment().get(), before);
  EXPECT_EQ(segment().entryCount(), 0U);
  add("three\n");
  ASSERT_EQ(segment().entryCount(), 1U);
  EXPECT_EQ(segment().name(0), u"three"_qs);
  EXPECT_EQ(segment().folder(0), u""_qs);
}

TEST_F(SegmentBuilderTest, BlocksWithoutEntriesLeaveNoTrace) {
  add("Directory: A\nDirectory: B\nx\nVolume: V\nVolume: \nDirectory: B\ny\n");
  ASSERT_EQ(segment().arrays().blockStarts.size(), 2U);
  EXPECT_EQ(segment().folder(0), u"B"_qs);
  EXPECT_EQ(segment().folder(1), u"B"_qs);
  EXPECT_EQ(segment().volume(1), u""_qs);
  EXPECT_EQ(segment().arrays().volumes.size(), 2U);
}

TEST_F(SegmentBuilderTest, LineOf69ColumnsKeepsItsBlanksAndLongerOnesLoseThem) {
  add(QByteArray("a").leftJustified(69, ' ') + "\n" + QByteArray("b").leftJustified(70, ' ') + "\n");
  EXPECT_EQ(segment().name(0).size(), 69);
  EXPECT_EQ(segment().name(1), u"b"_qs);
}

TEST_F(SegmentBuilderTest, CopyOfChosenEntriesShowsTheSame) {
  add("Volume: V1\nDirectory: F1\n" + test::entryLine("One", "1") + test::entryLine("Two", "99999999999") +
      "Directory: F2\n" + test::entryLine("\xC3\x84rger", "n/a") + "Volume: V2\n" +
      test::entryLine("Four", "4"));
  builder_.readAllValues();
  builder_.segment()->publish();
  const std::vector<std::uint32_t> chosen{1, 2, 3};
  const auto copy = copyOfEntries(segment(), chosen);
  ASSERT_EQ(copy->entryCount(), 3U);
  for (std::uint32_t i = 0; i < 3; ++i) {
    EXPECT_EQ(copy->name(i), segment().name(i + 1));
    EXPECT_EQ(copy->folder(i), segment().folder(i + 1));
    EXPECT_EQ(copy->volume(i), segment().volume(i + 1));
    EXPECT_EQ(copy->valueState(i), segment().valueState(i + 1));
    EXPECT_EQ(copy->values(i), segment().values(i + 1));
    EXPECT_EQ(copy->unreadableLine(i), segment().unreadableLine(i + 1));
  }
}

}  // namespace
}  // namespace quorvin
