// SPDX-License-Identifier: GPL-2.0-or-later

// The system's requests to end, as an event.
#pragma once

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace quorvin {

/// As long as it lives, SIGTERM, SIGINT and SIGHUP (from a session that ends, a service manager, a terminal)
/// do not end the program but call a function from the event loop. A signal that was ignored when the object
/// was made stays ignored, as "nohup" wants it. SIGPIPE is ignored meanwhile. Several signals may become one
/// call. There is one object at a time; user-interface thread only.
class CloseSignals {
 public:
  /// Throws RuntimeFault when the system cannot give what it takes.
  explicit CloseSignals(std::function<void()> close);
  ~CloseSignals();
  CloseSignals(const CloseSignals&) = delete;
  CloseSignals& operator=(const CloseSignals&) = delete;

 private:
  void replace(int number, const struct sigaction& action);
  void hear();

  std::function<void()> close_;
  /// A pipe: its reading end, and the end that the signal handler writes to.
  std::array<int, 2> pipe_{-1, -1};
  std::optional<QSocketNotifier> notifier_;
  std::vector<std::pair<int, struct sigaction>> before_;
};

}  // namespace quorvin
