// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_date_reader.h"

#include "dates/date_pattern.h"
#include "dates/general_forms.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

// A short time that a user has cut down to the hour would make a time of any number.
DatePattern shortTimePattern(const QLocale& locale) {
  DatePattern pattern = parseDatePattern(locale.timeFormat(QLocale::ShortFormat));
  return placeOf(PatternField::Minute, pattern) < 0 ? generalTimePattern(locale) : pattern;
}

// Blanks, perhaps a comma before them: what is between a date and a time.
std::size_t separatorLength(std::u16string_view text) {
  std::size_t length = 0;
  if (text.starts_with(u',')) ++length;
  if (text.size() > length && text[length] == u' ') ++length;
  return length;
}

// Whether the first `length` signs are a date such as 2004-01-15, which a "T" may follow.
bool isIsoDate(std::u16string_view text, std::size_t length) {
  return length == 10 && text[4] == u'-' && text[7] == u'-';
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

DayMonthOrder other(DayMonthOrder order) {
  return order == DayMonthOrder::DayFirst ? DayMonthOrder::MonthFirst : DayMonthOrder::DayFirst;
}

// The date that a reading is when day and month, of which it is not known which is which, change places.
DateReading turned(const DateReading& reading) {
  const DayAndSecond moment = splitDateValue(reading.value);
  const CalendarDate date = calendarDateOf(moment.day);
  const std::optional<int> day = dayNumberOf({date.year, date.day, date.month});
  return day ? DateReading{joinDateValue({*day, moment.second}), reading.evidence} : reading;
}

std::optional<DateValue> valueOf(const std::optional<DateReading>& reading) {
  return reading ? std::optional(reading->value) : std::nullopt;
}

}  // namespace

GeneralDateReader::GeneralDateReader(const QLocale& locale, int currentYear)
    : words_{monthNames(locale), halfDayNames(locale)},
      rules_(looseRulesOf(generalDatePattern(locale), generalTimePattern(locale), currentYear)),
      generalDate_(generalDatePattern(locale)),
      generalTime_(generalTimePattern(locale)),
      shortDate_(parseDatePattern(locale.dateFormat(QLocale::ShortFormat))),
      longDate_(parseDatePattern(locale.dateFormat(QLocale::LongFormat))),
      shortTime_(shortTimePattern(locale)),
      layouts_(locale, generalDatePattern(locale), generalTimePattern(locale), words_) {
  rules_.buddhistYears = locale.language() == QLocale::Thai;
}

void GeneralDateReader::setOrder(DayMonthOrder order) {
  rules_.order = order;
  orderIsSet_ = true;
}

std::optional<DateValue> GeneralDateReader::read(QStringView text) const {
  return valueOf(reading(text));
}

std::optional<DateValue> GeneralDateReader::readAscii(std::string_view text) const {
  return valueOf(readingOfAscii(text));
}

std::optional<DateReading> GeneralDateReader::reading(QStringView text) const {
  return readFolded(DateText(text));
}

std::optional<DateReading> GeneralDateReader::readingOfAscii(std::string_view text) const {
  WrittenMoment written;
  if (readWritten(text, written)) return DateReading{joinDateValue(written.moment), written.evidence};
  if (!isAscii(text)) {
    // No character of a text that is short enough takes up more than three bytes a unit.
    if (text.size() > 3 * DateText::kMaxLength) return std::nullopt;
    // A byte order mark is a character like others, and makes no date.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    const QString wide = decoder.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return reading(wide);
  }
  if (text.size() > DateText::kMaxLength) return std::nullopt;
  std::array<char16_t, DateText::kMaxLength> wide;
  std::copy(text.begin(), text.end(), wide.begin());
  return reading(QStringView(wide.data(), static_cast<qsizetype>(text.size())));
}

bool GeneralDateReader::readWritten(std::string_view text, WrittenMoment& written) const {
  DateForm::Match match;
  if (!layouts_.match(text, match)) return false;
  const int year = rules_.yearMeantBy(match.date.year);
  const auto day = generalDate_.dayOf({year, match.date.month, match.date.day}, rules_.order);
  const std::optional<int> second = secondOfDay(match.clock);
  if (!day || !second) return false;
  written.moment.day = day->day;
  written.moment.second = *second;
  written.evidence = day->evidence;
  return true;
}

std::optional<DateReading> GeneralDateReader::readFolded(const DateText& text) const {
  const View view = text.view();
  if (view.empty()) return std::nullopt;
  if (const auto value = readOwnForm(view)) return value;
  // Where times have dots, two numbers with a dot are a time before they are a day and a month.
  if (rules_.dottedTimes) {
    if (const auto second = wholeTime(shortTime_, view)) return DateReading{joinDateValue({0, *second})};
  }
  const auto value = readLoosely(view);
  if (!value || value->evidence != OrderEvidence::Either || orderIsSet_) return value;
  const bool isTurned = GeneralForms::ofAllLocales().orderIn(view) == other(rules_.order);
  return isTurned ? turned(*value) : *value;
}

