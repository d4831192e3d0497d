// SPDX-License-Identifier: GPL-2.0-or-later

// Message boxes on the screen, answered as a user would.
#include "app/main_application.h"
#include "support/qt_printing.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

struct SeenBox {
  QString title;
  QString text;
  Qt::TextFormat format = Qt::AutoText;
  QMessageBox::StandardButtons buttons;
  bool hasIcon = false;
};

/// Looks at the message box that is up and presses `button` in it.
void answerWith(QMessageBox::StandardButton button, SeenBox& seen) {
  QTimer::singleShot(0, [button, &seen] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    seen = {box->windowTitle(), box->text(), box->textFormat(), box->standardButtons(),
            !box->windowIcon().isNull()};
    QTest::mouseClick(box->button(button), Qt::LeftButton);
  });
}

TEST(WidgetMessageBoxes, InformShowsTheTextWithTheTitleAndOk) {
  SeenBox seen;
  answerWith(QMessageBox::Ok, seen);
  WidgetMessageBoxes().inform(QStringLiteral("Listing file not found: <b>.txt"));
  EXPECT_EQ(seen.title, QStringLiteral("Quorvin Utility"));
  EXPECT_EQ(seen.text, QStringLiteral("Listing file not found: <b>.txt"));
  EXPECT_EQ(seen.format, Qt::PlainText);
  EXPECT_EQ(seen.buttons, QMessageBox::Ok);
}

TEST(WidgetMessageBoxes, TheyHaveTheIconEvenBeforeTheMainWindowHas) {
  QGuiApplication::setWindowIcon({});
  SeenBox seen;
  answerWith(QMessageBox::Ok, seen);
  WidgetMessageBoxes().inform(QStringLiteral("Early"));
  EXPECT_TRUE(seen.hasIcon);
}

TEST(WidgetMessageBoxes, WithoutAnybodyToAnswerTheyAreLinesOnStandardError) {
  WidgetMessageBoxes boxes;
  boxes.fallSilent();
  testing::internal::CaptureStderr();
  boxes.inform(QStringLiteral("one\r\n\r\ntwo"));
  EXPECT_FALSE(boxes.askYesNo(QStringLiteral("Really?")));
  EXPECT_EQ(boxes.askAbortRetryIgnore(QStringLiteral("three")), FaultAnswer::Abort);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "quorvin: one two\nquorvin: three\n");
}

/// What informOneOfMany() gives when `key` is pressed in the box.
bool wantsMoreAfter(Qt::Key key) {
  SeenBox seen;
  QTimer::singleShot(0, [key, &seen] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    seen.buttons = box->standardButtons();
    QTest::keyClick(box->button(QMessageBox::Ok), key);
  });
  const bool wantsMore = WidgetMessageBoxes().informOneOfMany(QStringLiteral("one of many"));
  EXPECT_EQ(seen.buttons, QMessageBox::Ok);
  return wantsMore;
}

TEST(WidgetMessageBoxes, OneOfManyIsClosedAloneByItsButtonAndWithAllFurtherOnesByEsc) {
  EXPECT_TRUE(wantsMoreAfter(Qt::Key_Return));
  EXPECT_TRUE(wantsMoreAfter(Qt::Key_Space));
  EXPECT_FALSE(wantsMoreAfter(Qt::Key_Escape));
}

TEST(WidgetMessageBoxes, LinesAreBroken) {
  SeenBox seen;
  answerWith(QMessageBox::Ok, seen);
  WidgetMessageBoxes().inform(QStringLiteral("one\r\n\r\ntwo"));
  EXPECT_EQ(seen.text, QStringLiteral("one\n\ntwo"));
}

TEST(WidgetMessageBoxes, AQuestionIsAnsweredYesOrNo) {
  SeenBox seen;
  answerWith(QMessageBox::Yes, seen);
  EXPECT_TRUE(WidgetMessageBoxes().askYesNo(QStringLiteral("Really?")));
  EXPECT_EQ(seen.buttons, QMessageBox::Yes | QMessageBox::No);
  answerWith(QMessageBox::No, seen);
  EXPECT_FALSE(WidgetMessageBoxes().askYesNo(QStringLiteral("Really?")));
}

TEST(WidgetMessageBoxes, AFaultIsAnsweredAbortRetryOrIgnore) {
  SeenBox seen;
  answerWith(QMessageBox::Abort, seen);
  EXPECT_EQ(WidgetMessageBoxes().askAbortRetryIgnore(QStringLiteral("Broken")), FaultAnswer::Abort);
  EXPECT_EQ(seen.buttons, QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore);
  answerWith(QMessageBox::Retry, seen);
  EXPECT_EQ(WidgetMessageBoxes().askAbortRetryIgnore(QStringLiteral("Broken")), FaultAnswer::Retry);
  answerWith(QMessageBox::Ignore, seen);
  EXPECT_EQ(WidgetMessageBoxes().askAbortRetryIgnore(QStringLiteral("Broken")), FaultAnswer::Ignore);
}

}  // namespace

}  // namespace quorvin::test
