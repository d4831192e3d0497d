// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/mapped_bytes.h"

#include "support/temporary_folder.h"

#include <QFile>
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

namespace quorvin {
namespace {

constexpr std::size_t kMappedBlock = ByteCheck::kBlockSize;

/// A stretch of a file of more than thirty blocks.
class MappedBytesTest : public ::testing::Test {
 protected:
  static constexpr std::size_t kOffset = kMappingAlignment;
  static constexpr std::size_t kSize = 30 * kMappedBlock + 77;

  MappedBytes mapped() const {
    return {std::make_shared<RandomAccessFile>(path_), static_cast<std::int64_t>(kOffset), kSize, sums_};
  }

  void cutStretchTo(std::size_t size) const {
    ASSERT_TRUE(QFile::resize(path_, static_cast<qint64>(kOffset + size)));
  }

  /// In place, with a time of its own: the clock of a file system may stand still for some milliseconds.
  void write(std::size_t at, const std::string& bytes) const {
    const std::int64_t before = RandomAccessFile(path_).lastWriting().time;
    do {
      QFile file(path_);
      ASSERT_TRUE(file.open(QIODevice::ReadWrite));
      ASSERT_TRUE(file.seek(static_cast<qint64>(kOffset + at)));
      ASSERT_EQ(file.write(QByteArray::fromStdString(bytes)), static_cast<qint64>(bytes.size()));
    } while (RandomAccessFile(path_).lastWriting().time == before);
  }

  std::string_view rightBytes(std::size_t begin, std::size_t size) const {
    return std::string_view(bytes_).substr(begin, size);
  }

  std::string bytes_ = [] {
    std::string bytes(kSize, '\0');
    std::mt19937 random(7);
    for (char& byte : bytes) byte = static_cast<char>('a' + random() % 26);
    return bytes;
  }();
  std::vector<std::uint64_t> sums_ = checksumsOf(std::as_bytes(std::span(bytes_)));
  TemporaryFolder folder_;
  QString path_ = folder_.writeFile(QStringLiteral("bytes"),
                                    QByteArray(kOffset, '#') + QByteArray::fromStdString(bytes_ + "behind"));
};

TEST_F(MappedBytesTest, AreThoseOfTheFile) {
  MappedBytes mapped = this->mapped();
  EXPECT_EQ(mapped.take(0, kSize), rightBytes(0, kSize));
  EXPECT_EQ(mapped.take(kMappedBlock - 1, 2), rightBytes(kMappedBlock - 1, 2));
  EXPECT_EQ(mapped.take(kSize - 1, 1), rightBytes(kSize - 1, 1));
  EXPECT_NO_THROW(mapped.requireTaken());
  EXPECT_FALSE(mapped.foundDamage());
}

TEST_F(MappedBytesTest, DamageIsNoticedWhereItIsTaken) {
  write(9 * kMappedBlock + 5, "?");
  MappedBytes mapped = this->mapped();
  EXPECT_EQ(mapped.take(8 * kMappedBlock, kMappedBlock), rightBytes(8 * kMappedBlock, kMappedBlock));
  EXPECT_FALSE(mapped.foundDamage());
  EXPECT_THROW(mapped.take(9 * kMappedBlock, 1), DamagedSegment);
  EXPECT_TRUE(mapped.foundDamage());
  EXPECT_FALSE(mapped.wasChanged());
}

TEST_F(MappedBytesTest, ThatWereCutOffAreLostWhenTheyAreLookedAt) {
  for (const std::size_t left : {std::size_t{0}, std::size_t{1}, kMappedBlock, 12 * kMappedBlock + 5000}) {
    ASSERT_TRUE(QFile::remove(path_));
    folder_.writeFile(QStringLiteral("bytes"),
                      QByteArray(kOffset, '#') + QByteArray::fromStdString(bytes_ + "behind"));
    MappedBytes mapped = this->mapped();
    ASSERT_EQ(mapped.take(0, kSize), rightBytes(0, kSize));
    cutStretchTo(left);
    // They have been checked.
    const auto taken = mapped.take(20 * kMappedBlock, 100);
    EXPECT_NO_THROW(mapped.requireTaken());
    EXPECT_EQ(taken, std::string_view(std::string(100, '\0'))) << left;
    EXPECT_THROW(mapped.requireTaken(), DamagedSegment) << left;
    EXPECT_TRUE(mapped.foundDamage()) << left;
  }
}

TEST_F(MappedBytesTest, ThatWereCutOffBeforeTheyWereCheckedAreDamaged) {
  MappedBytes mapped = this->mapped();
  EXPECT_EQ(mapped.take(0, 10), rightBytes(0, 10));
  cutStretchTo(12 * kMappedBlock + 100);
  EXPECT_EQ(mapped.take(11 * kMappedBlock, 10), rightBytes(11 * kMappedBlock, 10));
  // What is left of its page of memory is zeros.
  EXPECT_THROW(mapped.take(12 * kMappedBlock, 10), DamagedSegment);
  EXPECT_TRUE(mapped.foundDamage());
}

TEST_F(MappedBytesTest, WritingToTheFileIsNoticedOnceTheyAreTaken) {
  MappedBytes mapped = this->mapped();
  write(5, "?");
  EXPECT_FALSE(mapped.foundDamage());
  EXPECT_EQ(mapped.take(kMappedBlock, 10), rightBytes(kMappedBlock, 10));
  EXPECT_FALSE(mapped.foundDamage());
  EXPECT_FALSE(mapped.wasChanged());
  write(2 * kMappedBlock, "?");
  EXPECT_TRUE(mapped.wasChanged());
  EXPECT_TRUE(mapped.foundDamage());
}

TEST_F(MappedBytesTest, ACutInTheirLastPageIsNoticed) {
  MappedBytes mapped = this->mapped();
  ASSERT_EQ(mapped.take(0, kSize), rightBytes(0, kSize));
  cutStretchTo(kSize - 10);
  EXPECT_TRUE(mapped.foundDamage());
}

TEST_F(MappedBytesTest, RenamingAndRemovingTheFileIsNoDamage) {
  MappedBytes mapped = this->mapped();
  ASSERT_EQ(mapped.take(0, kSize), rightBytes(0, kSize));
  const QString other = folder_.pathOf(QStringLiteral("other"));
  ASSERT_TRUE(QFile::rename(path_, other));
  EXPECT_FALSE(mapped.foundDamage());
  ASSERT_TRUE(QFile::remove(other));
  EXPECT_FALSE(mapped.foundDamage());
  EXPECT_EQ(mapped.take(0, kSize), rightBytes(0, kSize));
  EXPECT_NO_THROW(mapped.requireTaken());
}

TEST_F(MappedBytesTest, OfAFileThatIsTooShortAreNotTaken) {
  cutStretchTo(kSize - 1);
  MappedBytes mapped = this->mapped();
  EXPECT_FALSE(mapped.take(0, 10));
  EXPECT_NO_THROW(mapped.requireTaken());
  EXPECT_FALSE(mapped.foundDamage());
}

TEST_F(MappedBytesTest, AreMappedAgainAfterTheyWereReleased) {
  MappedBytes mapped = this->mapped();
  ASSERT_EQ(mapped.take(0, kSize), rightBytes(0, kSize));
  mapped.release();
  write(3 * kMappedBlock, "?");
  EXPECT_FALSE(mapped.foundDamage());
  EXPECT_EQ(mapped.take(0, 10), rightBytes(0, 10));
  EXPECT_THROW(mapped.take(3 * kMappedBlock, 10), DamagedSegment);
}

}  // namespace
}  // namespace quorvin
