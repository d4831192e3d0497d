// SPDX-License-Identifier: GPL-2.0-or-later

// Where words stand, and which texts hold them, held against plain loops.
#include "search/segment/text_scan.h"
#include "support/instruction_sets.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {
namespace {

using Bits = std::vector<std::uint64_t>;

constexpr std::uint64_t kOldBits = 0xDEADBEEFDEADBEEF;
constexpr char kEnd = '|';

/// `size` bytes out of two letters and ends, and behind them as many readable bytes as the scans ask for.
std::string someText(std::size_t size, unsigned seed, unsigned lettersToAnEnd) {
  std::mt19937 random(seed);
  std::string text(size + kScanPadding, 'a');
  for (char& c : text) {
    if (random() % 4 == 0) c = 'b';
    if (random() % lettersToAnEnd == 0) c = kEnd;
  }
  return text;
}

void setBit(Bits& bits, std::size_t bit) {
  bits[bit / 64] |= std::uint64_t{1} << (bit % 64);
}

template <typename Holds>
Bits bitsWhere(std::size_t size, Holds holds) {
  Bits bits((size + 63) / 64);
  for (std::size_t i = 0; i < size; ++i) {
    if (holds(i)) setBit(bits, i);
  }
  return bits;
}

Bits endsOf(std::string_view text) {
  return bitsWhere(text.size(), [&](std::size_t i) { return text[i] == kEnd; });
}

bool anySet(const Bits& bits) {
  for (const std::uint64_t word : bits) {
    if (word != 0) return true;
  }
  return false;
}

class WordScan : public test::InstructionSetTest {};

TEST_P(WordScan, OnlyTruePlacesAreKept) {
  for (std::size_t length = 1; length <= 20; ++length) {
    const std::string word = std::string("abaaaabaaaaaaaaaaaba").substr(0, length);
    std::string all = someText(500, static_cast<unsigned>(length), 30);
    all.replace(130, length, word);
    all.replace(480, length, word);
    all[499] = kEnd;
    const std::string_view text(all.data(), 500);
    const Bits expected = bitsWhere(500, [&](std::size_t i) { return text.substr(i, length) == word; });
    Bits places(8, ~std::uint64_t{0});
    places[7] = (std::uint64_t{1} << (500 - 7 * 64)) - 1;
    ASSERT_TRUE(keepPlacesOf(word, text, places.data())) << word;
    ASSERT_EQ(places, expected) << word;
    ASSERT_FALSE(keepPlacesOf(word + "c", text, places.data())) << word;
    ASSERT_FALSE(anySet(places)) << word;
  }
}

/// The texts that hold a place, one after another.
Bits plainTextsWithPlaces(const Bits& places, const Bits& ends) {
  Bits texts(places.size() + 1);
  std::size_t text = 0;
  for (std::size_t i = 0; i < places.size() * 64; ++i) {
    if ((places[i / 64] >> (i % 64) & 1U) != 0) setBit(texts, text);
    if ((ends[i / 64] >> (i % 64) & 1U) != 0) ++text;
  }
  texts.resize((text + 63) / 64);
  return texts;
}

TEST_P(WordScan, TextsAreThoseThatHoldAPlace) {
  for (unsigned seed = 0; seed < 400; ++seed) {
    const unsigned lettersToAnEnd = std::vector<unsigned>{1, 2, 5, 21, 70, 300}[seed % 6];
    const std::size_t size = 64 * (1 + seed % 40);
    std::string all = someText(size, seed, lettersToAnEnd);
    all[size - 1] = kEnd;
    const std::string_view text(all.data(), size);
    const Bits places = bitsWhere(size, [&](std::size_t i) { return text[i] == 'b'; });
    const Bits expected = plainTextsWithPlaces(places, endsOf(text));
    Bits texts(expected.size() + 2, kOldBits);
    textsWithPlaces(places, endsOf(text).data(), texts.data());
    ASSERT_EQ(texts.back(), kOldBits) << "written too far, seed " << seed;
    texts.resize(expected.size());
    ASSERT_EQ(texts, expected) << "seed " << seed;
  }
}

TEST_P(WordScan, EverySizeAndLengthAgreesWithAPlainLoop) {
  for (std::size_t size = 1; size <= 200; ++size) {
    std::string all = someText(size, static_cast<unsigned>(size), 9);
    all[size - 1] = kEnd;
    const std::string_view text(all.data(), size);
    for (std::size_t length = 1; length <= kLongestScannedWord; ++length) {
      const std::string word = std::string("aaaaabab").substr(kLongestScannedWord - length);
      const Bits places = bitsWhere(size, [&](std::size_t i) { return text.substr(i, length) == word; });
      const Bits expected = plainTextsWithPlaces(places, endsOf(text));
      Bits texts(expected.size() + 2, kOldBits);
      ASSERT_EQ(scanTexts(text, word, kEnd, texts.data()), anySet(expected)) << word << ", size " << size;
      ASSERT_EQ(texts.back(), kOldBits) << "written too far, size " << size;
      texts.resize(expected.size());
      ASSERT_EQ(texts, expected) << word << ", size " << size;
    }
  }
}

TEST_P(WordScan, ATextOverManyBlocksIsOneText) {
  // Two texts: one over five blocks with places in its second and fourth, and one without.
  const Bits ends = {0, 0, 0, 0, 1, std::uint64_t{1} << 63};
  const Bits places = {0, 2, 0, 1, 0, 0};
  Bits texts(2, kOldBits);
  textsWithPlaces(places, ends.data(), texts.data());
  EXPECT_EQ(texts[0], 1U);
}

INSTANTIATE_TEST_SUITE_P(On, WordScan, test::everyInstructionSet(), test::instructionSetName);

}  // namespace
}  // namespace quorvin
