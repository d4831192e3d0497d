// SPDX-License-Identifier: GPL-2.0-or-later

// Which language the programs speak, and that they speak it.
#include "texts/languages.h"

#include "support/qt_printing.h"
#include "texts/texts.h"

#include <QCoreApplication>
#include <QMap>
#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

using Variables = QMap<QString, QString>;

QString languageWith(const Variables& variables) {
  return languageOf([&](const char* name) { return variables.value(QString::fromLatin1(name)); });
}

TEST(Languages, ThereAreThese) {
  EXPECT_EQ(translatedLanguages(), (QStringList{u"de"_qs, u"es"_qs, u"fr"_qs}));
}

TEST(Languages, MessagesDecideAndNotDatesOrNumbers) {
  EXPECT_EQ(languageWith({{u"LANG"_qs, u"de_DE.UTF-8"_qs}}), u"de"_qs);
  EXPECT_EQ(languageWith({{u"LANG"_qs, u"de_DE.UTF-8"_qs}, {u"LC_MESSAGES"_qs, u"fr_FR.UTF-8"_qs}}),
            u"fr"_qs);
  EXPECT_EQ(languageWith({{u"LC_ALL"_qs, u"es_MX"_qs}, {u"LC_MESSAGES"_qs, u"fr_FR.UTF-8"_qs}}), u"es"_qs);
  EXPECT_EQ(languageWith({{u"LANG"_qs, u"en_GB.UTF-8"_qs}, {u"LC_TIME"_qs, u"de_DE.UTF-8"_qs}}), QString());
  EXPECT_EQ(languageWith({{u"LANG"_qs, u"de_AT@euro"_qs}}), u"de"_qs);
}

TEST(Languages, TheFirstOfTheUsersLanguagesThatThereIsIsTaken) {
  const QString swedish = u"sv_SE.UTF-8"_qs;
  EXPECT_EQ(languageWith({{u"LANG"_qs, swedish}, {u"LANGUAGE"_qs, u"sv:de:fr"_qs}}), u"de"_qs);
  EXPECT_EQ(languageWith({{u"LANG"_qs, u"de_DE.UTF-8"_qs}, {u"LANGUAGE"_qs, u"fr_FR"_qs}}), u"fr"_qs);
  EXPECT_EQ(languageWith({{u"LANG"_qs, swedish}, {u"LANGUAGE"_qs, u"sv:en:de"_qs}}), QString());
}

TEST(Languages, PlainAndUnknownOnesAreEnglish) {
  EXPECT_EQ(languageWith({}), QString());
  EXPECT_EQ(languageWith({{u"LANG"_qs, u"sv_SE.UTF-8"_qs}}), QString());
  for (const QString& plain : {u"C"_qs, u"C.UTF-8"_qs, u"POSIX"_qs}) {
    EXPECT_EQ(languageWith({{u"LC_ALL"_qs, plain}, {u"LANGUAGE"_qs, u"de"_qs}, {u"LANG"_qs, u"de_DE"_qs}}),
              QString())
        << plain.toStdString();
  }
}

class Speaking : public testing::Test {
 private:
  int count_ = 1;
  char name_[6] = "tests";
  char* arguments_[2] = {name_, nullptr};
  QCoreApplication application_{count_, arguments_};
};

TEST_F(Speaking, LastsAsLongAsItsObject) {
  EXPECT_EQ(Texts::tr("Find"), u"Find"_qs);
  EXPECT_EQ(Texts::language(), u"en"_qs);
  {
    const SpokenLanguage german(u"de"_qs);
    EXPECT_EQ(Texts::tr("Find"), u"Suchen"_qs);
    EXPECT_EQ(Texts::language(), u"de"_qs);
  }
  EXPECT_EQ(Texts::tr("Find"), u"Find"_qs);
  const SpokenLanguage english{QString()};
  EXPECT_EQ(Texts::tr("Find"), u"Find"_qs);
}

TEST_F(Speaking, NumbersHaveThePluralsOfTheLanguage) {
  const SpokenLanguage french(u"fr"_qs);
  EXPECT_EQ(Texts::tr("%1 hits", nullptr, Texts::plural(0)), u"%1 r\u00E9sultat"_qs);
  EXPECT_EQ(Texts::tr("%1 hits", nullptr, Texts::plural(2)), u"%1 r\u00E9sultats"_qs);
  EXPECT_EQ(Texts::tr("%1 hits", nullptr, Texts::plural(3'000'000'000)), u"%1 r\u00E9sultats"_qs);
}

TEST(Plurals, OfLargeNumbersAreThoseOfTheirLastDigits) {
  EXPECT_EQ(Texts::plural(0), 0);
  EXPECT_EQ(Texts::plural(999'999), 999'999);
  EXPECT_EQ(Texts::plural(3'000'000'021), 1'000'021);
}

}  // namespace
}  // namespace quorvin::test
