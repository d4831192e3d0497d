// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/passing_bytes.h"

#include "search/segment/text_scan.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

namespace quorvin {
namespace {

constexpr std::size_t kPassedBlock = ByteCheck::kBlockSize;
/// Where the stretch begins in its file.
constexpr std::size_t kOffset = 1000;
constexpr std::size_t kSize = 80 * kPassedBlock + 77;
constexpr std::size_t kLongest = PassingBytes::kLongestPiece;

class PassingBytesTest : public ::testing::Test {
 protected:
  PassingBytesTest() { writeStretch(bytes_ + "behind"); }

  void writeStretch(const std::string& stretch) {
    folder_.writeFile(QStringLiteral("bytes"),
                      QByteArray::fromStdString(std::string(kOffset, '#') + stretch));
  }

  PassingBytes stretch() { return {path_, kOffset, check_, buffers_}; }

  /// Takes all bytes in pieces of `piece` bytes and returns how many of them passed through the buffer.
  std::size_t takeAll(PassingBytes& passing, std::size_t piece) {
    std::size_t passed = 0;
    for (std::size_t at = 0; at < kSize; at += piece) {
      const std::size_t size = std::min(piece, kSize - at);
      const auto taken = passing.take(at, size);
      if (!taken) continue;
      passed += size;
      EXPECT_EQ(*taken, std::string_view(bytes_).substr(at, size)) << "at " << at;
    }
    return passed;
  }

  TemporaryFolder folder_;
  QString path_ = folder_.pathOf(QStringLiteral("bytes"));
  std::string bytes_ = randomBytes();
  std::vector<std::uint64_t> sums_ = checksumsOf(std::as_bytes(std::span(bytes_)));
  ByteCheck check_ = ByteCheck(std::as_bytes(std::span(bytes_)), sums_);
  PassingBuffers buffers_;

 private:
  static std::string randomBytes() {
    std::string bytes(kSize, '\0');
    std::mt19937 random(7);
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
  }
};

TEST_F(PassingBytesTest, PiecesPassAfterFourThatWentOn) {
  PassingBytes passing = stretch();
  constexpr std::size_t kBegin = kPassedBlock + 5000;
  for (std::size_t piece = 0; piece < 4; ++piece) {
    EXPECT_FALSE(passing.take(kBegin + piece * 100, 100)) << "piece " << piece;
  }
  const auto fifth = passing.take(kBegin + 400, 100);
  ASSERT_TRUE(fifth);
  EXPECT_EQ(*fifth, std::string_view(bytes_).substr(kBegin + 400, 100));
}

TEST_F(PassingBytesTest, SinglePiecesDoNotPass) {
  PassingBytes passing = stretch();
  for (std::size_t piece = 0; piece < 10; ++piece) {
    EXPECT_FALSE(passing.take(piece * 2 * kPassedBlock, 100)) << "piece " << piece;
  }
}

TEST_F(PassingBytesTest, AllPiecesOfAllSizesAreRight) {
  for (const std::size_t piece :
       {std::size_t{1000}, std::size_t{20000}, kPassedBlock - 1, kPassedBlock, kPassedBlock + 1, kLongest}) {
    PassingBytes passing = stretch();
    EXPECT_EQ(takeAll(passing, piece), kSize - 3 * piece) << "pieces of " << piece;
  }
}

TEST_F(PassingBytesTest, TooLongAPieceDoesNotPass) {
  PassingBytes passing = stretch();
  for (std::size_t at = 0; at + kLongest < kSize; at += kLongest) {
    EXPECT_FALSE(passing.take(at, kLongest + 1)) << "at " << at;
  }
}

TEST_F(PassingBytesTest, PiecesMayOverlap) {
  PassingBytes passing = stretch();
  std::size_t passed = 0;
  for (std::size_t at = 0; at + 30000 <= kSize; at += 29000) {
    const auto taken = passing.take(at, 30000);
    if (!taken) continue;
    ++passed;
    EXPECT_EQ(*taken, std::string_view(bytes_).substr(at, 30000)) << "at " << at;
  }
  EXPECT_EQ(passed, 42U);
}

TEST_F(PassingBytesTest, WhatAScanLooksAtBehindAPieceCanBeRead) {
  PassingBytes passing = stretch();
  std::string_view last;
  for (std::size_t at = kSize - 5 * 100; at < kSize; at += 100) last = passing.take(at, 100).value_or("");
  ASSERT_EQ(last.size(), 100U);
  char behind[kScanPadding];
  std::memcpy(behind, last.data() + last.size(), kScanPadding);
}

TEST_F(PassingBytesTest, TwoStretchesDoNotDisturbEachOther) {
  PassingBytes one = stretch();
  PassingBytes other = stretch();
  for (std::size_t at = 0; at < 2 * kPassedBlock; at += 1000) {
    const auto fromOne = one.take(at, 1000);
    ASSERT_EQ(fromOne.has_value(), at >= 3000);
    EXPECT_EQ(fromOne.value_or(""), std::string_view(bytes_).substr(at, fromOne ? 1000 : 0));
    const auto fromOther = other.take(kPassedBlock + at, 1000);
    ASSERT_EQ(fromOther.has_value(), at >= 4000);
    EXPECT_EQ(fromOther.value_or(""),
              std::string_view(bytes_).substr(kPassedBlock + at, fromOther ? 1000 : 0));
  }
}

TEST_F(PassingBytesTest, GoesOnAfterARest) {
  PassingBytes passing = stretch();
  for (std::size_t at = 0; at < 3 * kPassedBlock; at += kPassedBlock)
    EXPECT_FALSE(passing.take(at, kPassedBlock));
  for (std::size_t at = 3 * kPassedBlock; at < 8 * kPassedBlock; at += kPassedBlock) {
    EXPECT_EQ(passing.take(at, kPassedBlock).value_or(""), std::string_view(bytes_).substr(at, kPassedBlock));
    passing.rest();
  }
}

TEST_F(PassingBytesTest, ABufferThatWasGivenBackIsTakenByTheNext) {
  PassingBuffers::Buffer one = buffers_.take(100);
  PassingBuffers::Buffer other = buffers_.take(100);
  const std::byte* const first = one.get();
  EXPECT_NE(other.get(), first);
  buffers_.giveBack(std::move(one));
  EXPECT_EQ(buffers_.take(100).get(), first);
}

TEST_F(PassingBytesTest, DamagedBlockIsNoticed) {
  std::string damaged = bytes_;
  damaged[9 * kPassedBlock + 5] = static_cast<char>(damaged[9 * kPassedBlock + 5] ^ 1);
  writeStretch(damaged);
  PassingBytes passing = stretch();
  EXPECT_THROW(takeAll(passing, 1000), DamagedSegment);
}

TEST_F(PassingBytesTest, CutFileIsNoticed) {
  writeStretch(bytes_.substr(0, 9 * kPassedBlock));
  PassingBytes passing = stretch();
  EXPECT_THROW(takeAll(passing, 1000), DamagedSegment);
}

TEST_F(PassingBytesTest, MissingFileIsNoticed) {
  QFile::remove(path_);
  PassingBytes passing = stretch();
  EXPECT_THROW(takeAll(passing, 1000), DamagedSegment);
}

}  // namespace
}  // namespace quorvin
