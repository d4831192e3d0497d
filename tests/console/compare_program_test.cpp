// SPDX-License-Identifier: GPL-2.0-or-later

// "quorvin-cli compare" as a user runs it.
#include "console/console_program.h"
#include "platform/ini_settings_store.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QDateTime>

#include <csignal>
#include <sys/resource.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

class CompareProgram : public test::ConsoleProgramTest {
 protected:
  CompareProgram() {
    folder.writeFile(u"old.txt"_qs, blockHead("CD", "\\a\\") + entryLine("same", "1") +
                                        entryLine("larger", "2") + entryLine("gone", "3") +
                                        blockHead("CD", "\\b\\") + entryLine("moved", "4"));
    folder.writeFile(u"new.txt"_qs, blockHead("CD", "\\a\\") + entryLine("same", "1") +
                                        entryLine("larger", "20") + entryLine("moved", "4") +
                                        blockHead("CD", "\\c\\") + entryLine("new", "5"));
  }

  test::Ended compare(const QStringList& arguments) { return run(QStringList{u"compare"_qs} + arguments); }
};

TEST_F(CompareProgram, ShowsWhatDiffersAndTheSums) {
  const test::Ended ended = compare({u"old.txt"_qs, u"new.txt"_qs});
  EXPECT_EQ(ended.output,
            "- \\a\\gone, 3 bytes, 15 Jan 2004 10:20:30\n"
            "* \\a\\larger, 20 bytes, 15 Jan 2004 10:20:30 (before: 2 bytes, 15 Jan 2004 10:20:30)\n"
            "> \\a\\moved, 4 bytes, 15 Jan 2004 10:20:30\n"
            "  < \\b\\moved\n"
            "+ \\c\\new, 5 bytes, 15 Jan 2004 10:20:30\n");
  EXPECT_EQ(
      ended.errors,
      u"Added: 1 file, 5 bytes. Removed: 1 file, 3 bytes. Changed: 1 file, 20 bytes. Moved: 1 file, 4 bytes. "
      "The same: 1 file, 1 bytes\n"_qs);
  EXPECT_EQ(ended.status, 1);
}

TEST_F(CompareProgram, EndsWith0WhereNothingDiffers) {
  const test::Ended ended = compare({u"old.txt"_qs, u"old.txt"_qs, u"--quiet"_qs});
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.errors, QString());
  EXPECT_EQ(ended.status, 0);
}

TEST_F(CompareProgram, SumsUpByFolder) {
  const test::Ended ended = compare({u"--by-folder"_qs, u"-q"_qs, u"old.txt"_qs, u"new.txt"_qs});
  EXPECT_EQ(ended.output,
            "\\a\\: - 1 file, 3 bytes; * 1 file, 20 bytes; > 1 file, 4 bytes\n"
            "\\c\\: + 1 file, 5 bytes\n");
}

TEST_F(CompareProgram, WritesTablesAndObjects) {
  const QStringList both{u"-q"_qs, u"old.txt"_qs, u"new.txt"_qs};
  EXPECT_EQ(
      compare(both + QStringList{u"--format"_qs, u"tsv"_qs, u"--header"_qs, u"--limit"_qs, u"2"_qs}).output,
      "change\tsize\tmodified\tvolume\tfolder\tname\tsizeBefore\tmodifiedBefore\tvolumeBefore\tfolderBefore\t"
      "nameBefore\n"
      "removed\t3\t2004-01-15T10:20:30\tCD\t\\a\\\tgone\t\t\t\t\t\n"
      "changed\t20\t2004-01-15T10:20:30\tCD\t\\a\\\tlarger\t2\t2004-01-15T10:20:30\t\t\t\n");
  const QByteArray objects = compare(both + QStringList{u"--format"_qs, u"json"_qs}).output;
  EXPECT_TRUE(objects.contains(
      "{\"change\":\"moved\",\"size\":4,\"modified\":\"2004-01-15T10:20:30\",\"volume\":\"CD\","
      "\"folder\":\"\\\\a\\\\\",\"name\":\"moved\",\"sizeBefore\":4,\"modifiedBefore\":"
      "\"2004-01-15T10:20:30\",\"volumeBefore\":\"CD\",\"folderBefore\":\"\\\\b\\\\\","
      "\"nameBefore\":\"moved\"}\n"))
      << objects.toStdString();
  EXPECT_EQ(compare(both + QStringList{u"--format"_qs, u"csv"_qs, u"--by-folder"_qs, u"-0"_qs}).output,
            QByteArray("0,0,1,3,1,20,1,4,CD,\\a\\|1,5,0,0,0,0,0,0,CD,\\c\\|").replace('|', '\0'));
}

