// SPDX-License-Identifier: GPL-2.0-or-later

// Which fault an action throws.
#pragma once

#include "faults/runtime_fault.h"

#include <functional>

namespace quorvin::test {

/// The number of the RuntimeFault that `action` throws; 0 when it throws none.
inline int faultNumberOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

}  // namespace quorvin::test

/// The statement throws a RuntimeFault of this number.
#define EXPECT_FAULT(statement, number) \
  EXPECT_EQ(::quorvin::test::faultNumberOf([&] { statement; }), number) << #statement
