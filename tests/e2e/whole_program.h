// SPDX-License-Identifier: GPL-2.0-or-later

// The program with its main window, put together as main() does, inside the test.
#pragma once

#include "app/search_form.h"
#include "app/shutdown.h"
#include "app/start_up.h"
#include "platform/ini_settings_store.h"
#include "support/recording_message_boxes.h"
#include "support/recording_shell.h"

#include <QLocale>
#include <QString>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvin::test {

/// One run of the program, from its start to the closing of its window. Only the message boxes and the shell
/// are the test's: nobody would answer them.
class WholeProgram {
 public:
  /// `segments` and `picker`, which may be null, must outlive the object.
  WholeProgram(const QString& settingsPath, const QString& programFolder, SegmentStore* segments = nullptr,
               FilePicker* picker = nullptr)
      : locale_(QLocale::English, QLocale::UnitedStates),
        settings_(settingsPath),
        form(state, messages, shell_, locale_, segments, picker),
        shutdown_(state, settings_, messages, form.frame(), locale_) {
    StartUpConditions conditions;
    conditions.programFolder = [programFolder] { return programFolder; };
    conditions.now = 38001.5;
    conditions.locale = locale_;
    form.setUnloadHandler([this] { shutdown_.Form_Unload(); });
    const auto extract = [this](const QString& archivePath, const QString& targetFolder) {
      form.jobs().extractDataFile(archivePath, targetFolder);
    };
    StartUp(state, settings_, messages, form.frame(), extract).Form_Load(conditions);
    form.sourcesChanged();
    form.frame().restoreMaximized(readMaximized(settings_, state));
    form.show();
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  }

  /// What has been reported since the last call.
  std::vector<QString> takeMessages() { return std::exchange(messages.informed, {}); }

  /// Closes the window; false when it stays.
  bool close() { return form.close(); }

  void find(const QString& text) {
    form.controls().SearchStr->setText(text);
    QTest::mouseClick(form.controls().Find, Qt::LeftButton);
  }
  int hitCount() const { return form.controls().HitList->model()->rowCount(); }
  QString hit(int row, HitColumn column) const {
    return form.controls().HitList->model()->index(row, static_cast<int>(column)).data().toString();
  }

 private:
  QLocale locale_;
  IniSettingsStore settings_;
  RecordingShell shell_;

 public:
  ProgramState state;
  RecordingMessageBoxes messages;
  SearchForm form;

 private:
  Shutdown shutdown_;
};

}  // namespace quorvin::test
