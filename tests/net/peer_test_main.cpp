// Runs the tests of the peer exchange with an application object, without a screen unless one is asked for,
// and with as many descriptors as the system lets this process have.
#include "support/descriptors.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  quorvin::test::allowManyDescriptors();
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
