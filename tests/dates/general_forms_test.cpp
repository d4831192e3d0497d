// SPDX-License-Identifier: GPL-2.0-or-later

// Dates that were written under another locale than the reader's.
#include "dates/general_forms.h"

#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "dates/read_general_date.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

// What the program writes for 15 January 2004, 13:04:09, under the locale that the remark names.
const DateCase kFromElsewhere[] = {
    {"en_US", "2004/01/15 13時04分09秒", "2004-01-15 13:04:09"},            // ja
    {"de_DE", "2004. 1. 15. 오후 1시 4분 9초", "2004-01-15 13:04:09"},      // ko
    {"C", "١٥/١/٢٠٠٤ ١:٠٤:٠٩ م", "2004-01-15 13:04:09"},                    // ar_EG
    {"en_GB", "15.01.2004 13.04.09", "2004-01-15 13:04:09"},                // da
    {"sv_SE", "15.1.2004 13.04.09", "2004-01-15 13:04:09"},                 // fi
    {"ja_JP", "15/1/2004 1:04:09 Μ.Μ.", "2004-01-15 13:04:09"},             // el
    {"fr_FR", "15/1/2004 13 นาฬิกา 04 นาที 09 วินาที", "2004-01-15 13:04:09"},  // th
    {"en_US", "15/01/2004 13.04.09", "2004-01-15 13:04:09"},                // id
    {"en_US", "15.01.2004 г. 13:04:09 ч.", "2004-01-15 13:04:09"},          // bg
    {"en_US", "2004-01-15 13 h 04 min 09 s", "2004-01-15 13:04:09"},        // fr_CA
    {"de_DE", "2004年1月15日", kRefused},                                   // no general form
    {"en_US", "15/1/2004 下午1:04:09", "2004-01-15 13:04:09"},              // zh_HK
    {"zh_TW", "2004-01-15 1:04:09 nm.", "2004-01-15 13:04:09"},             // af
    {"ko_KR", "15.01.2004 kl. 13:04:09", "2004-01-15 13:04:09"},            // nn
    {"en_US", "13時04分09秒", "1899-12-30 13:04:09"},                       // ja
    {"sv_SE", "00.00.00", "1899-12-30 00:00:00"},                           // da
    // Not quite what any locale writes.
    {"en_US", "2004/01/15 13時04分", kRefused},
    {"en_US", "2004/01/15 13時04分09秒 x", kRefused},
    {"en_US", "2004/01/15 25時04分09秒", kRefused},
    {"en_US", "2004/13/32 13時04分09秒", kRefused},
    {"en_GB", "15.01.2004 13.04", kRefused},
};

// No locale writes these with the month first, so that they are read as they were written.
const DateCase kOrderOfTheForm[] = {
    {"en_US", "3.4.2026 13:04:09", "2026-04-03 13:04:09"},
    {"en_US", "03.04.2026 13.04.09", "2026-04-03 13:04:09"},
    {"en_US", "03-04-2026 13:04:09", "2026-04-03 13:04:09"},
    {"en_US", "03/04/2026 13.04.09", "2026-04-03 13:04:09"},
    {"en_US", "3. 4. 2026 13:04:09", "2026-04-03 13:04:09"},
    // Some do write these so; the reader's own order decides.
    {"en_US", "03/04/2026 13:04:09", "2026-03-04 13:04:09"},
    {"en_GB", "3/4/2026 1:04:09 PM", "2026-04-03 13:04:09"},
    // As people type, not as programs write.
    {"en_US", "3.4.2026", "2026-03-04 00:00:00"},
    {"en_US", "3.4.2026 13:04", "2026-03-04 13:04:00"},
};

