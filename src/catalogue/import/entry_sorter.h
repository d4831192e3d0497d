// SPDX-License-Identifier: GPL-2.0-or-later

// Puts any number of entries in the order of a listing.
#pragma once

#include "catalogue/import/list_entry.h"
#include "files/file_aside.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// What is known of one name in one folder.
struct SortedEntry {
  /// The names from the top to the folder, with a NUL between each two; empty for the top.
  std::string_view folder;
  /// Empty for the folder itself: the list had it as a folder that it goes into.
  std::string_view name;
  EntryKind kind = EntryKind::File;
  std::optional<std::int64_t> size = {};
  ListDate modified = {};
};

/// Sorts entries by folder, a folder before those within it, and by name, both in the order of their bytes;
/// those with the same folder and name stay in the order in which they came. It keeps up to `memory` bytes of
/// them, and needs twice as much while it sorts. What does not fit goes into files beside `place`, the
/// listing to be, which vanish with the object.
class EntrySorter {
 public:
  static constexpr std::size_t kUsualMemory = 96 << 20;

  explicit EntrySorter(QString place, std::size_t memory = kUsualMemory);
  ~EntrySorter();
  EntrySorter(const EntrySorter&) = delete;
  EntrySorter& operator=(const EntrySorter&) = delete;

  /// Throws RuntimeFault where a file cannot be written.
  void add(const SortedEntry& entry);

  /// No more are added from here on; throws as add() does.
  void finish();
  /// The next entry in order; false after the last. Its views are valid until the next call. Throws
  /// RuntimeFault where a file cannot be read.
  bool next(SortedEntry& entry);

  /// How many files have been written.
  std::size_t fileCount() const { return files_.size(); }

 private:
  class Run;
  struct Row {
    std::size_t folder;
    std::size_t name;
    std::uint32_t folderLength;
    std::uint32_t nameLength;
    std::int64_t size;
    ListDate modified;
    EntryKind kind;
  };

  SortedEntry entryOf(const Row& row) const;
  void sortRows();
  void writeRows();

  QString place_;
  std::size_t memory_;
  std::string text_;
  std::vector<Row> rows_;
  std::size_t nextRow_ = 0;
  std::vector<std::unique_ptr<FileAside>> files_;
  std::vector<std::unique_ptr<Run>> runs_;
  /// The one whose entry was given last.
  Run* given_ = nullptr;
};

}  // namespace quorvin
