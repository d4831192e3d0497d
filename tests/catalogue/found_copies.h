// SPDX-License-Identifier: GPL-2.0-or-later

// Copies found in listings that a test writes.
#pragma once

#include "catalogue/copy_sums.h"
#include "search/listing_scan.h"
#include "search/segment/segment_store.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quorvin::test {

/// How the listings are gone over.
struct CopiesSetting {
  /// Nothing for all files.
  std::optional<SearchQuery> words = {};
  int hashBits = 64;
  ScanLimits limits = {};
  /// Segments are kept and read out of their files; else they stay in memory.
  bool areKept = true;
  /// What is in files that could be looked into.
  std::vector<PlacedContent> contents = {};
  /// Returns true where the search is to be stopped.
  StopAsked stop = [] { return false; };
};

/// All that is found in some listings.
class FoundCopies {
 public:
  explicit FoundCopies(const std::vector<QByteArray>& listings, CopiesSetting setting = {})
      : setting_(std::move(setting)),
        store_({folder_.pathOf(u"cache/"_qs), std::size_t{1} << 30}),
        files({setting_.words ? &*setting_.words : nullptr, setting_.hashBits}) {
    for (std::size_t i = 0; i < listings.size(); ++i) {
      const QString path = folder_.writeFile(QString::number(i) + u".txt"_qs, listings[i]);
      files.startListing(SourceKind::Offline, path);
      scan(path);
    }
    isFound = copies.find(setting_.stop);
    if (isFound && !setting_.contents.empty()) {
      differing = copies.takeApart(setting_.contents, setting_.stop).value_or(-1);
    }
    isFound = isFound && folders.find(setting_.stop);
  }

 private:
  void scan(const QString& path) {
    const SearchQuery everything(QString::fromUtf16(ListedFiles::kEveryEntry), 1);
    const ScanRequest request{everything, QLocale::c(), &files, [](std::int64_t) { return false; }};
    RunCounts counts;
    ScanOutcome outcome;
    scanListingFile(path, setting_.areKept ? &store_ : nullptr, request, counts, outcome, setting_.limits);
    EXPECT_EQ(counts.hits, counts.searched);
  }

  TemporaryFolder folder_;
  CopiesSetting setting_;
  SegmentStore store_;

 public:
  ListedFiles files;
  Copies copies{files};
  EqualFolders folders{copies};
  bool isFound = false;
  /// Files that hold something else than the first with their name and size.
  std::int64_t differing = 0;
};

/// Where a place or a folder is, as "0 VOLUME \Folder\": the listing's number first.
inline std::string textOfFolder(const FoundCopies& found, std::uint32_t folder) {
  const FolderTree& tree = found.files.folders();
  const FolderTree::Volume& volume = tree.volumes()[tree.volumeOf(folder)];
  return std::to_string(volume.listing) + ' ' + volume.name + ' ' + tree.path(folder);
}

/// A line as "2 x 1024 name: " and its places, sets as "2 x 5 files, 1024: ".
inline std::string textOfLine(const FoundCopies& found, const CopyLine& line) {
  std::string text;
  if (line.isFolders) {
    const EqualFolders::Set& set = found.folders.sets()[line.number];
    text = std::to_string(set.folders.size()) + " x " + std::to_string(set.holds.files) + " files, " +
           std::to_string(set.holds.bytes) + ':';
    for (const std::uint32_t folder : set.folders) text += " [" + textOfFolder(found, folder) + ']';
    return text;
  }
  const Copies::Group& group = found.copies.groups()[line.number];
  text =
      std::to_string(group.copies) + " x " + std::to_string(group.size) + ' ' + std::string(group.name) + ':';
  for (const std::uint32_t place : found.copies.placesOf(line.number)) {
    text += " [" + textOfFolder(found, found.files.folderOf(place)) + ']';
  }
  return text;
}

inline std::vector<std::string> linesOf(const FoundCopies& found, const WhichFiles& which = {}) {
  std::vector<std::string> lines;
  for (const CopyLine& line : copyLines(found.copies, found.folders, which)) {
    lines.push_back(textOfLine(found, line));
  }
  return lines;
}

/// The files on one volume only, as "1024 name [0 VOLUME \Folder\]".
inline std::vector<std::string> singlesOf(const FoundCopies& found, const WhichFiles& which = {}) {
  std::vector<std::string> singles;
  visitSingleFiles(
      found.copies, which,
      [&](ListedFiles::Visited& file) {
        singles.push_back(std::to_string(file.size) + ' ' + std::string(file.name().listed) + " [" +
                          textOfFolder(found, file.folder) + ']');
      },
      [] { return false; });
  return singles;
}

}  // namespace quorvin::test
