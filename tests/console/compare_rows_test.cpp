// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/compare_rows.h"

#include "catalogue/opened_bytes.h"
#include "support/listing_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;
using testing::StartsWith;

class ComparisonRows : public testing::Test {
 protected:
  ComparisonRows()
      : before_(test::openerOf(blockHead("CD 1", "\\a\\") + entryLine("x")), QLocale::c()),
        after_(test::openerOf(blockHead("CD 1", "\\a\\") + entryLine("x") + entryLine("a, \"b\"\t\x1B[2J") +
                              "no values\r\n" + blockHead("CD 2", "\\c\\") + entryLine("y", "1")),
               QLocale::c()),
        comparison_(before_, after_) {
    EXPECT_TRUE(comparison_.run([] { return false; }));
  }

  std::string rows(const CompareRows::Options& options) const {
    const CompareRows rows(comparison_, options, QLocale::c());
    std::string text;
    for (const FileChange& change : comparison_.changes()) rows.addChange(text, change);
    return text;
  }

 private:
  ComparedListing before_;
  ComparedListing after_;

 protected:
  ListingComparison comparison_;
};

TEST_F(ComparisonRows, SayTheVolumeWhereThereAreSeveral) {
  EXPECT_EQ(rows({.isForTerminal = true}),
            "+ CD 1: \\a\\a, \"b\"  [2J, 1.00 kB, 15 Jan 2004 10:20:30\n"
            "+ CD 1: \\a\\no values\n"
            "+ CD 2: \\c\\y, 1 bytes, 15 Jan 2004 10:20:30\n");
}

TEST_F(ComparisonRows, KeepTheirCellsWhateverTheNames) {
  EXPECT_THAT(rows({.format = TableFormat::Csv}),
              StartsWith("added,1024,2004-01-15T10:20:30,CD 1,\\a\\,\"a, \"\"b\"\"\t\x1B[2J\",,,,,\n"
                         "added,,,CD 1,\\a\\,no values,,,,,\n"));
  EXPECT_THAT(rows({.format = TableFormat::Tsv}),
              StartsWith("added\t1024\t2004-01-15T10:20:30\tCD 1\t\\a\\\ta, \"b\"  [2J\t\t\t\t\t\n"));
  EXPECT_THAT(rows({.format = TableFormat::Json, .endsWithNul = true}),
              StartsWith("{\"change\":\"added\",\"size\":1024,\"modified\":\"2004-01-15T10:20:30\","
                         "\"volume\":\"CD 1\",\"folder\":\"\\\\a\\\\\","
                         "\"name\":\"a, \\\"b\\\"\\u0009\\u001b[2J\"}\n"));
}

TEST(FoldersOfAComparison, AreOneWhateverTheVolumeIsCalled) {
  const auto block = [](const QByteArray& volume, const QByteArray& names) {
    QByteArray listing = blockHead(volume, "\\a\\");
    for (const char name : names) listing += entryLine(QByteArray(1, name), "1");
    return listing;
  };
  ComparedListing before(test::openerOf(block("CD", "ace")), QLocale::c());
  ComparedListing after(test::openerOf(block("COPY", "bd")), QLocale::c());
  ListingComparison comparison(before, after);
  ASSERT_TRUE(comparison.run([] { return false; }));
  const std::vector<FolderChanges> folders = changesOfFolders(comparison);
  ASSERT_EQ(folders.size(), 1U);
  EXPECT_EQ(folders[0].sums[0], (FileSum{2, 2})) << "added";
  EXPECT_EQ(folders[0].sums[1], (FileSum{3, 3})) << "removed";
}

TEST_F(ComparisonRows, SumUpFoldersInTheOrderOfTheChanges) {
  const std::vector<FolderChanges> folders = changesOfFolders(comparison_);
  ASSERT_EQ(folders.size(), 2U);
  EXPECT_EQ(folders[0].sums[0], (FileSum{2, 1024}));
  EXPECT_EQ(folders[1].sums[0], (FileSum{1, 1}));
}

}  // namespace
}  // namespace quorvin
