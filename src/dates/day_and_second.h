// The calendar behind a date value: whole days and seconds of a day.
#pragma once

#include "dates/general_date.h"

#include <optional>

namespace quorvin {

struct CalendarDate {
  int year = 0;
  int month = 0;
  int day = 0;

  bool operator==(const CalendarDate&) const = default;
};

/// A date value taken apart: days since 30 December 1899, and seconds since that day's midnight.
struct DayAndSecond {
  int day = 0;
  int second = 0;

  bool operator==(const DayAndSecond&) const = default;
};

inline constexpr int kSecondsPerDay = 86400;
/// 1 January 100 and 31 December 9999: the days that dates can have.
inline constexpr int kFirstDay = -657434;
inline constexpr int kLastDay = 2958465;

/// The day number of a date of the Gregorian calendar; nothing when there is no such day or its year is not
/// 100 to 9999.
std::optional<int> dayNumberOf(CalendarDate date);

/// The date of a day number from kFirstDay to kLastDay.
CalendarDate calendarDateOf(int day);

/// The value of a day and a second of it.
DateValue joinDateValue(DayAndSecond moment);

/// The day and second of a value, rounded to the nearest second. A value outside the days that dates can have
/// counts as the nearest moment inside, one that is not a number as the zero date.
DayAndSecond splitDateValue(DateValue value);

}  // namespace quorvin
