// SPDX-License-Identifier: GPL-2.0-or-later

// The faults that no handler of a window has dealt with.
#pragma once

#include "faults/runtime_fault.h"

#include <QString>

#include <vector>

namespace quorvin::test {

/// The descriptions of all such faults since the start of the tests.
std::vector<QString>& lastResortFaults();

}  // namespace quorvin::test
