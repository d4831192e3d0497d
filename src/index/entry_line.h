// SPDX-License-Identifier: GPL-2.0-or-later

// The lines of a listing. The whole layout: docs/formats/listing.md.
#pragma once

#include "dates/general_date.h"
#include "dates/general_date_writer.h"

#include <QLocale>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// A file as its entry line shows it.
struct ListedFile {
  /// As listedText() gives it.
  std::string_view name;
  /// In bytes; -1 where it is not known.
  std::int64_t size = -1;
  /// Seconds since the start of 1970, UTC; nothing where the zero date is to stand.
  std::optional<std::int64_t> modified;
};

/// The largest size that fits the columns that readers take; a larger one is written as this.
inline constexpr std::int64_t kLargestListedSize = 9'999'999'999'999;
/// The largest size that is grouped; the signs between the groups of a larger one would not fit.
inline constexpr std::int64_t kLargestGroupedSize = 9'999'999'999;

/// Moments in the general date form of a locale, in the machine's time zone. A listing has millions of them,
/// so the texts that a part of a date can have are made once and then only put together.
class ListedDates {
 public:
  explicit ListedDates(const QLocale& locale);

  /// Appends the wall-clock date and time of `seconds` since the start of 1970, UTC.
  void append(std::string& line, std::int64_t seconds);
  /// Appends the date and time of a wall clock, in seconds since it showed the start of 1970.
  void appendWallClock(std::string& line, std::int64_t seconds);
  /// Appends the zero date.
  void appendZero(std::string& line) const { line += zeroDate_; }

 private:
  // Copied with all its room, which takes less time than copying its own length.
  struct ShortText {
    static constexpr std::size_t kRoom = 16;
    std::array<char, kRoom> bytes{};
    std::uint8_t length = 0;
  };
  // One field of a pattern with the literal text beside it, as a text for each value that the field can have.
  // What is longer than a ShortText is as many parts as it takes.
  struct Part {
    PatternField field;
    std::vector<ShortText> texts;
  };
  using Parts = std::vector<Part>;

  Parts partsOf(const DatePattern& pattern, const std::string& before) const;
  static void addParts(Parts& parts, PatternField field, const std::vector<std::string>& texts);
  static char* writeParts(char* place, const Parts& parts, CalendarDate date, int second);
  void appendRare(std::string& line, std::int64_t days, int second) const;
  int offsetAt(std::int64_t seconds);

  GeneralDateWriter writer_;
  Parts date_;
  // With the blank between date and time.
  Parts time_;
  std::string zeroDate_;
  // The time zone's offsets in seconds, from 1970 on.
  std::vector<std::int32_t> offsets_;
};

/// Append the line that gives a block its volume, its folder (a listed path with a backslash at its end), or
/// one of its sub-folders, without an end. Texts are as listedText() and lineText() give them.
inline void appendVolumeLine(std::string& line, std::string_view label) {
  line += "Volume:    ";
  line += label;
}
inline void appendDirectoryLine(std::string& line, std::string_view folder) {
  line += "Directory: ";
  line += folder;
}
inline void appendSubFolderLine(std::string& line, std::string_view name) {
  line += "<DIR> ";
  line += name;
}

/// A folder whose path in the listing, with the backslash at its end, has more bytes is left out: readers
/// refuse lines of 1 MiB and more.
inline constexpr std::size_t kLongestListedFolder = 1'000'000;

/// Writes entry lines in the numbers and dates of one locale.
class EntryLines {
 public:
  explicit EntryLines(const QLocale& locale);

  /// Appends the line, without an end.
  void append(std::string& line, const ListedFile& file);
  /// The same for a file whose `modified` is that of a wall clock, whatever its zone.
  void appendWithWallClock(std::string& line, const ListedFile& file);

 private:
  void appendNameAndSize(std::string& line, const ListedFile& file) const;
  void appendName(std::string& line, std::string_view name) const;
  void appendSize(std::string& line, std::int64_t size) const;

  std::string groupSign_;
  ListedDates dates_;
};

}  // namespace quorvin
