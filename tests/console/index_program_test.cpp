// SPDX-License-Identifier: GPL-2.0-or-later

// "quorvin-cli index" as a user runs it.
#include "console/console_program.h"
#include "files/path_style.h"
#include "support/many_files.h"
#include "support/plain_walker.h"
#include "support/qt_printing.h"

#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {
namespace {

class IndexProgram : public test::ConsoleProgramTest {
 protected:
  IndexProgram() {
    writeFile(u"Music/song.mp3"_qs);
    writeFile(u"Music/Rock/live.mp3"_qs);
  }

  void writeFile(const QString& name) {
    const QByteArray path = folder.writeFile(name, "12345").toUtf8();
    const timespec times[2] = {{1'074'162'030, 0}, {1'074'162'030, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.constData(), times, 0), 0);
  }

  QByteArray listedMusic() { return listedFolder(folder.pathOf(u"Music/"_qs), nativePathStyle()).toUtf8(); }

  QByteArray block(const QByteArray& volume, const QByteArray& path) {
    return "\r\nVolume:    " + volume + "\r\nDirectory: " + path + "\r\n\r\n";
  }

  QByteArray entry(const QByteArray& name) {
    return name.leftJustified(65) + "               5 bytes 15 Jan 2004 10:20:30\r\n";
  }

