// SPDX-License-Identifier: GPL-2.0-or-later

// What is said of copies: in which order, and how much there is of them.
#pragma once

#include "catalogue/copies.h"
#include "catalogue/equal_folders.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace quorvin {

/// Which files are meant. In any case only those that are wanted.
struct WhichFiles {
  /// Files without any byte too.
  bool withEmpty = false;

  bool hasSize(std::int64_t size) const { return withEmpty || size > 0; }
  bool has(const Copies::Group& group) const {
    return group.copies >= 2 && group.isWanted && hasSize(group.size);
  }
};

/// A group of files, or a set of folders, that are the same.
struct CopyLine {
  /// What all but the first take up.
  std::int64_t bytesBeyondFirst;
  /// The group's number, or that of the set.
  std::uint32_t number;
  bool isFolders;
};

/// One line for each set of folders, and one for each group of files that no set explains, those that waste
/// most first. Folders come before files that waste the same; else those listed first come first.
std::vector<CopyLine> copyLines(const Copies& copies, const EqualFolders& folders, const WhichFiles& which);

struct CopyTotals {
  /// Different files that are there more than once.
  std::int64_t files = 0;
  /// Their copies beyond the first of each.
  FileSum beyondFirst;
};
CopyTotals copyTotals(const Copies& copies, const WhichFiles& which);

/// The copies beyond the first of each file, for each folder.
std::vector<FileSum> copiesInFolders(const Copies& copies, const WhichFiles& which);

/// Calls `visit` for each wanted file that is on one volume only, in the order of places. False where `stop`
/// ended it. Throws as ListedFiles::visitFiles() does.
bool visitSingleFiles(const Copies& copies, const WhichFiles& which,
                      const std::function<void(ListedFiles::Visited&)>& visit, const StopAsked& stop);

/// Those files, for each folder. Nothing where `stop` ended it. Throws as ListedFiles::visitFiles() does.
std::vector<FileSum> singleFilesInFolders(const Copies& copies, const WhichFiles& which,
                                          const StopAsked& stop);

/// The sums of each volume, of those of its folders.
std::vector<FileSum> sumsOfVolumes(const FolderTree& folders, const std::vector<FileSum>& inFolders);

FileSum sumOf(const std::vector<FileSum>& sums);

/// The numbers of the sums that are of any file, those of most bytes first.
std::vector<std::uint32_t> largestFirst(const std::vector<FileSum>& sums);

}  // namespace quorvin
