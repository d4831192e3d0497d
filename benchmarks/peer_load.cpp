// SPDX-License-Identifier: GPL-2.0-or-later

// Runs the server of the peer exchange under a load of hostile callers and prints how it fared.
#include "peers/peer_load.h"

#include "support/descriptors.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QDeadlineTimer>

#include <chrono>
#include <cstdio>

namespace {

void print(const quorvin::test::PeerLoadFigures& figures) {
  std::printf("longest gap between turns of the event loop: %.1f ms\n", figures.longestGap);
  std::printf("  of it in this thread:                      %.1f ms\n", figures.longestBusyGap);
  std::printf("resident memory grew by:                     %.1f MB\n",
              static_cast<double>(figures.memoryGrowth) / 1048576.0);
  std::printf("service back after:                          %.1f ms\n", figures.serviceBack);
  std::printf("connections at a time, at most:              %d\n", figures.mostConnections);
  std::printf("calls, and those that got through:           %lld, %lld\n",
              static_cast<long long>(figures.begun), static_cast<long long>(figures.connected));
  std::printf("bytes that the callers read:                 %lld\n",
              static_cast<long long>(figures.received));
}

}  // namespace

int main(int argc, char** argv) {
  int seconds = 120;
  CLI::App options("Runs the peer server under a load of hostile callers");
  options.add_option("--seconds", seconds, "How long the load lasts")->check(CLI::Range(1, 3600));
  CLI11_PARSE(options, argc, argv);
  quorvin::test::allowManyDescriptors();
  const QCoreApplication application(argc, argv);
  const QDeadlineTimer end{std::chrono::seconds(seconds)};
  print(quorvin::test::runPeerLoad([&](const quorvin::test::PeerLoadFigures&) { return end.hasExpired(); }));
  return 0;
}
