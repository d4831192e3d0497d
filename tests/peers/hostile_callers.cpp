// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/hostile_callers.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <chrono>
#include <netinet/in.h>
#include <poll.h>
#include <random>
#include <string>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quorvin::test {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

enum class Manner { Reads, ReadsSlowly, NeverReads, Garbage, Endless, Flood, Silent };
constexpr int kManners = 7;

constexpr std::size_t kBlock = 16384;
constexpr int kPollMilliseconds = 5;

class Random {
 public:
  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(engine_); }

 private:
  std::mt19937 engine_{7};
};

/// Address `number` of the many that this machine has for itself.
sockaddr loopbackAddress(std::uint32_t number, std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK - 1 + number);
  // Copied, since the calls take a more general type.
  sockaddr general{};
  std::copy_n(reinterpret_cast<const char*>(&address), sizeof general, reinterpret_cast<char*>(&general));
  return general;
}

/// One caller; -1 stands for a descriptor that is closed.
class Caller {
 public:
  /// `number` is that of the caller's address.
  Caller(Manner manner, bool stays, std::uint32_t number)
      : manner_(manner), stays_(stays), ownAddress_(loopbackAddress(number, 0)) {}

  int descriptor() const { return descriptor_; }
  bool isConnected() const { return isConnected_; }
  bool isOpen() const { return descriptor_ >= 0; }

  void call(const sockaddr& server, Random& random) {
    descriptor_ = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (descriptor_ < 0) return;
    ::bind(descriptor_, &ownAddress_, sizeof ownAddress_);
    ::connect(descriptor_, &server, sizeof server);
    isConnected_ = false;
    // Those who stay, stay to the end.
    goesAt_ = Clock::now() + (stays_ ? milliseconds(3600000) : milliseconds(100 + random.below(3000)));
  }

  void end(Random& random) {
    if (descriptor_ < 0) return;
    if (random.below(2) == 0) {
      const linger none{1, 0};
      ::setsockopt(descriptor_, SOL_SOCKET, SO_LINGER, &none, sizeof none);
    }
    ::close(std::exchange(descriptor_, -1));
    isConnected_ = false;
  }

  /// True when the connection is established.
  bool becomesConnected() {
    int error = 0;
    socklen_t size = sizeof error;
    ::getsockopt(descriptor_, SOL_SOCKET, SO_ERROR, &error, &size);
    isConnected_ = error == 0;
    return isConnected_;
  }

  bool mustGo(Clock::time_point now) const { return now >= goesAt_; }
  bool wantsToRead(Clock::time_point now) const {
    if (manner_ == Manner::NeverReads || manner_ == Manner::Flood) return false;
    return manner_ != Manner::ReadsSlowly || now >= readsAt_;
  }
  bool wantsToWrite(Clock::time_point now) const { return now >= writesAt_; }

  /// The number of bytes that came; -1 when the connection has ended.
  ssize_t read(Clock::time_point now) {
    std::array<char, kBlock> block{};
    const std::size_t most = manner_ == Manner::ReadsSlowly ? 512 : block.size();
    readsAt_ = now + milliseconds(50);
    const ssize_t count = ::recv(descriptor_, block.data(), most, 0);
    if (count < 0) return errno == EAGAIN ? 0 : -1;
    return count == 0 ? -1 : count;
  }

  /// False when the connection has ended.
  bool write(Clock::time_point now, const std::string& request, Random& random) {
    const std::string message = nextMessage(request, random);
    writesAt_ = now + pause(random);
    const ssize_t count = ::send(descriptor_, message.data(), message.size(), MSG_NOSIGNAL);
    return count >= 0 || errno == EAGAIN;
  }

 private:
  std::string nextMessage(const std::string& request, Random& random) {
    switch (manner_) {
      case Manner::Garbage: {
        std::string garbage(static_cast<std::size_t>(1 + random.below(2000)), '\0');
        for (char& byte : garbage) byte = static_cast<char>(random.below(256));
        return garbage;
      }
      case Manner::Endless:
        return std::string(kBlock, 'x') + ":";
      case Manner::Silent:
        return "Connecting from: nowhere";
      case Manner::Flood:
        return random.below(2) == 0 ? request : ":";
      default:
        return request;
    }
  }

  milliseconds pause(Random& random) const {
    switch (manner_) {
      case Manner::Endless:
        return milliseconds(1);
      case Manner::Flood:
        return milliseconds(random.below(5));
      case Manner::Silent:
        return milliseconds(3600000);
      default:
        return milliseconds(100 + random.below(200));
    }
  }

  Manner manner_;
  bool stays_;
  sockaddr ownAddress_;
  int descriptor_ = -1;
  bool isConnected_ = false;
  Clock::time_point goesAt_;
  Clock::time_point readsAt_;
  Clock::time_point writesAt_;
};

std::vector<Caller> makeCallers() {
  std::vector<Caller> callers;
  for (int i = 0; i < HostileCallers::kStaying + HostileCallers::kTrying; ++i) {
    constexpr int kAddresses = 200;
    callers.emplace_back(static_cast<Manner>(i % kManners), i < HostileCallers::kStaying,
                         static_cast<std::uint32_t>(1 + i % kAddresses));
  }
  return callers;
}

}  // namespace

HostileCallers::HostileCallers(std::uint16_t port, const char* largeList)
    : thread_([this, port, largeList] { run(port, largeList); }) {}

HostileCallers::~HostileCallers() {
  stop();
}

void HostileCallers::stop() {
  mustStop_ = true;
  if (thread_.joinable()) thread_.join();
}

void HostileCallers::run(std::uint16_t port, const char* largeList) {
  const sockaddr server = loopbackAddress(1, port);
  const std::string request = std::string("GetList: ") + largeList;
  Random random;
  std::vector<Caller> callers = makeCallers();
  std::vector<pollfd> polled(callers.size());
  while (!mustStop_) {
    const Clock::time_point now = Clock::now();
    for (std::size_t i = 0; i < callers.size(); ++i) {
      Caller& caller = callers[i];
      if (caller.isOpen() && caller.mustGo(now)) caller.end(random);
      if (!caller.isOpen()) {
        caller.call(server, random);
        ++begun_;
      }
      short events = 0;
      if (!caller.isConnected() || caller.wantsToWrite(now)) events |= POLLOUT;
      if (caller.isConnected() && caller.wantsToRead(now)) events |= POLLIN;
      polled[i] = {caller.descriptor(), events, 0};
    }
    ::poll(polled.data(), polled.size(), kPollMilliseconds);
    for (std::size_t i = 0; i < callers.size(); ++i) {
      Caller& caller = callers[i];
      const short happened = polled[i].revents;
      if (happened == 0) continue;
      bool goesOn = (happened & (POLLERR | POLLHUP | POLLNVAL)) == 0;
      if (goesOn && !caller.isConnected()) {
        goesOn = caller.becomesConnected();
        if (goesOn) ++connected_;
      }
      if (goesOn && (happened & POLLIN) != 0) {
        const ssize_t count = caller.read(now);
        goesOn = count >= 0;
        if (count > 0) received_ += count;
      }
      if (goesOn && (happened & POLLOUT) != 0) goesOn = caller.write(now, request, random);
      if (!goesOn) caller.end(random);
    }
  }
  for (Caller& caller : callers) caller.end(random);
}

}  // namespace quorvin::test
