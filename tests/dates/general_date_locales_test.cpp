// SPDX-License-Identifier: GPL-2.0-or-later

// Writing and reading are each other's inverse in every locale that the desktop knows.
#include "dates/general_date.h"
#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

constexpr int kSeconds[] = {0, 1, 59, 60, 3599, 3600, 39599, 43199, 43200, 43201, 46799, 46800, 49449, 86399};

// Days of every month, small and large numbers, old and new.
std::vector<int> someDays() {
  std::vector<int> days = {kFirstDay, -2, -1, 0, 1, 2, kLastDay};
  for (int month = 1; month <= 12; ++month) {
    for (const int year : {101, 1899, 1930, 1999, 2004, 2029, 2031, 9998}) {
      for (const int day : {1, 9, 10, 12, 13, 28}) days.push_back(*dayNumberOf({year, month, day}));
    }
  }
  return days;
}

}  // namespace

TEST(EveryLocale, ReadsBackWhatItWrites) {
  const std::vector<int> days = someDays();
  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  EXPECT_GT(locales.size(), 500);
  const auto stride = test::sweep<std::size_t>(1, 53);
  std::size_t first = 0;
  for (const QLocale& locale : locales) {
    const GeneralDateReader reader(locale);
    const GeneralDateWriter writer(locale);
    // In a slice each locale has other days than the one before it.
    for (std::size_t at = first++ % stride; at < days.size(); at += stride) {
      const int day = days[at];
      for (const int second : kSeconds) {
        const DateValue value = joinDateValue({day, second});
        const QString text = writer.text(value);
        ASSERT_EQ(reader.read(text), value) << locale.name().toStdString() << ": " << text.toStdString();
      }
    }
  }
}

}  // namespace quorvin
