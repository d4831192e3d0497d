// SPDX-License-Identifier: GPL-2.0-or-later

// Callers that a server would rather not have, many at a time.
#pragma once

#include <atomic>
#include <cstdint>
#include <thread>

namespace quorvin::test {

/// Sixty-four callers that would stay, and a thousand more that try to get in, from two hundred addresses and
/// on a thread of their own. Those that the server turns out call again. Some read as fast as they can, some
/// slowly or not at all, some send garbage, messages without end or a flood of requests, some say nothing,
/// and those who try go away again and again, with and without a reset.
class HostileCallers {
 public:
  static constexpr int kStaying = 64;
  static constexpr int kTrying = 1000;

  /// Starts at once. `largeList` names a list of the server on this machine at `port`.
  HostileCallers(std::uint16_t port, const char* largeList);
  ~HostileCallers();
  HostileCallers(const HostileCallers&) = delete;
  HostileCallers& operator=(const HostileCallers&) = delete;

  /// Ends every connection; returns when that is done.
  void stop();

  /// How often somebody called and got through, and how many bytes came back.
  std::int64_t begun() const { return begun_; }
  std::int64_t connected() const { return connected_; }
  std::int64_t received() const { return received_; }

 private:
  void run(std::uint16_t port, const char* largeList);

  std::atomic<bool> mustStop_ = false;
  std::atomic<std::int64_t> begun_ = 0;
  std::atomic<std::int64_t> connected_ = 0;
  std::atomic<std::int64_t> received_ = 0;
  std::thread thread_;
};

}  // namespace quorvin::test
