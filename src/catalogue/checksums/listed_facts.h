// SPDX-License-Identifier: GPL-2.0-or-later

// What a listing tells of each file of a folder: how large it was, and when it was last changed.
#pragma once

#include "catalogue/checksums/files_below.h"
#include "catalogue/listed_files.h"
#include "dates/general_date.h"
#include "search/format/listing_text.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// The facts of one listing, 24 bytes a file. Files are asked for by their paths from the folder down, with
/// slashes between; a listing has them with backslashes and cut to 65 characters, so two of them may look
/// alike, and then nothing is known of either.
class ListedFacts {
 public:
  struct Facts {
    std::int64_t size = 0;
    /// Nothing where the listing has the zero date.
    std::optional<DateValue> modified;

    /// Whether they may be of `file`: a date that the listing does not have says nothing.
    bool mayBeOf(const FileBelow& file) const;
  };

  /// Sizes and dates are read by the rules of `locale`. False where `stop` ended it. Throws RuntimeFault when
  /// reading fails.
  bool read(const ListingOpener& open, const QLocale& locale, const StopAsked& stop);

  /// Which folder of the listing is asked about: `folder` where the listing is of it, or else, as with a disk
  /// that is mounted elsewhere, the one below which the deepest folder of all listed files has the path
  /// `top`. False where neither is there, and then nothing is known of any file.
  bool lookBelow(const QString& folder, std::string_view top);
  /// The folder that is asked about, as a path with slashes; what a listing cannot hold of it is "?".
  QString folder() const;

  /// Nothing where the listing does not have the file, or no size of its own for it.
  std::optional<Facts> find(std::string_view path) const;

 private:
  class Reading;
  struct Entry {
    std::uint64_t key;
    std::int64_t size;
    DateValue modified;
  };

  std::vector<Entry> entries_;
  /// The deepest folder that has all files, with a backslash at its end; nothing where there are none.
  std::optional<std::string> top_;
  std::string below_;
  bool isKnown_ = false;
};

/// The deepest folder that all of the paths have in common, with a slash at its end; empty for none.
std::string commonFolderOf(const std::vector<std::string_view>& paths);

}  // namespace quorvin
