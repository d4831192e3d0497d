#include "app/main_application.h"

#include "app/fault_report.h"

#include <QEvent>

namespace quorvin {

Application::Application(int& argc, char** argv, MessageBoxes& messages)
    : QApplication(argc, argv), messages_(messages) {}

bool Application::notify(QObject* receiver, QEvent* event) {
  bool result = false;
  reportFaults(messages_, QStringLiteral("handling an event of the window system"),
               [&] { result = QApplication::notify(receiver, event); });
  return result;
}

}  // namespace quorvin
