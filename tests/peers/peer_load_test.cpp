// SPDX-License-Identifier: GPL-2.0-or-later

// The server under load. benchmarks/peer_load does the same for longer, and prints the figures.
#include "peers/peer_load.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(PeerLoad, AThousandHostileCallersDoNotStopTheWindowOrTheService) {
  const PeerLoadFigures figures = runPeerLoad([](const PeerLoadFigures& soFar) {
    return soFar.begun > 1500 && soFar.connected > 1200 && soFar.received > 1000000 &&
           soFar.mostConnections >= 64;
  });
  EXPECT_GT(figures.begun, 1064);
  EXPECT_EQ(figures.mostConnections, 64);
  EXPECT_GT(figures.received, 1000000);
  // What other programs take of the processor meanwhile is not the server's doing.
  EXPECT_LT(figures.longestBusyGap, 100);
  EXPECT_LT(figures.memoryGrowth, 64 << 20);
  EXPECT_GE(figures.serviceBack, 0);
  EXPECT_LT(figures.serviceBack, 5000);
}

}  // namespace

}  // namespace quorvin::test
