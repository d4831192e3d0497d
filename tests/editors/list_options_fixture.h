// SPDX-License-Identifier: GPL-2.0-or-later

// The options dialog on a state and a data folder of the test's own.
#pragma once

#include "editors/dialog_driving.h"
#include "editors/list_options.h"
#include "editors/recording_file_picker.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <memory>

namespace quorvin::test {

class ListOptionsTest : public testing::Test {
 protected:
  ListOptionsTest() {
    folder_.writeFile(QStringLiteral("cds.txt"), "a listing");
    state_.LocalFolder = folder_.path();
    state_.TextFile = QStringLiteral("cds.txt");
    state_.ArchiveFile = QStringLiteral("lists.zip");
    state_.WebServer = QStringLiteral("lists.example");
    state_.JoinDate = 38001 + 18.5 / 24;
    state_.NickName = QStringLiteral("ann");
    conditions_.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    conditions_.programFolder = [this] { return folder_.path(); };
  }

  OptionsEditing editing() { return {state_, messages_, picker_, conditions_}; }

  /// The dialog, shown; the settings should be there before.
  ListOptions& dialog() {
    if (dialog_) return *dialog_;
    dialog_ = std::make_unique<ListOptions>(editing(), nullptr);
    showAndActivate(*dialog_);
    return *dialog_;
  }
  const ListOptionsControls& controls() { return dialog().controls(); }

  TemporaryFolder folder_;
  ProgramState state_;
  RecordingMessageBoxes messages_;
  RecordingFilePicker picker_;
  OptionsConditions conditions_;

 private:
  std::unique_ptr<ListOptions> dialog_;
};

}  // namespace quorvin::test
