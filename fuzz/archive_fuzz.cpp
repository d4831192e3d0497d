// SPDX-License-Identifier: GPL-2.0-or-later

// Unpacking. An input is the archive.
#include "fuzz/unpacking_check.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorvin::fuzz::checkUnpacking({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
  return 0;
}
