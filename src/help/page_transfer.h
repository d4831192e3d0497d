// Fetching a page of the web, without knowing how.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>

namespace quorvin {

/// What came of a transfer.
struct TransferResult {
  /// The address that the page has after redirects.
  QUrl address;
  QByteArray body;
  /// The header's value, such as "text/html; charset=utf-8".
  QByteArray contentType;
  /// Why there is no page, as a sentence for the reader; empty when there is one.
  QString failure;
};

/// Fetches one page at a time.
class PageTransfer {
 public:
  using Done = std::function<void(const TransferResult&)>;

  virtual ~PageTransfer() = default;

  /// Begins to fetch `address`, an http or https one, and returns at once; a transfer that is still going on
  /// is stopped. `done` is called once, later, from the event loop, unless the transfer is stopped before.
  virtual void start(const QUrl& address, Done done) = 0;

  /// Ends the transfer, if there is one; its `done` is not called any more.
  virtual void stop() = 0;
};

}  // namespace quorvin
