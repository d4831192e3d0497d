// SPDX-License-Identifier: GPL-2.0-or-later

// "quorvin-cli history" as a user runs it.
#include "console/console_program.h"
#include "files/file_lock.h"
#include "platform/ini_settings_store.h"
#include "support/qt_printing.h"

#include <QDateTime>

namespace quorvin {
namespace {

class HistoryProgram : public test::ConsoleProgramTest {
 protected:
  HistoryProgram() {
    IniSettingsStore store(folder.pathOf(u"settings.ini"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"LocalFolder"_qs, folder.pathOf(u"data/"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"JoinDate"_qs, u"15 Jan 2004"_qs);
    folder.writeFile(u"data/Locations.txt"_qs,
                     "\"Music\",\"" + folder.pathOf(u"Music/"_qs).toUtf8() + "\"\r\n");
    folder.writeFile(u"Music/song.mp3"_qs, "12345");
  }

  /// Refreshes with so many files in the folder.
  void refreshWith(int files) {
    for (int file = 2; file <= files; ++file) folder.writeFile(u"Music/song %1.mp3"_qs.arg(file), "1");
    ASSERT_EQ(run({u"refresh"_qs}).status, 0);
    QFile listing(folder.pathOf(u"data/Music.txt"_qs));
    ASSERT_TRUE(listing.open(QIODevice::ReadWrite));
    const QDateTime moment(QDate(2004, 1, 14 + files), QTime(10, 20, 30), Qt::UTC);
    ASSERT_TRUE(listing.setFileTime(moment, QFileDevice::FileModificationTime));
  }
  QByteArray listing() { return folder.readFile(u"data/Music.txt"_qs); }
};

TEST_F(HistoryProgram, ShowsTheVersionsOfEveryListing) {
  refreshWith(1);
  const qsizetype size = listing().size();
  refreshWith(2);
  const qsizetype second = listing().size();
  refreshWith(4);
  const test::Ended ended = run({u"history"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.output, "Music.txt\t2\t2004-01-16T10:20:30\t2\t" + QByteArray::number(second) +
                              "\tcomplete\nMusic.txt\t1\t2004-01-15T10:20:30\t1\t" +
                              QByteArray::number(size) + "\tcomplete\n");
  EXPECT_EQ(ended.errors, QString());
}

TEST_F(HistoryProgram, AListingIsNamedByDescriptionNameOrPath) {
  refreshWith(1);
  refreshWith(2);
  for (const QString& name : {u"Music"_qs, u"Music.txt"_qs, folder.pathOf(u"data/Music.txt"_qs)}) {
    EXPECT_TRUE(run({u"history"_qs, name}).output.startsWith("Music.txt\t1\t")) << name.toStdString();
  }
}

TEST_F(HistoryProgram, WithoutVersionsItEndsWith1) {
  refreshWith(1);
  EXPECT_EQ(run({u"history"_qs}).status, 1);
  const test::Ended ended = run({u"history"_qs, u"Music"_qs});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.errors, u"quorvin-cli: there is no earlier version of Music\n"_qs);
}

TEST_F(HistoryProgram, RestoresTheNewestCompleteVersion) {
  refreshWith(1);
  refreshWith(2);
  const QByteArray before = listing();
  refreshWith(4);
  const QByteArray replaced = listing();
  const test::Ended ended = run({u"history"_qs, u"--restore"_qs, u"Music"_qs});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, u"Music.txt is version 2 again, with 2 entries\n"_qs);
  EXPECT_EQ(listing(), before);
  // What was restored over is a version.
  EXPECT_EQ(run({u"history"_qs, u"Music"_qs, u"--restore"_qs, u"--number"_qs, u"3"_qs}).status, 0);
  EXPECT_EQ(listing(), replaced);
}

TEST_F(HistoryProgram, AnEmptyFolderCostsOneCommand) {
  refreshWith(3);
  const QByteArray before = listing();
  QDir(folder.pathOf(u"Music"_qs)).removeRecursively();
  folder.makeFolder(u"Music"_qs);
  const test::Ended refreshed = run({u"refresh"_qs});
  EXPECT_EQ(refreshed.status, 0);
  EXPECT_TRUE(refreshed.errors.contains(u" holds no files any more"_qs)) << refreshed.errors.toStdString();
  EXPECT_EQ(run({u"history"_qs, u"--restore"_qs, u"Music"_qs}).status, 0);
  EXPECT_EQ(listing(), before);
}

TEST_F(HistoryProgram, WhatCannotBeRestoredEndsWith2AndChangesNothing) {
  refreshWith(1);
  refreshWith(2);
  const QByteArray before = listing();
  EXPECT_EQ(run({u"history"_qs, u"--restore"_qs}).errors,
            u"quorvin-cli: name the listing that is to be restored\n"_qs);
  EXPECT_EQ(run({u"history"_qs, u"--restore"_qs, u"Films"_qs}).status, 2);
  EXPECT_EQ(run({u"history"_qs, u"--restore"_qs, u"--number"_qs, u"9"_qs, u"Music"_qs}).status, 2);
  EXPECT_EQ(run({u"history"_qs, u"--number"_qs, u"1"_qs, u"Music"_qs}).status, 2);
  const auto refresh = FolderLock::take(folder.pathOf(u"data/"_qs));
  const test::Ended ended = run({u"history"_qs, u"--restore"_qs, u"Music"_qs});
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.errors, u"quorvin-cli: The listing cannot be restored now: a refresh is running.\n"_qs);
  EXPECT_EQ(listing(), before);
}

}  // namespace
}  // namespace quorvin
