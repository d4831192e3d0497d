// Reading a tree of folders, one folder open for reading at a time.
#pragma once

#include <QString>

#include <cstdint>
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

/// A way down a tree of folders and back. The folder reached last is the current one; names belong to it. All
/// calls but the last give 0 or the system's error number (errno); after an error nothing has changed and the
/// same call may be made again.
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

  /// Whether `path` still leads to the folder that was entered last as a top.
  virtual bool topIsStillAt(const QString& path) const = 0;
};

/// The number of folders that a reader keeps open by default.
inline constexpr int kMostOpenFolders = 64;

/// The system's own folders. However deep the tree, at most `mostOpen` folders (at least 2) are open at a
/// time; the way back to one that was closed leads through its sub-folder or, where that is gone, down from
/// the top. A folder that cannot be reached any more holds nothing, and its sub-folders are not found.
std::unique_ptr<FolderReader> makeFolderReader(int mostOpen = kMostOpenFolders);

}  // namespace quorvin
