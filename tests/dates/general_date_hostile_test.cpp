// SPDX-License-Identifier: GPL-2.0-or-later

// Texts that nobody means well with.
#include "dates/general_date_reader.h"
#include "dates/general_date_writer.h"
#include "dates/read_general_date.h"
#include "support/processor_clock.h"
#include "support/sweep.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <random>

namespace quorvin {

namespace {

// Pieces that dates are made of, and some that break them.
const QStringList kPieces = {
    QStringLiteral("1"),         QStringLiteral("15"),   QStringLiteral("2004"),   QStringLiteral("00"),
    QStringLiteral("99"),        QStringLiteral("/"),    QStringLiteral("-"),      QStringLiteral("."),
    QStringLiteral(","),         QStringLiteral(":"),    QStringLiteral(" "),      QStringLiteral("\t"),
    QStringLiteral("Jan"),       QStringLiteral("mars"), QStringLiteral("T"),      QStringLiteral("PM"),
    QStringLiteral("a. m."),     QStringLiteral("年"),   QStringLiteral("時"),     QStringLiteral("午後"),
    QStringLiteral("\u200F"),    QStringLiteral("é"),    QStringLiteral("\uFF11"), QStringLiteral("٣"),
    QString(QChar(0xD800)),      QString(QChar(0xDC00)), QString(QChar(0)),        QString(QChar(0xFFFF)),
    QStringLiteral("\U0001D7D8")};

QString randomText(std::mt19937& random, int mostPieces) {
  std::uniform_int_distribution<int> count(0, mostPieces);
  std::uniform_int_distribution<qsizetype> piece(0, kPieces.size() - 1);
  QString text;
  for (int left = count(random); left > 0; --left) text += kPieces[piece(random)];
  return text;
}

}  // namespace

class HostileDate : public testing::TestWithParam<const char*> {
 protected:
  const QLocale locale_ = localeNamed(GetParam());
  const GeneralDateReader reader_{locale_, kTestYear};
  const GeneralDateWriter writer_{locale_};
};

TEST_P(HostileDate, WhateverIsReadIsADateThatCanBeWritten) {
  std::mt19937 random(7);
  int read = 0;
  const int rounds = test::sweep(200000, 10000);
  for (int i = 0; i < rounds; ++i) {
    const QString text = randomText(random, 9);
    const auto value = reader_.read(text);
    if (!value) continue;
    ASSERT_EQ(reader_.read(writer_.text(*value)), value) << text.toStdString();
    ++read;
  }
  EXPECT_GT(read, rounds / 2000);
}

TEST_P(HostileDate, LongTextsAreRefusedAtOnce) {
  std::mt19937 random(8);
  test::ProcessorClock timer;
  timer.start();
  for (int i = 0; i < test::sweep(2000, 200); ++i) reader_.read(randomText(random, 400));
  for (const QChar sign : {u'1', u' ', u'/', u':', u'a', u'.'}) {
    EXPECT_EQ(isoOf(reader_.read(QString(10'000'000, sign))), kRefused);
    EXPECT_EQ(isoOf(reader_.read(QString(200, sign))), kRefused);
    EXPECT_EQ(isoOf(reader_.readAscii(std::string(10'000'000, static_cast<char>(sign.unicode())))), kRefused);
  }
  EXPECT_LT(timer.elapsed(), 5000);
}

TEST_P(HostileDate, TwoHundredCharactersAreTheMost) {
  const QString date = writer_.text(38001);
  const QString fits = date + QString(200 - date.size(), u' ');
  EXPECT_EQ(reader_.read(fits), 38001);
  EXPECT_EQ(reader_.read(QString(fits + u' ')), std::nullopt);
  const std::string bytes = fits.toStdString();
  EXPECT_EQ(reader_.readAscii(bytes), 38001);
  EXPECT_EQ(reader_.readAscii(bytes + ' '), std::nullopt);
}

TEST_P(HostileDate, EveryShortTextIsReadOrRefused) {
  constexpr std::u16string_view kSigns = u"0139/-.: apm";
  int read = 0;
  std::size_t combinations = 1;
  for (qsizetype length = 1; length <= test::sweep(5, 4); ++length) {
    combinations *= kSigns.size();
    const std::size_t step = length < 4 ? 1 : test::sweep<std::size_t>(1, 5);
    for (std::size_t number = 0; number < combinations; number += step) {
      QString text;
      for (std::size_t rest = number; text.size() < length; rest /= kSigns.size()) {
        text += QChar(kSigns[rest % kSigns.size()]);
      }
      const auto value = reader_.read(text);
      if (!value) continue;
      ASSERT_EQ(reader_.read(writer_.text(*value)), value) << text.toStdString();
      ++read;
    }
  }
  EXPECT_GT(read, 100);
}

INSTANTIATE_TEST_SUITE_P(Locales, HostileDate, testing::ValuesIn(kTestedLocales),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace quorvin
