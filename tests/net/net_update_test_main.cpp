// Runs the tests of archives and the web update with an application object, without a screen unless one is
// asked for, and without the proxies of the machine.
#include <QApplication>
#include <QNetworkProxy>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::NoProxy));
  return RUN_ALL_TESTS();
}
