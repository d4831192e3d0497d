// SPDX-License-Identifier: GPL-2.0-or-later

// A library that is loaded before all others (LD_PRELOAD) and makes each look-up of a file take a millisecond
// more, as on a share far away. QUORVIN_DELAY sets other microseconds.
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

void wait() {
  static const long microseconds = [] {
    const char* delay = getenv("QUORVIN_DELAY");
    return delay ? strtol(delay, nullptr, 10) : 1000;
  }();
  const timespec time{microseconds / 1'000'000, microseconds % 1'000'000 * 1000};
  nanosleep(&time, nullptr);
}

int lookUp(int folder, const char* path, struct stat* found, int flags) {
  wait();
  return static_cast<int>(syscall(SYS_newfstatat, folder, path, found, flags));
}

}  // namespace

extern "C" {

int fstatat(int folder, const char* path, struct stat* found, int flags) {
  return lookUp(folder, path, found, flags);
}
int fstatat64(int folder, const char* path, struct stat64* found, int flags) {
  return lookUp(folder, path, reinterpret_cast<struct stat*>(found), flags);
}
int stat(const char* path, struct stat* found) {
  return lookUp(AT_FDCWD, path, found, 0);
}
int stat64(const char* path, struct stat64* found) {
  return lookUp(AT_FDCWD, path, reinterpret_cast<struct stat*>(found), 0);
}
int lstat(const char* path, struct stat* found) {
  return lookUp(AT_FDCWD, path, found, AT_SYMLINK_NOFOLLOW);
}
int lstat64(const char* path, struct stat64* found) {
  return lookUp(AT_FDCWD, path, reinterpret_cast<struct stat*>(found), AT_SYMLINK_NOFOLLOW);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* found) {
  wait();
  return static_cast<int>(syscall(SYS_statx, folder, path, flags, mask, found));
}

}  // extern "C"
