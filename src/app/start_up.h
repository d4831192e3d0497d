// SPDX-License-Identifier: GPL-2.0-or-later

// Start-up: everything that happens between the making of the main window and the user's first action.
#pragma once

#include "dates/general_date.h"
#include "files/path_style.h"
#include "platform/message_box.h"
#include "platform/settings_store.h"
#include "state/program_state.h"
#include "state/settings.h"

#include <QLocale>
#include <QString>

#include <functional>

namespace quorvin {

/// The message for a file on the command line that is not there.
inline constexpr char kListingNotFound[] =
    QT_TRANSLATE_NOOP("Texts", "Could not find file specified on command line. Using default file.");

/// What start-up does with the main window. It is the edge to the window system: start-up has to hold without
/// a screen, too, where it is killed and started again by the thousand.
class StartUpView {
 public:
  virtual ~StartUpView() = default;

  /// See PlacementOf and SetPlacement.
  virtual float placement(PlacementKey key) const = 0;
  virtual void setPlacement(PlacementKey key, float twips) = 0;
  /// Sets the caption of `lblVer`.
  virtual void setVersionCaption(const QString& caption) = 0;
  /// The window is that of the listing at `path`, which the command line names: its title says so.
  virtual void showListingName(const QString& path) = 0;
  /// Enables or disables the `WebUpdate` button.
  virtual void setWebUpdateEnabled(bool enabled) = 0;
  /// Lets the pending window events run once.
  virtual void processEvents() = 0;
  /// Calls `action` from the event loop when the window has been painted for the first time, or, where nobody
  /// can see it, a little later: for what the user need not wait for.
  virtual void whenPainted(std::function<void()> action) = 0;
};

/// Unpacks every entry of the archive at `archivePath` into `targetFolder` (which ends in a separator), with
/// the main window and the progress window shown, and returns when that is done. Throws RuntimeFault when it
/// fails.
using ExtractDataFile = std::function<void(const QString& archivePath, const QString& targetFolder)>;

/// How this run of the program was started.
struct StartUpConditions {
  /// The command line without the program's name, as one text exactly as it was received: not split into
  /// words, quotes not removed. Empty when there is none. See readCommandLine() for what comes before.
  QString commandLine;
  /// Gives the program's own folder, with or without a trailing separator; it is asked only when no data
  /// folder is set. It may throw RuntimeFault.
  std::function<QString()> programFolder;
  /// The current date and time.
  DateValue now = 0;
  /// The locale in which dates are kept in the settings.
  QLocale locale;
  PathStyle pathStyle = nativePathStyle();
};

/// The load handler of the main window, `Form_Load`, without the window. Everything that is handed over must
/// outlive the object.
class StartUp {
 public:
  StartUp(ProgramState& state, const SettingsStore& store, MessageBoxes& boxes, StartUpView& view,
          ExtractDataFile extractDataFile);

  /// Shows the version, takes the command line, gathers defaults, restores settings and placement, loads both
  /// source lists, and has the main data file unpacked when only its archive is there. A fault on the way is
  /// shown as "Statup error: NUMBER DESCRIPTION" and ends start-up; what was done before it stays, and the
  /// program goes on with that and with a local data folder. What could not be read is not overwritten later.
  /// What killed programs left in the data folder is removed once the window is there.
  /// Starts no search, no indexing and no connection.
  void Form_Load(const StartUpConditions& conditions);

 private:
  void runSteps(const StartUpConditions& conditions);
  void takeCommandLine(const QString& commandLine, PathStyle style);
  bool dataFileIsOnlyInArchive() const;

  ProgramState& state_;
  const SettingsStore& store_;
  MessageBoxes& boxes_;
  StartUpView& view_;
  ExtractDataFile extractDataFile_;
};

}  // namespace quorvin
