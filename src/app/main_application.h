// The application object and its message boxes.
#pragma once

#include "platform/message_box.h"

#include <QApplication>

namespace quorvin {

/// The last place where a fault can be reported: one that no handler has dealt with is shown in a message
/// box, and the program stays open with everything it had.
class Application : public QApplication {
  Q_OBJECT

 public:
  /// `argc` and `argv` as QApplication wants them; `messages` must outlive the object.
  Application(int& argc, char** argv, MessageBoxes& messages);

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  MessageBoxes& messages_;
};

/// Shows each message in a separate box above the window in use, with the application title. A call
/// returns when the user has answered; events run meanwhile.
class WidgetMessageBoxes : public MessageBoxes {
 public:
  void inform(const QString& text) override;
  bool askYesNo(const QString& text) override;
  FaultAnswer askAbortRetryIgnore(const QString& text) override;
};

}  // namespace quorvin
