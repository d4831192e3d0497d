// SPDX-License-Identifier: GPL-2.0-or-later

// The folders of listings as a tree.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// Finds numbers by the hash of what they stand for; what that is, the caller knows.
class NumberTable {
 public:
  static constexpr std::uint32_t kNone = UINT32_MAX;

  /// The first number that was added with `hash` and that `isIt(number)` accepts; kNone where there is none.
  template <typename IsIt>
  std::uint32_t find(std::uint64_t hash, IsIt isIt) const {
    if (slots_.empty()) return kNone;
    const auto mark = static_cast<std::uint32_t>(hash >> 32);
    for (std::size_t at = hash & mask();; at = (at + 1) & mask()) {
      const Slot& slot = slots_[at];
      if (slot.number == kNone) return kNone;
      if (slot.mark == mark && isIt(slot.number)) return slot.number;
    }
  }

  /// `number` is not kNone.
  void add(std::uint64_t hash, std::uint32_t number);

 private:
  /// Slots are chosen by the lower half of a hash; the upper half is compared before anybody is asked.
  struct Slot {
    std::uint32_t mark = 0;
    std::uint32_t low = 0;
    std::uint32_t number = kNone;
  };

  std::size_t mask() const { return slots_.size() - 1; }
  void put(const Slot& slot);
  void grow();

  /// A power of two of them, of which a third at least is free.
  std::vector<Slot> slots_;
  std::size_t count_ = 0;
};

/// The folders of all volumes of all listings, each below its volume, numbered from 0 in the order in which
/// they become known: a folder's number is above that of the one it is in. Folders in which no file is listed
/// are there where one below them has some. The same path on the same volume of the same listing, to the
/// letter, is the same folder. Takes up some 25 bytes for each folder, and each name once.
class FolderTree {
 public:
  static constexpr std::uint32_t kNone = NumberTable::kNone;

  struct Volume {
    /// The listing's number, from 0.
    std::uint32_t listing;
    /// As listed, UTF-8.
    std::string name;
  };

  /// The number of a volume of a listing, which is added where it is not known. Volumes are numbered from 0.
  std::uint32_t addVolume(std::uint32_t listing, std::string_view name);

  /// The folder of the path `path`, as listed and UTF-8, on the volume; with those above it, it is added
  /// where it is not known. One backslash at the end of the path means nothing. An empty path is that of the
  /// volume itself.
  std::uint32_t addFolder(std::uint32_t volume, std::string_view path);

  std::uint32_t count() const { return static_cast<std::uint32_t>(folders_.size()); }
  const std::vector<Volume>& volumes() const { return volumes_; }

  /// The folder that `folder` is in; kNone for that of a volume itself.
  std::uint32_t parent(std::uint32_t folder) const { return folders_[folder].parent; }
  std::uint32_t volumeOf(std::uint32_t folder) const { return folders_[folder].volume; }
  /// The last part of its path, as listed; empty for that of a volume itself.
  std::string_view name(std::uint32_t folder) const;
  /// What people call it: a whole volume has the volume's name.
  std::string_view title(std::uint32_t folder) const;
  /// Equal for folders whose names are the same in lower case.
  std::uint32_t nameInLowerCase(std::uint32_t folder) const { return names_[folders_[folder].name].lower; }
  /// As listed, with a backslash at its end unless it is empty.
  std::string path(std::uint32_t folder) const;

 private:
  struct Folder {
    std::uint32_t parent;
    std::uint32_t name;
    std::uint32_t volume;
  };
  struct Name {
    /// In `texts_`.
    std::uint64_t start;
    std::uint32_t size;
    /// The number of the name that this one is in lower case.
    std::uint32_t lower;
  };
  /// A part of the path that was asked for before: where it ends, and its folder.
  struct Step {
    std::size_t end;
    std::uint32_t folder;
  };

  std::uint32_t addName(std::string_view text);
  std::uint32_t nameOf(std::string_view text);
  std::uint32_t addBelow(std::uint32_t parent, std::string_view name);
  void keepCommonSteps(std::string_view path);
  std::string_view textOfName(const Name& name) const;

  std::vector<Volume> volumes_;
  NumberTable volumesByName_;
  std::vector<std::uint32_t> volumeFolders_;
  std::vector<Folder> folders_;
  NumberTable foldersByName_;
  std::vector<Name> names_;
  NumberTable namesByText_;
  std::string texts_;

  /// Listings go from a folder to one nearby: what both paths have in common need not be looked up.
  std::uint32_t lastVolume_ = kNone;
  std::string lastPath_;
  std::vector<Step> steps_;
};

}  // namespace quorvin
