#include "dates/general_date.h"

#include "dates/day_and_second.h"
#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "dates/locale_digits.h"

#include <QDate>
#include <QTime>

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
  return QDateTime(QDate(date.year, date.month, date.day),
                   QTime::fromMSecsSinceStartOfDay(moment.second * 1000), Qt::UTC);
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

}  // namespace quorvin
