#include "faults/runtime_fault.h"
#include "files/folder_writer.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quorvin {
namespace {

constexpr int kFolderOnly = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
constexpr int kFolderNotLink = kFolderOnly | O_NOFOLLOW;
constexpr mode_t kFolderPermissions = 0777;
constexpr mode_t kFilePermissions = 0666;
constexpr mode_t kPermissionBits = 0777;

bool isName(const QString& name) {
  return !name.isEmpty() && name != QStringLiteral(".") && name != QStringLiteral("..") &&
         !name.contains(u'/') && !name.contains(QChar(u'\0'));
}

QByteArray checkedName(const QString& name, const QString& shownPath) {
  if (!isName(name)) throw faultOfSystemError(EINVAL, shownPath);
  return QFile::encodeName(name);
}

// Where several programs write into one folder, none must take the name of another's file.
OwnedDescriptor makeAside(int folder, std::string& name, const QString& shownPath) {
  constexpr int kNewFile = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  for (int attempt = 0;; ++attempt) {
    name = ".quorvin-" + std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".part";
    const int descriptor = ::openat(folder, name.c_str(), kNewFile, kFilePermissions);
    if (descriptor >= 0) return OwnedDescriptor(descriptor);
    if (errno != EEXIST) throw faultOfSystemError(errno, shownPath);
  }
}

}  // namespace

OwnedDescriptor::~OwnedDescriptor() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

OwnedDescriptor::OwnedDescriptor(OwnedDescriptor&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

OwnedDescriptor& OwnedDescriptor::operator=(OwnedDescriptor&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

NewFile::NewFile(OwnedDescriptor folder, const QString& name, const QString& shownPath)
    : folder_(std::move(folder)),
      name_(checkedName(name, shownPath).toStdString()),
      shownPath_(shownPath),
      file_(makeAside(folder_.get(), nameAside_, shownPath)) {
  writer_.emplace(file_.get(), shownPath);
}

NewFile::~NewFile() {
  if (!isInPlace_) ::unlinkat(folder_.get(), nameAside_.c_str(), 0);
}

void NewFile::write(std::string_view bytes) {
  writer_->write(bytes);
}

void NewFile::putInPlace() {
  writer_->flush();
  struct stat before {};
  const bool replaces = ::fstatat(folder_.get(), name_.c_str(), &before, AT_SYMLINK_NOFOLLOW) == 0;
  if (replaces && S_ISREG(before.st_mode)) {
    // Some file systems know no permissions; the content is what counts.
    static_cast<void>(::fchmod(file_.get(), before.st_mode & kPermissionBits));
    writer_->sync();
  }
  const int folder = folder_.get();
  if (::renameat(folder, nameAside_.c_str(), folder, name_.c_str()) != 0) {
    throw faultOfSystemError(errno, shownPath_);
  }
  isInPlace_ = true;
}

FolderWriter::FolderWriter(const QString& folder) : folder_(folder) {
  if (folder.isEmpty() || folder.contains(QChar(u'\0'))) throw faultOfSystemError(EINVAL, folder);
  top_ = OwnedDescriptor(::open(QFile::encodeName(folder).constData(), kFolderOnly));
  if (top_.get() < 0) throw faultOfSystemError(errno, folder);
}

void FolderWriter::makeFolder(const QStringList& path) const {
  enter(path, path.size());
}

NewFile FolderWriter::newFile(const QStringList& path) const {
  const QString shown = shownPath(path, path.size());
  if (path.isEmpty()) throw faultOfSystemError(EINVAL, shown);
  return {enter(path, path.size() - 1), path.last(), shown};
}

// Each folder is opened from the one above it, so that nobody can lead the way elsewhere meanwhile.
OwnedDescriptor FolderWriter::enter(const QStringList& path, qsizetype count) const {
  OwnedDescriptor folder(::openat(top_.get(), ".", kFolderOnly));
  for (qsizetype i = 0; i < count && folder.get() >= 0; ++i) {
    const QString shown = shownPath(path, i + 1);
    const QByteArray name = checkedName(path[i], shown);
    if (::mkdirat(folder.get(), name.constData(), kFolderPermissions) != 0 && errno != EEXIST) {
      throw faultOfSystemError(errno, shown);
    }
    OwnedDescriptor next(::openat(folder.get(), name.constData(), kFolderNotLink));
    // A link and a file are told the same way: neither is a folder to write into.
    if (next.get() < 0) throw faultOfSystemError(errno == ENOTDIR ? ELOOP : errno, shown);
    folder = std::move(next);
  }
  if (folder.get() < 0) throw faultOfSystemError(errno, folder_);
  return folder;
}

QString FolderWriter::shownPath(const QStringList& path, qsizetype count) const {
  const bool hasSeparator = folder_.endsWith(u'/');
  return folder_ + (hasSeparator ? QString() : QStringLiteral("/")) + path.mid(0, count).join(u'/');
}

}  // namespace quorvin