  QByteArray wholeListing(const QByteArray& volume = "Music") {
    return block(volume, listedMusic()) + "<DIR> Rock\r\n\r\n" + entry("song.mp3") +
           block(volume, listedMusic() + "Rock\\") + entry("live.mp3");
  }
};

TEST_F(IndexProgram, WritesTheListingToStandardOutput) {
  const test::Ended ended = run({u"index"_qs, u"Music"_qs});
  EXPECT_EQ(ended.output, wholeListing());
  EXPECT_EQ(ended.errors, QString());
  EXPECT_EQ(ended.status, 0);
}

TEST_F(IndexProgram, TheLabelIsTheFoldersNameUnlessItIsGiven) {
  EXPECT_EQ(run({u"index"_qs, u"--label"_qs, u"CD 7"_qs, u"Music"_qs}).output, wholeListing("CD 7"));
  EXPECT_EQ(run({u"index"_qs, folder.pathOf(u"Music/"_qs)}).output, wholeListing("Music"));
  EXPECT_EQ(run({u"index"_qs, u"./Music/Rock/.."_qs}).output, wholeListing("Music"));
  EXPECT_EQ(run({u"index"_qs, u"Music//./"_qs}).output, wholeListing("Music"));
  process.setWorkingDirectory(folder.pathOf(u"Music"_qs));
  EXPECT_EQ(run({u"index"_qs, u"."_qs}).output, wholeListing("Music"));
}

TEST_F(IndexProgram, FoldersOnlyHasNoFiles) {
  EXPECT_EQ(run({u"index"_qs, u"--folders-only"_qs, u"Music"_qs}).output,
            block("Music", listedMusic()) + "<DIR> Rock\r\n\r\n" + block("Music", listedMusic() + "Rock\\"));
}

TEST_F(IndexProgram, OutputReplacesAFileAndLeavesNothingElse) {
  folder.writeFile(u"out/list.txt"_qs, QByteArray(100'000, 'x'));
  const test::Ended ended = run({u"index"_qs, u"--output"_qs, u"out/list.txt"_qs, u"Music"_qs});
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(folder.readFile(u"out/list.txt"_qs), wholeListing());
  EXPECT_EQ(QDir(folder.pathOf(u"out"_qs)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{u"list.txt"_qs});
}

TEST_F(IndexProgram, TheFileBehindALinkIsReplaced) {
  folder.writeFile(u"out/list.txt"_qs, "old");
  ASSERT_EQ(::symlink("out/list.txt", folder.pathOf(u"link.txt"_qs).toUtf8().constData()), 0);
  EXPECT_EQ(run({u"index"_qs, u"--output"_qs, u"link.txt"_qs, u"Music"_qs}).status, 0);
  EXPECT_EQ(folder.readFile(u"out/list.txt"_qs), wholeListing());
}

TEST_F(IndexProgram, AListingInItsOwnFolderDoesNotListItsUnfinishedSelf) {
  EXPECT_EQ(run({u"index"_qs, u"--output"_qs, u"Music/list.txt"_qs, u"Music"_qs}).status, 0);
  EXPECT_EQ(folder.readFile(u"Music/list.txt"_qs), wholeListing());
}

TEST_F(IndexProgram, AFolderThatCannotBeReadEndsWith2AndKeepsTheFile) {
  folder.writeFile(u"list.txt"_qs, "old");
  const test::Ended ended = run({u"index"_qs, u"--output"_qs, u"list.txt"_qs, u"gone"_qs});
  EXPECT_EQ(ended.errors, u"quorvin-cli: File not found: gone\n"_qs);
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(folder.readFile(u"list.txt"_qs), "old");
  EXPECT_EQ(run({u"index"_qs, u"list.txt"_qs}).status, 2);
  EXPECT_EQ(run({u"index"_qs, u""_qs}).status, 2);
}

TEST_F(IndexProgram, AFileThatCannotBeWrittenEndsWith2) {
  const test::Ended ended = run({u"index"_qs, u"--output"_qs, u"gone/list.txt"_qs, u"Music"_qs});
  EXPECT_EQ(ended.errors, u"quorvin-cli: File not found: gone/list.txt\n"_qs);
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(run({u"index"_qs, u"--output"_qs, u"Music"_qs, u"Music"_qs}).status, 2);
  // Renaming over a device would take it away from everybody.
  EXPECT_EQ(run({u"index"_qs, u"--output"_qs, u"/dev/null"_qs, u"Music"_qs}).status, 2);
  EXPECT_FALSE(QFile(u"/dev/null"_qs).size() > 0);
}

TEST_F(IndexProgram, AFullDiskIsToldAndKeepsTheFile) {
  folder.writeFile(u"list.txt"_qs, "old");
  process.setChildProcessModifier([] {
    const rlimit small{100, RLIM_INFINITY};
    std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
  });
  const test::Ended ended = run({u"index"_qs, u"--output"_qs, u"list.txt"_qs, u"Music"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors, u"quorvin-cli: Disk full: list.txt\n"_qs);
  EXPECT_EQ(folder.readFile(u"list.txt"_qs), "old");
}

TEST_F(IndexProgram, ADeviceThatTakesNothingIsTold) {
  process.setStandardOutputFile(u"/dev/full"_qs);
  const test::Ended ended = run({u"index"_qs, u"Music"_qs});
  EXPECT_EQ(ended.errors, u"quorvin-cli: Disk full: standard output\n"_qs);
  EXPECT_EQ(ended.status, 2);
}

TEST_F(IndexProgram, NamesThatCannotBeReadAreToldAndEndWith0) {
  writeFile(u"Music/what?"_qs);
  ASSERT_EQ(::symlink("gone", folder.pathOf(u"Music/broken"_qs).toUtf8().constData()), 0);
  const test::Ended ended = run({u"index"_qs, u"Music"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_TRUE(
      ended.errors.contains(folder.pathOf(u"Music/broken"_qs) + u" File not found (invalid name)\n"_qs));
  EXPECT_TRUE(ended.errors.contains(folder.pathOf(u"Music/what?"_qs) +
                                    u" Contains unsuported characters represented by the ?\n"_qs));
  EXPECT_EQ(ended.errors.count(u'\n'), 2);
}

TEST_F(IndexProgram, ControlCharactersOfNamesDoNotReachTheTerminal) {
  ASSERT_EQ(::symlink("gone", folder.pathOf(u"Music/\x1B[2J\x07"_qs).toUtf8().constData()), 0);
  const test::Ended ended = run({u"index"_qs, u"Music"_qs});
  EXPECT_TRUE(ended.errors.contains(u"Music/?[2J? File not found"_qs)) << ended.errors.toStdString();
}

TEST_F(IndexProgram, TooManyFilesAreIgnoredAndToldAndEndWith2) {
  test::makeManyFiles(folder.makeFolder(u"Many"_qs).toUtf8(), 31'003);
  const test::Ended ended = run({u"index"_qs, u"Many"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.output.count(" bytes "), 31'001);
  EXPECT_TRUE(ended.errors.contains(u" Skipping. Left out: 2 of 31003 files in "_qs));
  EXPECT_TRUE(
      ended.errors.startsWith(u"quorvin-cli: Error Number: 9 Subscript out of range Error reading:"_qs));
  EXPECT_TRUE(ended.errors.endsWith(u"holds too many files; 2 names were left out\n"_qs));
}

TEST_F(IndexProgram, ARealTreeEqualsAPlainWalkBlockByBlock) {
  const std::string top = qEnvironmentVariableIsSet("QUORVIN_REAL_TREE")
                              ? qgetenv("QUORVIN_REAL_TREE").toStdString()
                              : "/usr/include/";
  const test::Ended ended = run({u"index"_qs, u"--label"_qs, u"Real"_qs, QString::fromStdString(top)});
  EXPECT_EQ(ended.status, 0);
  qputenv("TZ", "UTC0");
  EXPECT_EQ(test::differenceOf(test::blocksOf(ended.output, "Real"), test::plainWalk(top)), "");
}

TEST_F(IndexProgram, AnInterruptEndsItCleanlyAndKeepsTheFile) {
  folder.writeFile(u"list.txt"_qs, "old");
  // The whole machine takes longer than a signal.
  start({u"index"_qs, u"--output"_qs, u"list.txt"_qs, u"/"_qs});
  // Unfinished work stands aside; when it is there the handler stands too.
  QDir here(folder.path());
  while (process.state() == QProcess::Running &&
         here.entryList({u".quorvin-*"_qs}, QDir::Files | QDir::Hidden).isEmpty()) {
    process.waitForFinished(1);
  }
  ::kill(static_cast<pid_t>(process.processId()), SIGINT);
  const test::Ended ended = end();
  EXPECT_EQ(ended.status, 130);
  EXPECT_EQ(folder.readFile(u"list.txt"_qs), "old");
  EXPECT_TRUE(here.entryList({u".quorvin-*"_qs}, QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(IndexProgram, WrongUseIsToldAndEndsWith2) {
  for (const QStringList& arguments : {QStringList{u"index"_qs}, QStringList{u"index"_qs, u"a"_qs, u"b"_qs},
                                       QStringList{u"index"_qs, u"--output"_qs}}) {
    const test::Ended ended = run(arguments);
    EXPECT_EQ(ended.status, 2);
    EXPECT_TRUE(ended.errors.startsWith(u"quorvin-cli: "_qs)) << ended.errors.toStdString();
  }
  const test::Ended help = run({u"index"_qs, u"--help"_qs});
  EXPECT_EQ(help.status, 0);
  for (const char* option : {"--label", "--folders-only", "--output", "FOLDER"}) {
    EXPECT_TRUE(help.output.contains(option)) << help.output.toStdString();
  }
}

}  // namespace
}  // namespace quorvin
