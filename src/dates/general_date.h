// SPDX-License-Identifier: GPL-2.0-or-later

// Dates as the program keeps them, the calendar behind them, and how people of a locale write and read them.
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

namespace quorvin {

/// A point in time without a zone: days since 30 December 1899, the fraction being the time of day. The zero
/// date is 30 December 1899, midnight. For dates before it the fraction still counts forward in the day's
/// magnitude: -1.25 is 29 December 1899, 06:00. Times are kept to the second.
using DateValue = double;

/// The value of a calendar date and time; the time zone is ignored (wall clock as it stands), parts of a
/// second are dropped. Dates run from 1 January 100 to 31 December 9999; a moment outside counts as the
/// nearest one inside. An invalid moment is the zero date.
DateValue dateValueOf(const QDateTime& moment);

/// The wall-clock date and time of a value, rounded to the nearest second. It is given as UTC, whatever zone
/// the value is from, since a local time may be missing from the calendar. A value outside the dates is taken
/// as the nearest one inside, one that is not a number as the zero date.
QDateTime dateTimeOf(DateValue value);

/// The general date form: the locale's short date with a four-digit year, a blank, and the locale's long time
/// without zone name, in the locale's digits, every no-break blank turned into a plain one. The time is left
/// out when it is exactly midnight; the date is left out when the day is the zero date (so the zero date
/// itself is the time alone). readGeneralDate reads it back to the second. For many dates: GeneralDateWriter.
QString generalDateText(DateValue value, const QLocale& locale);

/// Reads a date, a time, or both in either order, as people write them: the locale's own general form first,
/// its other usual forms, then numeric dates with "/", "-", "." or blanks in the locale's order (day and
/// month swapped when only that makes a date), ISO dates, month names (the locale's and English), 12- and
/// 24-hour times, and at last the general form of any other locale. Years have two or four digits; those of
/// two are 2000 to 2029 and 1930 to 1999. In Thai, the years 2443 to 2642 are of the Buddhist calendar. A
/// date without a year is of this year; a month with a four-digit year alone is its first day. A time alone
/// is on the zero date. Where the locale writes times with dots, two numbers with a dot are a time if they
/// can be one. Blanks at both ends are ignored. Nothing when the text cannot be read so, or has more than 200
/// characters. For many dates: GeneralDateReader.
std::optional<DateValue> readGeneralDate(QStringView text, const QLocale& locale);

/// A date as the hit list shows it: abbreviated month name, comma, blank, two-digit day, blank, two-digit
/// year
/// ("Jan, 15 04"), in the locale's words and digits.
QString shortMonthDateText(DateValue value, const QLocale& locale);

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

/// The same as dayNumberOf() as a plain number, which goes through a register where it is read millions of
/// times; kNoDay for nothing.
inline constexpr int kNoDay = kFirstDay - 1;
int dayNumberOrNone(int year, int month, int day);

/// The day number of a date of the Gregorian calendar; nothing when there is no such day or its year is not
/// 100 to 9999.
inline std::optional<int> dayNumberOf(const CalendarDate& date) {
  const int day = dayNumberOrNone(date.year, date.month, date.day);
  return day == kNoDay ? std::nullopt : std::optional(day);
}

/// Which comes first in a date whose day and month are both numbers and whose year is last or missing. (After
/// a year, the month always comes first.)
enum class DayMonthOrder : std::uint8_t { DayFirst, MonthFirst };

/// What a date says about that order.
enum class OrderEvidence : std::uint8_t {
  /// Nothing: in either order it is the same date.
  None,
  /// It is a date in this order only.
  DayFirst,
  MonthFirst,
  /// It is a date in both orders, and another one in each.
  Either,
};

/// The order that the evidence is for, if it is for one.
std::optional<DayMonthOrder> orderOf(OrderEvidence evidence);

/// What was read of a text, and what it says about the order of day and month.
struct DateReading {
  DateValue value = 0;
  OrderEvidence evidence = OrderEvidence::None;

  bool operator==(const DateReading&) const = default;
};

struct OrderedDay {
  /// As dayNumberOf gives it.
  int day = 0;
  OrderEvidence evidence = OrderEvidence::None;

  bool operator==(const OrderedDay&) const = default;
};

/// The day of a date with two numbers, of which one is the day and one the month: read in `order`, or in the
/// other one when only that makes a date; nothing when neither does.
inline std::optional<OrderedDay> dayInOrder(int year, int first, int second, DayMonthOrder order) {
  constexpr int kLastMonth = 12;
  OrderEvidence evidence = OrderEvidence::Either;
  bool dayFirst = order == DayMonthOrder::DayFirst;
  if (first == second) {
    evidence = OrderEvidence::None;
  } else if (first > kLastMonth || second > kLastMonth) {
    dayFirst = first > kLastMonth;
    evidence = dayFirst ? OrderEvidence::DayFirst : OrderEvidence::MonthFirst;
  }
  const std::optional<int> day = dayNumberOf({year, dayFirst ? second : first, dayFirst ? first : second});
  if (!day) return std::nullopt;
  return OrderedDay{*day, evidence};
}

/// The date of a day number from kFirstDay to kLastDay.
CalendarDate calendarDateOf(int day);

/// The value of a day and a second of it.
constexpr DateValue joinDateValue(DayAndSecond moment) {
  const double time = static_cast<double>(moment.second) / kSecondsPerDay;
  return moment.day < 0 ? moment.day - time : moment.day + time;
}

/// The day and second of a value, rounded to the nearest second. A value outside the days that dates can have
/// counts as the nearest moment inside, one that is not a number as the zero date.
DayAndSecond splitDateValue(DateValue value);

}  // namespace quorvin
