// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/file_lock.h"

#include <QDeadlineTimer>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace quorvin {

namespace {

// A write takes some milliseconds; waiting longer than that between looks would only add to it.
constexpr std::chrono::milliseconds kBetweenLooks(5);

bool isHeldByAnother(int errorNumber) {
  return errorNumber == EWOULDBLOCK || errorNumber == EINTR;
}

/// False when another program held it until the time was over.
bool takeLock(int descriptor, int milliseconds) {
  const QDeadlineTimer deadline(milliseconds);
  while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    // The file is replaced whole in any case; without locks it may only miss another's last change.
    if (!isHeldByAnother(errno)) return true;
    if (deadline.hasExpired()) return false;
    std::this_thread::sleep_for(kBetweenLooks);
  }
  return true;
}

Descriptor openLockFile(const QString& path) {
  constexpr int kNoLink = O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
  constexpr mode_t kOnlyTheUser = 0600;
  return Descriptor(::open(encodedPath(path + QStringLiteral(".lock")).constData(), kNoLink, kOnlyTheUser));
}

bool isAt(const Descriptor& file, const QString& path) {
  struct stat opened {};
  struct stat found {};
  return ::fstat(file.get(), &opened) == 0 && ::stat(encodedPath(path).constData(), &found) == 0 &&
         opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
}

}  // namespace

FileLock FileLock::onFileItself(const QString& path, int milliseconds) {
  for (;;) {
    Descriptor file(::open(encodedPath(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) return FileLock(Descriptor());
    if (!takeLock(file.get(), milliseconds)) throw faultOfSystemError(EBUSY, path);
    // Whoever had it may have put another file there, which is to be taken then.
    if (isAt(file, path)) return FileLock(std::move(file));
  }
}

FileLock::FileLock(const QString& path, int milliseconds) : file_(openLockFile(path)) {
  if (!file_.isOpen()) throw faultOfSystemError(errno, path);
  if (!takeLock(file_.get(), milliseconds)) throw faultOfSystemError(EBUSY, path);
}

std::optional<FolderLock> FolderLock::take(const QString& folder) {
  constexpr int kFolderOnly = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
  // A path with a NUL leads nowhere.
  const QByteArray path = folder.contains(QChar(u'\0')) ? QByteArray() : encodedPath(folder);
  Descriptor opened(::open(path.constData(), kFolderOnly));
  if (opened.isOpen() && !takeLock(opened.get(), 0)) return std::nullopt;
  return FolderLock(std::move(opened));
}

}  // namespace quorvin
