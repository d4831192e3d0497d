// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_formats.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace quorvin {
namespace {

std::string_view recognised(const std::vector<std::string_view>& lines) {
  const ListFormat* format = recognisedFormat(lines, {});
  return format ? format->name : "none";
}

TEST(ListFormats, AreRecognisedFromTheirFirstLines) {
  const std::string sum(32, 'a');
  const std::string sums = sum + "  data/x";
  const std::string otherSums = sum + "  x";
  EXPECT_EQ(recognised({".:", "total 4", "-rw-r--r-- 1 a a 5 Jan 15  2004 x"}), "ls");
  EXPECT_EQ(recognised({"-rw-r--r-- 1 a a 5 Jan 15  2004 x"}), "ls");
  EXPECT_EQ(recognised({"-rw-r--r--  0 a a 5 Jan 15  2004 dir/x"}), "ls");
  EXPECT_EQ(recognised({"\".\":", "total 4", "-rw-r--r-- 1 a a 5 Jan 15  2004 \"x\""}), "ls-quoted");
  EXPECT_EQ(recognised({".:", "total 4", "-rw-r--r-- 1 a a 5 Jan 15  2004 x\\ y"}), "ls-escaped");
  EXPECT_EQ(recognised({".:", "total 4", "  12 4 -rw-r--r-- 1 a a 5 Jan 15  2004 x"}), "ls");
  EXPECT_EQ(recognised({"  12 4 -rw-r--r-- 1 a a 5 Jan 15  2004 x"}), "find-ls");
  EXPECT_EQ(recognised({"-rw-r--r-- a/a 5 2004-01-15 10:20 x"}), "tar");
  EXPECT_EQ(recognised({"drwxr-xr-x 40 2004/01/15 10:20:30 .", "-rw-r--r-- 5 2004/01/15 10:20:30 x"}),
            "rsync");
  EXPECT_EQ(recognised({"  5 2004-01-15 10:20:30.000000000 x"}), "rclone");
  EXPECT_EQ(recognised({"4\t./x", "8\t."}), "du");
  EXPECT_EQ(recognised({".", "|-- x", "`-- y", "", "0 directories, 2 files"}), "tree");
  EXPECT_EQ(recognised({sums, sums}), "bagit");
  EXPECT_EQ(recognised({sums, otherSums, otherSums}), "checksums");
  EXPECT_EQ(recognised({"path,size", "/a/b,5"}), "csv");
  EXPECT_EQ(recognised({"/a", "/a/b,c"}), "paths");
  EXPECT_EQ(recognised({"Archive:  x.zip", "  Length      Date    Time    Name",
                        "---------  ---------- -----   ----", "        5  2004-01-15 10:20   x"}),
            "unzip");
}

TEST(ListFormats, OtherTextIsNoList) {
  EXPECT_EQ(recognised({}), "none");
  EXPECT_EQ(recognised({""}), "none");
  EXPECT_EQ(recognised({"Dear Ann,", "", "thank you for the list of your records.", "Bob"}), "none");
  EXPECT_EQ(recognised({"#include <stdio.h>", "int main() { return 0; }"}), "none");
}

TEST(ListFormats, HaveNamesOfTheirOwn) {
  std::set<std::string_view> names;
  for (const ListFormat& format : listFormats()) {
    EXPECT_TRUE(names.insert(format.name).second) << format.name;
    EXPECT_EQ(listFormatNamed(format.name), &format);
  }
  EXPECT_EQ(listFormatNamed("other"), nullptr);
}

}  // namespace
}  // namespace quorvin
