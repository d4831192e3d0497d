// SPDX-License-Identifier: GPL-2.0-or-later

// How far a long piece of work has come: one line on standard error that is written over again and again, if
// that is a terminal.
#pragma once

#include <QString>

#include <chrono>

namespace quorvin {

class ProgressLine {
 public:
  /// `isWanted`: false for a line that is never shown.
  explicit ProgressLine(bool isWanted = true);
  /// Clears the line.
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  /// Whether it can ever be seen.
  bool isOnTerminal() const { return isOnTerminal_; }
  /// Whether it is time for a new text.
  bool isDue() const { return isOnTerminal_ && Clock::now() >= next_; }
  /// Shows `text`, cut to the terminal's usual width, with "?" for signs that cannot be printed.
  void show(const QString& text);
  void clear();

 private:
  using Clock = std::chrono::steady_clock;

  bool isOnTerminal_;
  Clock::time_point next_;
  bool isShown_ = false;
};

}  // namespace quorvin
