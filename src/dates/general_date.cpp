// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_date.h"

#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "dates/general_number.h"

#include <QDate>
#include <QTime>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace quorvin {

DateValue dateValueOf(const QDateTime& moment) {
  if (!moment.isValid()) return 0;
  const QTime time = moment.time();
  const int second = (time.hour() * 60 + time.minute()) * 60 + time.second();
  const qint64 day = QDate(1899, 12, 30).daysTo(moment.date());
  if (day < kFirstDay) return joinDateValue({kFirstDay, 0});
  if (day > kLastDay) return joinDateValue({kLastDay, kSecondsPerDay - 1});
  return joinDateValue({static_cast<int>(day), second});
}

QDateTime dateTimeOf(DateValue value) {
  const DayAndSecond moment = splitDateValue(value);
  const CalendarDate date = calendarDateOf(moment.day);
  // In a zone with summer time an hour of the year is missing; UTC has every wall-clock time.
  return {QDate(date.year, date.month, date.day), QTime::fromMSecsSinceStartOfDay(moment.second * 1000),
          QTimeZone::utc()};
}

QString generalDateText(DateValue value, const QLocale& locale) {
  return GeneralDateWriter(locale).text(value);
}

std::optional<DateValue> readGeneralDate(QStringView text, const QLocale& locale) {
  return GeneralDateReader(locale).read(text);
}

QString shortMonthDateText(DateValue value, const QLocale& locale) {
  const CalendarDate date = calendarDateOf(splitDateValue(value).day);
  const QString dayAndYear = QStringLiteral("%1 %2")
                                 .arg(date.day, 2, 10, QLatin1Char('0'))
                                 .arg(date.year % 100, 2, 10, QLatin1Char('0'));
  return locale.standaloneMonthName(date.month, QLocale::ShortFormat) + QStringLiteral(", ") +
         withLocaleDigits(dayAndYear, locale);
}

namespace {

constexpr std::chrono::sys_days kZeroDay = std::chrono::year{1899} / std::chrono::December / 30;

/// The first days of the months in which nearly all dates are; the month behind them ends the last.
struct MonthStarts {
  static constexpr int kFirstYear = 1900;
  static constexpr int kYears = 200;
  std::array<std::int32_t, kYears * 12 + 1> days;
};

constexpr MonthStarts kMonthStarts = [] {
  MonthStarts starts{};
  for (std::size_t i = 0; i < starts.days.size(); ++i) {
    const std::chrono::year year{MonthStarts::kFirstYear + static_cast<int>(i / 12)};
    const std::chrono::sys_days first{year / static_cast<int>(i % 12 + 1) / 1};
    starts.days[i] = static_cast<std::int32_t>((first - kZeroDay).count());
  }
  return starts;
}();

}  // namespace

int dayNumberOrNone(int year, int month, int day) {
  // The calendar's own types hold small numbers only, so wild ones are refused before they are put in.
  if (year < 100 || year > 9999) return kNoDay;
  if (month < 1 || month > 12 || day < 1 || day > 31) return kNoDay;
  if (year >= MonthStarts::kFirstYear && year < MonthStarts::kFirstYear + MonthStarts::kYears) {
    const auto place = static_cast<std::size_t>((year - MonthStarts::kFirstYear) * 12 + month - 1);
    const int number = kMonthStarts.days[place] + day - 1;
    return number < kMonthStarts.days[place + 1] ? number : kNoDay;
  }
  const std::chrono::year_month_day date{std::chrono::year{year},
                                         std::chrono::month{static_cast<unsigned>(month)},
                                         std::chrono::day{static_cast<unsigned>(day)}};
  // Every month has the first 28.
  if (day > 28 && !date.ok()) return kNoDay;
  return static_cast<int>((std::chrono::sys_days{date} - kZeroDay).count());
}

std::optional<DayMonthOrder> orderOf(OrderEvidence evidence) {
  if (evidence == OrderEvidence::DayFirst) return DayMonthOrder::DayFirst;
  if (evidence == OrderEvidence::MonthFirst) return DayMonthOrder::MonthFirst;
  return std::nullopt;
}

CalendarDate calendarDateOf(int day) {
  const std::chrono::year_month_day date{kZeroDay + std::chrono::days{day}};
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

DayAndSecond splitDateValue(DateValue value) {
  if (std::isnan(value)) return {};
  // Before the zero day the fraction counts away from zero, so the last second of the first day lies below
  // it.
  if (value <= kFirstDay - 1.0) return {kFirstDay, 0};
  if (value >= kLastDay + 1.0) return {kLastDay, kSecondsPerDay - 1};
  const auto day = static_cast<int>(value);
  const double seconds = std::abs(value - day) * kSecondsPerDay;
  // The library's own rounding is a call, which is felt where there are millions of dates.
  auto second = static_cast<int>(seconds);
  if (seconds - second >= 0.5) ++second;
  if (second < kSecondsPerDay) return {day, second};
  if (day == kLastDay) return {day, kSecondsPerDay - 1};
  return {day + 1, 0};
}

}  // namespace quorvin
