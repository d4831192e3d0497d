// SPDX-License-Identifier: GPL-2.0-or-later

// "quorvin-cli refresh" as a user runs it.
#include "console/console_program.h"
#include "files/file_lock.h"
#include "platform/ini_settings_store.h"
#include "support/many_files.h"
#include "support/qt_printing.h"

#include <QFile>

#include <csignal>
#include <sys/resource.h>

namespace quorvin {
namespace {

class RefreshProgram : public test::ConsoleProgramTest {
 protected:
  RefreshProgram() {
    folder.writeFile(u"Music/song.mp3"_qs, "12345");
    folder.writeFile(u"Films/film.avi"_qs, "12345");
    putSources("\"Music\",\"" + pathOf("Music/") + "\"\r\n\"Films\",\"" + pathOf("Films/") + "\"\r\n");
    IniSettingsStore store(folder.pathOf(u"settings.ini"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"LocalFolder"_qs, folder.pathOf(u"data/"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"JoinDate"_qs, u"15 Jan 2004"_qs);
    settings_ = folder.readFile(u"settings.ini"_qs);
  }

  void putSources(const QByteArray& lines) {
    sources_ = lines;
    folder.writeFile(u"data/Locations.txt"_qs, lines);
  }

  QByteArray pathOf(const char* name) { return folder.pathOf(QString::fromUtf8(name)).toUtf8(); }

  bool isListed(const QString& listing, const QByteArray& file) {
    return folder.readFile(u"data/"_qs + listing).contains("\r\n" + file + ' ');
  }

  QStringList dataNames() { return QDir(folder.pathOf(u"data"_qs)).entryList(QDir::Files, QDir::Name); }

  void expectNothingElseIsSaved() {
    EXPECT_EQ(folder.readFile(u"settings.ini"_qs), settings_);
    EXPECT_EQ(folder.readFile(u"data/Locations.txt"_qs), sources_);
    EXPECT_FALSE(folder.has(u"cache"_qs));
    EXPECT_FALSE(folder.has(u"home"_qs));
  }

 private:
  QByteArray sources_;
  QByteArray settings_;
};

TEST_F(RefreshProgram, MakesTheListingOfEverySourceAndSavesNothingElse) {
  const test::Ended ended = run({u"refresh"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.errors, QString());
  EXPECT_EQ(dataNames(), (QStringList{u"Films.txt"_qs, u"Locations.txt"_qs, u"Music.txt"_qs}));
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "song.mp3"));
  EXPECT_TRUE(isListed(u"Films.txt"_qs, "film.avi"));
  expectNothingElseIsSaved();
}

TEST_F(RefreshProgram, WhatItHasListedIsFound) {
  run({u"refresh"_qs});
  const test::Ended ended = run({u"find"_qs, u"--no-cache"_qs, u"song"_qs});
  EXPECT_TRUE(ended.output.startsWith("100%\tMusic\t")) << ended.output.toStdString();
  EXPECT_EQ(ended.errors, u"1 found, 2 searched\n"_qs);
}

TEST_F(RefreshProgram, WithoutFoldersItSaysHowToAddOne) {
  putSources("");
  const test::Ended ended = run({u"refresh"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors,
            u"there are no folders of your own yet; quorvin-cli sources add FOLDER adds one\n"_qs);
  EXPECT_EQ(run({u"refresh"_qs, u"-q"_qs}).errors, QString());
}

TEST_F(RefreshProgram, ASourceThatIsNotThereIsToldAndKeepsItsListing) {
  folder.writeFile(u"data/Drive.txt"_qs, "old");
  putSources("\"Drive\",\"" + pathOf("gone/") + "\"\r\n\"Films\",\"" + pathOf("Films/") + "\"\r\n");
  const test::Ended ended = run({u"refresh"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, folder.pathOf(u"gone/"_qs) + u" not found; the listing of Drive was kept\n"_qs);
  EXPECT_EQ(folder.readFile(u"data/Drive.txt"_qs), "old");
  EXPECT_TRUE(isListed(u"Films.txt"_qs, "film.avi"));
}

TEST_F(RefreshProgram, AListingThatCannotBeWrittenEndsWith2) {
  QDir().mkpath(folder.pathOf(u"data/Music.txt/x"_qs));
  const test::Ended ended = run({u"refresh"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_TRUE(ended.errors.startsWith(u"quorvin-cli: Error Refreshing Local Lists:"_qs))
      << ended.errors.toStdString();
  EXPECT_TRUE(ended.errors.endsWith(folder.pathOf(u"data/Music.txt\n"_qs))) << ended.errors.toStdString();
  expectNothingElseIsSaved();
}

TEST_F(RefreshProgram, AnotherRefreshOfTheSameFolderEndsItWith2) {
  folder.writeFile(u"data/Music.txt"_qs, "old");
  const auto another = FolderLock::take(folder.pathOf(u"data/"_qs));
  const test::Ended ended = run({u"refresh"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors,
            u"quorvin-cli: The local lists cannot be refreshed now: another refresh is running.\n"_qs);
  EXPECT_EQ(folder.readFile(u"data/Music.txt"_qs), "old");
}

TEST_F(RefreshProgram, NamesWithoutAPlaceInTheListingEndItWith2) {
  test::makeManyFiles(folder.makeFolder(u"Many"_qs).toUtf8(), 31'002);
  putSources("\"Many\",\"" + pathOf("Many/") + "\"\r\n");
  const test::Ended ended = run({u"refresh"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_TRUE(ended.errors.contains(u"Left out: 1 of 31002 files in "_qs)) << ended.errors.toStdString();
  EXPECT_TRUE(ended.errors.endsWith(u"Many/ holds too many files; 1 name was left out\n"_qs));
}

TEST_F(RefreshProgram, TooFewDescriptorsEndItWith2AndTheListingStays) {
  folder.writeFile(u"Music/a/b/c/deep.mp3"_qs, "1");
  putSources("\"Music\",\"" + pathOf("Music/") + "\"\r\n");
  folder.writeFile(u"data/Music.txt"_qs, "old");
  int refused = 0;
  for (rlim_t most = 5; !isListed(u"Music.txt"_qs, "deep.mp3"); ++most) {
    ASSERT_LT(most, 100U);
    process.setChildProcessModifier([most] {
      const rlimit few{most, most};
      ::setrlimit(RLIMIT_NOFILE, &few);
    });
    start({u"refresh"_qs});
    ASSERT_TRUE(process.waitForFinished(60000));
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) continue;
    ++refused;
    EXPECT_EQ(folder.readFile(u"data/Music.txt"_qs), "old") << most;
  }
  EXPECT_GT(refused, 0);
}

TEST_F(RefreshProgram, AnInterruptKeepsTheListingOfTheSourceAtWork) {
  folder.writeFile(u"data/All.txt"_qs, "old");
  folder.writeFile(u"data/Films.txt"_qs, "old");
  putSources("\"Music\",\"" + pathOf("Music/") + "\"\r\n\"All\",\"/\"\r\n\"Films\",\"" + pathOf("Films/") +
             "\"\r\n");
  start({u"refresh"_qs});
  while (process.state() == QProcess::Running && !folder.has(u"data/All.tmp"_qs)) process.waitForFinished(1);
  ::kill(static_cast<pid_t>(process.processId()), SIGINT);
  EXPECT_EQ(end().status, 130);
  EXPECT_TRUE(isListed(u"Music.txt"_qs, "song.mp3"));
  EXPECT_EQ(folder.readFile(u"data/All.txt"_qs), "old");
  EXPECT_EQ(folder.readFile(u"data/Films.txt"_qs), "old");
  expectNothingElseIsSaved();
}

}  // namespace
}  // namespace quorvin
