// Watching, and breaking off, what the program does to files.
#pragma once

#include <functional>
#include <string>

namespace quorvin::test {

/// Called before each call that changes a file (open, write, fsync, close, rename, unlink) that the program's
/// own libraries make, after half of the bytes of each write, and after each call. The linker leads these
/// calls here; the libraries know nothing of it. Empty means that nobody watches.
std::function<void(const std::string& moment)>& systemCallWatcher();

}  // namespace quorvin::test
