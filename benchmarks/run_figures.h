// What a timed search gives.
#pragma once

#include <cstdint>

namespace quorvin {

struct RunFigures {
  /// From the start to the last hit.
  double seconds = 0;
  std::int64_t found = 0;
  /// Entries searched.
  std::int64_t searched = 0;
};

}  // namespace quorvin
