// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_date_writer.h"

#include "dates/general_number.h"

namespace quorvin {

GeneralDateWriter::GeneralDateWriter(const QLocale& locale)
    : datePattern_(generalDatePattern(locale)),
      timePattern_(generalTimePattern(locale)),
      beforeNoon_(withPlainBlanks(locale.amText())),
      afterNoon_(withPlainBlanks(locale.pmText())),
      digits_(digitsOf(locale)) {
  for (int month = 1; month <= 12; ++month) {
    const auto place = static_cast<std::size_t>(month - 1);
    shortMonths_[place] = withPlainBlanks(locale.monthName(month, QLocale::ShortFormat));
    longMonths_[place] = withPlainBlanks(locale.monthName(month, QLocale::LongFormat));
  }
}

QString GeneralDateWriter::text(DateValue value) const {
  const DayAndSecond moment = splitDateValue(value);
  const CalendarDate date = calendarDateOf(moment.day);
  QString text;
  // Room for every pattern that a locale is known to have.
  text.reserve(40);
  if (moment.day != 0) addFields(text, datePattern_, date, moment.second);
  if (moment.day != 0 && moment.second == 0) return text;
  if (!text.isEmpty()) text += u' ';
  addFields(text, timePattern_, date, moment.second);
  return text;
}

void GeneralDateWriter::addFields(QString& text, const DatePattern& pattern, CalendarDate date,
                                  int second) const {
  for (const PatternPart& part : pattern) addField(text, part, date, second);
}

QString GeneralDateWriter::partText(const PatternPart& part, CalendarDate date, int second) const {
  QString text;
  addField(text, part, date, second);
  return text;
}

void GeneralDateWriter::addField(QString& text, const PatternPart& part, CalendarDate date,
                                 int second) const {
  const int hour = second / 3600;
  const auto month = static_cast<std::size_t>(date.month - 1);
  switch (part.field) {
    case PatternField::Literal:
      text += part.text;
      break;
    case PatternField::Day:
      addNumber(text, date.day, part.width);
      break;
    case PatternField::Month:
      addNumber(text, date.month, part.width);
      break;
    case PatternField::MonthNameShort:
      text += shortMonths_[month];
      break;
    case PatternField::MonthNameLong:
      text += longMonths_[month];
      break;
    case PatternField::Year:
      addNumber(text, date.year, 4);
      break;
    case PatternField::YearTwoDigits:
      addNumber(text, date.year % 100, 2);
      break;
    case PatternField::Hour24:
      addNumber(text, hour, part.width);
      break;
    case PatternField::Hour12:
      addNumber(text, hour % 12 == 0 ? 12 : hour % 12, part.width);
      break;
    case PatternField::Minute:
      addNumber(text, second / 60 % 60, part.width);
      break;
    case PatternField::Second:
      addNumber(text, second % 60, part.width);
      break;
    case PatternField::HalfDay:
      text += halfDay(part.text, hour);
      break;
  }
}

void GeneralDateWriter::addNumber(QString& text, int number, int width) const {
  const int more = number / 10;
  if (more > 0 || width > 1) addNumber(text, more, width - 1);
  text += digits_[static_cast<std::size_t>(number % 10)];
}

QString GeneralDateWriter::halfDay(const QString& casing, int hour) const {
  const QString& word = hour < 12 ? beforeNoon_ : afterNoon_;
  if (casing.isUpper()) return word.toUpper();
  return casing.isLower() ? word.toLower() : word;
}

}  // namespace quorvin
