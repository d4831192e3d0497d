// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/instruction_set.h"

#include <gtest/gtest.h>

#include <cstring>

namespace quorvin {
namespace {

TEST(BitsOfStoredMask, TheFirstLaneIsTheLowestBit) {
  const std::uint8_t firstLane[8] = {1};
  EXPECT_EQ(bitsOfStoredMask(firstLane), 1U);
  const std::uint8_t lanes[8] = {0x80, 0x01, 0, 0, 0, 0, 0, 0x40};
  EXPECT_EQ(bitsOfStoredMask(lanes), 0x4000000000000180U);
}

TEST(LowestByteFirst, IsTheOrderInMemory) {
  const std::uint64_t number = lowestByteFirst(0x0807060504030201U);
  EXPECT_EQ(std::memcmp(&number, "\1\2\3\4\5\6\7\b", 8), 0);
  EXPECT_EQ(lowestByteFirst(number), 0x0807060504030201U);
}

}  // namespace
}  // namespace quorvin
