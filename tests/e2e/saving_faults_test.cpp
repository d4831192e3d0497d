// SPDX-License-Identifier: GPL-2.0-or-later

// Closing the program where something cannot be saved: what is reported, what stays, what is saved all the
// same.
#include "e2e/ordinary_user.h"
#include "e2e/source_records.h"
#include "e2e/whole_program.h"
#include "files/full_disk.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <sys/stat.h>

namespace quorvin::test {

namespace {

const QString kStaysOpen =
    QStringLiteral("\r\n\r\nThis happened while saving. The program stays open; close it again to leave.");
const QString kInvalidFolder =
    QStringLiteral("The Local Data Folder path is invalid.\r\n\r\nUnable to save the online sources list.");

const QByteArray kOnlineBefore = "\"Old\",\"/old/\"\r\n";
const QByteArray kOfflineBefore = "\"Offline\",\"/lists/old.txt\"\r\n";
const SourceRecords kOfflineAfter = {{QStringLiteral("Offline"), QStringLiteral("/lists/new.txt")}};

SourceRecords manyRecords() {
  SourceRecords records;
  for (int number = 1; number <= 2000; ++number) {
    records.push_back(
        {QStringLiteral("Disk %1").arg(number), QStringLiteral("/disks/number %1/").arg(number)});
  }
  return records;
}

/// A run whose lists and nickname have been changed and are to be saved.
class SavingFaults : public testing::Test {
 protected:
  SavingFaults() {
    place_.writeFile(QStringLiteral("settings/settings.ini"),
                     "[Ketta%20Quorvin/Settings]\nLocalFolder=" + data().toUtf8() + "\nNickName=Old\n");
    place_.writeFile(QStringLiteral("data/Locations.txt"), kOnlineBefore);
    place_.writeFile(QStringLiteral("data/OfflineLocations.txt"), kOfflineBefore);
    program_ = std::make_unique<WholeProgram>(settingsPath(), place_.path());
    EXPECT_TRUE(program_->takeMessages().empty());
    EXPECT_EQ(program_->state.OnlineSourceCount, 1);
    program_->state.NickName = QStringLiteral("New");
    fillTable(online_, program_->state.OnlineSources, program_->state.OnlineSourceCount);
    fillTable(kOfflineAfter, program_->state.OfflineSources, program_->state.OfflineSourceCount);
  }
  ~SavingFaults() override {
    // What is protected could not be removed.
    for (const QString& name : {QStringLiteral("data"), QStringLiteral("settings")}) protect(name, 0700);
  }

