// SPDX-License-Identifier: GPL-2.0-or-later

// What the tests of walks that read ahead share.
#pragma once

#include "files/readers_at_once.h"
#include "index/walk_fixture.h"
#include "support/folder_call_watch.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace quorvin::test {

/// What came of a walk, as the user and the caller see it.
struct AheadWalk {
  QByteArray listing;
  QString errorLog;
  std::vector<QString> questions;
  bool isWhole = false;
  std::int64_t files = 0;

  bool operator==(const AheadWalk&) const = default;
};

/// Ways of reading that must not be told apart by what they give. The first is the plain one: the walk makes
/// every call itself, when it comes to it.
struct WayOfReading {
  const char* name;
  ReadersAtOnce readers;
};

inline const ReadersAtOnce kPlain = ReadersAtOnce::always(1, false);

inline std::vector<WayOfReading> waysOfReadingAhead() {
  return {{"a folder at a time, alone", ReadersAtOnce::always(1, true)},
          {"two, quick", ReadersAtOnce::always(2, false)},
          {"eight, quick", ReadersAtOnce::always(8, false)},
          {"three, slow", ReadersAtOnce::always(3, true)},
          {"thirty-two, slow", ReadersAtOnce::always(32, true)},
          {"as many as help", ReadersAtOnce(2)}};
}

/// Makes trees with everything in them that a walk treats in a way of its own.
class TreeMaker {
 public:
  explicit TreeMaker(unsigned seed) : random_(seed) {}

  void fill(const std::string& folder, int depth) {
    const int count = below(14);
    for (int i = 0; i < count; ++i) addName(folder, depth);
  }

  /// Regular files and folders that the walk lists or enters.
  std::vector<std::string> files;
  std::vector<std::string> folders;

  int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }

 private:
  void addName(const std::string& folder, int depth) {
    const std::string number = std::to_string(++made_) + '_';
    const std::string path = folder + "/n" + number;
    switch (below(20)) {
      case 0:
        return link(
            files.empty() ? "gone" : files[static_cast<std::size_t>(below(static_cast<int>(files.size())))],
            path);
      case 1:
        return link(folder, path);
      case 2:
        return link("gone" + number, path);
      case 3:
        return link("n" + number, path);
      case 4:
        return addFile(folder + "/.hidden" + number);
      case 5:
        return addFolder(folder + "/.hidden folder" + number, depth);
      case 6:
        return addFile(folder + "/pagefile.sys");
      case 7:
        return addFile(folder + "/what?" + number);
      case 8:
        return link(folder, folder + "/where?" + number);
      case 9:
        return addFolder(folder + "/folder?" + number, depth);
      case 10:
        return addFile(folder + "/\xff broken" + number);
      case 11:
        ::mkfifo(path.c_str(), 0600);
        return;
      case 12:
      case 13:
      case 14:
      case 15:
        if (depth == 0) return;
        folders.push_back(path);
        return addFolder(path, depth);
      default:
        files.push_back(path);
        return addFile(path);
    }
  }

  void addFile(const std::string& path) {
    std::ofstream(path) << std::string(static_cast<std::size_t>(below(3000)), 'x');
  }
  void addFolder(const std::string& path, int depth) {
    std::filesystem::create_directory(path);
    if (depth > 0) fill(path, depth - 1);
  }
  static void link(const std::string& target, const std::string& path) {
    std::filesystem::create_symlink(target, path);
  }

  std::mt19937 random_;
  int made_ = 0;
};

class WalkAheadTest : public WalkTest {
 protected:
  AheadWalk walkBy(const ReadersAtOnce& readers, int mostOpen = kMostOpenFolders) {
    state.errorLog.clear();
    state.AbortRequested = false;
    messages.askedOfFaults.clear();
    const auto folders = makeFolderReader(mostOpen, readers);
    const QByteArray listing = walk(*folders, tree.path(), nativePathStyle(), flags, pattern);
    return {listing, state.errorLog, messages.askedOfFaults, result.isWhole, result.files};
  }

  std::string top() const {
    std::string path = tree.path().toStdString();
    path.pop_back();
    return path;
  }

  void addFile(const std::string& name) {
    std::filesystem::create_directories(std::filesystem::path(top() + '/' + name).parent_path());
    std::ofstream(top() + '/' + name) << "12345";
  }

  int flags = kToOutput1;
  QString pattern = QStringLiteral("*.*");
};

/// Records the calls that are made, by kind and path.
class RecordedCalls {
 public:
  using Calls = std::multiset<std::pair<int, std::string>>;

  Calls calls() const {
    const std::lock_guard lock(mutex_);
    return calls_;
  }

 private:
  mutable std::mutex mutex_;
  Calls calls_;
  const FolderCallWatch watch_{[this](const FolderCall& call) {
    const std::lock_guard lock(mutex_);
    calls_.emplace(call.kind, call.path);
    return 0;
  }};
};

}  // namespace quorvin::test
