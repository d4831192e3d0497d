// SPDX-License-Identifier: GPL-2.0-or-later

// A desktop of the test's own: a screen that nobody sees, with a window manager and a keyboard.
#pragma once

#include "support/hidden_screen.h"

#include <QPoint>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <functional>

namespace quorvin::test {

/// What the program's main window and its messages are called.
inline const QString kTitle = QStringLiteral("Quorvin Utility");
/// What ends the program.
inline const QStringList kCtrlQ = {QStringLiteral("ctrl+q")};

/// Looks at `condition` until it holds, so that a test waits for what happens and never for a time. Throws
/// std::runtime_error with `what` was waited for and what there is `instead`, when it does not hold and
/// `progress` (a number that changes as work gets done) has stayed the same for minutes.
void waitUntil(const QString& what, const std::function<bool()>& condition,
               const std::function<QString()>& instead = {}, const std::function<qint64()>& progress = {});

/// Windows are told by the number that the screen gives them, as text.
class Desktop {
 public:
  /// Throws std::runtime_error when the desktop does not come up.
  Desktop();
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// What programs that are to appear on this desktop are started with.
  const QProcessEnvironment& environment() const { return environment_; }

  /// Presses keys one after another, named as in "alt+f", "Tab" or "o"; they go to the active window.
  void press(const QStringList& keys) const;
  void type(const QString& text) const;

  /// Clicks there, in pixels of the screen; `heldKey` as xdotool names it ("ctrl"), if any.
  void click(QPoint place, const QString& heldKey = {}) const;
  /// Drags by the mouse what is at `from` to `to`, both in pixels of the screen.
  void drag(QPoint from, QPoint to) const;

  /// The window that keys go to; empty while there is none.
  QString activeWindow() const;
  void activate(const QString& window) const;
  QString titleOf(const QString& window) const;
  /// The windows of this title that the process shows.
  QStringList windowsOf(qint64 process, const QString& title) const;
  /// The number of the process that the window belongs to; 0 for a window that has just gone.
  qint64 processOf(const QString& window) const;
  /// The place of the window's inside, as "X=1 Y=2 WIDTH=3 HEIGHT=4".
  QString placeOf(const QString& window) const;
  void move(const QString& window, int x, int y) const;
  void resize(const QString& window, int width, int height) const;

  /// What the active program has put on the clipboard; empty when there is nothing.
  QString clipboardText() const;

 private:
  void startWindowManager();
  struct Answer {
    bool isGood;
    QString output;
  };
  Answer run(const QString& program, const QStringList& arguments) const;
  QString control(const QStringList& arguments) const;

  HiddenScreen screen_;
  QProcessEnvironment environment_;
  QProcess windowManager_;
};

}  // namespace quorvin::test
