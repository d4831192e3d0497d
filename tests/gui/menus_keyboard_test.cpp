// SPDX-License-Identifier: GPL-2.0-or-later

// The menus by keys alone: every item of the menu bar is reached and does what it names.
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "help/frm_browser.h"
#include "support/eventually.h"

#include <QDialog>
#include <QHostAddress>
#include <QTcpServer>

namespace quorvin::test {

namespace {

class MenuKeys : public SearchFormTest {
 protected:
  MenuKeys() { form(); }
  ~MenuKeys() override {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (qobject_cast<frmBrowser*>(window)) window->close();
    }
  }

  /// Opens a menu of the bar and goes down to one of its items.
  static void choose(Qt::Key menu, int itemsDown) {
    press(menu, Qt::AltModifier);
    press(Qt::Key_Down, {}, itemsDown);
    press(Qt::Key_Return);
  }
  static void chooseByLetters(Qt::Key menu, Qt::Key item) {
    press(menu, Qt::AltModifier);
    press(item);
  }
  /// The title of the dialog that `keys` open; Esc closes it.
  static QString dialogOpenedBy(const std::function<void()>& keys) {
    QString title;
    inDialog<QDialog>(keys, [&](QDialog& dialog) {
      title = dialog.windowTitle();
      press(Qt::Key_Escape);
    });
    return title;
  }
  /// The page in the help browser, once it is up.
  static QString helpPage() {
    QString page;
    (void)eventually([&] {
      const auto* browser = qobject_cast<frmBrowser*>(QApplication::activeWindow());
      if (browser) page = browser->controls().cboAddress->currentText();
      return browser != nullptr;
    });
    return page.section(u'/', -1);
  }
};

TEST_F(MenuKeys, ArrowsReachEveryItemOfTheFileMenu) {
  EXPECT_EQ(dialogOpenedBy([] { choose(Qt::Key_F, 0); }), QStringLiteral("Local File Search Locations"));
  EXPECT_EQ(dialogOpenedBy([] { choose(Qt::Key_F, 1); }), QStringLiteral("Offline Search List files"));
  EXPECT_EQ(dialogOpenedBy([] { choose(Qt::Key_F, 3); }), QStringLiteral("Listing History"));
  EXPECT_EQ(dialogOpenedBy([] { choose(Qt::Key_F, 4); }), QStringLiteral("Copies"));
  EXPECT_EQ(dialogOpenedBy([] { choose(Qt::Key_F, 5); }), QStringLiteral("Compare"));
  EXPECT_EQ(dialogOpenedBy([] { choose(Qt::Key_F, 6); }), QStringLiteral("Volumes"));
  EXPECT_EQ(dialogOpenedBy([] { choose(Qt::Key_F, 7); }), QStringLiteral("Import"));
  EXPECT_EQ(dialogOpenedBy([] { choose(Qt::Key_F, 9); }), QStringLiteral("Options"));
  choose(Qt::Key_F, 10);
  EXPECT_FALSE(form().isVisible());
}

TEST_F(MenuKeys, ARescanIsStarted) {
  TemporaryFolder files;
  files.writeFile(QStringLiteral("song.mp3"), "x");
  addOnlineFolder(QStringLiteral("Music"), files.path());
  choose(Qt::Key_F, 2);
  EXPECT_TRUE(folder_.readFile(QStringLiteral("Music.txt")).contains("song.mp3"));
}

TEST_F(MenuKeys, LettersReachTheItemsThatHaveOne) {
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_F, Qt::Key_A); }),
            QStringLiteral("Local File Search Locations"));
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_F, Qt::Key_H); }), QStringLiteral("Listing History"));
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_F, Qt::Key_C); }), QStringLiteral("Copies"));
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_F, Qt::Key_M); }), QStringLiteral("Compare"));
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_F, Qt::Key_V); }), QStringLiteral("Volumes"));
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_F, Qt::Key_I); }), QStringLiteral("Import"));
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_F, Qt::Key_O); }), QStringLiteral("Options"));
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_P, Qt::Key_G); }),
            QStringLiteral("Get Lists From Peer"));
  EXPECT_EQ(dialogOpenedBy([] { chooseByLetters(Qt::Key_H, Qt::Key_A); }),
            QStringLiteral("About Quorvin Utility"));
  chooseByLetters(Qt::Key_F, Qt::Key_Q);
  EXPECT_FALSE(form().isVisible());
}

TEST_F(MenuKeys, SharingIsSwitchedOnAndOff) {
  // Any free port, which only this machine can reach.
  form().jobs().setListenerPlace(QHostAddress::LocalHost, 0);
  chooseByLetters(Qt::Key_P, Qt::Key_S);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].startsWith(QStringLiteral("Your lists are shared on port ")))
      << messages_.informed[0].toStdString();
  EXPECT_TRUE(form().menus().ShareLists->isChecked());
  chooseByLetters(Qt::Key_P, Qt::Key_S);
  EXPECT_FALSE(form().menus().ShareLists->isChecked());
}

TEST_F(MenuKeys, SharingThatIsRefusedLeavesTheItemUnchecked) {
  QTcpServer other;
  ASSERT_TRUE(other.listen(QHostAddress::LocalHost));
  form().jobs().setListenerPlace(QHostAddress::LocalHost, other.serverPort());
  chooseByLetters(Qt::Key_P, Qt::Key_S);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].startsWith(QStringLiteral("Your lists are not shared")))
      << messages_.informed[0].toStdString();
  EXPECT_FALSE(form().menus().ShareLists->isChecked());
}

TEST_F(MenuKeys, TheHelpIsOpened) {
  chooseByLetters(Qt::Key_H, Qt::Key_U);
  EXPECT_EQ(helpPage(), QStringLiteral("genhelp.htm"));
}

TEST_F(MenuKeys, TheReleaseInformationIsOpened) {
  chooseByLetters(Qt::Key_H, Qt::Key_R);
  EXPECT_EQ(helpPage(), QStringLiteral("relinfo.htm"));
}

TEST_F(MenuKeys, SidewaysLeadsFromMenuToMenuAndEscLeaves) {
  press(Qt::Key_F, Qt::AltModifier);
  EXPECT_TRUE(form().menus().FileMenu->isVisible());
  press(Qt::Key_Right);
  EXPECT_TRUE(form().menus().ViewMenu->isVisible());
  press(Qt::Key_Right);
  EXPECT_TRUE(form().menus().HitsMenu->isVisible());
  press(Qt::Key_Right);
  EXPECT_TRUE(form().menus().PeersMenu->isVisible());
  press(Qt::Key_Right);
  EXPECT_TRUE(form().menus().HlpMnu->isVisible());
  press(Qt::Key_Escape);
  EXPECT_FALSE(form().menus().HlpMnu->isVisible());
}

}  // namespace

}  // namespace quorvin::test
