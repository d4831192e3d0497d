// SPDX-License-Identifier: GPL-2.0-or-later

// Drawing a metafile, without the limits of the process that draws it for the program. An input is the file.
#include "fuzz/drawing_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorvin::fuzz::checkDrawing({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
  return 0;
}
