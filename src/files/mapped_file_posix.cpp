#include "faults/runtime_fault.h"
#include "files/mapped_file.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {

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
