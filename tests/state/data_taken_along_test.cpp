// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/data_taken_along.h"

#include "support/memory_settings_store.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <QDateTime>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

const QString kSet = QStringLiteral("Ketta Quorvin");
const QString kLocalFolder = QStringLiteral("LocalFolder");

/// A program that runs in its build folder, in which an earlier version has kept the user's data.
class DataTakenAlong : public testing::Test {
 protected:
  DataTakenAlong() {
    home_.writeFile(u"build/CMakeCache.txt"_qs, "x");
    home_.makeFolder(u"build/bin"_qs);
  }

  void keepBesideTheProgram(const QString& name, const QByteArray& bytes) const {
    home_.writeFile(u"build/bin/"_qs + name, bytes);
  }
  void localFolderIs(const QString& folder) { store_.put(kSet, kLocalFolder, folder); }
  void take() { takeAlongData(store_, kSet, place_, boxes_); }
  QByteArray taken(const QString& name) const { return home_.readFile(u"data/quorvin/"_qs + name); }
  bool isTaken(const QString& name) const { return home_.has(u"data/quorvin/"_qs + name); }

  TemporaryFolder home_;
  ProgramPlace place_{home_.pathOf(u"build/bin/"_qs), home_.pathOf(u"data/quorvin/"_qs)};
  MemorySettingsStore store_;
  RecordingMessageBoxes boxes_;
};

TEST_F(DataTakenAlong, ListsAndListingsAreCopiedAndTheSettingFollows) {
  const QByteArray lists = "\"Music\",\"/music/\"\r\n";
  keepBesideTheProgram(u"Locations.txt"_qs, lists);
  keepBesideTheProgram(u"Locations.txt_disk"_qs, "\"Films\",\"/films/\"\r\n");
  keepBesideTheProgram(u"Locations.txt.kept"_qs, "kept");
  keepBesideTheProgram(u"Music.txt"_qs, "listing");
  keepBesideTheProgram(u"club.lst"_qs, "main");
  keepBesideTheProgram(u"club.zip"_qs, "archive");
  keepBesideTheProgram(u"quorvin"_qs, "program");
  store_.put(kSet, u"TextFile"_qs, u"club.lst"_qs);
  store_.put(kSet, u"ArchiveFile"_qs, u"club.zip"_qs);
  localFolderIs(place_.executableFolder);
  take();
  EXPECT_EQ(taken(u"Locations.txt"_qs), lists);
  EXPECT_EQ(taken(u"Locations.txt_disk"_qs), "\"Films\",\"/films/\"\r\n");
  EXPECT_EQ(taken(u"Locations.txt.kept"_qs), "kept");
  EXPECT_EQ(taken(u"Music.txt"_qs), "listing");
  EXPECT_EQ(taken(u"club.lst"_qs), "main");
  EXPECT_EQ(taken(u"club.zip"_qs), "archive");
  EXPECT_TRUE(isTaken(u"about-this-folder.txt"_qs));
  EXPECT_FALSE(isTaken(u"quorvin"_qs));
  EXPECT_EQ(store_.stored(kSet, kLocalFolder), place_.dataFolder);
  EXPECT_EQ(home_.readFile(u"build/bin/Locations.txt"_qs), lists);
  EXPECT_EQ(
      boxes_.informed,
      std::vector<QString>(
          {u"Your lists were kept in %1, beside the program, where a new build or an update may remove "
           u"them.\r\n"
           "\r\nThey have been copied to %2, and are used there from now on. The old files are no longer needed."_qs
               .arg(place_.executableFolder, place_.dataFolder)}));
}

TEST_F(DataTakenAlong, OnlyOnce) {
  keepBesideTheProgram(u"Locations.txt"_qs, "old");
  localFolderIs(place_.executableFolder);
  take();
  keepBesideTheProgram(u"Locations.txt"_qs, "changed since");
  take();
  EXPECT_EQ(taken(u"Locations.txt"_qs), "old");
  EXPECT_THAT(boxes_.informed, SizeIs(1));
}

TEST_F(DataTakenAlong, ListsThatNoSettingNamesAreTakenToo) {
  keepBesideTheProgram(u"OfflineLocations.txt"_qs, "\"CDs\",\"/cds.txt\"\r\n");
  take();
  EXPECT_EQ(taken(u"OfflineLocations.txt"_qs), "\"CDs\",\"/cds.txt\"\r\n");
  EXPECT_FALSE(store_.has(kSet, kLocalFolder)) << "Start-up completes it by itself.";
  EXPECT_THAT(boxes_.informed, SizeIs(1));
  take();
  EXPECT_THAT(boxes_.informed, SizeIs(1));
}

