// SPDX-License-Identifier: GPL-2.0-or-later

// Folders that hold the same.
#include "catalogue/found_copies.h"
#include "support/listing_lines.h"

#include <gmock/gmock.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using test::FoundCopies;
using test::linesOf;
using testing::ElementsAre;

/// An album of two songs, 30 bytes, in a folder of its own.
QByteArray album(const QByteArray& volume, const QByteArray& folder) {
  return blockHead(volume, folder) + entryLine("one.mp3", "10") + entryLine("two.mp3", "20");
}

QByteArray song(const QByteArray& volume, const QByteArray& folder, const QByteArray& name = "alone") {
  return blockHead(volume, folder) + entryLine(name, "5");
}

TEST(EqualFolders, AreOneLineAndTheirFilesAreNotRepeated) {
  const FoundCopies found(
      {album("A", "\\Music\\Album\\") + song("A", "\\Music\\"), album("B", "\\Saved\\The Album\\")});
  EXPECT_THAT(linesOf(found),
              ElementsAre("2 x 2 files, 30: [0 A \\Music\\Album\\] [1 B \\Saved\\The Album\\]"));
}

TEST(EqualFolders, HoldTheSameAtAllDepths) {
  const FoundCopies found({album("A", "\\Music\\Album\\") +
                               album("A", "\\Music\\Album\\Live\\").replace("o.mp3", "o.ogg") +
                               song("A", "\\Music\\"),
                           album("B", "\\ALBUM\\") + album("B", "\\ALBUM\\live\\").replace("o.mp3", "o.ogg") +
                               song("B", "\\", "b"),
                           song("C", "\\", "c")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 4 files, 60: [0 A \\Music\\Album\\] [1 B \\ALBUM\\]",
                                          "4 x 10 one.mp3: [0 A \\Music\\Album\\] [0 A "
                                          "\\Music\\Album\\Live\\] [1 B \\ALBUM\\] [1 B \\ALBUM\\live\\]"));
}

TEST(EqualFolders, NamesOfFoldersInThemMatter) {
  const FoundCopies found({album("A", "\\1\\Disc 1\\") + song("A", "\\1\\", "cover") + song("A", "\\"),
                           album("B", "\\2\\CD 1\\") + song("B", "\\2\\", "cover") + song("B", "\\", "b")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 2 files, 30: [0 A \\1\\Disc 1\\] [1 B \\2\\CD 1\\]",
                                          "2 x 5 cover: [0 A \\1\\] [1 B \\2\\]"));
}

TEST(EqualFolders, AFileMoreMakesThemDifferent) {
  const FoundCopies found(
      {album("A", "\\1\\") + song("A", "\\"), album("B", "\\2\\") + entryLine("three", "1")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 20 two.mp3: [0 A \\1\\] [1 B \\2\\]",
                                          "2 x 10 one.mp3: [0 A \\1\\] [1 B \\2\\]"));
}

TEST(EqualFolders, AFileTwiceIsNotTheSameAsOnce) {
  const FoundCopies found({album("A", "\\1\\") + song("A", "\\"),
                           album("B", "\\2\\") + entryLine("one.mp3", "10") + song("B", "\\", "b")});
  EXPECT_THAT(linesOf(found), ElementsAre("3 x 10 one.mp3: [0 A \\1\\] [1 B \\2\\] [1 B \\2\\]",
                                          "2 x 20 two.mp3: [0 A \\1\\] [1 B \\2\\]"));
}

TEST(EqualFolders, AFileOfUnknownSizeMakesItsFolderEqualToNone) {
  const FoundCopies found({album("A", "\\1\\") + "unknown\r\n" + song("A", "\\"),
                           album("B", "\\2\\") + "unknown\r\n" + song("B", "\\", "b")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 20 two.mp3: [0 A \\1\\] [1 B \\2\\]",
                                          "2 x 10 one.mp3: [0 A \\1\\] [1 B \\2\\]"));
}

TEST(EqualFolders, OfOneFileAreTheFile) {
  const FoundCopies found({song("A", "\\1\\", "film") + song("A", "\\", "a"), song("B", "\\2\\", "film")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 5 film: [0 A \\1\\] [1 B \\2\\]"));
}

TEST(EqualFolders, OneThatIsNotInsideTheOthersHasALineOfItsOwn) {
  const auto both = [](const QByteArray& volume) {
    return album(volume, "\\1\\") + album(volume, "\\1\\in\\").replace("one", "uno") +
           song(volume, "\\", volume);
  };
  const FoundCopies found(
      {both("A"), both("B"), album("C", "\\c\\").replace("one", "uno") + song("C", "\\")});
  EXPECT_THAT(
      linesOf(found),
      ElementsAre("5 x 20 two.mp3: [0 A \\1\\] [0 A \\1\\in\\] [1 B \\1\\] [1 B \\1\\in\\] [2 C \\c\\]",
                  "2 x 4 files, 60: [0 A \\1\\] [1 B \\1\\]",
                  "3 x 2 files, 30: [0 A \\1\\in\\] [1 B \\1\\in\\] [2 C \\c\\]"));
}

TEST(EqualFolders, AFolderThatComesInSeveralBlocksIsOne) {
  const FoundCopies found({blockHead("A", "\\1\\") + entryLine("one.mp3", "10") + song("A", "\\") +
                               blockHead("A", "\\1") + entryLine("two.mp3", "20"),
                           album("B", "\\2\\") + song("B", "\\", "b")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 2 files, 30: [0 A \\1\\] [1 B \\2\\]"));
}

TEST(EqualFolders, WholeVolumesAreEqualByTheirTopmostFolders) {
  const FoundCopies found({album("A", "\\") + song("A", "\\x\\"), album("B", "\\") + song("B", "\\X\\")});
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 3 files, 35: [0 A \\] [1 B \\]"));
}

TEST(EqualFolders, AreShownWhereWordsFindAFileInOneOfThem) {
  test::CopiesSetting setting;
  setting.words = SearchQuery(u"two album"_qs, 99);
  const FoundCopies found(
      {album("A", "\\Album\\") + album("A", "\\1\\").replace("mp3", "ogg") + song("A", "\\"),
       album("B", "\\x\\") + album("B", "\\2\\").replace("mp3", "ogg") + song("B", "\\", "b")},
      setting);
  EXPECT_THAT(linesOf(found), ElementsAre("2 x 2 files, 30: [0 A \\Album\\] [1 B \\x\\]"));
}

}  // namespace
}  // namespace quorvin
