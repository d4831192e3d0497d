// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/descriptor.h"
#include "files/file_reader.h"
#include "texts/texts.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {

namespace {

struct OpenedFile {
  int descriptor;
  std::int64_t size;
};

/// Opens a regular file; anything else is a fault.
OpenedFile openForReading(const QString& path) {
  // Not blocking, so that a pipe without a writer is refused below instead of holding the program up.
  const int descriptor = ::open(encodedPath(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) throw faultOfSystemError(errno, path);
  struct stat status {};
  const bool known = ::fstat(descriptor, &status) == 0;
  if (known && S_ISREG(status.st_mode)) return {descriptor, status.st_size};
  const int error = known ? EISDIR : errno;
  ::close(descriptor);
  throw faultOfSystemError(error, path);
}

}  // namespace

SequentialFile::SequentialFile(const QString& path) : path_(path) {
  const OpenedFile opened = openForReading(path);
  descriptor_ = opened.descriptor;
  size_ = opened.size;
#ifdef POSIX_FADV_SEQUENTIAL
  ::posix_fadvise(descriptor_, 0, 0, POSIX_FADV_SEQUENTIAL);
#endif
}

SequentialFile::~SequentialFile() {
  ::close(descriptor_);
}

std::size_t SequentialFile::read(std::span<char> buffer) {
  if (buffer.empty()) return 0;
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const ssize_t count = ::read(descriptor_, buffer.data() + filled, buffer.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw faultOfSystemError(errno, path_);
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
  }
  position_ += static_cast<std::int64_t>(filled);
  if (filled == 0 && position_ < size_) {
    throw RuntimeFault(FaultNumber::InputPastEnd, describe(FaultNumber::InputPastEnd) + QStringLiteral(": ") +
                                                      Texts::tr("%1 was cut while it was read").arg(path_));
  }
  return filled;
}

QByteArray contentOfFile(const QString& path) {
  SequentialFile file(path);
  QByteArray content;
  std::array<char, 16 * 1024> chunk;
  while (const std::size_t count = file.read(chunk)) {
    content.append(chunk.data(), static_cast<qsizetype>(count));
  }
  return content;
}

RandomAccessFile::RandomAccessFile(const QString& path) : path_(path) {
  const OpenedFile opened = openForReading(path);
  descriptor_ = opened.descriptor;
  size_ = opened.size;
}

RandomAccessFile::~RandomAccessFile() {
  ::close(descriptor_);
}

bool RandomAccessFile::isOneOfMany() const {
  // The system gives out the lowest number that is free.
  constexpr int kMany = 256;
  return descriptor_ >= kMany;
}

RandomAccessFile::Writing RandomAccessFile::lastWriting() const {
  struct stat status {};
  if (::fstat(descriptor_, &status) != 0) throw faultOfSystemError(errno, path_);
  return {status.st_size, std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec};
}

void RandomAccessFile::read(std::int64_t position, std::span<std::byte> buffer) const {
  while (!buffer.empty()) {
    const ssize_t count = ::pread(descriptor_, buffer.data(), buffer.size(), position);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw faultOfSystemError(errno, path_);
    if (count == 0) {
      throw RuntimeFault(FaultNumber::InputPastEnd,
                         describe(FaultNumber::InputPastEnd) + QStringLiteral(": ") + path_);
    }
    position += count;
    buffer = buffer.subspan(static_cast<std::size_t>(count));
  }
}

QByteArray RandomAccessFile::read(std::int64_t position, std::int64_t count) const {
  QByteArray bytes(static_cast<qsizetype>(count), Qt::Uninitialized);
  read(position, std::as_writable_bytes(std::span(bytes.data(), static_cast<std::size_t>(count))));
  return bytes;
}

MappedFile::MappedFile(const QString& path, std::int64_t offset, std::size_t size) : size_(size) {
  const auto [descriptor, fileSize] = openForReading(path);
  const bool longEnough = fileSize >= offset + static_cast<std::int64_t>(size);
  void* data = longEnough ? ::mmap(nullptr, size, PROT_READ, MAP_SHARED, descriptor, offset) : MAP_FAILED;
  const int error = longEnough ? errno : EIO;
  ::close(descriptor);
  if (data == MAP_FAILED) throw faultOfSystemError(error, path);
  data_ = static_cast<const std::byte*>(data);
}

MappedFile::~MappedFile() {
  ::munmap(const_cast<std::byte*>(data_), size_);
}

namespace {

// A signal handler can reach nothing but a variable like this one.
const char* sentenceOnCut = nullptr;

extern "C" void endWithSentence(int) {
  // Whether or not the sentence can be read by anybody, this is the end.
  static_cast<void>(!::write(STDERR_FILENO, sentenceOnCut, std::strlen(sentenceOnCut)));
  ::_exit(2);
}

}  // namespace

void explainCutMapping(const char* sentence) {
  sentenceOnCut = sentence;
  std::signal(SIGBUS, endWithSentence);
}

}  // namespace quorvin
