// SPDX-License-Identifier: GPL-2.0-or-later

// Shutdown: everything that happens when the main window is closed.
#pragma once

#include "platform/message_box.h"
#include "platform/settings_store.h"
#include "state/program_state.h"
#include "state/recovery_copy.h"
#include "state/settings.h"

#include <QLocale>

namespace quorvin {

/// What shutdown does with the windows. It is the edge to the window system: shutdown has to hold without a
/// screen, too, where every one of its calls of the system is made to fail.
class ShutdownView {
 public:
  virtual ~ShutdownView() = default;

  /// See PlacementOf.
  virtual float placement(PlacementKey key) const = 0;
  virtual bool isMinimized() const = 0;
  /// Where a maximized window goes back to; empty for one that is not maximized.
  virtual QString maximizedFrom() const = 0;
  /// Lets the pending window events run once.
  virtual void processEvents() = 0;
  /// Unloads `frmSplash`, `ListOptions`, `LocalLoc`, `Progress`, `ImgPre` and `frmBrowser`, in this order.
  virtual void unloadOtherWindows() = 0;
  /// Starts the timer `SndQTime`, which ends the program when nothing runs any more.
  virtual void enableSndQTime() = 0;
};

/// The unload handler of the main window, `Form_Unload`, without the window. Everything that is handed over
/// must outlive the object.
class Shutdown {
 public:
  Shutdown(ProgramState& state, SettingsStore& store, MessageBoxes& boxes, ShutdownView& view,
           const QLocale& locale);

  /// Saves the settings, the window's place (unless it is minimized) and both source lists; asks a running
  /// refresh to stop after its current source; unloads the other windows; sets `ShuttingDown`,
  /// `AbortRequested` and `QuitPending`. Once it has been through, further calls do nothing. Throws when
  /// something cannot be saved: then the later steps have not been taken, and the program goes on. The next
  /// call tries again, tells of each thing that still cannot be saved, and goes on to the end, so that nobody
  /// is kept from leaving.
  ///
  /// What has all been saved needs no recovery copy any more; otherwise that is brought up to date.
  void Form_Unload();

  /// Null, as it is at first, where none is kept; else it must outlive the object.
  void setRecoveryCopy(RecoveryCopy* recovery) { recovery_ = recovery; }

 private:
  bool save();
  bool saveWhatCanBeSaved();
  void saveWindowPlace();
  void stopAndLeave();

  ProgramState& state_;
  SettingsStore& store_;
  MessageBoxes& boxes_;
  ShutdownView& view_;
  QLocale locale_;
  RecoveryCopy* recovery_ = nullptr;
  bool isUnderWay_ = false;
  bool hasFailed_ = false;
};

}  // namespace quorvin
