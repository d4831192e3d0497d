// SPDX-License-Identifier: GPL-2.0-or-later

// Segments out of a file, in both ways: what is read of them, and when.
#include "search/segment/filed_segment.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace quorvin {
namespace {

/// A segment with so many entries that its arrays take up several blocks, in a file of its own.
class FiledSegmentTest : public testing::Test {
 protected:
  static constexpr std::uint32_t kEntries = 3000;

  FiledSegmentTest() {
    GrowingSegment segment;
    segment.beginBlock("V1", "\\Music\\", true);
    for (std::uint32_t entry = 0; entry < kEntries; ++entry) {
      segment.addEntry("Song " + std::to_string(entry), true);
      segment.valueArrays().set(entry, ValueState::Own, {entry, 1}, entry);
    }
    segment.complete();
    SegmentArrays arrays = segment.arrays();
    visitArrays(arrays, [this](const auto& array) { append(array); });
    record_.size = static_cast<std::uint64_t>(bytes_.size());
    record_.entryCount = kEntries;
    record_.blockCount = 1;
    record_.allOwn = 1;
    sums_ = checksumsOf(std::as_bytes(std::span(bytes_.constData(), record_.size)));
    folder_.writeFile(kName, bytes_);
  }

  template <typename Element>
  void append(const CheckedSpan<Element>& array) {
    record_.arrays[next_++] = {static_cast<std::uint64_t>(bytes_.size()), array.size()};
    bytes_.append(reinterpret_cast<const char*>(array.all().data()),
                  static_cast<qsizetype>(array.sizeInBytes()));
    constexpr auto kPadding = static_cast<qsizetype>(kPaddingBehind<Element>);
    bytes_.append((bytes_.size() + kPadding + 63) / 64 * 64 - bytes_.size(), '\0');
  }

  KeptSegment kept() const {
    return KeptSegment(std::make_shared<const RandomAccessFile>(path_), record_, sums_);
  }

  static void expectRight(const Segment& segment) {
    ASSERT_EQ(segment.entryCount(), kEntries);
    for (const std::uint32_t entry : {0U, 7U, 1500U, kEntries - 1}) {
      EXPECT_EQ(segment.volume(entry), u"V1"_qs);
      EXPECT_EQ(segment.folder(entry), u"\\Music\\"_qs);
      EXPECT_EQ(segment.name(entry), u"Song %1"_qs.arg(entry));
      EXPECT_EQ(segment.values(entry).size, entry);
    }
  }

