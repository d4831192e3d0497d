// SPDX-License-Identifier: GPL-2.0-or-later
#include "process_memory.h"

#include <fstream>
#include <stdexcept>
#include <string>

namespace quorvin {

namespace {

constexpr std::int64_t kUnknown = -1;
constexpr std::int64_t kBytesInKilobyte = 1024;

/// The value of a line such as "VmRSS:     1234 kB".
void readIfNamed(const std::string& line, const std::string& name, std::int64_t& bytes) {
  if (line.starts_with(name)) bytes = std::stoll(line.substr(name.size())) * kBytesInKilobyte;
}

}  // namespace

ProcessMemory processMemory() {
  ProcessMemory memory{kUnknown, kUnknown, kUnknown};
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    readIfNamed(line, "VmRSS:", memory.resident);
    readIfNamed(line, "RssFile:", memory.ofFiles);
    readIfNamed(line, "VmHWM:", memory.peak);
  }
  if (memory.resident < 0 || memory.ofFiles < 0 || memory.peak < 0) {
    throw std::runtime_error("/proc/self/status does not tell how much memory is in use");
  }
  return memory;
}

}  // namespace quorvin
