// The entry line of a file. The whole layout: docs/formats/listing.md.
#pragma once

#include "index/listed_dates.h"

#include <QLocale>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

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

/// Writes entry lines in the numbers and dates of one locale.
class EntryLines {
 public:
  explicit EntryLines(const QLocale& locale);

  /// Appends the line, without an end.
  void append(std::string& line, const ListedFile& file);

 private:
  void appendName(std::string& line, std::string_view name) const;
  void appendSize(std::string& line, std::int64_t size) const;

  std::string groupSign_;
  ListedDates dates_;
};

}  // namespace quorvin
