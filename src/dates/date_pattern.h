// A locale's date and time patterns, taken apart.
#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvin {

enum class PatternField : std::uint8_t {
  Literal,
  Day,
  Month,
  MonthNameShort,
  MonthNameLong,
  Year,
  YearTwoDigits,
  Hour24,
  Hour12,
  Minute,
  Second,
  HalfDay,
};
inline constexpr std::size_t kPatternFields = static_cast<std::size_t>(PatternField::HalfDay) + 1;

struct PatternPart {
  PatternField field = PatternField::Literal;
  /// The least number of digits of a number.
  int width = 0;
  /// The text of a literal; for the half day, how it is cased: "AP" upper, "ap" lower, else as the locale has
  /// it.
  QString text;

  bool operator==(const PatternPart&) const = default;
};

/// Literals do not touch each other; blanks are plain, never two in a row, and never at the ends.
using DatePattern = std::vector<PatternPart>;

/// Takes a pattern in QLocale's notation apart. Time zone and weekday are left out, together with the
/// brackets round the zone and the commas and blanks that then stand at an end; no-break blanks become plain
/// ones.
DatePattern parseDatePattern(QStringView notation);

/// The date part of the general form: the locale's short date with a four-digit year. Where the locale's own
/// pattern lacks day, month or year it is year-month-day.
DatePattern generalDatePattern(const QLocale& locale);

/// The time part of the general form: the locale's long time without zone. Where the locale's own pattern
/// would not bring back every second of a day it is hours, minutes and seconds with colons.
DatePattern generalTimePattern(const QLocale& locale);

/// `text` with every run of blanks of any kind as one plain blank.
QString withPlainBlanks(QStringView text);

/// The place of `field` in `pattern`, or -1.
int placeOf(PatternField field, const DatePattern& pattern);

}  // namespace quorvin
