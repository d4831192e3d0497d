#include "search/image_builder.h"

#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

#include <list>
#include <string>

namespace quorvin {
namespace {

/// A builder and the texts that it is given, which stay until the end of the test.
class ImageBuilderTest : public testing::Test {
 protected:
  /// Adds all lines of `text` that have an end; gives the number of bytes that they take up.
  std::size_t add(const QByteArray& text) {
    texts_.push_back(std::string(kLinePadding, '\n') + text.toStdString() + std::string(kLinePadding, '\n'));
    const std::size_t used =
        builder_.addLines(texts_.back().data() + kLinePadding, static_cast<std::size_t>(text.size()));
    builder_.image()->publish();
    return used;
  }

  /// The text of the last add() goes away.
  void finishText() {
    builder_.finishText();
    // What must not be read any more is not what it was.
    texts_.back().assign(texts_.back().size(), '#');
  }

  const GrowingImage& image() const { return *builder_.image(); }

  ImageBuilder builder_{QLocale::c()};
  std::list<std::string> texts_;
};

TEST_F(ImageBuilderTest, LinesOfAllKindsTakeTheirEffect) {
  const QByteArray text = "before all blocks\r\n" + test::blockHead("DATA1", "\\Music\\") +
                          "<DIR> Rock\r\n---------------\r\n" + test::entryLine("Song.MP3") + "short\n";
  EXPECT_EQ(add(text), static_cast<std::size_t>(text.size()));
  ASSERT_EQ(image().entryCount(), 3U);
  EXPECT_EQ(builder_.lineCount(), 9);
  EXPECT_EQ(image().volume(0), u""_qs);
  EXPECT_EQ(image().folder(0), u""_qs);
  EXPECT_EQ(image().name(0), u"before all blocks"_qs);
  EXPECT_EQ(image().volume(1), u"DATA1"_qs);
  EXPECT_EQ(image().folder(1), u"\\Music\\"_qs);
  EXPECT_EQ(image().name(1), u"Song.MP3"_qs);
  EXPECT_EQ(image().arrays().entries.foldedText(1), "song.mp3");
  EXPECT_EQ(image().name(2), u"short"_qs);
}

TEST_F(ImageBuilderTest, LineWithoutAnEndIsLeftOver) {
  EXPECT_EQ(add("one\r\ntw"), 5U);
  EXPECT_EQ(image().entryCount(), 1U);
  finishText();
  EXPECT_EQ(add("two\n"), 4U);
  EXPECT_EQ(image().name(1), u"two"_qs);
  EXPECT_EQ(add("no end at all"), 0U);
  EXPECT_EQ(image().entryCount(), 2U);
}

TEST_F(ImageBuilderTest, LineThatIsNotUtf8IsReadAsWindows1252) {
  add("caf\xE9\ncaf\xC3\xA9\n");
  EXPECT_EQ(image().name(0), u"caf\u00E9"_qs);
  EXPECT_EQ(image().name(1), u"caf\u00E9"_qs);
}

TEST_F(ImageBuilderTest, ByteOrderMarksAreCharacters) {
  add("\xEF\xBB\xBFName\nVolume: \xEF\xBB\xBFV\nDirectory: \xEF\xBB\xBF"
      "F\nName\n");
  EXPECT_EQ(image().name(0), u"\uFEFFName"_qs);
  EXPECT_EQ(image().arrays().entries.foldedText(0), "\xEF\xBB\xBFname");
  EXPECT_EQ(image().volume(1), u"\uFEFFV"_qs);
  EXPECT_EQ(image().folder(1),
            u"\uFEFF"
            u"F"_qs);
}

TEST_F(ImageBuilderTest, OnlyTheAskedValuesAreRead) {
  add(test::entryLine("a", "1") + test::entryLine("b", "n/a") + test::entryLine("c", "3") +
      test::entryLine("d", "n/a"));
  builder_.readValues(1);
  builder_.readValues(2);
  builder_.image()->publish();
  EXPECT_EQ(image().arrays().values[0].second, CompactValues::kAbsent);
  EXPECT_EQ(image().valueState(1), ValueState::Unreadable);
  EXPECT_EQ(image().unreadableLine(1), 2);
  EXPECT_EQ(image().valueState(2), ValueState::Own);
  EXPECT_EQ(image().values(2).size, 3);
  EXPECT_EQ(image().arrays().values[3].second, CompactValues::kAbsent);
}

TEST_F(ImageBuilderTest, ReadingAgainChangesNothing) {
  add(test::entryLine("a", "n/a") + test::entryLine("b", "99999999999"));
  builder_.readValues(0);
  builder_.readValues(0);
  builder_.readAllValues();
  builder_.readAllValues();
  builder_.readValues(1);
  builder_.image()->publish();
  EXPECT_EQ(image().arrays().unreadable.size(), 1U);
  EXPECT_EQ(image().arrays().wideValues.size(), 1U);
  EXPECT_EQ(image().values(1).size, 99999999999);
}

TEST_F(ImageBuilderTest, AllValuesAreReadAtOnce) {
  add(test::entryLine("a", "1") + "short\n" + test::entryLine("c", "3"));
  builder_.readAllValues();
  builder_.image()->publish();
  for (std::uint32_t entry = 0; entry < 3; ++entry) EXPECT_EQ(image().valueState(entry), ValueState::Own);
  EXPECT_EQ(image().values(1).size, 1);
  EXPECT_EQ(image().values(2).size, 3);
}

TEST_F(ImageBuilderTest, TailIsCarriedIntoTheNextText) {
  add(test::entryLine("a", "4,711"));
  finishText();
  add("short\n");
  builder_.readAllValues();
  builder_.image()->publish();
  EXPECT_EQ(image().valueState(1), ValueState::Own);
  EXPECT_EQ(image().values(1).size, 4711);
}

TEST_F(ImageBuilderTest, UnreadableTailIsCarriedWithEachLinesOwnNumber) {
  add(test::entryLine("a", "n/a"));
  finishText();
  add("\nshort\n");
  builder_.readAllValues();
  builder_.image()->publish();
  EXPECT_EQ(image().valueState(1), ValueState::Unreadable);
  EXPECT_EQ(image().unreadableLine(1), 3);
}

TEST_F(ImageBuilderTest, StretchesKnowWhetherAllHaveValuesOfTheirOwn) {
  QByteArray listing;
  for (int i = 0; i < 300; ++i) listing += test::entryLine("a", i == 5 || i == 200 ? "n/a" : "1");
  add(listing);
  builder_.readAllValues();
  builder_.image()->publish();
  EXPECT_TRUE(image().allOwn(0, 4));
  EXPECT_FALSE(image().allOwn(0, 5));
  EXPECT_FALSE(image().allOwn(5, 5));
  EXPECT_TRUE(image().allOwn(6, 199));
  EXPECT_FALSE(image().allOwn(6, 200));
  EXPECT_FALSE(image().allOwn(64, 299));
  EXPECT_FALSE(image().allOwn(192, 255));
  EXPECT_TRUE(image().allOwn(201, 299));
  EXPECT_TRUE(image().allOwn(299, 299));
  EXPECT_FALSE(image().allOwn(0, 299));
}

TEST_F(ImageBuilderTest, ShortTailTakesTheCarriedValuesAway) {
  add(test::entryLine("a", "1"));
  finishText();
  add(QByteArray(70, 'b') + "\nc\n");
  builder_.readAllValues();
  builder_.image()->publish();
  EXPECT_EQ(image().valueState(1), ValueState::Absent);
  EXPECT_EQ(image().valueState(2), ValueState::Absent);
}

TEST_F(ImageBuilderTest, DecodedTailIsCarriedToo) {
  add(test::entryLine("caf\xE9", "4,711") + test::entryLine("caf\xE9", "n/a") + "short\n");
  builder_.readAllValues();
  finishText();
  add("short\n");
  builder_.readAllValues();
  builder_.image()->publish();
  EXPECT_EQ(image().values(0).size, 4711);
  EXPECT_EQ(image().unreadableLine(2), 3);
  EXPECT_EQ(image().unreadableLine(3), 4);
}

TEST_F(ImageBuilderTest, NewImageGoesOnWhereTheOldOneEnded) {
  add("Volume: V\nDirectory: F\n" + test::entryLine("a", "4,711"));
  finishText();
  const std::shared_ptr<const GrowingImage> old = builder_.image();
  builder_.beginImage();
  EXPECT_NE(builder_.image(), old);
  add("short\n");
  builder_.readAllValues();
  builder_.image()->publish();
  ASSERT_EQ(image().entryCount(), 1U);
  EXPECT_EQ(image().volume(0), u"V"_qs);
  EXPECT_EQ(image().folder(0), u"F"_qs);
  EXPECT_EQ(image().values(0).size, 4711);
  EXPECT_EQ(builder_.lineCount(), 4);
  EXPECT_EQ(old->entryCount(), 1U);
  EXPECT_EQ(old->name(0), u"a"_qs);
}

TEST_F(ImageBuilderTest, ImageThatNobodyElseHasIsUsedAgain) {
  add("one\ntwo\n");
  finishText();
  const GrowingImage* before = builder_.image().get();
  builder_.beginImage();
  EXPECT_EQ(builder_.image().get(), before);
  EXPECT_EQ(image().entryCount(), 0U);
  add("three\n");
  ASSERT_EQ(image().entryCount(), 1U);
  EXPECT_EQ(image().name(0), u"three"_qs);
  EXPECT_EQ(image().folder(0), u""_qs);
}

TEST_F(ImageBuilderTest, BlocksWithoutEntriesLeaveNoTrace) {
  add("Directory: A\nDirectory: B\nx\nVolume: V\nVolume: \nDirectory: B\ny\n");
  ASSERT_EQ(image().arrays().blockStarts.size(), 2U);
  EXPECT_EQ(image().folder(0), u"B"_qs);
  EXPECT_EQ(image().folder(1), u"B"_qs);
  EXPECT_EQ(image().volume(1), u""_qs);
  EXPECT_EQ(image().arrays().volumes.size(), 2U);
}

TEST_F(ImageBuilderTest, LineOf69ColumnsKeepsItsBlanksAndLongerOnesLoseThem) {
  add(QByteArray("a").leftJustified(69, ' ') + "\n" + QByteArray("b").leftJustified(70, ' ') + "\n");
  EXPECT_EQ(image().name(0).size(), 69);
  EXPECT_EQ(image().name(1), u"b"_qs);
}

TEST_F(ImageBuilderTest, CopyOfChosenEntriesShowsTheSame) {
  add("Volume: V1\nDirectory: F1\n" + test::entryLine("One", "1") + test::entryLine("Two", "99999999999") +
      "Directory: F2\n" + test::entryLine("\xC3\x84rger", "n/a") + "Volume: V2\n" +
      test::entryLine("Four", "4"));
  builder_.readAllValues();
  builder_.image()->publish();
  const std::vector<std::uint32_t> chosen{1, 2, 3};
  const auto copy = copyOfEntries(image(), chosen);
  ASSERT_EQ(copy->entryCount(), 3U);
  for (std::uint32_t i = 0; i < 3; ++i) {
    EXPECT_EQ(copy->name(i), image().name(i + 1));
    EXPECT_EQ(copy->folder(i), image().folder(i + 1));
    EXPECT_EQ(copy->volume(i), image().volume(i + 1));
    EXPECT_EQ(copy->valueState(i), image().valueState(i + 1));
    EXPECT_EQ(copy->values(i), image().values(i + 1));
    EXPECT_EQ(copy->unreadableLine(i), image().unreadableLine(i + 1));
  }
}

}  // namespace
}  // namespace quorvin
