#include "dates/day_and_second.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace quorvin {

namespace {

constexpr std::chrono::sys_days kZeroDay = std::chrono::year{1899} / std::chrono::December / 30;

}  // namespace

std::optional<int> dayNumberOf(CalendarDate date) {
  // The calendar's own types hold small numbers only, so wild ones are refused before they are put in.
  if (date.year < 100 || date.year > 9999) return std::nullopt;
  if (date.month < 1 || date.month > 12 || date.day < 1 || date.day > 31) return std::nullopt;
  const std::chrono::year_month_day day{std::chrono::year{date.year},
                                        std::chrono::month{static_cast<unsigned>(date.month)},
                                        std::chrono::day{static_cast<unsigned>(date.day)}};
  if (!day.ok()) return std::nullopt;
  return static_cast<int>((std::chrono::sys_days{day} - kZeroDay).count());
}

CalendarDate calendarDateOf(int day) {
  const std::chrono::year_month_day date{kZeroDay + std::chrono::days{day}};
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

DateValue joinDateValue(DayAndSecond moment) {
  const double time = static_cast<double>(moment.second) / kSecondsPerDay;
  return moment.day < 0 ? moment.day - time : moment.day + time;
}

DayAndSecond splitDateValue(DateValue value) {
  if (std::isnan(value)) return {};
  // Before the zero day the fraction counts away from zero, so the last second of the first day lies below
  // it.
  if (value <= kFirstDay - 1.0) return {kFirstDay, 0};
  if (value >= kLastDay + 1.0) return {kLastDay, kSecondsPerDay - 1};
  const double wholeDays = std::trunc(value);
  const auto day = static_cast<int>(wholeDays);
  const auto second = static_cast<int>(std::lround(std::abs(value - wholeDays) * kSecondsPerDay));
  if (second < kSecondsPerDay) return {day, second};
  if (day == kLastDay) return {day, kSecondsPerDay - 1};
  return {day + 1, 0};
}

}  // namespace quorvin
