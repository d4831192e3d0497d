// SPDX-License-Identifier: GPL-2.0-or-later

// F1 in each window, and the page of the manual that lists the keys.
#include "app/search_form_help.h"

#include "editors/dialog_driving.h"
#include "editors/local_loc.h"
#include "gui/search_form_fixture.h"
#include "help/manual_pages.h"
#include "preview/img_pre.h"
#include "preview/res_win.h"

#include <QMessageBox>
#include <QShortcut>
#include <QThreadPool>

#include <set>

namespace quorvin::test {

namespace {

class HelpKey : public SearchFormTest {
 protected:
  /// The help windows that are open.
  static std::vector<frmBrowser*> open() {
    std::vector<frmBrowser*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* browser = qobject_cast<frmBrowser*>(window);
      if (browser && browser->isVisible()) windows.push_back(browser);
    }
    return windows;
  }
  /// The page that F1 opens in `widget`, from the help folder on. Its window is closed again.
  static QString pageOfF1(QWidget& widget) {
    QTest::keyClick(&widget, Qt::Key_F1);
    if (open().size() != 1) return QStringLiteral("%1 help windows").arg(open().size());
    frmBrowser* browser = open().front();
    const QString page = browser->StartingAddress;
    browser->close();
    const QString folder = helpFolderOf(page);
    return page.mid(folder.size());
  }
  static QString helpFolderOf(const QString& address) {
    const qsizetype manual = address.lastIndexOf(QStringLiteral("manual/"));
    return address.left(manual >= 0 ? manual : address.lastIndexOf(u'/') + 1);
  }
  QString pageInDialog(QAction* opens) {
    QString page;
    EXPECT_TRUE(duringModal<QDialog>([opens] { opens->trigger(); },
                                     [&page](QDialog& dialog) { page = pageOfF1(dialog); }));
    return page;
  }
};

TEST_F(HelpKey, OpensThePageOfTheWindowAtHand) {
  EXPECT_EQ(pageOfF1(*form().controls().SearchStr), QStringLiteral("manual/searching.htm"));
  EXPECT_EQ(pageOfF1(*controls().HitList), QStringLiteral("manual/hits.htm"));
  EXPECT_EQ(pageInDialog(form().menus().AddLocal), QStringLiteral("manual/cataloguing.htm#add"));
  EXPECT_EQ(pageInDialog(form().menus().EditOffline), QStringLiteral("manual/offline.htm#offline"));
  EXPECT_EQ(pageInDialog(form().menus().OptionsMenu), QStringLiteral("manual/options.htm"));
  EXPECT_EQ(pageInDialog(form().menus().ListingHistory), QStringLiteral("manual/cataloguing.htm#history"));
  EXPECT_EQ(pageInDialog(form().menus().Copies), QStringLiteral("manual/copies.htm#window"));
  EXPECT_EQ(pageInDialog(form().menus().Compare), QStringLiteral("manual/compare.htm#window"));
  EXPECT_EQ(pageInDialog(form().menus().Volumes), QStringLiteral("manual/volumes.htm#window"));
  EXPECT_EQ(pageInDialog(form().menus().Import), QStringLiteral("manual/imports.htm#window"));
  EXPECT_EQ(pageInDialog(form().menus().AboutMenu), QStringLiteral("relinfo.htm"));
}

TEST_F(HelpKey, WorksInTheSmallWindows) {
  form().progress().begin();
  EXPECT_EQ(pageOfF1(form().progress()), QStringLiteral("manual/cataloguing.htm#rescan"));
  ResWin results;
  EXPECT_EQ(pageOfF1(results), QStringLiteral("manual/messages.htm#results"));
  QMessageBox message;
  EXPECT_EQ(pageOfF1(message), QStringLiteral("manual/messages.htm"));
  QThreadPool pool;
  ImgPre picture(pool, nullptr);
  EXPECT_EQ(pageOfF1(picture), QStringLiteral("manual/hits.htm#preview"));
}

TEST_F(HelpKey, OpensOneWindowAndNoneInTheHelp) {
  QTest::keyClick(&form(), Qt::Key_F1);
  QTest::keyClick(&form(), Qt::Key_F1);
  ASSERT_EQ(open().size(), 1U);
  QTest::keyClick(open().front(), Qt::Key_F1);
  EXPECT_EQ(open().size(), 1U);
  open().front()->close();
}

TEST_F(HelpKey, OpensAWindowThatCanBeUsedAboveADialogAndGoesWithIt) {
  form();
  EXPECT_TRUE(duringModal<LocalLoc>([this] { form().menus().AddLocal->trigger(); },
                                    [](LocalLoc& dialog) {
                                      QTest::keyClick(dialog.controls().Desc, Qt::Key_F1);
                                      ASSERT_EQ(open().size(), 1U);
                                      EXPECT_EQ(open().front()->parentWidget(), &dialog);
                                    }));
  EXPECT_TRUE(open().empty());
}

TEST_F(HelpKey, LeadsToPagesAndPlacesThatAreThere) {
  std::vector<QString> pages = {pageOfF1(form()),
                                pageInDialog(form().menus().AddLocal),
                                pageInDialog(form().menus().EditOffline),
                                pageInDialog(form().menus().OptionsMenu),
                                pageInDialog(form().menus().ListingHistory),
                                pageInDialog(form().menus().Copies),
                                pageInDialog(form().menus().Compare),
                                pageInDialog(form().menus().Volumes),
                                pageInDialog(form().menus().Import),
                                QStringLiteral("manual/messages.htm#results"),
                                QStringLiteral("manual/hits.htm#preview"),
                                QStringLiteral("manual/peers.htm#get"),
                                QStringLiteral("manual/cataloguing.htm#rescan")};
  for (const QString& page : pages) {
    const QString place = page.section(u'#', 1);
    const QString text = manualText(page.section(u'#', 0, 0));
    EXPECT_TRUE(place.isEmpty() || text.contains(QStringLiteral(" id=\"%1\"").arg(place)))
        << page.toStdString();
  }
}

/// The keys of all actions and shortcuts of a window, as people write them.
std::set<QString> keysOf(const QWidget& window) {
  std::set<QString> keys;
  const auto add = [&keys](const QKeySequence& sequence) {
    if (!sequence.isEmpty()) keys.insert(sequence.toString(QKeySequence::PortableText));
  };
  for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) add(shortcut->key());
  for (const QAction* action : window.findChildren<QAction*>()) {
    for (const QKeySequence& sequence : action->shortcuts()) add(sequence);
  }
  return keys;
}

