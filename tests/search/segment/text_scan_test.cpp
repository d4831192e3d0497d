// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/text_scan.h"

#include "support/instruction_sets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

namespace quorvin {
namespace {

constexpr std::uint64_t kOld = 0xDEADBEEFDEADBEEF;

/// `size` letters out of three, and behind them as many readable bytes as the scan asks for.
std::string someText(std::size_t size, unsigned seed) {
  std::mt19937 random(seed);
  std::string text(size + kScanPadding, '\0');
  for (char& c : text) c = "abc"[random() % 3];
  return text;
}

std::vector<std::uint64_t> plainScan(const char* text, std::size_t size, BytePair pair) {
  std::vector<std::uint64_t> bits((size + 63) / 64);
  for (std::size_t i = 0; i < size; ++i) {
    const bool fits = static_cast<std::uint8_t>(text[i + pair.firstAt]) == pair.first &&
                      static_cast<std::uint8_t>(text[i + pair.secondAt]) == pair.second;
    if (fits) bits[i / 64] |= std::uint64_t{1} << (i % 64);
  }
  return bits;
}

void expectSameScan(const char* text, std::size_t size, BytePair pair) {
  const std::vector<std::uint64_t> expected = plainScan(text, size, pair);
  std::vector<std::uint64_t> bits((size + 63) / 64 + 1, kOld);
  bool any = false;
  for (const std::uint64_t word : expected) any |= word != 0;
  ASSERT_EQ(scanBytePair(text, size, pair, bits.data()), any);
  ASSERT_EQ(bits.back(), kOld) << "written behind the last word of bits";
  bits.pop_back();
  ASSERT_EQ(bits, expected);
}

class BytePairScan : public test::InstructionSetTest {};

TEST_P(BytePairScan, EverySizeAndAlignmentAgreesWithAPlainLoop) {
  for (std::size_t size = 0; size <= 200; ++size) {
    const std::string text = someText(size + 64, static_cast<unsigned>(size));
    for (std::size_t shift = 0; shift < 64; shift += size % 8 == 0 ? std::size_t{1} : std::size_t{9}) {
      expectSameScan(text.data() + shift, size, {'a', 'b', 0, 1});
      ASSERT_FALSE(HasFatalFailure()) << "size " << size << ", shift " << shift;
    }
  }
}

TEST_P(BytePairScan, BytesMayStandAtAnyTwoPlacesOfTheWord) {
  const std::string text = someText(150, 4);
  for (std::uint8_t first = 0; first < kFarthestPairByte; ++first) {
    for (std::uint8_t second = 0; second < kFarthestPairByte; ++second) {
      expectSameScan(text.data(), 150, {'c', 'a', first, second});
      ASSERT_FALSE(HasFatalFailure()) << "places " << int{first} << " and " << int{second};
    }
  }
}

TEST_P(BytePairScan, EveryByteValueIsTold) {
  std::string text(256 + kScanPadding, '\0');
  for (std::size_t i = 0; i < 256; ++i) text[i] = static_cast<char>(i);
  for (unsigned value = 0; value < 256; ++value) {
    const auto byte = static_cast<std::uint8_t>(value);
    std::array<std::uint64_t, 4> bits{};
    ASSERT_TRUE(scanBytePair(text.data(), 256, {byte, byte, 0, 0}, bits.data()));
    std::array<std::uint64_t, 4> expected{};
    expected[value / 64] = std::uint64_t{1} << (value % 64);
    ASSERT_EQ(bits, expected) << "byte " << value;
  }
}

TEST_P(BytePairScan, WhatStandsBehindTheTextIsNoMatchOfIt) {
  for (std::size_t size = 0; size <= 200; ++size) {
    std::string text(size, 'x');
    text.append(kScanPadding, 'a');
    std::vector<std::uint64_t> bits((size + 63) / 64, kOld);
    ASSERT_FALSE(scanBytePair(text.data(), size, {'a', 'a', 0, 1}, bits.data())) << "size " << size;
    ASSERT_EQ(bits, std::vector<std::uint64_t>(bits.size())) << "size " << size;
  }
}

INSTANTIATE_TEST_SUITE_P(On, BytePairScan, test::everyInstructionSet(), test::instructionSetName);

TEST(InstructionSets, TheBaselineCanAlwaysBeRun) {
  EXPECT_EQ(test::instructionSets().back(), InstructionSet::Baseline);
}

TEST(InstructionSets, TheBestIsUsedUnlessAnotherIsAskedFor) {
  const InstructionSet best = test::instructionSets().front();
  EXPECT_EQ(usedInstructionSet(), best);
  for (const InstructionSet set : test::instructionSets()) {
    const test::OnlyInstructionSet only(set);
    EXPECT_EQ(usedInstructionSet(), set);
  }
  EXPECT_EQ(usedInstructionSet(), best);
}

int oldest() {
  return 1;
}
int newer() {
  return 2;
}
int newest() {
  return 3;
}

TEST(InstructionSets, TheVersionForTheUsedOneIsCalled) {
  const FunctionVersions<int (*)()> versions = {{newest, nullptr, newer, nullptr, oldest}};
  useInstructionSet(InstructionSet::Avx512);
  EXPECT_EQ(versions.chosen()(), 3);
  useInstructionSet(InstructionSet::Sse4);
  EXPECT_EQ(versions.chosen()(), 2);
  useInstructionSet(std::nullopt);
}

TEST(InstructionSets, WhereAVersionIsMissingTheNextLowerOneIsCalled) {
  const FunctionVersions<int (*)()> versions = {{newest, nullptr, newer, nullptr, oldest}};
  useInstructionSet(InstructionSet::Avx2);
  EXPECT_EQ(versions.chosen()(), 2);
  useInstructionSet(InstructionSet::Ssse3);
  EXPECT_EQ(versions.chosen()(), 1);
  useInstructionSet(std::nullopt);
}

TEST(RarestPair, TakesTheTwoRarestBytes) {
  const BytePair pair = rarestPair("estate9zone");
  EXPECT_EQ(pair.first, '9');
  EXPECT_EQ(pair.firstAt, 6);
  EXPECT_EQ(pair.second, 'z');
  EXPECT_EQ(pair.secondAt, 7);
}

TEST(RarestPair, TheLastByteOfACharacterBeyondAsciiIsRarerThanAnyLetterAndItsFirstByteIsCommon) {
  const BytePair pair = rarestPair("qo\xC3\xA4");
  EXPECT_EQ(pair.first, 0xA4);
  EXPECT_EQ(pair.firstAt, 3);
  EXPECT_EQ(pair.second, 'q');
  EXPECT_EQ(pair.secondAt, 0);
}

TEST(RarestPair, WordOfOneByteIsItsOwnPair) {
  const BytePair pair = rarestPair("e");
  EXPECT_EQ(pair.first, 'e');
  EXPECT_EQ(pair.second, 'e');
  EXPECT_EQ(pair.firstAt, 0);
  EXPECT_EQ(pair.secondAt, 0);
}

TEST(RarestPair, LongWordsAreLookedAtInTheirFirst64Bytes) {
  const BytePair pair = rarestPair(std::string(64, 'e') + "qq");
  EXPECT_EQ(pair.first, 'e');
  EXPECT_EQ(pair.second, 'e');
  EXPECT_NE(pair.firstAt, pair.secondAt);
  EXPECT_LT(pair.firstAt, kFarthestPairByte);
  EXPECT_LT(pair.secondAt, kFarthestPairByte);
}

TEST(RarestPair, BytesStandInTheWordAtTheirPlaces) {
  std::mt19937 random(3);
  for (int round = 0; round < 2000; ++round) {
    std::string word(1 + random() % 80, '\0');
    for (char& c : word) c = static_cast<char>(random() % 255);
    const BytePair pair = rarestPair(word);
    ASSERT_LT(std::max(pair.firstAt, pair.secondAt), std::min(word.size(), kFarthestPairByte));
    ASSERT_EQ(static_cast<std::uint8_t>(word[pair.firstAt]), pair.first);
    ASSERT_EQ(static_cast<std::uint8_t>(word[pair.secondAt]), pair.second);
    if (word.size() > 1) {
      ASSERT_NE(pair.firstAt, pair.secondAt);
    }
  }
}

}  // namespace
}  // namespace quorvin
