// SPDX-License-Identifier: GPL-2.0-or-later
#include "date_texts.h"

#include "dates/general_date.h"
#include "platform/text_encoding.h"

#include <QDateTime>

#include <cstddef>

namespace quorvin {
namespace {

std::string listedDate(DateValue value, const QLocale& locale) {
  return encodeSystemText(generalDateText(value, locale)).toStdString();
}

}  // namespace

DateTexts::DateTexts(const QLocale& locale) : zeroDate_(listedDate(0.0, locale)) {
  const DateValue firstDay = dateValueOf(QDateTime(QDate(1996, 1, 1), QTime(0, 0), Qt::UTC));
  days_.reserve(kMomentDays);
  for (int day = 0; day < kMomentDays; ++day) days_.push_back(listedDate(firstDay + day, locale));

  times_.reserve(kSecondsOfDay);
  for (int second = 0; second < kSecondsOfDay; ++second) {
    times_.push_back(listedDate(static_cast<double>(second) / kSecondsOfDay, locale));
  }
}

void DateTexts::append(std::string& line, const FileMoment& moment) const {
  line += days_[static_cast<std::size_t>(moment.day)];
  if (moment.secondOfDay == 0) return;
  line += ' ';
  line += times_[static_cast<std::size_t>(moment.secondOfDay)];
}

}  // namespace quorvin
