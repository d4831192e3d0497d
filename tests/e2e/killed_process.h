// SPDX-License-Identifier: GPL-2.0-or-later

// Processes that are killed while they work.
#pragma once

#include <functional>

namespace quorvin::test {

/// Does `work` in a copy of this process that is killed (SIGKILL) when it is about to make its `number`-th
/// system call, counted from 1: whatever a file can go through lies between two of them. False when the work
/// came to its end before that. Throws std::runtime_error when the system does not let processes be watched,
/// and when the work fails.
bool killedBeforeCall(int number, const std::function<void()>& work);

}  // namespace quorvin::test
