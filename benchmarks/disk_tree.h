// SPDX-License-Identifier: GPL-2.0-or-later

// A tree of made-up files and folders on disk, for programs that walk folders.
#pragma once

#include "name_maker.h"
#include "random_source.h"
#include "vocabulary.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorvin {

/// Makes such a tree; equal seeds and numbers give equal trees. The number of files in a folder is
/// long-tailed. The files take up no room: they have a length and a date, but nothing was ever written to
/// them.
class DiskTree {
 public:
  /// `folders` counts the tree's top folder too; both numbers are at least 1.
  DiskTree(std::uint64_t seed, std::int64_t files, std::int64_t folders);

  /// Makes the tree below the new folder `top`. Throws std::system_error when something cannot be made.
  void make(const std::string& top);

 private:
  struct Folder {
    std::string path;
    int depth = 0;
  };

  std::vector<std::int64_t> fileCounts();
  Folder newFolder();
  void makeFiles(const Folder& folder, std::int64_t count);
  void makeFile(int folderDescriptor);

  Vocabulary vocabulary_;
  RandomSource random_;
  NameMaker names_{vocabulary_, random_};
  std::int64_t files_;
  std::int64_t folderCount_;
  std::vector<Folder> folders_;
};

}  // namespace quorvin
