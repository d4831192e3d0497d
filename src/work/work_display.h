// SPDX-License-Identifier: GPL-2.0-or-later

// What a long job shows of itself, and how it lets the program live on.
#pragma once

#include <QString>

#include <cstdint>

namespace quorvin {

/// The end of a bar that shows per cent.
inline constexpr std::int32_t kFullBar = 100;

/// `Progress` in the window, one line in the terminal. The job that shows it has it alone.
class WorkDisplay {
 public:
  virtual ~WorkDisplay() = default;

  /// Shows itself for a new job, without taking the focus: nothing cancelled, the bar at 0 of kFullBar, no
  /// detail.
  virtual void begin() = 0;
  /// Takes itself away. The texts stay as they are.
  virtual void end() = 0;
  /// The job has failed, and the display stays with what it shows, until the user takes it away.
  virtual void leaveStanding() = 0;

  virtual QString title() const = 0;
  virtual void setTitle(const QString& title) = 0;
  /// The label `Status`.
  virtual void setStatus(const QString& text) = 0;
  /// A second line below the status, for counts; empty for none.
  virtual void setDetail(const QString& text) = 0;
  /// The bar goes from 0 to `maximum`, which is 0 or more, until begin().
  virtual void setBarMaximum(std::int32_t maximum) = 0;
  /// How far the bar is; a value beyond its ends is taken for the nearer one.
  virtual void setBar(std::int32_t value) = 0;
  /// The bar only moves to and fro, since it is not known how much there is to do.
  virtual void setBusy() = 0;
  /// Whether the mouse pointer, over the whole program, says that it is working.
  virtual void setBusyPointer(bool busy) = 0;

  /// Whether people could see it if something new were shown now. A job that counts many thousand things a
  /// second makes its texts only then.
  virtual bool isDue() = 0;

  /// Lets pending events run; the user may cancel, close, or start something else meanwhile.
  virtual void processEvents() = 0;
  /// Waits until there are events, and lets them run.
  virtual void waitForEvents() = 0;

  /// Whether the user has cancelled the job since begin().
  virtual bool isCancelled() const = 0;
  /// Where there is no window to close: whether the user has asked the program to end.
  virtual bool endRequested() const = 0;
};

}  // namespace quorvin
