// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/ini_settings_store.h"
#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

const QString kGroup = QStringLiteral("Quorvin%20Utility/Settings");
const QString kTop = QStringLiteral("Top");

}  // namespace

TEST(IniText, ReadsSectionsAndKeys) {
  const IniText ini("[a]\nTop=1\nLeft = 2\n\n[b]\r\nTop=3\r\n");
  EXPECT_EQ(ini.value(QStringLiteral("a"), kTop), QStringLiteral("1"));
  EXPECT_EQ(ini.value(QStringLiteral("a"), QStringLiteral("Left")), QStringLiteral("2"));
  EXPECT_EQ(ini.value(QStringLiteral("b"), kTop), QStringLiteral("3"));
  EXPECT_EQ(ini.value(QStringLiteral("b"), QStringLiteral("Left")), std::nullopt);
  EXPECT_EQ(ini.value(QStringLiteral("c"), kTop), std::nullopt);
}

TEST(IniText, AnEmptyValueIsThere) {
  const IniText ini("[a]\nTop=\n");
  const auto value = ini.value(QStringLiteral("a"), kTop);
  ASSERT_TRUE(value.has_value());
  EXPECT_TRUE(value->isEmpty());
  EXPECT_FALSE(value->isNull());
}

TEST(IniText, WritesANewSection) {
  IniText ini;
  ini.setValue(QStringLiteral("a"), kTop, QStringLiteral("1"));
  ini.setValue(QStringLiteral("b"), kTop, QStringLiteral("2"));
  ini.setValue(QStringLiteral("a"), QStringLiteral("Left"), QStringLiteral("3"));
  EXPECT_EQ(ini.text(), "[a]\nTop=1\nLeft=3\n\n[b]\nTop=2\n");
}

TEST(IniText, KeepsWhatItDoesNotKnow) {
  IniText ini("; mine\n[a]\n# note\nTop=1\nnonsense\n\n[other]\nx=y");
  ini.setValue(QStringLiteral("a"), kTop, QStringLiteral("2"));
  ini.setValue(QStringLiteral("a"), QStringLiteral("Left"), QStringLiteral("3"));
  EXPECT_EQ(ini.text(), "; mine\n[a]\n# note\nTop=2\nnonsense\nLeft=3\n\n[other]\nx=y\n");
}

TEST(IniText, EveryValueComesBack) {
  for (const QString& value :
       {QString(QStringLiteral("")), QStringLiteral(" "), QStringLiteral("  two blanks  "),
        QStringLiteral("C:\\new\\ship\\"), QStringLiteral("\\s"), QStringLiteral("a\nb\r\nc"),
        QStringLiteral("a, b; c # d"), QStringLiteral("\"quoted\""), QStringLiteral("[x]"),
        QStringLiteral("a=b"), QStringLiteral("Zürich 🎵"), QStringLiteral("@Invalid()"),
        QStringLiteral("\ttabs\t"), QString(QChar(u'\0')) + u'x'}) {
    IniText ini;
    ini.setValue(kGroup, kTop, value);
    const IniText again(ini.text());
    EXPECT_EQ(again.value(kGroup, kTop), value) << value.toStdString();
  }
}

TEST(IniText, BlanksAndTabsAroundMeanNothing) {
  const IniText ini("  [a]\t\n  Top\t= 1 \n");
  EXPECT_EQ(ini.value(QStringLiteral("a"), kTop), QStringLiteral("1"));
}

TEST(IniText, OfTwoTheFirstCounts) {
  const IniText ini("[a]\nTop=1\nTop=2\n[a]\nTop=3\n");
  EXPECT_EQ(ini.value(QStringLiteral("a"), kTop), QStringLiteral("1"));
}

TEST(IniText, ABackslashThatEscapesNothingStandsForItself) {
  const IniText ini("[a]\nTop=C:\\Music\\\n");
  EXPECT_EQ(ini.value(QStringLiteral("a"), kTop), QStringLiteral("C:\\Music\\"));
}

}  // namespace quorvin
