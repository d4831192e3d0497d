// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/wanted_list.h"

#include "support/qt_printing.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace quorvin {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What a list wants, each as "name size" with a size, and "name" where every file of that name is meant.
std::vector<std::string> wantedIn(std::string text) {
  WantedFiles wanted;
  readWantedList(
      [&text](std::span<char> buffer) {
        const std::size_t size = std::min(buffer.size(), text.size());
        std::copy_n(text.begin(), size, buffer.begin());
        text.erase(0, size);
        return size;
      },
      wanted);
  wanted.complete();
  std::vector<std::string> texts;
  for (const WantedFile& file : wanted.files()) {
    texts.push_back(std::string(file.name) + (file.size < 0 ? "" : ' ' + std::to_string(file.size)));
  }
  return texts;
}

TEST(WantedList, ALineIsANameOfWhichTheLastPartCounts) {
  EXPECT_THAT(wantedIn("a.txt\n/home/ann/b c.txt\n\\Films\\d.avi\n  e\n"),
              ElementsAre("a.txt", "b c.txt", "d.avi", "  e"));
}

TEST(WantedList, EmptyLinesAndFoldersNameNothing) {
  EXPECT_THAT(wantedIn("\n   \n/home/ann/\n"), IsEmpty());
  EXPECT_THAT(wantedIn(""), IsEmpty());
}

TEST(WantedList, AnObjectHasNameAndSize) {
  EXPECT_THAT(wantedIn("{\"name\":\"a/b.txt\",\"size\":9007199254740993,\"folder\":\"\\\\x\\\\\"}\n"),
              ElementsAre("a/b.txt 9007199254740993"));
}

TEST(WantedList, AnObjectWithoutASizeOfItsOwnMeansEveryFileOfTheName) {
  EXPECT_THAT(wantedIn("{\"name\":\"a\"}\n{\"name\":\"b\",\"size\":5,\"inherited\":true}\n"
                       "{\"name\":\"c\",\"size\":-1}\n"),
              ElementsAre("a", "b", "c"));
}

TEST(WantedList, WhatIsNoObjectWithANameIsAName) {
  EXPECT_THAT(wantedIn("{curly}.txt\n{\"size\":5}\n{\"name\":7}\n"),
              ElementsAre("{curly}.txt", "{\"size\":5}", "{\"name\":7}"));
}

TEST(WantedList, LinesMayEndWithNul) {
  EXPECT_THAT(wantedIn(std::string("a\nb\0c\0", 6)), ElementsAre("a\nb", "c"));
}

TEST(WantedList, TheSameFileIsWantedOnce) {
  EXPECT_THAT(wantedIn("a\nA\n{\"name\":\"A\",\"size\":1}\n{\"name\":\"a\",\"size\":1}\n"),
              ElementsAre("a 1"));
}

}  // namespace
}  // namespace quorvin
