// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/file_picker.h"

#include "editors/recording_file_picker.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

const FileQuestion kQuestion{QStringLiteral("All Files"), QStringLiteral("D:\\Data"), QStringLiteral(".txt")};

TEST(AskForFolder, AnswersAsIfThePrefilledNameHadBeenConfirmedInTheFolder) {
  RecordingFilePicker picker;
  picker.pick = QStringLiteral("D:\\Data");
  const std::optional<PickedFile> picked = askForFolder(picker, kQuestion, kWindowsPaths);
  ASSERT_TRUE(picked);
  EXPECT_EQ(picked->FileName, QStringLiteral("D:\\Data\\All Files"));
  EXPECT_EQ(picked->FileTitle, QStringLiteral("All Files"));
}

TEST(AskForFolder, TheTopFolderKeepsItsOneSeparator) {
  RecordingFilePicker picker;
  picker.pick = QStringLiteral("/");
  const std::optional<PickedFile> picked = askForFolder(picker, kQuestion, kUnixPaths);
  ASSERT_TRUE(picked);
  EXPECT_EQ(folderOf(*picked), QStringLiteral("/"));
}

TEST(AskForFile, TheTitleIsTheLastComponent) {
  RecordingFilePicker picker;
  picker.pick = QStringLiteral("/home/ann/lists/cds.txt");
  const std::optional<PickedFile> picked = askForFile(picker, kQuestion, kUnixPaths);
  ASSERT_TRUE(picked);
  EXPECT_EQ(picked->FileTitle, QStringLiteral("cds.txt"));
  EXPECT_EQ(folderOf(*picked), QStringLiteral("/home/ann/lists/"));
}

TEST(AskForFile, AFolderIsNoAnswer) {
  RecordingFilePicker picker;
  picker.pick = QStringLiteral("/home/ann/");
  EXPECT_FALSE(askForFile(picker, kQuestion, kUnixPaths));
}

TEST(AskForFileAndFolder, ACancelAndAFailureAreNoAnswer) {
  RecordingFilePicker picker;
  EXPECT_FALSE(askForFile(picker, kQuestion, kWindowsPaths));
  EXPECT_FALSE(askForFolder(picker, kQuestion, kWindowsPaths));
  picker.fails = true;
  EXPECT_FALSE(askForFile(picker, kQuestion, kWindowsPaths));
  EXPECT_FALSE(askForFolder(picker, kQuestion, kWindowsPaths));
}

TEST(FolderOf, CutsAtTheFirstOccurrenceOfTheTitle) {
  EXPECT_EQ(folderOf({QStringLiteral("D:\\All Files\\All Files"), QStringLiteral("All Files")}),
            QStringLiteral("D:\\"));
  EXPECT_EQ(folderOf({QStringLiteral("/my cds.txt old/cds.txt"), QStringLiteral("cds.txt")}),
            QStringLiteral("/my "));
}

TEST(FolderOf, CasesDiffer) {
  EXPECT_EQ(folderOf({QStringLiteral("D:\\all files\\All Files"), QStringLiteral("All Files")}),
            QStringLiteral("D:\\all files\\"));
}

TEST(WithDefaultExtension, CompletesANameWithoutAPoint) {
  const QString extension = QStringLiteral(".txt");
  EXPECT_EQ(withDefaultExtension(QStringLiteral("D:\\v1.5\\cds"), extension, kWindowsPaths),
            QStringLiteral("D:\\v1.5\\cds.txt"));
  EXPECT_EQ(withDefaultExtension(QStringLiteral("/lists/cds.lst"), extension, kUnixPaths),
            QStringLiteral("/lists/cds.lst"));
}

}  // namespace

}  // namespace quorvin::test
