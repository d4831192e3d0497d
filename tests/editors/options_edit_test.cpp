// SPDX-License-Identifier: GPL-2.0-or-later

// Storing the options, step by step.
#include "editors/options_edit.h"

#include "faults/runtime_fault.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

const QString kDateMessage =
    QStringLiteral("The Join Date / Time format can not be understood, check the format.");
const QString kFolderMessage =
    QStringLiteral("The Local Data Folder path is invalid.\r\n\r\nPlease Pick a valid path!");

class OptionsEdit : public testing::Test {
 protected:
  OptionsEdit() {
    state_.LocalFolder = QStringLiteral("old folder");
    state_.TextFile = QStringLiteral("old.txt");
    state_.ArchiveFile = QStringLiteral("old.zip");
    state_.WebServer = QStringLiteral("old.example");
    state_.JoinDate = 37000;
    state_.NickName = QStringLiteral("old nick");
    folder_.writeFile(QStringLiteral("cds.txt"), "a listing");

    conditions_.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    conditions_.programFolder = [this] { return folder_.path(); };

    texts_.LocalDataFolder = folder_.path();
    texts_.LocalFile = QStringLiteral("cds.txt");
    texts_.RemoteFile = QStringLiteral("lists.zip");
    texts_.Server = QStringLiteral("lists.example");
    texts_.JoinD = QStringLiteral("1/15/2004 6:30:00 PM");
    texts_.Nic = QStringLiteral("ann");
  }

  OptionsOutcome store() { return storeOptions(texts_, state_, messages_, conditions_); }
  /// The folder check asks for files of other systems' folders.
  void answerForFolders(const QString& validFolder) {
    conditions_.pathStyle = kWindowsPaths;
    conditions_.isValidFolder = [validFolder](const QString& folder) { return folder == validFolder; };
  }
  /// What the steps after the folder check store.
  void expectTheRestUntouched() {
    EXPECT_EQ(state_.TextFile, QStringLiteral("old.txt"));
    EXPECT_EQ(state_.ArchiveFile, QStringLiteral("old.zip"));
    EXPECT_EQ(state_.WebServer, QStringLiteral("old.example"));
  }

  TemporaryFolder folder_;
  ProgramState state_;
  RecordingMessageBoxes messages_;
  OptionsConditions conditions_;
  OptionTexts texts_;
};

TEST_F(OptionsEdit, StoresAllSix) {
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_EQ(state_.LocalFolder, folder_.path());
  EXPECT_EQ(state_.TextFile, QStringLiteral("cds.txt"));
  EXPECT_EQ(state_.ArchiveFile, QStringLiteral("lists.zip"));
  EXPECT_EQ(state_.WebServer, QStringLiteral("lists.example"));
  EXPECT_DOUBLE_EQ(state_.JoinDate, 38001 + 18.5 / 24);
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(OptionsEdit, EverythingButTheDateAndTheFolderMayBeEmpty) {
  texts_.LocalFile = texts_.RemoteFile = texts_.Server = texts_.Nic = QString();
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_EQ(state_.TextFile, QString());
  EXPECT_EQ(state_.ArchiveFile, QString());
  EXPECT_EQ(state_.WebServer, QString());
  EXPECT_EQ(state_.NickName, QString());
}

TEST_F(OptionsEdit, AnUnreadableDateStoresNothing) {
  texts_.JoinD = QStringLiteral("the other day");
  EXPECT_EQ(store(), OptionsOutcome::DateRefused);
  EXPECT_EQ(messages_.informed, std::vector{kDateMessage});
  EXPECT_EQ(state_.JoinDate, 37000);
  EXPECT_EQ(state_.NickName, QStringLiteral("old nick"));
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("old folder"));
  expectTheRestUntouched();
}

TEST_F(OptionsEdit, AnEmptyDateIsRefused) {
  texts_.JoinD = QString();
  EXPECT_EQ(store(), OptionsOutcome::DateRefused);
  EXPECT_EQ(messages_.informed, std::vector{kDateMessage});
}

TEST_F(OptionsEdit, TheDateIsLookedAtBeforeTheFolder) {
  texts_.JoinD = QStringLiteral("the other day");
  texts_.LocalDataFolder = QStringLiteral("/no/such/folder");
  store();
  EXPECT_EQ(messages_.informed, std::vector{kDateMessage});
}

TEST_F(OptionsEdit, ATimeAloneIsStoredOnDayZero) {
  texts_.JoinD = QStringLiteral("6:00 AM");
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_DOUBLE_EQ(state_.JoinDate, 0.25);
}

TEST_F(OptionsEdit, TheDateIsReadAsPeopleOfTheLocaleWriteIt) {
  texts_.JoinD = QStringLiteral("03.04.2005");
  conditions_.locale = QLocale(QLocale::German, QLocale::Germany);
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_EQ(dateTimeOf(state_.JoinDate).date(), QDate(2005, 4, 3));
}

TEST_F(OptionsEdit, AnEmptyFolderBecomesTheProgramsOwn) {
  texts_.LocalDataFolder = QString();
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_EQ(state_.LocalFolder, folder_.path());
}

