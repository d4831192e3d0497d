// SPDX-License-Identifier: GPL-2.0-or-later

// Runs the tests of the windows with an application object, and without a screen unless one is asked for.
#include "app/main_application.h"
#include "gui/last_resort_messages.h"

#include <gtest/gtest.h>

namespace quorvin::test {

RecordingMessageBoxes& lastResortMessages() {
  static RecordingMessageBoxes messages;
  return messages;
}

}  // namespace quorvin::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const quorvin::Application application(argc, argv, quorvin::test::lastResortMessages());
  return RUN_ALL_TESTS();
}
