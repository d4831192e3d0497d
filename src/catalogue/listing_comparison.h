// SPDX-License-Identifier: GPL-2.0-or-later

// What came to a listing, what went from it, what changed and what was moved.
#pragma once

#include "catalogue/compared_listing.h"
#include "catalogue/copies.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quorvin {

enum class ChangeKind : std::uint8_t { Added, Removed, Changed, Moved };

/// A file that is not in both listings as it is in the other.
struct FileChange {
  static constexpr std::uint32_t kNone = UINT32_MAX;

  ChangeKind kind;
  /// Numbers in ComparedListing::files(); kNone where that listing lacks the file.
  std::uint32_t before = kNone;
  std::uint32_t after = kNone;
};

/// Compares two listings. A file is known by its folder and its name as listed; its volume counts only where
/// one of the listings has more than one, since a copy of a disk often has another name. Where no folder of
/// one listing is in the other, as with a disk that is mounted elsewhere, both are compared below the deepest
/// folder that has all files of each. It has *changed*
/// where its size or its date is another one. It was *moved* where a file with the same name in lower case,
/// the same size and the same date is somewhere else, or with the same name and size if neither is left with
/// its own date; an empty file needs the same date. Each file is moved to one place, and what is left over
/// was added or removed.
///
/// That two files are the same is decided by 96 bits of hash; everything else by names, sizes and dates.
class ListingComparison {
 public:
  /// `before` and `after` must outlive the object.
  ListingComparison(ComparedListing& before, ComparedListing& after) : before_(before), after_(after) {}

  /// To be called once. False where `stop` ended it. Throws as ComparedListing does.
  bool run(const StopAsked& stop);

  /// By folder and name, as they are after, or where they were if they are gone.
  const std::vector<FileChange>& changes() const { return changes_; }
  /// Files that are the same, with their bytes.
  const FileSum& same() const { return same_; }
  /// Files of a kind. The bytes are those of the files as they are after, or as they were if they are gone.
  const FileSum& sum(ChangeKind kind) const { return sums_[static_cast<std::size_t>(kind)]; }

  /// What says that a file is the same one.
  const PathRule& rule() const { return rule_; }
  const ComparedListing& before() const { return before_; }
  const ComparedListing& after() const { return after_; }
  /// The file that a change is shown as: as it is after, or as it was if it is gone.
  const ComparedFile& shownFile(const FileChange& change) const;
  /// The tree that has its folder.
  const FolderTree& shownTree(const FileChange& change) const;
  /// What its folder is known by in both listings, by rule().
  std::string shownPath(const FileChange& change) const;

 private:
  /// A pair of places with the same path, or one with none.
  struct Difference {
    std::uint32_t before;
    std::uint32_t after;
  };
  class Likeness;

  void pair(const std::vector<FileMark>& before, const std::vector<FileMark>& after);
  void pairSamePath(std::span<const FileMark> before, std::span<const FileMark> after);
  bool readDifferent(const StopAsked& stop);
  void judgePairs();
  bool haveSamePath(std::uint32_t before, std::uint32_t after) const;
  void findMoved();
  bool areAlike(std::uint32_t before, std::uint32_t after) const;
  void sortChanges();
  void sumUp();

  ComparedListing& before_;
  ComparedListing& after_;
  PathRule rule_;
  std::vector<Difference> differences_;
  /// Numbers of files that nothing has been found for so far.
  std::vector<std::uint32_t> gone_;
  std::vector<std::uint32_t> come_;
  std::vector<FileChange> changes_;
  std::array<FileSum, 4> sums_{};
  FileSum same_;
};

/// Changes of the files that are right in one folder.
struct FolderChanges {
  const FolderTree* tree = nullptr;
  /// The folder in which the files are, or were if they are gone.
  std::uint32_t folder = 0;
  /// Where they are in ListingComparison::changes(), and how many.
  std::size_t first = 0;
  std::size_t count = 0;
  std::array<FileSum, 4> sums{};
};

/// The sums of each folder in which something has changed, in the order of the changes.
std::vector<FolderChanges> changesOfFolders(const ListingComparison& comparison);

}  // namespace quorvin
