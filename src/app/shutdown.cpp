// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/shutdown.h"

#include "app/fault_report.h"
#include "state/source_list_file.h"
#include "texts/texts.h"

#include <QScopeGuard>

#include <functional>
#include <utility>

namespace quorvin {

Shutdown::Shutdown(ProgramState& state, SettingsStore& store, MessageBoxes& boxes, ShutdownView& view,
                   const QLocale& locale)
    : state_(state), store_(store), boxes_(boxes), view_(view), locale_(locale) {}

void Shutdown::Form_Unload() {
  // Events run on the way, and another request to close may be among them.
  if (state_.ShuttingDown || isUnderWay_) return;
  isUnderWay_ = true;
  const auto afterwards = qScopeGuard([this] { isUnderWay_ = false; });
  const bool isSaved = std::exchange(hasFailed_, true) ? saveWhatCanBeSaved() : save();
  if (recovery_ != nullptr) recovery_->close(isSaved);
  stopAndLeave();
}

bool Shutdown::save() {
  writeSettings(store_, state_, locale_);
  saveWindowPlace();
  const bool isOnlineSaved = saveOnlineSources(state_, boxes_);
  const bool isOfflineSaved = saveOfflineSources(state_, boxes_);
  return isOnlineSaved && isOfflineSaved;
}

/// Each thing on its own, so that one that cannot be saved does not take the others with it.
bool Shutdown::saveWhatCanBeSaved() {
  bool isSaved = true;
  const auto tryTo = [&](const QString& doing, const std::function<bool()>& saveIt) {
    bool isThisSaved = false;
    reportFaults(boxes_, doing, [&] { isThisSaved = saveIt(); });
    isSaved = isSaved && isThisSaved;
  };
  tryTo(Texts::tr("saving the settings"), [this] {
    writeSettings(store_, state_, locale_);
    return true;
  });
  tryTo(Texts::tr("saving the window's place"), [this] {
    saveWindowPlace();
    return true;
  });
  tryTo(Texts::tr("saving the online sources"), [this] { return saveOnlineSources(state_, boxes_); });
  tryTo(Texts::tr("saving the offline sources"), [this] { return saveOfflineSources(state_, boxes_); });
  return isSaved;
}

/// The place of a minimized window is none that anyone wants to find it in.
void Shutdown::saveWindowPlace() {
  if (view_.isMinimized()) return;
  writePlacement(store_, state_, [this](PlacementKey key) { return view_.placement(key); });
  writeMaximized(store_, state_, view_.maximizedFrom());
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