TEST_F(DataTakenAlong, NothingIsTakenWhereDefaultsGiveTheFolder) {
  const TemporaryFolder current;
  current.writeFile(u"defaults.txt"_qs, "/lists/\r\n\r\n\r\n\r\n");
  const CurrentFolder inside(current.path());
  keepBesideTheProgram(u"Locations.txt"_qs, "old");
  take();
  EXPECT_FALSE(isTaken(u"Locations.txt"_qs));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(DataTakenAlong, WhatCameFromPeersIsTakenWithItsPaths) {
  keepBesideTheProgram(u"Received/host/Disk/Disk.txt"_qs, "listing");
  const QByteArray from =
      "\"Disk\",\"" + place_.executableFolder.toUtf8() + "Received/host/Disk/Disk.txt\"\r\n";
  const QByteArray other = "\"Tool\",\"" + place_.executableFolder.toUtf8() + "tool.lst\"\r\n";
  keepBesideTheProgram(u"OfflineLocations.txt"_qs, from + other);
  localFolderIs(place_.executableFolder);
  take();
  EXPECT_EQ(taken(u"Received/host/Disk/Disk.txt"_qs), "listing");
  EXPECT_EQ(taken(u"OfflineLocations.txt"_qs),
            "\"Disk\",\"" + place_.dataFolder.toUtf8() + "Received/host/Disk/Disk.txt\"\r\n" + other);
}

TEST_F(DataTakenAlong, AnotherFileOfTheNameIsNeverReplaced) {
  keepBesideTheProgram(u"Locations.txt"_qs, "mine");
  keepBesideTheProgram(u"Music.txt"_qs, "listing");
  home_.writeFile(u"data/quorvin/Locations.txt"_qs, "another");
  localFolderIs(place_.executableFolder);
  take();
  EXPECT_EQ(taken(u"Locations.txt"_qs), "another");
  EXPECT_FALSE(isTaken(u"Music.txt"_qs));
  EXPECT_EQ(store_.stored(kSet, kLocalFolder), place_.executableFolder);
  ASSERT_THAT(boxes_.informed, SizeIs(1));
  EXPECT_TRUE(boxes_.informed[0].contains(u"which holds another file of the name Locations.txt."_qs))
      << boxes_.informed[0].toStdString();
}

TEST_F(DataTakenAlong, AnInterruptedCopyIsCompleted) {
  keepBesideTheProgram(u"Locations.txt"_qs, "lists");
  keepBesideTheProgram(u"Music.txt"_qs, "listing");
  home_.writeFile(u"data/quorvin/Music.txt"_qs, "listing");
  take();
  EXPECT_EQ(taken(u"Locations.txt"_qs), "lists");
  EXPECT_THAT(boxes_.informed, SizeIs(1));
}

TEST_F(DataTakenAlong, AFaultIsReportedAndChangesNothing) {
  keepBesideTheProgram(u"Locations.txt"_qs, "lists");
  localFolderIs(place_.executableFolder);
  home_.writeFile(u"data/quorvin"_qs, "a file in the way");
  take();
  EXPECT_EQ(store_.stored(kSet, kLocalFolder), place_.executableFolder);
  ASSERT_THAT(boxes_.informed, SizeIs(1));
  EXPECT_TRUE(boxes_.informed[0].contains(u"They could not be copied to "_qs));
}

TEST_F(DataTakenAlong, AProgramFolderThatHoldsNothingIsLeftQuietly) {
  localFolderIs(place_.executableFolder);
  take();
  EXPECT_EQ(store_.stored(kSet, kLocalFolder), place_.dataFolder);
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(DataTakenAlong, AFolderOfTheUsersChoiceStays) {
  keepBesideTheProgram(u"Locations.txt"_qs, "old");
  const QString chosen = home_.makeFolder(u"lists"_qs);
  localFolderIs(chosen);
  take();
  EXPECT_EQ(store_.stored(kSet, kLocalFolder), chosen);
  EXPECT_FALSE(home_.has(u"data"_qs));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(DataTakenAlong, ACopiedProgramKeepsItsDataBesideItself) {
  ASSERT_TRUE(QFile::remove(home_.pathOf(u"build/CMakeCache.txt"_qs)));
  keepBesideTheProgram(u"Locations.txt"_qs, "portable");
  localFolderIs(place_.executableFolder);
  take();
  EXPECT_EQ(store_.stored(kSet, kLocalFolder), place_.executableFolder);
  EXPECT_FALSE(home_.has(u"data"_qs));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(DataTakenAlong, ACopyHasTheTimeOfTheOriginal) {
  keepBesideTheProgram(u"Locations.txt"_qs, "lists");
  const QDateTime time = QDateTime::fromString(u"2004-01-15T10:20:30Z"_qs, Qt::ISODate);
  QFile file(home_.pathOf(u"build/bin/Locations.txt"_qs));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
  file.close();
  take();
  EXPECT_EQ(QFileInfo(home_.pathOf(u"data/quorvin/Locations.txt"_qs)).lastModified().toUTC(), time);
}

}  // namespace
}  // namespace quorvin
