// SPDX-License-Identifier: GPL-2.0-or-later

// What the options dialog shows and stores, without its window.
#pragma once

#include "files/path_style.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "state/settings.h"

#include <QLocale>
#include <QString>

#include <functional>

namespace quorvin {

/// The texts of the dialog's boxes, under the boxes' names.
struct OptionTexts {
  QString LocalDataFolder;
  QString LocalFile;
  QString RemoteFile;
  QString Server;
  QString JoinD;
  QString Nic;
};

/// What storing the options depends on besides the texts.
struct OptionsConditions {
  /// Dates are shown and read as people of this locale write them.
  QLocale locale;
  /// The folder that an empty data folder stands for; may throw.
  std::function<QString()> programFolder;
  /// Whether a folder can be the data folder; may throw.
  std::function<bool(const QString& folder)> isValidFolder = isValidDataFolder;
  PathStyle pathStyle = nativePathStyle();
};

/// The settings as the dialog shows them when it opens; the join date is in the general date form.
OptionTexts optionTexts(const ProgramState& state, const QLocale& locale);

enum class OptionsOutcome {
  Stored,
  /// The join date cannot be read; nothing has been stored.
  DateRefused,
  /// The data folder holds no ordinary file. The join date, the nickname and the data folder have been stored
  /// and stay so, even if the user leaves the dialog with Cancel.
  FolderRefused,
  /// Something failed; what was stored before it stays.
  Failed,
};

/// Stores the texts into the settings of `state`, the join date first, then the nickname, the data folder
/// (completed by a trailing separator), and the rest. A refusal is reported in a message box, a failure is
/// not.
OptionsOutcome storeOptions(const OptionTexts& texts, ProgramState& state, MessageBoxes& messages,
                            const OptionsConditions& conditions);

}  // namespace quorvin
