// The open folders on the way from the top of a tree down to the current folder.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quorvin {

/// Which folder it is, whatever its path.
struct FolderIdentity {
  dev_t device = 0;
  ino_t number = 0;

  bool operator==(const FolderIdentity&) const = default;
};

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

  /// The descriptor of the current folder; -1 when it could not be found again.
  int current() const { return folders_[depth_ - 1].descriptor; }

  bool topIsStillAt(const QString& path) const;

 private:
  struct Folder {
    std::string name;
    int descriptor = -1;
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

}  // namespace quorvin
