#include "platform/file_identity.h"

#include <QFile>

#include <sys/stat.h>

namespace quorvin {

std::optional<FileIdentity> fileIdentity(const QString& path) {
  struct stat status {};
  if (::stat(QFile::encodeName(path).constData(), &status) != 0) return std::nullopt;
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return FileIdentity{status.st_size, status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec,
                      status.st_dev, status.st_ino};
}

}  // namespace quorvin
