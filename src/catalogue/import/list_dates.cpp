// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_dates.h"

#include "catalogue/import/list_text.h"
#include "dates/general_date.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

constexpr std::int64_t kDayOf1970 = 25569;
constexpr int kMonths = 12;

/// A number of exactly `digits` digits.
std::optional<int> takeDigits(std::string_view& text, std::size_t digits) {
  if (text.size() < digits || !isAllDigits(text.substr(0, digits))) return std::nullopt;
  int value = 0;
  for (const char byte : text.substr(0, digits)) value = value * 10 + (byte - '0');
  text.remove_prefix(digits);
  return value;
}

/// Hands `text` on to `take`, and puts it back where that gives nothing.
template <typename Take>
auto attempt(std::string_view& text, Take&& take) -> decltype(take(text)) {
  const std::string_view before = text;
  auto taken = take(text);
  if (!taken) text = before;
  return taken;
}

void dropFraction(std::string_view& text) {
  if (text.size() < 2 || (text[0] != '.' && text[0] != ',') || !isAsciiDigit(text[1])) return;
  text.remove_prefix(1);
  while (!text.empty() && isAsciiDigit(text.front())) text.remove_prefix(1);
}

/// "10:20" or "10:20:30.25", as seconds of the day.
std::optional<std::int64_t> takeTime(std::string_view& text) {
  return attempt(text, [](std::string_view& rest) -> std::optional<std::int64_t> {
    std::optional<int> hour = takeDigits(rest, 2);
    if (!hour) hour = takeDigits(rest, 1);
    if (!hour || *hour > 23 || !takeText(rest, ":")) return std::nullopt;
    const std::optional<int> minute = takeDigits(rest, 2);
    if (!minute || *minute > 59) return std::nullopt;
    int second = 0;
    if (takeText(rest, ":")) {
      const std::optional<int> told = takeDigits(rest, 2);
      if (!told || *told > 60) return std::nullopt;
      second = std::min(*told, 59);
      dropFraction(rest);
    }
    return (*hour * 60 + *minute) * 60 + second;
  });
}

/// "Z", "+0100", "+01:00" or " +0100", in seconds east of UTC.
std::optional<std::int64_t> takeZone(std::string_view& text) {
  return attempt(text, [](std::string_view& rest) -> std::optional<std::int64_t> {
    if (takeText(rest, "Z")) return 0;
    takeText(rest, " ");
    if (rest.empty() || (rest.front() != '+' && rest.front() != '-')) return std::nullopt;
    const int sign = rest.front() == '-' ? -1 : 1;
    rest.remove_prefix(1);
    const std::optional<int> hours = takeDigits(rest, 2);
    takeText(rest, ":");
    const std::optional<int> minutes = takeDigits(rest, 2);
    if (!hours || !minutes || (!rest.empty() && rest.front() != ' ' && rest.front() != '\t'))
      return std::nullopt;
    return sign * std::int64_t{(*hours * 60 + *minutes) * 60};
  });
}

/// The half of the day behind a time: "AM", "PM", "am", "pm", "a", "p".
std::optional<std::int64_t> inHalf(std::string_view& text, std::int64_t second) {
  const std::string_view before = text;
  takeText(text, " ");
  const char half = text.empty() ? '\0' : text.front();
  const bool isMorning = half == 'A' || half == 'a';
  const bool isAfternoon = half == 'P' || half == 'p';
  if (isMorning || isAfternoon) {
    std::string_view rest = text.substr(1);
    if (!takeText(rest, "M")) takeText(rest, "m");
    const bool endsHere = rest.empty() || rest.front() == ' ' || rest.front() == '\t';
    if (endsHere) {
      constexpr std::int64_t kHalf = 12 * 3600;
      if (second < 3600 || second >= kHalf + 3600) return std::nullopt;
      text = rest;
      return second % kHalf + (isAfternoon ? kHalf : 0);
    }
  }
  text = before;
  return second;
}

std::optional<int> takeMonthName(std::string_view& text) {
  static constexpr std::array<std::string_view, kMonths> kNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const auto found = std::ranges::find(kNames, text.substr(0, 3));
  if (found == kNames.end()) return std::nullopt;
  text.remove_prefix(3);
  return static_cast<int>(found - kNames.begin()) + 1;
}

