// SPDX-License-Identifier: GPL-2.0-or-later

// Runs the tests of saving with an application object, and without a screen unless one is asked for.
#include "app/main_application.h"
#include "support/recording_message_boxes.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  quorvin::RecordingMessageBoxes messages;
  const quorvin::Application application(argc, argv, messages);
  const int result = RUN_ALL_TESTS();
  // A fault that came as far as this is one that no handler has dealt with.
  return messages.informed.empty() ? result : 1;
}
