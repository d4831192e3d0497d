// SPDX-License-Identifier: GPL-2.0-or-later

// A listing that is compared with another one: read twice, so that little of it has to stay in memory.
#pragma once

#include "catalogue/folder_tree.h"
#include "catalogue/kept_texts.h"
#include "catalogue/listed_files.h"
#include "dates/general_date.h"
#include "search/format/listing_text.h"

#include <QLocale>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// What of a file's place says that it is the same one.
struct PathRule {
  /// Its volume counts too.
  bool withVolume = false;
  /// Not the whole path, but what is below ComparedListing::top().
  bool belowTop = false;
};

/// What is remembered of every file of a listing.
struct FileMark {
  /// The hash of its name as listed, and in takeMarks() of its place too.
  std::uint64_t path;
  /// The hash of its size and date.
  std::uint32_t values;
  /// Files are numbered from 0 in the order of the listing.
  std::uint32_t place;
};

/// A file of which all is known.
struct ComparedFile {
  std::uint32_t place = 0;
  /// In ComparedListing::folders().
  std::uint32_t folder = 0;
  /// As listed; valid as long as the listing.
  std::string_view name;
  /// The hash of its name in lower case and its size.
  std::uint64_t likeness = 0;
  /// Bytes; negative where the listing has no size of its own for the file.
  std::int64_t size = -1;
  /// Nothing where the listing has none of its own for the file.
  std::optional<DateValue> modified;
};

/// One of the two listings. The first reading takes 16 bytes a file, the second some 60 for each file that is
/// asked for.
class ComparedListing {
 public:
  /// `open` is called for each reading, and must give the same bytes again. Sizes and dates are read by the
  /// rules of `locale`, as a search does.
  ComparedListing(ListingOpener open, QLocale locale);

  /// The first reading. False where `stop` ended it. Throws RuntimeFault when reading fails, fault 6 for more
  /// than 4,294,967,294 files.
  bool readMarks(const StopAsked& stop);

  /// Of all files, and of the size that they have together.
  std::int64_t fileCount() const { return fileCount_; }
  std::int64_t bytes() const { return bytes_; }
  std::size_t volumeCount() const { return folders_.volumes().size(); }
  /// There are zero bytes near its start.
  bool isNoText() const { return isNoText_; }

  /// The deepest folder that all files are in or below, with a backslash at its end.
  std::string top() const;
  /// Whether there are files in a folder of the same path in both.
  bool sharesFolderWith(const ComparedListing& other) const;

  /// The marks, ascending by path, values and place. They are no longer kept here.
  std::vector<FileMark> takeMarks(const PathRule& rule);
  /// What a folder is known by, by the rule of takeMarks().
  std::string pathOf(std::uint32_t folder) const;

  /// The second reading, of the files at `places`, which ascend. False where `stop` ended it. Throws as
  /// readMarks() does, and fault 57 when the listing is another one by now.
  bool readFiles(const std::vector<std::uint32_t>& places, const StopAsked& stop);
  /// Those files, in that order.
  const std::vector<ComparedFile>& files() const { return files_; }
  const FolderTree& folders() const { return folders_; }
  /// The number in files() of the file at a place that was asked for.
  std::uint32_t fileAt(std::uint32_t place) const;

 private:
  class Marking;
  class Reading;

  bool read(HitSink& sink, const StopAsked& stop);
  std::uint32_t folderOf(const Segment& segment, std::uint32_t block);
  std::vector<std::string> pathsWithFiles() const;

  ListingOpener open_;
  QLocale locale_;
  std::vector<FileMark> marks_;
  std::vector<ListedFiles::Block> blocks_;
  PathRule rule_;
  std::string top_;
  std::int64_t fileCount_ = 0;
  std::int64_t bytes_ = 0;
  bool isNoText_ = false;
  std::vector<ComparedFile> files_;
  FolderTree folders_;
  /// The names of the files.
  KeptTexts names_;
};

}  // namespace quorvin
