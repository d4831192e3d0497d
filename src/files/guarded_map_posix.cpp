// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/guarded_map.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <sys/mman.h>

namespace quorvin {

/// Where a map is. The handler reads it at any time, without locks: `begin` is set last and cleared first,
/// and is 0 where there is none. A map is removed only when nobody looks at it any more, so that the place of
/// the one that the handler is called for stays as it is.
struct GuardedPlace {
  std::atomic<bool> isTaken;
  std::atomic<std::uintptr_t> begin;
  std::atomic<std::size_t> size;
  std::atomic<bool> isLost;
};

namespace {

// A handler may wait for nobody.
static_assert(std::atomic<std::uintptr_t>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

// A signal handler can reach nothing but variables like these.
constinit std::array<GuardedPlace, GuardedMap::kMostMaps> places{};
struct sigaction handlingBefore {};

GuardedPlace* placeOf(std::uintptr_t address) {
  for (GuardedPlace& place : places) {
    const std::uintptr_t begin = place.begin;
    if (begin == 0 || address < begin || address - begin >= place.size) continue;
    // Else the place has been given to another map between the two looks.
    if (place.begin == begin) return &place;
  }
  return nullptr;
}

/// Puts zeros in the place of the whole map: what could not be had once is not trusted any more, and one call
/// is enough however much is gone.
bool lose(GuardedPlace& place) {
  // First, for other threads that look at the same map.
  place.isLost = true;
  constexpr int kZeros = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_FIXED;
  void* data = reinterpret_cast<void*>(place.begin.load());
  return ::mmap(data, place.size, PROT_READ, kZeros, -1, 0) != MAP_FAILED;
}

void passOn(int signal, siginfo_t* info, void* context) {
  if ((handlingBefore.sa_flags & SA_SIGINFO) != 0) return handlingBefore.sa_sigaction(signal, info, context);
  const bool isIgnored = handlingBefore.sa_handler == SIG_IGN;
  if (!isIgnored && handlingBefore.sa_handler != SIG_DFL) return handlingBefore.sa_handler(signal);
  const bool isSent = info->si_code <= 0;
  if (isSent && isIgnored) return;
  // What the processor has complained about it complains about again when the handler returns, and the
  // program ends where it would have ended.
  ::sigaction(signal, &handlingBefore, nullptr);
  if (isSent) ::raise(signal);
}

extern "C" void guardMaps(int signal, siginfo_t* info, void* context) {
  const int error = errno;
  const bool isSent = info->si_code <= 0;
  GuardedPlace* place = isSent ? nullptr : placeOf(reinterpret_cast<std::uintptr_t>(info->si_addr));
  if (place == nullptr || !lose(*place)) passOn(signal, info, context);
  errno = error;
}

void takeOverSignal() {
  // Known before the handler can be called.
  ::sigaction(SIGBUS, nullptr, &handlingBefore);
  struct sigaction handling {};
  handling.sa_sigaction = guardMaps;
  handling.sa_flags = SA_SIGINFO | SA_ONSTACK;
  ::sigemptyset(&handling.sa_mask);
  ::sigaction(SIGBUS, &handling, nullptr);
}

GuardedPlace* freePlace() {
  for (GuardedPlace& place : places) {
    if (!place.isTaken.exchange(true)) return &place;
  }
  return nullptr;
}

}  // namespace

GuardedMap::GuardedMap(const RandomAccessFile& file, std::int64_t offset, std::size_t size) : size_(size) {
  [[maybe_unused]] static const bool isTakenOver = (takeOverSignal(), true);
  if (file.lastWriting().size < offset + static_cast<std::int64_t>(size)) {
    throw faultOfSystemError(EIO, file.path_);
  }
  place_ = freePlace();
  if (place_ == nullptr) throw faultOfSystemError(EMFILE, file.path_);
  void* data = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, file.descriptor_, offset);
  if (data == MAP_FAILED) {
    const int error = errno;
    place_->isTaken = false;
    throw faultOfSystemError(error, file.path_);
  }
  data_ = static_cast<const std::byte*>(data);
  place_->isLost = false;
  place_->size = size;
  place_->begin = reinterpret_cast<std::uintptr_t>(data);
}

GuardedMap::~GuardedMap() {
  place_->begin = 0;
  place_->size = 0;
  ::munmap(const_cast<std::byte*>(data_), size_);
  place_->isTaken = false;
}

bool GuardedMap::isLost() const {
  // The handler runs between two instructions of this thread: what was read before stays before.
  std::atomic_signal_fence(std::memory_order_seq_cst);
  return place_->isLost.load(std::memory_order_relaxed);
}

}  // namespace quorvin
