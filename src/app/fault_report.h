// SPDX-License-Identifier: GPL-2.0-or-later

// Reporting a fault that nothing else has dealt with.
#pragma once

#include "faults/runtime_fault.h"
#include "platform/message_box.h"

#include <QString>

#include <exception>

namespace quorvin {

/// "Run-time error 'N': description" of the fault, and below it "This happened while DOING."; other
/// exceptions have no number, only their text.
QString faultReport(const std::exception& fault, const QString& doing);

/// Reports `fault` as faultReport() words it in a message box; where not even that can be shown, for want of
/// memory, on standard error. Throws nothing.
void showFault(MessageBoxes& messages, const std::exception& fault, const QString& doing) noexcept;

/// Runs `action`; what it throws is reported in a message box, and the program continues. `doing` says what
/// the action does, in words that follow "while". Every handler of a window runs its work through this: a
/// fault must not pass through the toolkit's own code.
template <typename Action>
void reportFaults(MessageBoxes& messages, const QString& doing, Action&& action) {
  try {
    action();
  } catch (const std::exception& fault) {
    showFault(messages, fault, doing);
  }
}

}  // namespace quorvin
