// SPDX-License-Identifier: GPL-2.0-or-later

// What is in the files that may be copies of each other.
#pragma once

#include "catalogue/copies.h"
#include "state/program_state.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// Looks into the files of those groups that are wanted, as far as they are at hand: listed by an own folder,
/// there now, and as long as listed. A file is only read where its group has another one at hand, since there
/// is nothing to compare it with otherwise. Files without any byte are not asked about.
///
/// Takes up 24 bytes for each file that is read, and a bit for each place.
class CopyContents {
 public:
  struct Parts {
    /// Has the own folders.
    const ProgramState& state;
    /// Of each listing, by its number.
    const std::vector<SourceKind>& kinds;
    /// Told how many of all bytes that are to be read have been read, several times a second or seldom as the
    /// drive has it.
    std::function<void(std::int64_t done, std::int64_t all)> reading = [](std::int64_t, std::int64_t) {};
  };

  struct Counts {
    FileSum read;
    /// Files in groups that may be copies and could not be looked into: they are gone, not at hand, have
    /// another length by now, or cannot be read.
    std::int64_t notAtHand = 0;
  };

  /// Both must outlive the object.
  CopyContents(const Copies& copies, Parts parts);

  /// Reads; to be called once. False where `stop`, which is asked after each mebibyte, ended it. Throws as
  /// ListedFiles::visitFiles() does.
  bool read(const StopAsked& stop);

  /// Ascending by place.
  const std::vector<PlacedContent>& found() const { return found_; }
  const Counts& counts() const { return counts_; }

 private:
  class Finder;

  bool isAskedAbout(const ListedFiles::Visited& file) const;
  bool lookForFiles(Finder& finder, const StopAsked& stop);
  bool readFiles(Finder& finder, const StopAsked& stop);
  bool readFile(const QString& path, const ListedFiles::Visited& file, const StopAsked& stop);

  const Copies& copies_;
  Parts parts_;
  /// A bit for each place whose file is at hand.
  std::vector<bool> isAtHand_;
  /// How many of each group are.
  std::vector<std::uint32_t> atHand_;
  std::int64_t bytesToRead_ = 0;
  std::int64_t bytesRead_ = 0;
  std::vector<char> buffer_;
  std::vector<PlacedContent> found_;
  Counts counts_;
};

}  // namespace quorvin
