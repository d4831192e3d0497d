#include "search/segment/text_table.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace quorvin {
namespace {

TEST(TrigramFilter, WordThatIsThereIsNeverDenied) {
  std::mt19937 random(12);
  for (int round = 0; round < 300; ++round) {
    std::string text(random() % 400, '\0');
    for (char& c : text) c = static_cast<char>(random() % 256);
    TrigramSet set{};
    addTrigrams(set, text);
    for (std::size_t at = 0; at < text.size(); ++at) {
      const std::size_t length = 1 + random() % 90;
      ASSERT_TRUE(TrigramProbe(std::string_view(text).substr(at, length)).mayBeIn(set))
          << length << " bytes at " << at << " of " << text.size();
    }
  }
}

TEST(TrigramFilter, ATextAddsWhatItsTrigramsAddOneByOne) {
  std::mt19937 random(13);
  for (std::size_t size = 0; size < 200; ++size) {
    std::string text(size, '\0');
    for (char& c : text) c = static_cast<char>(random() % 256);
    TrigramSet whole{};
    TrigramSet single{};
    addTrigrams(whole, "kept");
    addTrigrams(single, "kept");
    addTrigrams(whole, text);
    for (std::size_t at = 0; at + 3 <= size; ++at) addTrigrams(single, text.substr(at, 3));
    ASSERT_EQ(whole, single) << size;
  }
}

// Kept files hold the sets, so the bits are part of their format.
TEST(TrigramFilter, TheBitOfATrigramIsThatOfTheFormat) {
  TrigramSet set{};
  addTrigrams(set, "abc");
  std::size_t bit = 0;
  while ((set[bit / 64] >> (bit % 64) & 1U) == 0) ++bit;
  EXPECT_EQ(bit, (0x636261U * 0x9E3779B1U) >> 19);
}

TEST(TrigramFilter, WordsOfEveryAddedTextArePossible) {
  TrigramSet set{};
  addTrigrams(set, "live at wembley");
  addTrigrams(set, "studio");
  EXPECT_TRUE(TrigramProbe("wembley").mayBeIn(set));
  EXPECT_TRUE(TrigramProbe("studio").mayBeIn(set));
}

TEST(TrigramFilter, WordThatIsNotThereIsMostlyDenied) {
  TrigramSet set{};
  addTrigrams(set, "the quick brown fox jumps over the lazy dog");
  int denied = 0;
  std::mt19937 random(2);
  for (int round = 0; round < 1000; ++round) {
    std::string word(5, '\0');
    for (char& c : word) c = static_cast<char>('0' + random() % 10);
    if (!TrigramProbe(word).mayBeIn(set)) ++denied;
  }
  EXPECT_GT(denied, 990);
}

TEST(TrigramFilter, EveryByteOfATrigramCounts) {
  TrigramSet set{};
  addTrigrams(set, "abc");
  EXPECT_FALSE(TrigramProbe("xbc").mayBeIn(set));
  EXPECT_FALSE(TrigramProbe("axc").mayBeIn(set));
  EXPECT_FALSE(TrigramProbe("abx").mayBeIn(set));
}

TEST(TrigramFilter, WordsOfOneOrTwoBytesAreAlwaysPossible) {
  const TrigramSet empty{};
  EXPECT_TRUE(TrigramProbe("a").mayBeIn(empty));
  EXPECT_TRUE(TrigramProbe("ab").mayBeIn(empty));
  EXPECT_FALSE(TrigramProbe("abc").mayBeIn(empty));
}

TEST(TrigramFilter, TextsShorterThanThreeBytesAddNothing) {
  TrigramSet set{};
  addTrigrams(set, "");
  addTrigrams(set, "a");
  addTrigrams(set, "ab");
  EXPECT_EQ(set, TrigramSet{});
}

}  // namespace
}  // namespace quorvin
