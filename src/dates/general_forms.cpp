// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/general_forms.h"

#include "dates/general_date_writer.h"

#include <algorithm>

namespace quorvin {

namespace {

std::size_t placeOfForm(std::vector<DateForm>& forms, const DateForm& form) {
  const auto known = std::find(forms.begin(), forms.end(), form);
  if (known != forms.end()) return static_cast<std::size_t>(known - forms.begin());
  forms.push_back(form);
  return forms.size() - 1;
}

}  // namespace

const GeneralForms& GeneralForms::ofAllLocales() {
  static const GeneralForms forms;
  return forms;
}

// The only locale with month names in its general form is that of no language, whose names are English.
GeneralForms::GeneralForms() : words_{monthNames(QLocale::c()), halfDayNames(QLocale::c())} {
  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  for (const QLocale& locale : locales) add(locale);
}

void GeneralForms::add(const QLocale& locale) {
  const DatePattern time = generalTimePattern(locale);
  const std::pair pair(placeOfForm(dates_, DateForm(generalDatePattern(locale))),
                       placeOfForm(times_, DateForm(time)));
  if (std::find(pairs_.begin(), pairs_.end(), pair) == pairs_.end()) pairs_.push_back(pair);
  addHalves(locale, time);
}

// As the locale's pattern has them written: no two locales write the same word for different halves.
void GeneralForms::addHalves(const QLocale& locale, const DatePattern& time) {
  const int half = placeOf(PatternField::HalfDay, time);
  if (half < 0) return;
  const GeneralDateWriter writer(locale);
  const PatternPart& part = time[static_cast<std::size_t>(half)];
  words_.halves.add(writer.partText(part, {}, 0), kBeforeNoon);
  words_.halves.add(writer.partText(part, {}, kSecondsPerDay - 1), kAfterNoon);
}

std::optional<int> GeneralForms::wholeTime(const DateForm& time, std::u16string_view text) const {
  const auto match = time.matchFront(text, words_);
  if (!match || match->length != text.size()) return std::nullopt;
  return secondOfDay(match->clock);
}

std::optional<int> GeneralForms::timeBehind(std::size_t date, std::u16string_view text) const {
  for (const auto& [datePlace, timePlace] : pairs_) {
    if (datePlace != date) continue;
    if (const auto second = wholeTime(times_[timePlace], text)) return second;
  }
  return std::nullopt;
}

std::optional<DateReading> GeneralForms::read(std::u16string_view text, DayMonthOrder order) const {
  for (std::size_t i = 0; i < dates_.size(); ++i) {
    const auto match = dates_[i].matchFront(text, words_);
    if (!match) continue;
    const std::optional<OrderedDay> day = dates_[i].dayOf(match->date, order);
    if (!day) continue;
    const std::u16string_view rest = text.substr(match->length);
    if (rest.empty()) return DateReading{joinDateValue({day->day, 0}), day->evidence};
    if (rest.front() != u' ') continue;
    if (const auto second = timeBehind(i, rest.substr(1))) {
      return DateReading{joinDateValue({day->day, *second}), day->evidence};
    }
  }
  for (const DateForm& time : times_) {
    if (const auto second = wholeTime(time, text)) return DateReading{joinDateValue({0, *second})};
  }
  return std::nullopt;
}

std::optional<DayMonthOrder> GeneralForms::orderIn(std::u16string_view text) const {
  std::optional<DayMonthOrder> found;
  for (std::size_t i = 0; i < dates_.size(); ++i) {
    if (!dates_[i].order() || found == dates_[i].order()) continue;
    const auto match = dates_[i].matchFront(text, words_);
    if (!match || match->length >= text.size() || text[match->length] != u' ') continue;
    if (!timeBehind(i, text.substr(match->length + 1))) continue;
    if (found) return std::nullopt;
    found = dates_[i].order();
  }
  return found;
}

}  // namespace quorvin
