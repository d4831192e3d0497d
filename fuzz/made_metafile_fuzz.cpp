// SPDX-License-Identifier: GPL-2.0-or-later

// Drawing metafiles that are made from the input: records of all kinds, most of which make sense.
#include "fuzz/drawing_check.h"
#include "fuzz/drawing_maker.h"
#include "fuzz/require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin;
  fuzz::Choices choices(data, size);
  fuzz::require(fuzz::checkDrawing(fuzz::chosenDrawing(choices)),
                "a sound chain of records is played to its end");
  return 0;
}
