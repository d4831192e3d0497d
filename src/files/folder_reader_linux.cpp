// getdents64 and fstatat straight into buffers that are used again and again: the folder classes of libraries
// allocate for each name and look each one up, which takes longer than the system's own work.
#include "files/folder_reader.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <array>
#include <cerrno>
#include <cstddef>
#include <dirent.h>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#include <vector>

namespace quorvin {

namespace {

/// Which folder it is, whatever its path.
struct FolderIdentity {
  dev_t device = 0;
  ino_t number = 0;

  bool operator==(const FolderIdentity&) const = default;
};

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

/// The open folders on the way from the top of a tree down to the current folder.
/// Keeps the lowest few folders of the way open and finds the others again when they are needed. Errors are
/// errno values, 0 for none.
class FolderTrail {
 public:
  explicit FolderTrail(int mostOpen) : mostOpen_(static_cast<std::size_t>(mostOpen)) {}
  ~FolderTrail();
  FolderTrail(const FolderTrail&) = delete;
  FolderTrail& operator=(const FolderTrail&) = delete;

  int enterTop(const QString& path);
  int enter(const char* name);
  void leave();

  /// The descriptor of the current folder; -1 when it could not be found again, and why().
  int current() const { return folders_[depth_ - 1].descriptor; }
  int why() const { return folders_[depth_ - 1].error; }

  bool topIsStillAt(const QString& path) const;

 private:
  struct Folder {
    std::string name;
    int descriptor = -1;
    // Why it is not open any more.
    int error = ENOENT;
    // Set when the folder is closed on the way down.
    FolderIdentity identity;
  };

  void add(const char* name, int descriptor);
  bool closeTopmost();
  void findAgain(Folder& folder, int subFolder);
  int openFromTop() const;

  std::size_t mostOpen_;
  QByteArray topPath_;
  FolderIdentity top_;
  // Rows are kept when folders are left, so that their texts need not be made again.
  std::vector<Folder> folders_;
  std::size_t depth_ = 0;
  // The folders from here to the current one are open.
  std::size_t firstOpen_ = 0;
};

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
  if (current() < 0) return why();
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
  const auto takeIfTheSame = [&folder](int descriptor) {
    folder.error = descriptor < 0 ? errno : ENOENT;
    folder.descriptor = descriptor;
    if (descriptor >= 0 && identityOf(descriptor) == folder.identity) return true;
    if (descriptor >= 0) ::close(descriptor);
    folder.descriptor = -1;
    return false;
  };
  if (subFolder >= 0 && takeIfTheSame(::openat(subFolder, "..", kFolderOnly))) return;
  // The sub-folder has been moved or removed meanwhile.
  takeIfTheSame(openFromTop());
}

// Opens the current folder by the names that lead to it; the caller checks which folder that is now.
int FolderTrail::openFromTop() const {
  int descriptor = ::open(topPath_.constData(), kFolderOnly);
  for (std::size_t i = 1; i < depth_ && descriptor >= 0; ++i) {
    const int below = ::openat(descriptor, folders_[i].name.c_str(), kFolderOnly | O_NOFOLLOW);
    const int error = errno;
    ::close(descriptor);
    errno = error;
    descriptor = below;
  }
  return descriptor;
}

// Without opening it: where no descriptor is left, that would pass for a folder that is gone.
bool FolderTrail::topIsStillAt(const QString& path) const {
  struct stat found {};
  if (!canBePath(path) || ::stat(QFile::encodeName(path).constData(), &found) != 0) return false;
  return FolderIdentity{found.st_dev, found.st_ino} == top_;
}

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
    if (trail_.current() < 0) return trail_.why();
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
    if (trail_.current() < 0) return trail_.why();
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
