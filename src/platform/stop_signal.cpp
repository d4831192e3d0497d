#include "platform/stop_signal.h"

#include <csignal>

namespace quorvin {

namespace {

// A signal handler can reach nothing but a variable like this one.
volatile std::sig_atomic_t stopSignal = 0;

extern "C" void noteStopSignal(int signalNumber) {
  stopSignal = 1;
  std::signal(signalNumber, SIG_DFL);
}

}  // namespace

void watchStopSignal() {
  std::signal(SIGINT, noteStopSignal);
  std::signal(SIGTERM, noteStopSignal);
}

bool stopSignalled() {
  return stopSignal != 0;
}

}  // namespace quorvin
