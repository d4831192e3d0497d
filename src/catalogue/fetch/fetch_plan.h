// SPDX-License-Identifier: GPL-2.0-or-later

// Which volumes to fetch for files that are wanted, and what to copy from each.
#pragma once

#include "catalogue/copies.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// One of the places of a wanted file.
struct FileCopy {
  std::uint32_t volume;
  std::uint32_t folder;
  /// As listed there.
  std::string_view name;
};

/// A file that is wanted: any one of its copies will do.
struct WantedFile {
  /// As it was asked for.
  std::string_view name;
  /// Bytes; negative where it is not known.
  std::int64_t size = -1;
  /// Where it is, the place that is to be taken first in front; none where nobody has it.
  std::vector<FileCopy> copies = {};

  FileSum sum() const { return {1, size < 0 ? 0 : size}; }
};

struct FetchPlan {
  struct File {
    /// The number of the wanted file.
    std::uint32_t file;
    FileCopy copy;
  };
  struct Volume {
    std::uint32_t volume;
    /// What to copy from it, by folder; at least one.
    std::vector<File> files;
    FileSum sum;
  };

  /// In the order in which they are to be inserted: the one with most files that none before it has comes
  /// first; where that is the same, the first by name, and by number where names are the same too.
  std::vector<Volume> volumes;
  /// The numbers of the wanted files that no volume has.
  std::vector<std::uint32_t> missing;
  /// No fewer volumes hold all of it. Else they were chosen greedily: each next one for having most of what
  /// was still to be found. There may then be a way with fewer.
  bool isFewest = true;
  /// Of all that is copied.
  FileSum sum;
};

/// The fewest volumes that hold all of `files`, as VolumeCover finds them. Of ways that take equally many,
/// the one with volumes that hold most files is preferred, then the first by name. `volumeNames` has one for
/// each volume. Nothing where `stop` ended it.
std::optional<FetchPlan> planFetch(const std::vector<WantedFile>& files,
                                   const std::vector<std::string>& volumeNames, const StopAsked& stop);

}  // namespace quorvin
