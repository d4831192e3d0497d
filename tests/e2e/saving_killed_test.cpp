// SPDX-License-Identifier: GPL-2.0-or-later

// A program that is killed while it saves, at any moment.
#include "e2e/killed_process.h"
#include "e2e/windowless_program.h"
#include "support/qt_printing.h"
#include "support/sweep.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <set>

namespace quorvin::test {

namespace {

const SourceRecords kOldOnline = {{QStringLiteral("Old"), QStringLiteral("/old/")}};
const SourceRecords kOldOffline = {{QStringLiteral("Offline"), QStringLiteral("/lists/old.txt")}};
const SourceRecords kNewOnline = {{QStringLiteral("Music"), QStringLiteral("/music/")},
                                  {QStringLiteral("Films"), QStringLiteral("/films/")}};
const SourceRecords kNewOffline = {{QStringLiteral("Offline"), QStringLiteral("/lists/new.txt")},
                                   {QStringLiteral("Offline"), QStringLiteral("/lists/more.txt")}};

const std::vector<const char*> kKeys = {"LocalFolder", "TextFile", "ArchiveFile", "WebServer", "JoinDate",
                                        "NickName",    "Top",      "Left",        "Width",     "Height"};

const QByteArray kSettingsOfAnother =
    "[%2Flists%2Fcds.txt/Settings]\nLocalFolder=/elsewhere/\nNickName=Bob\n";

class KilledSaving : public testing::Test {
 protected:
  KilledSaving() {
    putOldFiles();
    program_ = std::make_unique<WindowlessProgram>(settingsPath());
    change(*program_);
    values_[0] = savedValues();
    // What a saving that is not disturbed leaves.
    WindowlessProgram undisturbed(settingsPath());
    change(undisturbed);
    undisturbed.end();
    values_[1] = savedValues();
  }

  QString data() const { return place_.pathOf(QStringLiteral("data/")); }
  QString settingsPath() const { return place_.pathOf(QStringLiteral("settings/settings.ini")); }

  void putOldFiles() const {
    for (const char* folder : {"data", "settings"}) {
      QDir(place_.pathOf(QString::fromLatin1(folder))).removeRecursively();
    }
    place_.writeFile(QStringLiteral("data/Locations.txt"), listFile(kOldOnline));
    place_.writeFile(QStringLiteral("data/OfflineLocations.txt"), listFile(kOldOffline));
    place_.writeFile(QStringLiteral("settings/settings.ini"),
                     kSettingsOfAnother + "\n[Ketta%20Quorvin/Settings]\nLocalFolder=" + data().toUtf8() +
                         "\nTextFile=old.txt\nArchiveFile=old.zip\nWebServer=old.example\n"
                         "JoinDate=1/15/2004 12:00:00 PM\nNickName=Old\nTop=1\nLeft=2\nWidth=3\nHeight=4\n");
  }

  void change(WindowlessProgram& program) const {
    // The same folder, written another way, so that this setting changes too.
    program.state.LocalFolder = data() + QStringLiteral("./");
    program.state.TextFile = QStringLiteral("new.txt");
    program.state.ArchiveFile = QStringLiteral("new.zip");
    program.state.WebServer = QStringLiteral("new.example");
    program.state.JoinDate = 38306;
    program.state.NickName = QStringLiteral("New");
    for (auto& [key, twips] : program.window.twips) twips = 1500;
    program.setOnline(kNewOnline);
    program.setOffline(kNewOffline);
  }

  std::vector<QString> savedValues() const {
    const IniSettingsStore store(settingsPath());
    std::vector<QString> values;
    for (const char* key : kKeys) {
      values.push_back(store.read(QStringLiteral("Ketta Quorvin"), QStringLiteral("Settings"),
                                  QString::fromLatin1(key), QStringLiteral("gone")));
    }
    return values;
  }

  /// How many of the settings are the new ones; they are saved one after another.
  std::size_t newSettings() const {
    const std::vector<QString> saved = savedValues();
    std::size_t count = 0;
    while (count < saved.size() && saved[count] == values_[1][count]) ++count;
    for (std::size_t i = count; i < saved.size(); ++i) EXPECT_EQ(saved[i], values_[0][i]) << kKeys[i];
    return count;
  }

  /// Whether the list is the new one; otherwise it is the old one.
  bool isNew(const QString& name, const SourceRecords& old, const SourceRecords& changed) const {
    const QByteArray file = place_.readFile(QStringLiteral("data/") + name);
    if (file == listFile(changed)) return true;
    EXPECT_EQ(file, listFile(old));
    return false;
  }

  /// How much has been saved: 0 to 10 settings, then the lists, one by one.
  std::size_t saved() const {
    EXPECT_TRUE(place_.readFile(QStringLiteral("settings/settings.ini")).startsWith(kSettingsOfAnother));
    const std::size_t settings = newSettings();
    const bool online = isNew(QStringLiteral("Locations.txt"), kOldOnline, kNewOnline);
    const bool offline = isNew(QStringLiteral("OfflineLocations.txt"), kOldOffline, kNewOffline);
    EXPECT_TRUE(settings == kKeys.size() || !online);
    EXPECT_TRUE(online || !offline);
    return settings + (online ? 1U : 0U) + (offline ? 1U : 0U);
  }

  TemporaryFolder place_;
  std::unique_ptr<WindowlessProgram> program_;
  /// The old and the new settings, in the order of kKeys.
  std::vector<QString> values_[2];
};

TEST_F(KilledSaving, LeavesEachFileOldOrNewAndWhole) {
  for (std::size_t key = 0; key < kKeys.size(); ++key) ASSERT_NE(values_[0][key], values_[1][key]);
  std::set<std::size_t> seen;
  putOldFiles();
  const int stride = sweep(1, 3);
  for (int call = 1; killedBeforeCall(call, [this] { program_->end(); }); call += stride) {
    SCOPED_TRACE("killed before system call " + std::to_string(call));
    seen.insert(saved());
    putOldFiles();
    if (HasFailure()) return;
  }
  ASSERT_EQ(saved(), 12U);
  // Few calls come after the last list is in place, or none.
  seen.insert(12U);
  EXPECT_EQ(seen, (std::set<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
}

TEST_F(KilledSaving, TheNextRunSavesEverything) {
  // Each setting is saved by the same calls, some thirty of them: a stride that does not divide their number
  // meets every one in some setting or other.
  constexpr int kStride = 7;
  putOldFiles();
  for (int call = 1; killedBeforeCall(call, [this] { program_->end(); }); call += kStride) {
    SCOPED_TRACE("killed before system call " + std::to_string(call));
    WindowlessProgram next(settingsPath());
    change(next);
    next.end();
    EXPECT_TRUE(next.messages.informed.empty());
    EXPECT_TRUE(next.state.ShuttingDown);
    EXPECT_EQ(saved(), 12U);
    putOldFiles();
    if (HasFailure()) return;
  }
}

}  // namespace

}  // namespace quorvin::test
