// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/plain_plan.h"

#include <algorithm>
#include <bitset>

namespace quorvin::test {

std::size_t fewestVolumes(const Holders& holders, unsigned volumes) {
  std::size_t fewest = volumes;
  for (unsigned long set = 0; set < 1UL << volumes; ++set) {
    const std::bitset<20> chosen(set);
    const bool holdsAll = std::ranges::all_of(holders, [&](const std::set<unsigned>& file) {
      return file.empty() || std::ranges::any_of(file, [&](unsigned volume) { return chosen[volume]; });
    });
    if (holdsAll) fewest = std::min(fewest, chosen.count());
  }
  return fewest;
}

}  // namespace quorvin::test
