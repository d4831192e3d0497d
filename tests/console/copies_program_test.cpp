// SPDX-License-Identifier: GPL-2.0-or-later

// "copies" as a user runs it.
#include "console/console_program.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QFile>

#include <utility>
#include <vector>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

class CopiesProgram : public test::ConsoleProgramTest {
 protected:
  CopiesProgram() {
    folder.writeFile(u"cd1.txt"_qs, blockHead("CD 1", "\\Films\\") + entryLine("film.avi", "734,003,200") +
                                        entryLine("notes.txt", "2,048") +
                                        blockHead("CD 1", "\\Photos\\2004\\") +
                                        entryLine("a.jpg", "1,048,576") + entryLine("b.jpg", "524,288") +
                                        entryLine("__init__.py", "0"));
    folder.writeFile(u"cd2.txt"_qs,
                     blockHead("CD 2", "\\Backup\\Films\\") + entryLine("Film.avi", "734,003,200") +
                         blockHead("CD 2", "\\Backup\\Pictures\\") + entryLine("a.jpg", "1,048,576") +
                         entryLine("b.jpg", "524,288") + entryLine("__init__.py", "0") +
                         blockHead("CD 2", "\\") + entryLine("only here.txt", "10") + "no size.txt\r\n");
  }

  test::Ended copies(const QStringList& arguments) {
    return run(QStringList{u"copies"_qs} + arguments + QStringList{u"cd1.txt"_qs, u"cd2.txt"_qs});
  }
};

TEST_F(CopiesProgram, ShowsWhatWastesMostWithEachPlaceAndTheSum) {
  const test::Ended ended = copies({u""_qs});
  EXPECT_EQ(ended.output,
            "2 copies of 700.00 MB: film.avi\n"
            "  CD 1: \\Films\\\n"
            "  CD 2: \\Backup\\Films\\\n"
            "2 equal folders of 1.50 MB with 3 files: 2004\n"
            "  CD 1: \\Photos\\2004\\\n"
            "  CD 2: \\Backup\\Pictures\\\n");
  EXPECT_EQ(ended.errors,
            u"Files with copies: 3. Copies beyond the first: 3, of 701.50 MB altogether\n"
            "Left out, since their exact size is not known: 1\n"_qs);
  EXPECT_EQ(ended.status, 0);
}

TEST_F(CopiesProgram, ShowsTheSameFromKeptSegmentsAndWithoutAnyCache) {
  const test::Ended first = copies({u""_qs});
  const test::Ended second = copies({u""_qs});
  const test::Ended third = copies({u"--no-cache"_qs, u""_qs});
  EXPECT_EQ(second.output, first.output);
  EXPECT_EQ(third.output, first.output);
  EXPECT_EQ(third.errors, first.errors);
}

TEST_F(CopiesProgram, SingleShowsWhatIsOnOneVolumeByVolumeAndFolder) {
  const test::Ended ended = copies({u"--single"_qs, u""_qs});
  EXPECT_EQ(ended.output,
            "CD 1: 1 file, 2.00 kB\n"
            "  \\Films\\: 1 file, 2.00 kB\n"
            "    notes.txt, 2.00 kB\n"
            "CD 2: 1 file, 10 bytes\n"
            "  \\: 1 file, 10 bytes\n"
            "    only here.txt, 10 bytes\n");
  EXPECT_EQ(ended.errors,
            u"Files on one volume only: 2, of 2.01 kB altogether\n"
            "Left out, since their exact size is not known: 1\n"_qs);
}

