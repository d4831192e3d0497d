// SPDX-License-Identifier: GPL-2.0-or-later

// What this process takes up of the machine's memory.
#pragma once

#include <cstdint>

namespace quorvin {

/// In bytes, as Linux tells it in /proc/self/status.
struct ProcessMemory {
  /// VmRSS: what is in memory now, pages of mapped files included.
  std::int64_t resident = 0;
  /// The part of it that is pages of files (RssFile).
  std::int64_t ofFiles = 0;
  /// VmHWM: the most that was ever in memory.
  std::int64_t peak = 0;
};

/// Throws std::runtime_error where the system does not tell.
ProcessMemory processMemory();

}  // namespace quorvin
