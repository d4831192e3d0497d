// SPDX-License-Identifier: GPL-2.0-or-later

// Closing the real program while it works.
#include "archive/archive_maker.h"
#include "e2e/running_program.h"
#include "e2e/source_records.h"
#include "files/file_identity.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

#include <csignal>
#include <iostream>
#include <optional>
#include <unistd.h>

namespace quorvin::test {

namespace {

class ClosingAtWork : public testing::Test {
 protected:
  ClosingAtWork() { home_.writeSettings(); }

  /// Ends the program as a person does, and looks at how it went.
  void expectCleanAndSoon(RunningProgram& program) const {
    const ProgramEnd end = program.endBy({QStringLiteral("ctrl+q")});
    EXPECT_TRUE(end.isExit);
    EXPECT_EQ(end.code, 0);
    EXPECT_EQ(end.errors, u"");
    // That it is soon shows in the work left undone; the time itself is the machine's as much as the
    // program's.
    RecordProperty("milliseconds", end.milliseconds);
    std::cout << "ended " << end.milliseconds << " ms after the keys\n";
    EXPECT_TRUE(home_.settings().contains(QStringLiteral("\nNickName=ann\n")));
    EXPECT_TRUE(home_.settings().contains(QStringLiteral("\nHeight=")));
  }

