// SPDX-License-Identifier: GPL-2.0-or-later

// What long jobs show, recorded.
#pragma once

#include "work/work_display.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace quorvin::test {

/// Everything that is shown, in order: "progress shown", "status Decompressing...", "bar 50". `onEvents` and
/// `onWait` stand for what the user does while events run.
class RecordingWorkDisplay : public WorkDisplay {
 public:
  void begin() override {
    isShown = true;
    cancelled = false;
    log += QStringLiteral("progress shown");
  }
  void end() override {
    isShown = false;
    log += QStringLiteral("progress unloaded");
  }
  void leaveStanding() override { log += QStringLiteral("progress left"); }
  QString title() const override { return shownTitle; }
  void setTitle(const QString& title) override {
    shownTitle = title;
    titles += title;
  }
  void setStatus(const QString& text) override {
    status = text;
    statuses += text;
    log += QStringLiteral("status ") + text;
  }
  void setDetail(const QString& text) override { details += text; }
  void setBarMaximum(std::int32_t maximum) override { log += QStringLiteral("maximum %1").arg(maximum); }
  void setBar(std::int32_t value) override { log += QStringLiteral("bar %1").arg(value); }
  void setBusy() override { log += QStringLiteral("bar busy"); }
  void setBusyPointer(bool busy) override { pointerIsBusy = busy; }
  bool isDue() override { return true; }
  void processEvents() override {
    ++eventPasses;
    if (onEvents) onEvents();
  }
  void waitForEvents() override {
    ++waits;
    if (onWait) onWait();
  }
  bool isCancelled() const override { return cancelled; }
  bool endRequested() const override { return ended; }

  QStringList log;
  QString shownTitle = QStringLiteral("Progress");
  QStringList titles;
  QString status;
  QStringList statuses;
  QStringList details;
  bool isShown = false;
  bool pointerIsBusy = false;
  /// What isCancelled() and endRequested() say.
  bool cancelled = false;
  bool ended = false;
  int eventPasses = 0;
  int waits = 0;
  std::function<void()> onEvents;
  std::function<void()> onWait;
};

}  // namespace quorvin::test
