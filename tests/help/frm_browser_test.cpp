// SPDX-License-Identifier: GPL-2.0-or-later

// The help browser's toolbar, address list and keys.
#include "help/frm_browser_fixture.h"
#include "support/eventually.h"

namespace quorvin::test {
namespace {

using FrmBrowser = FrmBrowserTest;

TEST_F(FrmBrowser, VisitingAPageTwiceLeavesOneEntryAtTheTop) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("relinfo.htm"));
  EXPECT_EQ(addresses(), shown({"relinfo.htm", "genhelp.htm"}));
  openByTyping(pathOf("genhelp.htm"));
  EXPECT_EQ(addresses(), shown({"genhelp.htm", "relinfo.htm"}));
  EXPECT_EQ(box().currentIndex(), 0);
}

TEST_F(FrmBrowser, ChoosingAnEntryOfTheListGoesThere) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("relinfo.htm"));
  box().setFocus();
  press(Qt::Key_Down);
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
  EXPECT_EQ(addresses(), shown({"genhelp.htm", "relinfo.htm"}));
}

/// Chooses an entry while the window refills its list.
class ChoosingDuringRefill : public QObject {
 public:
  explicit ChoosingDuringRefill(QComboBox& box) {
    connect(box.model(), &QAbstractItemModel::rowsInserted, this, [this, &box] {
      if (box.count() < 2) return;
      ++chosen;
      Q_EMIT box.activated(1);
    });
  }
  int chosen = 0;
};

TEST_F(FrmBrowser, AChoiceWhileTheProgramRefillsTheListGoesNowhere) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("relinfo.htm"));
  const ChoosingDuringRefill choosing(box());
  clickButton(BrowserButton::Search);
  EXPECT_GT(choosing.chosen, 0);
  EXPECT_EQ(text(), QStringLiteral("Index apple banana apple"));
  EXPECT_EQ(addresses(), shown({"index.htm", "relinfo.htm", "genhelp.htm"}));
}

TEST_F(FrmBrowser, TypingDoesNothingUntilEnterIsPressed) {
  show("genhelp.htm");
  typeAddress(QStringLiteral("relinfo.htm"));
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
  EXPECT_EQ(box().currentText(), QStringLiteral("relinfo.htm"));
  press(Qt::Key_Enter);
  EXPECT_EQ(text(), QStringLiteral("Releases"));
}

TEST_F(FrmBrowser, LeavingTheBoxAfterTypingGoesNowhere) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("relinfo.htm"));
  typeAddress(pathOf("genhelp.htm"));
  view().setFocus();
  EXPECT_EQ(text(), QStringLiteral("Releases"));
}

TEST_F(FrmBrowser, BackAndForwardFollowTheHistory) {
  show("genhelp.htm");
  EXPECT_FALSE(button(BrowserButton::Back).isEnabled());
  openByTyping(QStringLiteral("relinfo.htm"));
  clickButton(BrowserButton::Back);
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
  EXPECT_FALSE(button(BrowserButton::Back).isEnabled());
  clickButton(BrowserButton::Forward);
  EXPECT_EQ(text(), QStringLiteral("Releases"));
  EXPECT_FALSE(button(BrowserButton::Forward).isEnabled());
}

TEST_F(FrmBrowser, RefreshReadsThePageAnew) {
  show("relinfo.htm");
  folder_.writeFile(QStringLiteral("relinfo.htm"), "<h1>New</h1>");
  clickButton(BrowserButton::Refresh);
  EXPECT_EQ(text(), QStringLiteral("New"));
}

TEST_F(FrmBrowser, HomeIsTheGeneralHelp) {
  show("relinfo.htm");
  clickButton(BrowserButton::Home);
  EXPECT_EQ(box().currentText(), pathOf("genhelp.htm"));
}

TEST_F(FrmBrowser, SearchIsTheIndexWithARowForFinding) {
  show("relinfo.htm");
  clickButton(BrowserButton::Search);
  EXPECT_EQ(box().currentText(), pathOf("index.htm"));
  EXPECT_TRUE(controls().findBar->isVisible());
  EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("FindText"));
}

TEST_F(FrmBrowser, AButtonStartsTheTimerAndTheTimerEndsItself) {
  show("genhelp.htm");
  EXPECT_TRUE(eventually([this] { return !isTimerRunning(); }));
  clickButton(BrowserButton::Home);
  EXPECT_TRUE(isTimerRunning());
  EXPECT_TRUE(eventually([this] { return !isTimerRunning(); }));
}

