// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/frm_splash.h"

#include "support/eventually.h"
#include "support/qt_printing.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

class FrmSplash : public testing::Test {
 protected:
  QString text(const char* name) const {
    const auto* label = window_.findChild<QLabel*>(QString::fromLatin1(name));
    return label ? label->text() : QStringLiteral("(missing)");
  }
  QPushButton* close() const { return window_.findChild<QPushButton*>(QStringLiteral("Command1")); }
  void show() {
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  frmSplash window_{{QStringLiteral("Quorvin Utility"), 2, 5, 64,
                     QStringLiteral("Text file / folder list searching utility")}};
};

TEST_F(FrmSplash, TellsProductVersionDescriptionAndPlatforms) {
  EXPECT_EQ(text("lblProductName"), QStringLiteral("Quorvin Utility"));
  EXPECT_EQ(text("lblVersion"), QStringLiteral("Version 2.5.64"));
  EXPECT_EQ(text("AppDesc"), QStringLiteral("Text file / folder list searching utility"));
  EXPECT_EQ(text("lblPlatform"), QStringLiteral("Windows 9x, NT, 2000, XP, Vista"));
}

TEST_F(FrmSplash, TellsTheSystemThatItRunsOn) {
  const frmSplash other(
      {QStringLiteral("x"), 1, 0, 0, QString(), QStringLiteral("Debian 12, with Qt 6.4.2")});
  EXPECT_EQ(other.findChild<QLabel*>(QStringLiteral("lblSystem"))->text(),
            QStringLiteral("Runs on Debian 12, with Qt 6.4.2"));
  EXPECT_FALSE(window_.findChild<QLabel*>(QStringLiteral("lblSystem"))->isVisibleTo(&window_));
}

TEST_F(FrmSplash, IsNoWiderThanTheScreenWithVeryLargeLetters) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPointSizeF(before.pointSizeF() + 12);
  QApplication::setFont(large);
  frmSplash window({QStringLiteral("Quorvin Utility"), 2, 5, 64,
                    QStringLiteral("Text file / folder list searching utility")});
  window.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  EXPECT_LE(window.width(), window.screen()->availableGeometry().width());
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->objectName().toStdString();
  }
  QApplication::setFont(before);
}

TEST_F(FrmSplash, NumbersOfTheVersionAreNotPadded) {
  const frmSplash other({QStringLiteral("x"), 10, 0, 7, QString()});
  EXPECT_EQ(other.findChild<QLabel*>(QStringLiteral("lblVersion"))->text(), QStringLiteral("Version 10.0.7"));
}

TEST_F(FrmSplash, IsModalAndHasACloseButton) {
  EXPECT_TRUE(window_.isModal());
  EXPECT_EQ(close()->text(), QStringLiteral("&Close"));
}

TEST_F(FrmSplash, TheButtonClosesIt) {
  show();
  QTest::mouseClick(close(), Qt::LeftButton);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(FrmSplash, EscEnterAndAltCCloseIt) {
  struct Keys {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
  };
  for (const Keys& keys : {Keys{Qt::Key_Escape, Qt::NoModifier}, Keys{Qt::Key_Return, Qt::NoModifier},
                           Keys{Qt::Key_C, Qt::AltModifier}}) {
    show();
    QTest::keyClick(QApplication::focusWidget(), keys.key, keys.modifiers);
    EXPECT_TRUE(eventually([this] { return !window_.isVisible(); })) << keys.key;
  }
}

TEST_F(FrmSplash, AModalCallReturnsWhenItIsClosed) {
  QTimer::singleShot(0, &window_, [this] { QTest::keyClick(&window_, Qt::Key_Escape); });
  window_.exec();
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(FrmSplash, TheLogoIsDrawnInItsColours) {
  show();
  QWidget* logo = window_.findChild<QWidget*>(QStringLiteral("imgLogo"));
  ASSERT_NE(logo, nullptr);
  EXPECT_FALSE(logo->accessibleName().isEmpty());
  EXPECT_EQ(logo->width(), logo->height());
  const QImage image = logo->grab().toImage();
  int golden = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x)
      golden += image.pixelColor(x, y) == QColor(0xF6, 0xB7, 0x3C) ? 1 : 0;
  }
  EXPECT_GT(golden, 100) << "the lens is missing";
}

TEST_F(FrmSplash, NoTextIsCut) {
  show();
  for (const QLabel* label : window_.findChildren<QLabel*>()) {
    EXPECT_GE(label->width(), label->sizeHint().width()) << label->objectName().toStdString();
    EXPECT_GE(label->height(), label->sizeHint().height()) << label->objectName().toStdString();
  }
}

}  // namespace
}  // namespace quorvin::test
