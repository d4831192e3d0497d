// SPDX-License-Identifier: GPL-2.0-or-later

// Writing to a disk that is nearly full.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace quorvin {

/// As long as it lives, no file of this process grows beyond `bytes`: a write that would pass that size is
/// cut short, the next one fails, just as on a disk that fills up.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : signalBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signalBefore_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  using Handler = void (*)(int);
  Handler signalBefore_;
  rlimit before_{};
};

}  // namespace quorvin
