#include "metafile/metafile_limits.h"

#include <csignal>
#include <sys/resource.h>

namespace quorvin {

namespace {

constexpr rlim_t kMemory = 512ULL * 1024 * 1024;
constexpr rlim_t kProcessorSeconds = 5;
constexpr rlim_t kOpenFiles = 64;

bool limit(decltype(RLIMIT_AS) resource, rlim_t most) {
  rlimit before{};
  if (getrlimit(resource, &before) != 0) return false;
  // A limit that is lower already stays.
  const rlim_t wanted = before.rlim_max == RLIM_INFINITY || before.rlim_max > most ? most : before.rlim_max;
  const rlimit limits{wanted, wanted};
  return setrlimit(resource, &limits) == 0;
}

bool limitMemory() {
#if defined(__SANITIZE_ADDRESS__)
  // The address sanitizer reserves terabytes that it never uses.
  return true;
#else
  return limit(RLIMIT_AS, kMemory);
#endif
}

}  // namespace

bool limitThisProcess() {
  // A write that is refused for its size is an error like others, not the end.
  std::signal(SIGXFSZ, SIG_IGN);
  return limitMemory() && limit(RLIMIT_CPU, kProcessorSeconds) && limit(RLIMIT_NOFILE, kOpenFiles) &&
         limit(RLIMIT_FSIZE, 0) && limit(RLIMIT_CORE, 0);
}

}  // namespace quorvin