TEST_F(OptionsEdit, TheProgramsOwnFolderGetsItsBackslash) {
  answerForFolders(QStringLiteral("C:\\Quorvin\\"));
  conditions_.programFolder = [] { return QStringLiteral("C:\\Quorvin"); };
  texts_.LocalDataFolder = QString();
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("C:\\Quorvin\\"));
}

TEST_F(OptionsEdit, TheProgramsOwnFolderIsRefusedWhenItHoldsNoFile) {
  const TemporaryFolder empty;
  conditions_.programFolder = [&empty] { return empty.path(); };
  texts_.LocalDataFolder = QString();
  EXPECT_EQ(store(), OptionsOutcome::FolderRefused);
  EXPECT_EQ(messages_.informed, std::vector{kFolderMessage});
  EXPECT_EQ(state_.LocalFolder, empty.path());
}

TEST_F(OptionsEdit, AFolderWithoutATrailingBackslashGetsOne) {
  answerForFolders(QStringLiteral("D:\\Lists\\"));
  texts_.LocalDataFolder = QStringLiteral("D:\\Lists");
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("D:\\Lists\\"));
}

TEST_F(OptionsEdit, AFolderWithATrailingBackslashIsStoredAsItStands) {
  answerForFolders(QStringLiteral("D:\\Lists\\"));
  texts_.LocalDataFolder = QStringLiteral("D:\\Lists\\");
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("D:\\Lists\\"));
}

TEST_F(OptionsEdit, AFolderOfThisSystemGetsItsSeparator) {
  texts_.LocalDataFolder = folder_.path().chopped(1);
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_EQ(state_.LocalFolder, folder_.path());
}

TEST_F(OptionsEdit, AnEmptyExistingFolderIsRefused) {
  texts_.LocalDataFolder = folder_.makeFolder(QStringLiteral("empty"));
  EXPECT_EQ(store(), OptionsOutcome::FolderRefused);
  EXPECT_EQ(messages_.informed, std::vector{kFolderMessage});
}

TEST_F(OptionsEdit, AFolderOfFoldersAndHiddenFilesIsRefused) {
  folder_.makeFolder(QStringLiteral("data/inner"));
  folder_.writeFile(QStringLiteral("data/.hidden"), "x");
  texts_.LocalDataFolder = folder_.pathOf(QStringLiteral("data"));
  EXPECT_EQ(store(), OptionsOutcome::FolderRefused);
}

TEST_F(OptionsEdit, ARefusedFolderLeavesDateNicknameAndFolderStored) {
  texts_.LocalDataFolder = QStringLiteral("/no/such/folder");
  EXPECT_EQ(store(), OptionsOutcome::FolderRefused);
  EXPECT_EQ(messages_.informed, std::vector{kFolderMessage});
  EXPECT_DOUBLE_EQ(state_.JoinDate, 38001 + 18.5 / 24);
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("/no/such/folder/"));
  expectTheRestUntouched();
}

TEST_F(OptionsEdit, AFailingFolderCheckEndsSilently) {
  conditions_.isValidFolder = [](const QString&) -> bool { throw RuntimeFault(FaultNumber::DeviceError); };
  EXPECT_EQ(store(), OptionsOutcome::Failed);
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
  EXPECT_EQ(state_.LocalFolder, folder_.path());
  expectTheRestUntouched();
}

TEST_F(OptionsEdit, AProgramFolderThatCannotBeMadeKeepsTheOldFolder) {
  conditions_.programFolder = []() -> QString { throw RuntimeFault(FaultNumber::PathFileAccess); };
  texts_.LocalDataFolder = QString();
  EXPECT_EQ(store(), OptionsOutcome::Failed);
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
  EXPECT_EQ(state_.LocalFolder, QStringLiteral("old folder"));
  expectTheRestUntouched();
}

TEST_F(OptionsEdit, AJoinDateAtMidnightShowsNoTime) {
  state_.JoinDate = 38001;
  EXPECT_EQ(optionTexts(state_, conditions_.locale).JoinD, QStringLiteral("1/15/2004"));
}

TEST_F(OptionsEdit, WhatIsShownIsReadBack) {
  state_.JoinDate = 38001 + 18.5 / 24;
  state_.LocalFolder = folder_.path();
  const OptionTexts shown = optionTexts(state_, conditions_.locale);
  EXPECT_EQ(shown.JoinD, QStringLiteral("1/15/2004 6:30:00 PM"));
  const ProgramState before = state_;
  texts_ = shown;
  EXPECT_EQ(store(), OptionsOutcome::Stored);
  EXPECT_DOUBLE_EQ(state_.JoinDate, before.JoinDate);
  EXPECT_EQ(state_.LocalFolder, before.LocalFolder);
  EXPECT_EQ(state_.TextFile, before.TextFile);
  EXPECT_EQ(state_.ArchiveFile, before.ArchiveFile);
  EXPECT_EQ(state_.WebServer, before.WebServer);
  EXPECT_EQ(state_.NickName, before.NickName);
}

}  // namespace

}  // namespace quorvin::test
