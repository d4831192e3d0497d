// SPDX-License-Identifier: GPL-2.0-or-later

// The help browser by keys alone, with the real pages, opened from the menu of the main window.
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "help/frm_browser.h"
#include "support/eventually.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

namespace quorvin::test {

namespace {

class HelpByKeys : public SearchFormTest {
 protected:
  HelpByKeys() {
    form();
    press(Qt::Key_H, Qt::AltModifier);
    press(Qt::Key_U);
    EXPECT_TRUE(eventually(
        [this] { return (browser_ = qobject_cast<frmBrowser*>(QApplication::activeWindow())) != nullptr; }));
  }
  ~HelpByKeys() override {
    if (browser_) browser_->close();
  }

  QString page() const { return browser_->controls().cboAddress->currentText().section(u'/', -1); }
  QString heading() const { return browser_->controls().brwWebBrowser->toPlainText().section(u'\n', 0, 0); }
  QString selected() const { return browser_->controls().brwWebBrowser->textCursor().selectedText(); }

  frmBrowser* browser_ = nullptr;
};

TEST_F(HelpByKeys, ThePageIsReadDownAndUp) {
  ASSERT_EQ(focusName(), QStringLiteral("brwWebBrowser"));
  const QScrollBar* bar = browser_->controls().brwWebBrowser->verticalScrollBar();
  press(Qt::Key_PageDown);
  EXPECT_GT(bar->value(), 0);
  press(Qt::Key_Home);
  EXPECT_EQ(bar->value(), 0);
}

TEST_F(HelpByKeys, LinksAreReachedByTabAndFollowedByEnter) {
  ASSERT_EQ(page(), QStringLiteral("genhelp.htm"));
  // The first link of each page leads to this page itself, the second to the index.
  press(Qt::Key_Tab, {}, 2);
  press(Qt::Key_Return);
  EXPECT_EQ(page(), QStringLiteral("index.htm"));
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(page(), QStringLiteral("genhelp.htm"));
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(page(), QStringLiteral("index.htm"));
  press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(page(), QStringLiteral("genhelp.htm"));
}

TEST_F(HelpByKeys, AnAddressIsTypedOrChosenFromTheVisitedOnes) {
  press(Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(focusName(), QStringLiteral("cboAddress"));
  typeOver(QStringLiteral("relinfo.htm"));
  press(Qt::Key_Return);
  EXPECT_EQ(page(), QStringLiteral("relinfo.htm"));
  press(Qt::Key_Down);
  EXPECT_EQ(page(), QStringLiteral("genhelp.htm"));
}

TEST_F(HelpByKeys, TheToolbarIsReachedByTabAndPressedBySpace) {
  press(Qt::Key_L, Qt::ControlModifier);
  typeOver(QStringLiteral("relinfo.htm"));
  press(Qt::Key_Return);
  ASSERT_EQ(page(), QStringLiteral("relinfo.htm"));
  press(Qt::Key_L, Qt::ControlModifier);
  press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(focusName(), QStringLiteral("Search"));
  press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(focusName(), QStringLiteral("Home"));
  press(Qt::Key_Space);
  EXPECT_EQ(page(), QStringLiteral("genhelp.htm"));
}

TEST_F(HelpByKeys, WordsAreFoundOnThePageAndTheRowIsLeft) {
  press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(focusName(), QStringLiteral("FindText"));
  typeText(QStringLiteral("search"));
  EXPECT_EQ(selected().toLower(), QStringLiteral("search"));
  EXPECT_TRUE(tabStops().startsWith(QStringLiteral("FindText Previous Next Close")))
      << tabStops().toStdString();
  press(Qt::Key_Escape);
  EXPECT_EQ(focusName(), QStringLiteral("brwWebBrowser"));
}

TEST_F(HelpByKeys, ControlWClosesTheWindow) {
  press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(browser_->isVisible());
  EXPECT_TRUE(form().isVisible());
}

}  // namespace

}  // namespace quorvin::test
