// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/file_identity.h"

#include <QFile>

#include <cerrno>
#include <sys/stat.h>

namespace quorvin {

std::optional<FileIdentity> fileIdentity(const QString& path) {
  struct stat status {};
  if (::stat(QFile::encodeName(path).constData(), &status) != 0) return std::nullopt;
  const auto nanoseconds = [](const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
  };
  return FileIdentity{status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim), status.st_dev,
                      status.st_ino};
}

bool fileIsThere(const QString& path) {
  struct stat status {};
  if (::stat(QFile::encodeName(path).constData(), &status) == 0) return S_ISREG(status.st_mode);
  if (errno == ENOENT || errno == ENOTDIR) return false;
  throw faultOfSystemError(errno, path);
}

bool isSameFile(const QString& path, const QString& other) {
  if (path == other) return true;
  const std::optional<FileIdentity> identity = fileIdentity(path);
  const std::optional<FileIdentity> otherIdentity = fileIdentity(other);
  return identity && otherIdentity && identity->device == otherIdentity->device &&
         identity->file == otherIdentity->file;
}

}  // namespace quorvin