/// What the manual writes in other words.
QString written(QString keys) {
  return keys.replace(QStringLiteral("Return"), QStringLiteral("Enter"));
}

class KeysOfTheManual : public SearchFormTest {
 protected:
  void expectListed(const QWidget& window) {
    const QString page = manualText(QStringLiteral("manual/keyboard.htm"));
    const std::set<QString> keys = keysOf(window);
    EXPECT_GT(keys.size(), 2U);
    for (const QString& key : keys) {
      EXPECT_TRUE(page.contains(
          QRegularExpression(QStringLiteral("[> ]%1[,;< ]").arg(QRegularExpression::escape(written(key))))))
          << window.objectName().toStdString() << ": " << key.toStdString();
    }
  }
};

TEST_F(KeysOfTheManual, AreThoseOfTheMainWindow) {
  expectListed(form());
}

TEST_F(KeysOfTheManual, AreThoseOfTheEditors) {
  form();
  EXPECT_TRUE(duringModal<LocalLoc>([this] { form().menus().AddLocal->trigger(); },
                                    [this](LocalLoc& dialog) { expectListed(dialog); }));
}

TEST_F(KeysOfTheManual, AreThoseOfTheHelp) {
  NetworkPageTransfer transfer;
  const frmBrowser help(pagesFolder(), transfer);
  expectListed(help);
}

}  // namespace

}  // namespace quorvin::test
