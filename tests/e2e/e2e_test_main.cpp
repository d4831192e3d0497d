// SPDX-License-Identifier: GPL-2.0-or-later

// Runs the tests of the real program; the test itself needs no window.
#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
