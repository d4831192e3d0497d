// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/files_below.h"

#include "faults/runtime_fault.h"
#include "files/folder_reader.h"
#include "files/path_style.h"
#include "texts/texts.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <memory>

namespace quorvin {

namespace {

class Walk {
 public:
  Walk(FolderReader& folders, const std::function<bool()>& stop) : folders_(folders), stop_(stop) {}

  /// From the current folder down; false where it was stopped.
  bool run() {
    std::vector<Level> levels{readFolder("")};
    while (!levels.empty()) {
      if (stop_()) return false;
      Level& level = levels.back();
      if (level.next == level.folders.size()) {
        folders_.leave();
        levels.pop_back();
        continue;
      }
      const std::string name = level.folders[level.next++];
      const std::string path = level.path + name;
      const int error = folders_.enter(name.c_str());
      if (error == 0) {
        levels.push_back(readFolder(path + '/'));
      } else {
        found.unread.push_back({path, error});
      }
    }
    return true;
  }

  FilesBelow found;

 private:
  struct Level {
    /// Empty, or with a slash at its end.
    std::string path;
    std::vector<std::string> folders;
    std::size_t next = 0;
  };

  /// Its files, and the names of its folders.
  Level readFolder(std::string path) {
    Level level{std::move(path), {}};
    std::vector<std::string> files;
    FolderName name;
    int error = 0;
    for (error = folders_.next(name); error == 0 && !name.bytes.empty(); error = folders_.next(name)) {
      if (name.kind == NameKind::Folder) level.folders.emplace_back(name.bytes);
      if (name.kind == NameKind::File || name.kind == NameKind::Link) files.emplace_back(name.bytes);
    }
    if (error != 0) found.unread.push_back({level.path, error});
    std::ranges::sort(files);
    std::ranges::sort(level.folders);
    for (const std::string& file : files) lookUp(level.path, file);
    return level;
  }

  void lookUp(const std::string& folder, const std::string& name) {
    NameStatus status;
    if (const int error = folders_.lookUp(name.c_str(), status)) {
      found.unread.push_back({folder + name, error});
    } else if (status.kind == NameKind::File) {
      found.files.push_back(
          {folder + name, status.size, dateValueOf(QDateTime::fromSecsSinceEpoch(status.modified))});
    }
  }

  FolderReader& folders_;
  const std::function<bool()>& stop_;
};

}  // namespace

std::optional<FilesBelow> filesBelow(const QString& folder, const std::function<bool()>& stop) {
  const std::unique_ptr<FolderReader> folders = makeFolderReader();
  const int error = folders->enterTop(folder);
  if (error != 0) throw faultOfSystemError(error, folder);
  Walk walk(*folders, stop);
  if (!walk.run()) return std::nullopt;
  return std::move(walk.found);
}

const UnreadPath* FilesBelow::unreadOf(std::string_view path) const {
  const auto found = std::ranges::find_if(unread, [path](const UnreadPath& one) {
    if (!path.starts_with(one.path)) return false;
    const std::string_view rest = path.substr(one.path.size());
    return rest.empty() || rest.starts_with('/') || one.path.empty() || one.path.ends_with('/');
  });
  return found == unread.end() ? nullptr : &*found;
}

QString pathBelow(const QString& folder, const std::string& path) {
  const QByteArray bytes = QByteArray::fromStdString(path);
  const QString name = QFile::decodeName(bytes);
  if (QFile::encodeName(name) != bytes) {
    throw RuntimeFault(FaultNumber::BadFileName, Texts::tr("the name of %1 is no text").arg(name));
  }
  return withTrailingSeparator(folder, nativePathStyle()) + name;
}

}  // namespace quorvin
