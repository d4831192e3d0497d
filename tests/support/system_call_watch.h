// SPDX-License-Identifier: GPL-2.0-or-later

// Watching, breaking off and spoiling what the program does to files.
#pragma once

#include <functional>
#include <string>

namespace quorvin::test {

/// Called before each call that changes a file (open, write, fsync, close, rename and the like) that the
/// program's own libraries make, after half of the bytes of each write, and after each call. The linker leads
/// these calls here; the libraries know nothing of it. Empty means that nobody watches.
std::function<void(const std::string& moment)>& systemCallWatcher();

/// Asked before each such call, by its name: an errno value lets the call fail with that, 0 lets it through.
/// Empty means that all succeed that can. A close() that fails has closed all the same.
std::function<int(const std::string& call)>& systemCallFault();

}  // namespace quorvin::test
