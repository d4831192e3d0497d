// SPDX-License-Identifier: GPL-2.0-or-later

// Reading a tree of folders, one folder open for reading at a time.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace quorvin {

/// What is under a name. Link: to what, only a look-up can tell. Other: a device, a socket or a pipe.
enum class NameKind : std::uint8_t { File, Folder, Link, Other };

/// One name of a folder; empty at the end of the folder. A NUL follows the bytes. They are valid until
/// another name is read or another folder is current.
struct FolderName {
  std::string_view bytes;
  NameKind kind = NameKind::Other;
};

/// What a look-up finds.
struct NameStatus {
  NameKind kind = NameKind::Other;
  /// In bytes.
  std::int64_t size = 0;
  /// Whole seconds since the start of 1970, UTC.
  std::int64_t modified = 0;
};

/// What a walk does with a name that it has read.
struct NameUse {
  /// Looks it up before it reads the next name.
  bool lookUpAtOnce = false;
  /// Looks it up when it has read all names of the folder; a link only if that leads to a file.
  bool lookUpLater = false;
  /// Enters it when it has looked up all names of the folder.
  bool enter = false;
};

/// What a walk is going to do, so that a part of it can be done ahead.
struct WalkPlan {
  /// Called in other threads too, several at a time, perhaps even after the reader's end. Throws
  /// std::bad_alloc alone.
  std::function<NameUse(const FolderName&)> use;
  /// Where a folder has more sub-folders or more files than that (a link may be either), it is not certain
  /// which of them the walk comes to, so none of them is read ahead.
  std::size_t mostSubFolders = 0;
  std::size_t mostFiles = 0;
  /// A folder is not entered when the names from the top down to it have more bytes, with a separator each.
  std::size_t longestWay = 0;
};

/// A way down a tree of folders and back. The folder reached last is the current one; names belong to it. All
/// calls that give a number give 0 or the system's error number (errno); after an error nothing has changed
/// and the same call may be made again.
class FolderReader {
 public:
  virtual ~FolderReader() = default;

  /// Begins a tree: the folder at `path`, or the one that it is a link to, becomes the current folder. To be
  /// called when no folder is current.
  virtual int enterTop(const QString& path) = 0;
  /// Goes into a sub-folder of the current folder; never through a link.
  virtual int enter(const char* name) = 0;
  /// Goes back to the folder above; from the top, to none.
  virtual void leave() = 0;
  /// Gives the next name of the current folder, in the file system's order. Hidden names and those of the
  /// folder itself and of the one above are not among them. To be read before any sub-folder is entered.
  virtual int next(FolderName& name) = 0;
  /// What `name` of the current folder stands for; links are followed to their end.
  virtual int lookUp(const char* name, NameStatus& status) = 0;

  /// The walk from the top that is entered next keeps to `plan`, until another plan is set; an empty one ends
  /// it. A reader may then do ahead, in other threads, what the walk is going to do, and nothing else. All
  /// calls give what they would give without a plan; the tree is only seen as it was a moment earlier. What
  /// failed ahead fails when the walk comes to it, and the same call made again asks the system again.
  virtual void planWalk(const WalkPlan&) {}
  /// What was done ahead is old by now: the user was asked something, or the walk has rested. From here on it
  /// sees the tree as it is.
  virtual void forgetAhead() {}

  /// Whether `path` still leads to the folder that was entered last as a top.
  virtual bool topIsStillAt(const QString& path) const = 0;
};

/// The number of folders that a reader keeps open by default.
inline constexpr int kMostOpenFolders = 64;

/// The system's own folders. However deep the tree, at most `mostOpen` folders (at least 2) are open at a
/// time, and where a plan is kept to 64 more; the way back to one that was closed leads through its
/// sub-folder or, where that is gone, down from the top. A folder that cannot be reached any more holds
/// nothing, and its sub-folders are not found.
std::unique_ptr<FolderReader> makeFolderReader(int mostOpen = kMostOpenFolders);

class ReadersAtOnce;
/// The same; of a walk with a plan, as many threads read as `readers` says.
std::unique_ptr<FolderReader> makeFolderReader(int mostOpen, const ReadersAtOnce& readers);

}  // namespace quorvin
