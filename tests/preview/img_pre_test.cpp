// SPDX-License-Identifier: GPL-2.0-or-later

// The preview window.
#include "preview/img_pre.h"

#include "preview/picture_printing.h"

#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

QImage filled(int width, int height, const QColor& colour) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

LoadedPicture still(int width, int height, const QColor& colour = Qt::red) {
  return {QSizeF(width, height), {filled(width, height, colour), 0}, {}};
}

class ImgPreWindow : public testing::Test {
 protected:
  void show(int width, int height) {
    window_.show();
    window_.resize(width, height);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    QCoreApplication::processEvents();
  }
  QWidget* PicBox() { return window_.findChild<QWidget*>(QStringLiteral("PicBox")); }
  QWidget* Pic() { return window_.findChild<QWidget*>(QStringLiteral("Pic")); }

  QThreadPool pool_;
  ImgPre window_{pool_, nullptr};
};

TEST_F(ImgPreWindow, CarriesItsNamesAndCaption) {
  EXPECT_EQ(window_.objectName(), QStringLiteral("ImgPre"));
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("Image Preview"));
  ASSERT_NE(PicBox(), nullptr);
  ASSERT_NE(Pic(), nullptr);
  EXPECT_EQ(Pic()->parentWidget(), PicBox());
  EXPECT_FALSE(window_.isModal());
}

TEST_F(ImgPreWindow, PicBoxFillsTheWindow) {
  show(500, 300);
  EXPECT_EQ(PicBox()->geometry(), QRect(0, 0, 500, 300));
  window_.resize(333, 444);
  EXPECT_EQ(PicBox()->geometry(), QRect(0, 0, 333, 444));
}

TEST_F(ImgPreWindow, ThePictureIsFittedInTwipsAndStaysInTheUpperLeftCorner) {
  window_.setPicture(still(200, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  // 6000 by 6000 twips: 5940 by 2940.
  EXPECT_EQ(Pic()->geometry(), QRect(0, 0, 396, 196));
}

TEST_F(ImgPreWindow, TheNameIsInTheLowerRightCorner) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/<b>cover.bmp"));
  show(400, 300);
  const auto* name = window_.findChild<QLabel*>(QStringLiteral("PicName"));
  ASSERT_NE(name, nullptr);
  EXPECT_TRUE(name->isVisible());
  EXPECT_EQ(name->text(), QStringLiteral("<b>cover.bmp"));
  EXPECT_EQ(name->geometry().bottomRight(), QPoint(399, 299));
  EXPECT_FALSE(name->geometry().intersects(Pic()->geometry()));
}

TEST_F(ImgPreWindow, AVeryLongNameStaysInsideTheWindow) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/") + QString(500, u'n') + QStringLiteral(".bmp"));
  show(400, 300);
  const auto* name = window_.findChild<QLabel*>(QStringLiteral("PicName"));
  EXPECT_GE(name->x(), 0);
  EXPECT_EQ(name->accessibleName(), QString(500, u'n') + QStringLiteral(".bmp"));
}

TEST_F(ImgPreWindow, EveryResizeFitsAgain) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  EXPECT_EQ(Pic()->size(), QSize(396, 396));
  window_.resize(800, 600);
  EXPECT_EQ(Pic()->size(), QSize(596, 596));
  window_.resize(300, 600);
  EXPECT_EQ(Pic()->size(), QSize(296, 296));
}

TEST_F(ImgPreWindow, EveryActivationFitsAgain) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  Pic()->resize(10, 10);
  QEvent activation(QEvent::WindowActivate);
  QCoreApplication::sendEvent(&window_, &activation);
  EXPECT_EQ(Pic()->size(), QSize(396, 396));
}

TEST_F(ImgPreWindow, AnotherPictureIsFittedWithoutAnyResize) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  window_.setPicture(still(100, 200), QStringLiteral("/m/b.bmp"));
  EXPECT_EQ(Pic()->size(), QSize(196, 396));
}

