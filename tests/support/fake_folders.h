// SPDX-License-Identifier: GPL-2.0-or-later

// A tree of folders in memory, with faults on request.
#pragma once

#include "files/folder_reader.h"

#include <cerrno>
#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace quorvin::test {

/// Folders are known by their whole path in the style of the test, with a separator at the end.
class FakeFolders : public FolderReader {
 public:
  explicit FakeFolders(char separator) : separator_(separator) {}

  /// Adds a folder, empty or with files of 1,000 bytes, to the tree and to the folder above it (if known).
  void addFolder(const std::string& path, const std::vector<std::string>& files = {}) {
    Folder& folder = folders_[path];
    for (const std::string& file : files) folder.names.push_back({file, NameKind::File});
    const std::size_t slash = path.rfind(separator_, path.size() - 2);
    if (slash == std::string::npos || slash + 1 == path.size()) return;
    const auto above = folders_.find(path.substr(0, slash + 1));
    if (above == folders_.end()) return;
    above->second.names.push_back({path.substr(slash + 1, path.size() - slash - 2), NameKind::Folder});
  }

  /// Adds a name to a folder that is there; links are looked up to what `targets` says.
  void addName(const std::string& folder, const std::string& name, NameKind kind) {
    folders_.at(folder).names.push_back({name, kind});
  }

  /// The coming errors of entering a folder, of reading the next name in it, and of looking up a name
  /// (keyed by folder and name together); 0 lets a call through.
  std::map<std::string, std::deque<int>> enterErrors;
  std::map<std::string, std::deque<int>> nextErrors;
  std::map<std::string, std::deque<int>> lookUpErrors;
  /// What look-ups find, by folder and name together; a file of 1,000 bytes from 1970 where nothing is set.
  std::map<std::string, NameStatus> targets;
  /// All calls of lookUp, by folder and name together.
  std::vector<std::string> lookUps;

  int enterTop(const QString& path) override { return enterFolder(path.toStdString()); }
  int enter(const char* name) override { return enterFolder(way_.back().path + name + separator_); }
  void leave() override { way_.pop_back(); }

  int next(FolderName& name) override {
    Place& place = way_.back();
    if (const int error = take(nextErrors, place.path)) return error;
    const std::vector<Name>& names = folders_.at(place.path).names;
    name = {};
    if (place.position == names.size()) return 0;
    const Name& found = names[place.position++];
    name = {found.text, found.kind};
    return 0;
  }

  int lookUp(const char* name, NameStatus& status) override {
    const std::string path = way_.back().path + name;
    lookUps.push_back(path);
    if (const int error = take(lookUpErrors, path)) return error;
    const auto known = targets.find(path);
    status = known == targets.end() ? NameStatus{NameKind::File, 1000, 0} : known->second;
    return 0;
  }

  bool topIsStillAt(const QString& path) const override { return folders_.contains(path.toStdString()); }

  /// How many folders have been entered and not left.
  std::size_t depth() const { return way_.size(); }

 private:
  struct Name {
    std::string text;
    NameKind kind;
  };
  struct Folder {
    std::vector<Name> names;
  };
  struct Place {
    std::string path;
    std::size_t position = 0;
  };

  int enterFolder(const std::string& path) {
    if (const int error = take(enterErrors, path)) return error;
    if (!folders_.contains(path)) return ENOENT;
    way_.push_back({path});
    return 0;
  }

  static int take(std::map<std::string, std::deque<int>>& errors, const std::string& path) {
    std::deque<int>& coming = errors[path];
    if (coming.empty()) return 0;
    const int error = coming.front();
    coming.pop_front();
    return error;
  }

  char separator_;
  std::map<std::string, Folder> folders_;
  std::vector<Place> way_;
};

}  // namespace quorvin::test
