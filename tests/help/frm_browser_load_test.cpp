// SPDX-License-Identifier: GPL-2.0-or-later

// When the help browser opens its starting page, and when it does not.
#include "help/frm_browser_fixture.h"

namespace quorvin::test {
namespace {

using FrmBrowserLoad = FrmBrowserTest;

TEST_F(FrmBrowserLoad, OpensTheStartingAddress) {
  show("genhelp.htm");
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
  EXPECT_EQ(box().currentText(), pathOf("genhelp.htm"));
  EXPECT_EQ(addresses(), shown({"genhelp.htm"}));
}

TEST_F(FrmBrowserLoad, TheStartingAddressIsInTheListBeforeItsPageHasCome) {
  window().showHelp(QStringLiteral("http://host/a"));
  ASSERT_TRUE(transfer_.isWaiting());
  EXPECT_EQ(addresses(), QStringLiteral("http://host/a"));
  EXPECT_EQ(box().currentText(), QStringLiteral("http://host/a"));
}

TEST_F(FrmBrowserLoad, WithoutAStartingAddressItOpensNothing) {
  window().show();
  EXPECT_EQ(text(), QString());
  EXPECT_EQ(addresses(), QString());
  EXPECT_FALSE(isTimerRunning());
}

TEST_F(FrmBrowserLoad, ASecondChoiceWhileOpenOnlyStoresTheAddress) {
  show("genhelp.htm");
  window().showHelp(pathOf("relinfo.htm"));
  EXPECT_EQ(window().StartingAddress, pathOf("relinfo.htm"));
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
  EXPECT_EQ(addresses(), shown({"genhelp.htm"}));
}

TEST_F(FrmBrowserLoad, ASecondChoiceSaysWhenItOpensAndOffersToOpenItNow) {
  show("genhelp.htm");
  EXPECT_FALSE(controls().OpenNow->isVisible());
  window().showHelp(pathOf("relinfo.htm"));
  EXPECT_EQ(controls().lblStatus->text(),
            QStringLiteral("Release Information opens after this window is closed."));
  ASSERT_TRUE(controls().OpenNow->isVisible());
  controls().OpenNow->setFocus();
  press(Qt::Key_Space);
  EXPECT_EQ(text(), QStringLiteral("Releases"));
  EXPECT_FALSE(controls().OpenNow->isVisible());
  EXPECT_EQ(controls().lblStatus->text(), QString());
  EXPECT_EQ(QApplication::focusWidget(), &view());
}

TEST_F(FrmBrowserLoad, AChoiceOfThePageThatIsShownSaysNothing) {
  show("genhelp.htm");
  window().showHelp(pathOf("genhelp.htm"));
  EXPECT_FALSE(controls().OpenNow->isVisible());
  EXPECT_EQ(controls().lblStatus->text(), QString());
}

TEST_F(FrmBrowserLoad, ClosingTakesTheOfferAway) {
  show("genhelp.htm");
  window().showHelp(pathOf("relinfo.htm"));
  window().close();
  show("genhelp.htm");
  EXPECT_FALSE(controls().OpenNow->isVisible());
  EXPECT_EQ(controls().lblStatus->text(), QString());
}

TEST_F(FrmBrowserLoad, ASecondChoiceBringsTheWindowForward) {
  show("genhelp.htm");
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  window().showHelp(pathOf("relinfo.htm"));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
}

TEST_F(FrmBrowserLoad, AMinimizedWindowComesBackWithItsPage) {
  show("genhelp.htm");
  window().showMinimized();
  window().showHelp(pathOf("relinfo.htm"));
  EXPECT_FALSE(window().isMinimized());
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
}

TEST_F(FrmBrowserLoad, AfterClosingTheStoredAddressIsOpened) {
  show("genhelp.htm");
  window().showHelp(pathOf("relinfo.htm"));
  window().close();
  show("relinfo.htm");
  EXPECT_EQ(text(), QStringLiteral("Releases"));
  EXPECT_EQ(addresses(), shown({"relinfo.htm"}));
}

TEST_F(FrmBrowserLoad, ClosingForgetsPagesAddressesAndHistory) {
  show("genhelp.htm");
  clickButton(BrowserButton::Search);
  window().close();
  EXPECT_EQ(text(), QString());
  EXPECT_EQ(addresses(), QString());
  show("genhelp.htm");
  EXPECT_FALSE(button(BrowserButton::Back).isEnabled());
  EXPECT_FALSE(controls().findBar->isVisible());
}

TEST_F(FrmBrowserLoad, ClosingEndsALoad) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("http://host/a"));
  window().close();
  EXPECT_FALSE(transfer_.isWaiting());
  EXPECT_FALSE(isTimerRunning());
}

TEST_F(FrmBrowserLoad, AMissingHelpFileIsToldOnThePage) {
  show("gone.htm");
  EXPECT_TRUE(text().startsWith(QStringLiteral("This help page is missing"))) << text().toStdString();
  EXPECT_TRUE(text().contains(pathOf("gone.htm")));
}

}  // namespace
}  // namespace quorvin::test
