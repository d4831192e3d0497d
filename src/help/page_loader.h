// Going from page to page.
#pragma once

#include "help/help_files.h"
#include "help/page_history.h"
#include "help/page_text.h"
#include "help/page_transfer.h"

#include <QString>
#include <QUrl>

namespace quorvin {

/// The window, as the loader sees it.
class PageLoaderView {
 public:
  virtual ~PageLoaderView() = default;

  /// Shows `page`, from its top or from the fragment of its address on, or at `position` where that is not 0.
  virtual void showPage(const Page& page, int position) = 0;
  /// Goes to the fragment of `address` on the page that is shown.
  virtual void showPlace(const QUrl& address) = 0;
  /// How far down the shown page is being read.
  virtual int position() const = 0;
  /// A page is shown, be it one that tells why there is no other; `address` as addressText writes it.
  virtual void navigationFinished(const QString& address) = 0;
};

/// Brings the pages that the reader asks for. Help pages come at once; those of the web come later, and until
/// then the loader is busy. Each new wish ends the one before. A page that cannot be had is replaced by one
/// that says why.
class PageLoader {
 public:
  /// `transfer` and `view` must outlive the loader.
  PageLoader(const QString& helpFolder, PageTransfer& transfer, PageLoaderView& view);

  const HelpFiles& files() const { return files_; }

  /// Opens what was written into the address box; empty text does nothing.
  void open(const QString& address);
  /// Follows a link of the shown page; `link` may be relative to it.
  void follow(const QUrl& link);
  /// These do nothing where there is no such page.
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
  PageLoaderView& view_;
  PageHistory history_;
  bool busy_ = false;
  QUrl loading_;
};

}  // namespace quorvin
