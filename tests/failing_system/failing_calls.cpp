// SPDX-License-Identifier: GPL-2.0-or-later

// A library that is loaded before all others (LD_PRELOAD) and makes one chosen system call of a program fail
// or never return.
//
//   QUORVIN_FAIL_CALL    which kind of call: open, read, write, fsync, rename, mkdir, stat, list, socket,
//                        allocate
//   QUORVIN_FAIL_AT      which one of them, counted from 1; 0 only counts
//   QUORVIN_FAIL_BELOW   only calls on files below this folder count, which keeps out those of the system's
//                        libraries (sockets count wherever they lead). Allocations count from the first such
//                        call on.
//   QUORVIN_FAIL_ABOVE   only allocations of at least so many bytes count
//   QUORVIN_FAIL_HOW     the number of the error (errno); "short" writes half of what was asked for, and the
//                        next write of that file fails for want of room; "kill" ends the process at once;
//                        "hang" is a drive that does not answer: the call never returns
//   QUORVIN_FAIL_REPORT  a file that is made when the call fails, so that whoever counts up knows when to
//                        stop
//
// It must not allocate: it stands in for the allocator itself.
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

constexpr int kMostDescriptors = 4096;

struct Plan {
  std::string_view call;
  std::string_view below;
  std::string_view how;
  const char* report = nullptr;
  long at = 0;
  std::size_t above = 0;
};

std::string_view environmentText(const char* name) {
  const char* text = getenv(name);
  return text ? std::string_view(text) : std::string_view();
}

const Plan& plan() {
  static const Plan plan = [] {
    Plan read;
    read.call = environmentText("QUORVIN_FAIL_CALL");
    read.below = environmentText("QUORVIN_FAIL_BELOW");
    read.how = environmentText("QUORVIN_FAIL_HOW");
    read.report = getenv("QUORVIN_FAIL_REPORT");
    const char* at = getenv("QUORVIN_FAIL_AT");
    read.at = at ? strtol(at, nullptr, 10) : 0;
    const char* above = getenv("QUORVIN_FAIL_ABOVE");
    read.above = above ? strtoul(above, nullptr, 10) : 0;
    return read;
  }();
  return plan;
}

std::atomic<long> counted = 0;
std::atomic<bool> armed = false;
enum class Kind : char { Foreign, File, Socket };
std::array<std::atomic<Kind>, kMostDescriptors> kinds;
std::atomic<int> fullDescriptor = -1;

void reportFailure() {
  if (!plan().report) return;
  const long file = syscall(SYS_openat, AT_FDCWD, plan().report, O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  if (file >= 0) syscall(SYS_close, file);
}

/// Whether this call is the one that fails; errno is set then.
bool fails(std::string_view call) {
  if (plan().call != call) return false;
  if (++counted != plan().at) return false;
  reportFailure();
  if (plan().how == "kill") {
    kill(getpid(), SIGKILL);
    pause();
  }
  while (plan().how == "hang") pause();
  errno = plan().how == "short" ? ENOSPC : atoi(plan().how.data());
  return true;
}

[[maybe_unused]] bool failsToAllocate(std::size_t size) {
  return armed && size >= plan().above && fails("allocate");
}

bool isBelow(const char* path) {
  if (!path) return false;
  if (path[0] == '/') return std::string_view(path).substr(0, plan().below.size()) == plan().below;
  std::array<char, 4096> folder;
  if (syscall(SYS_getcwd, folder.data(), folder.size()) < 0) return false;
  return std::string_view(folder.data()).substr(0, plan().below.size() - 1) ==
         plan().below.substr(0, plan().below.size() - 1);
}

Kind kindOf(int descriptor) {
  const bool known = descriptor >= 0 && descriptor < kMostDescriptors;
  return known ? kinds[static_cast<std::size_t>(descriptor)].load() : Kind::Foreign;
}

bool isOurs(int descriptor) {
  return kindOf(descriptor) == Kind::File;
}

bool isSocket(int descriptor) {
  return kindOf(descriptor) == Kind::Socket;
}

void note(int descriptor, Kind kind) {
  if (descriptor >= 0 && descriptor < kMostDescriptors) kinds[static_cast<std::size_t>(descriptor)] = kind;
}

bool isOurs(int folder, const char* path) {
  const bool relative = path && path[0] != '/' && folder != AT_FDCWD;
  const bool is = relative ? isOurs(folder) : isBelow(path);
  if (is) armed = true;
  return is;
}

template <typename Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// `rest` holds the mode where the flags say that there is one.
int openAt(int folder, const char* path, int flags, va_list rest) {
  const bool makes = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
  const mode_t mode = makes ? va_arg(rest, mode_t) : 0;
  const bool is = isOurs(folder, path);
  if (is && fails("open")) return -1;
  const int descriptor = static_cast<int>(syscall(SYS_openat, folder, path, flags, mode));
  note(descriptor, is ? Kind::File : Kind::Foreign);
  return descriptor;
}

/// How many of `size` bytes are to be written: all, none (errno is set), or half of them.
ssize_t allowed(int descriptor, std::size_t size) {
  if (descriptor == fullDescriptor) {
    errno = ENOSPC;
    return -1;
  }
  if (!isOurs(descriptor) || !fails("write")) return static_cast<ssize_t>(size);
  if (plan().how != "short" || size < 2) return -1;
  fullDescriptor = descriptor;
  return static_cast<ssize_t>(size / 2);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const int descriptor = openAt(AT_FDCWD, path, flags, rest);
  va_end(rest);
  return descriptor;
}
int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const int descriptor = openAt(AT_FDCWD, path, flags, rest);
  va_end(rest);
  return descriptor;
}
int openat(int folder, const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const int descriptor = openAt(folder, path, flags, rest);
  va_end(rest);
  return descriptor;
}
int openat64(int folder, const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const int descriptor = openAt(folder, path, flags, rest);
  va_end(rest);
  return descriptor;
}
int close(int descriptor) {
  note(descriptor, Kind::Foreign);
  int expected = descriptor;
  fullDescriptor.compare_exchange_strong(expected, -1);
  return static_cast<int>(syscall(SYS_close, descriptor));
}

