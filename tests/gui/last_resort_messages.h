// SPDX-License-Identifier: GPL-2.0-or-later

// What the application object of the tests has reported.
#pragma once

#include "support/recording_message_boxes.h"

namespace quorvin::test {

/// The message boxes of the application object: it shows the faults that no handler has dealt with.
RecordingMessageBoxes& lastResortMessages();

}  // namespace quorvin::test
