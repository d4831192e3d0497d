// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/standard_folders.h"

#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <gtest/gtest.h>

#include <array>

namespace quorvin {

namespace {

const QString kNote = QStringLiteral("data/about-this-folder.txt");

}  // namespace

TEST(UserDataFolder, IsUnderTheUsersDataAndIsNotMade) {
  const TemporaryFolder folder;
  const QByteArray before = qgetenv("XDG_DATA_HOME");
  qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
  const QString path = userDataFolder();
  before.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before);
  EXPECT_TRUE(path.endsWith(u"/quorvin/")) << path.toStdString();
  EXPECT_EQ(QDir::cleanPath(path), folder.pathOf(QStringLiteral("quorvin")));
  EXPECT_EQ(folder.names(), QStringList());
}

TEST(PrepareUserDataFolder, MakesTheFolderWithANoteInIt) {
  const TemporaryFolder folder;
  prepareUserDataFolder(folder.pathOf(QStringLiteral("data/")));
  EXPECT_EQ(folder.readFile(kNote),
            "Quorvin Utility keeps its listings and its lists of sources in this folder.\r\n"
            "You can choose another folder under File, Options.\r\n");
}

TEST(PrepareUserDataFolder, TakesAFolderWithoutATrailingSeparatorToo) {
  const TemporaryFolder folder;
  prepareUserDataFolder(folder.pathOf(QStringLiteral("data")));
  EXPECT_TRUE(folder.has(kNote));
}

TEST(PrepareUserDataFolder, LeavesANoteThatIsThere) {
  const TemporaryFolder folder;
  folder.writeFile(kNote, "mine");
  prepareUserDataFolder(folder.pathOf(QStringLiteral("data/")));
  EXPECT_EQ(folder.readFile(kNote), "mine");
}

TEST(PrepareUserDataFolder, AFileInTheWayIsAFault) {
  const TemporaryFolder folder;
  folder.writeFile(QStringLiteral("data"), "x");
  try {
    prepareUserDataFolder(folder.pathOf(QStringLiteral("data/")));
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 75);
  }
}

TEST(PrepareUserDataFolder, AFullDiskIsAFaultAndLeavesNoHalfNote) {
  const TemporaryFolder folder;
  {
    const FullDisk disk(10);
    EXPECT_FAULT(prepareUserDataFolder(folder.pathOf(QStringLiteral("data/"))), 61);
  }
  EXPECT_FALSE(folder.has(kNote));
}

TEST(ChooseProgramFolder, IsTheExecutablesWhereThatCanBeWritten) {
  const TemporaryFolder folder;
  const QString own = folder.makeFolder(QStringLiteral("bin"));
  EXPECT_EQ(chooseProgramFolder(own.chopped(1), folder.pathOf(QStringLiteral("data/"))), own);
  EXPECT_FALSE(folder.has(QStringLiteral("data")));
}

TEST(ChooseProgramFolder, IsTheDataFolderMadeReadyElsewhere) {
  const TemporaryFolder folder;
  const QString data = folder.pathOf(QStringLiteral("data/"));
  EXPECT_EQ(chooseProgramFolder(folder.pathOf(QStringLiteral("no such folder")), data), data);
  EXPECT_TRUE(folder.has(kNote));
}

TEST(ChooseProgramFolder, OfAnInstalledProgramIsTheDataFolderWhoeverMayWrite) {
  const TemporaryFolder folder;
  const QString own = folder.makeFolder(QStringLiteral("usr/bin"));
  folder.makeFolder(QStringLiteral("usr/share/quorvin/help"));
  const QString data = folder.pathOf(QStringLiteral("data/"));
  EXPECT_EQ(chooseProgramFolder(own.chopped(1), data), data);
  EXPECT_TRUE(folder.has(kNote));
  // What others start is in a folder of the program's own.
  const QString hidden = folder.makeFolder(QStringLiteral("usr/libexec/quorvin"));
  EXPECT_EQ(chooseProgramFolder(hidden.chopped(1), data), data);
}

TEST(ChooseProgramFolder, OfAProgramInItsBuildFolderIsTheDataFolder) {
  const TemporaryFolder folder;
  const QString own = folder.makeFolder(QStringLiteral("build/bin"));
  folder.writeFile(QStringLiteral("build/CMakeCache.txt"), "x");
  const QString data = folder.pathOf(QStringLiteral("data/"));
  EXPECT_EQ(chooseProgramFolder(own.chopped(1), data), data);
  EXPECT_TRUE(folder.has(kNote));
}

TEST(ProgramPlaceOfThisRun, IsBesideTheExecutableAndInTheUsersData) {
  std::array<char, 5> name{"test"};
  std::array<char*, 2> arguments{name.data(), nullptr};
  int count = 1;
  const QCoreApplication application(count, arguments.data());
  const ProgramPlace place = usualProgramPlace();
  EXPECT_EQ(place.executableFolder, QFileInfo(u"/proc/self/exe"_qs).canonicalPath() + u'/');
  EXPECT_EQ(place.dataFolder, userDataFolder());
}

}  // namespace quorvin
