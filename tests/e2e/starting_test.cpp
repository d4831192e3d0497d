// SPDX-License-Identifier: GPL-2.0-or-later

// Starting the real program: more than once, on listings, with options, and from the folder it was built in;
// and its end when the system wants it.
#include "e2e/running_program.h"
#include "e2e/source_records.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QFile>
#include <QUrl>
#include <gtest/gtest.h>

#include <csignal>

namespace quorvin::test {

namespace {

void expectCleanEnd(const ProgramEnd& end) {
  EXPECT_TRUE(end.isExit);
  EXPECT_EQ(end.code, 0);
  EXPECT_EQ(end.errors, u"");
}

class Starting : public testing::Test {
 protected:
  Starting() { home_.writeSettings(); }

  struct Ended {
    int code;
    QString output;
    QString errors;
  };
  /// A start that is expected to end by itself.
  Ended startAndEnd(const QStringList& arguments, const QProcessEnvironment& desktop) const {
    QProcessEnvironment environment = desktop;
    home_.addTo(environment);
    QProcess process;
    endWithTest(process);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home_.folder.path());
    process.start(home_.program(), arguments);
    EXPECT_TRUE(process.waitForFinished(180'000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
  }
  void expectEndsQuietly(const QStringList& arguments) const {
    const Ended ended = startAndEnd(arguments, desktop_.environment());
    EXPECT_EQ(ended.code, 0);
    EXPECT_EQ(ended.output, u"");
    EXPECT_EQ(ended.errors, u"");
  }
  void addMusic(RunningProgram& program) const {
    program.openFromFileMenu({QStringLiteral("a")}, QStringLiteral("Local File Search Locations"));
    program.addFolder(QStringLiteral("Music"), QStringLiteral("/music/"));
    program.saveFolders(false);
  }
  void expectMusicIsSaved() const {
    EXPECT_EQ(home_.dataFile(QStringLiteral("Locations.txt")),
              listFile({{QStringLiteral("Music"), QStringLiteral("/music/")}}));
    EXPECT_TRUE(home_.settings().contains(QStringLiteral("\nHeight=")));
  }

  ProgramHome home_;
  Desktop desktop_;
};

TEST_F(Starting, ASecondStartBringsTheFirstWindowForwardAndEnds) {
  RunningProgram first(desktop_, home_);
  addMusic(first);
  // A program with other settings has a window of its own, here above the first one's.
  ProgramHome other;
  other.writeSettings();
  RunningProgram covering(desktop_, other);
  ASSERT_NE(desktop_.activeWindow(), first.mainWindow());
  expectEndsQuietly({});
  waitUntil(QStringLiteral("for the first window"),
            [&] { return desktop_.activeWindow() == first.mainWindow(); });
  expectCleanEnd(first.endBy(kCtrlQ));
  expectMusicIsSaved();
  covering.comeToFront();
  expectCleanEnd(covering.endBy(kCtrlQ));
}

TEST_F(Starting, AListingHasAWindowBesideTheUsualOne) {
  home_.folder.writeFile(QStringLiteral("lists/disk.txt"), blockHead("Disk", "\\far\\") + entryLine("song"));
  RunningProgram first(desktop_, home_);
  RunningProgram listing(desktop_, home_, {home_.list(QStringLiteral("disk.txt"))});
  EXPECT_NE(listing.mainWindow(), first.mainWindow());
  // The same file, named otherwise: its window is there already.
  first.comeToFront();
  expectEndsQuietly({QStringLiteral("lists/disk.txt")});
  listing.waitForMainWindow();
  expectCleanEnd(listing.endBy(kCtrlQ));
  first.comeToFront();
  expectCleanEnd(first.endBy(kCtrlQ));
}

TEST_F(Starting, ASecondStartWithAListingThatIsNotThereIsToldInTheFirstWindow) {
  RunningProgram first(desktop_, home_);
  expectEndsQuietly({QStringLiteral("/no/such.txt")});
  first.waitForWindow(kTitle);
  first.press({QStringLiteral("Return")});
  first.waitForMainWindow();
  expectCleanEnd(first.endBy(kCtrlQ));
  EXPECT_FALSE(home_.settings().contains(QStringLiteral("such.txt")));
}

TEST_F(Starting, ASecondStartSearchesInTheFirstWindow) {
  home_.folder.writeFile(QStringLiteral("data/main.txt"),
                         blockHead("Main", "\\far\\") + entryLine("song.mp3"));
  RunningProgram first(desktop_, home_);
  expectEndsQuietly({QStringLiteral("--search"), QStringLiteral("song")});
  first.waitForHits({QStringLiteral("100%\tMain\t\\far\\\tsong.mp3\t0.00mb\tJan, 15 04")});
  expectCleanEnd(first.endBy(kCtrlQ));
}

TEST_F(Starting, AKilledProgramIsNotInTheWayOfTheNext) {
  {
    RunningProgram killed(desktop_, home_);
    EXPECT_FALSE(killed.endBySignal(SIGKILL).isExit);
  }
  RunningProgram next(desktop_, home_);
  expectEndsQuietly({});
  expectCleanEnd(next.endBy(kCtrlQ));
}

TEST_F(Starting, ARelativeListingIsInTheCurrentFolder) {
  home_.folder.writeFile(QStringLiteral("lists/disk.txt"),
                         blockHead("Disk", "\\far\\") + entryLine("far song.mp3"));
  RunningProgram program(desktop_, home_, {QStringLiteral("lists/disk.txt")});
  program.find(QStringLiteral("song"));
  program.waitForHits({QStringLiteral("100%\tDisk\t\\far\\\tfar song.mp3\t0.00mb\tJan, 15 04")});
  expectCleanEnd(program.endBy(kCtrlQ));
  const QString path = home_.list(QStringLiteral("disk.txt"));
  EXPECT_TRUE(home_.settings().contains(
      QStringLiteral("[%1/Settings]\n").arg(QString::fromLatin1(QUrl::toPercentEncoding(path)))))
      << home_.settings().toStdString();
  EXPECT_TRUE(home_.settings().contains(QStringLiteral("\nTextFile=%1\n").arg(path)));
}

TEST_F(Starting, OptionsAreAnsweredAndStoreNothing) {
  const QString before = home_.settings();
  QProcessEnvironment noScreen = desktop_.environment();
  noScreen.remove(QStringLiteral("DISPLAY"));
  const Ended version = startAndEnd({QStringLiteral("--version")}, noScreen);
  EXPECT_EQ(version.code, 0);
  EXPECT_EQ(version.output, u"quorvin 2.5.64\n");
  EXPECT_EQ(version.errors, u"");
  const Ended help = startAndEnd({QStringLiteral("--help")}, noScreen);
  EXPECT_EQ(help.code, 0);
  EXPECT_TRUE(help.output.startsWith(QStringLiteral("Usage: quorvin [LISTING]\n")));
  const Ended unknown = startAndEnd({QStringLiteral("--verison")}, desktop_.environment());
  EXPECT_EQ(unknown.code, 2);
  EXPECT_EQ(unknown.errors, u"quorvin: unknown option --verison\nTry: quorvin --help\n");
  EXPECT_EQ(home_.settings(), before);
}

TEST_F(Starting, ListsBesideABuiltProgramAreTakenAlong) {
  home_.folder.writeFile(QStringLiteral("built/CMakeCache.txt"), "x");
  const QString bin = home_.folder.makeFolder(QStringLiteral("built/bin"));
  ASSERT_TRUE(QFile::rename(home_.program(), bin + QStringLiteral("quorvin")));
  const QByteArray lists = listFile({{QStringLiteral("Music"), QStringLiteral("/music/")}});
  home_.folder.writeFile(QStringLiteral("built/bin/Locations.txt"), lists);
  home_.folder.writeFile(QStringLiteral("settings.ini"),
                         "[Ketta%20Quorvin/Settings]\nLocalFolder=" + bin.toUtf8() + "\n");
  QProcessEnvironment environment = desktop_.environment();
  home_.addTo(environment);
  QProcess process;
  endWithTest(process);
  process.setProcessEnvironment(environment);
  process.start(bin + QStringLiteral("quorvin"), QStringList());
  const auto waitForAnother = [&](const QString& window) {
    QString active;
    waitUntil(QStringLiteral("for a window of the program"), [&] {
      active = desktop_.activeWindow();
      return active != window && desktop_.titleOf(active) == kTitle;
    });
    return active;
  };
  const QString message = waitForAnother({});
  desktop_.press({QStringLiteral("Return")});
  waitForAnother(message);
  desktop_.press(kCtrlQ);
  ASSERT_TRUE(process.waitForFinished(180'000));
  EXPECT_EQ(process.exitCode(), 0);
  EXPECT_EQ(home_.folder.readFile(QStringLiteral("xdg_data_home/quorvin/Locations.txt")), lists);
  EXPECT_TRUE(
      home_.settings().contains(QStringLiteral("\nLocalFolder=%1\n")
                                    .arg(home_.folder.pathOf(QStringLiteral("xdg_data_home/quorvin/")))))
      << home_.settings().toStdString();
}

class EndBySignal : public Starting, public testing::WithParamInterface<int> {};

TEST_P(EndBySignal, SavesEverythingThoughADialogIsOpen) {
  RunningProgram program(desktop_, home_);
  addMusic(program);
  program.openFromFileMenu({QStringLiteral("o")}, QStringLiteral("Options"));
  expectCleanEnd(program.endBySignal(GetParam()));
  expectMusicIsSaved();
}

TEST_P(EndBySignal, DoesNotWaitForAnAnswer) {
  RunningProgram program(desktop_, home_);
  addMusic(program);
  expectEndsQuietly({QStringLiteral("/no/such.txt")});
  program.waitForWindow(kTitle);
  expectCleanEnd(program.endBySignal(GetParam()));
  expectMusicIsSaved();
}

INSTANTIATE_TEST_SUITE_P(Each, EndBySignal, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_F(Starting, ASignalShowsNoMessageAboutWhatCannotBeSaved) {
  RunningProgram program(desktop_, home_);
  // An empty data folder counts as invalid.
  ASSERT_TRUE(QFile::remove(home_.folder.pathOf(QStringLiteral("data/main.txt"))));
  const ProgramEnd end = program.endBySignal(SIGTERM);
  EXPECT_TRUE(end.isExit);
  EXPECT_EQ(end.code, 0);
  EXPECT_EQ(end.errors.count(QStringLiteral("quorvin: The Local Data Folder path is invalid.")), 2)
      << end.errors.toStdString();
}

}  // namespace

}  // namespace quorvin::test
