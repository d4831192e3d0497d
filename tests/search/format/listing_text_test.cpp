// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/format/listing_text.h"

#include "faults/runtime_fault.h"
#include "search/format/line_scan.h"
#include "support/fault_number.h"
#include "support/scan_of.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvin {
namespace {

std::string wholeText(const ListingText& text) {
  return {text.begin(), text.size()};
}

TEST(ListingText, ChunksComeOneByOne) {
  test::MemoryListing source("abcdefg");
  ListingText text(source, 3);
  ASSERT_TRUE(text.readChunk());
  EXPECT_EQ(wholeText(text), "abc");
  text.consume(3);
  ASSERT_TRUE(text.readChunk());
  EXPECT_EQ(wholeText(text), "def");
  text.consume(3);
  ASSERT_TRUE(text.readChunk());
  EXPECT_EQ(wholeText(text), "g");
  EXPECT_EQ(text.lastChunkSize(), 1U);
  text.consume(1);
  EXPECT_FALSE(text.readChunk());
  EXPECT_EQ(text.size(), 0U);
  EXPECT_EQ(text.lastChunkSize(), 0U);
}

TEST(ListingText, WhatIsNotConsumedStandsBeforeTheNextChunk) {
  test::MemoryListing source("abcdefgh");
  ListingText text(source, 3);
  text.readChunk();
  text.consume(1);
  text.readChunk();
  EXPECT_EQ(wholeText(text), "bcdef");
  text.readChunk();
  EXPECT_EQ(wholeText(text), "bcdefgh");
  EXPECT_EQ(text.lastChunkSize(), 2U);
  EXPECT_FALSE(text.readChunk());
  EXPECT_EQ(wholeText(text), "bcdefgh");
}

TEST(ListingText, EmptyListingHasNoChunk) {
  test::MemoryListing source("");
  ListingText text(source, 10);
  EXPECT_FALSE(text.readChunk());
  EXPECT_EQ(text.size(), 0U);
  EXPECT_EQ(text.lastLine(), "");
}

TEST(ListingText, ConsumedBytesStayUntilTheNextChunk) {
  test::MemoryListing source("line\nrest");
  ListingText text(source, 9);
  text.readChunk();
  const std::string_view line(text.begin(), 5);
  text.consume(5);
  EXPECT_EQ(line, "line\n");
  EXPECT_EQ(wholeText(text), "rest");
}

TEST(ListingText, PaddingCanBeReadOnBothSides) {
  const std::string listing(1000, 'x');
  for (const std::size_t chunk : {1U, 7U, 64U, 999U, 1000U, 5000U}) {
    test::MemoryListing source(QByteArray::fromStdString(listing));
    ListingText text(source, chunk);
    while (text.readChunk()) {
      // A sanitizer notices if it cannot.
      for (std::size_t i = 1; i <= kLinePadding; ++i) {
        const volatile char before = *(text.begin() - i);
        const volatile char behind = *(text.begin() + text.size() + i - 1);
        static_cast<void>(before);
        static_cast<void>(behind);
      }
      if (text.size() > 100) text.consume(60);
    }
  }
}

TEST(ListingText, LastLineLosesTheFirstHalfOfALineEnd) {
  const auto lastLineOf = [](const char* bytes) {
    test::MemoryListing source(bytes);
    ListingText text(source, 100);
    text.readChunk();
    return std::string(text.lastLine());
  };
  EXPECT_EQ(lastLineOf("song"), "song");
  EXPECT_EQ(lastLineOf("song\r"), "song");
  EXPECT_EQ(lastLineOf("song\r\r"), "song\r");
  EXPECT_EQ(lastLineOf("\r"), "");
}

TEST(ListingText, FaultsOfTheSourceComeThrough) {
  const ListingReader failing = [](std::span<char>) -> std::size_t {
    throw RuntimeFault(FaultNumber::Overflow);
  };
  ListingText text(failing, 10);
  EXPECT_FAULT(text.readChunk(), 6);
}

}  // namespace
}  // namespace quorvin
