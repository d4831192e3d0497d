// SPDX-License-Identifier: GPL-2.0-or-later

// Dates as other programs write them in their lists. Each function that takes a date from the front of `text`
// leaves what follows in it, and gives nothing, with `text` as it was, where there is none.
#pragma once

#include "catalogue/import/list_entry.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvin {

/// "2004-01-15", "2004-01-15 10:20", "2004-01-15T10:20:30.25 +0100", with `sign` between the numbers of the
/// date. Parts of a second are dropped. With a zone it is a moment, else wall-clock time; midnight where
/// there is no time.
std::optional<ListDate> takeIsoDate(std::string_view& text, char sign = '-');

/// "Jan 15  2004", "Nov 23 02:35", "Nov 23 02:35:10 2026", with English month names. A date without a year is
/// the last one that is not after `made`, the day (as wallClockDay gives it) on which the list was made, by
/// more than a day; without that day it is of kind None.
std::optional<ListDate> takeMonthNameDate(std::string_view& text, std::optional<std::int64_t> made);

/// "01-15 10:20", which names no year, as above.
std::optional<ListDate> takeYearlessDate(std::string_view& text, std::optional<std::int64_t> made);

/// "15.01.2004 10:20", "01/15/04  10:20 AM", "2004-01-15 10:20": numbers with "-", "." or "/" between them
/// (of two numbers before the year, with dots the day is first), and perhaps a time with or without a half of
/// the day. Years of two digits are 2000 to 2029 and 1930 to 1999, as everywhere in the program.
std::optional<ListDate> takeNumericDate(std::string_view& text);

/// Seconds since the start of 1970, "1074162030.25" or "-2.25". The part behind the point is dropped: find
/// adds it to the second before the point, whatever the sign.
std::optional<ListDate> takeUnixTime(std::string_view& text);

/// The day in days since the start of 1970; nothing for a date that there is not.
std::optional<std::int64_t> wallClockDay(int year, int month, int day);

/// The date with day and month in the order `order`; kind None where that is not known.
ListDate inOrder(const ListDate& date, std::optional<DayMonthOrder> order);

}  // namespace quorvin
