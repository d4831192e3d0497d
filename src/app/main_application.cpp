#include "app/main_application.h"

#include "app/fault_report.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QWidget>

namespace quorvin {

namespace {

/// The toolkit tells screen readers of a window that is neither a main window nor a dialog as of a mere
/// holder of other things, and they would not notice that it has become the active one.
QAccessibleInterface* makeWindowAccessible(const QString& className, QObject* object) {
  const bool isPlainWindow = className == u"quorvin::frmBrowser" || className == u"quorvin::ImgPre";
  auto* window = isPlainWindow ? qobject_cast<QWidget*>(object) : nullptr;
  return window ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

}  // namespace

Application::Application(int& argc, char** argv, MessageBoxes& messages)
    : QApplication(argc, argv), messages_(messages) {
  QAccessible::installFactory(&makeWindowAccessible);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  bool result = false;
  reportFaults(messages_, QStringLiteral("handling an event of the window system"),
               [&] { result = QApplication::notify(receiver, event); });
  return result;
}

}  // namespace quorvin
