// Runs the tests of the preview with an application object, and without a screen unless one is asked for.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
