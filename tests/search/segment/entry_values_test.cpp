// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/entry_values.h"

#include "dates/general_date_reader.h"
#include "dates/general_number.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>

namespace quorvin {
namespace {

constexpr double kSecond = 1.0 / 86400;

bool staysWhole(const EntryValues& values) {
  const CompactValues compacted = compact(ValueState::Own, values);
  return compacted.second != CompactValues::kKeptAside && expand(compacted) == values;
}

TEST(CompactValues, HoldSizesBelowFourGibibytesAndSecondsUntil2036) {
  EXPECT_TRUE(staysWhole({0, 0}));
  EXPECT_TRUE(staysWhole({4294967295, 0}));
  EXPECT_TRUE(staysWhole({1024, 38001.5}));
  // The last day that fits in 32 bits of seconds is 49709: 4 February 2036.
  EXPECT_TRUE(staysWhole({1, 49709}));
}

TEST(CompactValues, HoldEverySecondOfADayWithoutLoss) {
  GeneralDateReader reader{QLocale::c()};
  for (int second = 0; second < 86400; second += 7) {
    const std::string text = "15 Jan 2004 " + std::to_string(second / 3600) + ":" +
                             (second / 60 % 60 < 10 ? "0" : "") + std::to_string(second / 60 % 60) + ":" +
                             (second % 60 < 10 ? "0" : "") + std::to_string(second % 60);
    const auto date = reader.readAscii(text);
    ASSERT_TRUE(date) << text;
    ASSERT_TRUE(staysWhole({7, *date})) << text;
  }
}

TEST(CompactValues, WhatDoesNotFitIsKeptAside) {
  for (const EntryValues& values :
       {EntryValues{4294967296, 0}, EntryValues{-1, 0}, EntryValues{0, -1}, EntryValues{0, 49710},
        EntryValues{0, 2958465}, EntryValues{0, 38001 + kSecond / 3}, EntryValues{0, -0.25},
        EntryValues{std::numeric_limits<std::int64_t>::max(), 38001}}) {
    EXPECT_EQ(compact(ValueState::Own, values).second, CompactValues::kKeptAside)
        << values.size << " " << values.date;
  }
}

TEST(CompactValues, MarksTellWhatIsNotThere) {
  EXPECT_EQ(compact(ValueState::Absent, {5, 6}).second, CompactValues::kAbsent);
  EXPECT_EQ(compact(ValueState::Unreadable, {5, 6}).second, CompactValues::kUnreadable);
}

TEST(CompactValues, NoFittingDateLooksLikeAMark) {
  const CompactValues last = compact(ValueState::Own, {0, 49709 + 86399 * kSecond});
  EXPECT_LT(last.second, CompactValues::kKeptAside);
}

class ReadEntryValues : public testing::Test {
 protected:
  ValueState read(const std::string& tail, bool ascii = true) { return reader_.read(tail, ascii, values_); }

  EntryValuesReader reader_{QLocale::c()};
  EntryValues values_{-7, -7};
};

TEST_F(ReadEntryValues, SizeIsTheFirst13ColumnsAndTheDateBeginsInThe21st) {
  EXPECT_EQ(read("    1,234,567 bytes 15 Jan 2004 10:20:30"), ValueState::Own);
  EXPECT_EQ(values_.size, 1234567);
  EXPECT_DOUBLE_EQ(values_.date, 38001 + 37230 * kSecond);
}

TEST_F(ReadEntryValues, TailOf32ColumnsHoldsNoneAndOneOf33Does) {
  EXPECT_EQ(read("        1,024 bytes 15 Jan 2004 "), ValueState::Absent);
  EXPECT_EQ(values_, (EntryValues{-7, -7}));
  EXPECT_EQ(read("        1,024 bytes 15 Jan 2004  "), ValueState::Own);
  EXPECT_EQ(values_, (EntryValues{1024, 38001}));
}

TEST_F(ReadEntryValues, ColumnsCountCharactersWhereTheTailIsNotAscii) {
  // 32 characters in 33 bytes: too short.
  EXPECT_EQ(read("        1,024 bytes 15 Jan 2004\xC3\xA9", false), ValueState::Absent);
  // A character of two bytes between size and date moves nothing.
  EXPECT_EQ(read("        1,024 byt\xC3\xA9s 15 Jan 2004 10:20:30", false), ValueState::Own);
  EXPECT_EQ(values_.size, 1024);
}

TEST_F(ReadEntryValues, TextThatIsNoSizeOrNoDateIsUnreadable) {
  EXPECT_EQ(read("          n/a bytes 15 Jan 2004 10:20:30"), ValueState::Unreadable);
  EXPECT_EQ(read("        1,024 bytes no date at all 123456"), ValueState::Unreadable);
  EXPECT_EQ(values_, (EntryValues{-7, -7}));
}

/// What is read at once of a tail: its size, 0 where nothing is.
class ReadWrittenValues : public testing::Test {
 protected:
  std::uint32_t sizeAtOnce(const std::string& tail) const {
    CompactValues values{};
    return reader_.readWritten(tail, values) ? values.size : 0;
  }

