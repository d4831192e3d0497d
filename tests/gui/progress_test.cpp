// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows the progress of a long piece of work.
#include "work/progress.h"

#include "support/qt_printing.h"

#include <QTest>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class ProgressTest : public testing::Test {
 protected:
  void begin() {
    window_.begin();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  }
  QLabel* status() { return window_.findChild<QLabel*>(QStringLiteral("Status")); }
  QLabel* detail() { return window_.findChild<QLabel*>(QStringLiteral("Detail")); }
  QProgressBar* bar() { return window_.findChild<QProgressBar*>(QStringLiteral("bar")); }
  QPushButton* cancelButton() { return window_.findChild<QPushButton*>(QStringLiteral("CancelButton")); }

  ProgramState state_;
  Progress window_{state_};
};

TEST_F(ProgressTest, ControlsCarryTheirNames) {
  EXPECT_EQ(window_.objectName(), QStringLiteral("Progress"));
  ASSERT_NE(status(), nullptr);
  ASSERT_NE(bar(), nullptr);
  ASSERT_NE(cancelButton(), nullptr);
  EXPECT_EQ(bar()->accessibleName(), QStringLiteral("Progress"));
  EXPECT_EQ(cancelButton()->text(), QStringLiteral("Cancel"));
}

TEST_F(ProgressTest, ShowsWhatItIsTold) {
  window_.setWindowTitle(QStringLiteral(" Updating online file lists... 1 of 5"));
  window_.setStatus(QStringLiteral("Indexing: \\Music\\<b>"));
  window_.setDetail(QStringLiteral("3 files"));
  window_.setBar(42);
  EXPECT_EQ(window_.windowTitle(), QStringLiteral(" Updating online file lists... 1 of 5"));
  EXPECT_EQ(status()->text(), QStringLiteral("Indexing: \\Music\\<b>"));
  EXPECT_EQ(status()->textFormat(), Qt::PlainText);
  EXPECT_EQ(detail()->text(), QStringLiteral("3 files"));
  EXPECT_EQ(bar()->minimum(), 0);
  EXPECT_EQ(bar()->maximum(), 100);
  EXPECT_EQ(bar()->value(), 42);
}

TEST_F(ProgressTest, TheBarKeepsWithinItsEnds) {
  window_.setBar(101);
  EXPECT_EQ(bar()->value(), 100);
  window_.setBar(-1);
  EXPECT_EQ(bar()->value(), 0);
}

TEST_F(ProgressTest, ABusyBarHasNoEndUntilAValueComes) {
  window_.setBusy();
  EXPECT_EQ(bar()->maximum(), 0);
  window_.setBar(7);
  EXPECT_EQ(bar()->maximum(), 100);
  EXPECT_EQ(bar()->value(), 7);
}

TEST_F(ProgressTest, IsShownBesideTheOtherWindowsAndAsksForNoFocus) {
  begin();
  EXPECT_TRUE(window_.isVisible());
  EXPECT_FALSE(window_.isModal());
  EXPECT_TRUE(window_.testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(ProgressTest, CancelSetsTheStopRequestAndSaysSo) {
  begin();
  window_.setStatus(QStringLiteral("Indexing: \\Music\\"));
  window_.setDetail(QStringLiteral("3 files"));
  QTest::mouseClick(cancelButton(), Qt::LeftButton);
  EXPECT_TRUE(state_.AbortRequested);
  EXPECT_FALSE(cancelButton()->isEnabled());
  EXPECT_EQ(detail()->text(), QStringLiteral("Stopping... 3 files"));
  EXPECT_EQ(status()->text(), QStringLiteral("Indexing: \\Music\\"));
  EXPECT_TRUE(window_.isVisible());
  window_.setDetail(QStringLiteral("4 files"));
  EXPECT_EQ(detail()->text(), QStringLiteral("Stopping... 4 files"));
}

TEST_F(ProgressTest, EscapeCancels) {
  begin();
  QTest::keyClick(&window_, Qt::Key_Escape);
  EXPECT_TRUE(state_.AbortRequested);
  EXPECT_EQ(detail()->text(), QStringLiteral("Stopping..."));
  EXPECT_TRUE(window_.isVisible());
}

TEST_F(ProgressTest, ClosingItCancels) {
  begin();
  EXPECT_FALSE(window_.close());
  EXPECT_TRUE(state_.AbortRequested);
  EXPECT_TRUE(window_.isVisible());
}

TEST_F(ProgressTest, NewWorkIsNotCancelled) {
  begin();
  cancelButton()->click();
  window_.setBar(50);
  window_.hide();
  state_.AbortRequested = false;
  begin();
  EXPECT_TRUE(cancelButton()->isEnabled());
  EXPECT_EQ(detail()->text(), QString());
  EXPECT_EQ(bar()->value(), 0);
  QTest::keyClick(&window_, Qt::Key_Escape);
  EXPECT_TRUE(state_.AbortRequested);
}

TEST_F(ProgressTest, LongPathsAreCutInTheMiddleAndNeverWidenTheWindow) {
  begin();
  const QSize size = window_.size();
  const QString path =
      QStringLiteral("Indexing: \\begin\\") + QString(2000, u'm') + QStringLiteral("\\end\\");
  window_.setStatus(path);
  QTest::qWait(10);
  EXPECT_EQ(window_.size(), size);
  EXPECT_EQ(status()->text(), path);
  EXPECT_LE(status()->geometry().right(), window_.width());
  const QImage one = status()->grab().toImage();
  window_.setStatus(QStringLiteral("Indexing: \\begin\\") + QString(2100, u'm') + QStringLiteral("\\end\\"));
  EXPECT_EQ(status()->grab().toImage(), one);
  window_.setStatus(QStringLiteral("Indexing: \\begin\\") + QString(2000, u'm') + QStringLiteral("\\END\\"));
  EXPECT_NE(status()->grab().toImage(), one);
}

}  // namespace

}  // namespace quorvin::test
