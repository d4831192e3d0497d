// SPDX-License-Identifier: GPL-2.0-or-later

// What timed deeds give.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quorvin {

struct RunFigures {
  /// From the start to the last hit.
  double seconds = 0;
  std::int64_t found = 0;
  /// Entries searched.
  std::int64_t searched = 0;
};

/// How long something took in the window, and the longest time meanwhile in which the window could not react.
struct Timed {
  double milliseconds = 0;
  double longestGap = 0;
};

/// The median of the times, and the longest gap of all. There is at least one.
inline Timed median(std::vector<Timed> all) {
  std::ranges::sort(all, {}, &Timed::milliseconds);
  return {all[all.size() / 2].milliseconds, std::ranges::max(all, {}, &Timed::longestGap).longestGap};
}

}  // namespace quorvin
