// SPDX-License-Identifier: GPL-2.0-or-later

// How many files and connections the test's process may have open.
#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace quorvin::test {

/// As many as the system lets the process have.
inline void allowManyDescriptors() {
  rlimit limit{};
  ::getrlimit(RLIMIT_NOFILE, &limit);
  limit.rlim_cur = limit.rlim_max;
  ::setrlimit(RLIMIT_NOFILE, &limit);
}

/// The lowest descriptor that is free.
inline rlim_t nextDescriptor() {
  const int next = ::open("/dev/null", O_RDONLY);
  ::close(next);
  return static_cast<rlim_t>(next);
}

/// Allows only descriptors below `most` as long as the object lives.
class FewDescriptors {
 public:
  explicit FewDescriptors(rlim_t most) {
    ::getrlimit(RLIMIT_NOFILE, &before_);
    const rlimit few{most, before_.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &few);
  }
  ~FewDescriptors() { ::setrlimit(RLIMIT_NOFILE, &before_); }
  FewDescriptors(const FewDescriptors&) = delete;
  FewDescriptors& operator=(const FewDescriptors&) = delete;

 private:
  rlimit before_{};
};

}  // namespace quorvin::test