ssize_t read(int descriptor, void* bytes, size_t size) {
  if (isOurs(descriptor) && fails("read")) return -1;
  if (isSocket(descriptor) && fails("socket")) return -1;
  return syscall(SYS_read, descriptor, bytes, size);
}
ssize_t pread(int descriptor, void* bytes, size_t size, off_t offset) {
  if (isOurs(descriptor) && fails("read")) return -1;
  return syscall(SYS_pread64, descriptor, bytes, size, offset);
}
ssize_t pread64(int descriptor, void* bytes, size_t size, off_t offset) {
  return pread(descriptor, bytes, size, offset);
}

ssize_t write(int descriptor, const void* bytes, size_t size) {
  if (isSocket(descriptor) && fails("socket")) return -1;
  const ssize_t most = allowed(descriptor, size);
  return most < 0 ? -1 : syscall(SYS_write, descriptor, bytes, most);
}
ssize_t pwrite(int descriptor, const void* bytes, size_t size, off_t offset) {
  const ssize_t most = allowed(descriptor, size);
  return most < 0 ? -1 : syscall(SYS_pwrite64, descriptor, bytes, most, offset);
}
ssize_t pwrite64(int descriptor, const void* bytes, size_t size, off_t offset) {
  return pwrite(descriptor, bytes, size, offset);
}

int fsync(int descriptor) {
  if (isOurs(descriptor) && fails("fsync")) return -1;
  return static_cast<int>(syscall(SYS_fsync, descriptor));
}
int fdatasync(int descriptor) {
  if (isOurs(descriptor) && fails("fsync")) return -1;
  return static_cast<int>(syscall(SYS_fdatasync, descriptor));
}
int ftruncate(int descriptor, off_t size) {
  if (isOurs(descriptor) && fails("write")) return -1;
  return static_cast<int>(syscall(SYS_ftruncate, descriptor, size));
}
int ftruncate64(int descriptor, off_t size) {
  return ftruncate(descriptor, size);
}

int rename(const char* from, const char* to) {
  if (isOurs(AT_FDCWD, to) && fails("rename")) return -1;
  return static_cast<int>(syscall(SYS_rename, from, to));
}
int renameat(int fromFolder, const char* from, int toFolder, const char* to) {
  if (isOurs(toFolder, to) && fails("rename")) return -1;
  return static_cast<int>(syscall(SYS_renameat, fromFolder, from, toFolder, to));
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
  if (isOurs(toFolder, to) && fails("rename")) return -1;
  return static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}
int link(const char* from, const char* to) {
  if (isOurs(AT_FDCWD, to) && fails("rename")) return -1;
  return static_cast<int>(syscall(SYS_link, from, to));
}
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
  if (isOurs(toFolder, to) && fails("rename")) return -1;
  return static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}
int unlink(const char* path) {
  if (isOurs(AT_FDCWD, path) && fails("rename")) return -1;
  return static_cast<int>(syscall(SYS_unlink, path));
}
int unlinkat(int folder, const char* path, int flags) {
  if (isOurs(folder, path) && fails("rename")) return -1;
  return static_cast<int>(syscall(SYS_unlinkat, folder, path, flags));
}

int mkdir(const char* path, mode_t mode) {
  if (isOurs(AT_FDCWD, path) && fails("mkdir")) return -1;
  return static_cast<int>(syscall(SYS_mkdir, path, mode));
}
int mkdirat(int folder, const char* path, mode_t mode) {
  if (isOurs(folder, path) && fails("mkdir")) return -1;
  return static_cast<int>(syscall(SYS_mkdirat, folder, path, mode));
}

