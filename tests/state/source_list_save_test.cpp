// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "state/source_list_file.h"
#include "support/fault_number.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/system_call_watch.h"
#include "support/temporary_folder.h"

#include <QScopeGuard>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin {
namespace {

int faultOfSaving(const QString& path, const SourceTable& table, int count) {
  try {
    saveSourceList(path, table, count);
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

/// Saves in a process of its own in which no file may grow beyond `bytes`, as on a disk that fills up; gives
/// the fault's number.
int faultOfSavingWithRoomFor(rlim_t bytes, const QString& path, const SourceTable& table, int count) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    ::_exit(::setrlimit(RLIMIT_FSIZE, &limit) == 0 ? faultOfSaving(path, table, count) : 255);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class SourceListSave : public testing::Test {
 protected:
  QString list() const { return folder_.pathOf(QStringLiteral("Locations.txt")); }
  QByteArray saved() const { return folder_.readFile(QStringLiteral("Locations.txt")); }

  void fillTable() {
    for (int row = 1; row <= SourceTable::kLastRow; ++row) {
      table_.set(row, QStringLiteral("source %1").arg(row), QStringLiteral("D:\\Music\\%1\\").arg(row));
    }
  }

  TemporaryFolder folder_;
  SourceTable table_;
};

TEST_F(SourceListSave, WritesOneQuotedRecordALine) {
  table_.set(1, QStringLiteral("My music"), QStringLiteral("D:\\Music\\"));
  table_.set(2, QStringLiteral("Films"), QStringLiteral("/home/ann/Films/"));
  saveSourceList(list(), table_, 2);
  EXPECT_EQ(saved(), QByteArray("\"My music\",\"D:\\Music\\\"\r\n\"Films\",\"/home/ann/Films/\"\r\n"));
}

TEST_F(SourceListSave, LeavesAnEmptyFileForACountOf0) {
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"old\",\"D:\\old\\\"\r\n");
  saveSourceList(list(), table_, 0);
  EXPECT_EQ(saved(), QByteArray());
}

TEST_F(SourceListSave, ReplacesALongerFileWhole) {
  folder_.writeFile(QStringLiteral("Locations.txt"), QByteArray(5000, 'x'));
  table_.set(1, QStringLiteral("a"), QStringLiteral("b"));
  saveSourceList(list(), table_, 1);
  EXPECT_EQ(saved(), QByteArray("\"a\",\"b\"\r\n"));
}

TEST_F(SourceListSave, WritesOnlyTheRowsInUse) {
  table_.set(1, QStringLiteral("a"), QStringLiteral("b"));
  table_.set(2, QStringLiteral("left over"), QStringLiteral("c"));
  saveSourceList(list(), table_, 1);
  EXPECT_EQ(saved(), QByteArray("\"a\",\"b\"\r\n"));
}

TEST_F(SourceListSave, WritesTheSystemCodePageWithAQuestionMarkForWhatItCannotHold) {
  table_.set(1, QStringLiteral(u"M\u00FCnchen"), QString(QChar(0xD800)) + QStringLiteral("x"));
  saveSourceList(list(), table_, 1);
  EXPECT_EQ(saved(), QByteArray("\"M\xC3\xBCnchen\",\"?x\"\r\n"));
}

TEST_F(SourceListSave, EscapesNoQuotes) {
  table_.set(1, QStringLiteral("12\" records"), QStringLiteral("b"));
  saveSourceList(list(), table_, 1);
  EXPECT_EQ(saved(), QByteArray("\"12\" records\",\"b\"\r\n"));
}

TEST_F(SourceListSave, ComesBackAsItWas) {
  fillTable();
  table_.set(7, QStringLiteral("a,b"), QStringLiteral(" /with blanks / "));
  saveSourceList(list(), table_, 2000);
  SourceTable loaded;
  int count = 0;
  loadSourceList(list(), loaded, count);
  ASSERT_EQ(count, 2000);
  for (int row = 1; row <= count; ++row) {
    ASSERT_EQ(loaded.description(row), table_.description(row)) << row;
    ASSERT_EQ(loaded.path(row), table_.path(row)) << row;
  }
}

TEST_F(SourceListSave, NumbersTheListsThatItKeepsFrom2) {
  ProgramState state;
  state.LocalFolder = folder_.path();
  state.LocFile = QStringLiteral("Locations.txt");
  state.OnlineSourceCount = 1;
  RecordingMessageBoxes messages;
  for (const QString& name : {QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")}) {
    state.OnlineSources.set(1, name, QStringLiteral("/music/"));
    folder_.writeFile(QStringLiteral("Locations.txt"), name.toLatin1());
    EXPECT_TRUE(saveOnlineSources(state, messages));
  }
  EXPECT_EQ(folder_.names(),
            QStringList({QStringLiteral("Locations.txt"), QStringLiteral("Locations.txt.kept"),
                         QStringLiteral("Locations.txt.kept2"), QStringLiteral("Locations.txt.kept3")}));
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt.kept")), "first");
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt.kept2")), "second");
}

TEST_F(SourceListSave, KeepsNoCopyOfAListThatIsSavedAlready) {
  ProgramState state;
  state.LocalFolder = folder_.path();
  state.LocFile = QStringLiteral("Locations.txt");
  state.OnlineSources.set(++state.OnlineSourceCount, QStringLiteral("Music"), QStringLiteral("/music/"));
  // As a save leaves it whose very last step fails.
  folder_.writeFile(state.LocFile, "\"Music\",\"/music/\"\r\n");
  RecordingMessageBoxes messages;
  EXPECT_TRUE(saveOnlineSources(state, messages));
  EXPECT_EQ(folder_.names(), QStringList{QStringLiteral("Locations.txt")});
  EXPECT_EQ(saved(), QByteArray("\"Music\",\"/music/\"\r\n"));
  EXPECT_TRUE(messages.informed.empty());
}

class FirstSourceList : public SourceListSave {
 protected:
  FirstSourceList() {
    state_.LocalFolder = folder_.path();
    state_.LocFile = QStringLiteral("Locations.txt");
    state_.OnlineSources.set(++state_.OnlineSourceCount, QStringLiteral("Music"), QStringLiteral("/music/"));
    folder_.writeFile(QStringLiteral("here"), "");
  }

  ProgramState state_;
  RecordingMessageBoxes messages_;
  const QByteArray kMusic = "\"Music\",\"/music/\"\r\n";
};

TEST_F(FirstSourceList, IsMade) {
  EXPECT_TRUE(saveOnlineSources(state_, messages_));
  EXPECT_EQ(saved(), kMusic);
  EXPECT_EQ(folder_.names(), QStringList({QStringLiteral("Locations.txt"), QStringLiteral("here")}));
}

TEST_F(FirstSourceList, IsMadeInTheFoldersOfItsName) {
  state_.LocFile = QStringLiteral("lists/of mine/Locations.txt");
  EXPECT_TRUE(saveOnlineSources(state_, messages_));
  EXPECT_EQ(folder_.readFile(state_.LocFile), kMusic);
}

TEST_F(FirstSourceList, IsNotMadeWhereStartUpDidNotComeToIt) {
  state_.OnlineSourceCount = 0;
  EXPECT_TRUE(saveOnlineSources(state_, messages_));
  EXPECT_EQ(folder_.names(), QStringList{QStringLiteral("here")});
}

TEST_F(FirstSourceList, OfAnotherProgramThatComesInBetweenIsKept) {
  bool hasCome = false;
  test::systemCallWatcher() = [&](const std::string&) {
    if (hasCome || filesAside(folder_.path()).isEmpty()) return;
    hasCome = true;
    folder_.writeFile(state_.LocFile, "\"Films\",\"/films/\"\r\n");
  };
  const auto unwatched = qScopeGuard([] { test::systemCallWatcher() = nullptr; });
  EXPECT_TRUE(saveOnlineSources(state_, messages_));
  ASSERT_TRUE(hasCome);
  EXPECT_EQ(saved(), kMusic);
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt.kept")), "\"Films\",\"/films/\"\r\n");
}

TEST_F(SourceListSave, LeavesNothingElseInTheFolder) {
  saveSourceList(list(), table_, 3);
  EXPECT_EQ(folder_.names(), QStringList{QStringLiteral("Locations.txt")});
}

TEST_F(SourceListSave, KeepsTheOldListWhenAShortOneCannotBeWritten) {
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"old\",\"D:\\old\\\"\r\n");
  table_.set(1, QStringLiteral("My music"), QStringLiteral("D:\\Music\\"));
  EXPECT_EQ(faultOfSavingWithRoomFor(10, list(), table_, 1), 61);
  EXPECT_EQ(saved(), QByteArray("\"old\",\"D:\\old\\\"\r\n"));
  EXPECT_EQ(folder_.names(), QStringList{QStringLiteral("Locations.txt")});
}

TEST_F(SourceListSave, KeepsTheOldListWhenALongOneIsCutShort) {
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"old\",\"D:\\old\\\"\r\n");
  fillTable();
  EXPECT_EQ(faultOfSavingWithRoomFor(40'000, list(), table_, 2000), 61);
  EXPECT_EQ(saved(), QByteArray("\"old\",\"D:\\old\\\"\r\n"));
  EXPECT_EQ(folder_.names(), QStringList{QStringLiteral("Locations.txt")});
}

TEST_F(SourceListSave, FaultsWhenTheFolderIsMissing) {
  EXPECT_EQ(faultOfSaving(folder_.pathOf(QStringLiteral("none/Locations.txt")), table_, 1), 75);
}

TEST_F(SourceListSave, FaultsWhenAFolderHasTheName) {
  folder_.makeFolder(QStringLiteral("Locations.txt"));
  EXPECT_FAULT(saveSourceList(list(), table_, 1), 75);
  EXPECT_EQ(folder_.names(), QStringList{QStringLiteral("Locations.txt")});
}

TEST_F(SourceListSave, FaultsOnACountBeyondTheTableAndKeepsTheOldList) {
  folder_.writeFile(QStringLiteral("Locations.txt"), "\"old\",\"D:\\old\\\"\r\n");
  EXPECT_EQ(faultOfSaving(list(), table_, 2001), 9);
  EXPECT_EQ(saved(), QByteArray("\"old\",\"D:\\old\\\"\r\n"));
}

}  // namespace
}  // namespace quorvin
