// SPDX-License-Identifier: GPL-2.0-or-later

// The files of a folder and those below it, as an index of the folder lists them.
#pragma once

#include "dates/general_date.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

struct FileBelow {
  /// From the folder down, with slashes between, in the bytes of the file system.
  std::string path;
  /// In bytes.
  std::int64_t size = 0;
  /// In the machine's time zone, to the second.
  DateValue modified = 0;
};

/// What cannot be read, and the system's error number.
struct UnreadPath {
  std::string path;
  int error = 0;
};

struct FilesBelow {
  /// Folder by folder, in each the names in the order of their bytes.
  std::vector<FileBelow> files;
  std::vector<UnreadPath> unread;

  /// Why nobody knows whether there is a file at `path`; null where that is known.
  const UnreadPath* unreadOf(std::string_view path) const;
};

/// Goes over the tree of `folder`. Hidden files are left out, and folders behind links; a link to a file is a
/// file. Nothing where `stop`, which is asked in each folder, ended it. Throws RuntimeFault where the folder
/// itself cannot be read.
std::optional<FilesBelow> filesBelow(const QString& folder, const std::function<bool()>& stop);

/// The file at `path` below `folder`. Throws RuntimeFault (52) where the name is in another encoding than the
/// system's, so that the toolkit has no name for it.
QString pathBelow(const QString& folder, const std::string& path);

}  // namespace quorvin