ListDate wallClock(std::int64_t day, std::int64_t second) {
  return {ListDate::Kind::WallClock, day * kSecondsPerDay + second};
}

int yearOf(std::int64_t day) {
  return calendarDateOf(static_cast<int>(day + kDayOf1970)).year;
}

/// The date in the year that it must be of when the list was made on the day `made`.
std::optional<ListDate> withYear(int month, int day, std::int64_t second, std::optional<std::int64_t> made) {
  // A leap year has every date.
  if (!wallClockDay(2000, month, day)) return std::nullopt;
  if (!made) return ListDate{};
  const int thisYear = yearOf(*made);
  for (int year = thisYear + 1; year >= thisYear - 8; --year) {
    const std::optional<std::int64_t> found = wallClockDay(year, month, day);
    if (found && *found <= *made + 1) return wallClock(*found, second);
  }
  return ListDate{};
}

int wholeYear(int year, std::size_t digits) {
  if (digits != 2) return year;
  return year + (year < 30 ? 2000 : 1900);
}

}  // namespace

std::optional<std::int64_t> wallClockDay(int year, int month, int day) {
  const std::optional<int> number = dayNumberOf({year, month, day});
  if (!number) return std::nullopt;
  return *number - kDayOf1970;
}

std::optional<ListDate> takeIsoDate(std::string_view& text, char sign) {
  return attempt(text, [sign](std::string_view& rest) -> std::optional<ListDate> {
    const std::string_view between(&sign, 1);
    const std::optional<int> year = takeDigits(rest, 4);
    if (!year || !takeText(rest, between)) return std::nullopt;
    const std::optional<int> month = takeDigits(rest, 2);
    if (!month || !takeText(rest, between)) return std::nullopt;
    const std::optional<int> dayOfMonth = takeDigits(rest, 2);
    if (!dayOfMonth) return std::nullopt;
    const std::optional<std::int64_t> day = wallClockDay(*year, *month, *dayOfMonth);
    if (!day || (!rest.empty() && isAsciiDigit(rest.front()))) return std::nullopt;
    std::string_view behind = rest;
    if (!takeText(behind, "T")) takeBlanks(behind);
    const std::optional<std::int64_t> second = takeTime(behind);
    if (!second) return wallClock(*day, 0);
    rest = behind;
    ListDate date = wallClock(*day, *second);
    if (const std::optional<std::int64_t> zone = takeZone(rest)) {
      date = {ListDate::Kind::Moment, date.seconds - *zone};
    }
    return date;
  });
}

std::optional<ListDate> takeMonthNameDate(std::string_view& text, std::optional<std::int64_t> made) {
  return attempt(text, [made](std::string_view& rest) -> std::optional<ListDate> {
    const std::optional<int> month = takeMonthName(rest);
    if (!month || takeBlanks(rest) == 0) return std::nullopt;
    const std::optional<std::int64_t> dayOfMonth = takeNumber(rest);
    if (!dayOfMonth || *dayOfMonth > 31 || takeBlanks(rest) == 0) return std::nullopt;
    const int dayNumber = static_cast<int>(*dayOfMonth);
    const std::string_view time = rest;
    const std::optional<std::int64_t> second = takeTime(rest);
    const bool hasSeconds = std::ranges::count(time.substr(0, time.size() - rest.size()), ':') == 2;
    std::string_view behind = rest;
    if (second) takeText(behind, " ");
    const std::optional<int> year = takeDigits(behind, 4);
    const bool isYear = year && (behind.empty() || behind.front() == ' ' || behind.front() == ']');
    // "Nov 23 02:35 2026.txt" is a time and a name: a year behind a time comes only with its seconds.
    if (isYear && (!second || hasSeconds)) {
      const std::optional<std::int64_t> day = wallClockDay(*year, *month, dayNumber);
      if (!day) return std::nullopt;
      rest = behind;
      return wallClock(*day, second.value_or(0));
    }
    if (!second) return std::nullopt;
    return withYear(*month, dayNumber, *second, made);
  });
}

