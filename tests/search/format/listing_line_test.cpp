// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/format/listing_line.h"

#include "search/segment/entry_values.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

TEST(ListingLine, KindsAreToldByTheirMarksAnywhereInTheLine) {
  EXPECT_EQ(classifyLine(""), LineKind::Empty);
  EXPECT_EQ(classifyLine("Volume:    DATA1"), LineKind::Volume);
  EXPECT_EQ(classifyLine("  old Volume: x"), LineKind::Volume);
  EXPECT_EQ(classifyLine("Directory: \\Music\\"), LineKind::Directory);
  EXPECT_EQ(classifyLine("<DIR> Rock"), LineKind::SubFolder);
  EXPECT_EQ(classifyLine("abc---------------def"), LineKind::Separator);
  EXPECT_EQ(classifyLine("abc--------------def"), LineKind::Entry);
  EXPECT_EQ(classifyLine(" "), LineKind::Entry);
}

TEST(ListingLine, MarksAreCaseSensitive) {
  EXPECT_EQ(classifyLine("volume: x"), LineKind::Entry);
  EXPECT_EQ(classifyLine("DIRECTORY: x"), LineKind::Entry);
  EXPECT_EQ(classifyLine("<dir> x"), LineKind::Entry);
}

TEST(ListingLine, FirstRuleThatFitsWins) {
  EXPECT_EQ(classifyLine("<DIR> Directory: Volume:"), LineKind::Volume);
  EXPECT_EQ(classifyLine("<DIR> Directory: x"), LineKind::Directory);
  EXPECT_EQ(classifyLine("--------------- <DIR>"), LineKind::SubFolder);
}

TEST(ListingLine, VolumeAndFolderLoseTheirMarkAndBlanks) {
  EXPECT_EQ(withoutMark("Volume:    DATA1", "Volume:"), "DATA1");
  EXPECT_EQ(withoutMark("Directory: \\Music\\", "Directory:"), "\\Music\\");
}

TEST(ListingLine, EveryOccurrenceOfTheMarkIsRemoved) {
  EXPECT_EQ(withoutMark(" Volume: a Volume: b Volume:", "Volume:"), "a  b");
  EXPECT_EQ(withoutMark("VolVolume:ume:x", "Volume:"), "Volume:x");
  EXPECT_EQ(withoutMark("Volume:   ", "Volume:"), "");
}

TEST(ListingLine, LineOf69CharactersIsTheEntryTextAsItStands) {
  const std::string line = std::string(66, 'n') + "   ";
  const EntryLine parts = splitEntryLine(line, true);
  EXPECT_EQ(parts.text, line);
  EXPECT_EQ(parts.tail, "");
}

TEST(ListingLine, LineOf70CharactersIsCutAndLeavesATail) {
  const std::string line = std::string(66, 'n') + "  xy";
  const EntryLine parts = splitEntryLine(line, true);
  EXPECT_EQ(parts.text, std::string(66, 'n') + "  x");
  EXPECT_EQ(parts.tail, "xy");
}

TEST(ListingLine, ColumnsOfOtherLinesCountCharacters) {
  std::string line;
  for (int i = 0; i < 68; ++i) line += "\xC3\xA9";
  EXPECT_EQ(splitEntryLine(line, false).tail, "");
  line += "\xE2\x82\xAC\xF0\x9D\x84\x9E";
  const EntryLine parts = splitEntryLine(line, false);
  EXPECT_EQ(parts.text.size(), 68U * 2 + 3);
  EXPECT_EQ(parts.tail, "\xE2\x82\xAC\xF0\x9D\x84\x9E");
}

TEST(ListingLine, SizeFieldIsReadWithAnyGrouping) {
  std::int64_t size = 0;
  EXPECT_TRUE(readAsciiByteCount("    1,234,567", size));
  EXPECT_EQ(size, 1234567);
  EXPECT_TRUE(readAsciiByteCount("1.234.567.890", size));
  EXPECT_EQ(size, 1234567890);
  EXPECT_TRUE(readAsciiByteCount("  12 345'678 ", size));
  EXPECT_EQ(size, 12345678);
  EXPECT_TRUE(readAsciiByteCount("           -1", size));
  EXPECT_EQ(size, -1);
  EXPECT_TRUE(readAsciiByteCount("10000000000", size));
  EXPECT_EQ(size, 10000000000);
}

TEST(ListingLine, SizeFieldWithoutANumberIsRefused) {
  std::int64_t size = 7;
  for (const char* field : {"", "    ", "-", "n/a", ",123", "123,", "12x", "--1", "99999999999999999999"}) {
    EXPECT_FALSE(readAsciiByteCount(field, size)) << field;
  }
  EXPECT_EQ(size, 7);
}

}  // namespace
}  // namespace quorvin
