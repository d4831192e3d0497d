// SPDX-License-Identifier: GPL-2.0-or-later

// How many entries a listing has, learned quickly.
#include "search/entry_count.h"

#include "search/segment/segment_builder.h"
#include "search/segment/segment_store.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvin::test {

namespace {

class EntryCount : public testing::Test {
 protected:
  std::optional<std::int64_t> count(const QByteArray& listing) {
    return quickEntryCount(folder_.writeFile(QStringLiteral("a.txt"), listing), cache_, QLocale::c());
  }
  /// Keeps segments of one entry for the listing as it is.
  void keepOneEntry() {
    const std::string text = std::string(kLinePadding, '\n') + "song\r\n" + std::string(kLinePadding, '\n');
    SegmentBuilder builder{QLocale::c()};
    builder.addLines(text.data() + kLinePadding, 6);
    builder.readAllValues();
    builder.finishText();
    builder.segment()->complete();
    const std::optional<SegmentKey> key = segmentKeyOf(folder_.pathOf(QStringLiteral("a.txt")), QLocale::c());
    SegmentFileWriter writer(segmentFilePath(cache_, key->listing));
    writer.append(*builder.segment());
    writer.finish(*key);
  }

  TemporaryFolder folder_;
  QString cache_ = folder_.makeFolder(QStringLiteral("cache"));
};

TEST_F(EntryCount, IsThatOfTheEntryLines) {
  EXPECT_EQ(count(blockHead("V", "\\a\\") + "<DIR> b\r\n\r\n" + entryLine("one.txt") + entryLine("two.txt") +
                  blockHead("V", "\\a\\b\\") + "no line end"),
            3);
}

TEST_F(EntryCount, OfAnEmptyListingIsNone) {
  EXPECT_EQ(count(""), 0);
}

TEST_F(EntryCount, CountsLinesAcrossTheChunksThatAreRead) {
  QByteArray listing = blockHead("V", "\\");
  for (int i = 0; i < 5000; ++i) listing += entryLine("a");
  EXPECT_EQ(count(listing), 5000);
}

TEST_F(EntryCount, OfAListingInUtf16IsThatOfItsText) {
  EXPECT_EQ(count(QByteArray("\xFF\xFE"
                             "a\0\r\0\n\0"
                             "b\0",
                             10)),
            2);
}

TEST_F(EntryCount, IsNotLearnedFromALargeListingThatWasNeverSearched) {
  const QByteArray line(QByteArray(62, 'x') + "\r\n");
  EXPECT_EQ(count(line.repeated(4 * 1024 * 1024 / 64)), 65536);
  EXPECT_EQ(count(line.repeated(4 * 1024 * 1024 / 64) + "y"), std::nullopt);
}

TEST_F(EntryCount, IsThatOfTheKeptSegmentsWhileTheListingIsTheSame) {
  count("a\r\nb\r\n");
  keepOneEntry();
  const QString listing = folder_.pathOf(QStringLiteral("a.txt"));
  EXPECT_EQ(quickEntryCount(listing, cache_, QLocale::c()), 1);
  EXPECT_EQ(quickEntryCount(listing, {}, QLocale::c()), 2);
  EXPECT_EQ(count("a\r\nb\r\nc\r\n"), 3);
}

TEST_F(EntryCount, OfNoFileIsUnknown) {
  EXPECT_EQ(quickEntryCount(folder_.pathOf(QStringLiteral("none.txt")), cache_, QLocale::c()), std::nullopt);
  EXPECT_EQ(quickEntryCount(cache_, cache_, QLocale::c()), std::nullopt);
}

}  // namespace

}  // namespace quorvin::test
