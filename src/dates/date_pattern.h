// SPDX-License-Identifier: GPL-2.0-or-later

// A locale's date and time patterns, taken apart, and texts matched against them exactly as they are written.
#pragma once

#include "dates/date_text.h"
#include "dates/general_date.h"

#include <QLocale>
#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

enum class PatternField : std::uint8_t {
  Literal,
  Day,
  Month,
  MonthNameShort,
  MonthNameLong,
  Year,
  YearTwoDigits,
  Hour24,
  Hour12,
  Minute,
  Second,
  HalfDay,
};
inline constexpr std::size_t kPatternFields = static_cast<std::size_t>(PatternField::HalfDay) + 1;

struct PatternPart {
  PatternField field = PatternField::Literal;
  /// The least number of digits of a number.
  int width = 0;
  /// The text of a literal; for the half day, how it is cased: "AP" upper, "ap" lower, else as the locale has
  /// it.
  QString text;

  bool operator==(const PatternPart&) const = default;
};

/// Literals do not touch each other; blanks are plain, never two in a row, and never at the ends.
using DatePattern = std::vector<PatternPart>;

/// Takes a pattern in QLocale's notation apart. Time zone and weekday are left out, together with the
/// brackets round the zone and the commas and blanks that then stand at an end; no-break blanks become plain
/// ones.
DatePattern parseDatePattern(QStringView notation);

/// The date part of the general form: the locale's short date with a four-digit year. Where the locale's own
/// pattern lacks day, month or year it is year-month-day.
DatePattern generalDatePattern(const QLocale& locale);

/// The time part of the general form: the locale's long time without zone. Where the locale's own pattern
/// would not bring back every second of a day it is hours, minutes and seconds with colons.
DatePattern generalTimePattern(const QLocale& locale);

/// `text` with every run of blanks of any kind as one plain blank.
QString withPlainBlanks(QStringView text);

/// The place of `field` in `pattern`, or -1.
int placeOf(PatternField field, const DatePattern& pattern);

/// The words that the forms of one locale share.
struct DateVocabulary {
  WordList months;
  WordList halves;
};

/// A time of day as it was read; `half` is kBeforeNoon or kAfterNoon, or -1 when the text names none.
struct ClockReading {
  int hour = 0;
  int minute = 0;
  int second = 0;
  int half = -1;
};

/// Seconds since midnight; nothing when there is no such time. With a half of the day, hours run from 0 to
/// 12, and 0 is the same as 12.
constexpr std::optional<int> secondOfDay(const ClockReading& clock) {
  const int lastHour = clock.half < 0 ? 23 : 12;
  if (clock.hour > lastHour || clock.minute > 59 || clock.second > 59) return std::nullopt;
  const int hour = clock.half < 0 ? clock.hour : clock.hour % 12 + 12 * clock.half;
  return (hour * 60 + clock.minute) * 60 + clock.second;
}

/// 0 to 29 are of this century, 30 to 99 of the last.
constexpr int yearOfTwoDigits(int year) {
  return year < 30 ? 2000 + year : 1900 + year;
}

/// A pattern made ready for matching.
class DateForm {
 public:
  struct Match {
    CalendarDate date;
    ClockReading clock;
    /// How much of the text was taken.
    std::size_t length = 0;
  };

  explicit DateForm(const DatePattern& pattern);

  /// Matches the front of `text`, a DateText. Days, months and hours may leave out a leading zero where a
  /// sign ends them; the numbers are not checked for making a date or time. Allocates nothing.
  std::optional<Match> matchFront(std::u16string_view text, const DateVocabulary& words) const;

  /// The order of day and month of this form, if it is one in which that is a question: both are numbers, and
  /// the year does not come before them.
  std::optional<DayMonthOrder> order() const { return order_; }

  /// The day that this form's match `date` means, read in `order` where that is a question; nothing when
  /// there is no such day.
  std::optional<OrderedDay> dayOf(const CalendarDate& date, DayMonthOrder order) const {
    if (order_) {
      const bool dayFirst = *order_ == DayMonthOrder::DayFirst;
      return dayInOrder(date.year, dayFirst ? date.day : date.month, dayFirst ? date.month : date.day, order);
    }
    const std::optional<int> day = dayNumberOf(date);
    if (!day) return std::nullopt;
    return OrderedDay{*day, OrderEvidence::None};
  }

  /// Forms are equal that match the same texts.
  bool operator==(const DateForm&) const = default;

 private:
  struct Part {
    PatternField field;
    std::size_t leastDigits;
    std::size_t mostDigits;
    std::u16string literal;

    bool operator==(const Part&) const = default;
  };
  /// What was read for each field of a pattern.
  using Values = std::array<int, kPatternFields>;

  static std::size_t matchPart(const Part& part, std::u16string_view text, const DateVocabulary& words,
                               int& value);
  static Match matchOf(const Values& values, std::size_t length);

  std::vector<Part> parts_;
  std::optional<DayMonthOrder> order_;
};

}  // namespace quorvin
