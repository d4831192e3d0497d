// SPDX-License-Identifier: GPL-2.0-or-later

// Segment files: what is written comes back, and a file that is not whole or belongs elsewhere gives nothing.
// Its last 32 bytes: offset, size and checksum of the directory, eight bytes each, and the eight letters.
#include "search/segment/segment_file.h"

#include "search/segment/segment_builder.h"
#include "support/descriptors.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QtEndian>
#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>

namespace quorvin {
namespace {

constexpr qsizetype kTrailerSize = 32;

class SegmentFileTest : public testing::TestWithParam<SegmentUse> {
 protected:
  SegmentFileTest() {
    SegmentFileWriter writer(path_);
    write(writer, "Volume:    V1\r\nDirectory: \\Music\\\r\nFirst Song\r\nsecond\r\n");
    write(writer, "Third\r\n");
    writer.finish(key_);
    whole_ = folder_.readFile(kName);
  }

  /// The file with other bytes instead of its own; a new one, as the store makes it.
  void replaceWith(const QByteArray& bytes) const {
    ASSERT_TRUE(QFile::remove(path_));
    folder_.writeFile(kName, bytes);
  }

  /// The whole file, with the byte at `fromEnd` places before its end changed.
  QByteArray changedAt(qsizetype fromEnd) const {
    QByteArray bytes = whole_;
    bytes[bytes.size() - fromEnd] = static_cast<char>(bytes[bytes.size() - fromEnd] ^ 1);
    return bytes;
  }

  std::vector<std::shared_ptr<const Segment>> open() const {
    return openSegmentFile(path_, key_, GetParam());
  }

  void expectNoSegmentFile() const {
    EXPECT_TRUE(open().empty());
    EXPECT_EQ(listingOfSegmentFile(path_), QString());
  }

  const QString kName = u"some.qsegments"_qs;
  TemporaryFolder folder_;
  QString path_ = folder_.pathOf(kName);
  SegmentKey key_{u"/lists/cd.lst"_qs, {60, 1, 2, 3, 4}, u"C\nd MMM yyyy"_qs};
  QByteArray whole_;

