// SPDX-License-Identifier: GPL-2.0-or-later

// Runs tests with an application object: without a screen unless one is asked for, without the machine's
// proxies, and with as many descriptors as the system lets a process have.
#include "support/descriptors.h"

#include <QApplication>
#include <QNetworkProxy>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  quorvin::test::allowManyDescriptors();
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::NoProxy));
  return RUN_ALL_TESTS();
}
