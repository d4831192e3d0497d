// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_lines.h"

#include <gtest/gtest.h>

#include <cstring>

namespace quorvin {
namespace {

using Lines = std::vector<std::string>;

ListLines::Read bytesOf(std::string bytes) {
  return [bytes, at = std::size_t{0}](std::span<char> buffer) mutable {
    const std::size_t count = std::min(buffer.size(), bytes.size() - at);
    std::memcpy(buffer.data(), bytes.data() + at, count);
    at += count;
    return count;
  };
}

Lines linesOf(const std::string& bytes, std::string_view encoding = "utf-8") {
  ListLines lines(bytesOf(bytes), encoding);
  Lines found;
  std::string_view line;
  while (lines.next(line)) found.emplace_back(line);
  return found;
}

TEST(ListLines, TheFirstLineEndDecidesWhatEndsLines) {
  EXPECT_EQ(linesOf("a\nb\r\n\nlast"), (Lines{"a", "b\r", "", "last"}));
  EXPECT_EQ(linesOf("a\r\nb\nlast\r\n"), (Lines{"a", "b", "last"}));
  EXPECT_EQ(linesOf(std::string("a\nb\0c\0", 6)), (Lines{"a\nb", "c"}));
  EXPECT_EQ(linesOf(""), Lines{});
}

TEST(ListLines, EncodingsBecomeUtf8) {
  EXPECT_EQ(linesOf("\xEF\xBB\xBFmarked\n"), Lines{"marked"});
  EXPECT_EQ(linesOf(std::string("\xFF\xFE\xFC\0\r\0\n\0b\0", 10)), (Lines{"\u00FC", "b"}));
  EXPECT_EQ(linesOf(std::string("\xFE\xFF\0\xFC\0\n", 6)), Lines{"\u00FC"});
  EXPECT_EQ(linesOf("Gr\x81\xE1 e\n", "cp850"), Lines{"Gr\u00FC\u00DF e"});
  EXPECT_EQ(linesOf("\x9C\n", "cp437"), Lines{"\u00A3"});
  EXPECT_EQ(linesOf("\xA5\n", "cp852"), Lines{"\u0105"});
  EXPECT_EQ(linesOf("\x80 \xFC\n", "windows-1252"), Lines{"\u20AC \u00FC"});
  EXPECT_EQ(linesOf("bytes \xFC\n"), Lines{"bytes \xFC"});
  EXPECT_EQ(linesOf("\x83\x41\n\x83", "cp932"), (Lines{"\u30A2", "\x83"}));
  EXPECT_TRUE(isListEncoding("cp850"));
  EXPECT_FALSE(isListEncoding("cp1"));
}

TEST(ListLines, TheSystemKnowsAllEncodings) {
  for (const std::string_view encoding : listEncodings())
    EXPECT_EQ(linesOf("a\n", encoding), Lines{"a"}) << encoding;
}

TEST(ListLines, LinesGoOnFromOneChunkToTheNext) {
  std::string bytes;
  Lines expected;
  for (int i = 0; i < 50'000; ++i) {
    expected.push_back("line number " + std::to_string(i));
    bytes += expected.back() + "\r\n";
  }
  EXPECT_EQ(linesOf(bytes), expected);
}

TEST(ListLines, ALineWithoutAnEndComesInPieces) {
  const Lines lines = linesOf(std::string(kLongestListLine * 2 + 5, 'x') + "\ny");
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0].size(), kLongestListLine);
  EXPECT_EQ(lines[2], "xxxxx");
  EXPECT_EQ(lines[3], "y");
}

TEST(ListLines, TheFirstLinesAreShownAndStillRead) {
  ListLines lines(bytesOf("a\r\nb\r\nc"), "utf-8");
  EXPECT_EQ(lines.firstLines(2), (std::vector<std::string_view>{"a", "b"}));
  EXPECT_EQ(lines.firstLines(9), (std::vector<std::string_view>{"a", "b", "c"}));
  std::string_view line;
  ASSERT_TRUE(lines.next(line));
  EXPECT_EQ(line, "a");
}

}  // namespace
}  // namespace quorvin
