// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/listed_name.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace quorvin {
namespace {

constexpr NameTraits kNothing = 0;

TEST(ListedName, PlainNamesHoldNothingSpecial) {
  for (const char* name : {"a", "report 2004.txt", "Grüße aus Łódź.doc", "写真", "\xEF\xBB\xBFmark", "~$#'\"",
                           "tab\there", "\x1B[31mred"}) {
    EXPECT_EQ(traitsOfName(name), kNothing) << name;
    EXPECT_EQ(listedText(name), name);
  }
}

TEST(ListedName, WhatALineCannotHoldBecomesAQuestionMark) {
  EXPECT_EQ(listedText("a\nb\rc\\d"), "a?b?c?d");
  EXPECT_EQ(listedText("a\0b"s), "a?b");
  for (const std::string& name : {"a\nb"s, "a\rb"s, "a\\b"s, "a?b"s, "a\0b"s}) {
    EXPECT_EQ(traitsOfName(name), kHoldsQuestion) << name;
  }
}

TEST(ListedName, EachByteThatIsNoTextBecomesAQuestionMark) {
  // A lone byte of Latin-1, a sequence that is cut, a surrogate, an overlong slash, a byte beyond UTF-8.
  EXPECT_EQ(listedText("caf\xE9.txt"), "caf?.txt");
  EXPECT_EQ(listedText("\xE4\xB8"), "??");
  EXPECT_EQ(listedText("\xED\xA0\x80"), "???");
  EXPECT_EQ(listedText("\xC0\xAF"), "??");
  EXPECT_EQ(listedText("\xFFä"), "?ä");
  // A byte that goes on behind a whole character of four.
  EXPECT_EQ(listedText("😀\x80"), "😀?");
  EXPECT_EQ(traitsOfName("caf\xE9.txt"), kHoldsQuestion);
}

TEST(ListedName, LinesKeepBackslashes) {
  EXPECT_EQ(lineText("\\a\\b\\"), "\\a\\b\\");
  EXPECT_EQ(lineText("\\a\r\nb\\\xFF"), "\\a??b\\?");
}

TEST(ListedName, CutsAtCharactersNotBytes) {
  EXPECT_EQ(cutToColumns("abc", 3), "abc");
  EXPECT_EQ(cutToColumns("abcd", 3), "abc");
  EXPECT_EQ(cutToColumns("äöüß", 3), "äöü");
  EXPECT_EQ(cutToColumns("äöü", 3), "äöü");
  EXPECT_EQ(cutToColumns("😀😀", 1), "😀");
  EXPECT_EQ(cutToColumns("", 3), "");
  EXPECT_EQ(characterCount("a写😀"), 3U);
}

TEST(ListedName, MarksAreFoundWhereverTheyStand) {
  EXPECT_EQ(markInEntry("notes on Volume: 3"), "Volume:");
  EXPECT_EQ(markInEntry("Directory::Scratch.3pm"), "Directory:");
  EXPECT_EQ(markInEntry("a<DIR>b"), "<DIR>");
  EXPECT_EQ(markInEntry("---------------"), "---------------");
  EXPECT_EQ(markInEntry("volume: <dir> --------------"), "");
  // The lines of a folder are told by their own marks already.
  EXPECT_EQ(markInFolder("a<DIR>b---------------"), "");
  EXPECT_EQ(markInFolder("x Volume:"), "Volume:");
  EXPECT_EQ(markInFolder("x Directory:"), "Directory:");
}

TEST(ListedName, EveryNameWithAMarkIsSuspected) {
  for (const char* name : {"Volume:", "Directory:", "<DIR>", "---------------"}) {
    EXPECT_EQ(traitsOfName(name), kMayHoldMark) << name;
  }
}

}  // namespace
}  // namespace quorvin
