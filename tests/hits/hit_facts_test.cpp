// SPDX-License-Identifier: GPL-2.0-or-later

// What is known of a hit, in words, and where its line is.
#include "hits/hit_facts.h"

#include "hits/hit_actions.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

HitRow rowOf(const char* volume, const char* folder, const char* name) {
  HitRow row;
  row.volume = QString::fromUtf8(volume);
  row.folder = QString::fromUtf8(folder);
  row.name = QString::fromUtf8(name);
  return row;
}

TEST(CataloguePath, NamesVolumeFolderAndName) {
  EXPECT_EQ(cataloguePath(rowOf("CD_12", "\\Music\\", "a.mp3")), QStringLiteral("CD_12:\\Music\\a.mp3"));
  EXPECT_EQ(cataloguePath(rowOf("", "\\Music\\", "a.mp3")), QStringLiteral("\\Music\\a.mp3"));
}

class WhichDisk : public testing::Test {
 protected:
  WhichDisk() {
    hit_.row = rowOf("CD_12", "\\mnt\\cd\\", "a.mp3");
    hit_.listing = QStringLiteral("/lists/CD_12.txt");
  }
  KnownHit hit_;
  TemporaryFolder folder_;
};

TEST_F(WhichDisk, OfAListingFromElsewhereIsItsVolume) {
  EXPECT_EQ(whichDiskText(hit_),
            QStringLiteral("The file is on the volume \"CD_12\". Insert that disk to get at it.\r\n\r\n"
                           "In the catalogue: \\mnt\\cd\\a.mp3\r\nListing: /lists/CD_12.txt"));
}

TEST_F(WhichDisk, OfAFolderThatIsNotConnectedIsToldWithTheFolder) {
  hit_.sourceFolder = folder_.pathOf(QStringLiteral("away/"));
  EXPECT_EQ(
      whichDiskText(hit_),
      QStringLiteral("The file is on the volume \"CD_12\", which is not connected. Insert or connect it "
                     "to get at the file.\r\n\r\nIn the catalogue: \\mnt\\cd\\a.mp3\r\nListing: "
                     "/lists/CD_12.txt\r\nCatalogued from: ") +
          hit_.sourceFolder);
}

TEST_F(WhichDisk, OfAConnectedFolderWithoutTheFileSaysThatTheFileIsGone) {
  hit_.sourceFolder = folder_.path();
  EXPECT_EQ(
      whichDiskText(hit_),
      QStringLiteral("The folder of \"CD_12\" is connected, but the file is not there any more. It may "
                     "have been renamed, moved or deleted.\r\n\r\nIn the catalogue: \\mnt\\cd\\a.mp3\r\n"
                     "Listing: /lists/CD_12.txt\r\nCatalogued from: ") +
          folder_.path());
}

TEST_F(WhichDisk, OfAFileThatIsThereIsItsPath) {
  hit_.file = {QStringLiteral("/mnt/cd/"), QStringLiteral("a.mp3")};
  EXPECT_EQ(whichDiskText(hit_), QStringLiteral("The file is on a connected drive:\r\n/mnt/cd/a.mp3"));
}

TEST_F(WhichDisk, HasTheNoteOnTheVolumeRightBehindIt) {
  hit_.note = QStringLiteral("blue box, shelf 3");
  EXPECT_EQ(whichDiskText(hit_),
            QStringLiteral("The file is on the volume \"CD_12\". Insert that disk to get at it.\r\n"
                           "Note: blue box, shelf 3\r\n\r\n"
                           "In the catalogue: \\mnt\\cd\\a.mp3\r\nListing: /lists/CD_12.txt"));
}

TEST_F(WhichDisk, FactsHaveTheNoteBehindTheVolumeWhereThereIsOne) {
  EXPECT_EQ(factsOf(hit_, QLocale::c())[3].name, QStringLiteral("Folder"));
  hit_.note = QStringLiteral("blue box");
  const std::vector<HitFact> facts = factsOf(hit_, QLocale::c());
  EXPECT_EQ(facts[2].name, QStringLiteral("Volume"));
  EXPECT_EQ(facts[3].label + u'=' + facts[3].value, QStringLiteral("Note=blue box"));
  EXPECT_EQ(facts[4].name, QStringLiteral("Folder"));
}

class EntryLine : public testing::Test {
 protected:
  std::optional<std::int64_t> lineOf(const QByteArray& listing, const HitRow& row) {
    EntryLineFinder finder(folder_.writeFile(QStringLiteral("a.txt"), listing), row);
    while (finder.step()) ++steps_;
    return finder.line();
  }
  TemporaryFolder folder_;
  int steps_ = 0;
};

TEST_F(EntryLine, IsThatUnderTheSameVolumeAndFolder) {
  const QByteArray listing = blockHead("A", "\\x\\") + entryLine("song") + blockHead("B", "\\y\\") +
                             entryLine("song") + blockHead("B", "\\x\\") + entryLine("other") +
                             entryLine("song");
  EXPECT_EQ(lineOf(listing, rowOf("A", "\\x\\", "song")), 5);
  EXPECT_EQ(lineOf(listing, rowOf("B", "\\y\\", "song")), 10);
  EXPECT_EQ(lineOf(listing, rowOf("B", "\\x\\", "song")), 16);
  EXPECT_EQ(lineOf(listing, rowOf("A", "\\y\\", "song")), std::nullopt);
}

TEST_F(EntryLine, IsFoundWithoutALineEndAndWithoutABlock) {
  EXPECT_EQ(lineOf("first\nsecond", rowOf("", "", "second")), 2);
}

TEST_F(EntryLine, IsFoundBeyondTheFirstStretchAndInOtherEncodings) {
  const QByteArray many = entryLine("filler").repeated(10'000);
  const QByteArray listing = blockHead("A", "\\x\\") + many + entryLine("caf\xE9.txt") + entryLine("grün");
  EXPECT_EQ(lineOf(listing, rowOf("A", "\\x\\", "café.txt")), 10'005);
  EXPECT_GE(steps_, 3);
  EXPECT_EQ(lineOf(listing, rowOf("A", "\\x\\", "grün")), 10'006);
}

TEST_F(EntryLine, OfAListingThatIsGoneIsNone) {
  EntryLineFinder finder(folder_.pathOf(QStringLiteral("gone.txt")), rowOf("A", "", "song"));
  EXPECT_FALSE(finder.step());
  EXPECT_EQ(finder.line(), std::nullopt);
}

}  // namespace

}  // namespace quorvin::test