TEST_F(CopiesProgram, SumsAreForVolumesOrFolders) {
  EXPECT_EQ(copies({u"--by-volume"_qs, u""_qs}).output, "CD 2: 3 files, 701.50 MB\n");
  EXPECT_EQ(copies({u"--by-folder"_qs, u""_qs}).output,
            "CD 2: \\Backup\\Films\\: 1 file, 700.00 MB\n"
            "CD 2: \\Backup\\Pictures\\: 2 files, 1.50 MB\n");
  EXPECT_EQ(copies({u"--single"_qs, u"--by-volume"_qs, u""_qs}).output,
            "CD 1: 1 file, 2.00 kB\n"
            "CD 2: 1 file, 10 bytes\n");
  EXPECT_EQ(
      copies({u"--single"_qs, u"--by-folder"_qs, u"--format"_qs, u"tsv"_qs, u"--header"_qs, u""_qs}).output,
      "files\tsize\tvolume\tfolder\tlisting\n"
      "1\t2048\tCD 1\t\\Films\\\tcd1.txt\n"
      "1\t10\tCD 2\t\\\tcd2.txt\n");
  EXPECT_EQ(copies({u"--by-volume"_qs, u"--by-folder"_qs, u""_qs}).status, 2);
}

TEST_F(CopiesProgram, JsonHasAnObjectForEachGroup) {
  EXPECT_EQ(copies({u"--format"_qs, u"json"_qs, u""_qs}).output,
            "{\"kind\":\"file\",\"name\":\"film.avi\",\"size\":734003200,\"copies\":2,\"volumes\":2,"
            "\"beyondFirst\":734003200,\"places\":["
            "{\"volume\":\"CD 1\",\"folder\":\"\\\\Films\\\\\",\"listing\":\"cd1.txt\"},"
            "{\"volume\":\"CD 2\",\"folder\":\"\\\\Backup\\\\Films\\\\\",\"listing\":\"cd2.txt\"}]}\n"
            "{\"kind\":\"folder\",\"name\":\"2004\",\"size\":1572864,\"files\":3,\"copies\":2,\"volumes\":2,"
            "\"beyondFirst\":1572864,\"places\":["
            "{\"volume\":\"CD 1\",\"folder\":\"\\\\Photos\\\\2004\\\\\",\"listing\":\"cd1.txt\"},"
            "{\"volume\":\"CD 2\",\"folder\":\"\\\\Backup\\\\Pictures\\\\\",\"listing\":\"cd2.txt\"}]}\n");
  EXPECT_EQ(copies({u"--single"_qs, u"--format"_qs, u"json"_qs, u"--limit"_qs, u"1"_qs, u""_qs}).output,
            "{\"size\":2048,\"name\":\"notes.txt\",\"volume\":\"CD 1\",\"folder\":\"\\\\Films\\\\\","
            "\"listing\":\"cd1.txt\"}\n");
}

TEST_F(CopiesProgram, TsvAndCsvHaveARowForEachPlace) {
  EXPECT_EQ(copies({u"--format"_qs, u"tsv"_qs, u"--header"_qs, u""_qs}).output,
            "group\tkind\tcopies\tsize\tname\tvolume\tfolder\tlisting\n"
            "1\tfile\t2\t734003200\tfilm.avi\tCD 1\t\\Films\\\tcd1.txt\n"
            "1\tfile\t2\t734003200\tfilm.avi\tCD 2\t\\Backup\\Films\\\tcd2.txt\n"
            "2\tfolder\t2\t1572864\t2004\tCD 1\t\\Photos\\2004\\\tcd1.txt\n"
            "2\tfolder\t2\t1572864\tPictures\tCD 2\t\\Backup\\Pictures\\\tcd2.txt\n");
  EXPECT_EQ(copies({u"--format"_qs, u"csv"_qs, u"--limit"_qs, u"1"_qs, u"-0"_qs, u""_qs}).output.split('\0'),
            (QByteArrayList{"1,file,2,734003200,film.avi,CD 1,\\Films\\,cd1.txt",
                            "1,file,2,734003200,film.avi,CD 2,\\Backup\\Films\\,cd2.txt", ""}));
}

TEST_F(CopiesProgram, WordsChooseWhatIsShown) {
  EXPECT_EQ(copies({u"-q"_qs, u"--limit"_qs, u"5"_qs, u"FILMS"_qs}).output,
            "2 copies of 700.00 MB: film.avi\n"
            "  CD 1: \\Films\\\n"
            "  CD 2: \\Backup\\Films\\\n");
  EXPECT_EQ(copies({u"--match"_qs, u"99"_qs, u"films photos"_qs}).status, 1);
  EXPECT_EQ(copies({u"--match"_qs, u"many"_qs, u"films"_qs}).status, 2);
}

