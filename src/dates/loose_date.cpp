// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/loose_date.h"

#include <QChar>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

// A number or a month name.
struct Part {
  bool isMonthName = false;
  int value = 0;
  std::size_t length = 0;

  bool mayBeYear() const { return !isMonthName && (length == 2 || length == 4); }
  bool isLongYear() const { return !isMonthName && length == 4; }
  int year() const { return length == 2 ? yearOfTwoDigits(value) : value; }
};

// What is between two parts: blanks, one sign at most, blanks.
struct Gap {
  char16_t sign = 0;
  std::size_t length = 0;
};

bool isBlank(std::u16string_view text, std::size_t place) {
  return place < text.size() && text[place] == u' ';
}

bool isSign(std::u16string_view text, std::size_t place, char16_t sign) {
  return place < text.size() && text[place] == sign;
}

bool isLetter(std::u16string_view text, std::size_t place) {
  if (place >= text.size()) return false;
  const QChar unit(text[place]);
  return unit.isLetter() || unit.isMark() || unit.isSurrogate();
}

// Up to four digits; more are no number of a date.
std::optional<Part> numberAt(std::u16string_view text, std::size_t place) {
  Part number;
  while (place + number.length < text.size() && isDigit(text[place + number.length])) {
    if (number.length == 4) return std::nullopt;
    number.value = number.value * 10 + (text[place + number.length] - u'0');
    ++number.length;
  }
  if (number.length == 0) return std::nullopt;
  return number;
}

std::optional<Part> monthNameAt(std::u16string_view text, std::size_t place, const WordList& months) {
  if (place >= text.size() || isDigit(text[place])) return std::nullopt;
  const auto found = months.at(text.substr(place));
  if (!found) return std::nullopt;
  const std::size_t end = place + found->length;
  const bool endsInDigit = isDigit(text[end - 1]);
  if (endsInDigit ? end < text.size() && isDigit(text[end]) : isLetter(text, end)) return std::nullopt;
  return Part{true, found->meaning, found->length};
}

Gap gapAt(std::u16string_view text, std::size_t place) {
  constexpr std::u16string_view kSigns = u"/-.,";
  std::size_t end = place;
  if (isBlank(text, end)) ++end;
  if (end >= text.size() || kSigns.find(text[end]) == std::u16string_view::npos) return {0, end - place};
  const char16_t sign = text[end++];
  if (isBlank(text, end)) ++end;
  return {sign, end - place};
}

// Takes the parts of a date from the front of a text and makes a day of them.
class DateParser {
 public:
  DateParser(std::u16string_view text, const DateVocabulary& words, const LooseRules& rules)
      : text_(text), words_(words), rules_(rules) {}

  std::optional<LooseReading> read() {
    takeParts();
    // Parts that were not taken are no names.
    const auto names =
        std::count_if(parts_.begin(), parts_.end(), [](const Part& part) { return part.isMonthName; });
    if (count_ < 2 || names > 1) return std::nullopt;
    const std::optional<OrderedDay> day = names == 1 ? dayWithName() : dayOfNumbers();
    if (!day) return std::nullopt;
    // "15.1." and "2004. 1. 15." end in a dot of their own.
    if (names == 0 && gaps_[0].sign == u'.' && isSign(text_, end_, u'.')) ++end_;
    return LooseReading{day->day, end_, day->evidence};
  }

 private:
  void takeParts() {
    std::size_t place = 0;
    while (count_ < kMostParts) {
      const std::optional<Part> part = partAt(place);
      if (!part) return;
      parts_[count_] = *part;
      end_ = place + part->length;
      gaps_[count_] = gapAt(text_, end_);
      place = end_ + gaps_[count_].length;
      ++count_;
    }
  }

  std::optional<Part> partAt(std::size_t place) const {
    if (const auto name = monthNameAt(text_, place, words_.months)) return name;
    const std::optional<Part> number = numberAt(text_, place);
    if (!number || (count_ > 0 && isHour(place + number->length))) return std::nullopt;
    return number;
  }

