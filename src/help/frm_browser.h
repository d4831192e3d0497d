// SPDX-License-Identifier: GPL-2.0-or-later

// The help browser.
#pragma once

#include "help/frm_browser_controls.h"
#include "help/page_history.h"
#include "help/page_loader.h"

#include <QString>
#include <QTimer>
#include <QWidget>

namespace quorvin {

/// The help browser `frmBrowser`: pages of the program's help, and plain pages of the web. The window is
/// loaded when it is shown, and unloaded when it is closed; shown again, it starts afresh.
class frmBrowser : public QWidget {
  Q_OBJECT

 public:
  /// The pages are in `helpFolder`; `transfer`, which must outlive the window, fetches those of the web.
  frmBrowser(const QString& helpFolder, PageTransfer& transfer, QWidget* parent = nullptr);
  ~frmBrowser() override;

  /// The page that the window's load opens, as the address box takes it. While the window is open a change
  /// has no effect.
  QString StartingAddress;

  /// Sets `StartingAddress` and shows the window; one that is open already only comes to the front, and its
  /// status row says that the page opens after it has been closed, with a link that opens it at once.
  void showHelp(const QString& startingAddress);

  const BrowserControls& controls() const { return controls_; }
  const QTimer& timTimer() const { return timTimer_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  PageDisplay pageDisplay();
  void navigationFinished(const QString& address);
  void connectControls();
  void addKeys();
  void Form_Load();
  void Form_Resize();
  void cboAddress_Click();
  bool cboAddress_KeyPress(int key);
  void timTimer_Timer();
  void tbToolBar_ButtonClick(BrowserButton button);
  void stopLoading();
  void escape();
  void updateButtons();
  bool isPageWaiting() const { return controls_.OpenNow->isVisibleTo(this); }
  void showBusy();
  void tellWaitingPage();
  void openWaitingPage();
  void refillAddresses(const QString& current);

  QTimer timTimer_;
  PageLoader loader_;
  BrowserControls controls_;
  AddressList addressList_;
  /// Set while the program itself changes the address list, so that the change starts no navigation.
  bool addressLock_ = false;
  bool loaded_ = false;
};

}  // namespace quorvin
