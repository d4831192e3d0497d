// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/stop_signal.h"

#include <csignal>

namespace quorvin {

namespace {

// A signal handler can reach nothing but a variable like this one.
volatile std::sig_atomic_t stopSignal = 0;

extern "C" void noteStopSignal(int signalNumber) {
  stopSignal = signalNumber;
  std::signal(signalNumber, SIG_DFL);
}

void watch(int signalNumber) {
  if (std::signal(signalNumber, noteStopSignal) == SIG_IGN) std::signal(signalNumber, SIG_IGN);
}

}  // namespace

void watchStopSignal() {
  watch(SIGINT);
  watch(SIGTERM);
}

bool stopSignalled() {
  return stopSignal != 0;
}

int stopStatus() {
  return stopSignal == 0 ? 0 : 128 + static_cast<int>(stopSignal);
}

}  // namespace quorvin
