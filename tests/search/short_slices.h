// SPDX-License-Identifier: GPL-2.0-or-later

// Work in slices, a step at a time.
#pragma once

#include "search/row_sort.h"

namespace quorvin::test {

/// Slices that are as short as can be: work that looks a second time has to stop.
inline SliceEnd everyOtherTime() {
  return [looks = 0]() mutable { return ++looks % 2 == 0; };
}

}  // namespace quorvin::test
