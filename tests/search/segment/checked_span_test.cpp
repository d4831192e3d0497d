// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/checked_span.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace quorvin {
namespace {

constexpr std::size_t kBlock = ByteCheck::kBlockSize;

/// Numbers over three blocks and a bit, as a kept file would hold them.
class CheckedSpanTest : public testing::Test {
 protected:
  CheckedSpanTest() { std::iota(numbers_.begin(), numbers_.end(), 0U); }

  std::span<const std::byte> bytes() const { return std::as_bytes(std::span(numbers_)); }
  void damage(std::size_t byte) { numbers_[byte / 4] ^= 0x10000U << (byte % 4); }

  static constexpr std::size_t kCount = 3 * kBlock / 4 + 5;
  std::vector<std::uint32_t> numbers_ = std::vector<std::uint32_t>(kCount);
  std::vector<std::uint64_t> sums_ = [this] {
    std::iota(numbers_.begin(), numbers_.end(), 0U);
    return checksumsOf(bytes());
  }();
  ByteCheck check_{bytes(), sums_};
  CheckedSpan<std::uint32_t> span_{bytes(), 0, kCount, check_};
};

TEST_F(CheckedSpanTest, WholeFileGivesAllElements) {
  EXPECT_EQ(span_.size(), kCount);
  EXPECT_EQ(span_.sizeInBytes(), kCount * 4);
  EXPECT_EQ(span_[7], 7U);
  EXPECT_EQ(span_.part(kBlock / 4 - 1, 3)[2], kBlock / 4 + 1);
  EXPECT_EQ(span_.all().back(), kCount - 1);
  EXPECT_FALSE(check_.foundDamage());
}

TEST_F(CheckedSpanTest, DamageIsFoundWhereItIsReadAndNowhereElse) {
  damage(kBlock + 8);
  EXPECT_EQ(span_[0], 0U);
  EXPECT_EQ(span_.part(0, kBlock / 4).size(), kBlock / 4);
  EXPECT_EQ(span_[2 * kBlock / 4], 2 * kBlock / 4);
  EXPECT_FALSE(check_.foundDamage());
  EXPECT_THROW(span_[kBlock / 4], DamagedSegment);
  EXPECT_TRUE(check_.foundDamage());
  EXPECT_THROW(span_.part(kBlock / 4 - 1, 2), DamagedSegment);
  EXPECT_THROW(span_.all(), DamagedSegment);
}

TEST_F(CheckedSpanTest, AStretchMayEndOneByteIntoABlock) {
  const auto stretch = bytes().first(kBlock + 1);
  const std::vector<std::uint64_t> sums = checksumsOf(stretch);
  ASSERT_EQ(sums.size(), 2U);
  const ByteCheck check(stretch, sums);
  const CheckedSpan<std::byte> last(stretch, kBlock, 1, check);
  EXPECT_EQ(last[0], bytes()[kBlock]);
  EXPECT_FALSE(check.foundDamage());
}

TEST_F(CheckedSpanTest, AStretchMayEndWithABlock) {
  const auto stretch = bytes().first(2 * kBlock);
  const std::vector<std::uint64_t> sums = checksumsOf(stretch);
  ASSERT_EQ(sums.size(), 2U);
  const ByteCheck check(stretch, sums);
  const CheckedSpan<std::byte> span(stretch, 0, 2 * kBlock, check);
  EXPECT_EQ(span.all().size(), 2 * kBlock);
  EXPECT_FALSE(check.foundDamage());
}

TEST_F(CheckedSpanTest, ABlockBehindTheStretchIsDamageWhateverItsBytes) {
  // Behind the sums of the first two blocks is that of the third, but it is not theirs.
  const ByteCheck check(bytes().first(2 * kBlock), std::span(sums_).first(2));
  check.requireBlock(1, bytes().subspan(kBlock, kBlock));
  EXPECT_FALSE(check.foundDamage());
  EXPECT_THROW(check.requireBlock(2, bytes().subspan(2 * kBlock, kBlock)), DamagedSegment);
  EXPECT_TRUE(check.foundDamage());
}

TEST_F(CheckedSpanTest, LastBlockMayBeShort) {
  damage(3 * kBlock + 4);
  EXPECT_EQ(span_[3 * kBlock / 4 - 1], 3 * kBlock / 4 - 1);
  EXPECT_THROW(span_[kCount - 1], DamagedSegment);
}

TEST_F(CheckedSpanTest, ArrayInTheMiddleOfTheStretchChecksItsOwnBlocks) {
  const CheckedSpan<std::uint32_t> inside(bytes(), kBlock - 8, 4, check_);
  EXPECT_EQ(inside.offset(), kBlock - 8);
  EXPECT_EQ(inside[3], kBlock / 4 + 1);
  damage(2 * kBlock);
  EXPECT_EQ(inside.all().size(), 4U);
  const CheckedSpan<std::uint32_t> behind(bytes(), 2 * kBlock - 4, 2, check_);
  EXPECT_EQ(behind[0], 2 * kBlock / 4 - 1);
  EXPECT_THROW(behind[1], DamagedSegment);
}

TEST_F(CheckedSpanTest, MoreThanThereIsIsDamage) {
  EXPECT_THROW(span_[kCount], DamagedSegment);
  EXPECT_THROW(span_.part(kCount, 1), DamagedSegment);
  EXPECT_THROW(span_.part(1, SIZE_MAX), DamagedSegment);
  EXPECT_TRUE(span_.part(kCount, 0).empty());
}

/// The same numbers in a file, from which blocks are fetched into memory that holds nothing at first.
class FetchedSpanTest : public CheckedSpanTest {
 protected:
  std::vector<std::uint32_t> memory_ = std::vector<std::uint32_t>(kCount);
  /// Offset and size of each fetch.
  std::vector<std::pair<std::size_t, std::size_t>> fetches_;
  ByteCheck fetching_{std::as_bytes(std::span(memory_)), sums_, [this](std::size_t offset, std::size_t size) {
                        fetches_.emplace_back(offset, size);
                        if (isGone_) throw RuntimeFault(FaultNumber::InputPastEnd);
                        std::ranges::copy(bytes().subspan(offset, size),
                                          std::as_writable_bytes(std::span(memory_)).begin() +
                                              static_cast<std::ptrdiff_t>(offset));
                      }};
  CheckedSpan<std::uint32_t> fetched_{std::as_bytes(std::span(memory_)), 0, kCount, fetching_};
  bool isGone_ = false;
};

TEST_F(FetchedSpanTest, BlocksAreFetchedWhenTheyAreFirstAskedFor) {
  EXPECT_EQ(fetching_.fetchedSize(), 0U);
  EXPECT_EQ(fetched_[kBlock / 4], kBlock / 4);
  EXPECT_EQ(fetched_[kBlock / 4 + 1], kBlock / 4 + 1);
  EXPECT_EQ(fetches_, (std::vector<std::pair<std::size_t, std::size_t>>{{kBlock, kBlock}}));
  EXPECT_EQ(fetching_.fetchedSize(), kBlock);
  EXPECT_EQ(fetched_.all().back(), kCount - 1);
  EXPECT_EQ(fetches_, (std::vector<std::pair<std::size_t, std::size_t>>{
                          {kBlock, kBlock}, {0, kBlock}, {2 * kBlock, kBlock + 20}}));
  EXPECT_EQ(fetching_.fetchedSize(), 3 * kBlock + 20);
}

TEST_F(FetchedSpanTest, WhatWasFetchedStaysWhateverBecomesOfTheFile) {
  EXPECT_EQ(fetched_[3], 3U);
  damage(12);
  isGone_ = true;
  EXPECT_EQ(fetched_[3], 3U);
  EXPECT_FALSE(fetching_.foundDamage());
}

TEST_F(FetchedSpanTest, WhatCannotBeFetchedIsDamage) {
  isGone_ = true;
  EXPECT_THROW(fetched_[3], DamagedSegment);
  EXPECT_TRUE(fetching_.foundDamage());
}

TEST_F(FetchedSpanTest, DamageInAFetchedBlockIsFound) {
  damage(12);
  EXPECT_THROW(fetched_[3], DamagedSegment);
  EXPECT_TRUE(fetching_.foundDamage());
}

TEST_F(FetchedSpanTest, WhatIsForgottenIsFetchedAgain) {
  EXPECT_EQ(fetched_[3], 3U);
  fetching_.forget();
  EXPECT_EQ(fetching_.fetchedSize(), 0U);
  std::ranges::fill(memory_, 0U);
  EXPECT_EQ(fetched_[3], 3U);
  EXPECT_EQ(fetches_.size(), 2U);
}

TEST_F(CheckedSpanTest, SumsOfAnotherSizeAreDamage) {
  sums_.pop_back();
  EXPECT_THROW(ByteCheck(bytes(), sums_), DamagedSegment);
}

TEST(CheckedSpan, ArraysInMemoryAreGivenAsTheyAre) {
  const std::vector<int> numbers = {1, 2, 3};
  CheckedSpan<int> span;
  EXPECT_TRUE(span.empty());
  span = numbers;
  EXPECT_EQ(&span[1], &numbers[1]);
  EXPECT_EQ(span.part(1, 2).data(), &numbers[1]);
  const CheckedSpan<char> text = std::string_view("song");
  EXPECT_EQ(textOf(text.part(1, 2)), "on");
}

}  // namespace
}  // namespace quorvin
