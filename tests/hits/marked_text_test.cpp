// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/marked_text.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class MarkedTexts : public testing::Test {
 protected:
  static int ink(const MarkedText& line) {
    QImage picture(300, 40, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setPen(Qt::black);
    drawLine(painter, line, QApplication::font(), picture.rect(), {});
    painter.end();
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) dark += 255 - qGray(picture.pixel(x, y));
    }
    return dark;
  }

  const QFont font_ = QApplication::font();
};

TEST_F(MarkedTexts, BoldPartsAreWiderAndDarker) {
  const MarkedText plain{u"Live at Wembley.mp3"_qs, {}};
  const MarkedText marked{plain.text, {{0, 4}, {8, 7}}};
  EXPECT_GT(widthOf(marked, font_), widthOf(plain, font_));
  EXPECT_GT(ink(marked), ink(plain));
  EXPECT_LT(ink(marked), ink({plain.text, {{0, 19}}}));
}

TEST_F(MarkedTexts, WhatFitsStaysAsItIs) {
  const MarkedText line{u"Live at Wembley.mp3"_qs, {{0, 4}}};
  EXPECT_EQ(cutToWidth(line, font_, widthOf(line, font_)), line);
  EXPECT_EQ(cutToWidth({}, font_, 10), MarkedText());
}

TEST_F(MarkedTexts, ThatFitOnlyTogetherStayAsTheyAre) {
  for (const QString& letter : {u"a\u00AD"_qs, u"e\u0301"_qs}) {
    const MarkedText line{letter.repeated(20), {}};
    EXPECT_EQ(cutToWidth(line, font_, widthOf(line, font_)), line) << letter.toStdString();
  }
}

TEST_F(MarkedTexts, AreCutWhereTheWordsOfOtherCellsAre) {
  const QFontMetricsF metrics(font_);
  const QString text = u"Northern Harbour Lights, live at Wembley (1986), the second evening.mp3"_qs;
  for (int width = 30; width < 400; width += 7) {
    EXPECT_EQ(cutToWidth({text, {}}, font_, width).text, metrics.elidedText(text, Qt::ElideRight, width))
        << width;
  }
}

TEST_F(MarkedTexts, KeepTheirBoldPartsInFrontOfTheCut) {
  const MarkedText line{u"iiiiiiiiiiiiiiiiiiiiiiiiiiiiii"_qs, {{0, 2}, {5, 20}}};
  const MarkedText cut = cutToWidth(line, font_, widthOf({u"iiiiiiiiiiiiiiii"_qs, {}}, font_));
  ASSERT_TRUE(cut.text.endsWith(u'\u2026'));
  const qsizetype kept = cut.text.size() - 1;
  ASSERT_GT(kept, 5);
  ASSERT_LT(kept, 25);
  EXPECT_EQ(cut.bold, (TextRanges{{0, 2}, {5, kept - 5}}));
  EXPECT_LE(widthOf(cut, font_), widthOf({u"iiiiiiiiiiiiiiii"_qs, {}}, font_));
}

TEST_F(MarkedTexts, ThatAreCutInTheMiddleKeepTheirEnds) {
  const MarkedText line{u"iiiiiiiiiiiiiiiiiiiiiiiiiiiiii"_qs, {{0, 2}, {14, 2}, {28, 2}}};
  const qreal width = widthOf({u"iiiiiiiiiiiiiiii"_qs, {}}, font_);
  const MarkedText cut = cutToWidth(line, font_, width, Cut::Middle);
  const qsizetype head = cut.text.indexOf(u'\u2026');
  const qsizetype tail = cut.text.size() - head - 1;
  ASSERT_GT(head, 2);
  EXPECT_TRUE(head == tail || head == tail + 1) << head << ' ' << tail;
  EXPECT_EQ(cut.bold, (TextRanges{{0, 2}, {cut.text.size() - 2, 2}}));
  EXPECT_LE(widthOf(cut, font_), width);
  EXPECT_GT(widthOf(cut, font_) + widthOf({u"i"_qs, {{0, 1}}}, font_), width);
}

TEST_F(MarkedTexts, OfEveryScriptFitWhenTheyAreCutInTheMiddle) {
  for (const QString& text : {u"\\Music\\Northern Harbour\\Live at Wembley\\"_qs,
                              u"song \u05D9\u05E8\u05D5\u05E9\u05DC\u05D9\u05DD song song song"_qs,
                              u"\U0001F3B5\U0001F3B5\U0001F3B5\U0001F3B5\U0001F3B5\U0001F3B5"_qs}) {
    const MarkedText line{text, {{0, text.size()}}};
    for (qreal width = 20; width < widthOf(line, font_); width += 5) {
      const MarkedText cut = cutToWidth(line, font_, width, Cut::Middle);
      EXPECT_LE(widthOf(cut, font_), width) << text.toStdString();
      EXPECT_TRUE(cut.text.isValidUtf16()) << cut.text.toStdString();
    }
  }
}

TEST_F(MarkedTexts, OfEveryScriptFitWhenTheyAreCut) {
  for (const QString& text :
       {u"\u05D9\u05E8\u05D5\u05E9\u05DC\u05D9\u05DD \u05E9\u05DC \u05D6\u05D4\u05D1"_qs,
        u"song \u05D9\u05E8\u05D5\u05E9\u05DC\u05D9\u05DD song song song"_qs,
        u"\U0001F3B5\U0001F3B5\U0001F3B5\U0001F3B5\U0001F3B5\U0001F3B5"_qs}) {
    const MarkedText line{text, {{0, text.size()}}};
    for (qreal width = 20; width < widthOf(line, font_); width += 5) {
      const MarkedText cut = cutToWidth(line, font_, width);
      EXPECT_LE(widthOf(cut, font_), width) << text.toStdString();
      EXPECT_TRUE(text.startsWith(cut.text.chopped(1)));
      EXPECT_FALSE(cut.text.size() > 1 && cut.text[cut.text.size() - 2].isHighSurrogate());
    }
  }
}

}  // namespace

}  // namespace quorvin::test
