// Matching a text against one pattern of a locale, exactly as the pattern is written.
#pragma once

#include "dates/date_pattern.h"
#include "dates/date_words.h"
#include "dates/day_and_second.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// The words that the forms of one locale share.
struct DateVocabulary {
  WordList months;
  WordList halves;
};

/// A time of day as it was read; `half` is kBeforeNoon or kAfterNoon, or -1 when the text names none.
struct ClockReading {
  int hour = 0;
  int minute = 0;
  int second = 0;
  int half = -1;
};

/// Seconds since midnight; nothing when there is no such time. With a half of the day, hours run from 0 to
/// 12, and 0 is the same as 12.
std::optional<int> secondOfDay(const ClockReading& clock);

/// 0 to 29 are of this century, 30 to 99 of the last.
constexpr int yearOfTwoDigits(int year) {
  return year < 30 ? 2000 + year : 1900 + year;
}

/// A pattern made ready for matching.
class DateForm {
 public:
  struct Match {
    CalendarDate date;
    ClockReading clock;
    /// How much of the text was taken.
    std::size_t length = 0;
  };

  explicit DateForm(const DatePattern& pattern);

  /// Matches the front of `text`, a DateText or plain bytes. Days, months and hours may leave out a leading
  /// zero where a sign ends them; the numbers are not checked for making a date or time. Allocates nothing.
  template <typename Unit>
  std::optional<Match> matchFront(std::basic_string_view<Unit> text, const DateVocabulary& words) const;

 private:
  struct Part {
    PatternField field;
    std::size_t leastDigits;
    std::size_t mostDigits;
    std::u16string literal;
  };
  /// What was read for each field of a pattern.
  using Values = std::array<int, kPatternFields>;

  template <typename Unit>
  static std::size_t matchPart(const Part& part, std::basic_string_view<Unit> text,
                               const DateVocabulary& words, int& value);
  static Match matchOf(const Values& values, std::size_t length);

  std::vector<Part> parts_;
};

extern template std::optional<DateForm::Match> DateForm::matchFront(std::string_view,
                                                                    const DateVocabulary&) const;
extern template std::optional<DateForm::Match> DateForm::matchFront(std::u16string_view,
                                                                    const DateVocabulary&) const;

}  // namespace quorvin