  /// True where the tail was read at once; it is expected to be as it is read the long way then.
  bool readsAlike(const std::string& tail) {
    CompactValues atOnce{};
    if (!reader_.readWritten(tail, atOnce)) return false;
    const bool ascii = std::ranges::all_of(tail, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    EntryValues values;
    EXPECT_EQ(reader_.read(tail, ascii, values), ValueState::Own) << '"' << tail << '"';
    const CompactValues expected = compact(ValueState::Own, values);
    EXPECT_EQ(atOnce.size, expected.size) << '"' << tail << '"';
    EXPECT_EQ(atOnce.second, expected.second) << '"' << tail << '"';
    return true;
  }

  EntryValuesReader reader_{QLocale::c()};
};

TEST_F(ReadWrittenValues, AreSizesInGroupsOfThree) {
  const std::string rest = " bytes 15 Jan 2004 10:20:30";
  EXPECT_EQ(sizeAtOnce("            7" + rest), 7U);
  EXPECT_EQ(sizeAtOnce("           12" + rest), 12U);
  EXPECT_EQ(sizeAtOnce("          123" + rest), 123U);
  EXPECT_EQ(sizeAtOnce("        1,024" + rest), 1024U);
  EXPECT_EQ(sizeAtOnce("       98.765" + rest), 98765U);
  EXPECT_EQ(sizeAtOnce("      987 654" + rest), 987654U);
  EXPECT_EQ(sizeAtOnce("    1'234'567" + rest), 1234567U);
  EXPECT_EQ(sizeAtOnce("   12,345,678" + rest), 12345678U);
  EXPECT_EQ(sizeAtOnce("  123,456,789" + rest), 123456789U);
  EXPECT_EQ(sizeAtOnce("4,294,967,295" + rest), 4294967295U);
}

TEST_F(ReadWrittenValues, AllElseIsLeftToBeLookedAt) {
  const std::string rest = " bytes 15 Jan 2004 10:20:30";
  for (const char* size :
       {"4,294,967,296", "9,999,999,999", " 9999999999  ", "         1024", "      ,234   ", "       1,02 ",
        "         ,234", "     ,234,567", "        1;024", "    1,234.567", "       1,,024", "       -1,024",
        "        1,0x4", "             ", "        1 024 "}) {
    EXPECT_EQ(sizeAtOnce(size + rest), 0U) << size;
  }
  EXPECT_EQ(sizeAtOnce("        1,024 byt\xC3\xA9s 15 Jan 2004 10:20:30"), 0U);
  EXPECT_EQ(sizeAtOnce("        1,024 byt\xC3\xA9s15 Jan 2004 10:20:30"), 0U);
  EXPECT_EQ(sizeAtOnce("        1,024 bytes 5 Jan 2004"), 0U);
  EXPECT_EQ(sizeAtOnce("        1,024 bytes 4 Feb 2036 10:20:30"), 1024U);
  EXPECT_EQ(sizeAtOnce("        1,024 bytes 5 Feb 2036 10:20:30"), 0U);
  EXPECT_EQ(sizeAtOnce("        1,024 bytes 29 Dec 1899 10:20:30"), 0U);
  EXPECT_EQ(sizeAtOnce("        1,024"), 0U);
  EXPECT_EQ(sizeAtOnce(""), 0U);
}

TEST_F(ReadWrittenValues, AgreeWithTheLongWayOnNearlyRightTails) {
  std::mt19937 random(43);
  int atOnce = 0;
  for (int round = 0; round < 200000; ++round) {
    std::string tail = QLocale(QLocale::English).toString(random() >> random() % 32).toStdString();
    tail = std::string(13 - tail.size(), ' ') + tail + " bytes 15 Jan 2004 10:20:30";
    for (auto changes = random() % 3; changes > 0; --changes) {
      tail[random() % (random() % 2 == 0 ? 13 : tail.size())] = "0123456789,.' -\xC3"[random() % 16];
    }
    if (readsAlike(tail)) ++atOnce;
  }
  EXPECT_GT(atOnce, 60000);
}

TEST(ReadWrittenDates, WaitUntilTheOrderOfDayAndMonthHasBeenLookedFor) {
  int asked = 0;
  EntryValuesReader reader(QLocale(QLocale::English, QLocale::UnitedKingdom), [&asked] {
    ++asked;
    return std::optional(DayMonthOrder::MonthFirst);
  });
  const std::string tail = "        1,024 bytes 03/04/2004 13:04:09";
  CompactValues atOnce{};
  EXPECT_TRUE(reader.readWritten("        1,024 bytes 15/04/2004 13:04:09", atOnce));
  EXPECT_FALSE(reader.readWritten(tail, atOnce));
  EXPECT_EQ(asked, 0);
  EntryValues values;
  EXPECT_EQ(reader.read(tail, true, values), ValueState::Own);
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(reader.readWritten(tail, atOnce));
  EXPECT_EQ(expand(atOnce), values);
  EXPECT_EQ(values, (EntryValues{1024, 38050 + 47049 * kSecond}));
}

TEST(ReadAsciiByteCount, AgreesWithTheReaderOfAllScripts) {
  std::mt19937 random(41);
  int numbers = 0;
  for (int round = 0; round < 300000; ++round) {
    std::string text(random() % 22, '\0');
    for (char& c : text) c = "0123456789012345678990,.' -+x"[random() % (round % 2 == 0 ? 22 : 29)];
    const auto expected = readByteCount(QString::fromStdString(text));
    std::int64_t bytes = -99;
    ASSERT_EQ(readAsciiByteCount(text, bytes), expected.has_value()) << "\"" << text << "\"";
    ASSERT_EQ(bytes, expected.value_or(-99)) << "\"" << text << "\"";
    if (expected) ++numbers;
  }
  EXPECT_GT(numbers, 30000) << "too few numbers to say anything";
}

TEST(ReadAsciiByteCount, GroupingSignsStandSinglyBetweenDigits) {
  std::int64_t bytes = 0;
  EXPECT_TRUE(readAsciiByteCount(" 1,234,567 ", bytes));
  EXPECT_EQ(bytes, 1234567);
  EXPECT_FALSE(readAsciiByteCount("1,,234", bytes));
  EXPECT_FALSE(readAsciiByteCount(",234", bytes));
  EXPECT_FALSE(readAsciiByteCount("234,", bytes));
}

TEST(ReadAsciiByteCount, LargestAndSmallestValuesFit) {
  std::int64_t bytes = 0;
  EXPECT_TRUE(readAsciiByteCount("9223372036854775807", bytes));
  EXPECT_EQ(bytes, std::numeric_limits<std::int64_t>::max());
  EXPECT_FALSE(readAsciiByteCount("9223372036854775808", bytes));
  EXPECT_TRUE(readAsciiByteCount("-9223372036854775808", bytes));
  EXPECT_EQ(bytes, std::numeric_limits<std::int64_t>::min());
}

}  // namespace
}  // namespace quorvin
