// SPDX-License-Identifier: GPL-2.0-or-later

// "index --checksums" and "verify" as a user runs them.
#include "console/console_program.h"
#include "support/qt_printing.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>

namespace quorvin {
namespace {

class VerifyProgram : public test::ConsoleProgramTest {
 protected:
  VerifyProgram() {
    folder.makeFolder(u"disk/a b"_qs);
    for (const char* name : {"fine", "a b/rot", "gone", "changed"}) write(name, "one");
  }

  void write(const char* name, const QByteArray& content) {
    const QString path = folder.writeFile(u"disk/"_qs + QString::fromUtf8(name), content);
    const timespec times[2] = {{1'074'162'030, 0}, {1'074'162'030, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.toUtf8().constData(), times, 0), 0);
  }
  void spoil() {
    write("a b/rot", "0ne");
    write("changed", "other");
    write("new", "one");
    ASSERT_TRUE(QFile::remove(folder.pathOf(u"disk/gone"_qs)));
  }

  test::Ended index() {
    return run({u"index"_qs, u"--checksums"_qs, u"--output"_qs, u"cd.txt"_qs, u"disk"_qs});
  }
  test::Ended verify(const QStringList& more = {}) {
    return run(QStringList{u"verify"_qs, u"cd.txt"_qs} + more);
  }
};

TEST_F(VerifyProgram, SaysNothingOfADiskThatIsAsItWas) {
  EXPECT_EQ(index().status, 0);
  const test::Ended ended = verify();
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.errors, u"As they were: 4. Rotten: 0. Lost: 0. Changed: 0. Added: 0. Not read: 0\n"_qs);
  EXPECT_EQ(ended.status, 0);
}

TEST_F(VerifyProgram, TellsRotLossAndChangeApart) {
  EXPECT_EQ(index().status, 0);
  spoil();
  const test::Ended ended = verify();
  EXPECT_EQ(ended.output, "* changed\n- gone\n! a b/rot\n+ new\n");
  EXPECT_EQ(ended.errors, u"As they were: 1. Rotten: 1. Lost: 1. Changed: 1. Added: 1. Not read: 0\n"_qs);
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(verify({u"-q"_qs}).errors, QString());
}

TEST_F(VerifyProgram, WritesAnObjectForEachFileOnWish) {
  EXPECT_EQ(index().status, 0);
  spoil();
  EXPECT_EQ(verify({u"--json"_qs}).output,
            "{\"kind\":\"changed\",\"path\":\"changed\"}\n{\"kind\":\"lost\",\"path\":\"gone\"}\n"
            "{\"kind\":\"rotten\",\"path\":\"a b/rot\"}\n{\"kind\":\"added\",\"path\":\"new\"}\n");
}

TEST_F(VerifyProgram, RotIsStillKnownAfterAnotherIndex) {
  EXPECT_EQ(index().status, 0);
  spoil();
  EXPECT_EQ(index().status, 0);
  EXPECT_EQ(verify().output, "! a b/rot\n");
}

TEST_F(VerifyProgram, AnOwnFolderIsCalledByItsDescription) {
  const QString disk = folder.pathOf(u"disk"_qs);
  EXPECT_EQ(run({u"sources"_qs, u"add"_qs, u"-q"_qs, disk}).status, 0);
  EXPECT_EQ(run({u"refresh"_qs, u"-q"_qs}).status, 0);
  const QString listing = folder.pathOf(u"home/quorvin/disk.txt"_qs);
  EXPECT_EQ(run({u"index"_qs, u"--checksums"_qs, u"--output"_qs, listing, disk}).status, 0);
  write("a b/rot", "0ne");
  const test::Ended ended = run({u"verify"_qs, u"-q"_qs, u"disk"_qs});
  EXPECT_EQ(ended.output, "! a b/rot\n") << ended.errors.toStdString();
}

TEST_F(VerifyProgram, ADiskMayBeMountedElsewhere) {
  EXPECT_EQ(index().status, 0);
  write("a b/rot", "0ne");
  ASSERT_TRUE(QDir(folder.path()).rename(u"disk"_qs, u"elsewhere"_qs));
  EXPECT_EQ(verify({u"elsewhere"_qs}).output, "! a b/rot\n");
  const test::Ended ended = verify();
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors, u"quorvin-cli: File not found: "_qs + folder.pathOf(u"disk/"_qs) + u'\n');
}

TEST_F(VerifyProgram, TheProgramOfOthersReadsTheChecksums) {
  for (const char* name : {" lead", "tab\there", "new\nline", "back\\slash", "quo\"te", "-dash", "*", "-"}) {
    write(name, "naughty");
  }
  EXPECT_EQ(index().status, 0);
  EXPECT_EQ(verify().status, 0);
  process.setProgram(u"sha256sum"_qs);
  process.setWorkingDirectory(folder.pathOf(u"disk"_qs));
  const test::Ended ended = run({u"--check"_qs, u"--strict"_qs, u"--quiet"_qs, u"../cd.txt.sha256"_qs});
  EXPECT_EQ(ended.errors, QString());
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.status, 0);
}

