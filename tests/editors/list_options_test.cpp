// SPDX-License-Identifier: GPL-2.0-or-later

// The options dialog by clicks and keys.
#include "editors/list_options_fixture.h"

#include <QLabel>

namespace quorvin::test {

namespace {

using OptionsDialog = ListOptionsTest;

TEST_F(OptionsDialog, ControlsBearTheirNamesAndTexts) {
  EXPECT_EQ(dialog().objectName(), QStringLiteral("ListOptions"));
  EXPECT_EQ(dialog().windowTitle(), QStringLiteral("Options"));
  const std::vector<std::pair<QString, QString>> buttons = {
      {QStringLiteral("GetLocalFolder"), QStringLiteral("...")},
      {QStringLiteral("GetListName"), QStringLiteral("...")},
      {QStringLiteral("CancelButton"), QStringLiteral("Cancel")},
      {QStringLiteral("OKButton"), QStringLiteral("OK")}};
  for (const auto& [name, caption] : buttons) {
    const auto* button = dialog().findChild<QPushButton*>(name);
    ASSERT_TRUE(button) << name.toStdString();
    EXPECT_EQ(button->text(), caption);
  }
  const std::vector<std::pair<QString, QString>> boxes = {
      {QStringLiteral("JoinD"), QStringLiteral("First Run Date:")},
      {QStringLiteral("Nic"), QStringLiteral("Nickname:")},
      {QStringLiteral("LocalDataFolder"), QStringLiteral("Local Data Folder:")},
      {QStringLiteral("Server"), QStringLiteral("Update Server:")},
      {QStringLiteral("RemoteFile"), QStringLiteral("Update Archive Name:")},
      {QStringLiteral("LocalFile"), QStringLiteral("List File:")}};
  for (const auto& [name, caption] : boxes) {
    auto* box = dialog().findChild<QLineEdit*>(name);
    ASSERT_TRUE(box) << name.toStdString();
    EXPECT_EQ(box->accessibleName() + u':', caption);
    bool isLabelled = false;
    for (const QLabel* label : dialog().findChildren<QLabel*>()) {
      isLabelled |= label->buddy() == box && label->text() == caption && label->geometry().right() < box->x();
    }
    EXPECT_TRUE(isLabelled) << name.toStdString();
  }
  EXPECT_EQ(controls().GetListName->accessibleName(), QStringLiteral("Browse for the list file"));
  EXPECT_EQ(controls().GetLocalFolder->accessibleName(), QStringLiteral("Browse for the local data folder"));
}

TEST_F(OptionsDialog, ShowsTheSettings) {
  EXPECT_EQ(controls().LocalDataFolder->text(), folder_.path());
  EXPECT_EQ(controls().LocalFile->text(), QStringLiteral("cds.txt"));
  EXPECT_EQ(controls().RemoteFile->text(), QStringLiteral("lists.zip"));
  EXPECT_EQ(controls().Server->text(), QStringLiteral("lists.example"));
  EXPECT_EQ(controls().JoinD->text(), QStringLiteral("1/15/2004 6:30:00 PM"));
  EXPECT_EQ(controls().Nic->text(), QStringLiteral("ann"));
}

TEST_F(OptionsDialog, EnterAfterAPickDoesNotPickAgain) {
  for (QPushButton* browse : {controls().GetLocalFolder, controls().GetListName}) {
    showAndActivate(dialog());
    picker_.askedForFile.clear();
    picker_.askedForFolder.clear();
    picker_.pick =
        browse == controls().GetLocalFolder ? folder_.path() : folder_.pathOf(QStringLiteral("cds.txt"));
    browse->setFocus();
    QTest::keyClick(browse, Qt::Key_Space);
    QTest::keyClick(dialog().focusWidget(), Qt::Key_Return);
    EXPECT_EQ(picker_.askedForFile.size() + picker_.askedForFolder.size(), 1U);
  }
}

TEST_F(OptionsDialog, ShowsTheDateInTheGivenLocale) {
  conditions_.locale = QLocale(QLocale::German, QLocale::Germany);
  EXPECT_EQ(controls().JoinD->text(), QStringLiteral("15.01.2004 18:30:00"));
}

TEST_F(OptionsDialog, AJoinDateAtMidnightShowsNoTime) {
  state_.JoinDate = 38001;
  EXPECT_EQ(controls().JoinD->text(), QStringLiteral("1/15/2004"));
}

TEST_F(OptionsDialog, NothingIsStoredBeforeOk) {
  type(controls().Nic, QStringLiteral("bob"));
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
}

TEST_F(OptionsDialog, OkStoresAndCloses) {
  type(controls().LocalFile, QStringLiteral("tapes.txt"));
  type(controls().RemoteFile, QStringLiteral("tapes.zip"));
  type(controls().Server, QStringLiteral("tapes.example"));
  type(controls().JoinD, QStringLiteral("2/1/2004"));
  type(controls().Nic, QStringLiteral("bob"));
  click(controls().OKButton);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(state_.TextFile, QStringLiteral("tapes.txt"));
  EXPECT_EQ(state_.ArchiveFile, QStringLiteral("tapes.zip"));
  EXPECT_EQ(state_.WebServer, QStringLiteral("tapes.example"));
  EXPECT_EQ(state_.JoinDate, 38018);
  EXPECT_EQ(state_.NickName, QStringLiteral("bob"));
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(OptionsDialog, EnterIsOkAndEscapeIsCancel) {
  type(controls().Nic, QStringLiteral("bob"));
  QTest::keyClick(controls().Nic, Qt::Key_Return);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(state_.NickName, QStringLiteral("bob"));
  showAndActivate(dialog());
  type(controls().Nic, QStringLiteral("eve"));
  QTest::keyClick(controls().Nic, Qt::Key_Escape);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(state_.NickName, QStringLiteral("bob"));
}

TEST_F(OptionsDialog, CancelStoresNothing) {
  type(controls().Nic, QStringLiteral("bob"));
  click(controls().CancelButton);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
}

TEST_F(OptionsDialog, ARefusedDateKeepsTheDialogOpenAtTheDate) {
  type(controls().JoinD, QStringLiteral("soon"));
  type(controls().Nic, QStringLiteral("bob"));
  click(controls().OKButton);
  EXPECT_EQ(
      messages_.informed,
      std::vector{QStringLiteral("The Join Date / Time format can not be understood, check the format.")});
  EXPECT_TRUE(dialog().isVisible());
  EXPECT_EQ(dialog().focusWidget(), controls().JoinD);
  EXPECT_EQ(controls().JoinD->text(), QStringLiteral("soon"));
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
}

TEST_F(OptionsDialog, AfterARefusedFolderAndCancelNicknameAndDateStay) {
  type(controls().LocalDataFolder, folder_.makeFolder(QStringLiteral("empty")).chopped(1));
  type(controls().JoinD, QStringLiteral("2/1/2004"));
  type(controls().Nic, QStringLiteral("bob"));
  type(controls().Server, QStringLiteral("tapes.example"));
  click(controls().OKButton);
  EXPECT_EQ(
      messages_.informed,
      std::vector{QStringLiteral("The Local Data Folder path is invalid.\r\n\r\nPlease Pick a valid path!")});
  EXPECT_TRUE(dialog().isVisible());
  EXPECT_EQ(dialog().focusWidget(), controls().LocalDataFolder);
  click(controls().CancelButton);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(state_.JoinDate, 38018);
  EXPECT_EQ(state_.NickName, QStringLiteral("bob"));
  EXPECT_EQ(state_.LocalFolder, folder_.pathOf(QStringLiteral("empty")) + QDir::separator());
  EXPECT_EQ(state_.WebServer, QStringLiteral("lists.example"));
}

TEST_F(OptionsDialog, AFailureKeepsTheDialogOpenWithoutAMessage) {
  conditions_.isValidFolder = [](const QString&) -> bool { throw RuntimeFault(FaultNumber::DeviceError); };
  click(controls().OKButton);
  EXPECT_TRUE(dialog().isVisible());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(OptionsDialog, APickedListFileSetsBothBoxes) {
  conditions_.pathStyle = kWindowsPaths;
  picker_.pick = QStringLiteral("D:\\Lists\\cds.txt");
  type(controls().LocalFile, QStringLiteral("old.txt"));
  type(controls().LocalDataFolder, QStringLiteral("C:\\Old\\"));
  click(controls().GetListName);
  ASSERT_EQ(picker_.askedForFile.size(), 1U);
  EXPECT_EQ(picker_.askedForFile[0].fileName, QStringLiteral("old.txt"));
  EXPECT_EQ(picker_.askedForFile[0].initialFolder, QStringLiteral("C:\\Old\\"));
  EXPECT_EQ(picker_.askedForFile[0].defaultExtension, QStringLiteral(".txt"));
  EXPECT_EQ(controls().LocalFile->text(), QStringLiteral("cds.txt"));
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("D:\\Lists\\"));
  EXPECT_EQ(state_.TextFile, QStringLiteral("cds.txt"));
  EXPECT_EQ(state_.LocalFolder, folder_.path());
}

TEST_F(OptionsDialog, APickedDataFolderLeavesTheListFile) {
  conditions_.pathStyle = kWindowsPaths;
  picker_.pick = QStringLiteral("D:\\Data");
  type(controls().LocalDataFolder, QStringLiteral("C:\\Old\\"));
  click(controls().GetLocalFolder);
  ASSERT_EQ(picker_.askedForFolder.size(), 1U);
  EXPECT_EQ(picker_.askedForFolder[0].fileName, QStringLiteral("Local Data Folder"));
  EXPECT_EQ(picker_.askedForFolder[0].initialFolder, QStringLiteral("C:\\Old\\"));
  EXPECT_EQ(picker_.askedForFolder[0].defaultExtension, QStringLiteral(".txt"));
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("D:\\Data\\"));
  EXPECT_EQ(controls().LocalFile->text(), QStringLiteral("cds.txt"));
}

TEST_F(OptionsDialog, APickedDataFolderIsCutAtThePrefilledName) {
  conditions_.pathStyle = kWindowsPaths;
  picker_.pick = QStringLiteral("D:\\Local Data Folder");
  click(controls().GetLocalFolder);
  EXPECT_EQ(controls().LocalDataFolder->text(), QStringLiteral("D:\\"));
}

TEST_F(OptionsDialog, ACancelledOrFailedPickerChangesNothing) {
  for (const bool fails : {false, true}) {
    picker_.fails = fails;
    click(controls().GetListName);
    click(controls().GetLocalFolder);
    EXPECT_EQ(controls().LocalFile->text(), QStringLiteral("cds.txt"));
    EXPECT_EQ(controls().LocalDataFolder->text(), folder_.path());
  }
  EXPECT_EQ(picker_.askedForFile.size(), 2U);
  EXPECT_EQ(picker_.askedForFolder.size(), 2U);
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(OptionsDialog, TabLeadsThroughTheControlsInReadingOrder) {
  std::vector<QString> names;
  controls().LocalDataFolder->setFocus();
  for (int tab = 0; tab < 10; ++tab) {
    names.push_back(dialog().focusWidget()->objectName());
    QTest::keyClick(dialog().focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(names,
            (std::vector{QStringLiteral("LocalDataFolder"), QStringLiteral("GetLocalFolder"),
                         QStringLiteral("LocalFile"), QStringLiteral("GetListName"),
                         QStringLiteral("RemoteFile"), QStringLiteral("Server"), QStringLiteral("JoinD"),
                         QStringLiteral("Nic"), QStringLiteral("OKButton"), QStringLiteral("CancelButton")}));
}

TEST_F(OptionsDialog, EdgesAreAligned) {
  const ListOptionsControls& all = controls();
  const int right = all.Nic->geometry().right();
  for (const QLineEdit* box : {all.LocalFile, all.RemoteFile, all.Server, all.JoinD, all.Nic}) {
    EXPECT_EQ(box->x(), all.LocalDataFolder->x());
  }
  EXPECT_EQ(all.GetLocalFolder->geometry().right(), right);
  EXPECT_EQ(all.GetListName->geometry().right(), right);
  EXPECT_EQ(all.CancelButton->geometry().right(), right);
}

TEST_F(OptionsDialog, AnEmptyDataFolderIsTheProgramsFolder) {
  conditions_.programFolder = [this] { return folder_.path().chopped(1); };
  type(controls().LocalDataFolder, QString());
  click(controls().OKButton);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(state_.LocalFolder, folder_.path());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(OptionsDialog, ADataFolderIsCompletedByASeparator) {
  folder_.writeFile(QStringLiteral("data/any.txt"), "x");
  type(controls().LocalDataFolder, folder_.pathOf(QStringLiteral("data")));
  click(controls().OKButton);
  EXPECT_FALSE(dialog().isVisible());
  EXPECT_EQ(state_.LocalFolder, folder_.pathOf(QStringLiteral("data")) + QDir::separator());
}

TEST_F(OptionsDialog, ATimeAloneIsAJoinDate) {
  type(controls().JoinD, QStringLiteral("6:00 AM"));
  click(controls().OKButton);
  EXPECT_EQ(state_.JoinDate, 0.25);
  ListOptions again(editing(), nullptr);
  EXPECT_EQ(again.controls().JoinD->text(), QStringLiteral("6:00:00 AM"));
}

}  // namespace

}  // namespace quorvin::test
