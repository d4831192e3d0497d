// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/date_pattern.h"

#include <algorithm>
#include <optional>

namespace quorvin {

namespace {

// Reads the notation from front to back.
class PatternParser {
 public:
  explicit PatternParser(QStringView notation) : rest_(notation) {}

  DatePattern parse() {
    while (!rest_.isEmpty()) takePart();
    flushLiteral();
    trimEnds();
    return std::move(pattern_);
  }

 private:
  void takePart() {
    const QChar sign = rest_.front();
    if (sign == u'\'') return takeQuoted();
    if (sign == u'a' || sign == u'A') return takeHalfDay();
    const qsizetype run = runLength();
    const QStringView letters = rest_.left(run);
    rest_ = rest_.mid(run);
    if (sign == u't') return dropZone();
    if (sign == u'd' && run > 2) return dropWeekday();
    if (const std::optional<PatternField> field = fieldOf(sign, run)) {
      flushLiteral();
      pattern_.push_back({*field, static_cast<int>(run), {}});
      return;
    }
    // Pattern letters of newer notations that mean nothing to QLocale would be printed as they stand.
    const bool unknownLetter = (sign >= u'a' && sign <= u'z') || (sign >= u'A' && sign <= u'Z');
    if (!unknownLetter) literal_ += letters;
  }

  qsizetype runLength() const {
    qsizetype length = 1;
    while (length < rest_.size() && rest_[length] == rest_.front()) ++length;
    return length;
  }

  static std::optional<PatternField> fieldOf(QChar sign, qsizetype run) {
    switch (sign.unicode()) {
      case u'd':
        return PatternField::Day;
      case u'M':
        if (run > 3) return PatternField::MonthNameLong;
        return run == 3 ? PatternField::MonthNameShort : PatternField::Month;
      case u'y':
        return run > 2 ? PatternField::Year : PatternField::YearTwoDigits;
      case u'H':
        return PatternField::Hour24;
      case u'h':
        return PatternField::Hour12;
      case u'm':
        return PatternField::Minute;
      case u's':
        return PatternField::Second;
      default:
        return std::nullopt;
    }
  }

  // Two quotes in a row, inside quotes or out, stand for one.
  void takeQuoted() {
    rest_ = rest_.mid(1);
    if (takeDoubledQuote()) return;
    while (!rest_.isEmpty()) {
      const QChar sign = rest_.front();
      rest_ = rest_.mid(1);
      if (sign != u'\'') {
        literal_ += sign;
      } else if (!takeDoubledQuote()) {
        return;
      }
    }
  }

  bool takeDoubledQuote() {
    if (!rest_.startsWith(u'\'')) return false;
    literal_ += u'\'';
    rest_ = rest_.mid(1);
    return true;
  }

  void takeHalfDay() {
    const bool two = rest_.size() > 1 && (rest_[1] == u'p' || rest_[1] == u'P');
    flushLiteral();
    pattern_.push_back({PatternField::HalfDay, 0, rest_.left(two ? 2 : 1).toString()});
    rest_ = rest_.mid(two ? 2 : 1);
  }

  void dropZone() {
    const bool round = literal_.endsWith(u'(') && rest_.startsWith(u')');
    const bool square = literal_.endsWith(u'[') && rest_.startsWith(u']');
    if (round || square) {
      literal_.chop(1);
      rest_ = rest_.mid(1);
    }
    hasGap_ = true;
  }

  void dropWeekday() {
    hasGap_ = true;
    // What leads from the weekday to the date ("Monday the 3rd") goes with it.
    if (!pattern_.empty()) return;
    literal_.clear();
    dropLeading_ = true;
  }

  void flushLiteral() {
    if (dropLeading_) literal_.clear();
    dropLeading_ = false;
    const QString literal = withPlainBlanks(literal_);
    literal_.clear();
    if (!literal.isEmpty()) pattern_.push_back({PatternField::Literal, 0, literal});
  }

