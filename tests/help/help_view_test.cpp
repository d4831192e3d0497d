// SPDX-License-Identifier: GPL-2.0-or-later

// Finding words on a help page.
#include "help/frm_browser_fixture.h"

#include <QLabel>

namespace quorvin::test {
namespace {

class FrmBrowserFind : public FrmBrowserTest {
 protected:
  void openRow() {
    show("index.htm");
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(controls().findBar->isVisible());
  }
  void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text)); }
  QString found() { return view().textCursor().selectedText(); }
  int foundAt() { return view().textCursor().selectionStart(); }
  QString outcome() { return window().findChild<QLabel*>(QStringLiteral("FindOutcome"))->text(); }
};

TEST_F(FrmBrowserFind, LooksWhileTheReaderTypes) {
  openRow();
  type("ban");
  EXPECT_EQ(found(), QStringLiteral("ban"));
  type("ana");
  EXPECT_EQ(found(), QStringLiteral("banana"));
}

TEST_F(FrmBrowserFind, EnterGoesOnAndBeginsAgainAtTheTop) {
  openRow();
  type("apple");
  const int first = foundAt();
  press(Qt::Key_Return);
  EXPECT_GT(foundAt(), first);
  EXPECT_EQ(outcome(), QString());
  press(Qt::Key_Return);
  EXPECT_EQ(foundAt(), first);
  EXPECT_EQ(outcome(), QStringLiteral("Continued from the top"));
}

TEST_F(FrmBrowserFind, ShiftEnterAndTheKeysF3GoBothWays) {
  openRow();
  type("apple");
  const int first = foundAt();
  press(Qt::Key_Return, Qt::ShiftModifier);
  const int last = foundAt();
  EXPECT_GT(last, first);
  EXPECT_EQ(outcome(), QStringLiteral("Continued from the bottom"));
  press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(foundAt(), first);
  press(Qt::Key_F3);
  EXPECT_EQ(foundAt(), last);
}

TEST_F(FrmBrowserFind, AWordThatIsNotThereIsTold) {
  openRow();
  type("cherry");
  EXPECT_EQ(outcome(), QStringLiteral("Not on this page"));
}

TEST_F(FrmBrowserFind, EscClosesTheRowAndGoesToThePage) {
  openRow();
  press(Qt::Key_Escape);
  EXPECT_FALSE(controls().findBar->isVisible());
  EXPECT_TRUE(view().hasFocus());
  EXPECT_TRUE(window().isVisible());
}

}  // namespace
}  // namespace quorvin::test
