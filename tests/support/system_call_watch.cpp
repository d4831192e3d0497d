// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/system_call_watch.h"

#include "support/folder_call_watch.h"

#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <fcntl.h>
#include <sys/types.h>

namespace quorvin::test {

std::function<void(const std::string& moment)>& systemCallWatcher() {
  static std::function<void(const std::string&)> watcher;
  return watcher;
}

std::function<int(const std::string& call)>& systemCallFault() {
  static std::function<int(const std::string&)> fault;
  return fault;
}

namespace {

void notice(const char* moment) {
  if (systemCallWatcher()) systemCallWatcher()(moment);
}

bool isSpoilt(const char* name) {
  const int error = systemCallFault() ? systemCallFault()(name) : 0;
  if (error != 0) errno = error;
  return error != 0;
}

template <typename Call>
auto noticed(const char* name, Call call) {
  notice((std::string("before ") + name).c_str());
  const auto result = call();
  const int error = errno;
  notice((std::string("after ") + name).c_str());
  errno = error;
  return result;
}

template <typename Call>
auto watched(const char* name, Call call) -> decltype(call()) {
  if (isSpoilt(name)) return -1;
  return noticed(name, call);
}

/// In two halves, with a moment between them. `write` takes the bytes from an offset on, and their number.
template <typename Write>
ssize_t watchedWrite(const char* name, std::size_t count, Write write) {
  return watched(name, [&]() -> ssize_t {
    if (!systemCallWatcher() || count < 2) return write(0, count);
    const ssize_t half = write(0, count / 2);
    notice((std::string("half-way through ") + name).c_str());
    if (half < 0) return half;
    const auto done = static_cast<std::size_t>(half);
    const ssize_t rest = write(done, count - done);
    return rest < 0 ? half : half + rest;
  });
}

}  // namespace
}  // namespace quorvin::test

// The names that the linker's option --wrap asks for: "__wrap_" is called in place of a function, and
// "__real_" is that function itself.
extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_openat(int folder, const char* path, int flags, ...);
ssize_t __real_write(int file, const void* bytes, std::size_t count);
ssize_t __real_pwrite(int file, const void* bytes, std::size_t count, off_t position);
int __real_fchmod(int file, mode_t mode);
int __real_fsync(int file);
int __real_close(int file);
int __real_renameat(int fromFolder, const char* from, int toFolder, const char* to);
int __real_renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags);
int __real_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags);
int __real_unlinkat(int folder, const char* path, int flags);

int __wrap_open(const char* path, int flags, ...);
int __wrap_openat(int folder, const char* path, int flags, ...);
ssize_t __wrap_write(int file, const void* bytes, std::size_t count);
ssize_t __wrap_pwrite(int file, const void* bytes, std::size_t count, off_t position);
int __wrap_fchmod(int file, mode_t mode);
int __wrap_fsync(int file);
int __wrap_close(int file);
int __wrap_renameat(int fromFolder, const char* from, int toFolder, const char* to);
int __wrap_renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags);
int __wrap_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags);
int __wrap_unlinkat(int folder, const char* path, int flags);

using quorvin::test::watched;
using quorvin::test::watchedWrite;

int __wrap_open(const char* path, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    std::va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  return watched("open", [&] { return __real_open(path, flags, mode); });
}

int __wrap_openat(int folder, const char* path, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    std::va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  if ((flags & O_DIRECTORY) != 0) {
    using quorvin::test::FolderCall;
    if (const int error = quorvin::test::watchedFolderCall(FolderCall::Open, folder, path)) {
      errno = error;
      return -1;
    }
  }
  return watched("openat", [&] { return __real_openat(folder, path, flags, mode); });
}

ssize_t __wrap_write(int file, const void* bytes, std::size_t count) {
  return watchedWrite("write", count, [&](std::size_t from, std::size_t length) {
    return __real_write(file, static_cast<const char*>(bytes) + from, length);
  });
}

ssize_t __wrap_pwrite(int file, const void* bytes, std::size_t count, off_t position) {
  return watchedWrite("pwrite", count, [&](std::size_t from, std::size_t length) {
    return __real_pwrite(file, static_cast<const char*>(bytes) + from, length,
                         position + static_cast<off_t>(from));
  });
}

int __wrap_fchmod(int file, mode_t mode) {
  return watched("fchmod", [&] { return __real_fchmod(file, mode); });
}

int __wrap_fsync(int file) {
  return watched("fsync", [&] { return __real_fsync(file); });
}

int __wrap_close(int file) {
  if (quorvin::test::isSpoilt("close")) {
    const int error = errno;
    __real_close(file);
    errno = error;
    return -1;
  }
  return quorvin::test::noticed("close", [&] { return __real_close(file); });
}

int __wrap_renameat(int fromFolder, const char* from, int toFolder, const char* to) {
  return watched("renameat", [&] { return __real_renameat(fromFolder, from, toFolder, to); });
}

int __wrap_renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
  return watched("renameat2", [&] { return __real_renameat2(fromFolder, from, toFolder, to, flags); });
}

int __wrap_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
  return watched("linkat", [&] { return __real_linkat(fromFolder, from, toFolder, to, flags); });
}

int __wrap_unlinkat(int folder, const char* path, int flags) {
  return watched("unlinkat", [&] { return __real_unlinkat(folder, path, flags); });
}

}  // extern "C"