  // Whether the number that ends at `end` is the hour of a time that follows the date.
  bool isHour(std::size_t end) const {
    if (isSign(text_, end, u':')) return true;
    if (words_.halves.at(text_.substr(end + (isBlank(text_, end) ? 1 : 0)))) return true;
    // Hours of a locale's own kind ("13h"), but neither "15Jan04" nor "2004-01-15T13:04".
    const bool nameFollows = monthNameAt(text_, end, words_.months).has_value();
    return isLetter(text_, end) && !nameFollows && !isSign(text_, end, u't');
  }

  int yearOf(const Part& part) const { return rules_.yearMeantBy(part.year()); }

  static std::optional<OrderedDay> dayOf(int year, const Part& month, const Part& day) {
    if (day.length > 2 || (!month.isMonthName && month.length > 2)) return std::nullopt;
    return withoutEvidence(dayNumberOf({year, month.value, day.value}));
  }

  static std::optional<OrderedDay> firstDayOf(int year, const Part& month) {
    if (!month.isMonthName && month.length > 2) return std::nullopt;
    return withoutEvidence(dayNumberOf({year, month.value, 1}));
  }

  static std::optional<OrderedDay> withoutEvidence(std::optional<int> day) {
    if (!day) return std::nullopt;
    return OrderedDay{*day, OrderEvidence::None};
  }

  // One of the two numbers is the day, the other the month.
  std::optional<OrderedDay> dayOfEither(int year, const Part& first, const Part& second) const {
    if (first.length > 2 || second.length > 2) return std::nullopt;
    return dayInOrder(year, first.value, second.value, rules_.order);
  }

  // The same behind a year, where the month comes first.
  static std::optional<OrderedDay> dayBehindYear(int year, const Part& first, const Part& second) {
    if (first.length > 2 || second.length > 2) return std::nullopt;
    auto day = dayInOrder(year, first.value, second.value, DayMonthOrder::MonthFirst);
    if (day) day->evidence = OrderEvidence::None;
    return day;
  }

  std::optional<OrderedDay> dayWithName() const {
    if (count_ == 2) return dayWithNameAndNumber();
    const auto& [first, second, third] = parts_;
    if (third.isMonthName) return std::nullopt;
    if (first.isMonthName) return third.mayBeYear() ? dayOf(yearOf(third), first, second) : std::nullopt;
    if (first.isLongYear()) return dayOf(yearOf(first), second, third);
    return third.mayBeYear() ? dayOf(yearOf(third), second, first) : std::nullopt;
  }

  std::optional<OrderedDay> dayWithNameAndNumber() const {
    const bool nameFirst = parts_[0].isMonthName;
    const Part& name = nameFirst ? parts_[0] : parts_[1];
    const Part& number = nameFirst ? parts_[1] : parts_[0];
    if (number.isLongYear()) return firstDayOf(yearOf(number), name);
    return dayOf(rules_.currentYear, name, number);
  }

  std::optional<OrderedDay> dayOfNumbers() const {
    if (!signsFit()) return std::nullopt;
    const auto& [first, second, third] = parts_;
    if (count_ == 2) return dayOfTwoNumbers();
    if (first.isLongYear()) return dayBehindYear(yearOf(first), second, third);
    if (third.isLongYear()) return dayOfEither(yearOf(third), first, second);
    const Part& year = rules_.yearFirst ? first : third;
    if (!year.mayBeYear()) return std::nullopt;
    return rules_.yearFirst ? dayBehindYear(yearOf(year), second, third)
                            : dayOfEither(yearOf(year), first, second);
  }

  std::optional<OrderedDay> dayOfTwoNumbers() const {
    const Part& first = parts_[0];
    const Part& second = parts_[1];
    if (first.isLongYear()) return firstDayOf(yearOf(first), second);
    if (second.isLongYear()) return firstDayOf(yearOf(second), first);
    return dayOfEither(rules_.currentYear, first, second);
  }

  bool signsFit() const {
    const char16_t sign = gaps_[0].sign;
    if (sign == u',') return false;
    if (count_ == 2) return sign == u'/' || sign == u'-' || (sign == u'.' && rules_.dateSign == u'.');
    // "15/1 2004" is how some write it.
    return gaps_[1].sign == sign || (gaps_[1].sign == 0 && parts_[2].isLongYear());
  }

  static constexpr std::size_t kMostParts = 3;
  std::u16string_view text_;
  const DateVocabulary& words_;
  const LooseRules& rules_;
  std::array<Part, kMostParts> parts_;
  std::array<Gap, kMostParts> gaps_;
  std::size_t count_ = 0;
  std::size_t end_ = 0;
};

