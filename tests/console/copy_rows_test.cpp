// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/copy_rows.h"

#include "catalogue/found_copies.h"
#include "support/listing_lines.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

/// The same file on two volumes, whose names hold what rows are made of.
class RowsOfCopies : public testing::Test {
 protected:
  std::string rows(const CopyRows::Options& options) {
    CopyRows rows(found_.copies, found_.folders, options, QLocale::c());
    std::string text;
    for (const CopyLine& line : copyLines(found_.copies, found_.folders, {})) rows.addLine(text, line, 1);
    return text;
  }

 private:
  test::FoundCopies found_{
      {blockHead("CD, \"1\"", "\\a\\") + entryLine("x\ty", "5") + entryLine("other", "6"),
       blockHead("CD\x1B[2J", "\\b\\") + entryLine("x\ty", "5")}};
};

TEST_F(RowsOfCopies, HaveNoControlCharactersForATerminal) {
  EXPECT_EQ(rows({.isForTerminal = true}), "2 copies of 5 bytes: x y\n  CD, \"1\": \\a\\\n  CD [2J: \\b\\\n");
}

TEST_F(RowsOfCopies, KeepTheirCellsWhateverTheNames) {
  EXPECT_TRUE(rows({.format = TableFormat::Csv}).starts_with("1,file,2,5,x\ty,\"CD, \"\"1\"\"\",\\a\\,"))
      << rows({.format = TableFormat::Csv});
  EXPECT_TRUE(rows({.format = TableFormat::Tsv}).starts_with("1\tfile\t2\t5\tx y\tCD, \"1\"\t\\a\\\t"))
      << rows({.format = TableFormat::Tsv});
  EXPECT_TRUE(rows({.format = TableFormat::Json})
                  .starts_with("{\"kind\":\"file\",\"name\":\"x\\u0009y\",\"size\":5,"))
      << rows({.format = TableFormat::Json});
}

}  // namespace
}  // namespace quorvin
