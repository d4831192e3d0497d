// SPDX-License-Identifier: GPL-2.0-or-later

// Writing many dates of one locale.
#pragma once

#include "dates/date_pattern.h"
#include "dates/general_date.h"

#include <QLocale>
#include <QString>

#include <array>

namespace quorvin {

/// Writes dates as generalDateText does, with the locale's patterns and words looked up once.
class GeneralDateWriter {
 public:
  explicit GeneralDateWriter(const QLocale& locale);

  QString text(DateValue value) const;

  /// What text() puts together, for writers that keep the parts: the parts of a date and of a time, and what
  /// one part shows of a day and of a second of the day (0 to 86,399).
  const DatePattern& datePattern() const { return datePattern_; }
  const DatePattern& timePattern() const { return timePattern_; }
  QString partText(const PatternPart& part, CalendarDate date, int second) const;

 private:
  using MonthNames = std::array<QString, 12>;

  void addFields(QString& text, const DatePattern& pattern, CalendarDate date, int second) const;
  void addField(QString& text, const PatternPart& part, CalendarDate date, int second) const;
  void addNumber(QString& text, int number, int width) const;
  QString halfDay(const QString& casing, int hour) const;

  DatePattern datePattern_;
  DatePattern timePattern_;
  MonthNames shortMonths_;
  MonthNames longMonths_;
  QString beforeNoon_;
  QString afterNoon_;
  std::array<QString, 10> digits_;
};

}  // namespace quorvin