std::optional<ListDate> takeYearlessDate(std::string_view& text, std::optional<std::int64_t> made) {
  return attempt(text, [made](std::string_view& rest) -> std::optional<ListDate> {
    const std::optional<int> month = takeDigits(rest, 2);
    if (!month || !takeText(rest, "-")) return std::nullopt;
    const std::optional<int> day = takeDigits(rest, 2);
    if (!day || !takeText(rest, " ")) return std::nullopt;
    const std::optional<std::int64_t> second = takeTime(rest);
    if (!second) return std::nullopt;
    return withYear(*month, *day, *second, made);
  });
}

std::optional<ListDate> takeNumericDate(std::string_view& text) {
  return attempt(text, [](std::string_view& rest) -> std::optional<ListDate> {
    std::array<int, 3> numbers{};
    std::array<std::size_t, 3> digits{};
    char sign = '\0';
    for (std::size_t part = 0; part < numbers.size(); ++part) {
      const std::string_view before = rest;
      const std::optional<std::int64_t> number = takeNumber(rest);
      digits[part] = before.size() - rest.size();
      if (!number || digits[part] > 4) return std::nullopt;
      numbers[part] = static_cast<int>(*number);
      if (part == 2) break;
      const char next = rest.empty() ? '\0' : rest.front();
      const bool fits = part == 0 ? next == '-' || next == '.' || next == '/' : next == sign;
      if (!fits) return std::nullopt;
      sign = next;
      rest.remove_prefix(1);
    }
    std::int64_t second = 0;
    std::string_view behind = rest;
    if (!takeText(behind, "T")) takeBlanks(behind);
    if (const std::optional<std::int64_t> time = takeTime(behind)) {
      const std::optional<std::int64_t> inTheDay = inHalf(behind, *time);
      if (!inTheDay) return std::nullopt;
      second = *inTheDay;
      rest = behind;
    }
    if (digits[0] == 4) {
      const std::optional<std::int64_t> day = wallClockDay(numbers[0], numbers[1], numbers[2]);
      return day ? std::optional(wallClock(*day, second)) : std::nullopt;
    }
    const int year = wholeYear(numbers[2], digits[2]);
    const std::optional<std::int64_t> dayFirst = wallClockDay(year, numbers[1], numbers[0]);
    const std::optional<std::int64_t> monthFirst = wallClockDay(year, numbers[0], numbers[1]);
    if (!dayFirst && !monthFirst) return std::nullopt;
    if (sign == '.') return dayFirst ? std::optional(wallClock(*dayFirst, second)) : std::nullopt;
    ListDate date = wallClock(dayFirst.value_or(monthFirst.value_or(0)), second);
    if (!dayFirst || !monthFirst) {
      date.evidence = dayFirst ? DayMonthOrder::DayFirst : DayMonthOrder::MonthFirst;
    } else if (*dayFirst != *monthFirst) {
      date.kind = ListDate::Kind::EitherOrder;
    }
    return date;
  });
}

std::optional<ListDate> takeUnixTime(std::string_view& text) {
  return attempt(text, [](std::string_view& rest) -> std::optional<ListDate> {
    const bool isNegative = takeText(rest, "-");
    const std::optional<std::int64_t> whole = takeNumber(rest);
    if (!whole) return std::nullopt;
    dropFraction(rest);
    return ListDate{ListDate::Kind::Moment, isNegative ? -*whole : *whole};
  });
}

ListDate inOrder(const ListDate& date, std::optional<DayMonthOrder> order) {
  if (date.kind != ListDate::Kind::EitherOrder) return {date.kind, date.seconds};
  if (!order) return {};
  if (*order == DayMonthOrder::DayFirst) return {ListDate::Kind::WallClock, date.seconds};
  std::int64_t day = date.seconds / kSecondsPerDay;
  std::int64_t second = date.seconds % kSecondsPerDay;
  if (second < 0) {
    second += kSecondsPerDay;
    --day;
  }
  const CalendarDate told = calendarDateOf(static_cast<int>(day + kDayOf1970));
  return wallClock(wallClockDay(told.year, told.day, told.month).value_or(day), second);
}

}  // namespace quorvin
