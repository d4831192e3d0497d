// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/entry_line.h"

#include "support/time_zone.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

// 15 January 2004, 10:20:30 UTC.
constexpr std::int64_t kMoment = 1'074'162'030;

std::string lineOf(const ListedFile& file, const QLocale& locale = QLocale::c()) {
  const test::TimeZone zone(test::kUtc);
  EntryLines lines(locale);
  std::string line;
  lines.append(line, file);
  return line;
}

std::string blanks(std::size_t count) {
  return std::string(count, ' ');
}

// The columns of the size of a file with a name of one letter.
std::string sizeColumns(std::int64_t size, const QLocale& locale = QLocale::c()) {
  const std::string line = lineOf({"a", size, kMoment}, locale);
  const std::size_t end = line.find(" bytes ");
  return line.substr(65, end - 65);
}

TEST(EntryLine, HasItsFixedColumns) {
  EXPECT_EQ(lineOf({"Live at Wembley.mp3", 131'072, kMoment}),
            "Live at Wembley.mp3" + blanks(46) + blanks(9) + "131,072 bytes 15 Jan 2004 10:20:30");
}

TEST(EntryLine, ANameOf70CharactersIsCutTo65) {
  const std::string name = std::string(65, 'n') + "12345";
  EXPECT_EQ(lineOf({name, 1, kMoment}), std::string(65, 'n') + blanks(15) + "1 bytes 15 Jan 2004 10:20:30");
}

TEST(EntryLine, ColumnsCountCharacters) {
  const std::string line = lineOf({"Grüße 写真.txt", 1, kMoment});
  EXPECT_EQ(line, "Grüße 写真.txt" + blanks(53) + blanks(15) + "1 bytes 15 Jan 2004 10:20:30");
  std::string longName;
  for (int i = 0; i < 70; ++i) longName += "ü";
  EXPECT_EQ(lineOf({longName, 1, kMoment}),
            longName.substr(0, 130) + blanks(15) + "1 bytes 15 Jan 2004 10:20:30");
}

TEST(EntryLine, SizesAreGroupedAndRightAligned) {
  EXPECT_EQ(sizeColumns(0), blanks(15) + "0");
  EXPECT_EQ(sizeColumns(999), blanks(13) + "999");
  EXPECT_EQ(sizeColumns(1000), blanks(11) + "1,000");
  EXPECT_EQ(sizeColumns(1'234'567), blanks(7) + "1,234,567");
  EXPECT_EQ(sizeColumns(2'147'483'647), "   2,147,483,647");
  EXPECT_EQ(sizeColumns(-1), blanks(14) + "-1");
}

TEST(EntryLine, SizesBeyondTenDigitsLoseTheirGroupingToStayInTheColumns) {
  EXPECT_EQ(sizeColumns(9'999'999'999), "   9,999,999,999");
  EXPECT_EQ(sizeColumns(10'000'000'000), blanks(5) + "10000000000");
  EXPECT_EQ(sizeColumns(9'999'999'999'999), "   9999999999999");
  EXPECT_EQ(sizeColumns(10'000'000'000'000), "   9999999999999");
  EXPECT_EQ(sizeColumns(INT64_MAX), "   9999999999999");
}

TEST(EntryLine, GroupsByTheSignOfTheLocale) {
  EXPECT_EQ(sizeColumns(1'234'567, QLocale(QStringLiteral("de_DE"))), blanks(7) + "1.234.567");
  EXPECT_EQ(sizeColumns(1'234'567, QLocale(QStringLiteral("sv_SE"))), blanks(7) + "1\u00A0234\u00A0567");
  EXPECT_EQ(sizeColumns(1'234'567, QLocale(QStringLiteral("fr_FR"))), blanks(7) + "1\u202F234\u202F567");
  EXPECT_EQ(sizeColumns(1'234'567, QLocale(QStringLiteral("ja_JP"))), blanks(7) + "1,234,567");
  // By thousands everywhere, from four digits on.
  EXPECT_EQ(sizeColumns(1'234'567, QLocale(QStringLiteral("hi_IN"))), blanks(7) + "1,234,567");
  EXPECT_EQ(sizeColumns(1234, QLocale(QStringLiteral("es_ES"))), blanks(11) + "1.234");
}

TEST(EntryLine, WithoutADateTheZeroDateIsTheTimeAlone) {
  EXPECT_EQ(lineOf({"a?b", -1, std::nullopt}), "a?b" + blanks(62) + blanks(14) + "-1 bytes 00:00:00");
  EXPECT_EQ(lineOf({"a?b", -1, std::nullopt}, QLocale(QStringLiteral("en_US"))),
            "a?b" + blanks(62) + blanks(14) + "-1 bytes 12:00:00 AM");
}

TEST(EntryLine, ExactMidnightIsTheDateAlone) {
  EXPECT_EQ(lineOf({"a", 1, 1'074'124'800}), "a" + blanks(64) + blanks(15) + "1 bytes 15 Jan 2004");
}

}  // namespace
}  // namespace quorvin
