// SPDX-License-Identifier: GPL-2.0-or-later

// How a server fares under a load of hostile callers.
#pragma once

#include <cstdint>
#include <functional>

namespace quorvin::test {

struct PeerLoadFigures {
  /// The longest time between two turns of a timer that fires every millisecond: on the wall, and of that
  /// what this thread itself has used of the processor. Milliseconds.
  double longestGap = 0;
  double longestBusyGap = 0;
  /// By how much resident memory grew at the most. Bytes.
  std::int64_t memoryGrowth = 0;
  /// From the end of the load until a usual caller had its whole archive. Milliseconds; -1 when it never had.
  double serviceBack = -1;
  int mostConnections = 0;
  std::int64_t begun = 0;
  std::int64_t connected = 0;
  std::int64_t received = 0;
};

/// Runs a server with a large and a small list in this process under the load of HostileCallers until
/// `isEnough` of the figures so far, which it is asked again and again. Needs an application object and some
/// 2,200 descriptors.
PeerLoadFigures runPeerLoad(const std::function<bool(const PeerLoadFigures& soFar)>& isEnough);

}  // namespace quorvin::test