  static void write(SegmentFileWriter& writer, const std::string& lines) {
    const std::string text = std::string(kLinePadding, '\n') + lines + std::string(kLinePadding, '\n');
    SegmentBuilder builder{QLocale::c()};
    builder.addLines(text.data() + kLinePadding, lines.size());
    builder.readAllValues();
    builder.finishText();
    builder.segment()->complete();
    writer.append(*builder.segment());
  }
};

TEST_P(SegmentFileTest, TellsItsEntriesToWhoHasItsKey) {
  EXPECT_EQ(entriesInSegmentFile(path_, key_), 3);
  SegmentKey changed = key_;
  ++changed.identity.modified;
  EXPECT_EQ(entriesInSegmentFile(path_, changed), std::nullopt);
  replaceWith(whole_.chopped(1));
  EXPECT_EQ(entriesInSegmentFile(path_, key_), std::nullopt);
  EXPECT_EQ(entriesInSegmentFile(folder_.pathOf(u"none"_qs), key_), std::nullopt);
}

TEST_P(SegmentFileTest, SegmentsComeBackAsTheyWere) {
  const auto segments = open();
  ASSERT_EQ(segments.size(), 2U);
  ASSERT_EQ(segments[0]->entryCount(), 2U);
  EXPECT_EQ(segments[0]->volume(0), u"V1"_qs);
  EXPECT_EQ(segments[0]->folder(0), u"\\Music\\"_qs);
  EXPECT_EQ(segments[0]->name(0), u"First Song"_qs);
  EXPECT_EQ(segments[0]->name(1), u"second"_qs);
  EXPECT_EQ(segments[0]->valueState(0), ValueState::Absent);
  EXPECT_FALSE(segments[0]->allOwn(0, 1));
  ASSERT_EQ(segments[1]->entryCount(), 1U);
  EXPECT_EQ(segments[1]->name(0), u"Third"_qs);
  EXPECT_EQ(listingOfSegmentFile(path_), u"/lists/cd.lst"_qs);
}

/// What others write to a file that is searched is damage; what the writer adds is not.
TEST_P(SegmentFileTest, ASegmentIsSearchedInMemoryUntilItsFileIsComplete) {
  std::string lines;
  for (int i = 0; i < 60000; ++i) lines += "a song of many, in small letters\r\n";
  SegmentFileWriter writer(folder_.pathOf(u"large.qsegments"_qs));
  write(writer, lines);
  const auto segment = writer.last();
  ASSERT_TRUE(segment);
  const TextTable& entries = segment->arrays().entries;
  EXPECT_EQ(entries.toSearch(entries.between(0, 1)).substr(0, 7), "a song ");
  write(writer, "behind it\r\n");
  writer.finish(key_);
  EXPECT_FALSE(segment->foundDamage());
  const std::size_t memoryBefore = segment->memorySize();
  EXPECT_GT(memoryBefore, 0U);
  EXPECT_EQ(entries.toSearch(entries.between(0, entries.marks.size())).substr(0, 7), "a song ");
  EXPECT_NO_THROW(entries.requireSearched());
  EXPECT_EQ(segment->memorySize(), memoryBefore);
  EXPECT_FALSE(segment->foundDamage());
}

TEST_P(SegmentFileTest, ASegmentThatIsWrittenInManyPiecesComesBackAsItWas) {
  constexpr int kEntries = 150000;
  std::string lines = "Volume:    V1\r\nDirectory: \\Music\\\r\n";
  const auto nameOf = [](int i) { return "Song " + std::to_string(i) + " of many, With Capitals"; };
  for (int i = 0; i < kEntries; ++i) lines += nameOf(i) + "\r\n";
  const QString path = folder_.pathOf(u"large.qsegments"_qs);
  SegmentFileWriter writer(path);
  write(writer, lines);
  write(writer, "behind it\r\n");
  writer.finish(key_);
  const auto segments = openSegmentFile(path, key_, GetParam());
  ASSERT_EQ(segments.size(), 2U);
  ASSERT_EQ(segments[0]->entryCount(), static_cast<std::uint32_t>(kEntries));
  for (int i = 0; i < kEntries; ++i) {
    ASSERT_EQ(segments[0]->name(static_cast<std::uint32_t>(i)).toStdString(), nameOf(i));
  }
  EXPECT_EQ(segments[0]->folder(kEntries - 1), u"\\Music\\"_qs);
  EXPECT_EQ(segments[1]->name(0), u"behind it"_qs);
}

TEST_P(SegmentFileTest, TheFileEndsInItsEightLetters) {
  EXPECT_EQ(whole_.right(8), QByteArray("QVSEGMT9"));
}

TEST_P(SegmentFileTest, EachSegmentStartsAtTheNextMultipleOf65536Bytes) {
  // The first one at the front; both are far smaller than that.
  const auto directory = qFromUnaligned<quint64>(whole_.constData() + whole_.size() - kTrailerSize);
  EXPECT_GT(directory, 65536U);
  EXPECT_LT(directory, 2U * 65536U);
}

TEST_P(SegmentFileTest, OtherLettersAreAnotherFormat) {
  QByteArray other = whole_;
  other.replace(other.size() - 8, 8, "QVSEGMT8");
  replaceWith(other);
  expectNoSegmentFile();
}

TEST_P(SegmentFileTest, ADamagedTrailerOrDirectoryIsNoticed) {
  for (const qsizetype fromEnd : {qsizetype{32}, qsizetype{24}, qsizetype{16}, kTrailerSize + 1}) {
    replaceWith(changedAt(fromEnd));
    SCOPED_TRACE(fromEnd);
    expectNoSegmentFile();
  }
}

TEST_P(SegmentFileTest, ACutFileIsNone) {
  for (const qsizetype missing :
       {qsizetype{1}, kTrailerSize, kTrailerSize + 1, whole_.size() - 31, whole_.size()}) {
    replaceWith(whole_.chopped(missing));
    SCOPED_TRACE(missing);
    expectNoSegmentFile();
  }
}

TEST_P(SegmentFileTest, ADirectoryWithBytesCutOutOfItIsNoticed) {
  replaceWith(whole_.chopped(kTrailerSize + 4) + whole_.right(kTrailerSize));
  expectNoSegmentFile();
}

TEST_P(SegmentFileTest, AKeyThatDiffersInAnythingOpensNothing) {
  std::vector<SegmentKey> others(5, key_);
  others[0].listing = u"/lists/other.lst"_qs;
  others[1].readingRules = u"de\nd. MMM yyyy"_qs;
  others[2].identity.size = 61;
  others[3].identity.changed = 7;
  others[4].identity.file = 5;
  for (const SegmentKey& other : others) {
    EXPECT_TRUE(openSegmentFile(path_, other, GetParam()).empty()) << other.listing.toStdString();
  }
  EXPECT_EQ(open().size(), 2U);
}

TEST_P(SegmentFileTest, WithoutItsEndNothingOfAFileStays) {
  const QString other = folder_.pathOf(u"other/unfinished.qsegments"_qs);
  { const SegmentFileWriter writer(other); }
  EXPECT_FALSE(QFile::exists(other));
  EXPECT_TRUE(
      QDir(folder_.pathOf(u"other"_qs)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_P(SegmentFileTest, NoFileIsNoSegments) {
  ASSERT_TRUE(QFile::remove(path_));
  expectNoSegmentFile();
}

TEST_P(SegmentFileTest, ASmallFileDoesNotStayOpen) {
  // The system lets a program have some thousand files open, and a catalogue may have more listings.
  const rlim_t before = test::nextDescriptor();
  const auto segments = open();
  ASSERT_EQ(segments.size(), 2U);
  EXPECT_EQ(segments[1]->name(0), u"Third"_qs);
  EXPECT_EQ(test::nextDescriptor(), before);
}

TEST_P(SegmentFileTest, APipeInItsPlaceIsNone) {
  ASSERT_TRUE(QFile::remove(path_));
  ASSERT_EQ(::mkfifo(QFile::encodeName(path_).constData(), 0600), 0);
  expectNoSegmentFile();
}

TEST_P(SegmentFileTest, ARecordThatLeadsOutOfTheFileIsNotFollowed) {
  // Without the segments' own bytes, but with the directory and the trailer that tell of them.
  const auto directory = qFromUnaligned<quint64>(whole_.constData() + whole_.size() - kTrailerSize);
  QByteArray cut = whole_.mid(static_cast<qsizetype>(directory));
  qToUnaligned<quint64>(0, cut.data() + cut.size() - kTrailerSize);
  replaceWith(cut);
  EXPECT_EQ(listingOfSegmentFile(path_), u"/lists/cd.lst"_qs);
  EXPECT_TRUE(open().empty());
}

INSTANTIATE_TEST_SUITE_P(Searched, SegmentFileTest, testing::Values(SegmentUse::Once, SegmentUse::Repeated),
                         [](const auto& use) {
                           return use.param == SegmentUse::Once ? "Once" : "Repeatedly";
                         });

}  // namespace
}  // namespace quorvin
