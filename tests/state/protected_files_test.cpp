// SPDX-License-Identifier: GPL-2.0-or-later

// Which files nothing that comes from elsewhere may replace.
#include "state/protected_files.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

class ProtectedFilesTest : public testing::Test {
 protected:
  ProtectedFilesTest() {
    state_.resetFileNames();
    state_.TextFile = QStringLiteral("main.txt");
  }

  bool isProtected(const QString& path) const {
    return ProtectedFiles(state_, data_.path(), places_).has(path.split(u'/'));
  }

  TemporaryFolder data_;
  TemporaryFolder elsewhere_;
  ProgramState state_;
  OwnPlaces places_{elsewhere_.pathOf(QStringLiteral("bin/")),
                    elsewhere_.pathOf(QStringLiteral("settings/settings.ini")),
                    elsewhere_.pathOf(QStringLiteral("running"))};
};

TEST_F(ProtectedFilesTest, WhatAnUpdateIsForIsNotAmongThem) {
  for (const char* name : {"main.txt", "Music.txt", "main.zip", "genhelp.htm", "pictures/back.gif",
                           "sub/Locations.txt", "sub/history/a.txt", "history.txt", "locations.txt",
                           "settings.ini", "tool.exe", "lib.so", "quorvin", "Received/a/b.txt"}) {
    data_.writeFile(QString::fromLatin1(name), "earlier");
    EXPECT_FALSE(isProtected(QString::fromLatin1(name))) << name;
  }
}

TEST_F(ProtectedFilesTest, SourceListsOfAllSettingsSetsAre) {
  for (const char* name :
       {"Locations.txt", "OfflineLocations.txt", "Locations.txt_music", "Locations.txt_/lists/music",
        "Locations.txt.kept", "OfflineLocations.txt.kept2"}) {
    EXPECT_TRUE(isProtected(QString::fromLatin1(name))) << name;
  }
}

TEST_F(ProtectedFilesTest, SoIsASourceListUnderAnotherName) {
  data_.writeFile(QStringLiteral("Locations.txt"), "");
  ASSERT_TRUE(
      QFile::link(data_.pathOf(QStringLiteral("Locations.txt")), data_.pathOf(QStringLiteral("other.txt"))));
  EXPECT_TRUE(isProtected(QStringLiteral("other.txt")));
}

TEST_F(ProtectedFilesTest, TheListingHistoryIsWhetherItIsThereOrNot) {
  EXPECT_TRUE(isProtected(QStringLiteral("history/main.txt/00000001.version")));
  data_.makeFolder(QStringLiteral("history"));
  EXPECT_TRUE(isProtected(QStringLiteral("history/main.txt/incomplete")));
}

TEST_F(ProtectedFilesTest, TheNotesOnVolumesAreWhetherTheyAreThereOrNot) {
  EXPECT_TRUE(isProtected(QStringLiteral("volumes.notes")));
  data_.writeFile(QStringLiteral("volumes.notes"), "");
  EXPECT_TRUE(isProtected(QStringLiteral("volumes.notes")));
  EXPECT_FALSE(isProtected(QStringLiteral("sub/volumes.notes")));
}

TEST_F(ProtectedFilesTest, TheHistoryIsUnderAnotherNameOfItsFolder) {
  data_.makeFolder(QStringLiteral("history"));
  ASSERT_TRUE(QFile::link(data_.pathOf(QStringLiteral("history")), data_.pathOf(QStringLiteral("HISTORY"))));
  EXPECT_TRUE(isProtected(QStringLiteral("HISTORY/main.txt/00000001.version")));
}

TEST_F(ProtectedFilesTest, SettingsAndLocksAreWhereTheDataFolderHoldsThem) {
  places_.settingsPath = data_.writeFile(QStringLiteral("own/settings.ini"), "");
  places_.runtimeFolder = data_.makeFolder(QStringLiteral("run/quorvin"));
  for (const char* name : {"own/settings.ini", "own/settings.ini.lock",
                           "own/settings.ini.recovery-0123456789abcdef", "run/quorvin/0123456789abcdef"}) {
    EXPECT_TRUE(isProtected(QString::fromLatin1(name))) << name;
  }
  EXPECT_FALSE(isProtected(QStringLiteral("own/main.txt")));
  EXPECT_FALSE(isProtected(QStringLiteral("run/quorvin.txt")));
}

TEST_F(ProtectedFilesTest, SettingsAreFoundThroughALink) {
  const TemporaryFolder links;
  ASSERT_TRUE(QFile::link(data_.path().chopped(1), links.pathOf(QStringLiteral("data"))));
  data_.makeFolder(QStringLiteral("own"));
  places_.settingsPath = links.pathOf(QStringLiteral("data/own/settings.ini"));
  EXPECT_TRUE(isProtected(QStringLiteral("own/settings.ini")));
}

TEST_F(ProtectedFilesTest, BesideTheProgramWhatCouldRunIs) {
  places_.executableFolder = data_.path();
  for (const char* name : {"quorvin", "quorvin-cli", "quorvin-metafile", "Quorvin.exe", "qt.conf",
                           "platforms/libevil.so", "libQt6Core.so.6", "libQt6Core.so.6.4.2", "icu.dll"}) {
    EXPECT_TRUE(isProtected(QString::fromLatin1(name))) << name;
  }
  for (const char* name : {"main.txt", "genhelp.htm", "quorvin.txt", "also.txt"}) {
    EXPECT_FALSE(isProtected(QString::fromLatin1(name))) << name;
  }
}

TEST_F(ProtectedFilesTest, AProgramIsKnownByItsContentAndNotByItsRights) {
  places_.executableFolder = data_.path();
  data_.writeFile(QStringLiteral("start"), "#!/bin/sh\n");
  data_.writeFile(QStringLiteral("tool"),
                  "\x7f"
                  "ELF\x02\x01");
  const QString listing = data_.writeFile(QStringLiteral("main.txt"), "\r\nVolume:    DISK\r\n");
  ASSERT_TRUE(QFile::setPermissions(listing, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  EXPECT_TRUE(isProtected(QStringLiteral("start")));
  EXPECT_TRUE(isProtected(QStringLiteral("tool")));
  EXPECT_FALSE(isProtected(QStringLiteral("main.txt")));
}

}  // namespace
}  // namespace quorvin
