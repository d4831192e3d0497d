// SPDX-License-Identifier: GPL-2.0-or-later

// Going from page to page.
#pragma once

#include "help/help_files.h"
#include "help/page.h"
#include "help/page_history.h"
#include "help/page_transfer.h"

#include <QString>
#include <QUrl>

#include <functional>

namespace quorvin {

/// What the loader does with the window. All four are needed.
struct PageDisplay {
  /// Shows `page` from its top, or from the fragment of its address on, or at `position` where that is not 0.
  std::function<void(const Page& page, int position)> showPage;
  /// Goes to `fragment` on the page that is shown.
  std::function<void(const QString& fragment)> showPlace;
  /// How far down the shown page has been read.
  std::function<int()> position;
  /// A page is shown, perhaps one that says why there is no other; `address` as addressText writes it.
  std::function<void(const QString& address)> navigationFinished;
};

/// Brings the pages that the reader asks for. Help pages come at once; those of the web come later, and until
/// then the loader is busy. Each new wish ends the one before. A page that cannot be had is replaced by one
/// that says why.
class PageLoader {
 public:
  /// `transfer` must outlive the loader.
  PageLoader(const QString& helpFolder, PageTransfer& transfer, PageDisplay display);

  const HelpFiles& files() const { return files_; }

  /// Opens what was written into the address box; empty text does nothing.
  void open(const QString& address);
  /// Follows a link of the shown page; `link` may be relative to it.
  void follow(const QUrl& link);
  /// These do nothing if there is no page to go to.
  void goBack();
  void goForward();
  void reload();

  /// Ends a load; the page that is shown stays.
  void stop();
  /// Ends a load and forgets all pages.
  void reset();

  bool isBusy() const { return busy_; }
  /// What is being loaded, as addressText writes it.
  QString loadingAddress() const;
  bool canGoBack() const { return history_.canGoBack(); }
  bool canGoForward() const { return history_.canGoForward(); }

 private:
  enum class Move { New, Back, Forward, Stay };

  void load(const QUrl& address, Move move, int position);
  void fetch(const QUrl& address, Move move, int position);
  Page helpPage(const QUrl& address) const;
  void show(const Page& page, Move move, int position);
  void moveInHistory(const QUrl& address, Move move);

  HelpFiles files_;
  PageTransfer& transfer_;
  PageDisplay display_;
  PageHistory history_;
  bool busy_ = false;
  QUrl loading_;
};

}  // namespace quorvin
