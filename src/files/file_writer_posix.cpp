#include "faults/runtime_fault.h"
#include "files/file_writer.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quorvin {
namespace {

// Large enough that the calls do not count, small enough to stay in the processor's caches.
constexpr std::size_t kBufferSize = std::size_t{1} << 16;

}  // namespace

FileWriter::FileWriter(const QString& path, const QString& name)
    : name_(name.isEmpty() ? path : name), descriptor_(-1), owned_(true), buffer_(kBufferSize) {
  // The system would end the path at a NUL and write another file.
  if (path.contains(QChar(u'\0'))) fail(EINVAL);
  // Not blocking, so that a pipe without a reader is refused instead of holding the program up.
  constexpr int kNewFile = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK;
  constexpr mode_t kAllThatTheUserAllows = 0666;
  descriptor_ = ::open(QFile::encodeName(path).constData(), kNewFile, kAllThatTheUserAllows);
  if (descriptor_ < 0) fail(errno);
  struct stat status {};
  if (::fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode)) return;
  ::close(descriptor_);
  fail(EISDIR);
}

FileWriter::FileWriter(int descriptor, const QString& name)
    : name_(name), descriptor_(descriptor), owned_(false), buffer_(kBufferSize) {}

FileWriter::~FileWriter() {
  if (owned_ && descriptor_ >= 0) ::close(descriptor_);
}

void FileWriter::write(std::string_view bytes) {
  // Nothing may come without an address too.
  if (bytes.empty()) return;
  if (bytes.size() > buffer_.size() - filled_) flush();
  if (bytes.size() > buffer_.size()) {
    writeOut(bytes);
    return;
  }
  std::memcpy(buffer_.data() + filled_, bytes.data(), bytes.size());
  filled_ += bytes.size();
}

void FileWriter::flush() {
  const std::size_t count = std::exchange(filled_, 0);
  writeOut({buffer_.data(), count});
}

void FileWriter::writeOut(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(errno);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void FileWriter::sync() {
  if (::fsync(descriptor_) != 0) fail(errno);
}

void FileWriter::close() {
  flush();
  if (!owned_) return;
  if (::close(std::exchange(descriptor_, -1)) != 0) fail(errno);
}

void FileWriter::fail(int errorNumber) const {
  throw faultOfSystemError(errorNumber, name_);
}

void putInPlace(const QString& finished, const QString& place) {
  if (place.contains(QChar(u'\0'))) throw faultOfSystemError(EINVAL, place);
  if (::rename(QFile::encodeName(finished).constData(), QFile::encodeName(place).constData()) == 0) return;
  throw faultOfSystemError(errno, place);
}

}  // namespace quorvin
