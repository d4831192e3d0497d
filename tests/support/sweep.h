// SPDX-License-Identifier: GPL-2.0-or-later

// How much of an exhaustive sweep a run tries.
//
// Some tests try everything: every byte changed, every second of a day, millions of listings. `./test` tries
// a slice of each with the same checks, so that it stays a matter of minutes; `./test --all` tries the whole.
#pragma once

#include <QtGlobal>

namespace quorvin::test {

/// Whether this run tries the whole of each sweep: the environment has QUORVIN_ALL_TESTS.
inline bool triesEverything() {
  static const bool everything = qEnvironmentVariableIsSet("QUORVIN_ALL_TESTS");
  return everything;
}

/// A count, or the stride of a loop: `whole` where everything is tried, else `slice`. A stride for a slice is
/// a prime, so that it meets every place of whatever repeats.
template <typename Number>
Number sweep(Number whole, Number slice) {
  return triesEverything() ? whole : slice;
}

}  // namespace quorvin::test
