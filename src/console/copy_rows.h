// SPDX-License-Identifier: GPL-2.0-or-later

// Copies as rows on a stream.
#pragma once

#include "catalogue/copy_sums.h"
#include "console/table_row.h"
#include "console/volume_labels.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvin {

/// What a list of rows is about.
enum class CopyTable { Copies, SingleFiles, Volumes, Folders };

/// Makes rows of copies and their sums. All are appended to a text, UTF-8. In text there is a line for what
/// is the same, below it one for each place; in tsv and csv a row for each place, in JSON an object for all
/// that is the same.
class CopyRows {
 public:
  struct Options {
    TableFormat format = TableFormat::Text;
    /// Rows of tsv and csv end with NUL instead of a line feed.
    bool endsWithNul = false;
    bool isForTerminal = false;
  };

  /// `copies` and `folders` must outlive the object.
  CopyRows(const Copies& copies, const EqualFolders& folders, const Options& options, const QLocale& locale);

  /// The titles of the columns, in tsv and csv.
  void addHead(std::string& text, CopyTable table) const;
  /// `number` counts the lines of tsv and csv from 1.
  void addLine(std::string& text, const CopyLine& line, std::int64_t number);
  /// `inVolumes` and `inFolders` are sums of all such files; in text they are said in front of the first one.
  void addSingleFile(std::string& text, ListedFiles::Visited& file, const std::vector<FileSum>& inVolumes,
                     const std::vector<FileSum>& inFolders);
  void addVolumeSum(std::string& text, std::uint32_t volume, const FileSum& sum);
  void addFolderSum(std::string& text, std::uint32_t folder, const FileSum& sum);

 private:
  class Row;

  bool isText() const { return options_.format == TableFormat::Text; }
  void addGroup(std::string& text, const Copies::Group& group, const std::vector<std::uint32_t>& folders,
                std::int64_t number);
  void addSet(std::string& text, const EqualFolders::Set& set, std::int64_t number);
  void addPlaces(std::string& text, const std::vector<std::uint32_t>& folders);
  void addJsonPlaces(std::string& text, const std::vector<std::uint32_t>& folders) const;
  void addPlaceLine(std::string& text, std::uint32_t folder);
  void addShown(std::string& text, std::string_view value) const { cells_.add(text, value); }
  std::string_view listingOf(std::uint32_t volume) const;
  const std::string& labelOf(std::uint32_t volume) { return labels_.of(volume); }
  std::int64_t volumesOf(const std::vector<std::uint32_t>& folders) const;
  std::string sizeText(std::int64_t bytes) const;
  std::string sumText(const FileSum& sum) const;

  const Copies& copies_;
  const EqualFolders& equalFolders_;
  const FolderTree& tree_;
  Options options_;
  QLocale locale_;
  CellForm cells_;
  /// The paths of the listings, UTF-8.
  std::vector<std::string> listings_;
  VolumeLabels labels_;
  /// Lines that are said again and again, by their number of copies.
  std::unordered_map<std::uint32_t, std::string> groupTexts_;
  /// Those of the single file before.
  std::uint32_t lastVolume_ = FolderTree::kNone;
  std::uint32_t lastFolder_ = FolderTree::kNone;
};

}  // namespace quorvin
