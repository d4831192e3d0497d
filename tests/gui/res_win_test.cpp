// SPDX-License-Identifier: GPL-2.0-or-later

// The result window.
#include "preview/res_win.h"

#include "support/processor_clock.h"
#include "support/qt_printing.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class ResultWindow : public testing::Test {
 protected:
  QPushButton* close() { return window_.findChild<QPushButton*>(QStringLiteral("close")); }
  QPlainTextEdit* text() { return window_.findChild<QPlainTextEdit*>(); }
  /// Shows the window as a modal one and does `action` as soon as it is up.
  void showAnd(const std::function<void()>& action) {
    QTimer::singleShot(0, [&] {
      EXPECT_EQ(QApplication::activeModalWidget(), &window_);
      action();
    });
    window_.exec();
  }

  ResWin window_;
};

TEST_F(ResultWindow, CarriesItsNameAndCaption) {
  EXPECT_EQ(window_.objectName(), QStringLiteral("ResWin"));
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("Results"));
  ASSERT_NE(close(), nullptr);
  EXPECT_EQ(close()->text(), QStringLiteral("&Close"));
}

TEST_F(ResultWindow, CloseHidesIt) {
  showAnd([&] { QTest::mouseClick(close(), Qt::LeftButton); });
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(ResultWindow, EscapeHidesIt) {
  showAnd([&] { QTest::keyClick(&window_, Qt::Key_Escape); });
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(ResultWindow, WhatIsTypedOnWhenItComesUpDoesNotCloseIt) {
  showAnd([&] {
    ASSERT_NE(window_.focusWidget(), nullptr);
    QTest::keyClicks(window_.focusWidget(), QStringLiteral("rock live "));
    EXPECT_TRUE(window_.isVisible());
    window_.hide();
  });
}

TEST_F(ResultWindow, EnterHidesIt) {
  showAnd([&] { QTest::keyClick(&window_, Qt::Key_Return); });
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(ResultWindow, TheTextIsReadAndCopiedButNotChanged) {
  window_.setText(QStringLiteral("/m/a File not found\r\n<b>second</b>\r\n"));
  showAnd([&] {
    text()->setFocus();
    QTest::keyClicks(text(), QStringLiteral("typed"));
    QTest::keyClick(text(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(text(), Qt::Key_C, Qt::ControlModifier);
    window_.hide();
  });
  EXPECT_EQ(text()->toPlainText(), QStringLiteral("/m/a File not found\n<b>second</b>\n"));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("/m/a File not found\n<b>second</b>\n"));
}

TEST_F(ResultWindow, AHundredThousandLinesAreShownWithinSeconds) {
  const QString log =
      QStringLiteral("/home/ann/Music/a name of the usual length Access Error (invalid name)\r\n")
          .repeated(100'000);
  ProcessorClock clock;
  clock.start();
  window_.setText(log);
  showAnd([&] { window_.hide(); });
  EXPECT_EQ(text()->blockCount(), 100'001);
  EXPECT_LT(clock.elapsed(), 10'000);
}

}  // namespace

}  // namespace quorvin::test