  const QString kName = u"some.qsegments"_qs;
  TemporaryFolder folder_;
  QString path_ = folder_.pathOf(kName);
  QByteArray bytes_;
  SegmentRecord record_{};
  std::size_t next_ = 0;
  std::vector<std::uint64_t> sums_;
};

TEST_F(FiledSegmentTest, AKeptOneTakesUpMemoryForWhatIsLookedAt) {
  const KeptSegment segment = kept();
  EXPECT_EQ(segment.memorySize(), 0U);
  EXPECT_EQ(segment.name(0), u"Song 0"_qs);
  const std::size_t looked = segment.memorySize();
  EXPECT_GT(looked, 0U);
  EXPECT_LT(looked, record_.size);
  expectRight(segment);
  EXPECT_GT(segment.memorySize(), looked);
}

TEST_F(FiledSegmentTest, AKeptOneOutlivesTheNameOfItsFile) {
  const KeptSegment segment = kept();
  folder_.writeFile(u"other"_qs, QByteArray(bytes_.size(), 'x'));
  ASSERT_TRUE(QFile::remove(path_));
  ASSERT_TRUE(QFile::rename(folder_.pathOf(u"other"_qs), path_));
  expectRight(segment);
}

TEST_F(FiledSegmentTest, AKeptOneGivesMemoryBackAndReadsAgain) {
  const KeptSegment segment = kept();
  expectRight(segment);
  segment.release();
  EXPECT_EQ(segment.memorySize(), 0U);
  expectRight(segment);
}

TEST_F(FiledSegmentTest, AKeptOneThatWasReadWholeNeedsItsFileNoMore) {
  KeptSegment segment = kept();
  segment.readWhole();
  EXPECT_EQ(segment.memorySize(), record_.size);
  ASSERT_TRUE(QFile::resize(path_, 0));
  // Its memory could not be filled again.
  segment.release();
  EXPECT_EQ(segment.memorySize(), record_.size);
  expectRight(segment);
}

TEST_F(FiledSegmentTest, AKeptOneOfACutFileIsDamagedWhereItWasNotRead) {
  const KeptSegment segment = kept();
  const QString name = segment.name(0);
  ASSERT_TRUE(QFile::resize(path_, 0));
  EXPECT_EQ(segment.name(0), name);
  EXPECT_FALSE(segment.foundDamage());
  EXPECT_THROW(segment.values(kEntries - 1), DamagedSegment);
  EXPECT_TRUE(segment.foundDamage());
}

TEST_F(FiledSegmentTest, AKeptOneIsSearchedInItsFileAndShownFromMemory) {
  KeptSegment segment = kept();
  segment.searchInFile();
  const TextTable& entries = segment.arrays().entries;
  const std::string_view found = entries.toSearch(entries.between(0, kEntries));
  EXPECT_EQ(found.substr(0, 14), "song 0\xFFsong 1\xFF");
  // The marks, which are less than a block.
  EXPECT_LE(segment.memorySize(), ByteCheck::kBlockSize);
  EXPECT_EQ(segment.name(kEntries - 1), u"Song 2999"_qs);
  ASSERT_TRUE(QFile::resize(path_, 0));
  EXPECT_EQ(segment.name(kEntries - 1), u"Song 2999"_qs);
  EXPECT_EQ(found[0], '\0');
  EXPECT_THROW(entries.requireSearched(), DamagedSegment);
  EXPECT_TRUE(segment.foundDamage());
  EXPECT_EQ(segment.name(kEntries - 1), u"Song 2999"_qs);
}

TEST_F(FiledSegmentTest, AKeptOneThatCannotBeMappedIsSearchedInMemory) {
  record_.offset = 64;
  folder_.writeFile(kName, QByteArray(64, '#') + bytes_);
  KeptSegment segment = kept();
  segment.searchInFile();
  const TextTable& entries = segment.arrays().entries;
  EXPECT_EQ(entries.toSearch(entries.between(0, 1)).substr(0, 14), "song 0\xFFsong 1\xFF");
  EXPECT_NO_THROW(entries.requireSearched());
  expectRight(segment);
}

TEST_F(FiledSegmentTest, AKeptOneThatWasReadWholeIsSearchedInMemory) {
  KeptSegment segment = kept();
  segment.searchInFile();
  segment.readWhole();
  ASSERT_TRUE(QFile::resize(path_, 0));
  const TextTable& entries = segment.arrays().entries;
  EXPECT_EQ(entries.toSearch(entries.between(0, 1)).substr(0, 14), "song 0\xFFsong 1\xFF");
  EXPECT_NO_THROW(entries.requireSearched());
  EXPECT_FALSE(segment.foundDamage());
}

TEST_F(FiledSegmentTest, APassingOneSaysTheSame) {
  const PassingSegment segment(path_, record_, sums_, std::make_shared<PassingBuffers>());
  expectRight(segment);
  segment.searched();
  expectRight(segment);
  EXPECT_EQ(segment.memorySize(), 0U);
}

TEST_F(FiledSegmentTest, ARecordThatDoesNotFitIsDamage) {
  record_.arrays[0].offset = record_.size + 64;
  EXPECT_THROW(kept(), DamagedSegment);
  record_.arrays[0] = {1, 1};
  EXPECT_THROW(kept(), DamagedSegment);
}

}  // namespace
}  // namespace quorvin
