// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_text.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

TEST(ListText, OnlyExactSizesAreSizes) {
  EXPECT_EQ(exactSize("0"), 0);
  EXPECT_EQ(exactSize("1234567"), 1'234'567);
  EXPECT_EQ(exactSize("1,234,567"), 1'234'567);
  for (const char* rounded :
       {"1.5K", "12M", "1,23", "1234,567", ",123", "", "8,", "-1", "1234567890123456789"}) {
    EXPECT_EQ(exactSize(rounded), std::nullopt) << rounded;
  }
}

TEST(ListText, WhatLooksLikeASize) {
  for (const char* size : {"0", "1,234", "1.5K", "12MiB", "8,"}) EXPECT_TRUE(looksLikeSize(size)) << size;
  for (const char* other : {"", "root", "2004-01-15", "12x"}) EXPECT_FALSE(looksLikeSize(other)) << other;
}

TEST(ListText, EscapesAreReplacedByWhatTheyStandFor) {
  EXPECT_EQ(withoutEscapes("new\\nline\\ \\\"\\\\\\344"), "new\nline \"\\\xE4");
  EXPECT_EQ(withoutEscapes("plain"), "plain");
  EXPECT_EQ(withoutEscapes("\\0011"), std::string("\x01") + "1");
  for (const char* wrong : {"end\\", "\\x41", "\\8", "\\777"})
    EXPECT_EQ(withoutEscapes(wrong), std::nullopt) << wrong;
}

TEST(ListText, TextInQuotesEndsAtTheQuoteThatIsNotEscaped) {
  std::string_view text = R"("a \"b\"" -> "c")";
  EXPECT_EQ(takeQuoted(text), "a \"b\"");
  EXPECT_EQ(text, " -> \"c\"");
  for (std::string_view wrong : {"a", "\"a", "\"a\\\"", "\"\\q\""})
    EXPECT_EQ(takeQuoted(wrong), std::nullopt);
}

TEST(ListText, WhatIsNotThereIsNotTaken) {
  std::string_view text = "  12 words";
  EXPECT_EQ(takeNumber(text), std::nullopt);
  EXPECT_EQ(takeBlanks(text), 2U);
  EXPECT_EQ(takeNumber(text), 12);
  EXPECT_FALSE(takeText(text, "words"));
  EXPECT_EQ(takeWord(text), std::nullopt);
  EXPECT_EQ(text, " words");
}

}  // namespace
}  // namespace quorvin
