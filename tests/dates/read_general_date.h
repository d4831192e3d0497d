// SPDX-License-Identifier: GPL-2.0-or-later

// One row of the tables of dates: what a text means to people of a locale.
#pragma once

#include "dates/general_date.h"

#include <QLocale>
#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace quorvin {

/// The locales that the tables cover.
inline const std::vector<const char*> kTestedLocales = {"en_US", "en_GB", "de_DE", "fr_FR",
                                                        "sv_SE", "ja_JP", "C"};

/// The year of dates that name none, in all tables.
inline constexpr int kTestYear = 2004;

inline constexpr const char* kRefused = "refused";

struct DateCase {
  const char* locale;
  /// UTF-8.
  const char* text;
  /// "yyyy-mm-dd hh:mm:ss", or kRefused.
  const char* expected;
};

/// Without the text, whose signs test runners stumble over.
void PrintTo(const DateCase& row, std::ostream* out);

QLocale localeNamed(const char* name);

/// A value as the tables write it.
std::string isoOf(std::optional<DateValue> value);

/// Reads each row's text with a reader of its locale.
class ReadGeneralDate : public testing::TestWithParam<DateCase> {};

/// The rows' names: locale and number.
std::string nameOfCase(const testing::TestParamInfo<DateCase>& info);

}  // namespace quorvin
