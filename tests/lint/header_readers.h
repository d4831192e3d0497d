// SPDX-License-Identifier: GPL-2.0-or-later

// Who reads a header: one that serves a single file and has no test of its own is better off inside that
// file.
#pragma once

#include "lint/include_rules.h"

#include <string>
#include <vector>

namespace quorvin::lint {

/// The headers among `program` (files below src/) that fewer than two files other than their own source file
/// include, and that have no test of their own among `tests`, "tests/.../NAME_test.cpp". One sentence each,
/// with how to mend it.
std::vector<std::string> lonelyHeaders(const std::vector<SourceFile>& program,
                                       const std::vector<SourceFile>& tests);

}  // namespace quorvin::lint
