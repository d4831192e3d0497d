// The application object.
#pragma once

#include "platform/message_box.h"

#include <QApplication>

namespace quorvin {

/// The last place where a fault can be told: one that no handler has dealt with is shown in a message box,
/// and the program stays open with everything it had.
class Application : public QApplication {
  Q_OBJECT

 public:
  /// `argc` and `argv` as QApplication wants them; `messages` must outlive the object.
  Application(int& argc, char** argv, MessageBoxes& messages);

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  MessageBoxes& messages_;
};

}  // namespace quorvin
