// SPDX-License-Identifier: GPL-2.0-or-later

// Files that are there more than once, and files that are there on one volume only.
#pragma once

#include "catalogue/kept_texts.h"
#include "catalogue/listed_files.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvin {

/// The sum of bytes, or the largest number where it is larger: a listing may claim any size. Neither of the
/// two is negative; the same for the product.
inline std::int64_t sumOfBytes(std::int64_t one, std::int64_t other) {
  std::int64_t sum = 0;
  return __builtin_add_overflow(one, other, &sum) ? std::numeric_limits<std::int64_t>::max() : sum;
}
inline std::int64_t productOfBytes(std::int64_t bytes, std::int64_t times) {
  std::int64_t product = 0;
  const bool isTooLarge = __builtin_mul_overflow(bytes, times, &product);
  return isTooLarge ? std::numeric_limits<std::int64_t>::max() : product;
}

/// Numbers of files with their bytes.
struct FileSum {
  std::int64_t files = 0;
  std::int64_t bytes = 0;

  void add(const FileSum& other) {
    files += other.files;
    bytes = sumOfBytes(bytes, other.bytes);
  }
  void add(std::int64_t size) { add(FileSum{1, size}); }
  bool operator==(const FileSum&) const = default;
};

/// 128 bits of hash of all bytes of a file.
struct ContentHash {
  std::uint64_t high;
  std::uint64_t low;

  bool operator==(const ContentHash&) const = default;
};

/// What the file at a place holds.
struct PlacedContent {
  std::uint32_t place;
  ContentHash content;
};

/// Goes through the files of all listings for those with the same name, in lower case as the search has it,
/// and the same size to the byte. Which files are the same is first guessed by their hashes and then decided
/// by names and sizes, so that two hashes that happen to be equal join nothing. Places are those of
/// ListedFiles.
///
/// Takes up 4 bytes for each place, and 40 and the name for each file that is there more than once.
class Copies {
 public:
  static constexpr std::uint32_t kNone = UINT32_MAX;

  /// A file that is there more than once.
  struct Group {
    std::int64_t size = 0;
    /// As listed where it is first.
    std::string_view name;
    std::uint32_t copies = 0;
    /// The volume where it is first, and whether it is on another one too.
    std::uint32_t volume = 0;
    bool isOnManyVolumes : 1 = false;
    /// One of its places is wanted.
    bool isWanted : 1 = false;

    /// What all copies but one take up.
    std::int64_t bytesBeyondFirst() const { return productOfBytes(size, std::int64_t{copies} - 1); }
  };

  /// `files` gives up its records, and must outlive the object.
  explicit Copies(ListedFiles& files) : files_(files) {}

  /// Finds all groups; to be called once. False where `stop` ended it. Throws as ListedFiles::visitFiles()
  /// does.
  bool find(const StopAsked& stop);

  /// Takes groups apart whose files hold different things; to be called after find(), once at most.
  /// `contents` ascend by place. A file that is not among them stays with the first one of its group, since
  /// nothing says that it is another; so does the first that is among them. Gives the number of files that
  /// are in another group by now, nothing where `stop` ended it. Throws as ListedFiles::visitFiles() does.
  std::optional<std::int64_t> takeApart(std::span<const PlacedContent> contents, const StopAsked& stop);

  const ListedFiles& files() const { return files_; }

  /// All groups, numbered from 0. One with fewer than two copies is none.
  const std::vector<Group>& groups() const { return groups_; }
  /// The group of the file at `place`; kNone where it is alone, or nothing is known of its size.
  std::uint32_t groupAt(std::uint32_t place) const;
  /// The places of a group, ascending.
  std::span<const std::uint32_t> placesOf(std::uint32_t group) const;

  /// Whether the file at `place` has a size, and no file on another volume is the same.
  bool isOnOneVolume(std::uint32_t place) const;

 private:
  /// In place of a group's number.
  static constexpr std::uint32_t kUnknown = UINT32_MAX;
  static constexpr std::uint32_t kAlone = UINT32_MAX - 1;

  bool guess(const StopAsked& stop);
  void guess(std::span<const FileRecord> sameHash);
  bool decide(const StopAsked& stop);
  void decide(ListedFiles::Visited& file);
  void note(ListedFiles::Visited& file, Group& group);
  std::int64_t takeApart(std::uint32_t group, std::span<const PlacedContent> contents);
  std::uint32_t groupLike(std::uint32_t group, ListedFiles::Visited& file, std::string_view folded);
  void collectPlaces();

  ListedFiles& files_;
  /// The group of each place, kAlone or kUnknown.
  std::vector<std::uint32_t> groupAt_;
  std::vector<Group> groups_;
  /// For a group whose hash others have too: the next of them, ascending by group.
  std::vector<std::pair<std::uint32_t, std::uint32_t>> nextLike_;
  /// The names of the groups.
  KeptTexts names_;
  /// The places of all groups, one group after another, and where each group's start.
  std::vector<std::uint32_t> places_;
  std::vector<std::uint32_t> placesStart_;
};

}  // namespace quorvin
