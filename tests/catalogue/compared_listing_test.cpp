// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/compared_listing.h"

#include "catalogue/opened_bytes.h"
#include "support/listing_lines.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

class ComparedListings : public testing::Test {
 protected:
  static ComparedListing listing(const QByteArray& bytes) {
    ComparedListing listing(test::openerOf(bytes), QLocale::c());
    EXPECT_TRUE(listing.readMarks([] { return false; }));
    return listing;
  }
};

TEST_F(ComparedListings, CountFilesBytesAndVolumes) {
  const ComparedListing some = listing(blockHead("CD 1", "\\a\\") + entryLine("x", "10") + "no values\r\n" +
                                       blockHead("CD 2", "\\a\\") + entryLine("x", "5"));
  EXPECT_EQ(some.fileCount(), 3);
  EXPECT_EQ(some.bytes(), 15);
  EXPECT_EQ(some.volumeCount(), 2U);
  EXPECT_FALSE(some.isNoText());
}

TEST_F(ComparedListings, TheTopIsTheDeepestFolderWithAllFiles) {
  EXPECT_EQ(listing(blockHead("CD", "\\mnt\\cd\\a\\") + entryLine("x") + blockHead("CD", "\\mnt\\cd\\ab\\") +
                    entryLine("y"))
                .top(),
            "\\mnt\\cd\\");
  EXPECT_EQ(
      listing(blockHead("CD", "\\mnt\\a\\") + entryLine("x") + blockHead("CD", "\\mnt\\") + entryLine("y"))
          .top(),
      "\\mnt\\");
  EXPECT_EQ(
      listing(blockHead("CD", "\\a\\") + entryLine("x") + blockHead("CD", "\\b\\") + entryLine("y")).top(),
      "\\");
  EXPECT_EQ(listing("").top(), "");
}

TEST_F(ComparedListings, ShareAFolderOnlyWhereBothHaveFilesInIt) {
  const ComparedListing one = listing(blockHead("CD", "\\a\\b\\") + entryLine("x"));
  EXPECT_TRUE(one.sharesFolderWith(listing(blockHead("DVD", "\\a\\b") + entryLine("y"))));
  EXPECT_FALSE(one.sharesFolderWith(listing(blockHead("CD", "\\a\\") + entryLine("x"))));
}

TEST_F(ComparedListings, TheSecondReadingGivesWhatIsAskedFor) {
  ComparedListing some = listing(blockHead("CD", "\\a\\") + entryLine("x", "10") + entryLine("y", "11") +
                                 blockHead("CD", "\\b\\") + "no values\r\n");
  ASSERT_TRUE(some.readFiles({1, 2}, [] { return false; }));
  ASSERT_EQ(some.files().size(), 2U);
  EXPECT_EQ(some.files()[0].name, "y");
  EXPECT_EQ(some.files()[0].size, 11);
  EXPECT_TRUE(some.files()[0].modified.has_value());
  EXPECT_EQ(some.folders().path(some.files()[0].folder), "\\a\\");
  EXPECT_EQ(some.files()[1].name, "no values");
  EXPECT_EQ(some.files()[1].size, -1);
  EXPECT_FALSE(some.files()[1].modified.has_value());
  EXPECT_EQ(some.folders().path(some.files()[1].folder), "\\b\\");
  EXPECT_EQ(some.fileAt(2), 1U);
}

TEST_F(ComparedListings, MarksAreInTheOrderOfTheirPathsAndDifferByTheVolumeOnlyWhereItCounts) {
  const QByteArray bytes =
      blockHead("CD 1", "\\a\\") + entryLine("x", "10") + blockHead("CD 2", "\\a\\") + entryLine("x", "10");
  const std::vector<FileMark> same = listing(bytes).takeMarks({});
  ASSERT_EQ(same.size(), 2U);
  EXPECT_EQ(same[0].path, same[1].path);
  EXPECT_EQ(same[0].values, same[1].values);
  EXPECT_EQ(same[0].place, 0U);
  EXPECT_EQ(same[1].place, 1U);
  const std::vector<FileMark> two = listing(bytes).takeMarks({.withVolume = true});
  EXPECT_LT(two[0].path, two[1].path);
}

}  // namespace
}  // namespace quorvin