TEST_F(FrmBrowser, ATypedAddressStartsTheTimer) {
  show("genhelp.htm");
  ASSERT_TRUE(eventually([this] { return !isTimerRunning(); }));
  openByTyping(QStringLiteral("relinfo.htm"));
  EXPECT_TRUE(isTimerRunning());
}

TEST_F(FrmBrowser, KeysDoWhatTheButtonsDo) {
  show("genhelp.htm");
  view().setFocus();
  press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(box().currentText(), pathOf("index.htm"));
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(box().currentText(), pathOf("genhelp.htm"));
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(box().currentText(), pathOf("index.htm"));
  press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(box().currentText(), pathOf("genhelp.htm"));
  folder_.writeFile(QStringLiteral("genhelp.htm"), "<h1>New</h1>");
  press(Qt::Key_F5);
  EXPECT_EQ(text(), QStringLiteral("New"));
}

TEST_F(FrmBrowser, KeysWorkInThePageAndInTheAddressBoxToo) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("relinfo.htm"));
  box().setFocus();
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(box().currentText(), pathOf("genhelp.htm"));
  view().setFocus();
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(box().currentText(), pathOf("relinfo.htm"));
}

TEST_F(FrmBrowser, AltAAndControlLGoToTheAddress) {
  show("genhelp.htm");
  view().setFocus();
  press(Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(box().hasFocus());
  view().setFocus();
  press(Qt::Key_L, Qt::ControlModifier);
  EXPECT_TRUE(box().hasFocus());
  EXPECT_EQ(box().lineEdit()->selectedText(), pathOf("genhelp.htm"));
}

TEST_F(FrmBrowser, ALinkIsFollowedByTabAndEnter) {
  show("genhelp.htm");
  view().setFocus();
  press(Qt::Key_Tab);
  press(Qt::Key_Return);
  EXPECT_EQ(text(), QStringLiteral("Releases"));
  EXPECT_EQ(addresses(), shown({"relinfo.htm", "genhelp.htm"}));
}

TEST_F(FrmBrowser, TabReachesEveryControlAndComesBack) {
  show("relinfo.htm");
  openByTyping(QStringLiteral("genhelp.htm"));
  clickButton(BrowserButton::Back);
  openByTyping(QStringLiteral("relinfo.htm"));
  clickButton(BrowserButton::Back);
  view().setFocus();
  QStringList reached;
  for (int step = 0; step < 20; ++step) {
    press(Qt::Key_Tab);
    const QString name = QApplication::focusWidget()->objectName();
    if (reached.contains(name)) break;
    reached.append(name);
  }
  for (const char* name : {"Forward", "Refresh", "Home", "Search", "cboAddress", "brwWebBrowser"}) {
    EXPECT_TRUE(reached.contains(QString::fromLatin1(name)))
        << name << " is not in: " << reached.join(u' ').toStdString();
  }
}

TEST_F(FrmBrowser, ControlWClosesTheWindow) {
  show("genhelp.htm");
  press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(window().isVisible());
}

TEST_F(FrmBrowser, TheMousesBackButtonGoesBack) {
  show("genhelp.htm");
  openByTyping(QStringLiteral("relinfo.htm"));
  QTest::mouseClick(view().viewport(), Qt::BackButton);
  EXPECT_EQ(box().currentText(), pathOf("genhelp.htm"));
  QTest::mouseClick(view().viewport(), Qt::ForwardButton);
  EXPECT_EQ(box().currentText(), pathOf("relinfo.htm"));
}

TEST_F(FrmBrowser, ADarkThemeIsTakenOverWhileAPageIsShown) {
  show("genhelp.htm");
  QPalette dark = window().palette();
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::ButtonText, Qt::white);
  window().setPalette(dark);
  QApplication::processEvents();
  EXPECT_EQ(text(), QStringLiteral("Usage Releases Web"));
  const QImage icon = button(BrowserButton::Home).icon().pixmap(24, 24).toImage();
  int white = 0;
  for (int y = 0; y < icon.height(); ++y) {
    for (int x = 0; x < icon.width(); ++x) white += icon.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
  }
  EXPECT_GT(white, 20);
}

}  // namespace
}  // namespace quorvin::test
