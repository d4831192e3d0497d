// SPDX-License-Identifier: GPL-2.0-or-later

// The way down a tree on open folders, and what was read ahead of it.
#include "files/folder_calls.h"
#include "files/folder_reader.h"
#include "files/folders_ahead.h"
#include "files/readers_at_once.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QThread>

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

/// Which folder it is, whatever its path.
struct FolderIdentity {
  dev_t device = 0;
  ino_t number = 0;

  bool operator==(const FolderIdentity&) const = default;
};

constexpr int kReadFolder = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

std::optional<FolderIdentity> identityOf(const Descriptor& folder) {
  struct stat status {};
  if (::fstat(folder.get(), &status) != 0) return std::nullopt;
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
  /// The same with a sub-folder that is open already.
  void enterOpen(const char* name, OpenFolder folder);
  void leave();

  /// The current folder; none when it could not be found again, and why(), or when there is none.
  const OpenFolder& current() const { return depth_ > 0 ? folders_[depth_ - 1].open : none_; }
  int why() const { return folders_[depth_ - 1].error; }

  bool topIsStillAt(const QString& path) const;

 private:
  struct Folder {
    std::string name;
    OpenFolder open;
    // Why it is not open any more.
    int error = ENOENT;
    // Set when the folder is closed on the way down.
    FolderIdentity identity;
  };

  void add(const char* name, OpenFolder folder);
  bool closeTopmost();
  void findAgain(Folder& folder, const OpenFolder& subFolder);
  Descriptor openFromTop() const;

  std::size_t mostOpen_;
  QByteArray topPath_;
  FolderIdentity top_;
  OpenFolder none_;
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
  Descriptor folder(::open(bytes.constData(), kReadFolder));
  if (!folder.isOpen()) return errno;
  topPath_ = bytes;
  top_ = identityOf(folder).value_or(FolderIdentity{});
  firstOpen_ = 0;
  add("", std::make_shared<const Descriptor>(std::move(folder)));
  return 0;
}

int FolderTrail::enter(const char* name) {
  if (!current()) return why();
  OpenFolder folder;
  int error = 0;
  do {
    error = openSubFolder(*current(), name, folder);
  } while ((error == EMFILE || error == ENFILE) && closeTopmost());
  if (error == 0) enterOpen(name, std::move(folder));
  return error;
}

void FolderTrail::enterOpen(const char* name, OpenFolder folder) {
  add(name, std::move(folder));
  if (depth_ - firstOpen_ > mostOpen_) closeTopmost();
}

void FolderTrail::add(const char* name, OpenFolder folder) {
  if (depth_ == folders_.size()) folders_.emplace_back();
  folders_[depth_].name = name;
  folders_[depth_].open = std::move(folder);
  ++depth_;
}

// Closes the open folder nearest to the top, unless it is the only one.
bool FolderTrail::closeTopmost() {
  if (depth_ - firstOpen_ < 2) return false;
  Folder& folder = folders_[firstOpen_];
  if (folder.open) {
    folder.identity = identityOf(*folder.open).value_or(FolderIdentity{});
    folder.open = nullptr;
  }
  ++firstOpen_;
  return true;
}

void FolderTrail::leave() {
  const OpenFolder left = std::exchange(folders_[depth_ - 1].open, nullptr);
  --depth_;
  if (depth_ == 0 || depth_ != firstOpen_) return;
  --firstOpen_;
  findAgain(folders_[depth_ - 1], left);
}

void FolderTrail::findAgain(Folder& folder, const OpenFolder& subFolder) {
  const auto takeIfTheSame = [&folder](Descriptor found) {
    folder.error = found.isOpen() ? ENOENT : errno;
    folder.open = nullptr;
    if (!found.isOpen() || identityOf(found) != folder.identity) return false;
    folder.open = std::make_shared<const Descriptor>(std::move(found));
    return true;
  };
  if (subFolder && takeIfTheSame(Descriptor(::openat(subFolder->get(), "..", kReadFolder)))) return;
  // The sub-folder has been moved or removed meanwhile.
  takeIfTheSame(openFromTop());
}

// Opens the current folder by the names that lead to it; the caller checks which folder that is now.
Descriptor FolderTrail::openFromTop() const {
  Descriptor folder(::open(topPath_.constData(), kReadFolder));
  for (std::size_t i = 1; i < depth_ && folder.isOpen(); ++i) {
    Descriptor below(::openat(folder.get(), folders_[i].name.c_str(), kReadFolder | O_NOFOLLOW));
    const int error = errno;
    folder = std::move(below);
    errno = error;
  }
  return folder;
}

// Without opening it: where no descriptor is left, that would pass for a folder that is gone.
bool FolderTrail::topIsStillAt(const QString& path) const {
  struct stat found {};
  if (!canBePath(path) || ::stat(QFile::encodeName(path).constData(), &found) != 0) return false;
  return FolderIdentity{found.st_dev, found.st_ino} == top_;
}

class LinuxFolderReader : public FolderReader {
 public:
  LinuxFolderReader(int mostOpen, const ReadersAtOnce& readers) : trail_(mostOpen), ahead_(readers) {}

  int enterTop(const QString& path) override {
    const int error = trail_.enterTop(path);
    if (error == 0) start("");
    return error;
  }

  int enter(const char* name) override {
    FoldersAhead::Opened opened = ahead_.open(name);
    if (opened.error != 0) return opened.error;
    if (opened.folder) {
      trail_.enterOpen(name, std::move(opened.folder));
      stretch_.forget();
      return 0;
    }
    const int error = enterItself(name);
    if (error == 0) start(name);
    return error;
  }

  void leave() override {
    trail_.leave();
    ahead_.leave(trail_.current());
  }

  int next(FolderName& name) override {
    if (const std::optional<int> known = ahead_.next(name)) return *known;
    if (!trail_.current()) return trail_.why();
    const int error = stretch_.next(*trail_.current(), name);
    if (error == 0) ahead_.noteNext(name);
    return error;
  }

  int lookUp(const char* name, NameStatus& status) override {
    if (const std::optional<int> known = ahead_.lookUp(name, status)) return *known;
    return trail_.current() ? lookUpName(*trail_.current(), name, status) : trail_.why();
  }

  void planWalk(const WalkPlan& plan) override { ahead_.plan(plan); }
  void forgetAhead() override { ahead_.forget(); }

  bool topIsStillAt(const QString& path) const override { return trail_.topIsStillAt(path); }

 private:
  void start(const char* name) {
    stretch_.forget();
    ahead_.entered(trail_.current(), name);
  }

  // The folders that are open ahead must not be what the walk lacks.
  int enterItself(const char* name) {
    const int error = trail_.enter(name);
    if (error != EMFILE && error != ENFILE) return error;
    ahead_.makeRoom();
    return trail_.enter(name);
  }

  FolderTrail trail_;
  FoldersAhead ahead_;
  FolderStretch stretch_;
};

}  // namespace

std::unique_ptr<FolderReader> makeFolderReader(int mostOpen) {
  return makeFolderReader(mostOpen, ReadersAtOnce(QThread::idealThreadCount()));
}

std::unique_ptr<FolderReader> makeFolderReader(int mostOpen, const ReadersAtOnce& readers) {
  return std::make_unique<LinuxFolderReader>(mostOpen, readers);
}

}  // namespace quorvin
