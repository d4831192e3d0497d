// SPDX-License-Identifier: GPL-2.0-or-later

// The program without its window, for processes that are to end in many ways.
#pragma once

#include "app/shutdown.h"
#include "app/start_up.h"
#include "e2e/source_records.h"
#include "platform/ini_settings_store.h"
#include "support/recording_message_boxes.h"

#include <QLocale>
#include <QString>

#include <functional>
#include <map>
#include <stdexcept>

namespace quorvin::test {

/// A main window that is nothing but its place.
class PlacedWindow : public StartUpView, public ShutdownView {
 public:
  float placement(PlacementKey key) const override { return twips.at(key); }
  void setPlacement(PlacementKey key, float value) override { twips[key] = value; }
  void setVersionCaption(const QString&) override {}
  void showListingName(const QString&) override {}
  void setWebUpdateEnabled(bool) override {}
  void processEvents() override {}
  void whenPainted(std::function<void()> action) override { action(); }
  bool isMinimized() const override { return false; }
  QString maximizedFrom() const override { return {}; }
  void unloadOtherWindows() override {}
  void enableSndQTime() override {}

  std::map<PlacementKey, float> twips = {{PlacementKey::Top, 1500},
                                         {PlacementKey::Left, 3000},
                                         {PlacementKey::Width, 9000},
                                         {PlacementKey::Height, 6000}};
};

/// Starts up when it is made.
class WindowlessProgram {
 public:
  explicit WindowlessProgram(const QString& settingsPath, const QString& commandLine = {})
      : locale_(QLocale::English, QLocale::UnitedStates), settings_(settingsPath) {
    StartUpConditions conditions;
    conditions.commandLine = commandLine;
    conditions.programFolder = [] { return QStringLiteral("/nowhere/"); };
    conditions.now = 38001.5;
    conditions.locale = locale_;
    // There is never only an archive.
    const auto neverExtract = [](const QString& archivePath, const QString&) {
      throw std::logic_error("nothing unpacks " + archivePath.toStdString());
    };
    StartUp(state, settings_, messages, window, neverExtract).Form_Load(conditions);
  }

  void setOnline(const SourceRecords& records) {
    fillTable(records, state.OnlineSources, state.OnlineSourceCount);
  }
  void setOffline(const SourceRecords& records) {
    fillTable(records, state.OfflineSources, state.OfflineSourceCount);
  }

  /// Saves and ends. Throws when something cannot be saved.
  void end() { Shutdown(state, settings_, messages, window, locale_).Form_Unload(); }

  ProgramState state;
  RecordingMessageBoxes messages;
  PlacedWindow window;

 private:
  QLocale locale_;
  IniSettingsStore settings_;
};

}  // namespace quorvin::test
