// How far an indexing in the terminal has come.
#pragma once

#include "work/work_display.h"

#include <QString>

#include <chrono>

namespace quorvin {

/// Shows one line on standard error that is written over again and again, if that is a terminal. A signal
/// that asks the program to end stops the work as closing the window would.
class ConsoleProgress : public WorkDisplay {
 public:
  ConsoleProgress();
  /// Clears the line.
  ~ConsoleProgress() override;
  ConsoleProgress(const ConsoleProgress&) = delete;
  ConsoleProgress& operator=(const ConsoleProgress&) = delete;

  void begin() override {}
  void end() override { clearLine(); }
  void leaveStanding() override { clearLine(); }
  QString title() const override { return title_; }
  /// The part after the last "... ", which is what changes, leads the line.
  void setTitle(const QString& title) override;
  void setStatus(const QString& text) override { status_ = text; }
  void setDetail(const QString& text) override { detail_ = text; }
  void setBarMaximum(std::int32_t) override {}
  void setBar(std::int32_t) override {}
  void setBusy() override {}
  void setBusyPointer(bool) override {}
  bool isDue() override;
  void processEvents() override;
  void waitForEvents() override {}
  bool isCancelled() const override { return false; }
  bool endRequested() const override;

 private:
  using Clock = std::chrono::steady_clock;

  void showLine();
  void clearLine();

  bool onTerminal_;
  Clock::time_point nextLine_;
  bool lineShown_ = false;
  bool isLineDue_ = false;
  QString title_;
  QString status_;
  QString detail_;
};

}  // namespace quorvin
