#include "dates/date_form.h"

#include <algorithm>

namespace quorvin {

namespace {

// Nothing matched; no part of a pattern matches an empty text.
constexpr std::size_t kNoMatch = 0;

bool isWord(PatternField field) {
  return field == PatternField::Literal || field == PatternField::HalfDay ||
         field == PatternField::MonthNameShort || field == PatternField::MonthNameLong;
}

bool mayLackZero(const PatternPart& part) {
  const bool leading = part.field == PatternField::Day || part.field == PatternField::Month ||
                       part.field == PatternField::Hour12 || part.field == PatternField::Hour24;
  return leading || part.width < 2;
}

template <typename Unit>
std::size_t takeWord(const WordList& words, std::basic_string_view<Unit> text, int& meaning) {
  const auto found = words.at(text);
  if (!found) return kNoMatch;
  meaning = found->meaning;
  return found->length;
}

}  // namespace

std::optional<int> secondOfDay(const ClockReading& clock) {
  const int lastHour = clock.half < 0 ? 23 : 12;
  if (clock.hour > lastHour || clock.minute > 59 || clock.second > 59) return std::nullopt;
  const int hour = clock.half < 0 ? clock.hour : clock.hour % 12 + 12 * clock.half;
  return (hour * 60 + clock.minute) * 60 + clock.second;
}

DateForm::DateForm(const DatePattern& pattern) {
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const PatternPart& part = pattern[i];
    const std::size_t most = part.field == PatternField::Year ? 4 : 2;
    // Numbers that touch each other can only be told apart by their full widths.
    const bool touched = i + 1 < pattern.size() && !isWord(pattern[i + 1].field);
    std::u16string literal = foldedDateLiteral(part.text);
    // A literal of invisible characters alone is nothing to match.
    if (part.field == PatternField::Literal && literal.empty()) continue;
    parts_.push_back({part.field, mayLackZero(part) && !touched ? 1 : most, most, std::move(literal)});
  }
}

template <typename Unit>
std::size_t DateForm::matchPart(const Part& part, std::basic_string_view<Unit> text,
                                const DateVocabulary& words, int& value) {
  switch (part.field) {
    case PatternField::Literal:
      return beginsWith(text, part.literal) ? part.literal.size() : kNoMatch;
    case PatternField::HalfDay:
      return takeWord(words.halves, text, value);
    case PatternField::MonthNameShort:
    case PatternField::MonthNameLong:
      return takeWord(words.months, text, value);
    default:
      break;
  }
  std::size_t digits = 0;
  int number = 0;
  const std::size_t most = std::min(part.mostDigits, text.size());
  while (digits < most && isDigit(foldedUnit(text[digits]))) {
    number = number * 10 + (foldedUnit(text[digits]) - u'0');
    ++digits;
  }
  if (digits < part.leastDigits) return kNoMatch;
  value = number;
  return digits;
}

// A field that the pattern does not have was left at -1.
DateForm::Match DateForm::matchOf(const Values& values, std::size_t length) {
  const auto of = [&values](PatternField field) { return values[static_cast<std::size_t>(field)]; };
  const int twoDigits = of(PatternField::YearTwoDigits);
  const int month = std::max(of(PatternField::MonthNameShort), of(PatternField::MonthNameLong));
  Match match;
  match.date.year = twoDigits >= 0 ? yearOfTwoDigits(twoDigits) : of(PatternField::Year);
  match.date.month = std::max(of(PatternField::Month), month);
  match.date.day = of(PatternField::Day);
  match.clock.hour = std::max({of(PatternField::Hour24), of(PatternField::Hour12), 0});
  match.clock.minute = std::max(of(PatternField::Minute), 0);
  match.clock.second = std::max(of(PatternField::Second), 0);
  match.clock.half = of(PatternField::HalfDay);
  match.length = length;
  return match;
}

template <typename Unit>
std::optional<DateForm::Match> DateForm::matchFront(std::basic_string_view<Unit> text,
                                                    const DateVocabulary& words) const {
  Values values;
  values.fill(-1);
  std::size_t length = 0;
  for (const Part& part : parts_) {
    const std::size_t taken =
        matchPart(part, text.substr(length), words, values[static_cast<std::size_t>(part.field)]);
    if (taken == kNoMatch) return std::nullopt;
    length += taken;
  }
  return matchOf(values, length);
}

template std::optional<DateForm::Match> DateForm::matchFront(std::string_view, const DateVocabulary&) const;
template std::optional<DateForm::Match> DateForm::matchFront(std::u16string_view,
                                                             const DateVocabulary&) const;

}  // namespace quorvin
