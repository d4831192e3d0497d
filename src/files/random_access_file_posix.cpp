#include "faults/runtime_fault.h"
#include "files/random_access_file.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quorvin {

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

}  // namespace quorvin
