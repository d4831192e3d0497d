// SPDX-License-Identifier: GPL-2.0-or-later

// Which files are the same, and what is said of them.
#include "catalogue/found_copies.h"
#include "support/listing_lines.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using test::FoundCopies;
using test::linesOf;
using test::singlesOf;
using testing::ElementsAre;
using testing::IsEmpty;

/// A line as a name alone, without a size of its own.
QByteArray lineWithoutSize(const QByteArray& name) {
  return name + "\r\n";
}

TEST(Copies, FilesWithTheSameNameAndSizeAreTheSame) {
  const FoundCopies found({blockHead("A", "\\one\\") + entryLine("film.avi", "700") + entryLine("b", "5") +
                               blockHead("A", "\\two\\") + entryLine("film.avi", "701"),
                           blockHead("B", "\\three\\") + entryLine("film.avi", "700")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 700 film.avi: [0 A \\one\\] [1 B \\three\\]"));
}

TEST(Copies, TheCaseOfNamesDoesNotMatter) {
  const FoundCopies found({blockHead("A", "\\x\\") + entryLine("IMG_1.JPG", "9") + entryLine("c") +
                               blockHead("A", "\\y\\") + entryLine("img_1.jpg", "9"),
                           blockHead("B", "\\") + QByteArray("\xC3\x84rger.txt").leftJustified(66) +
                               QByteArray("7").rightJustified(16) + " bytes 15 Jan 2004 10:20:30\r\n" +
                               QByteArray("\xC3\xA4rger.TXT").leftJustified(66) +
                               QByteArray("7").rightJustified(16) + " bytes 15 Jan 2004 10:20:30\r\n"});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 9 IMG_1.JPG: [0 A \\x\\] [0 A \\y\\]",
                                          "2 x 7 \xC3\x84rger.txt: [1 B \\] [1 B \\]"));
}

TEST(Copies, ThoseThatWasteMostComeFirst) {
  const FoundCopies found({blockHead("A", "\\1\\") + entryLine("a", "10") + entryLine("b", "6") +
                           entryLine("c", "7") + blockHead("A", "\\2\\") + entryLine("a", "10") +
                           entryLine("b", "6") + blockHead("A", "\\3\\") + entryLine("b", "6") +
                           entryLine("c", "7") + entryLine("alone", "99")});
  // 12, 10 and 7 bytes beyond the first.
  EXPECT_THAT(linesOf(found),
              ElementsAre("3 x 6 b: [0 A \\1\\] [0 A \\2\\] [0 A \\3\\]", "2 x 10 a: [0 A \\1\\] [0 A \\2\\]",
                          "2 x 7 c: [0 A \\1\\] [0 A \\3\\]"));
  const CopyTotals totals = copyTotals(found.copies, {});
  EXPECT_EQ(totals.files, 3);
  EXPECT_EQ(totals.beyondFirst, (FileSum{4, 29}));
}

TEST(Copies, FilesWithoutASizeOfTheirOwnAreLeftOutAndCounted) {
  const FoundCopies found({blockHead("A", "\\") + entryLine("song.mp3", "7") + lineWithoutSize("other.mp3") +
                           lineWithoutSize("song.mp3") + entryLine("gone.mp3", "-1") +
                           entryLine("gone.mp3", "-1") + entryLine("odd.mp3", "many")});
  EXPECT_THAT(linesOf(found), IsEmpty());
  EXPECT_EQ(found.files.withoutSize(), 5);
  EXPECT_THAT(singlesOf(found), ElementsAre("7 song.mp3 [0 A \\]"));
}

TEST(Copies, EmptyFilesCountOnlyOnWish) {
  const FoundCopies found({blockHead("A", "\\1\\") + entryLine("__init__.py", "0") + entryLine("x", "1") +
                           blockHead("A", "\\2\\") + entryLine("__init__.py", "0")});
  EXPECT_THAT(linesOf(found), IsEmpty());
  EXPECT_THAT(linesOf(found, {true}), ElementsAre("2 x 0 __init__.py: [0 A \\1\\] [0 A \\2\\]"));
  EXPECT_THAT(singlesOf(found), ElementsAre("1 x [0 A \\1\\]"));
}

TEST(Copies, FilesThatHoldSomethingElseAreNoCopies) {
  test::CopiesSetting setting;
  // The second and the third hold the same; nothing is known of the fourth, and the first is alone.
  setting.contents = {{0, {1, 1}}, {1, {1, 2}}, {2, {1, 2}}};
  const FoundCopies found(
      {blockHead("A", "\\1\\") + entryLine("x", "7") + blockHead("A", "\\2\\") + entryLine("X", "7"),
       blockHead("B", "\\") + entryLine("x", "7"), blockHead("C", "\\") + entryLine("x", "7")},
      setting);
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 7 x: [0 A \\1\\] [2 C \\]", "2 x 7 X: [0 A \\2\\] [1 B \\]"));
  EXPECT_EQ(found.differing, 2);
}

TEST(Copies, AFileThatHoldsSomethingElseThanAllOthersIsSingle) {
  test::CopiesSetting setting;
  setting.contents = {{1, {5, 5}}, {2, {6, 5}}};
  const FoundCopies found(
      {blockHead("A", "\\") + entryLine("x", "7"), blockHead("B", "\\") + entryLine("x", "7"),
       blockHead("C", "\\") + entryLine("x", "7")},
      setting);
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 7 x: [0 A \\] [1 B \\]"));
  EXPECT_THAT(singlesOf(found), ElementsAre("7 x [2 C \\]"));
}

