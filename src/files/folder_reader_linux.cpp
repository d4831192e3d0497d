// getdents64 and fstatat straight into buffers that are used again and again: the folder classes of libraries
// allocate for each name and look each one up, which takes longer than the system's own work.
#include "files/folder_reader.h"
#include "files/folder_trail_posix.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace quorvin {
namespace {

NameKind kindOfMode(mode_t mode) {
  if (S_ISREG(mode)) return NameKind::File;
  if (S_ISDIR(mode)) return NameKind::Folder;
  return S_ISLNK(mode) ? NameKind::Link : NameKind::Other;
}

// Not every file system keeps the kinds beside the names. A name that is gone already passes for a link: the
// look-up will tell.
NameKind kindOfEntry(int folder, const dirent64& entry) {
  if (entry.d_type != DT_UNKNOWN) return kindOfMode(static_cast<mode_t>(DTTOIF(entry.d_type)));
  struct stat found {};
  const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
  return ::fstatat(folder, entry.d_name, &found, flags) == 0 ? kindOfMode(found.st_mode) : NameKind::Link;
}

class LinuxFolderReader : public FolderReader {
 public:
  explicit LinuxFolderReader(int mostOpen) : trail_(mostOpen) {}

  int enterTop(const QString& path) override {
    const int error = trail_.enterTop(path);
    if (error == 0) forgetNames();
    return error;
  }

  int enter(const char* name) override {
    const int error = trail_.enter(name);
    if (error == 0) forgetNames();
    return error;
  }

  void leave() override { trail_.leave(); }

  int next(FolderName& name) override {
    for (;;) {
      if (position_ == filled_) {
        const int error = fill();
        if (error != 0) return error;
        name = {};
        if (filled_ == 0) return 0;
      }
      const auto* entry = reinterpret_cast<const dirent64*>(buffer_.data() + position_);
      position_ += entry->d_reclen;
      // A leading dot hides a name; the folder itself and the one above have such names too.
      if (entry->d_name[0] == '.') continue;
      name = {entry->d_name, kindOfEntry(trail_.current(), *entry)};
      return 0;
    }
  }

  int lookUp(const char* name, NameStatus& status) override {
    if (trail_.current() < 0) return ENOENT;
    struct stat found;
    if (::fstatat(trail_.current(), name, &found, AT_NO_AUTOMOUNT) != 0) return errno;
    status = {kindOfMode(found.st_mode), found.st_size, found.st_mtim.tv_sec};
    return 0;
  }

  bool topIsStillAt(const QString& path) const override { return trail_.topIsStillAt(path); }

 private:
  void forgetNames() { position_ = filled_ = 0; }

  int fill() {
    forgetNames();
    if (trail_.current() < 0) return ENOENT;
    const ssize_t count = ::getdents64(trail_.current(), buffer_.data(), buffer_.size());
    if (count < 0) return errno;
    filled_ = static_cast<std::size_t>(count);
    return 0;
  }

  FolderTrail trail_;
  alignas(dirent64) std::array<char, 65536> buffer_;
  std::size_t position_ = 0;
  std::size_t filled_ = 0;
};

}  // namespace

std::unique_ptr<FolderReader> makeFolderReader(int mostOpen) {
  return std::make_unique<LinuxFolderReader>(mostOpen);
}

}  // namespace quorvin
