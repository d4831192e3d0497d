// SPDX-License-Identifier: GPL-2.0-or-later

// A shutdown with everything around it faked, after a start-up that found nothing stored.
#pragma once

#include "app/shutdown.h"
#include "state/source_list_file.h"
#include "support/memory_settings_store.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <functional>

namespace quorvin {

class LoggingWindows : public ShutdownView {
 public:
  float placement(PlacementKey key) const override { return static_cast<float>(key) * 1000 + 15.5F; }
  bool isMinimized() const override { return minimized; }
  QString maximizedFrom() const override { return maximized; }
  void processEvents() override {
    log += QStringLiteral("events");
    if (onEvents) onEvents();
  }
  void unloadOtherWindows() override { log += QStringLiteral("unload"); }
  void enableSndQTime() override { log += QStringLiteral("SndQTime"); }

  bool minimized = false;
  QString maximized;
  QStringList log;
  std::function<void()> onEvents;
};

class ShutdownTest : public testing::Test {
 protected:
  ShutdownTest() {
    folder_.writeFile(QStringLiteral("any.txt"), "a file makes the folder valid");
    state_.resetFileNames();
    state_.LocalFolder = folder_.path();
    readSettings(store_, state_, 0, QLocale(QLocale::English, QLocale::UnitedStates));
    readLists();
    state_.TextFile = QStringLiteral("main.lst");
    state_.ArchiveFile = QStringLiteral("main.zip");
    state_.WebServer = QStringLiteral("lists.example");
    state_.JoinDate = 38306.5;
    state_.NickName = QStringLiteral("Ann");
  }

  /// Reads what is on disk, and empties the tables.
  void readLists() {
    loadSourceLists(state_);
    state_.OnlineSourceCount = 0;
    state_.OfflineSourceCount = 0;
  }
  void addSources() {
    state_.OnlineSources.set(1, QStringLiteral("My music"), QStringLiteral("/music/"));
    state_.OnlineSourceCount = 1;
    state_.OfflineSources.set(1, QStringLiteral("Offline"), QStringLiteral("/lists/a,b.txt"));
    state_.OfflineSources.set(2, QStringLiteral("Offline"), QStringLiteral("/lists/c.txt"));
    state_.OfflineSourceCount = 2;
  }

  QStringList keysWritten() const {
    QStringList keys;
    for (const MemorySettingsStore::Access& access : store_.writes) keys += access.key;
    return keys;
  }
  QString stored(const QString& key) const { return store_.stored(QStringLiteral("Ketta Quorvin"), key); }
  QByteArray onlineList() const { return folder_.readFile(QStringLiteral("Locations.txt")); }
  QByteArray offlineList() const { return folder_.readFile(QStringLiteral("OfflineLocations.txt")); }

  TemporaryFolder folder_;
  ProgramState state_;
  MemorySettingsStore store_;
  RecordingMessageBoxes boxes_;
  LoggingWindows windows_;
  Shutdown shutdown_{state_, store_, boxes_, windows_, QLocale(QLocale::English, QLocale::UnitedStates)};
};

}  // namespace quorvin