  QStringList namesIn(const QString& folder) const {
    return QDir(home_.folder.pathOf(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }

  ProgramHome home_;
  Desktop desktop_;
};

TEST_F(ClosingAtWork, ASearchEndsAtOnce) {
  // One listing under many names: each of them is read anew, so that the search goes on for long.
  constexpr int kListings = 400;
  const QByteArray first = home_.list(QStringLiteral("1.txt")).toUtf8();
  QByteArray listing = blockHead("Far", "\\far\\");
  while (listing.size() < 6'000'000) listing += entryLine("song " + QByteArray::number(listing.size()));
  home_.folder.writeFile(QStringLiteral("lists/1.txt"), listing);
  SourceRecords offline;
  for (int number = 1; number <= kListings; ++number) {
    const QString path = home_.list(QStringLiteral("%1.txt").arg(number));
    offline.push_back({QStringLiteral("Offline"), path});
    if (number > 1) {
      ASSERT_EQ(::link(first.constData(), path.toUtf8().constData()), 0);
    }
  }
  home_.folder.writeFile(QStringLiteral("data/OfflineLocations.txt"), listFile(offline));

  RunningProgram program(desktop_, home_);
  program.find(QStringLiteral("nothing like this"));
  // An image is kept of each listing that has been read.
  const QString images = QStringLiteral("xdg_cache_home/quorvin");
  waitUntil(QStringLiteral("for the search to be at work"), [&] { return namesIn(images).size() >= 3; });
  expectCleanAndSoon(program);
  EXPECT_LT(namesIn(images).size(), kListings);
  EXPECT_EQ(home_.dataFile(QStringLiteral("OfflineLocations.txt")), listFile(offline));
  EXPECT_EQ(namesIn(QStringLiteral("data")),
            QStringList({QStringLiteral("Locations.txt"), QStringLiteral("OfflineLocations.txt"),
                         QStringLiteral("main.txt")}));
}

TEST_F(ClosingAtWork, ARefreshEndsAtOnceAndLeavesWholeListings) {
  constexpr int kSources = 400;
  constexpr int kFiles = 5000;
  const QByteArray old = blockHead("Old", "\\old\\") + entryLine("old song.mp3");
  const QString folder = home_.folder.makeFolder(QStringLiteral("songs"));
  for (int number = 1; number <= kFiles; ++number) {
    home_.folder.writeFile(QStringLiteral("songs/song %1.mp3").arg(number), {});
  }
  SourceRecords online;
  const auto nameOf = [](int number) { return QStringLiteral("Disk %1").arg(number); };
  for (int number = 1; number <= kSources; ++number) {
    online.push_back({nameOf(number), folder});
    home_.folder.writeFile(QStringLiteral("data/%1.txt").arg(nameOf(number)), old);
  }
  home_.folder.writeFile(QStringLiteral("data/Locations.txt"), listFile(online));
  const auto listing = [&](int number) { return home_.dataFile(nameOf(number) + QStringLiteral(".txt")); };

  RunningProgram program(desktop_, home_);
  program.press(
      {QStringLiteral("alt+f"), QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Return")});
  waitUntil(QStringLiteral("for the refresh to be at work"), [&] { return listing(3) != old; });
  expectCleanAndSoon(program);

  // All in order: some sources have whole new listings, the others their old ones.
  const QByteArray first = listing(1);
  EXPECT_EQ(first.count("\r\nsong "), kFiles);
  int newListings = 1;
  for (; newListings < kSources && listing(newListings + 1) != old; ++newListings) {
    const QByteArray volume = nameOf(newListings + 1).toUtf8();
    EXPECT_EQ(listing(newListings + 1), QByteArray(first).replace("Disk 1", volume)) << volume.toStdString();
  }
  EXPECT_GE(newListings, 3);
  EXPECT_LT(newListings, kSources);
  for (int number = newListings + 1; number <= kSources; ++number) EXPECT_EQ(listing(number), old) << number;
  EXPECT_EQ(home_.dataFile(QStringLiteral("Locations.txt")), listFile(online));
  // What was being written is a file aside, which no search reads.
  for (const QString& name : namesIn(QStringLiteral("data"))) {
    if (!name.endsWith(QStringLiteral(".txt"))) {
      EXPECT_EQ(name, nameOf(newListings + 1) + QStringLiteral(".tmp"));
    }
  }
}

TEST_F(ClosingAtWork, TheUnpackingAtStartUpEndsAndEverythingIsSaved) {
  constexpr int kParts = 40'000;
  std::vector<MadeEntry> entries(kParts);
  for (int number = 1; number <= kParts; ++number) {
    MadeEntry& entry = entries[static_cast<std::size_t>(number - 1)];
    entry.name = "parts/" + QByteArray::number(number) + ".txt";
    entry.content = "x";
  }
  MadeEntry last;
  last.name = "main.txt";
  last.content = "content";
  entries.push_back(last);
  home_.folder.writeFile(QStringLiteral("data/main.zip"), archiveOf(entries));
  ASSERT_TRUE(QFile::remove(home_.folder.pathOf(QStringLiteral("data/main.txt"))));
  home_.folder.writeFile(QStringLiteral("settings.ini"),
                         home_.settings().toUtf8() + "ArchiveFile=main.zip\n");

  RunningProgram program(desktop_, home_);
  waitUntil(QStringLiteral("for the unpacking to be at work"),
            [&] { return namesIn(QStringLiteral("data/parts")).size() >= 20; });
  expectCleanAndSoon(program);
  EXPECT_LT(namesIn(QStringLiteral("data/parts")).size(), kParts);
  EXPECT_FALSE(home_.hasData(QStringLiteral("main.txt")));
  EXPECT_TRUE(home_.hasData(QStringLiteral("Locations.txt")));
  EXPECT_TRUE(home_.hasData(QStringLiteral("OfflineLocations.txt")));
}

/// What lets the first read of a file below the folder wait for ever, as one on a drive that does not answer;
/// `report` is a file that is made when it starts to.
QProcessEnvironment withReadsThatHang(const QString& folder, const QString& report) {
  QProcessEnvironment environment;
  environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(QUORVIN_FAILING_CALLS));
  environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
  environment.insert(QStringLiteral("QUORVIN_FAIL_CALL"), QStringLiteral("read"));
  environment.insert(QStringLiteral("QUORVIN_FAIL_AT"), QStringLiteral("1"));
  environment.insert(QStringLiteral("QUORVIN_FAIL_BELOW"), folder);
  environment.insert(QStringLiteral("QUORVIN_FAIL_HOW"), QStringLiteral("hang"));
  environment.insert(QStringLiteral("QUORVIN_FAIL_REPORT"), report);
  return environment;
}

TEST_F(ClosingAtWork, APictureOnADriveThatDoesNotAnswerIsNotWaitedFor) {
  const QString pictures = home_.folder.pathOf(QStringLiteral("pictures/"));
  home_.folder.writeFile(QStringLiteral("pictures/harbour.bmp"), "BM");
  home_.folder.writeFile(
      QStringLiteral("data/Pictures.txt"),
      blockHead("Pictures", QString(pictures).replace(u'/', u'\\').toUtf8()) + entryLine("harbour.bmp"));
  home_.folder.writeFile(QStringLiteral("data/Locations.txt"),
                         listFile({{QStringLiteral("Pictures"), pictures}}));
  const QString report = home_.folder.pathOf(QStringLiteral("hangs"));

  RunningProgram program(desktop_, home_, {}, withReadsThatHang(pictures, report));
  program.find(QStringLiteral("harbour"));
  program.waitForHits({QStringLiteral("100%\tPictures\t%1\tharbour.bmp\t0.00mb\tJan, 15 04")
                           .arg(QString(pictures).replace(u'/', u'\\'))});
  program.press({QStringLiteral("Home"), QStringLiteral("shift+F10"), QStringLiteral("Down"),
                 QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Return")});
  waitUntil(QStringLiteral("for the picture to be read"), [&] { return QFile::exists(report); });
  expectCleanAndSoon(program);
}

TEST_F(ClosingAtWork, WhatWasNotSavedBeforeACrashIsOfferedAtTheNextStart) {
  const auto copies = [this] {
    return QDir(home_.folder.path()).entryList({QStringLiteral("settings.ini.recovery-*")}, QDir::Files);
  };
  {
    RunningProgram crashing(desktop_, home_);
    crashing.openFromFileMenu({QStringLiteral("o")}, QStringLiteral("Options"));
    // Past the folder, the main data file, the archive, the server and the date.
    crashing.typeAfterTabs(7, QStringLiteral("bob"));
    crashing.press({QStringLiteral("Return")});
    crashing.waitForMainWindow();
    waitUntil(QStringLiteral("for the recovery copy"), [&] { return copies().size() == 1; });
    ASSERT_EQ(::kill(static_cast<pid_t>(desktop_.processOf(crashing.mainWindow())), SIGKILL), 0);
  }
  EXPECT_TRUE(home_.settings().contains(QStringLiteral("\nNickName=ann\n")));

  RunningProgram next(desktop_, home_);
  const QString copy = home_.folder.pathOf(copies().value(0));
  const std::optional<FileIdentity> left = fileIdentity(copy);
  // Taken over, the changes are kept again. The main window knows no such key.
  waitUntil(QStringLiteral("for the answer to be taken"), [&] {
    next.press({QStringLiteral("alt+y")});
    return fileIdentity(copy) != left;
  });
  // Which of its two windows the program was first seen by is left open.
  waitUntil(QStringLiteral("for the main window"),
            [&] { return desktop_.titleOf(desktop_.activeWindow()) == QStringLiteral("Quorvin Utility"); });
  const ProgramEnd end = next.endBy({QStringLiteral("ctrl+q")});
  EXPECT_EQ(end.code, 0);
  EXPECT_TRUE(home_.settings().contains(QStringLiteral("\nNickName=bob\n")));
  EXPECT_EQ(copies(), QStringList());
}

}  // namespace

}  // namespace quorvin::test