std::optional<DateReading> GeneralDateReader::readLoosely(View text) const {
  if (const auto value = readDateFirst(text)) return value;
  if (const auto value = readTimeAlone(text)) return value;
  if (const auto value = readTimeFirst(text)) return value;
  return GeneralForms::ofAllLocales().read(text, rules_.order);
}

std::optional<DateReading> GeneralDateReader::readOwnForm(View text) const {
  if (const auto date = generalDate_.matchFront(text, words_)) {
    const std::optional<OrderedDay> day = dayOf(generalDate_, date->date);
    if (day && date->length == text.size()) return DateReading{joinDateValue({day->day, 0}), day->evidence};
    if (day && text[date->length] == ' ') {
      const auto second = wholeTime(generalTime_, text.substr(date->length + 1));
      if (second) return DateReading{joinDateValue({day->day, *second}), day->evidence};
    }
  }
  const auto second = wholeTime(generalTime_, text);
  if (!second) return std::nullopt;
  return DateReading{joinDateValue({0, *second})};
}

std::optional<int> GeneralDateReader::wholeTime(const DateForm& form, View text) const {
  const auto time = form.matchFront(text, words_);
  if (!time || time->length != text.size()) return std::nullopt;
  return secondOfDay(time->clock);
}

std::optional<LooseReading> GeneralDateReader::dateAt(int way, View text) const {
  const std::array<const DateForm*, kDateWays - 1> forms = {&generalDate_, &shortDate_, &longDate_};
  if (way == kDateWays - 1) return looseDateAt(text, words_, rules_);
  const DateForm& form = *forms[static_cast<std::size_t>(way)];
  const auto match = form.matchFront(text, words_);
  if (!match) return std::nullopt;
  const std::optional<OrderedDay> day = dayOf(form, match->date);
  if (!day) return std::nullopt;
  return LooseReading{day->day, match->length, day->evidence};
}

std::optional<LooseReading> GeneralDateReader::timeAt(int way, View text) const {
  const std::array<const DateForm*, kTimeWays - 1> forms = {&generalTime_, &shortTime_};
  if (way == kTimeWays - 1) return looseTimeAt(text, words_, rules_);
  const auto match = forms[static_cast<std::size_t>(way)]->matchFront(text, words_);
  if (!match) return std::nullopt;
  const std::optional<int> second = secondOfDay(match->clock);
  if (!second) return std::nullopt;
  return LooseReading{*second, match->length, OrderEvidence::None};
}

std::optional<DateReading> GeneralDateReader::readDateFirst(View text) const {
  for (int way = 0; way < kDateWays; ++way) {
    const auto date = dateAt(way, text);
    if (!date) continue;
    if (const auto value = finishAfterDate(*date, text)) return value;
  }
  return std::nullopt;
}

std::optional<DateReading> GeneralDateReader::finishAfterDate(const LooseReading& date, View text) const {
  const View rest = text.substr(date.length);
  if (rest.empty()) return DateReading{joinDateValue({date.value, 0}), date.evidence};
  const bool isoTime = isIsoDate(text, date.length) && rest.front() == u't';
  const std::size_t separator = isoTime ? 1 : separatorLength(rest);
  if (separator == 0) return std::nullopt;
  const auto second = wholeTime(rest.substr(separator));
  if (!second) return std::nullopt;
  return DateReading{joinDateValue({date.value, *second}), date.evidence};
}

std::optional<DateReading> GeneralDateReader::readTimeAlone(View text) const {
  const auto second = wholeTime(text);
  if (!second) return std::nullopt;
  return DateReading{joinDateValue({0, *second})};
}

std::optional<DateReading> GeneralDateReader::readTimeFirst(View text) const {
  for (int way = 0; way < kTimeWays; ++way) {
    const auto time = timeAt(way, text);
    if (!time) continue;
    const View rest = text.substr(time->length);
    const std::size_t separator = separatorLength(rest);
    if (separator == 0) continue;
    if (const auto day = wholeDate(rest.substr(separator))) {
      return DateReading{joinDateValue({day->value, time->value}), day->evidence};
    }
  }
  return std::nullopt;
}

std::optional<LooseReading> GeneralDateReader::wholeDate(View text) const {
  for (int way = 0; way < kDateWays; ++way) {
    const auto date = dateAt(way, text);
    if (date && date->length == text.size()) return date;
  }
  return std::nullopt;
}

std::optional<int> GeneralDateReader::wholeTime(View text) const {
  for (int way = 0; way < kTimeWays; ++way) {
    const auto time = timeAt(way, text);
    if (time && time->length == text.size()) return time->value;
  }
  return std::nullopt;
}

}  // namespace quorvin
