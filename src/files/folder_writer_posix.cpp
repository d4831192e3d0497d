// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "files/folder_writer.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace quorvin {
namespace {

constexpr int kFolderOnly = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
constexpr int kFolderNotLink = kFolderOnly | O_NOFOLLOW;
constexpr mode_t kFolderPermissions = 0777;

bool isName(const QString& name) {
  return !name.isEmpty() && name != QStringLiteral(".") && name != QStringLiteral("..") &&
         !name.contains(u'/') && !name.contains(QChar(u'\0'));
}

QByteArray checkedName(const QString& name, const QString& shownPath) {
  if (!isName(name)) throw faultOfSystemError(EINVAL, shownPath);
  return QFile::encodeName(name);
}

}  // namespace

FolderWriter::FolderWriter(const QString& folder) : folder_(folder) {
  if (folder.isEmpty() || folder.contains(QChar(u'\0'))) throw faultOfSystemError(EINVAL, folder);
  top_ = Descriptor(::open(QFile::encodeName(folder).constData(), kFolderOnly));
  if (top_.get() < 0) throw faultOfSystemError(errno, folder);
}

void FolderWriter::makeFolder(const QStringList& path) const {
  enter(path, path.size());
}

FileAside FolderWriter::newFile(const QStringList& path) const {
  const QString shown = shownPath(path, path.size());
  if (path.isEmpty()) throw faultOfSystemError(EINVAL, shown);
  checkedName(path.last(), shown);
  const QString folderPath = shown.chopped(path.last().size());
  return {enter(path, path.size() - 1), folderPath, path.last()};
}

// Each folder is opened from the one above it, so that nobody can lead the way elsewhere meanwhile.
Descriptor FolderWriter::enter(const QStringList& path, qsizetype count) const {
  Descriptor folder(::openat(top_.get(), ".", kFolderOnly));
  for (qsizetype i = 0; i < count && folder.get() >= 0; ++i) {
    const QString shown = shownPath(path, i + 1);
    const QByteArray name = checkedName(path[i], shown);
    if (::mkdirat(folder.get(), name.constData(), kFolderPermissions) != 0 && errno != EEXIST) {
      throw faultOfSystemError(errno, shown);
    }
    Descriptor next(::openat(folder.get(), name.constData(), kFolderNotLink));
    // A link and a file are reported the same way: neither is a folder to write into.
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
