// Faults that reach the edge of the event loop.
#include "app/main_application.h"

#include "faults/runtime_fault.h"
#include "gui/last_resort_messages.h"
#include "support/qt_printing.h"

#include <QEvent>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class FailingReceiver : public QObject {
 public:
  bool event(QEvent*) override {
    throw RuntimeFault(FaultNumber::DiskFull, QStringLiteral("Disk full: /data"));
  }
};

TEST(MainApplication, TellsAFaultThatNoHandlerDealtWithAndGoesOn) {
  lastResortMessages().informed.clear();
  FailingReceiver receiver;
  QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
  QCoreApplication::processEvents();
  ASSERT_EQ(lastResortMessages().informed.size(), 1U);
  EXPECT_EQ(lastResortMessages().informed[0],
            QStringLiteral("Run-time error '61': Disk full: /data\r\n\r\n"
                           "This happened while handling an event of the window system."));
}

}  // namespace

}  // namespace quorvin::test
