// SPDX-License-Identifier: GPL-2.0-or-later

// Folders that hold the same.
#pragma once

#include "catalogue/copies.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quorvin {

/// Finds folders that are equal as a whole: they hold the same number of files, each of one the same as one
/// of the other, and folders of the same names, in lower case, that are equal again. Their own names do not
/// matter. A folder that holds, at any depth, a file without a size of its own or one that is there once is
/// equal to none. Folders without any file are in no listing, so nothing is known of them. A volume itself is
/// no folder, but its topmost one is.
class EqualFolders {
 public:
  static constexpr std::uint32_t kNone = UINT32_MAX;

  /// Folders that are equal.
  struct Set {
    /// Ascending.
    std::vector<std::uint32_t> folders;
    /// What each of them holds at all depths.
    FileSum holds;
    bool isWanted = false;

    std::int64_t bytesBeyondFirst() const {
      return productOfBytes(holds.bytes, static_cast<std::int64_t>(folders.size()) - 1);
    }
  };

  /// `copies` must outlive the object.
  explicit EqualFolders(const Copies& copies);

  /// Finds all sets; to be called once. False where `stop` ended it.
  bool find(const StopAsked& stop);

  /// The sets of at least two folders with at least two files in each, by their first folders. One is left
  /// out where each of its folders is in a folder of another set, one in each: that set says it.
  const std::vector<Set>& sets() const { return sets_; }

  /// Whether a file is at these places because folders are equal: one of them is in each folder of a set, or
  /// in a folder in it, and nowhere else.
  bool explain(std::span<const std::uint32_t> places) const;

 private:
  struct Kind {
    std::uint32_t first;
    std::uint32_t folders;
    FileSum holds;
    bool isWanted;
  };
  /// What a folder holds itself: the groups of its files, then its folders by name and kind. Ascending.
  using Content = std::vector<std::uint64_t>;

  void collectBlocks();
  void collectFolders();
  bool read(std::uint32_t folder, Content& content) const;
  bool readFiles(std::uint32_t folder, Content& content) const;
  std::uint32_t kindLike(std::uint32_t folder, const Content& content);
  void sumUp(std::uint32_t folder, Kind& kind) const;
  bool isWanted(std::uint32_t folder) const;
  void collectSets();
  std::vector<std::uint32_t> kindsAround() const;
  std::uint32_t endOfBlock(std::uint32_t block) const;

  const Copies& copies_;
  const FolderTree& folders_;
  /// The blocks of each folder, one folder after another, and where each folder's start; the folders in each
  /// folder likewise.
  std::vector<std::uint32_t> blocks_;
  std::vector<std::uint32_t> blocksStart_;
  std::vector<std::uint32_t> inside_;
  std::vector<std::uint32_t> insideStart_;
  /// kNone for a folder that is equal to none.
  std::vector<std::uint32_t> kindOf_;
  std::vector<Kind> kinds_;
  NumberTable kindsByContent_;
  Content other_;
  /// For each kind: its folders are equal, and a set says so, its own or that of a kind around it.
  std::vector<bool> isTold_;
  std::vector<Set> sets_;
};

}  // namespace quorvin
