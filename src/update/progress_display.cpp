#include "update/progress_display.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>

#include <utility>

namespace quorvin {

ProgressDisplay::ProgressDisplay(UpdateWindows windows) : windows_(std::move(windows)) {}

void ProgressDisplay::showMainWindow() {
  windows_.mainWindow.show();
}

void ProgressDisplay::showProgress() {
  if (!endRequested()) windows_.progress().begin();
}

void ProgressDisplay::unloadProgress() {
  windows_.progress().hide();
}

void ProgressDisplay::setStatus(const QString& text) {
  windows_.progress().setStatus(text);
}

void ProgressDisplay::setBarMaximum(std::int32_t maximum) {
  barMaximum_ = maximum;
}

void ProgressDisplay::setBar(std::int32_t value) {
  constexpr std::int64_t kFull = 100;
  const std::int64_t percent = barMaximum_ > 0 ? value * kFull / barMaximum_ : 0;
  windows_.progress().setBar(static_cast<int>(percent));
}

void ProgressDisplay::processEvents() {
  QCoreApplication::processEvents();
}

bool ProgressDisplay::endRequested() const {
  return windows_.endRequested();
}

void ProgressDisplay::setWebUpdateEnabled(bool enabled) {
  windows_.webUpdate.setEnabled(enabled);
}

void ProgressDisplay::setBusyPointer(bool busy) {
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

void ProgressDisplay::waitForEvents() {
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void ProgressDisplay::leaveProgress() {
  windows_.progress().leaveStanding();
}

}  // namespace quorvin