// Takes a time from the front of a text.
class TimeParser {
 public:
  TimeParser(std::u16string_view text, const DateVocabulary& words, const LooseRules& rules)
      : text_(text), words_(words), rules_(rules) {}

  std::optional<LooseReading> read() {
    takeHalf();
    if (clock_.half >= 0 && isBlank(text_, end_)) ++end_;
    if (!takeNumber(clock_.hour, 1)) return std::nullopt;
    const char16_t sign = timeSign();
    const bool hasMinutes = sign != 0 && takeSignAndNumber(sign, clock_.minute);
    if (hasMinutes) takeSignAndNumber(sign, clock_.second);
    if (clock_.half < 0) takeHalfAfterBlank();
    if (!hasMinutes && clock_.half < 0) return std::nullopt;
    const std::optional<int> second = secondOfDay(clock_);
    if (!second) return std::nullopt;
    return LooseReading{*second, end_, OrderEvidence::None};
  }

 private:
  char16_t timeSign() const {
    if (isSign(text_, end_, u':')) return u':';
    return rules_.dottedTimes && isSign(text_, end_, u'.') ? u'.' : 0;
  }

  bool takeNumber(int& value, std::size_t leastDigits) {
    const std::optional<Part> number = numberAt(text_, end_);
    if (!number || number->length > 2 || number->length < leastDigits) return false;
    value = number->value;
    end_ += number->length;
    return true;
  }

  bool takeSignAndNumber(char16_t sign, int& value) {
    if (!isSign(text_, end_, sign)) return false;
    ++end_;
    // With dots, only full widths keep times apart from dates and amounts.
    if (takeNumber(value, sign == u'.' ? 2 : 1)) return true;
    --end_;
    return false;
  }

  void takeHalf() {
    const auto half = words_.halves.at(text_.substr(end_));
    if (!half) return;
    clock_.half = half->meaning;
    end_ += half->length;
  }

  void takeHalfAfterBlank() {
    const std::size_t before = end_;
    if (isBlank(text_, end_)) ++end_;
    takeHalf();
    if (clock_.half < 0) end_ = before;
  }

  std::u16string_view text_;
  const DateVocabulary& words_;
  const LooseRules& rules_;
  ClockReading clock_;
  std::size_t end_ = 0;
};

char16_t dateSignOf(const DatePattern& date) {
  for (const PatternPart& part : date) {
    if (part.field != PatternField::Literal) continue;
    for (const QChar sign : part.text) {
      if (sign == u'.' || sign == u'-' || sign == u'/') return sign.unicode();
    }
  }
  return u'/';
}

int monthPlace(const DatePattern& date) {
  return std::max({placeOf(PatternField::Month, date), placeOf(PatternField::MonthNameShort, date),
                   placeOf(PatternField::MonthNameLong, date)});
}

bool hasDotAfterHour(const DatePattern& time) {
  const int hour = std::max(placeOf(PatternField::Hour24, time), placeOf(PatternField::Hour12, time));
  const auto next = static_cast<std::size_t>(hour + 1);
  return next < time.size() && time[next].text == u"." && time[next].field == PatternField::Literal;
}

}  // namespace

LooseRules looseRulesOf(const DatePattern& date, const DatePattern& time, int currentYear) {
  LooseRules rules;
  rules.yearFirst = placeOf(PatternField::Year, date) < placeOf(PatternField::Day, date);
  const bool monthFirst = monthPlace(date) < placeOf(PatternField::Day, date);
  rules.order = monthFirst ? DayMonthOrder::MonthFirst : DayMonthOrder::DayFirst;
  rules.dateSign = dateSignOf(date);
  rules.dottedTimes = hasDotAfterHour(time);
  rules.currentYear = currentYear;
  return rules;
}

std::optional<LooseReading> looseDateAt(std::u16string_view text, const DateVocabulary& words,
                                        const LooseRules& rules) {
  return DateParser(text, words, rules).read();
}

std::optional<LooseReading> looseTimeAt(std::u16string_view text, const DateVocabulary& words,
                                        const LooseRules& rules) {
  return TimeParser(text, words, rules).read();
}

}  // namespace quorvin
