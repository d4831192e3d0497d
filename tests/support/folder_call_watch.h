// SPDX-License-Identifier: GPL-2.0-or-later

// Watching and spoiling the calls by which folders are read.
#pragma once

#include <functional>
#include <string>

namespace quorvin::test {

/// A call that the program's own libraries are going to make, in whatever thread.
struct FolderCall {
  enum Kind { Open, Names, LookUp };

  Kind kind;
  /// The path of the name that is opened or looked up, or of the folder whose names are read.
  std::string path;
};

/// Called before each such call; gives the errno value that the call fails with, or 0, which lets it through.
/// It may take its time and change what it likes on the disk.
using FolderCallWatcher = std::function<int(const FolderCall& call)>;

/// Watches as long as the object lives; one at a time. A thread that is still in the watcher then has a copy.
class FolderCallWatch {
 public:
  explicit FolderCallWatch(FolderCallWatcher watcher);
  ~FolderCallWatch();
  FolderCallWatch(const FolderCallWatch&) = delete;
  FolderCallWatch& operator=(const FolderCallWatch&) = delete;
};

/// For the functions that stand in for the system's: what the watcher says of a call on the open folder
/// `folder`.
int watchedFolderCall(FolderCall::Kind kind, int folder, const char* name);

}  // namespace quorvin::test
