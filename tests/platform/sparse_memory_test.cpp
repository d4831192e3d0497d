// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/sparse_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <new>

namespace quorvin {
namespace {

TEST(SparseMemory, IsEmptyAtFirstAndKeepsWhatIsWritten) {
  const SparseMemory memory(1'000'000);
  ASSERT_EQ(memory.bytes().size(), 1'000'000U);
  EXPECT_TRUE(std::ranges::all_of(memory.bytes(), [](std::byte byte) { return byte == std::byte{0}; }));
  memory.bytes()[999'999] = std::byte{7};
  EXPECT_EQ(memory.bytes()[999'999], std::byte{7});
}

TEST(SparseMemory, ReleasedBytesAreEmptyAgainAtTheSamePlace) {
  SparseMemory memory(100'000);
  const std::byte* place = memory.bytes().data();
  std::ranges::fill(memory.bytes(), std::byte{7});
  memory.release();
  EXPECT_EQ(memory.bytes().data(), place);
  EXPECT_TRUE(std::ranges::all_of(memory.bytes(), [](std::byte byte) { return byte == std::byte{0}; }));
}

TEST(SparseMemory, NothingTakesNoMemory) {
  SparseMemory memory(0);
  EXPECT_TRUE(memory.bytes().empty());
  memory.release();
}

TEST(SparseMemory, MoreThanThereCanBeIsRefused) {
  EXPECT_THROW(SparseMemory(SIZE_MAX / 2), std::bad_alloc);
}

}  // namespace
}  // namespace quorvin
