// SPDX-License-Identifier: GPL-2.0-or-later

// What fuzz targets hold their results against.
#pragma once

#include <stdexcept>
#include <string>

namespace quorvin::fuzz {

/// Something that always holds does not hold for an input. It ends a fuzzer's run, which keeps the input, and
/// fails the test that replays one.
class BrokenPromise : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

/// Throws BrokenPromise with `promise`, a sentence that says what should be so, unless it is.
inline void require(bool holds, const std::string& promise) {
  if (!holds) throw BrokenPromise(promise);
}

}  // namespace quorvin::fuzz
