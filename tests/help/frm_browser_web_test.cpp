// SPDX-License-Identifier: GPL-2.0-or-later

// Pages of the web in the help browser: being busy, and stopping.
#include "help/frm_browser_fixture.h"
#include "help/loopback_server.h"
#include "help/page_transfer.h"
#include "support/eventually.h"
#include "support/processor_clock.h"

#include <algorithm>

namespace quorvin::test {
namespace {

class FrmBrowserWeb : public FrmBrowserTest {
 protected:
  bool looksBusy() { return controls().loadBar->isVisible(); }
  QString status() { return controls().lblStatus->text(); }
};

TEST_F(FrmBrowserWeb, ALinkToTheWebIsFetchedAndShown) {
  show("genhelp.htm");
  view().setFocus();
  press(Qt::Key_Tab);
  press(Qt::Key_Tab);
  press(Qt::Key_Return);
  ASSERT_EQ(transfer_.started.size(), 1U);
  EXPECT_EQ(transfer_.started[0], QStringLiteral("http://host/a"));
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
  transfer_.deliver("<p>From the web</p>");
  EXPECT_EQ(text(), QStringLiteral("From the web"));
  EXPECT_EQ(box().currentText(), QStringLiteral("http://host/a"));
}

TEST_F(FrmBrowserWeb, WhileLoadingTheWindowSaysWhatItWaitsFor) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("http://host/a"));
  EXPECT_TRUE(isTimerRunning());
  EXPECT_TRUE(button(BrowserButton::Stop).isEnabled());
  EXPECT_TRUE(eventually([this] { return looksBusy(); }));
  EXPECT_EQ(status(), QStringLiteral("Loading http://host/a (Esc stops)"));
  transfer_.deliver("<p>here</p>");
  EXPECT_TRUE(eventually([this] { return !looksBusy() && !isTimerRunning(); }));
  EXPECT_EQ(status(), QString());
  EXPECT_FALSE(button(BrowserButton::Stop).isEnabled());
}

TEST_F(FrmBrowserWeb, AHelpPageShowsNoSignOfBeingBusy) {
  show("genhelp.htm");
  EXPECT_FALSE(looksBusy());
  EXPECT_TRUE(eventually([this] { return !isTimerRunning(); }));
  EXPECT_FALSE(looksBusy());
}

TEST_F(FrmBrowserWeb, StopEndsTheTimerAndKeepsThePage) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("http://host/a"));
  clickButton(BrowserButton::Stop);
  EXPECT_FALSE(isTimerRunning());
  EXPECT_FALSE(transfer_.isWaiting());
  EXPECT_FALSE(button(BrowserButton::Stop).isEnabled());
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
}

TEST_F(FrmBrowserWeb, AFailureIsToldOnThePageAndRefreshTriesAgain) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("http://host/a"));
  transfer_.fail(QStringLiteral("Connection refused."));
  EXPECT_TRUE(
      text().startsWith(QStringLiteral("The page could not be fetched http://host/a Connection refused.")))
      << text().toStdString();
  clickButton(BrowserButton::Refresh);
  transfer_.deliver("<p>here</p>");
  EXPECT_EQ(text(), QStringLiteral("here"));
}

TEST_F(FrmBrowserWeb, PlainTextIsShownAsItStands) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("http://host/a.txt"));
  transfer_.deliver("<b>not bold</b>", "text/plain");
  EXPECT_EQ(text(), QStringLiteral("<b>not bold</b>"));
}

/// The window with the real transfer, and a server that never ends its page.
class FrmBrowserEndlessPage : public testing::Test {
 protected:
  void openEndlessPage() {
    window_.showHelp(server_.address().toString());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    ASSERT_TRUE(eventually([this] { return server_.connections == 1; }));
    ASSERT_TRUE(eventually([this] { return window_.controls().loadBar->isVisible(); }));
  }
  void expectStopped() {
    EXPECT_TRUE(eventually([this] { return server_.closed == 1; }));
    EXPECT_FALSE(window_.controls().loadBar->isVisible());
    EXPECT_FALSE(window_.timTimer().isActive());
  }

  TemporaryFolder folder_;
  LoopbackServer server_{sendingForEver()};
  NetworkPageTransfer transfer_;
  frmBrowser window_{folder_.path(), transfer_};
};

TEST_F(FrmBrowserEndlessPage, StopEndsTheLoad) {
  openEndlessPage();
  window_.controls().button(BrowserButton::Stop)->trigger();
  expectStopped();
}

TEST_F(FrmBrowserEndlessPage, EscEndsTheLoad) {
  openEndlessPage();
  QTest::keyClick(&window_, Qt::Key_Escape);
  expectStopped();
}

TEST_F(FrmBrowserEndlessPage, ClosingTheWindowEndsTheLoad) {
  openEndlessPage();
  window_.close();
  expectStopped();
}

TEST_F(FrmBrowserEndlessPage, TheWindowStaysResponsive) {
  openEndlessPage();
  ProcessorClock waited;
  waited.start();
  qint64 longest = 0;
  for (int turn = 0; turn < 50; ++turn) {
    const qint64 before = waited.elapsed();
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    longest = std::max(longest, waited.elapsed() - before);
  }
  EXPECT_LT(longest, 500);
}

}  // namespace
}  // namespace quorvin::test
