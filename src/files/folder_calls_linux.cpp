// SPDX-License-Identifier: GPL-2.0-or-later

// getdents64 and fstatat straight into buffers that are used again and again: the folder classes of libraries
// allocate for each name and look each one up, which takes longer than the system's own work.
#include "files/folder_calls.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

namespace quorvin {

namespace {

NameKind kindOfMode(mode_t mode) {
  if (S_ISREG(mode)) return NameKind::File;
  if (S_ISDIR(mode)) return NameKind::Folder;
  return S_ISLNK(mode) ? NameKind::Link : NameKind::Other;
}

// Not every file system keeps the kinds beside the names. A name that is gone already passes for a link: the
// look-up will tell.
NameKind kindOfEntry(const Descriptor& folder, const dirent64& entry) {
  if (entry.d_type != DT_UNKNOWN) return kindOfMode(static_cast<mode_t>(DTTOIF(entry.d_type)));
  struct stat found {};
  const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
  return ::fstatat(folder.get(), entry.d_name, &found, flags) == 0 ? kindOfMode(found.st_mode)
                                                                   : NameKind::Link;
}

}  // namespace

int openSubFolder(const Descriptor& above, const char* name, OpenFolder& opened) {
  Descriptor folder(::openat(above.get(), name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NOFOLLOW));
  if (!folder.isOpen()) return errno;
  opened = std::make_shared<const Descriptor>(std::move(folder));
  return 0;
}

int lookUpName(const Descriptor& folder, const char* name, NameStatus& status) {
  struct stat found;
  if (::fstatat(folder.get(), name, &found, AT_NO_AUTOMOUNT) != 0) return errno;
  status = {kindOfMode(found.st_mode), found.st_size, found.st_mtim.tv_sec};
  return 0;
}

bool isExhaustion(int error) {
  return error == EMFILE || error == ENFILE || error == ENOMEM;
}

int FolderStretch::next(const Descriptor& folder, FolderName& name) {
  for (;;) {
    if (isUsedUp()) {
      const int error = fill(folder);
      if (error != 0) return error;
      name = {};
      if (filled_ == 0) return 0;
    }
    const auto* entry = reinterpret_cast<const dirent64*>(buffer_.data() + position_);
    position_ += entry->d_reclen;
    // A leading dot hides a name; the folder itself and the one above have such names too.
    if (entry->d_name[0] == '.') continue;
    name = {entry->d_name, kindOfEntry(folder, *entry)};
    return 0;
  }
}

int FolderStretch::fill(const Descriptor& folder) {
  forget();
  const ssize_t count = ::getdents64(folder.get(), buffer_.data(), buffer_.size());
  if (count < 0) return errno;
  filled_ = static_cast<std::size_t>(count);
  return 0;
}

}  // namespace quorvin