int stat(const char* path, struct stat* found) {
  if (isOurs(AT_FDCWD, path) && fails("stat")) return -1;
  return next<int(const char*, struct stat*)>("stat")(path, found);
}
int stat64(const char* path, struct stat64* found) {
  if (isOurs(AT_FDCWD, path) && fails("stat")) return -1;
  return next<int(const char*, struct stat64*)>("stat64")(path, found);
}
int lstat(const char* path, struct stat* found) {
  if (isOurs(AT_FDCWD, path) && fails("stat")) return -1;
  return next<int(const char*, struct stat*)>("lstat")(path, found);
}
int lstat64(const char* path, struct stat64* found) {
  if (isOurs(AT_FDCWD, path) && fails("stat")) return -1;
  return next<int(const char*, struct stat64*)>("lstat64")(path, found);
}
int fstat(int descriptor, struct stat* found) {
  if (isOurs(descriptor) && fails("stat")) return -1;
  return next<int(int, struct stat*)>("fstat")(descriptor, found);
}
int fstat64(int descriptor, struct stat64* found) {
  if (isOurs(descriptor) && fails("stat")) return -1;
  return next<int(int, struct stat64*)>("fstat64")(descriptor, found);
}
int fstatat(int folder, const char* path, struct stat* found, int flags) {
  if (isOurs(folder, path) && fails("stat")) return -1;
  return next<int(int, const char*, struct stat*, int)>("fstatat")(folder, path, found, flags);
}
int fstatat64(int folder, const char* path, struct stat64* found, int flags) {
  if (isOurs(folder, path) && fails("stat")) return -1;
  return next<int(int, const char*, struct stat64*, int)>("fstatat64")(folder, path, found, flags);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* found) {
  const bool byDescriptor = !*path;
  if ((byDescriptor ? isOurs(folder) : isOurs(folder, path)) && fails("stat")) return -1;
  return static_cast<int>(syscall(SYS_statx, folder, path, flags, mask, found));
}

ssize_t getdents64(int descriptor, void* entries, size_t size) {
  if (isOurs(descriptor) && fails("list")) return -1;
  return syscall(SYS_getdents64, descriptor, entries, size);
}
DIR* opendir(const char* path) {
  if (isOurs(AT_FDCWD, path) && fails("list")) return nullptr;
  return next<DIR*(const char*)>("opendir")(path);
}

int socket(int family, int type, int protocol) {
  if (family == AF_UNIX) return static_cast<int>(syscall(SYS_socket, family, type, protocol));
  if (fails("socket")) return -1;
  const int descriptor = static_cast<int>(syscall(SYS_socket, family, type, protocol));
  note(descriptor, Kind::Socket);
  return descriptor;
}
int connect(int descriptor, const struct sockaddr* address, socklen_t size) {
  if (isSocket(descriptor) && fails("socket")) return -1;
  return static_cast<int>(syscall(SYS_connect, descriptor, address, size));
}
int bind(int descriptor, const struct sockaddr* address, socklen_t size) {
  if (isSocket(descriptor) && fails("socket")) return -1;
  return static_cast<int>(syscall(SYS_bind, descriptor, address, size));
}
int listen(int descriptor, int waiting) {
  if (isSocket(descriptor) && fails("socket")) return -1;
  return static_cast<int>(syscall(SYS_listen, descriptor, waiting));
}
int accept4(int listener, struct sockaddr* address, socklen_t* size, int flags) {
  if (isSocket(listener) && fails("socket")) return -1;
  const int descriptor = static_cast<int>(syscall(SYS_accept4, listener, address, size, flags));
  note(descriptor, Kind::Socket);
  return descriptor;
}
int accept(int listener, struct sockaddr* address, socklen_t* size) {
  return accept4(listener, address, size, 0);
}
ssize_t send(int descriptor, const void* bytes, size_t size, int flags) {
  if (isSocket(descriptor) && fails("socket")) return -1;
  return syscall(SYS_sendto, descriptor, bytes, size, flags, nullptr, 0);
}
ssize_t recv(int descriptor, void* bytes, size_t size, int flags) {
  if (isSocket(descriptor) && fails("socket")) return -1;
  return syscall(SYS_recvfrom, descriptor, bytes, size, flags, nullptr, nullptr);
}
ssize_t sendmsg(int descriptor, const struct msghdr* message, int flags) {
  if (isSocket(descriptor) && fails("socket")) return -1;
  return syscall(SYS_sendmsg, descriptor, message, flags);
}
ssize_t recvmsg(int descriptor, struct msghdr* message, int flags) {
  if (isSocket(descriptor) && fails("socket")) return -1;
  return syscall(SYS_recvmsg, descriptor, message, flags);
}

#ifndef QUORVIN_ALLOCATIONS_DO_NOT_FAIL
void* malloc(size_t size) {
  if (failsToAllocate(size)) return nullptr;
  return __libc_malloc(size);
}
void* calloc(size_t count, size_t size) {
  if (failsToAllocate(count * size)) return nullptr;
  return __libc_calloc(count, size);
}
void* realloc(void* block, size_t size) {
  if (failsToAllocate(size)) return nullptr;
  return __libc_realloc(block, size);
}
#endif

}  // extern "C"
