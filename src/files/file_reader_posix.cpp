#include "faults/runtime_fault.h"
#include "files/file_reader.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {

SequentialFile::SequentialFile(const QString& path) : path_(path) {
  // The system would end the path at a NUL and open another file.
  if (path.contains(QChar(u'\0'))) throw faultOfSystemError(EINVAL, path);
  // Not blocking, so that a pipe without a writer is refused below instead of holding the program up.
  descriptor_ = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor_ < 0) throw faultOfSystemError(errno, path);
  struct stat status {};
  const bool known = ::fstat(descriptor_, &status) == 0;
  if (!known || !S_ISREG(status.st_mode)) {
    const int error = known ? EISDIR : errno;
    ::close(descriptor_);
    throw faultOfSystemError(error, path);
  }
  size_ = status.st_size;
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
                                                      path_ + QStringLiteral(" was cut while it was read"));
  }
  return filled;
}

RandomAccessFile::RandomAccessFile(const QString& path) : path_(path) {
  descriptor_ = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (descriptor_ < 0) throw faultOfSystemError(errno, path);
}

RandomAccessFile::~RandomAccessFile() {
  ::close(descriptor_);
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

MappedFile::MappedFile(const QString& path, std::int64_t offset, std::size_t size) : size_(size) {
  const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) throw faultOfSystemError(errno, path);
  struct stat status {};
  const bool longEnough =
      ::fstat(descriptor, &status) == 0 && status.st_size >= offset + static_cast<std::int64_t>(size);
  void* data = longEnough ? ::mmap(nullptr, size, PROT_READ, MAP_SHARED, descriptor, offset) : MAP_FAILED;
  const int error = longEnough ? errno : EIO;
  ::close(descriptor);
  if (data == MAP_FAILED) throw faultOfSystemError(error, path);
  data_ = static_cast<const std::byte*>(data);
}

MappedFile::~MappedFile() {
  ::munmap(const_cast<std::byte*>(data_), size_);
}

}  // namespace quorvin
