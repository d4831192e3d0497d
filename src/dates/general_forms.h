// SPDX-License-Identifier: GPL-2.0-or-later

// The general date forms of all locales, for texts that were written under another one than the user's.
#pragma once

#include "dates/date_pattern.h"
#include "dates/general_date.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvin {

/// Reads what generalDateText writes in any locale that the system knows. The texts are views of a DateText.
class GeneralForms {
 public:
  /// Made at the first call, which takes some milliseconds.
  static const GeneralForms& ofAllLocales();

  /// The whole of `text`: a date, a time, or a date, a blank and a time; day and month in `order` where that
  /// is a question. Nothing when no locale writes so.
  std::optional<DateReading> read(std::u16string_view text, DayMonthOrder order) const;

  /// The order of day and month in `text`, a date and a time, if all locales that write so have the same:
  /// none writes "3.4.2004 13:04:09" with the month first, but some write "3/4/2004 13:04:09" so.
  std::optional<DayMonthOrder> orderIn(std::u16string_view text) const;

 private:
  GeneralForms();
  void add(const QLocale& locale);
  void addHalves(const QLocale& locale, const DatePattern& time);
  std::optional<int> timeBehind(std::size_t date, std::u16string_view text) const;
  std::optional<int> wholeTime(const DateForm& time, std::u16string_view text) const;

  /// Each once.
  std::vector<DateForm> dates_;
  std::vector<DateForm> times_;
  /// Which time goes with which date: their places above.
  std::vector<std::pair<std::size_t, std::size_t>> pairs_;
  DateVocabulary words_;
};

}  // namespace quorvin
