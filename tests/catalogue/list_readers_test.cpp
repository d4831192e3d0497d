// SPDX-License-Identifier: GPL-2.0-or-later

// Rows of each format, as their programs write them.
#include "catalogue/import/list_readers.h"

#include "catalogue/import/list_dates.h"
#include "catalogue/list_entries.h"
#include "support/fault_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::momentOf;
using test::readLines;
using test::ReadList;
using test::wallClockOf;
using testing::ElementsAre;

ListEntry file(const char* path, std::optional<std::int64_t> size = {}, ListDate date = {}) {
  return {path, EntryKind::File, size, date};
}
ListEntry folder(const char* path) {
  return {path, EntryKind::Folder};
}
ListEntry unknown(const char* path, std::optional<std::int64_t> size = {}, ListDate date = {}) {
  return {path, EntryKind::Unknown, size, date};
}

ListReadOptions madeOn(int year, int month, int day) {
  ListReadOptions options;
  options.made = wallClockDay(year, month, day);
  return options;
}

TEST(LsLists, FoldersTotalsAndAllKindsOfRows) {
  const ReadList list =
      readLines(*makeLsReader({}, LsNames::Plain),
                {".:", "total 12", "drwxr-xr-x 2 ann users 4096 Jan 15  2004 a b",
                 "-rw-r--r--+ 1 ann domain users 5 Jan 15  2004  lead",
                 "lrwxrwxrwx 1 ann users 3 Jan 15  2004 link -> b -> c",
                 "brw-rw---- 1 root disk 8, 1 Jan 15  2004 sda1", "prw-r--r-- 1 ann users 0 Jan 15  2004 p",
                 "", "./a b:", "total 1.2M", "-rw-r--r-- 1 0 0 5000000000 Dec 31  1969 big", "what?"});
  EXPECT_EQ(list.says, "e-eee---e-e?");
  EXPECT_THAT(
      list.entries,
      ElementsAre(folder("."), folder("./a b"), file("./ lead", 5, wallClockOf("2004-01-15 00:00:00")),
                  file("./link"), folder("./a b"),
                  file("./a b/big", 5'000'000'000, wallClockOf("1969-12-31 00:00:00"))));
}

TEST(LsLists, DatesInEachStyle) {
  const auto read = [](std::string_view row) {
    const ReadList list = readLines(*makeLsReader(madeOn(2026, 11, 23), LsNames::Plain), {row});
    return list.entries.empty() ? ListEntry{} : list.entries.front();
  };
  EXPECT_EQ(read("-rw-r--r-- 1 ann users 5 Nov 22 10:20 x"),
            file("x", 5, wallClockOf("2026-11-22 10:20:00")));
  EXPECT_EQ(read("-rw-r--r-- 1 ann users 5 2004-01-15 10:20:30.250000000 +0100  x"),
            file(" x", 5, momentOf("2004-01-15 09:20:30")));
  EXPECT_EQ(read("-rw-r--r-- 1 ann users 5 2004-01-15 10:20 x"),
            file("x", 5, wallClockOf("2004-01-15 10:20:00")));
  EXPECT_EQ(read("-rw-r--r-- 1 ann users 5 2004-01-15  x"), file("x", 5, wallClockOf("2004-01-15 00:00:00")));
  EXPECT_EQ(read("-rw-r--r-- 1 ann users 5 11-22 10:20 x"), file("x", 5, wallClockOf("2026-11-22 10:20:00")));
  EXPECT_EQ(read("-rw-r--r-- 1 ann users 5 1074162030 x"), file("x", 5, momentOf("2004-01-15 10:20:30")));
  EXPECT_EQ(read("-rw-r--r-- 1 0 0 5000000000 1074162030 x"),
            file("x", 5'000'000'000, momentOf("2004-01-15 10:20:30")));
  EXPECT_EQ(read("-rw-r--r--  1 ann  staff  5 Nov 22 10:20:30 2019 x"),
            file("x", 5, wallClockOf("2019-11-22 10:20:30")));
  // Rounded, so not told.
  EXPECT_EQ(read("-rw-r--r-- 1 ann users 1.5K Jan 15  2004 x"),
            file("x", {}, wallClockOf("2004-01-15 00:00:00")));
  EXPECT_EQ(read(" 123 4 -rw-r--r-- 1 ann users 5 Jan 15  2004 x"),
            file("x", 5, wallClockOf("2004-01-15 00:00:00")));
}

TEST(LsLists, QuotedAndEscapedNames) {
  const ListDate date = wallClockOf("2004-01-15 00:00:00");
  const ReadList quoted =
      readLines(*makeLsReader({}, LsNames::Quoted),
                {"\"./a b\":", "-rw-r--r-- 1 a a 5 Jan 15  2004 \"new\\nline\"",
                 "lrwxrwxrwx 1 a a 5 Jan 15  2004 \"l\" -> \"t\"", "-rw-r--r-- 1 a a 5 Jan 15  2004 open"});
  EXPECT_EQ(quoted.says, "eee?");
  EXPECT_THAT(quoted.entries,
              ElementsAre(folder("./a b"), file("./a b/new\nline", 5, date), file("./a b/l")));
  const ReadList escaped = readLines(
      *makeLsReader({}, LsNames::Escaped),
      {"-rw-r--r-- 1 a a 5 Jan 15  2004 \\ new\\nline\\\\\\344", "-rw-r--r-- 1 a a 5 Jan 15  2004 a b"});
  EXPECT_EQ(escaped.says, "e?");
  const ReadList below =
      readLines(*makeLsReader({}, LsNames::Escaped), {"./a b\\:\\n:", "-rw-r--r-- 1 a a 5 Jan 15  2004 x", "",
                                                      "./\\q:", "-rw-r--r-- 1 a a 5 Jan 15  2004 lost"});
  EXPECT_EQ(below.says, "ee-??");
  EXPECT_THAT(below.entries, ElementsAre(folder("./a b:\n"), file("./a b:\n/x", 5, date)));
  EXPECT_THAT(escaped.entries, ElementsAre(file(" new\nline\\\xE4", 5, date)));
}

TEST(LsLists, WhatIsBelowAHeadWithALineEndIsNotOfTheFolderBefore) {
  const ReadList list =
      readLines(*makeLsReader({}, LsNames::Plain),
                {".:", "total 0", "", "./new", "line:", "total 0", "-rw-r--r-- 1 a a 5 Jan 15  2004 lost", "",
                 "./b:", "-rw-r--r-- 1 a a 5 Jan 15  2004 x"});
  EXPECT_EQ(list.says, std::string("e--????") + "-ee");
  EXPECT_EQ(list.entries.back().path, "./b/x");
}

TEST(FindLsLists, PathsHaveEscapes) {
  const ReadList list =
      readLines(*makeFindLsReader({}),
                {" 11087097      4 drwxr-xr-x   4 root     root         4096 Nov 23 02:40 .",
                 " 11087076      4 -rw-r--r--   1 root     root            6 Jan 15  2004 ./a\\ b/x\\ y.txt",
                 " 11087104      4 -rw-r--r--   1 root     root            1 Jan 15  2004 ./\\303\\274.txt",
                 " 11087122      0 lrwxrwxrwx   1 root     root            3 Jan 15  2004 ./link -> big",
                 "-rw-r--r-- 1 root root 6 Jan 15  2004 x"});
  EXPECT_EQ(list.says, "eeee?");
  EXPECT_THAT(list.entries,
              ElementsAre(folder("."), file("./a b/x y.txt", 6, wallClockOf("2004-01-15 00:00:00")),
                          file("./\u00FC.txt", 1, wallClockOf("2004-01-15 00:00:00")), file("./link")));
}

TEST(TarLists, RowsWithOwnerAndGroup) {
  const ReadList list = readLines(
      *makeTarReader({}),
      {"drwxr-xr-x root/root         0 2026-11-23 02:40 ./a b/",
       "-rw-r--r-- 0/0 6 2004-01-15 10:20 ./ lead\\n\\\\", "-rw-r--r-- 0/0 6 2004-01-15 10:20:30.5 full",
       "lrwxrwxrwx root/root 0 2026-11-23 02:40 ./link -> big",
       "hrw-r--r-- root/root 0 2004-01-15 10:20 other link to full",
       "crw-r--r-- root/root 1,3 2004-01-15 10:20 null", "-rw-r--r-- 1 root root 6 Jan 15  2004 x"});
  EXPECT_EQ(list.says, "eeeee-?");
  EXPECT_THAT(list.entries,
              ElementsAre(folder("./a b/"), file("./ lead\n\\", 6, wallClockOf("2004-01-15 10:20:00")),
                          file("full", 6, wallClockOf("2004-01-15 10:20:30")), file("./link"),
                          file("other", {}, wallClockOf("2004-01-15 10:20:00"))));
}

TEST(RsyncLists, SizesAreGroupedAndNamesHaveNumbers) {
  const ReadList list =
      readLines(*makeRsyncReader({}), {"drwxr-xr-x          4,096 2026/11/23 02:40:21 .",
                                       "-rw-r--r--  5,000,000,000 2004/01/15 10:20:30 new\\#012line",
                                       "-rw-r--r--  5 2004/01/15 10:20:30 \\#9 \\x",
                                       "lrwxrwxrwx  3 2004/01/15 10:20:30 link -> big",
                                       "-rw-r--r-- 1 root root 6 2004-01-15 10:20 x"});
  EXPECT_EQ(list.says, "eeee?");
  EXPECT_THAT(list.entries,
              ElementsAre(folder("."), file("new\nline", 5'000'000'000, wallClockOf("2004-01-15 10:20:30")),
                          file("\\#9 \\x", 5, wallClockOf("2004-01-15 10:20:30")), file("link")));
}

TEST(UnzipLists, RowsAreBetweenTheLinesOfDashes) {
  const ReadList list =
      readLines(*makeUnzipReader({}),
                {"Archive:  old.zip", "a comment", "  Length      Date    Time    Name",
                 "---------  ---------- -----   ----", "        0  2004-01-15 10:20   a b/",
                 "5000000000  2004-01-15 10:20    lead", "junk", "---------                     -------",
                 "5000000000                     2 files"});
  EXPECT_EQ(list.says, "----ee?--");
  ListEntry top = folder("a b/");
  top.size = 0;
  top.modified = wallClockOf("2004-01-15 10:20:00");
  EXPECT_THAT(list.entries,
              ElementsAre(top, file(" lead", 5'000'000'000, wallClockOf("2004-01-15 10:20:00"))));
  const ReadList verbose =
      readLines(*makeUnzipReader({}), {" Length   Method    Size  Cmpr    Date    Time   CRC-32   Name",
                                       "--------  ------  ------- ---- ---------- ----- --------  ----",
                                       "      20  Defl:N        7  65% 2004-01-15 10:20 a0f3c1e2  x y.txt",
                                       "      21  Stored       21   0% 01-15-2004 10:20 a0f3c1e2  z",
                                       "--------          -------  ---                            -------"});
  EXPECT_EQ(verbose.says, "--ee-");
  ListDate monthFirst = wallClockOf("2004-01-15 10:20:00");
  monthFirst.evidence = DayMonthOrder::MonthFirst;
  EXPECT_THAT(verbose.entries, ElementsAre(file("x y.txt", 20, wallClockOf("2004-01-15 10:20:00")),
                                           file("z", 21, monthFirst)));
}

TEST(RcloneLists, SizeDateAndPath) {
  const ReadList list = readLines(*makeRcloneReader({}),
                                  {"        5 2004-01-15 10:20:30.000000000 a/x y.txt",
                                   "       -1 2004-01-15 10:20:30.123456789 doc", "5 2004-01-15 10:20:30 x"});
  EXPECT_EQ(list.says, "ee?");
  EXPECT_THAT(list.entries, ElementsAre(file("a/x y.txt", 5, wallClockOf("2004-01-15 10:20:30")),
                                        file("doc", {}, wallClockOf("2004-01-15 10:20:30"))));
}

TEST(RcloneLists, PicturesOfControlCharactersStandForThem) {
  const ReadList list =
      readLines(*makeRcloneReader({}),
                {"5 2004-01-15 10:20:30.0 new\u240Aline", "5 2004-01-15 10:20:30.0 \u241B[2J\u2421",
                 "5 2004-01-15 10:20:30.0 its own \u201B\u240A", "5 2004-01-15 10:20:30.0 \u201Bx \u2422",
                 "5 2004-01-15 10:20:30.0 cut \xE2\x90"});
  const ListDate date = wallClockOf("2004-01-15 10:20:30");
  EXPECT_THAT(list.entries, ElementsAre(file("new\nline", 5, date), file("\x1B[2J\x7F", 5, date),
                                        file("its own \u240A", 5, date), file("\u201Bx \u2422", 5, date),
                                        file("cut \xE2\x90", 5, date)));
}

TEST(DuLists, AFolderComesBehindWhatIsInIt) {
  const std::vector<std::string_view> lines{"4\t./a b/x y.txt", "8\t./a b", "1.5M\t./z", "12\t."};
  const ReadList list = readLines(*makeDuReader({}), lines);
  EXPECT_EQ(list.says, "eeee");
  EXPECT_THAT(list.entries,
              ElementsAre(unknown("./a b/x y.txt"), folder("./a b"), unknown("./z"), folder(".")));
  ListReadOptions bytes;
  bytes.areSizesBytes = true;
  const ReadList exact = readLines(*makeDuReader(bytes), {"5\t2004-01-15 10:20\t./x", "not"});
  EXPECT_EQ(exact.says, "e?");
  EXPECT_THAT(exact.entries, ElementsAre(unknown("./x", 5, wallClockOf("2004-01-15 10:20:00"))));
}

TEST(TreeLists, BranchesOfBothKinds) {
  for (const auto& [branch, stem, last] :
       {std::tuple{"\u251C\u2500\u2500 ", "\u2502\u00A0\u00A0 ", "\u2514\u2500\u2500 "},
        std::tuple{"|-- ", "|   ", "`-- "}}) {
    const std::string first = std::string(branch) + "[       4096 Jan 15  2004]  a b/";
    const std::string second = std::string(stem) + last + "[          6 Jan 15  2004]  x y.txt";
    const std::string third = std::string(branch) + "[          3 Jan 15  2004]  link -> b";
    const std::string fourth = std::string(last) + "[drwxr-xr-x         40 Jan 15  2004]  empty";
    const ReadList list = readLines(*makeTreeReader({}), {"[       4096 Jan 15  2004]  .", first, second,
                                                          third, fourth, "", "3 directories, 2 files"});
    EXPECT_EQ(list.says, "-eeee--");
    EXPECT_THAT(list.entries,
                ElementsAre(folder("./a b"), unknown("./a b/x y.txt", 6, wallClockOf("2004-01-15 00:00:00")),
                            file("./link"), folder("./empty")));
  }
}

TEST(TreeLists, WholePathsAndQuotesAndNoFacts) {
  const ReadList list = readLines(
      *makeTreeReader({}), {".", "|-- ./a", "|   `-- ./a/x", "`-- \"quo\\\"te\"", "        `-- too deep"});
  EXPECT_EQ(list.says, "-eee?");
  EXPECT_THAT(list.entries, ElementsAre(unknown("./a"), unknown("./a/x"), unknown("./quo\"te")));
}

TEST(Checksums, PlainEscapedTaggedAndOtherLines) {
  const std::string sum(32, 'a');
  const std::string longSum(64, 'B');
  const std::string plain = sum + "  dir/a b";
  const std::string binary = longSum + " *dir/c";
  const std::string escaped = '\\' + sum + "  new\\nline\\\\";
  const std::string tagged = "SHA256 (a (1) = b) = " + longSum;
  const ReadList list =
      readLines(*makeChecksumsReader({}), {plain, binary, escaped, tagged, "; made by hand", "abc  x"});
  EXPECT_EQ(list.says, "eeee-?");
  EXPECT_THAT(list.entries,
              ElementsAre(file("dir/a b"), file("dir/c"), file("new\nline\\"), file("a (1) = b")));
}

TEST(BagItManifests, PathsHavePercentSigns) {
  const std::string sum(40, '1');
  const std::string row = sum + "\tdata/a%0Ab%25.txt";
  const std::string outside = sum + " other/x";
  const ReadList list = readLines(*makeBagItReader({}), {row, outside});
  EXPECT_EQ(list.says, "e?");
  EXPECT_THAT(list.entries, ElementsAre(file("data/a\nb%.txt")));
}

TEST(PathLists, OnlyWholePathsAreSure) {
  const ReadList list = readLines(*makePathsReader({}), {"/a/b", "./c/", "plain", ""});
  EXPECT_EQ(list.says, "eed-");
  EXPECT_THAT(list.entries, ElementsAre(unknown("/a/b"), folder("./c/"), unknown("plain")));
}

ListReadOptions pattern(const char* text) {
  ListReadOptions options;
  options.pattern = text;
  return options;
}

TEST(PrintfLists, ReadBackByTheirPattern) {
  const ListDate date = momentOf("2004-01-15 10:20:30");
  EXPECT_THAT(
      readLines(*makePrintfReader(pattern("%s %T@ %p\\n")), {"5 1074162030.2500000000 ./a b"}).entries,
      ElementsAre(unknown("./a b", 5, date)));
  EXPECT_THAT(
      readLines(*makePrintfReader(pattern("%y\\t%h\\t%f\\t%s\\t%TY-%Tm-%Td %TH:%TM:%TS\\0")),
                {"f\t./a b\tx\t5\t2004-01-15 10:20:30.2500000000", "d\t.\ta b\t4096\t2004-01-15 10:20:30.0",
                 "s\t.\tsocket\t0\t2004-01-15 10:20:30.0", "f\t."})
          .entries,
      ElementsAre(file("./a b/x", 5, wallClockOf("2004-01-15 10:20:30")), folder("./a b")));
  EXPECT_THAT(
      readLines(*makePrintfReader(pattern("%p (%10s bytes)")), {"./a (5 bytes) (       7 bytes)"}).entries,
      ElementsAre(unknown("./a (5 bytes)", 7)));
  EXPECT_THAT(
      readLines(*makePrintfReader(pattern("%T+ %u 100%% %P")), {"2004-01-15+10:20:30.2500000000 ann 100% x"})
          .entries,
      ElementsAre(unknown("x", {}, wallClockOf("2004-01-15 10:20:30"))));
}

TEST(PrintfLists, PatternsThatCannotBeReadBackAreRefused) {
  for (const char* wrong : {"%s\\n", "", "%p\\n%s", "%p\\q", "%p%"}) {
    EXPECT_FAULT(static_cast<void>(makePrintfReader(pattern(wrong))), 5) << wrong;
  }
}

TEST(Tables, TheTitlesSayWhatIsInTheColumns) {
  const auto reader = makeTableReader({});
  const ReadList list = readLines(
      *reader, {"Name;Folder;Size;Date Modified;Note", "\"a;b\"\"c\";C:\\Music\\;1.234;15.01.2004 10:20;",
                "\"new", "line\";C:\\Music;1 KB;yesterday;x", "short;row"});
  EXPECT_EQ(list.says, "-e-e?");
  EXPECT_THAT(list.entries, ElementsAre(unknown("/Music/a;b\"c", 1234, wallClockOf("2004-01-15 10:20:00")),
                                        unknown("/Music/new\nline")));
  EXPECT_EQ(reader->decided(),
            "folder=2 \"Folder\", name=1 \"Name\", size=3 \"Size\", date=4 \"Date Modified\"");
}

TEST(Tables, ColumnsCanBeSaidByNumberOrTitle) {
  ListReadOptions options;
  options.columns = "path=2, size=Wie viel,date=4,type=1";
  const auto reader = makeTableReader(options);
  const ReadList list =
      readLines(*reader, {"?,Was,Wie viel,Wann", "dir,/a,0,", "file,/a/x,5,2004-01-15T10:20:30Z"});
  EXPECT_EQ(list.says, "-ee");
  EXPECT_THAT(list.entries, ElementsAre(folder("/a"), file("/a/x", 5, momentOf("2004-01-15 10:20:30"))));
  options.columns = "colour=2";
  EXPECT_FAULT(static_cast<void>(makeTableReader(options)), 5);
}

TEST(Tables, WithoutATitleThatSaysAnythingNothingIsUnderstood) {
  EXPECT_EQ(readLines(*makeTableReader({}), {"red,green", "a,b"}).says, "??");
}

}  // namespace
}  // namespace quorvin
