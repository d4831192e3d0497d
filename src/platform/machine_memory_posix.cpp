// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/machine_memory.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <unistd.h>

namespace quorvin {

std::int64_t machineMemory() {
  const long pages = ::sysconf(_SC_PHYS_PAGES);
  const long pageSize = ::sysconf(_SC_PAGE_SIZE);
  constexpr std::int64_t kUnknown = std::int64_t{1} << 30;
  return pages > 0 && pageSize > 0 ? std::int64_t{pages} * pageSize : kUnknown;
}

void giveBackFreedMemory() {
#ifdef __GLIBC__
  ::malloc_trim(0);
#endif
}

void shareFreedMemoryAmongThreads() {
#ifdef __GLIBC__
  constexpr int kOfTheFirstThreadAndOfTheOthers = 2;
  ::mallopt(M_ARENA_MAX, kOfTheFirstThreadAndOfTheOthers);
#endif
}

}  // namespace quorvin
