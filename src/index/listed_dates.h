// Dates of files as a listing holds them.
#pragma once

#include "dates/day_and_second.h"
#include "dates/general_date_writer.h"

#include <QLocale>

#include <cstdint>
#include <string>
#include <vector>

namespace quorvin {

/// Moments in the general date form of a locale, in the machine's time zone. A listing has millions of them,
/// so the texts that a part of a date can have are made once and then only put together.
class ListedDates {
 public:
  explicit ListedDates(const QLocale& locale);

  /// Appends the wall-clock date and time of `seconds` since the start of 1970, UTC.
  void append(std::string& line, std::int64_t seconds);
  /// Appends the zero date.
  void appendZero(std::string& line) const { line += zeroDate_; }

 private:
  // One field of a pattern with what is beside it, as a text for each value that the field can have.
  struct Part {
    PatternField field;
    std::vector<std::string> texts;
  };
  using Parts = std::vector<Part>;

  Parts partsOf(const DatePattern& pattern, const std::string& before) const;
  static void appendParts(std::string& line, const Parts& parts, CalendarDate date, int second);
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

}  // namespace quorvin
