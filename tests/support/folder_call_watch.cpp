// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/folder_call_watch.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace quorvin::test {

namespace {

std::mutex& watcherMutex() {
  static std::mutex mutex;
  return mutex;
}

std::shared_ptr<const FolderCallWatcher>& currentWatcher() {
  static std::shared_ptr<const FolderCallWatcher> watcher;
  return watcher;
}

void setWatcher(std::shared_ptr<const FolderCallWatcher> watcher) {
  const std::lock_guard lock(watcherMutex());
  currentWatcher() = std::move(watcher);
}

std::string pathOfDescriptor(int descriptor) {
  std::array<char, 4096> path;
  const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
  const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
  return length < 0 ? std::string() : std::string(path.data(), static_cast<std::size_t>(length));
}

}  // namespace

FolderCallWatch::FolderCallWatch(FolderCallWatcher watcher) {
  setWatcher(std::make_shared<const FolderCallWatcher>(std::move(watcher)));
}

FolderCallWatch::~FolderCallWatch() {
  setWatcher(nullptr);
}

int watchedFolderCall(FolderCall::Kind kind, int folder, const char* name) {
  std::shared_ptr<const FolderCallWatcher> watcher;
  {
    const std::lock_guard lock(watcherMutex());
    watcher = currentWatcher();
  }
  if (!watcher) return 0;
  const std::string path = pathOfDescriptor(folder);
  return (*watcher)({kind, name == nullptr ? path : path + '/' + name});
}

}  // namespace quorvin::test

// The names that the linker's option --wrap asks for: "__wrap_" is called in place of a function, and
// "__real_" is that function itself.
extern "C" {

int __real_fstatat(int folder, const char* path, struct stat* found, int flags);
ssize_t __real_getdents64(int folder, void* entries, std::size_t size);

int __wrap_fstatat(int folder, const char* path, struct stat* found, int flags);
ssize_t __wrap_getdents64(int folder, void* entries, std::size_t size);

int __wrap_fstatat(int folder, const char* path, struct stat* found, int flags) {
  using quorvin::test::FolderCall;
  if (const int error = quorvin::test::watchedFolderCall(FolderCall::LookUp, folder, path)) {
    errno = error;
    return -1;
  }
  return __real_fstatat(folder, path, found, flags);
}

ssize_t __wrap_getdents64(int folder, void* entries, std::size_t size) {
  using quorvin::test::FolderCall;
  if (const int error = quorvin::test::watchedFolderCall(FolderCall::Names, folder, nullptr)) {
    errno = error;
    return -1;
  }
  return __real_getdents64(folder, entries, size);
}

}  // extern "C"
