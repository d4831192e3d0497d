// SPDX-License-Identifier: GPL-2.0-or-later

// Writes a listing in the exact layout of the folder indexer (docs/formats/listing.md), as fast as a disk
// takes it.
#pragma once

#include "date_texts.h"
#include "file_traits.h"

#include <QLocale>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace quorvin {

/// One listing file being written. All text is UTF-8 without line ends; CR LF is added. Every writing call
/// throws std::system_error when the file cannot take more.
class CatalogueWriter {
 public:
  /// Replaces the file at `path`; "-" is standard output.
  CatalogueWriter(const std::string& path, const QLocale& locale);

  /// The head of a directory block. `folder` begins and ends with a backslash.
  void beginBlock(std::string_view volume, std::string_view folder);
  /// One sub-folder line; all of a block's come before its entries.
  void subFolder(std::string_view name);
  /// Ends the sub-folder lines, if there were any.
  void endSubFolders();
  /// One entry line. A name with a "?" is listed with the size -1 and the zero date.
  void entry(std::string_view name, const FileTraits& traits);

  /// Flushes everything to the file. Without it the file may be short.
  void finish();

  std::int64_t entries() const { return entries_; }
  std::int64_t folders() const { return folders_; }
  std::int64_t bytes() const { return bytes_; }

 private:
  struct CloseFile {
    void operator()(std::FILE* file) const;
  };

  void appendName(std::string_view name);
  void appendSize(std::int64_t size);
  void endLine();
  void writeOut();

  std::unique_ptr<std::FILE, CloseFile> file_;
  DateTexts dates_;
  std::string groupSign_;
  int groupSignCharacters_;
  std::string buffer_;
  bool subFoldersOpen_ = false;
  std::int64_t entries_ = 0;
  std::int64_t folders_ = 0;
  std::int64_t bytes_ = 0;
};

}  // namespace quorvin
