// SPDX-License-Identifier: GPL-2.0-or-later

// A start-up with everything around it faked, in a current folder of the test's own.
#pragma once

#include "app/start_up.h"
#include "support/memory_settings_store.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

namespace quorvin {

/// What start-up does, in order, as the tests spell it: "lblVer Ver:2.5(64)", "WebUpdate off", "read Top",
/// "set Top 1500", "events", "extract".
using StartUpLog = QStringList;

inline QString nameOf(PlacementKey key) {
  const std::map<PlacementKey, QString> names = {{PlacementKey::Top, QStringLiteral("Top")},
                                                 {PlacementKey::Left, QStringLiteral("Left")},
                                                 {PlacementKey::Width, QStringLiteral("Width")},
                                                 {PlacementKey::Height, QStringLiteral("Height")}};
  return names.at(key);
}

class LoggingView : public StartUpView {
 public:
  explicit LoggingView(StartUpLog& log) : log_(log) {}

  float placement(PlacementKey key) const override { return twips.at(key); }
  void setPlacement(PlacementKey key, float value) override {
    twips[key] = value;
    log_ += QStringLiteral("set ") + nameOf(key) + u' ' + placementText(value);
  }
  void setVersionCaption(const QString& caption) override { log_ += QStringLiteral("lblVer ") + caption; }
  void showListingName(const QString& path) override { listingShown = path; }
  void setWebUpdateEnabled(bool enabled) override {
    webUpdateEnabled = enabled;
    log_ += enabled ? QStringLiteral("WebUpdate on") : QStringLiteral("WebUpdate off");
  }
  void processEvents() override { log_ += QStringLiteral("events"); }
  void whenPainted(std::function<void()> action) override { afterPainting.push_back(std::move(action)); }

  std::vector<std::function<void()>> afterPainting;
  /// The place that the window has before start-up.
  std::map<PlacementKey, float> twips = {{PlacementKey::Top, 1500},
                                         {PlacementKey::Left, 3000},
                                         {PlacementKey::Width, 9000},
                                         {PlacementKey::Height, 6000}};
  bool webUpdateEnabled = true;
  QString listingShown;

 private:
  StartUpLog& log_;
};

class LoggingStore : public MemorySettingsStore {
 public:
  explicit LoggingStore(StartUpLog& log) : log_(log) {}

  QString read(const QString& application, const QString& section, const QString& key,
               const QString& fallback) const override {
    log_ += QStringLiteral("read ") + key;
    return MemorySettingsStore::read(application, section, key, fallback);
  }

 private:
  StartUpLog& log_;
};

class RecordingExtraction {
 public:
  explicit RecordingExtraction(StartUpLog& log) : log_(log) {}

  void extractArchive(const QString& archivePath, const QString& targetFolder) {
    log_ += QStringLiteral("extract");
    archivePaths += archivePath;
    targetFolders += targetFolder;
    if (fails) throw RuntimeFault(FaultNumber::DeviceError);
  }

  QStringList archivePaths;
  QStringList targetFolders;
  bool fails = false;

 private:
  StartUpLog& log_;
};

/// The tests of Windows paths work on the file system of any other system, where a name such as
/// "D:\lists\music.txt" is a plain file name in the current folder.
class StartUpTest : public testing::Test {
 protected:
  StartUpTest() {
    conditions_.programFolder = [this] { return programFolder_; };
    conditions_.now = 38001.5;
    conditions_.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    conditions_.pathStyle = kUnixPaths;
  }

  void start() { startOf(state_); }
  /// The window is on the screen.
  void paint() {
    for (const auto& action : std::exchange(view_.afterPainting, {})) action();
  }
  void startOf(ProgramState& state) {
    StartUp(state, store_, boxes_, view_, [this](const QString& archivePath, const QString& targetFolder) {
      extraction_.extractArchive(archivePath, targetFolder);
    }).Form_Load(conditions_);
  }

  void startWithCommandLine(const QString& commandLine, PathStyle style) {
    conditions_.commandLine = commandLine;
    conditions_.pathStyle = style;
    start();
  }

  /// Writes a file whose name may look like a path of another system into the current folder.
  void writeInCurrentFolder(const QString& name, const QByteArray& bytes) const {
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
      throw std::runtime_error("could not write " + name.toStdString());
    }
  }

  /// Saves a setting as an earlier run would have.
  void saved(const QString& key, const QString& value) {
    store_.put(QStringLiteral("Ketta Quorvin"), key, value);
  }

  /// The current folder, and the local data folder of those tests that set one.
  TemporaryFolder current_;
  TemporaryFolder data_;
  CurrentFolder inCurrent_{current_.path()};
  QString programFolder_ = current_.path();

  StartUpLog log_;
  ProgramState state_;
  LoggingStore store_{log_};
  RecordingMessageBoxes boxes_;
  LoggingView view_{log_};
  RecordingExtraction extraction_{log_};
  StartUpConditions conditions_;
};

}  // namespace quorvin
