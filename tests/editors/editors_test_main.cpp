// SPDX-License-Identifier: GPL-2.0-or-later

// Runs the tests of the editors with an application object, and without a screen unless one is asked for.
#include "editors/last_resort_faults.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace quorvin::test {

std::vector<QString>& lastResortFaults() {
  static std::vector<QString> faults;
  return faults;
}

namespace {

/// Faults must not pass through the toolkit's own code, in tests as in the program.
class CatchingApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const RuntimeFault& fault) {
      lastResortFaults().push_back(fault.description());
      return false;
    }
  }
};

}  // namespace

}  // namespace quorvin::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const quorvin::test::CatchingApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
