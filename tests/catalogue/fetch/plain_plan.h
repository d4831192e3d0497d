// SPDX-License-Identifier: GPL-2.0-or-later

// The fewest volumes for wanted files, found as plainly as possible. It judges the fast way.
#pragma once

#include <cstddef>
#include <set>
#include <vector>

namespace quorvin::test {

/// For each wanted file the volumes that hold it.
using Holders = std::vector<std::set<unsigned>>;

/// How many volumes at least hold all files that any volume holds. Tries all sets of `volumes` volumes, up to
/// 20 of them.
std::size_t fewestVolumes(const Holders& holders, unsigned volumes);

}  // namespace quorvin::test