TEST_F(VerifyProgram, TheChecksumsOfOthersAreRead) {
  for (const char* name : {" lead", "new\nline", "back\\slash"}) write(name, "naughty");
  EXPECT_EQ(run({u"index"_qs, u"--output"_qs, u"cd.txt"_qs, u"disk"_qs}).status, 0);
  process.setProgram(u"sh"_qs);
  process.setWorkingDirectory(folder.pathOf(u"disk"_qs));
  EXPECT_EQ(run({u"-c"_qs, u"find . -type f -exec sha256sum {} + > ../cd.txt.sha256"_qs}).status, 0);
  process.setWorkingDirectory(folder.path());
  process.setProgram(QStringLiteral(QUORVIN_CLI));
  EXPECT_EQ(verify().output, "");
  write("a b/rot", "0ne");
  EXPECT_EQ(verify().output, "! a b/rot\n");
}

TEST_F(VerifyProgram, AnEditedFileIsNotRottenAfterAnIndexWithoutChecksums) {
  EXPECT_EQ(index().status, 0);
  folder.writeFile(u"disk/changed"_qs, "two");
  EXPECT_EQ(run({u"index"_qs, u"--output"_qs, u"cd.txt"_qs, u"disk"_qs}).status, 0);
  const test::Ended between = verify();
  EXPECT_EQ(between.output, "* changed\n");
  EXPECT_EQ(
      between.errors.section(u'\n', 0, 0),
      u"The listing was made after the checksums, so it does not tell rot from change; quorvin-cli index "
      u"--checksums renews both."_qs);
  EXPECT_EQ(between.status, 1);
  const test::Ended again = index();
  EXPECT_EQ(again.errors,
            u"Changed or rotten: changed. The earlier listing was made after its checksums, so "
            u"it does not tell.\n"_qs);
  EXPECT_EQ(again.status, 0);
  EXPECT_EQ(verify().status, 0);
  write("a b/rot", "0ne");
  EXPECT_EQ(verify().output, "! a b/rot\n");
}

TEST_F(VerifyProgram, WithoutChecksumsItSaysHowToMakeThem) {
  EXPECT_EQ(run({u"index"_qs, u"--output"_qs, u"cd.txt"_qs, u"disk"_qs}).status, 0);
  const test::Ended ended = verify();
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors,
            u"quorvin-cli: there are no checksums of cd.txt; quorvin-cli index --checksums makes them\n"_qs);
}

TEST_F(VerifyProgram, LinesThatSayNothingAreCounted) {
  EXPECT_EQ(index().status, 0);
  folder.writeFile(u"cd.txt.sha256"_qs, folder.readFile(u"cd.txt.sha256"_qs) + "noise\n");
  const test::Ended ended = verify();
  EXPECT_EQ(ended.status, 2);
  EXPECT_TRUE(ended.errors.startsWith(u"Lines of the checksums that were not understood: 1\n"_qs));
}

TEST_F(VerifyProgram, ChecksumsNeedAListingThatTheyCanBeBeside) {
  EXPECT_EQ(run({u"index"_qs, u"--checksums"_qs, u"disk"_qs}).errors.section(u'\n', 0, 0),
            u"quorvin-cli: --checksums goes with --output: the checksums are put beside the listing"_qs);
  EXPECT_EQ(
      run({u"index"_qs, u"--checksums"_qs, u"--folders-only"_qs, u"--output"_qs, u"cd.txt"_qs, u"disk"_qs})
          .errors.section(u'\n', 0, 0),
      u"quorvin-cli: --folders-only lists no files that --checksums could be of"_qs);
}

TEST_F(VerifyProgram, AFileWhoseNameIsNoTextIsReportedAndTheOthersHaveTheirChecksums) {
  const QByteArray path = folder.pathOf(u"disk/"_qs).toUtf8() + "bad\xE4";
  const int file = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
  ASSERT_GE(file, 0);
  ::close(file);
  const test::Ended ended = index();
  EXPECT_EQ(ended.status, 2);
  EXPECT_TRUE(ended.errors.contains(u"No checksum: the name of bad"_qs)) << ended.errors.toStdString();
  // And the remark about the listing.
  EXPECT_EQ(folder.readFile(u"cd.txt.sha256"_qs).count('\n'), 5);
}

// Each of the files is so large that the signal comes while it is read.
TEST_F(VerifyProgram, OneThatASignalEndsGoesOnLater) {
  const QString path = folder.writeFile(u"disk/large"_qs, "");
  ASSERT_TRUE(QFile::resize(path, 300'000'000));
  EXPECT_EQ(index().status, 0);
  write("changed", "0ne");
  start({u"verify"_qs, u"cd.txt"_qs});
  // The notes are written when it ends, so nothing tells that it has begun; a signal before that ends it,
  // too.
  while (process.state() == QProcess::Running && !process.waitForFinished(20)) {
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    process.waitForFinished(60000);
  }
  if (process.exitCode() == 130 && process.exitStatus() == QProcess::NormalExit) {
    EXPECT_EQ(QString::fromUtf8(process.readAllStandardError()),
              u"Stopped. The next verification of these checksums goes on here.\n"_qs);
  }
  const test::Ended ended = verify();
  EXPECT_EQ(ended.output, "! changed\n");
  EXPECT_FALSE(folder.has(u"cd.txt.sha256.verifying"_qs));
}

}  // namespace
}  // namespace quorvin
