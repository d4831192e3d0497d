// SPDX-License-Identifier: GPL-2.0-or-later

// The application object and its message boxes.
#pragma once

#include "platform/close_signals.h"
#include "platform/message_box.h"

#include <QApplication>

#include <functional>
#include <optional>

namespace quorvin {

/// Gives the program's windows their icon. Drawing it in every size and handing it to the window system takes
/// time that the main window need not wait for; messages come with it in any case.
void giveWindowsTheirIcon();

/// For main(), first of all: a fault that nobody can catch or show, most of all where there is no memory for
/// that, ends the program with a sentence on standard error; without memory with the exit status 2, else as
/// abort() does. What was not saved is in the recovery copy.
void endWithSentence();

/// The last place where a fault can be reported: one that no handler has dealt with is shown in a message
/// box, and the program stays open with everything it had.
class Application : public QApplication {
  Q_OBJECT

 public:
  /// `argc` and `argv` as QApplication wants them; `messages` must outlive the object.
  Application(int& argc, char** argv, MessageBoxes& messages);

  bool notify(QObject* receiver, QEvent* event) override;

  /// Has `leave` called from the event loop when the system wants the program to end: by the signals of
  /// CloseSignals, or since the desktop session ends. Without one, signals do what they did before. Throws as
  /// CloseSignals does.
  void setLeaveHandler(std::function<void()> leave);

 private:
  MessageBoxes& messages_;
  std::function<void()> leave_;
  std::optional<CloseSignals> signals_;
};

/// Shows each message in a separate box above the window in use, with the application title. A call
/// returns when the user has answered; events run meanwhile.
class WidgetMessageBoxes : public MessageBoxes {
 public:
  /// Nobody is there to answer any more: from now on messages become lines on standard error, questions are
  /// answered with No, and faults in a long piece of work with Abort.
  void fallSilent() { isSilent_ = true; }

  void inform(const QString& text) override;
  /// Closed by Esc, the box says that the user wants no more of its kind.
  bool informOneOfMany(const QString& text) override;
  bool askYesNo(const QString& text) override;
  FaultAnswer askAbortRetryIgnore(const QString& text) override;

 private:
  bool isSilent_ = false;
};

}  // namespace quorvin
