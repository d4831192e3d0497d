// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/date_pattern.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvin {

namespace {

// A pattern as text: letters for fields with their widths, literals in quotes.
std::string shown(const DatePattern& pattern) {
  static const std::string kLetters = "'dMbByYHhmsp";
  std::string text;
  for (const PatternPart& part : pattern) {
    if (!text.empty()) text += ' ';
    const char letter = kLetters[static_cast<std::size_t>(part.field)];
    text += part.field == PatternField::Literal ? "'" + part.text.toStdString() + "'"
                                                : letter + std::to_string(part.width);
  }
  return text;
}

std::string parsed(const char* notation) {
  return shown(parseDatePattern(QString::fromUtf8(notation)));
}

}  // namespace

TEST(DatePattern, TellsFieldsFromLiterals) {
  EXPECT_EQ(parsed("dd.MM.yyyy"), "d2 '.' M2 '.' y4");
  EXPECT_EQ(parsed("d MMM yy"), "d1 ' ' b3 ' ' Y2");
  EXPECT_EQ(parsed("d.MM.yy 'г'."), "d1 '.' M2 '.' Y2 ' г.'");
  EXPECT_EQ(parsed("h:mm:ss AP"), "h1 ':' m2 ':' s2 ' ' p0");
  EXPECT_EQ(parsed("d 'o''clock"), "d1 ' o'clock'");
  EXPECT_EQ(parsed(""), "");
  EXPECT_EQ(parsed("'"), "");
}

TEST(DatePattern, LeavesTheZoneOutWithItsBrackets) {
  EXPECT_EQ(parsed("HH:mm:ss t"), "H2 ':' m2 ':' s2");
  EXPECT_EQ(parsed("H:mm:ss (t)"), "H1 ':' m2 ':' s2");
  EXPECT_EQ(parsed("AP h:mm:ss [tttt]"), "p0 ' ' h1 ':' m2 ':' s2");
  EXPECT_EQ(parsed("t HH:mm:ss"), "H2 ':' m2 ':' s2");
  EXPECT_EQ(parsed("HH:mm:ss, t"), "H2 ':' m2 ':' s2");
}

TEST(DatePattern, LeavesTheWeekdayOutWithWhatLeadsFromIt) {
  EXPECT_EQ(parsed("dddd, d MMMM yyyy"), "d1 ' ' B4 ' ' y4");
  EXPECT_EQ(parsed("dddd 'den' d. MMMM yyyy"), "d1 '. ' B4 ' ' y4");
  EXPECT_EQ(parsed("yyyy MMMM d, dddd"), "y4 ' ' B4 ' ' d1");
  EXPECT_EQ(parsed("yyyy年M月d日dddd"), "y4 '年' M1 '月' d1 '日'");
}

TEST(DatePattern, CountsHoursTo23WithoutAHalfDay) {
  EXPECT_EQ(parsed("h:mm"), "H1 ':' m2");
}

TEST(DatePattern, LeavesOutLettersThatMeanNothing) {
  EXPECT_EQ(parsed("Bh:mm:ss"), "H1 ':' m2 ':' s2");
}

TEST(DatePattern, WritesPlainBlanks) {
  EXPECT_EQ(parsed("h:mm\u202F\u00A0AP"), "h1 ':' m2 ' ' p0");
}

TEST(GeneralPattern, HasAFourDigitYear) {
  EXPECT_EQ(shown(generalDatePattern(QLocale(u"en_US"))), "M1 '/' d1 '/' y4");
  EXPECT_EQ(shown(generalDatePattern(QLocale(u"de_DE"))), "d2 '.' M2 '.' y4");
  EXPECT_EQ(shown(generalDatePattern(QLocale::c())), "d1 ' ' b3 ' ' y4");
}

TEST(GeneralPattern, HasNoZone) {
  EXPECT_EQ(shown(generalTimePattern(QLocale(u"en_US"))), "h1 ':' m2 ':' s2 ' ' p0");
  EXPECT_EQ(shown(generalTimePattern(QLocale(u"ja_JP"))), "H1 '時' m2 '分' s2 '秒'");
}

}  // namespace quorvin
