// SPDX-License-Identifier: GPL-2.0-or-later

// Dates as bytes at fixed places: what is read so is what the lenient reader reads.
#include "dates/date_layouts.h"

#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "dates/read_general_date.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>

namespace quorvin {
namespace {

using WrittenMoment = GeneralDateReader::WrittenMoment;

/// What is read at once; kRefused where nothing is.
std::string readAtOnce(const GeneralDateReader& reader, std::string_view text) {
  WrittenMoment written;
  if (!reader.readWritten(text, written)) return kRefused;
  return isoOf(joinDateValue(written.moment));
}

QString wide(const std::string& text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

/// True where `text` was read at once; it is expected to be what the lenient reader makes of it then.
bool readsAlike(const GeneralDateReader& reader, const std::string& text) {
  WrittenMoment written;
  if (!reader.readWritten(text, written)) return false;
  const auto lenient = reader.reading(wide(text));
  const DateReading atOnce{joinDateValue(written.moment), written.evidence};
  EXPECT_TRUE(lenient == atOnce) << '"' << text << '"';
  return true;
}

bool isAsciiText(const QString& text) {
  return std::ranges::all_of(text, [](QChar sign) { return sign.unicode() < 0x80; });
}

/// Some signs of `text` are others, are missing, or stand twice.
std::string changed(std::string text, std::mt19937& random) {
  constexpr std::string_view kSigns = "0123456789/-.:, aApPmMtTbBeE\t\xB5\xFF";
  for (std::size_t changes = 1 + random() % 2; changes > 0; --changes) {
    const std::size_t place = random() % text.size();
    const char sign = random() % 4 == 0 ? static_cast<char>(random()) : kSigns[random() % kSigns.size()];
    switch (random() % 4) {
      case 0:
        text.erase(place, 1);
        break;
      case 1:
        text.insert(place, 1, sign);
        break;
      default:
        text[place] = sign;
    }
  }
  return text;
}

TEST(DateLayouts, ReadTheFormOfNoLanguage) {
  const GeneralDateReader reader(QLocale::c(), kTestYear);
  EXPECT_EQ(readAtOnce(reader, "15 Jan 2004 13:04:09"), "2004-01-15 13:04:09");
  EXPECT_EQ(readAtOnce(reader, "5 Mar 1999 00:00:59"), "1999-03-05 00:00:59");
  EXPECT_EQ(readAtOnce(reader, "05 Mar 1999 23:59:59"), "1999-03-05 23:59:59");
  EXPECT_EQ(readAtOnce(reader, "29 feb 2004 13:04:09"), "2004-02-29 13:04:09");
  EXPECT_EQ(readAtOnce(reader, "31 DEC 2099 1:04:09"), kRefused);
  EXPECT_EQ(readAtOnce(reader, "31 DEC 2099 01:04:09"), "2099-12-31 01:04:09");
  EXPECT_EQ(readAtOnce(reader, "1 Jan 0100 01:04:09"), "0100-01-01 01:04:09");
  EXPECT_EQ(readAtOnce(reader, "31 Dec 9999 23:59:59"), "9999-12-31 23:59:59");
}

TEST(DateLayouts, LeaveToTheLenientReaderWhatIsNearlyRight) {
  const GeneralDateReader reader(QLocale::c(), kTestYear);
  for (const char* text : {"",
                           "15 Jan 2004",
                           "13:04:09",
                           "15 January 2004 13:04:09",
                           "15 Jan. 2004 13:04:09",
                           "15 Jan 04 13:04:09",
                           "15 Jan 2004 13:04",
                           "15 Jan 2004  13:04:09",
                           " 15 Jan 2004 13:04:09",
                           "15 Jan 2004 13:04:09 ",
                           "15\tJan 2004 13:04:09",
                           "30 Feb 2004 13:04:09",
                           "29 Feb 1900 13:04:09",
                           "31 Apr 2004 13:04:09",
                           "0 Jan 2004 13:04:09",
                           "32 Jan 2004 13:04:09",
                           "15 Jax 2004 13:04:09",
                           "15 J\x81n 2004 13:04:09",
                           "15 Jan 2004 24:00:00",
                           "15 Jan 2004 13:60:09",
                           "15 Jan 2004 13:04:60",
                           "15 Jan 2004 13.04.09",
                           "15 Jan 2004 1a:04:09",
                           "15 Jan 20:4 13:04:09",
                           "15 Jan 2/04 13:04:09",
                           "15 Jan 0099 13:04:09",
                           "15 Jan 2004 13:04:09 15 Jan 2004 13:04:09"}) {
    EXPECT_EQ(readAtOnce(reader, text), kRefused) << text;
  }
}

TEST(DateLayouts, ReadNumbersAndHalvesOfTheDay) {
  const GeneralDateReader american(localeNamed("en_US"), kTestYear);
  EXPECT_EQ(readAtOnce(american, "3/15/2004 1:04:09 PM"), "2004-03-15 13:04:09");
  EXPECT_EQ(readAtOnce(american, "12/5/2004 12:04:09 am"), "2004-12-05 00:04:09");
  EXPECT_EQ(readAtOnce(american, "1/2/2004 11:04:09 PM"), "2004-01-02 23:04:09");
  EXPECT_EQ(readAtOnce(american, "11/12/2004 11:04:09 AM"), "2004-11-12 11:04:09");
  EXPECT_EQ(readAtOnce(american, "3/15/2004 13:04:09 PM"), kRefused);
  EXPECT_EQ(readAtOnce(american, "3/15/2004 1:04:09 P"), kRefused);
  const GeneralDateReader german(localeNamed("de_DE"), kTestYear);
  EXPECT_EQ(readAtOnce(german, "15.01.2004 13:04:09"), "2004-01-15 13:04:09");
  const GeneralDateReader swedish(localeNamed("sv_SE"), kTestYear);
  EXPECT_EQ(readAtOnce(swedish, "2004-01-15 13:04:09"), "2004-01-15 13:04:09");
}

TEST(DateLayouts, TellWhatADateSaysOfTheOrderAndFollowIt) {
  GeneralDateReader british(localeNamed("en_GB"), kTestYear);
  WrittenMoment written;
  ASSERT_TRUE(british.readWritten("03/04/2004 13:04:09", written));
  EXPECT_EQ(written.evidence, OrderEvidence::Either);
  ASSERT_TRUE(british.readWritten("15/04/2004 13:04:09", written));
  EXPECT_EQ(written.evidence, OrderEvidence::DayFirst);
  ASSERT_TRUE(british.readWritten("04/04/2004 13:04:09", written));
  EXPECT_EQ(written.evidence, OrderEvidence::None);
  EXPECT_EQ(readAtOnce(british, "03/04/2004 13:04:09"), "2004-04-03 13:04:09");
  british.setOrder(DayMonthOrder::MonthFirst);
  EXPECT_EQ(readAtOnce(british, "03/04/2004 13:04:09"), "2004-03-04 13:04:09");
}

TEST(DateLayouts, LocalesWithOtherSignsHaveNone) {
  const QLocale bangla(QLocale::Bengali);
  EXPECT_EQ(readAtOnce(GeneralDateReader(bangla, kTestYear), "15 Jan 2004 13:04:09"), kRefused);
  // Its times have words.
  EXPECT_EQ(readAtOnce(GeneralDateReader(localeNamed("th_TH"), kTestYear), "15/1/2547 13:04:09"), kRefused);
}

TEST(DateLayouts, ReadWhatEveryLocaleWritesInAscii) {
  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  std::mt19937 random(7);
  int ascii = 0;
  int atOnce = 0;
  for (const QLocale& locale : locales) {
    const GeneralDateReader reader(locale, kTestYear);
    const GeneralDateWriter writer(locale);
    for (int i = 0; i < test::sweep(200, 8); ++i) {
      const int day = 1 + static_cast<int>(random() % 73000);
      const QString text = writer.text(joinDateValue({day, 1 + static_cast<int>(random() % 86399)}));
      if (!isAsciiText(text)) continue;
      ++ascii;
      if (readsAlike(reader, text.toStdString())) ++atOnce;
    }
  }
  EXPECT_GT(ascii, test::sweep(200, 8) * 300);
  // The others have words for the halves of the day with signs beyond ASCII, or are longer than a layout.
  EXPECT_GT(atOnce, ascii / 100 * 98);
}

TEST(DateLayouts, AgreeWithTheLenientReaderOnNearlyRightDatesOfEveryLocale) {
  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  std::mt19937 random(11);
  int atOnce = 0;
  const int rounds = test::sweep(1000, 40);
  for (const QLocale& locale : locales) {
    const GeneralDateReader reader(locale, kTestYear);
    const GeneralDateWriter writer(locale);
    for (int i = 0; i < rounds; ++i) {
      const int day = 1 + static_cast<int>(random() % 73000);
      const QString text = writer.text(joinDateValue({day, 1 + static_cast<int>(random() % 86399)}));
      if (isAsciiText(text) && readsAlike(reader, changed(text.toStdString(), random))) ++atOnce;
    }
  }
  EXPECT_GT(atOnce, rounds * 10);
}

}  // namespace
}  // namespace quorvin
