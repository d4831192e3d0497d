// SPDX-License-Identifier: GPL-2.0-or-later

// One folder as a walk with a plan reads it: all of its names, and what they stand for.
#pragma once

#include "files/folder_calls.h"
#include "files/folder_reader.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvin {

/// The look-ups of one folder, in the order in which the walk makes them. Any thread may make some of them;
/// who makes which is agreed on under the lock of their owner.
class LookUps {
 public:
  /// In place of an error: the walk has to make this one itself.
  static constexpr int kNotKnown = -1;

  explicit LookUps(std::shared_ptr<const std::string> names) : names_(std::move(names)) {}

  /// Appends the look-up of a name that starts at `place` of the names. Before other threads know of it.
  void add(std::size_t place) { rows_.emplace_back(place); }
  /// One that has been made.
  void add(std::size_t place, int error, const NameStatus& status);
  /// Those from `row` on once more, none of them made.
  std::shared_ptr<LookUps> from(std::size_t row) const;

  std::size_t size() const { return rows_.size(); }
  const char* name(std::size_t row) const { return names_->c_str() + rows_[row].place; }

  /// Under the lock: the first that nobody has taken, and taking all up to `end`.
  std::size_t firstLeft() const { return firstLeft_; }
  void takeUpTo(std::size_t end) { firstLeft_ = end; }

  /// Makes those from `first` to `end`, which have been taken, until they are given up.
  void make(const Descriptor& folder, std::size_t first, std::size_t end);
  /// Whoever makes look-ups of these ends after the one at hand.
  void giveUp() { areGivenUp_ = true; }

  bool isMade(std::size_t row) const { return rows_[row].isMade.load(std::memory_order_acquire); }
  /// Once it is made: the error, 0 for none.
  int result(std::size_t row, NameStatus& status) const;

 private:
  struct Row {
    explicit Row(std::size_t at) : place(at) {}
    Row(Row&& other) noexcept
        : place(other.place), error(other.error), status(other.status), isMade(other.isMade.load()) {}

    std::size_t place;
    int error = 0;
    NameStatus status;
    std::atomic<bool> isMade = false;
  };

  /// Shared, since a thread may still use them when the folder is not needed any more.
  std::shared_ptr<const std::string> names_;
  std::vector<Row> rows_;
  std::size_t firstLeft_ = 0;
  std::atomic<bool> areGivenUp_ = false;
};

/// What was read of a folder.
struct FolderContents {
  struct Name {
    std::size_t place;
    std::size_t length;
    NameKind kind;
  };

  /// One after another, with a NUL behind each.
  std::shared_ptr<const std::string> bytes;
  std::vector<Name> names;
  /// Why there are no more, 0 for no reason: then the folder is whole, or the walk has to read the rest.
  int error = 0;
  bool isWhole = false;
  /// Those that are made at once have been.
  std::shared_ptr<LookUps> lookUps;
  /// The names of the sub-folders that the walk enters.
  std::vector<std::string> subFolders;

  FolderName name(std::size_t row) const {
    return {std::string_view(*bytes).substr(names[row].place, names[row].length), names[row].kind};
  }
};

/// Reads the names of `folder`, which is `way` bytes below the top, up to a number of them that keeps memory
/// small, and makes the look-ups that are made at once. `areGivenUp` ends it after the call at hand; the
/// result then is nobody's. Throws std::bad_alloc alone.
FolderContents readContents(const Descriptor& folder, std::size_t way, const WalkPlan& plan,
                            FolderStretch& stretch, const std::atomic<bool>& isGivenUp);

}  // namespace quorvin