  void trimEnds() {
    const auto trimmable = [this](QChar sign) { return sign == u' ' || (hasGap_ && sign == u','); };
    while (!pattern_.empty() && pattern_.front().field == PatternField::Literal) {
      QString& text = pattern_.front().text;
      while (!text.isEmpty() && trimmable(text.front())) text.remove(0, 1);
      if (!text.isEmpty()) break;
      pattern_.erase(pattern_.begin());
    }
    while (!pattern_.empty() && pattern_.back().field == PatternField::Literal) {
      QString& text = pattern_.back().text;
      while (!text.isEmpty() && trimmable(text.back())) text.chop(1);
      if (!text.isEmpty()) break;
      pattern_.pop_back();
    }
  }

  QStringView rest_;
  QString literal_;
  DatePattern pattern_;
  bool hasGap_ = false;
  bool dropLeading_ = false;
};

bool holds(PatternField field, const DatePattern& pattern) {
  return placeOf(field, pattern) >= 0;
}

}  // namespace

QString withPlainBlanks(QStringView text) {
  QString plain;
  for (const QChar sign : text) {
    const bool blank = sign.category() == QChar::Separator_Space;
    if (blank && plain.endsWith(u' ')) continue;
    plain += blank ? QChar(u' ') : sign;
  }
  return plain;
}

int placeOf(PatternField field, const DatePattern& pattern) {
  const auto found = std::find_if(pattern.begin(), pattern.end(),
                                  [field](const PatternPart& part) { return part.field == field; });
  return found == pattern.end() ? -1 : static_cast<int>(found - pattern.begin());
}

DatePattern parseDatePattern(QStringView notation) {
  DatePattern pattern = PatternParser(notation).parse();
  if (holds(PatternField::HalfDay, pattern)) return pattern;
  for (PatternPart& part : pattern) {
    // Without a half day "h" counts to 23.
    if (part.field == PatternField::Hour12) part.field = PatternField::Hour24;
  }
  return pattern;
}

DatePattern generalDatePattern(const QLocale& locale) {
  DatePattern pattern = parseDatePattern(locale.dateFormat(QLocale::ShortFormat));
  for (PatternPart& part : pattern) {
    if (part.field == PatternField::YearTwoDigits) part = {PatternField::Year, 4, {}};
  }
  const bool hasMonth = holds(PatternField::Month, pattern) || holds(PatternField::MonthNameShort, pattern) ||
                        holds(PatternField::MonthNameLong, pattern);
  if (hasMonth && holds(PatternField::Day, pattern) && holds(PatternField::Year, pattern)) return pattern;
  return parseDatePattern(u"yyyy-MM-dd");
}

DatePattern generalTimePattern(const QLocale& locale) {
  const DatePattern pattern = parseDatePattern(locale.timeFormat(QLocale::LongFormat));
  const bool fullDay = holds(PatternField::Hour24, pattern) != holds(PatternField::HalfDay, pattern);
  if (fullDay && holds(PatternField::Minute, pattern) && holds(PatternField::Second, pattern)) return pattern;
  return parseDatePattern(u"HH:mm:ss");
}

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

std::size_t takeWord(const WordList& words, std::u16string_view text, int& meaning) {
  const auto found = words.at(text);
  if (!found) return kNoMatch;
  meaning = found->meaning;
  return found->length;
}

}  // namespace

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
  const int day = placeOf(PatternField::Day, pattern);
  const int month = placeOf(PatternField::Month, pattern);
  const int year =
      std::max(placeOf(PatternField::Year, pattern), placeOf(PatternField::YearTwoDigits, pattern));
  if (day < 0 || month < 0 || (year >= 0 && year < std::max(day, month))) return;
  order_ = day < month ? DayMonthOrder::DayFirst : DayMonthOrder::MonthFirst;
}

std::size_t DateForm::matchPart(const Part& part, std::u16string_view text, const DateVocabulary& words,
                                int& value) {
  switch (part.field) {
    case PatternField::Literal:
      return text.starts_with(part.literal) ? part.literal.size() : kNoMatch;
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
  while (digits < most && isDigit(text[digits])) {
    number = number * 10 + (text[digits] - u'0');
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

std::optional<DateForm::Match> DateForm::matchFront(std::u16string_view text,
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

}  // namespace quorvin
