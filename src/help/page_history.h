// SPDX-License-Identifier: GPL-2.0-or-later

// Where the reader has been: the pages behind and ahead, and the addresses that the address box offers.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstddef>
#include <vector>

namespace quorvin {

/// A page, and how far down it was being read, in whatever unit the window measures that.
struct VisitedPage {
  QUrl address;
  int position = 0;
};

/// Where the reader is in the line of visited pages. It moves only when a page has come, so that a stopped
/// load leaves everything as it was.
class PageHistory {
 public:
  bool isEmpty() const { return pages_.empty(); }
  bool canGoBack() const { return current_ > 0 && !isEmpty(); }
  bool canGoForward() const { return current_ + 1 < pages_.size(); }

  /// Each needs that there is such a page.
  const VisitedPage& current() const { return pages_[current_]; }
  const VisitedPage& behind() const { return pages_[current_ - 1]; }
  const VisitedPage& ahead() const { return pages_[current_ + 1]; }

  /// Remembers how far down the current page is being read; nothing happens without one.
  void keepPosition(int position);

  /// Makes `address` the current page. What was ahead is forgotten.
  void visit(const QUrl& address);
  /// The page may report another address than the one that was asked for; `address` is the one to keep.
  void moveBack(const QUrl& address);
  void moveForward(const QUrl& address);
  void stay(const QUrl& address);

  void clear();

 private:
  std::vector<VisitedPage> pages_;
  std::size_t current_ = 0;
};

/// Visited addresses, newest first, each once.
class AddressList {
 public:
  /// Puts `address` first; where it stood before it is taken out.
  void visit(const QString& address);
  void clear() { addresses_.clear(); }

  const QStringList& addresses() const { return addresses_; }

 private:
  QStringList addresses_;
};

}  // namespace quorvin
