// SPDX-License-Identifier: GPL-2.0-or-later

// The script of "plan", run by the shell. In place of rsync comes a program that notes what it is asked for.
#include "catalogue/fetch/plan_script.h"

#include "console/console_program.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QDir>
#include <QFile>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

class PlanScript : public test::ConsoleProgramTest {
 protected:
  PlanScript() {
    // What it copies is seen in the files "asked" and "names".
    const QString program = folder.writeFile(u"bin/rsync"_qs,
                                             "#!/bin/sh\n"
                                             "printf '%s\\n' \"$@\" >>\"$NOTES/asked\"\n"
                                             "cat >>\"$NOTES/names\"\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcessEnvironment environment = process.processEnvironment();
    environment.insert(u"PATH"_qs, folder.pathOf(u"bin"_qs) + u':' + environment.value(u"PATH"_qs));
    environment.insert(u"NOTES"_qs, folder.path());
    environment.insert(u"HOME"_qs, folder.path());
    process.setProcessEnvironment(environment);
  }

  void makeScript(const QStringList& arguments) {
    const test::Ended ended =
        run(QStringList{u"plan"_qs, u"-q"_qs, u"--script"_qs, u"--to"_qs, u"it's/here"_qs} + arguments);
    EXPECT_EQ(ended.errors, QString());
    ASSERT_EQ(ended.status, 0);
    folder.writeFile(u"fetch.sh"_qs, ended.output);
  }

  /// Runs the script with these answers to its questions.
  test::Ended runScript(const QByteArray& answers) {
    process.setProgram(u"sh"_qs);
    start({u"fetch.sh"_qs});
    process.write(answers);
    process.closeWriteChannel();
    const test::Ended ended = end();
    process.setProgram(QStringLiteral(QUORVIN_CLI));
    return ended;
  }

  QByteArrayList names() { return folder.readFile(u"names"_qs).split('\0'); }

  QString path(const QString& name) { return QDir(folder.path()).absoluteFilePath(name); }
};

TEST_F(PlanScript, WordsOfTheShellHoldAnything) {
  EXPECT_EQ(shellWord("plain"), "'plain'");
  EXPECT_EQ(shellWord(""), "''");
  EXPECT_EQ(shellWord("it's $(a) `b` \"c\" \\ \n *"), "'it'\\''s $(a) `b` \"c\" \\ \n *'");
}

TEST_F(PlanScript, CopiesFromTheFolderThatIsAnswered) {
  folder.writeFile(u"cd1.txt"_qs, blockHead("CD 1", "\\media\\cdrom\\Films\\Old\\") + entryLine("film.avi") +
                                      blockHead("CD 1", "\\media\\cdrom\\Music\\") +
                                      entryLine("film song.mp3"));
  folder.writeFile(u"mnt/Films/Old/film.avi"_qs, "");
  folder.writeFile(u"mnt/Music/film song.mp3"_qs, "");
  makeScript({u"film"_qs, u"cd1.txt"_qs});
  const test::Ended ended = runScript("mnt\n");
  EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
  EXPECT_TRUE(
      ended.errors.startsWith(u"Please insert volume 1 of 1: CD 1. It was listed at \\media\\cdrom\\; "
                              "2 files, 2.00 kB to copy.\n"_qs))
      << ended.errors.toStdString();
  EXPECT_EQ(names(), (QByteArrayList{"./Films/Old/film.avi", "./Music/film song.mp3", ""}));
  EXPECT_EQ(QString::fromUtf8(folder.readFile(u"asked"_qs)),
            u"-ltv\n--chmod=u+w\n--from0\n--files-from=-\n./mnt/\n%1/\n"_qs.arg(path(u"it's/here/CD 1"_qs)));
  EXPECT_TRUE(QDir(path(u"it's/here/CD 1"_qs)).exists());
}

TEST_F(PlanScript, NaughtyNamesStayNames) {
  const QByteArrayList evil{"'; touch hacked; '.txt",
                            "$(touch hacked).txt",
                            "`touch hacked`.txt",
                            "-rf.txt",
                            "#comment.txt",
                            ";semi.txt",
                            "a\\nb%s\".txt",
                            "*.txt",
                            "~.txt",
                            "\xC3\xA4 \xE4\xB8\xAD.txt"};
  QByteArray listing = blockHead("it's $(touch hacked)", "\\-d\\'q\\");
  for (const QByteArray& name : evil) {
    listing += entryLine(name);
    folder.writeFile(u"mnt/"_qs + QString::fromUtf8(name), "");
  }
  // Fewer columns than bytes.
  listing.replace("\xC3\xA4 \xE4\xB8\xAD.txt", "\xC3\xA4 \xE4\xB8\xAD.txt   ");
  folder.writeFile(u"evil.txt"_qs, listing);
  makeScript({u"txt"_qs, u"evil.txt"_qs});
  EXPECT_EQ(runScript("mnt\n").status, 0);
  QByteArrayList expected;
  for (const QByteArray& name : evil) expected += "./" + name;
  EXPECT_EQ(names(), expected + QByteArrayList{""});
  EXPECT_FALSE(QFile::exists(path(u"hacked"_qs)));
}

TEST_F(PlanScript, NoPathLeadsOutOfTheVolume) {
  folder.writeFile(u"cd1.txt"_qs, blockHead("..", "\\a\\..\\..\\b\\.\\") + entryLine("../../up.txt") +
                                      blockHead("..", "\\a\\") + entryLine("up.txt", "7"));
  folder.writeFile(u"mnt/b/up.txt"_qs, "");
  folder.writeFile(u"mnt/up.txt"_qs, "");
  makeScript({u"up.txt"_qs, u"cd1.txt"_qs});
  EXPECT_EQ(runScript("mnt\n").status, 0);
  EXPECT_EQ(names(), (QByteArrayList{"./up.txt", "./b/up.txt", ""}));
  EXPECT_TRUE(folder.readFile(u"asked"_qs).endsWith("/here/_../\n"));
}

TEST_F(PlanScript, AsksAgainWhereNoneOfTheFilesIsAndLeavesOutWhatIsNotAnswered) {
  folder.writeFile(u"cd1.txt"_qs, blockHead("CD", "\\Films\\") + entryLine("a film") + entryLine("b film"));
  folder.writeFile(u"cd2.txt"_qs, blockHead("cd", "\\Films\\") + entryLine("c film"));
  folder.writeFile(u"empty/x"_qs, "");
  folder.writeFile(u"mnt/Films/a film"_qs, "");
  makeScript({u"film"_qs, u"cd1.txt"_qs, u"cd2.txt"_qs});
  const test::Ended ended = runScript("empty\n~/mnt\n\n");
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(ended.errors.contains(u"None of the files is in ./empty.\n"_qs)) << ended.errors.toStdString();
  EXPECT_TRUE(ended.errors.contains(u"Not there: b film\n"_qs));
  EXPECT_TRUE(ended.errors.endsWith(u"Not everything was copied.\n"_qs));
  EXPECT_EQ(names(), (QByteArrayList{"./a film", ""}));
  EXPECT_TRUE(folder.readFile(u"asked"_qs).contains((folder.path() + u"/mnt/Films/\n"_qs).toUtf8()));
}

TEST_F(PlanScript, ANameThatTheListingHasCutIsFoundByItsBeginning) {
  const QByteArray cut = QByteArray("long ") + QByteArray(60, 'n');
  folder.writeFile(u"cd1.txt"_qs, blockHead("CD 1", "\\") + entryLine(cut) + entryLine("long one"));
  folder.writeFile(u"mnt/"_qs + QString::fromLatin1(cut) + u" and more.avi"_qs, "");
  folder.writeFile(u"mnt/long one"_qs, "");
  folder.writeFile(u"mnt/long one of another name"_qs, "");
  makeScript({u"long"_qs, u"cd1.txt"_qs});
  EXPECT_EQ(runScript("mnt\n").status, 0);
  EXPECT_EQ(names(), (QByteArrayList{"./" + cut + " and more.avi", "./long one", ""}));
}

TEST_F(PlanScript, VolumesOfTheSameNameHaveFoldersOfTheirOwn) {
  folder.writeFile(u"cd1.txt"_qs, blockHead("CD/1", "\\") + entryLine("a film"));
  folder.writeFile(u"cd2.txt"_qs, blockHead("cd_1", "\\") + entryLine("b film"));
  folder.writeFile(u"mnt/a film"_qs, "");
  folder.writeFile(u"mnt/b film"_qs, "");
  makeScript({u"film"_qs, u"cd1.txt"_qs, u"cd2.txt"_qs});
  EXPECT_EQ(runScript("mnt\nmnt").status, 0);
  const QByteArray asked = folder.readFile(u"asked"_qs);
  EXPECT_TRUE(asked.contains("/here/CD_1/\n")) << asked.constData();
  EXPECT_TRUE(asked.contains("/here/cd_1 2/\n"));
}

TEST_F(PlanScript, EndsWhereNobodyAnswers) {
  folder.writeFile(u"cd1.txt"_qs, blockHead("CD 1", "\\") + entryLine("a film"));
  makeScript({u"film"_qs, u"cd1.txt"_qs});
  const test::Ended ended = runScript("");
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(ended.errors.contains(u"Nobody answers."_qs));
  EXPECT_FALSE(QFile::exists(path(u"asked"_qs)));
}

TEST_F(PlanScript, NothingToCopyIsNoScript) {
  folder.writeFile(u"cd1.txt"_qs, blockHead("CD 1", "\\") + entryLine("a film"));
  const test::Ended ended =
      run({u"plan"_qs, u"-q"_qs, u"--script"_qs, u"--to"_qs, u"x"_qs, u"gone"_qs, u"cd1.txt"_qs});
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.errors, u"quorvin-cli: there is nothing to copy, so no script\n"_qs);
  EXPECT_EQ(ended.status, 1);
}

}  // namespace
}  // namespace quorvin
