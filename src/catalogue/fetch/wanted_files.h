// SPDX-License-Identifier: GPL-2.0-or-later

// Files that are wanted, and their places in listings.
#pragma once

#include "catalogue/every_entry.h"
#include "catalogue/fetch/fetch_plan.h"
#include "catalogue/folder_tree.h"
#include "catalogue/kept_texts.h"
#include "search/hit_table.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvin {

/// What is wanted, and where it has been found. Files are the same that have the same name, in lower case as
/// the search has it, and the same size to the byte. One whose listing tells no size is the same as no other:
/// it is known by its place. Memory grows with what is wanted, not with what is listed.
class WantedFiles {
 public:
  static constexpr std::uint32_t kNone = UINT32_MAX;

  /// Wants the file of that name and size, or without a size every file of that name. As listings do, it
  /// looks at the first 65 characters of the name only.
  void add(const QString& name, std::optional<std::int64_t> size);
  /// Wants a file that is listed, with its names as listed and in lower case. A negative size stands for
  /// none; then the file at `place` is meant.
  void add(const ListedWalk::Text& name, std::int64_t size, std::int64_t place);

  /// A number for a folder of a volume of a listing, 0 or more. Two of them have the same one so seldom that
  /// nobody will see it.
  static std::int64_t placeOf(const QString& listing, std::string_view volume, std::string_view folder);

  bool isEmpty() const { return names_.empty(); }

  /// The number of the name, which is in lower case; kNone where nothing of that name is wanted.
  std::uint32_t find(std::string_view folded) const;
  /// Notes a file of the name `name`, if it is one that is wanted; `place` counts where its size is negative.
  /// The same one may come twice.
  void found(std::uint32_t name, std::int64_t size, std::int64_t place, const FileCopy& copy);

  /// To be called when all has been found: a name of which there is no file is one that is missing.
  void complete();

  /// Their names are valid as long as the object.
  const std::vector<WantedFile>& files() const { return files_; }

 private:
  struct Name {
    /// As it was asked for first.
    std::string_view name;
    /// Every file of this name is wanted, whatever its size.
    bool isEvery = false;
    bool hasFiles = false;
  };
  /// What a file is known by.
  struct Key {
    std::uint32_t name;
    /// Its size. Where it has none, the complement of its place, which is negative.
    std::int64_t value;
    bool operator==(const Key&) const = default;
  };
  struct HashOfKey {
    std::size_t operator()(const Key& key) const;
  };

  std::uint32_t nameLike(std::string_view folded, std::string_view listed);
  void want(const Key& key);
  void addFile(std::uint32_t name, std::int64_t size);

  KeptTexts texts_;
  std::vector<WantedFile> files_;
  std::vector<Name> names_;
  std::unordered_map<std::string_view, std::uint32_t> namesByText_;
  /// The number of each file; kNone as long as one without a size has not been found.
  std::unordered_map<Key, std::uint32_t, HashOfKey> filesByKey_;
};

/// The places of listings that a plan speaks of.
struct PlanPlaces {
  /// The paths of the listings.
  std::vector<QString> listings = {};
  /// What kind of source each of them is.
  std::vector<SourceKind> kinds = {};
  FolderTree folders = {};
  /// For each volume the deepest folder that all its files are in or below, with a backslash at its end.
  std::vector<std::string> tops = {};
};

/// The sink of a search: each hit is wanted.
class WantedHits : public HitSink {
 public:
  explicit WantedHits(WantedFiles& wanted) : wanted_(wanted) {}

  void startListing(SourceKind, const QString& path) override { listing_ = path; }
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override;
  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override;

 private:
  WantedFiles& wanted_;
  QString listing_;
};

/// What the rows of these numbers, which ascend, stand for. Throws DamagedSegment.
WantedFiles wantedRows(const HitTable& table, const std::vector<int>& rows);

/// The sink of a run that finds every entry: notes where wanted files are.
class WantedCopies : public EveryEntry {
 public:
  WantedCopies(WantedFiles& wanted, PlanPlaces& places) : wanted_(wanted), places_(places) {}

  void startListing(SourceKind kind, const QString& path) override {
    places_.listings.push_back(path);
    places_.kinds.push_back(kind);
  }
  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override;

 protected:
  void takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                 std::uint32_t end) override;

 private:
  std::uint32_t volumeOf(const Segment& segment, std::uint32_t block, std::string_view folder);

  WantedFiles& wanted_;
  PlanPlaces& places_;
};

}  // namespace quorvin