TEST_F(CompareProgram, AFolderIsListedAsItIsNow) {
  folder.writeFile(u"Music/song.mp3"_qs, "12345");
  ASSERT_EQ(run({u"index"_qs, u"Music"_qs, u"--output"_qs, u"music.txt"_qs}).status, 0);
  EXPECT_EQ(compare({u"music.txt"_qs, u"Music"_qs}).status, 0);
  folder.writeFile(u"Music/more/new.mp3"_qs, "1");
  const test::Ended ended = compare({u"music.txt"_qs, u"Music"_qs, u"--format"_qs, u"json"_qs});
  EXPECT_TRUE(ended.output.startsWith("{\"change\":\"added\",\"size\":1,")) << ended.output.toStdString();
  EXPECT_EQ(ended.output.count('\n'), 1);
  EXPECT_EQ(ended.status, 1);
}

/// Else everything would seem to be gone.
TEST_F(CompareProgram, AFolderThatCannotBeListedIsNotCompared) {
  for (int i = 0; i < 2000; ++i) folder.writeFile(u"Music/%1.mp3"_qs.arg(i), "");
  process.setChildProcessModifier([] {
    const rlimit small{100'000, RLIM_INFINITY};
    std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
  });
  const test::Ended ended = compare({u"old.txt"_qs, u"Music"_qs});
  EXPECT_EQ(ended.output, "");
  EXPECT_TRUE(ended.errors.startsWith(u"quorvin-cli: Disk full: "_qs)) << ended.errors.toStdString();
  EXPECT_EQ(ended.errors.count(u'\n'), 1);
  EXPECT_EQ(ended.status, 2);
}

TEST_F(CompareProgram, SaysWhereBothAreComparedBelowAnotherFolder) {
  folder.writeFile(u"cd.txt"_qs, blockHead("CD", "\\mnt\\") + entryLine("x", "1"));
  folder.writeFile(u"copy.txt"_qs, blockHead("COPY", "\\media\\cd\\") + entryLine("x", "1"));
  const test::Ended ended = compare({u"cd.txt"_qs, u"copy.txt"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_TRUE(ended.errors.startsWith(
      u"Compared below \\mnt\\ and \\media\\cd\\, since they have no folder in common\n"_qs))
      << ended.errors.toStdString();
}

TEST_F(CompareProgram, WhatIsNotThereIsSaid) {
  EXPECT_EQ(compare({u"old.txt"_qs, u"nothing"_qs}).errors,
            u"quorvin-cli: there is neither a listing nor a folder nothing\n"_qs);
  const test::Ended ended = compare({u"old.txt"_qs});
  EXPECT_EQ(ended.errors, u"quorvin-cli: there is no earlier version of old.txt\n"_qs);
  EXPECT_EQ(ended.status, 2);
}

TEST_F(CompareProgram, WhatIsNoTextIsNoListing) {
  folder.writeFile(u"picture.png"_qs, QByteArray("\x89PNG\0\0\0\0", 8));
  const test::Ended ended = compare({u"old.txt"_qs, u"picture.png"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors, u"quorvin-cli: one of the two is no listing, since it is not plain text\n"_qs);
}

TEST_F(CompareProgram, MistakesAreExplained) {
  EXPECT_TRUE(compare({}).errors.startsWith(u"quorvin-cli: compare needs a listing or a folder\n"_qs));
  EXPECT_TRUE(compare({u"a"_qs, u"b"_qs, u"c"_qs})
                  .errors.startsWith(u"quorvin-cli: compare does not know what to do with \"c\"\n"_qs));
  EXPECT_TRUE(compare({u"a"_qs, u"--on"_qs, u"March"_qs})
                  .errors.startsWith(
                      u"quorvin-cli: the value of --on is a day such as 2004-03-31, not \"March\"\n"_qs));
  EXPECT_TRUE(compare({u"a"_qs, u"--on"_qs, u"2004-03-31"_qs, u"--number"_qs, u"1"_qs})
                  .errors.startsWith(u"quorvin-cli: --number and --on both say which version is meant\n"_qs));
}

/// A listing "Music" in the data folder, made on the 15th, 16th and 17th of January 2004 with one, two and
/// three songs.
class CompareProgramHistory : public CompareProgram {
 protected:
  CompareProgramHistory() {
    IniSettingsStore store(folder.pathOf(u"settings.ini"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"LocalFolder"_qs, folder.pathOf(u"data/"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"JoinDate"_qs, u"15 Jan 2004"_qs);
    folder.writeFile(u"data/Locations.txt"_qs,
                     "\"Music\",\"" + folder.pathOf(u"Music/"_qs).toUtf8() + "\"\r\n");
    for (int files = 1; files <= 3; ++files) refreshWith(files);
  }

  void refreshWith(int files) {
    folder.writeFile(u"Music/song %1.mp3"_qs.arg(files), "1");
    EXPECT_EQ(run({u"refresh"_qs}).status, 0);
    QFile listing(folder.pathOf(u"data/Music.txt"_qs));
    ASSERT_TRUE(listing.open(QIODevice::ReadWrite));
    const QDateTime moment(QDate(2004, 1, 14 + files), QTime(10, 20, 30), Qt::UTC);
    ASSERT_TRUE(listing.setFileTime(moment, QFileDevice::FileModificationTime));
  }

  /// The names of the songs that were added.
  QStringList added(const QStringList& arguments) {
    const test::Ended ended = compare(arguments + QStringList{u"--format"_qs, u"tsv"_qs, u"-q"_qs});
    EXPECT_EQ(ended.errors, QString());
    QStringList names;
    for (const QByteArray& line : ended.output.split('\n')) {
      if (line.startsWith("added\t")) names += QString::fromUtf8(line.split('\t')[5]);
    }
    return names;
  }
};

TEST_F(CompareProgramHistory, AListingAloneIsComparedWithItsNewestVersion) {
  for (const QString& name : {u"Music"_qs, u"Music.txt"_qs, folder.pathOf(u"data/Music.txt"_qs)}) {
    EXPECT_EQ(added({name}), QStringList{u"song 3.mp3"_qs}) << name.toStdString();
  }
}

TEST_F(CompareProgramHistory, AVersionIsNamedByItsNumberOrADay) {
  const QStringList both{u"song 2.mp3"_qs, u"song 3.mp3"_qs};
  EXPECT_EQ(added({u"--number"_qs, u"1"_qs, u"Music"_qs}), both);
  EXPECT_EQ(added({u"--on"_qs, u"2004-01-15"_qs, u"Music"_qs}), both);
  EXPECT_EQ(added({u"--on"_qs, u"2004-01-16"_qs, u"Music"_qs}), QStringList{u"song 3.mp3"_qs});
  EXPECT_EQ(added({u"--on"_qs, u"2010-01-01"_qs, u"Music"_qs}), QStringList());
  EXPECT_EQ(compare({u"--on"_qs, u"2004-01-14"_qs, u"Music"_qs}).errors,
            u"quorvin-cli: no version of Music.txt that is kept is as old as 2004-01-14\n"_qs);
  EXPECT_EQ(compare({u"--number"_qs, u"9"_qs, u"Music"_qs}).status, 2);
}

TEST_F(CompareProgramHistory, AVersionMayBeComparedWithTheFolder) {
  folder.writeFile(u"Music/song 4.mp3"_qs, "1");
  EXPECT_EQ(added({u"--number"_qs, u"2"_qs, u"Music"_qs, folder.pathOf(u"Music"_qs)}),
            (QStringList{u"song 3.mp3"_qs, u"song 4.mp3"_qs}));
  EXPECT_EQ(added({u"Music.txt"_qs, folder.pathOf(u"Music"_qs)}), QStringList{u"song 4.mp3"_qs});
}

}  // namespace
}  // namespace quorvin
