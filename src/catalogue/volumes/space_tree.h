// SPDX-License-Identifier: GPL-2.0-or-later

// How much is in the folders of volumes, and of what kind and years.
#pragma once

#include "catalogue/copies.h"
#include "catalogue/every_entry.h"
#include "catalogue/folder_tree.h"
#include "catalogue/volumes/file_kinds.h"

#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace quorvin {

/// Bytes by kind and by years. They only say which is most, so floats will do.
struct SpaceColours {
  std::array<float, kFileKinds> kinds{};
  std::array<float, kYearSpans> years{};

  void add(const SpaceColours& other);
  FileKind kind() const;
  std::uint8_t yearSpan() const;
};

/// The sums of all folders with what is below them. Takes some 100 bytes for each folder.
class SpaceTree {
 public:
  /// What is above the volumes.
  static constexpr std::uint32_t kTop = FolderTree::kNone;

  /// What a folder consists of: folders in it, and the files right in it together.
  struct Part {
    std::uint32_t folder;
    bool areFiles = false;
    std::int64_t bytes;
    FileKind kind;
    std::uint8_t yearSpan;
  };

  std::uint32_t folderOf(std::uint32_t listing, std::string_view volume, std::string_view path);
  void add(std::uint32_t folder, const FileSum& files, const SpaceColours& colours);
  /// To be called once, when everything has been added.
  void finish();

  const FolderTree& folders() const { return folders_; }

  // After finish().

  /// The parts of a folder, or of everything (kTop), largest first; those without a byte are left out.
  std::vector<Part> partsOf(std::uint32_t folder) const;
  /// With all that is below it.
  FileSum sumOf(std::uint32_t folder) const;
  /// Goes on downwards as long as there is nothing else: a folder that consists of one folder says nothing.
  std::uint32_t firstWithParts(std::uint32_t folder) const;
  /// The folder above which firstWithParts() leads to `folder`; kTop for a volume, and for kTop itself.
  std::uint32_t above(std::uint32_t folder) const;

 private:
  /// Of the files right in it.
  struct Own {
    FileSum files;
    FileKind kind;
    std::uint8_t yearSpan;
  };

  Part partOf(std::uint32_t folder) const;
  std::span<const std::uint32_t> foldersIn(std::uint32_t folder) const;

  FolderTree folders_;
  std::vector<Own> own_;
  std::vector<FileSum> sums_;
  std::vector<SpaceColours> colours_;
  /// The folders in each folder, one after another, and where those of each start; those of kTop come first.
  std::vector<std::uint32_t> inside_;
  std::vector<std::uint32_t> starts_;
};

/// The sink of a run that finds every entry: makes a SpaceTree of the files that have a size of their own.
class SpaceSums : public EveryEntry {
 public:
  /// `listingStarts` is told of each listing when it starts.
  explicit SpaceSums(std::function<void(SourceKind kind, const QString& path)> listingStarts)
      : listingStarts_(std::move(listingStarts)) {}

  void startListing(SourceKind kind, const QString& path) override;
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override;
  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override;

  SpaceTree& tree() { return tree_; }
  const SpaceTree& tree() const { return tree_; }
  const std::vector<QString>& listings() const { return listings_; }

 protected:
  void takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                 std::uint32_t end) override;

 private:
  /// What a block comes to.
  struct Block {
    std::string volume;
    std::string folder;
    FileSum files;
    SpaceColours colours;
  };

  std::function<void(SourceKind kind, const QString& path)> listingStarts_;
  SpaceTree tree_;
  std::vector<QString> listings_;
  /// Nothing of hits counts before all of them have been read, which may fail.
  std::vector<Block> batch_;
};

}  // namespace quorvin
