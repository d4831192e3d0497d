// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_writer.h"

#include <QFileInfo>

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quorvin {
namespace {

// Large enough that the calls do not count, small enough to stay in the processor's caches.
constexpr std::size_t kBufferSize = std::size_t{1} << 16;

constexpr std::array<timespec, 2> kTimesBack{timespec{0, UTIME_OMIT},
                                             timespec{OverwrittenFile::kNotKnownToBeWhole, 0}};

/// Makes an empty file where nothing is. It gets its time before it gets its name, so that nobody ever sees
/// it as a new one.
void makeWithTimeBack(const QString& path) {
  struct stat status {};
  if (::lstat(encodedPath(path).constData(), &status) == 0 || errno != ENOENT) return;
  FileAside file(path, {.durability = Durability::None, .mayReplace = false});
  static_cast<void>(::utimensat(AT_FDCWD, encodedPath(file.path()).constData(), kTimesBack.data(), 0));
  file.finish();
  static_cast<void>(file.commitUnlessTaken(QFileInfo(path).fileName()));
}

Descriptor openRegularFile(const QString& path) {
  makeWithTimeBack(path);
  // Not blocking, so that a pipe without a reader is refused instead of holding the program up.
  constexpr int kKeepContent = O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK;
  constexpr mode_t kWhatTheUmaskLeaves = 0666;
  Descriptor file(::open(encodedPath(path).constData(), kKeepContent, kWhatTheUmaskLeaves));
  if (!file.isOpen()) throw faultOfSystemError(errno, path);
  struct stat status {};
  if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) throw faultOfSystemError(EISDIR, path);
  return file;
}

bool isEmpty(int file) {
  struct stat status {};
  return ::fstat(file, &status) == 0 && status.st_size == 0;
}

}  // namespace

FileWriter::FileWriter(int descriptor, const QString& name)
    : name_(name), descriptor_(descriptor), buffer_(std::make_unique_for_overwrite<char[]>(kBufferSize)) {}

void FileWriter::write(std::string_view bytes) {
  // Nothing may come without an address too.
  if (bytes.empty()) return;
  if (bytes.size() > kBufferSize - filled_) flush();
  if (bytes.size() > kBufferSize) {
    writeOut(bytes);
    return;
  }
  std::memcpy(buffer_.get() + filled_, bytes.data(), bytes.size());
  filled_ += bytes.size();
}

void FileWriter::flush() {
  const std::size_t count = std::exchange(filled_, 0);
  writeOut({buffer_.get(), count});
}

void FileWriter::writeOut(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw faultOfSystemError(errno, name_);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

OverwrittenFile::OverwrittenFile(const QString& path)
    : file_(openRegularFile(path)), writer_(file_.get(), path) {
  if (isEmpty(file_.get())) setTimeBack();
}

OverwrittenFile::~OverwrittenFile() {
  // A write that failed may have changed the time too.
  if (isTouched_) setTimeBack();
}

void OverwrittenFile::write(std::string_view bytes) {
  isTouched_ = true;
  writer_.write(bytes);
  sinceSetBack_ += bytes.size();
  if (sinceSetBack_ >= kBufferSize) flush();
}

void OverwrittenFile::flush() {
  writer_.flush();
  if (isTouched_) setTimeBack();
  sinceSetBack_ = 0;
}

void OverwrittenFile::setTimeBack() const {
  static_cast<void>(::futimens(file_.get(), kTimesBack.data()));
}

}  // namespace quorvin
