#include "index/system_call_watch.h"

#include <cstdarg>
#include <cstddef>
#include <fcntl.h>
#include <sys/types.h>

namespace quorvin::test {

std::function<void(const std::string& moment)>& systemCallWatcher() {
  static std::function<void(const std::string&)> watcher;
  return watcher;
}

namespace {

void notice(const char* moment) {
  if (systemCallWatcher()) systemCallWatcher()(moment);
}

template <typename Call>
auto watched(const char* name, Call call) {
  notice((std::string("before ") + name).c_str());
  const auto result = call();
  notice((std::string("after ") + name).c_str());
  return result;
}

}  // namespace
}  // namespace quorvin::test

// The names that the linker's option --wrap asks for: "__wrap_" is called in place of a function, and
// "__real_" is that function itself.
extern "C" {

int __real_open(const char* path, int flags, ...);
ssize_t __real_write(int file, const void* bytes, std::size_t count);
int __real_fsync(int file);
int __real_close(int file);
int __real_rename(const char* from, const char* to);

int __wrap_open(const char* path, int flags, ...);
ssize_t __wrap_write(int file, const void* bytes, std::size_t count);
int __wrap_fsync(int file);
int __wrap_close(int file);
int __wrap_rename(const char* from, const char* to);

int __wrap_open(const char* path, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    std::va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  return quorvin::test::watched("open", [&] { return __real_open(path, flags, mode); });
}

ssize_t __wrap_write(int file, const void* bytes, std::size_t count) {
  return quorvin::test::watched("write", [&]() -> ssize_t {
    if (!quorvin::test::systemCallWatcher() || count < 2) return __real_write(file, bytes, count);
    const ssize_t half = __real_write(file, bytes, count / 2);
    quorvin::test::notice("half-way through write");
    if (half < 0) return half;
    const auto done = static_cast<std::size_t>(half);
    const ssize_t rest = __real_write(file, static_cast<const char*>(bytes) + done, count - done);
    return rest < 0 ? half : half + rest;
  });
}

int __wrap_fsync(int file) {
  return quorvin::test::watched("fsync", [&] { return __real_fsync(file); });
}

int __wrap_close(int file) {
  return quorvin::test::watched("close", [&] { return __real_close(file); });
}

int __wrap_rename(const char* from, const char* to) {
  return quorvin::test::watched("rename", [&] { return __real_rename(from, to); });
}

}  // extern "C"
