// SPDX-License-Identifier: GPL-2.0-or-later

// The real help browser, over a help folder of the test's own.
#pragma once

#include "help/fake_page_transfer.h"
#include "help/frm_browser.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QStringList>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

namespace quorvin::test {

class FrmBrowserTest : public testing::Test {
 protected:
  FrmBrowserTest() {
    folder_.writeFile(
        QStringLiteral("genhelp.htm"),
        "<h1>Usage</h1><p><a href='relinfo.htm'>Releases</a> <a href='http://host/a'>Web</a></p>");
    folder_.writeFile(QStringLiteral("relinfo.htm"), "<h1>Releases</h1>");
    folder_.writeFile(QStringLiteral("index.htm"), "<h1>Index</h1><p>apple banana apple</p>");
    window_ = std::make_unique<frmBrowser>(folder_.path(), transfer_);
  }

  frmBrowser& window() { return *window_; }
  const BrowserControls& controls() { return window_->controls(); }
  QComboBox& box() { return *controls().cboAddress; }
  HelpView& view() { return *controls().brwWebBrowser; }
  QAction& button(BrowserButton which) { return *controls().button(which); }

  QString pathOf(const char* name) const { return folder_.pathOf(QString::fromLatin1(name)); }

  void show(const char* page = "genhelp.htm") {
    window_->showHelp(pathOf(page));
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  /// What the page says, in one line.
  QString text() { return view().toPlainText().simplified(); }
  QString addresses() {
    QStringList texts;
    for (int row = 0; row < box().count(); ++row) texts.append(box().itemText(row));
    return texts.join(u'|');
  }
  QString shown(std::initializer_list<const char*> names) const {
    QStringList texts;
    for (const char* name : names) texts.append(pathOf(name));
    return texts.join(u'|');
  }
  void typeAddress(const QString& address) {
    box().setFocus();
    box().lineEdit()->selectAll();
    QTest::keyClicks(QApplication::focusWidget(), address);
  }
  void openByTyping(const QString& address) {
    typeAddress(address);
    press(Qt::Key_Return);
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void clickButton(BrowserButton which) {
    QWidget* widget = controls().tbToolBar->widgetForAction(&button(which));
    QTest::mouseClick(widget, Qt::LeftButton);
  }
  bool isTimerRunning() { return window_->timTimer().isActive(); }

  TemporaryFolder folder_;
  FakePageTransfer transfer_;

 private:
  std::unique_ptr<frmBrowser> window_;
};

}  // namespace quorvin::test
