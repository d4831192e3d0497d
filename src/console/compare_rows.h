// SPDX-License-Identifier: GPL-2.0-or-later

// Differences of two listings as rows on a stream.
#pragma once

#include "catalogue/listing_comparison.h"
#include "console/table_row.h"

#include <QLocale>

#include <string>

namespace quorvin {

/// Makes rows of changes. All are appended to a text, UTF-8. In text a row starts with "+" for what was
/// added,
/// "-" for what was removed, "*" for what has changed and ">" for what was moved.
class CompareRows {
 public:
  struct Options {
    TableFormat format = TableFormat::Text;
    /// Rows of tsv and csv end with NUL instead of a line feed.
    bool endsWithNul = false;
    bool isForTerminal = false;
  };

  /// `comparison` must outlive the object.
  CompareRows(const ListingComparison& comparison, const Options& options, const QLocale& locale);

  /// The titles of the columns, in tsv and csv.
  void addHead(std::string& text, bool byFolder) const;
  void addChange(std::string& text, const FileChange& change) const;
  void addFolder(std::string& text, const FolderChanges& changes) const;

 private:
  bool isText() const { return options_.format == TableFormat::Text; }
  void addLine(std::string& text, const FileChange& change) const;
  void addTexts(std::string& text, const FileChange& change) const;
  void addPath(std::string& text, const FolderTree& tree, const ComparedFile& file) const;
  void addVolume(std::string& text, const FolderTree& tree, std::uint32_t folder) const;
  std::string factsOf(const ComparedFile& file) const;

  const ListingComparison& comparison_;
  Options options_;
  QLocale locale_;
  CellForm cells_;
  /// Only where one of the listings has more than one volume does a line say which.
  bool withVolume_;
};

}  // namespace quorvin
