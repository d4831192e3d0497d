// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "platform/close_signals.h"
#include "texts/texts.h"

#include <QString>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quorvin {

namespace {

// A signal handler can reach nothing but a variable like this one.
volatile std::sig_atomic_t wakingEnd = -1;

extern "C" void wakeEventLoop(int) {
  const int before = errno;
  // A full pipe has woken the event loop already.
  [[maybe_unused]] const ssize_t written = ::write(wakingEnd, "s", 1);
  errno = before;
}

}  // namespace

CloseSignals::CloseSignals(std::function<void()> close) : close_(std::move(close)) {
  if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    throw faultOfSystemError(errno, Texts::tr("a pipe for signals"));
  }
  wakingEnd = pipe_[1];
  notifier_.emplace(pipe_[0], QSocketNotifier::Read);
  QObject::connect(&*notifier_, &QSocketNotifier::activated, &*notifier_, [this] { hear(); });
  struct sigaction waking = {};
  waking.sa_handler = wakeEventLoop;
  // What the program is reading or writing meanwhile goes on.
  waking.sa_flags = SA_RESTART;
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) replace(number, waking);
  // What is still to be said to a terminal that has gone must not end the program before it has saved.
  struct sigaction ignoring = {};
  ignoring.sa_handler = SIG_IGN;
  replace(SIGPIPE, ignoring);
}

void CloseSignals::replace(int number, const struct sigaction& action) {
  struct sigaction before = {};
  ::sigaction(number, nullptr, &before);
  if (before.sa_handler == SIG_IGN) return;
  before_.emplace_back(number, before);
  ::sigaction(number, &action, nullptr);
}

CloseSignals::~CloseSignals() {
  for (const auto& [number, before] : before_) ::sigaction(number, &before, nullptr);
  wakingEnd = -1;
  notifier_.reset();
  for (const int end : pipe_) ::close(end);
}

void CloseSignals::hear() {
  std::array<char, 64> bytes;
  while (::read(pipe_[0], bytes.data(), bytes.size()) > 0) {
  }
  close_();
}

}  // namespace quorvin
