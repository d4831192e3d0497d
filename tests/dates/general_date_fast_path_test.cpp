// SPDX-License-Identifier: GPL-2.0-or-later

// The quick way of reading bytes is held against the full one.
#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "dates/read_general_date.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

namespace quorvin {

namespace {

std::string randomText(std::mt19937& random, std::string_view signs, std::size_t mostSigns) {
  std::uniform_int_distribution<std::size_t> length(0, mostSigns);
  std::uniform_int_distribution<std::size_t> sign(0, signs.size() - 1);
  std::string text;
  for (std::size_t left = length(random); left > 0; --left) text += signs[sign(random)];
  return text;
}

// Changes one sign of `text`, or takes one out, or puts one in.
std::string withOneChange(std::string text, std::mt19937& random) {
  constexpr std::string_view kSigns = "0123456789/-.:, aApPmMtTJjnN";
  std::uniform_int_distribution<std::size_t> place(0, text.size() - 1);
  std::uniform_int_distribution<std::size_t> sign(0, kSigns.size() - 1);
  std::uniform_int_distribution<int> kind(0, 2);
  switch (kind(random)) {
    case 0:
      text[place(random)] = kSigns[sign(random)];
      break;
    case 1:
      text.erase(place(random), 1);
      break;
    default:
      text.insert(place(random), 1, kSigns[sign(random)]);
  }
  return text;
}

}  // namespace

class FastPath : public testing::TestWithParam<const char*> {
 protected:
  void expectSame(const std::string& text) {
    const auto expected =
        reader_.reading(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    ASSERT_TRUE(reader_.readingOfAscii(text) == expected) << '"' << text << '"';
    if (expected) ++read_;
  }

  const GeneralDateReader reader_{localeNamed(GetParam()), kTestYear};
  const GeneralDateWriter writer_{localeNamed(GetParam())};
  std::mt19937 random_{20040115};
  int read_ = 0;
};

TEST_P(FastPath, GivesTheSameOnTheOwnForm) {
  std::uniform_real_distribution<double> value(-657434, 2958465);
  const int rounds = test::sweep(50000, 3000);
  for (int i = 0; i < rounds; ++i) {
    ASSERT_NO_FATAL_FAILURE(expectSame(writer_.text(value(random_)).toStdString()));
  }
  EXPECT_EQ(read_, rounds);
}

TEST_P(FastPath, GivesTheSameOnTheOwnFormWithChanges) {
  std::uniform_real_distribution<double> value(-1000, 80000);
  const int rounds = test::sweep(100000, 5000);
  for (int i = 0; i < rounds; ++i) {
    std::string text = writer_.text(value(random_)).toStdString();
    for (int changes = i % 3; changes >= 0; --changes) text = withOneChange(text, random_);
    ASSERT_NO_FATAL_FAILURE(expectSame(text));
  }
  EXPECT_GT(read_, rounds / 100);
}

TEST_P(FastPath, GivesTheSameOnAnything) {
  const int rounds = test::sweep(100000, 10000);
  for (int i = 0; i < rounds; ++i) {
    ASSERT_NO_FATAL_FAILURE(expectSame(randomText(random_, "0123459/-.:, aApPmMtTJnFeb\t", 20)));
  }
  EXPECT_GT(read_, rounds / 10000);
}

TEST_P(FastPath, GivesTheSameInEitherCase) {
  const std::string text = writer_.text(38001.54478009259).toStdString();
  std::string upper = text;
  std::string lower = text;
  for (char& sign : upper) sign = sign >= 'a' && sign <= 'z' ? static_cast<char>(sign - 32) : sign;
  for (char& sign : lower) sign = sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign + 32) : sign;
  const auto expected = reader_.read(QString::fromStdString(text));
  ASSERT_TRUE(expected.has_value());
  EXPECT_EQ(reader_.readAscii(upper), expected);
  EXPECT_EQ(reader_.readAscii(lower), expected);
}

TEST_P(FastPath, ReadsOtherBytesAsUtf8) {
  expectSame(
      "2004\xE5\xB9\xB4"
      "1\xE6\x9C\x88"
      "15\xE6\x97\xA5");
  expectSame(
      "15\xC2\xA0Jan\xE2\x80\xAF"
      "2004");
  EXPECT_EQ(reader_.readAscii("15\xC2\xA0Jan\xE2\x80\xAF"
                              "2004"),
            38001);
  EXPECT_EQ(reader_.readAscii("\xEF\xBB\xBF"
                              "15 Jan 2004"),
            reader_.read(QStringView(u"\uFEFF15 Jan 2004")));
  EXPECT_EQ(reader_.readAscii("15 Jan 2004\xFF"), std::nullopt);
  EXPECT_EQ(reader_.readAscii(std::string_view("15 Jan 2004\0", 12)), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Locales, FastPath, testing::ValuesIn(kTestedLocales),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace quorvin