TEST_F(CopiesProgram, EmptyFilesAreShownOnWish) {
  folder.writeFile(u"cd3.txt"_qs, blockHead("CD 3", "\\x\\") + entryLine("__init__.py", "0"));
  const test::Ended ended =
      run({u"copies"_qs, u"-q"_qs, u"--empty"_qs, u"init"_qs, u"cd1.txt"_qs, u"cd3.txt"_qs});
  EXPECT_EQ(ended.output,
            "2 copies of 0 bytes: __init__.py\n"
            "  CD 1: \\Photos\\2004\\\n"
            "  CD 3: \\x\\\n");
  EXPECT_EQ(ended.errors, QString());
}

TEST_F(CopiesProgram, VolumesOfTheSameNameAreToldApartByTheirListings) {
  folder.writeFile(u"again.txt"_qs, folder.readFile(u"cd1.txt"_qs));
  EXPECT_EQ(run({u"copies"_qs, u"-q"_qs, u"notes.txt"_qs, u"cd1.txt"_qs, u"again.txt"_qs}).output,
            "2 equal folders of 701.50 MB with 5 files: CD 1\n"
            "  CD 1 (cd1.txt): \\\n"
            "  CD 1 (again.txt): \\\n");
}

TEST_F(CopiesProgram, UserSourcesAreLookedThroughWithoutAListing) {
  const test::Ended none = run({u"copies"_qs});
  EXPECT_EQ(none.status, 2);
  EXPECT_EQ(none.errors,
            u"quorvin-cli: there is nothing to search yet. Name listings after the words, or add folders or "
            "lists with quorvin-cli sources add\n"_qs);
  EXPECT_EQ(run({u"sources"_qs, u"add"_qs, u"cd1.txt"_qs, u"cd2.txt"_qs}).status, 0);
  EXPECT_EQ(run({u"copies"_qs, u"--by-volume"_qs}).output, "CD 2: 3 files, 701.50 MB\n");
}