TEST_F(ImgPreWindow, AFrameOf120TwipsLeavesThePictureAsItWas) {
  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  window_.resize(8, 400);
  EXPECT_EQ(PicBox()->size(), QSize(8, 400));
  EXPECT_EQ(Pic()->size(), QSize(396, 396));
}

TEST_F(ImgPreWindow, WithoutPictureTheResizeStopsAfterTheFrame) {
  show(400, 300);
  EXPECT_EQ(PicBox()->size(), QSize(400, 300));
  EXPECT_EQ(Pic()->size(), QSize(1, 1));
}

TEST_F(ImgPreWindow, APictureFarLongerThanWideStaysVisible) {
  window_.setPicture(still(4000, 1), QStringLiteral("/m/a.bmp"));
  show(400, 400);
  EXPECT_EQ(Pic()->size(), QSize(396, 1));
}

TEST_F(ImgPreWindow, ThePictureIsStretchedOverPic) {
  QImage halves = filled(2, 1, Qt::red);
  halves.setPixelColor(1, 0, Qt::blue);
  window_.setPicture({halves.size(), {halves, 0}, {}}, QStringLiteral("/m/a.bmp"));
  show(404, 404);
  const QImage seen = window_.grab().toImage();
  EXPECT_EQ(seen.pixelColor(5, 5), QColor(Qt::red));
  EXPECT_EQ(seen.pixelColor(195, 190), QColor(Qt::red));
  EXPECT_EQ(seen.pixelColor(205, 190), QColor(Qt::blue));
  EXPECT_EQ(seen.pixelColor(395, 190), QColor(Qt::blue));
  EXPECT_EQ(seen.pixelColor(395, 300), window_.palette().color(QPalette::Window));
}

TEST_F(ImgPreWindow, EscapeHidesIt) {
  show(400, 400);
  QTest::keyClick(&window_, Qt::Key_Escape);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(ImgPreWindow, WhatIsMissingFromADrawingIsSaidOverItsLowerEdge) {
  LoadedPicture drawing = still(100, 100);
  drawing.drawnWithout = QStringLiteral("flood fills, EMF+ <b>drawings");
  window_.setPicture(drawing, QStringLiteral("/m/a.emf"));
  show(400, 300);
  auto* note = window_.findChild<QLabel*>(QStringLiteral("Note"));
  ASSERT_NE(note, nullptr);
  EXPECT_TRUE(note->isVisible());
  EXPECT_EQ(note->text(), QStringLiteral("Drawn without: flood fills, EMF+ <b>drawings."));
  EXPECT_EQ(note->textFormat(), Qt::PlainText);
  EXPECT_EQ(Pic()->accessibleDescription(), note->text());
  EXPECT_EQ(note->geometry().bottom(), 299);
  EXPECT_EQ(note->width(), 400);
  EXPECT_LT(note->height(), 100);
  EXPECT_EQ(PicBox()->geometry(), QRect(0, 0, 400, 300));
  EXPECT_EQ(Pic()->size(), QSize(296, 296));
  window_.resize(150, 500);
  EXPECT_EQ(note->geometry().bottom(), 499);
  EXPECT_GE(note->height(), note->heightForWidth(150));

  window_.setPicture(still(100, 100), QStringLiteral("/m/a.bmp"));
  EXPECT_FALSE(note->isVisible());
  EXPECT_EQ(Pic()->accessibleDescription(), QString());
}

TEST_F(ImgPreWindow, ScreenReadersHearWhichPictureItIs) {
  window_.setPicture(still(10, 10), QStringLiteral("/m/a & <b>.bmp"));
  EXPECT_EQ(Pic()->accessibleName(), QStringLiteral("Picture a & <b>.bmp"));
  EXPECT_EQ(PicBox()->accessibleName(), QStringLiteral("Picture frame"));
  EXPECT_EQ(Pic()->toolTip(), QStringLiteral("/m/a &amp; &lt;b&gt;.bmp"));
}

}  // namespace

}  // namespace quorvin::test
