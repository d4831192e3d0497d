// SPDX-License-Identifier: GPL-2.0-or-later

// Reading many dates of one locale.
#pragma once

#include "dates/date_layouts.h"
#include "dates/date_pattern.h"
#include "dates/date_text.h"
#include "dates/general_date.h"
#include "dates/loose_date.h"

#include <QDate>

#include <optional>
#include <string_view>

namespace quorvin {

/// Reads dates as readGeneralDate does. Making one looks up the locale's patterns and words; after that
/// nothing is looked up or allocated, so whoever reads more than a few dates keeps one. Reading is safe from
/// several threads at once.
class GeneralDateReader {
 public:
  /// `currentYear` is the year of dates that name none.
  explicit GeneralDateReader(const QLocale& locale, int currentYear = QDate::currentDate().year());

  std::optional<DateValue> read(QStringView text) const;

  /// The same as read() for ASCII text, and quick for a date and a time of the locale's own form. Text with
  /// other bytes is taken as UTF-8 and read the slow way.
  std::optional<DateValue> readAscii(std::string_view text) const;

  /// The same, with what the text says about the order of day and month.
  std::optional<DateReading> reading(QStringView text) const;
  std::optional<DateReading> readingOfAscii(std::string_view text) const;

  /// A date and a time of the locale's own form, read at once: leaves in `written` what readingOfAscii gives.
  /// Where it is false the text may still be a date.
  struct WrittenMoment {
    DayAndSecond moment;
    OrderEvidence evidence;
  };
  bool readWritten(std::string_view text, WrittenMoment& written) const;

  /// From now on day and month are read in `order`, whatever the locale's own. Not to be called while others
  /// read.
  void setOrder(DayMonthOrder order);

 private:
  using View = std::u16string_view;

  std::optional<DateReading> readOwnForm(View text) const;
  std::optional<int> wholeTime(const DateForm& form, View text) const;
  std::optional<OrderedDay> dayOf(const DateForm& form, const CalendarDate& date) const {
    return form.dayOf({rules_.yearMeantBy(date.year), date.month, date.day}, rules_.order);
  }

  std::optional<DateReading> readFolded(const DateText& text) const;
  std::optional<DateReading> readLoosely(View text) const;
  std::optional<DateReading> readDateFirst(View text) const;
  std::optional<DateReading> readTimeAlone(View text) const;
  std::optional<DateReading> readTimeFirst(View text) const;
  std::optional<DateReading> finishAfterDate(const LooseReading& date, View text) const;
  std::optional<LooseReading> wholeDate(View text) const;
  std::optional<int> wholeTime(View text) const;

  // Every way to read a date or a time at the front of a text, the locale's own ways first.
  static constexpr int kDateWays = 4;
  static constexpr int kTimeWays = 3;
  std::optional<LooseReading> dateAt(int way, View text) const;
  std::optional<LooseReading> timeAt(int way, View text) const;

  DateVocabulary words_;
  LooseRules rules_;
  bool orderIsSet_ = false;
  DateForm generalDate_;
  DateForm generalTime_;
  DateForm shortDate_;
  DateForm longDate_;
  DateForm shortTime_;
  DateLayouts layouts_;
};

}  // namespace quorvin