const DateCase kBuddhist[] = {
    {"th_TH", "15/1/2547 13 นาฬิกา 04 นาที 09 วินาที", "2004-01-15 13:04:09"},
    {"th_TH", "15/1/2547 13:04:09", "2004-01-15 13:04:09"},
    {"th_TH", "15/1/2547", "2004-01-15 00:00:00"},
    {"th_TH", "2547-01-15", "2004-01-15 00:00:00"},
    {"th_TH", "15 มกราคม 2547", "2004-01-15 00:00:00"},
    {"th_TH", "29/2/2547", "2004-02-29 00:00:00"},
    {"th_TH", "1/1/2443", "1900-01-01 00:00:00"},
    {"th_TH", "31/12/2642", "2099-12-31 00:00:00"},
    {"th_TH", "15/1/2004 13 นาฬิกา 04 นาที 09 วินาที", "2004-01-15 13:04:09"},
    {"th_TH", "1/1/2442", "2442-01-01 00:00:00"},
    {"th_TH", "1/1/2643", "2643-01-01 00:00:00"},
    {"en_US", "1/15/2547", "2547-01-15 00:00:00"},
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(FromElsewhere, ReadGeneralDate, testing::ValuesIn(kFromElsewhere), nameOfCase);
INSTANTIATE_TEST_SUITE_P(OrderOfTheForm, ReadGeneralDate, testing::ValuesIn(kOrderOfTheForm), nameOfCase);
INSTANTIATE_TEST_SUITE_P(Buddhist, ReadGeneralDate, testing::ValuesIn(kBuddhist), nameOfCase);

TEST(GeneralForms, ReadInTheOrderAskedForWhereThatIsAQuestion) {
  const GeneralForms& forms = GeneralForms::ofAllLocales();
  const auto dayFirst = forms.read(u"3/4/2004 13.04.09", DayMonthOrder::DayFirst);
  ASSERT_TRUE(dayFirst.has_value());
  EXPECT_EQ(isoOf(dayFirst->value), "2004-04-03 13:04:09");
  EXPECT_EQ(dayFirst->evidence, OrderEvidence::Either);
  const auto monthFirst = forms.read(u"3/4/2004 13.04.09", DayMonthOrder::MonthFirst);
  ASSERT_TRUE(monthFirst.has_value());
  EXPECT_EQ(isoOf(monthFirst->value), "2004-03-04 13:04:09");
  EXPECT_EQ(forms.read(u"3/4/2004 at noon", DayMonthOrder::DayFirst), std::nullopt);
}

TEST(GeneralForms, KnowTheOrderOfAFormThatAllWriteAlike) {
  const GeneralForms& forms = GeneralForms::ofAllLocales();
  EXPECT_EQ(forms.orderIn(u"3.4.2004 13:04:09"), DayMonthOrder::DayFirst);
  EXPECT_EQ(forms.orderIn(u"3/4/2004 13.04.09"), DayMonthOrder::DayFirst);
  EXPECT_EQ(forms.orderIn(u"3/4/2004 13:04:09"), std::nullopt);
  EXPECT_EQ(forms.orderIn(u"3/4/2004 1:04:09 pm"), std::nullopt);
  EXPECT_EQ(forms.orderIn(u"2004-04-03 13:04:09"), std::nullopt);
  EXPECT_EQ(forms.orderIn(u"3.4.2004"), std::nullopt);
  EXPECT_EQ(forms.orderIn(u"13:04:09"), std::nullopt);
}

// Whatever locale the system knows, what was written under it is read under any other. Only two things are
// ambiguous by nature: which of two small numbers is the day where locales with both orders write alike, and
// a time with dots but without a date, of which some locales would make a date.
TEST(GeneralForms, EveryLocaleIsReadUnderEveryTestedOne) {
  std::vector<GeneralDateReader> readers;
  for (const char* name : kTestedLocales) readers.emplace_back(localeNamed(name), kTestYear);
  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  std::size_t number = 0;
  for (const QLocale& locale : locales) {
    // In a slice some of the locales, and none of those that are tested by name.
    if (number++ % test::sweep<std::size_t>(1, 5) != 0) continue;
    const GeneralDateWriter writer(locale);
    for (const int day :
         {*dayNumberOf({2004, 1, 15}), *dayNumberOf({1999, 12, 31}), *dayNumberOf({2026, 5, 5})}) {
      for (const int second : {0, 1, 11045, 43200, 47049, 86399}) {
        const QString text = writer.text(joinDateValue({day, second}));
        for (const GeneralDateReader& reader : readers) {
          ASSERT_EQ(isoOf(reader.read(text)), isoOf(joinDateValue({day, second})))
              << locale.name().toStdString() << ": " << text.toStdString();
        }
      }
    }
  }
}

}  // namespace quorvin
