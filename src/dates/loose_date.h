// SPDX-License-Identifier: GPL-2.0-or-later

// Dates and times as people write them, beyond the exact forms of their locale.
#pragma once

#include "dates/date_pattern.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvin {

/// What a locale decides about texts that do not follow its own form.
struct LooseRules {
  bool yearFirst = false;
  DayMonthOrder order = DayMonthOrder::DayFirst;
  /// The sign between the numbers of the locale's short date.
  char16_t dateSign = u'/';
  /// Whether the locale writes "13.04" for four minutes past one.
  bool dottedTimes = false;
  /// The year of a date that names none.
  int currentYear = 0;
  /// Whether years of the Buddhist calendar are written, 543 ahead of the others.
  bool buddhistYears = false;

  /// The year that a written one means. Only years that are of today or lately in the Buddhist calendar are
  /// taken for one of it.
  int yearMeantBy(int written) const {
    return buddhistYears && written >= 2443 && written <= 2642 ? written - 543 : written;
  }
};

LooseRules looseRulesOf(const DatePattern& date, const DatePattern& time, int currentYear);

/// Something read from the front of a text: a day number or a second of the day, and how much was taken.
struct LooseReading {
  int value = 0;
  std::size_t length = 0;
  /// Of a date.
  OrderEvidence evidence = OrderEvidence::None;
};

/// A date at the front of `text`, a DateText: two or three numbers with "/", "-", "." or blanks between them,
/// or a month name among them. Day and month change places when only that makes a date. Years have two or
/// four digits; a four-digit year is found wherever it stands outside. A month with a four-digit year alone
/// is its first day. Two numbers with a dot are a date only where the locale writes dates with dots; two
/// numbers with a blank never are.
std::optional<LooseReading> looseDateAt(std::u16string_view text, const DateVocabulary& words,
                                        const LooseRules& rules);

/// A time at the front of `text`: hours, minutes and perhaps seconds with colons (dots where the locale
/// writes them so), or an hour alone with a word for the half of the day, which may stand before or after.
std::optional<LooseReading> looseTimeAt(std::u16string_view text, const DateVocabulary& words,
                                        const LooseRules& rules);

}  // namespace quorvin