TEST_F(CopiesProgram, AMissingListingIsReportedAndTheOthersAreCompared) {
  const test::Ended ended =
      run({u"copies"_qs, u"-q"_qs, u""_qs, u"cd1.txt"_qs, u"gone.txt"_qs, u"cd2.txt"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors, u"quorvin-cli: Listing file not found: gone.txt\n"_qs);
  EXPECT_TRUE(ended.output.startsWith("2 copies of 700.00 MB: film.avi\n")) << ended.output.toStdString();
}

TEST_F(CopiesProgram, AListingThatIsNamedTwiceIsTwoListings) {
  for (int i = 0; i < 2; ++i) {
    const test::Ended ended =
        run({u"copies"_qs, u"-q"_qs, u"--single"_qs, u""_qs, u"cd1.txt"_qs, u"cd1.txt"_qs});
    EXPECT_EQ(ended.output, QByteArray());
    EXPECT_EQ(ended.status, 1);
  }
}

TEST_F(CopiesProgram, StandardInputIsAListing) {
  process.setStandardInputFile(folder.pathOf(u"cd2.txt"_qs));
  EXPECT_EQ(run({u"copies"_qs, u"-q"_qs, u"films"_qs, u"cd1.txt"_qs, u"-"_qs}).output,
            "2 copies of 700.00 MB: film.avi\n"
            "  CD 1: \\Films\\\n"
            "  CD 2: \\Backup\\Films\\\n");
}

/// Own folders with files of their own.
class CopiesOfOwnFiles : public test::ConsoleProgramTest {
 protected:
  void addFolder(const QString& name, const std::vector<std::pair<QString, QByteArray>>& files) {
    folder.makeFolder(name);
    for (const auto& [file, content] : files) folder.writeFile(name + u'/' + file, content);
    ASSERT_EQ(run({u"sources"_qs, u"add"_qs, name}).status, 0);
    ASSERT_EQ(run({u"refresh"_qs, u"-q"_qs, name}).status, 0);
  }
  test::Ended byContent(const QStringList& more = {}) {
    return run(QStringList{u"copies"_qs, u"--content"_qs} + more);
  }
};

TEST_F(CopiesOfOwnFiles, ContentTellsFilesWithTheSameNameAndSizeApart) {
  addFolder(u"one"_qs, {{u"letter.txt"_qs, "Dear Ann"}, {u"photo.jpg"_qs, "the same"}});
  addFolder(u"two"_qs, {{u"letter.txt"_qs, "Dear Bob"}, {u"photo.jpg"_qs, "the same"}});
  const test::Ended named = run({u"copies"_qs, u"-q"_qs, u"letter"_qs});
  EXPECT_TRUE(named.output.contains("letter.txt") || named.output.contains("2 equal folders"))
      << named.output.toStdString();
  const test::Ended ended = byContent();
  EXPECT_TRUE(ended.output.startsWith("2 copies of 8 bytes: photo.jpg\n")) << ended.output.toStdString();
  EXPECT_FALSE(ended.output.contains("letter"));
  EXPECT_TRUE(
      ended.errors.contains(u"Looked into: 4, of 32 bytes altogether. Files that hold something else in "
                            "spite of the same name and size: 1. Not at hand, so judged by name and size: "
                            "0\n"_qs))
      << ended.errors.toStdString();
  const test::Ended single = byContent({u"--single"_qs});
  EXPECT_EQ(single.output.count("letter.txt, 8 bytes"), 2) << single.output.toStdString();
  EXPECT_EQ(byContent({u"letter"_qs}).status, 1);
}

TEST_F(CopiesOfOwnFiles, WhatIsNotAtHandIsJudgedByNameAndSize) {
  addFolder(u"one"_qs, {{u"a.txt"_qs, "12345"}, {u"b.txt"_qs, "12345"}});
  addFolder(u"two"_qs, {{u"a.txt"_qs, "54321"}, {u"b.txt"_qs, "12345"}});
  folder.writeFile(u"cd.txt"_qs, blockHead("CD", "\\") + entryLine("a.txt", "5"));
  ASSERT_EQ(run({u"sources"_qs, u"add"_qs, u"cd.txt"_qs}).status, 0);
  // One is gone, and the other has grown.
  QFile::remove(folder.pathOf(u"one/a.txt"_qs));
  folder.writeFile(u"one/b.txt"_qs, "123456");
  const test::Ended ended = byContent();
  EXPECT_TRUE(ended.output.startsWith("2 equal folders of 10 bytes with 2 files: one\n"))
      << ended.output.toStdString();
  EXPECT_TRUE(ended.output.contains("\n3 copies of 5 bytes: a.txt\n")) << ended.output.toStdString();
  EXPECT_TRUE(
      ended.errors.contains(u"Looked into: 0, of 0 bytes altogether. Files that hold something else in "
                            "spite of the same name and size: 0. Not at hand, so judged by name and size: "
                            "3\n"_qs))
      << ended.errors.toStdString();
}

TEST_F(CopiesProgram, OutputThatCannotBeWrittenEndsWith2) {
  process.setStandardOutputFile(u"/dev/full"_qs);
  for (const QString& option : {u"--by-folder"_qs, u"--single"_qs, u"--by-volume"_qs}) {
    const test::Ended ended = copies({option, u""_qs});
    EXPECT_EQ(ended.errors, u"quorvin-cli: Disk full: standard output\n"_qs) << option.toStdString();
    EXPECT_EQ(ended.status, 2) << option.toStdString();
  }
}

TEST_F(CopiesProgram, ControlCharactersOfNamesAreBlanks) {
  folder.writeFile(u"odd.txt"_qs, blockHead("A\x1B[1m", "\\1\\") + entryLine("a\x1B[31m", "5") +
                                      blockHead("A\x1B[1m", "\\2\x07\\") + entryLine("a\x1B[31m", "5"));
  EXPECT_EQ(run({u"copies"_qs, u"-q"_qs, u""_qs, u"odd.txt"_qs}).output,
            "2 copies of 5 bytes: a [31m\n"
            "  A [1m: \\1\\\n"
            "  A [1m: \\2 \\\n");
}

}  // namespace
}  // namespace quorvin
