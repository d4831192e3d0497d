// SPDX-License-Identifier: GPL-2.0-or-later

// A tree of folders put together from single paths, for lists that do not keep the files of a folder
// together.
#pragma once

#include "catalogue_writer.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvin {

class FolderTree {
 public:
  FolderTree();

  /// Adds a file by its path from the tree's root ("usr/bin/vi"). Folders and files keep the order in which
  /// they came first.
  void add(std::string_view path);

  /// Writes the tree depth first, each folder's block before its sub-folders', until the writer holds
  /// `entryLimit` entries. Size and date of a file follow from its path alone.
  void write(CatalogueWriter& writer, std::string_view volume, std::int64_t entryLimit) const;

 private:
  using FolderNumber = std::uint32_t;

  struct Folder {
    std::string name;
    std::vector<FolderNumber> subFolders;
    /// The names, each ended by a line feed: one text costs far less memory than many small ones.
    std::string files;
  };

  class Walk;

  FolderNumber folderAt(std::string_view path);

  std::vector<Folder> folders_;
  std::unordered_map<std::string, FolderNumber> numbers_;
  std::string latestPath_;
  FolderNumber latest_ = 0;
};

/// `name` as a listing holds it: "?" in place of a backslash, of a control character that would end the line,
/// and of what is not valid UTF-8.
std::string listedName(std::string_view name);

}  // namespace quorvin