  QString data() const { return place_.pathOf(QStringLiteral("data/")); }
  QString settingsPath() const { return place_.pathOf(QStringLiteral("settings/settings.ini")); }
  QString onlinePath() const { return data() + QStringLiteral("Locations.txt"); }
  QString offlinePath() const { return data() + QStringLiteral("OfflineLocations.txt"); }
  QByteArray onlineFile() const { return place_.readFile(QStringLiteral("data/Locations.txt")); }
  QByteArray offlineFile() const { return place_.readFile(QStringLiteral("data/OfflineLocations.txt")); }
  QStringList dataNames() const { return QDir(data()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
  QString savedNickName() const {
    return IniSettingsStore(settingsPath())
        .read(QStringLiteral("Ketta Quorvin"), QStringLiteral("Settings"), QStringLiteral("NickName"), {});
  }

  void protect(const QString& name, mode_t mode) const {
    ::chmod(QFile::encodeName(place_.pathOf(name)).constData(), mode);
  }

  /// Closes the window, which stays because of this fault.
  void expectStaysOpen(const QString& fault) {
    EXPECT_FALSE(program_->close());
    EXPECT_TRUE(program_->form.isVisible());
    EXPECT_EQ(program_->takeMessages(), std::vector{fault + kStaysOpen});
  }
  /// Closes the window, which leaves and tells these messages.
  void expectLeaves(const std::vector<QString>& messages) {
    EXPECT_TRUE(program_->close());
    EXPECT_FALSE(program_->form.isVisible());
    EXPECT_EQ(program_->takeMessages(), messages);
    EXPECT_TRUE(program_->state.ShuttingDown);
  }
  static QString told(const QString& fault, const QString& doing) {
    return fault + QStringLiteral("\r\n\r\nThis happened while ") + doing + u'.';
  }

  OrdinaryUser user_;
  TemporaryFolder place_;
  SourceRecords online_ = manyRecords();
  std::unique_ptr<WholeProgram> program_;
};

const QStringList kLists = {QStringLiteral("Locations.txt"), QStringLiteral("OfflineLocations.txt")};

TEST_F(SavingFaults, ADiskWithoutRoomForTheListKeepsTheOldOne) {
  const QString fault = QStringLiteral("Run-time error '61': Disk full: ") + onlinePath();
  {
    const FullDisk disk(20'000);
    expectStaysOpen(fault);
    EXPECT_EQ(onlineFile(), kOnlineBefore);
    EXPECT_EQ(offlineFile(), kOfflineBefore);
    expectLeaves({told(fault, QStringLiteral("saving the online sources"))});
  }
  EXPECT_EQ(onlineFile(), kOnlineBefore);
  EXPECT_EQ(offlineFile(), listFile(kOfflineAfter));
  EXPECT_EQ(savedNickName(), u"New");
  EXPECT_EQ(dataNames(), kLists);
}

TEST_F(SavingFaults, RoomMadeInTimeSavesEverything) {
  {
    const FullDisk disk(20'000);
    expectStaysOpen(QStringLiteral("Run-time error '61': Disk full: ") + onlinePath());
  }
  expectLeaves({});
  EXPECT_EQ(onlineFile(), listFile(online_));
  EXPECT_EQ(offlineFile(), listFile(kOfflineAfter));
}

TEST_F(SavingFaults, ADiskWithoutAnyRoomIsToldForEachThing) {
  const QByteArray oldSettings = place_.readFile(QStringLiteral("settings/settings.ini"));
  const QString fault = QStringLiteral("Run-time error '61': Disk full: ");
  {
    const FullDisk disk(10);
    expectStaysOpen(fault + settingsPath());
    expectLeaves({told(fault + settingsPath(), QStringLiteral("saving the settings")),
                  told(fault + settingsPath(), QStringLiteral("saving the window's place")),
                  told(fault + onlinePath(), QStringLiteral("saving the online sources")),
                  told(fault + offlinePath(), QStringLiteral("saving the offline sources"))});
  }
  EXPECT_EQ(place_.readFile(QStringLiteral("settings/settings.ini")), oldSettings);
  EXPECT_EQ(onlineFile(), kOnlineBefore);
  EXPECT_EQ(offlineFile(), kOfflineBefore);
  EXPECT_EQ(dataNames(), kLists);
}

TEST_F(SavingFaults, AProtectedDataFolderKeepsItsLists) {
  protect(QStringLiteral("data"), 0500);
  const QString fault = QStringLiteral("Run-time error '70': Permission denied: ");
  expectStaysOpen(fault + onlinePath());
  expectLeaves({told(fault + onlinePath(), QStringLiteral("saving the online sources")),
                told(fault + offlinePath(), QStringLiteral("saving the offline sources"))});
  EXPECT_EQ(onlineFile(), kOnlineBefore);
  EXPECT_EQ(offlineFile(), kOfflineBefore);
  EXPECT_EQ(savedNickName(), u"New");
}

TEST_F(SavingFaults, AProtectedListStaysAndTheOtherIsSaved) {
  protect(QStringLiteral("data/Locations.txt"), 0400);
  const QString fault = QStringLiteral("Run-time error '70': Permission denied: ") + onlinePath();
  expectStaysOpen(fault);
  EXPECT_EQ(offlineFile(), kOfflineBefore);
  expectLeaves({told(fault, QStringLiteral("saving the online sources"))});
  EXPECT_EQ(onlineFile(), kOnlineBefore);
  EXPECT_EQ(offlineFile(), listFile(kOfflineAfter));
}

TEST_F(SavingFaults, ProtectedSettingsDoNotKeepTheListsFromBeingSaved) {
  protect(QStringLiteral("settings"), 0500);
  const QString fault = QStringLiteral("Run-time error '70': Permission denied: ") + settingsPath();
  expectStaysOpen(fault);
  EXPECT_EQ(onlineFile(), kOnlineBefore);
  expectLeaves({told(fault, QStringLiteral("saving the settings")),
                told(fault, QStringLiteral("saving the window's place"))});
  EXPECT_EQ(onlineFile(), listFile(online_));
  EXPECT_EQ(offlineFile(), listFile(kOfflineAfter));
  EXPECT_EQ(savedNickName(), u"Old");
}

TEST_F(SavingFaults, ADataFolderThatIsGoneIsToldForEachList) {
  ASSERT_TRUE(QDir(data()).removeRecursively());
  expectLeaves({kInvalidFolder, kInvalidFolder});
  EXPECT_FALSE(place_.has(QStringLiteral("data")));
  EXPECT_EQ(savedNickName(), u"New");
}

TEST_F(SavingFaults, ASettingsFolderThatIsGoneIsMadeAgain) {
  ASSERT_TRUE(QDir(place_.pathOf(QStringLiteral("settings"))).removeRecursively());
  expectLeaves({});
  EXPECT_EQ(savedNickName(), u"New");
  EXPECT_EQ(onlineFile(), listFile(online_));
}

}  // namespace

}  // namespace quorvin::test
