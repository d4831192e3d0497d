// SPDX-License-Identifier: GPL-2.0-or-later

// F1: the page of the manual on the window at hand.
#pragma once

#include "help/frm_browser.h"
#include "help/page_transfer.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace quorvin {

/// The page of the manual, from the help folder on, that is about `widget` or the window that it is in; empty
/// for a window that the manual says nothing about, and for the help itself.
QString manualPageFor(const QWidget& widget);

/// Opens a page for F1 in every window of the program, as long as it lives. Above a dialog the help belongs
/// to the dialog: it can be used beside it and goes with it. Each F1 opens its page at once, in place of the
/// one before.
class SearchFormHelp : public QObject {
  Q_OBJECT

 public:
  SearchFormHelp();
  ~SearchFormHelp() override;

  /// Closes the help, where it is open.
  void unload();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void open(const QString& page, QWidget& window);

  NetworkPageTransfer transfer_;
  QPointer<frmBrowser> browser_;
};

}  // namespace quorvin
