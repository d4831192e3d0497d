// SPDX-License-Identifier: GPL-2.0-or-later

// The listing that is made of a list's entries, by the line writer of the indexer.
#pragma once

#include "catalogue/import/entry_sorter.h"
#include "files/file_writer.h"
#include "index/entry_line.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvin {

/// What came into a listing, and what could not.
struct ImportCounts {
  std::int64_t folders = 0;
  std::int64_t files = 0;
  std::int64_t withoutSize = 0;
  std::int64_t withoutDate = 0;
  /// Files whose date is none, since its day and month may have changed places.
  std::int64_t undecidedDates = 0;
  /// Names that came again in the same folder; the last one counts.
  std::int64_t repeated = 0;
  /// Names in folders that a listing cannot hold, and such folders themselves.
  std::int64_t leftOut = 0;
  /// Names that hold a mark of the listing format, so that a search takes their lines for others.
  std::int64_t misread = 0;
};

/// Writes blocks, a folder's before those within it, and in each of them its sub-folders and files in the
/// order of their names. A file has its size and date where they are known, else -1 and the zero date; a name
/// that a listing cannot hold has "?" in it and neither, as the indexer writes it. Each line is long enough
/// for readers to take its size and date. Folders above the first one that the list goes into, which hold
/// nothing else, have no block. One folder's lines are kept in memory at a time.
class ImportedListing {
 public:
  /// `order` is that of dates with two readings; such dates are left out without it. The writer must outlive
  /// the object.
  ImportedListing(FileWriter& writer, const QString& label, const QLocale& locale,
                  std::optional<DayMonthOrder> order);

  /// Takes the next entry in the order of EntrySorter. Throws RuntimeFault where it cannot be written.
  void add(const SortedEntry& entry);
  /// Writes what is left; throws as add() does.
  void finish();

  const ImportCounts& counts() const { return counts_; }

 private:
  void startFolder(std::string_view folder);
  void finishName();
  void finishFolder();
  void addFile();
  void addFolder();

  FileWriter& writer_;
  std::string volumeLine_;
  std::optional<DayMonthOrder> order_;
  EntryLines entryLines_;
  ImportCounts counts_;

  bool isStarted_ = false;
  std::string folder_;
  std::string listedFolder_;
  bool canBeListed_ = true;
  bool isGoneInto_ = false;
  bool hasBlocks_ = false;
  std::int64_t subFolders_ = 0;
  std::int64_t files_ = 0;
  std::string subFolderLines_;
  std::string fileLines_;

  // The name that may come again.
  std::string name_;
  bool isFolder_ = false;
  std::int64_t times_ = 0;
  std::optional<std::int64_t> size_;
  ListDate modified_;
};

}  // namespace quorvin
