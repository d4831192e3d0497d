#include "faults/runtime_fault.h"
#include "files/sequential_file.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
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

}  // namespace quorvin
