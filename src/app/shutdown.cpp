#include "app/shutdown.h"

#include "app/fault_report.h"
#include "state/source_list_file.h"

#include <QScopeGuard>

namespace quorvin {

Shutdown::Shutdown(ProgramState& state, SettingsStore& store, MessageBoxes& boxes, ShutdownView& view,
                   const QLocale& locale)
    : state_(state), store_(store), boxes_(boxes), view_(view), locale_(locale) {}

void Shutdown::Form_Unload() {
  // Events run on the way, and another request to close may be among them.
  if (state_.ShuttingDown || isUnderWay_) return;
  isUnderWay_ = true;
  const auto afterwards = qScopeGuard([this] { isUnderWay_ = false; });
  if (hasFailed_) {
    saveWhatCanBeSaved();
  } else {
    hasFailed_ = true;
    save();
  }
  stopAndLeave();
}

void Shutdown::save() {
  writeSettings(store_, state_, locale_);
  saveWindowPlace();
  saveOnlineSources(state_, boxes_);
  saveOfflineSources(state_, boxes_);
}

/// Each thing on its own, so that one that cannot be saved does not take the others with it.
void Shutdown::saveWhatCanBeSaved() {
  reportFaults(boxes_, QStringLiteral("saving the settings"),
               [this] { writeSettings(store_, state_, locale_); });
  reportFaults(boxes_, QStringLiteral("saving the window's place"), [this] { saveWindowPlace(); });
  reportFaults(boxes_, QStringLiteral("saving the online sources"),
               [this] { saveOnlineSources(state_, boxes_); });
  reportFaults(boxes_, QStringLiteral("saving the offline sources"),
               [this] { saveOfflineSources(state_, boxes_); });
}

/// The place of a minimized window is none that anyone wants to find it in.
void Shutdown::saveWindowPlace() {
  if (!view_.isMinimized()) writePlacement(store_, state_, view_);
}

void Shutdown::stopAndLeave() {
  if (state_.RescanRunning) {
    state_.RescanAbort = true;
    view_.processEvents();
    view_.enableSndQTime();
  }
  view_.unloadOtherWindows();
  state_.ShuttingDown = true;
  state_.AbortRequested = true;
  state_.QuitPending = true;
  view_.enableSndQTime();
}

}  // namespace quorvin