TEST(Copies, ASizeThatReachesIntoTheNameIsNoPartOfIt) {
  // Grouped, the size begins in the last column of the entry text; ungrouped it does not.
  const FoundCopies found({blockHead("A", "\\1\\") + entryLine("film.avi", "4,700,000,000") + entryLine("a") +
                           blockHead("A", "\\2\\") + entryLine("film.avi", "4700000000")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 4700000000 film.avi: [0 A \\1\\] [0 A \\2\\]"));
}

TEST(Copies, AFileOnOneVolumeOnlyMayBeThereTwice) {
  const FoundCopies found({blockHead("A", "\\1\\") + entryLine("twice", "5") + entryLine("backed up", "6") +
                               blockHead("A", "\\2\\") + entryLine("twice", "5") + entryLine("alone", "7") +
                               blockHead("B", "\\") + entryLine("also", "8") + entryLine("also too", "9"),
                           blockHead("C", "\\") + entryLine("Backed up", "6")});
  EXPECT_THAT(singlesOf(found), ElementsAre("5 twice [0 A \\1\\]", "5 twice [0 A \\2\\]",
                                            "7 alone [0 A \\2\\]", "8 also [0 B \\]", "9 also too [0 B \\]"));
  const std::vector<FileSum> inFolders = singleFilesInFolders(found.copies, {}, [] { return false; });
  const std::vector<FileSum> inVolumes = sumsOfVolumes(found.files.folders(), inFolders);
  EXPECT_THAT(inVolumes, ElementsAre(FileSum{3, 17}, FileSum{2, 17}, FileSum{0, 0}));
  EXPECT_EQ(sumOf(inFolders), (FileSum{5, 34}));
  EXPECT_THAT(largestFirst(inVolumes), ElementsAre(0U, 1U));
}

TEST(Copies, VolumesOfTwoListingsAreTwoEvenWithTheSameName) {
  const FoundCopies found(
      {blockHead("A", "\\") + entryLine("f", "5"), blockHead("A", "\\") + entryLine("f", "5")});
  EXPECT_THAT(singlesOf(found), IsEmpty());
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 5 f: [0 A \\] [1 A \\]"));
}

TEST(Copies, WordsChooseFilesButNotWhatTheyAreComparedWith) {
  test::CopiesSetting setting;
  setting.words = SearchQuery(u"photos"_qs, 50);
  const FoundCopies found(
      {blockHead("A", "\\Photos\\") + entryLine("saved", "5") + entryLine("not saved", "6") +
           lineWithoutSize("unknown") + blockHead("A", "\\Other\\") + entryLine("other", "7") +
           entryLine("alone", "8") + lineWithoutSize("unknown"),
       blockHead("B", "\\Backup\\") + entryLine("saved", "5") + entryLine("other", "7")},
      setting);
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 5 saved: [0 A \\Photos\\] [1 B \\Backup\\]"));
  EXPECT_THAT(singlesOf(found), ElementsAre("6 not saved [0 A \\Photos\\]"));
  EXPECT_EQ(found.files.withoutSize(), 1);
  EXPECT_EQ(copyTotals(found.copies, {}).files, 1);
}

TEST(Copies, EqualHashesJoinNothing) {
  for (const int bits : {0, 1, 3}) {
    test::CopiesSetting setting;
    setting.hashBits = bits;
    const FoundCopies found({blockHead("A", "\\1\\") + entryLine("a", "1") + entryLine("b", "1") +
                                 entryLine("a", "2") + entryLine("c", "3"),
                             blockHead("B", "\\2\\") + entryLine("b", "1") + entryLine("a", "3") +
                                 entryLine("C", "3") + entryLine("b", "1")},
                            setting);
    EXPECT_THAT(linesOf(found), ElementsAre("2 x 3 c: [0 A \\1\\] [1 B \\2\\]",
                                            "3 x 1 b: [0 A \\1\\] [1 B \\2\\] [1 B \\2\\]"))
        << bits;
  }
}

TEST(Copies, SizesThatListingsClaimDoNotOverflow) {
  QByteArray listing;
  for (int i = 0; i < 3; ++i) {
    listing += blockHead("A", "\\" + QByteArray::number(i) + "\\") + entryLine("f", "9999999999999");
    listing += entryLine(QByteArray::number(i));
  }
  const FoundCopies found({listing});
  EXPECT_EQ(copyTotals(found.copies, {}).beyondFirst, (FileSum{2, 19999999999998}));
  EXPECT_EQ(productOfBytes(9'999'999'999'999, 1'000'000), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(sumOfBytes(std::numeric_limits<std::int64_t>::max(), 1),
            std::numeric_limits<std::int64_t>::max());
}

TEST(Copies, AStopEndsTheComparison) {
  QByteArray listing = blockHead("A", "\\");
  for (int i = 0; i < 5000; ++i) listing += entryLine("f" + QByteArray::number(i), "5");
  int asked = 0;
  test::CopiesSetting setting;
  setting.stop = [&] { return ++asked == 3; };
  const FoundCopies found({listing}, setting);
  EXPECT_FALSE(found.isFound);
  EXPECT_EQ(asked, 3);
}

TEST(Copies, PipesAndListingsThatAreNotKeptAreReadOnceAndComparedInMemory) {
  test::CopiesSetting setting;
  setting.areKept = false;
  setting.limits.chunkSize = 256;
  setting.limits.passingSegment = 512;
  const FoundCopies found({blockHead("A", "\\1\\") + entryLine("Film.avi", "700").repeated(9) +
                               blockHead("A", "\\2\\") + entryLine("b", "5"),
                           blockHead("B", "\\3\\") + entryLine("film.avi", "700")},
                          setting);
  EXPECT_EQ(found.files.placeCount(), 11U);
  ASSERT_EQ(copyLines(found.copies, found.folders, {}).size(), 1U);
  EXPECT_THAT(singlesOf(found), ElementsAre("5 b [0 A \\2\\]"));
}

}  // namespace
}  // namespace quorvin
