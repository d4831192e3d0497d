#include "files/folder_trail_posix.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvin {
namespace {

constexpr int kFolderOnly = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

std::optional<FolderIdentity> identityOf(int descriptor) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) return std::nullopt;
  return FolderIdentity{status.st_dev, status.st_ino};
}

// A path with a NUL would be cut there and lead to another folder.
bool canBePath(const QString& path) {
  return !path.isEmpty() && !path.contains(QChar(u'\0'));
}

}  // namespace

FolderTrail::~FolderTrail() {
  while (depth_ > 0) leave();
}

int FolderTrail::enterTop(const QString& path) {
  if (!canBePath(path)) return ENOENT;
  const QByteArray bytes = QFile::encodeName(path);
  const int descriptor = ::open(bytes.constData(), kFolderOnly);
  if (descriptor < 0) return errno;
  topPath_ = bytes;
  top_ = identityOf(descriptor).value_or(FolderIdentity{});
  firstOpen_ = 0;
  add("", descriptor);
  return 0;
}

int FolderTrail::enter(const char* name) {
  if (current() < 0) return ENOENT;
  int descriptor = -1;
  do {
    descriptor = ::openat(current(), name, kFolderOnly | O_NOFOLLOW);
  } while (descriptor < 0 && (errno == EMFILE || errno == ENFILE) && closeTopmost());
  if (descriptor < 0) return errno;
  add(name, descriptor);
  if (depth_ - firstOpen_ > mostOpen_) closeTopmost();
  return 0;
}

void FolderTrail::add(const char* name, int descriptor) {
  if (depth_ == folders_.size()) folders_.emplace_back();
  folders_[depth_].name = name;
  folders_[depth_].descriptor = descriptor;
  ++depth_;
}

// Closes the open folder nearest to the top, unless it is the only one.
bool FolderTrail::closeTopmost() {
  if (depth_ - firstOpen_ < 2) return false;
  Folder& folder = folders_[firstOpen_];
  const int error = errno;
  if (folder.descriptor >= 0) {
    folder.identity = identityOf(folder.descriptor).value_or(FolderIdentity{});
    ::close(folder.descriptor);
    folder.descriptor = -1;
  }
  errno = error;
  ++firstOpen_;
  return true;
}

void FolderTrail::leave() {
  const int left = current();
  --depth_;
  if (depth_ > 0 && depth_ == firstOpen_) {
    --firstOpen_;
    findAgain(folders_[depth_ - 1], left);
  }
  if (left >= 0) ::close(left);
}

void FolderTrail::findAgain(Folder& folder, int subFolder) {
  const auto isTheSame = [&folder](int descriptor) {
    return descriptor >= 0 && identityOf(descriptor) == folder.identity;
  };
  if (subFolder >= 0) folder.descriptor = ::openat(subFolder, "..", kFolderOnly);
  if (isTheSame(folder.descriptor)) return;
  // The sub-folder has been moved or removed meanwhile.
  if (folder.descriptor >= 0) ::close(folder.descriptor);
  folder.descriptor = openFromTop();
  if (isTheSame(folder.descriptor)) return;
  if (folder.descriptor >= 0) ::close(folder.descriptor);
  folder.descriptor = -1;
}

// Opens the current folder by the names that lead to it; the caller checks which folder that is now.
int FolderTrail::openFromTop() const {
  int descriptor = ::open(topPath_.constData(), kFolderOnly);
  for (std::size_t i = 1; i < depth_ && descriptor >= 0; ++i) {
    const int below = ::openat(descriptor, folders_[i].name.c_str(), kFolderOnly | O_NOFOLLOW);
    ::close(descriptor);
    descriptor = below;
  }
  return descriptor;
}

bool FolderTrail::topIsStillAt(const QString& path) const {
  if (!canBePath(path)) return false;
  const int descriptor = ::open(QFile::encodeName(path).constData(), kFolderOnly);
  if (descriptor < 0) return false;
  const bool same = identityOf(descriptor) == top_;
  ::close(descriptor);
  return same;
}

}  // namespace quorvin
