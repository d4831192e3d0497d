// SPDX-License-Identifier: GPL-2.0-or-later

// Fetching the pages of the web.
#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>

class QNetworkReply;

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

  /// Starts to fetch `address`, an http or https one, and returns at once; a transfer that is still going on
  /// is stopped. `done` is called once, later, from the event loop, unless the transfer is stopped before.
  virtual void start(const QUrl& address, Done done) = 0;

  /// Ends the transfer, if there is one; its `done` is not called any more.
  virtual void stop() = 0;
};

/// A page is refused when it goes beyond these.
struct PageTransferLimits {
  qint64 bytes = qint64{2} << 20;
  /// Without any data.
  std::chrono::milliseconds silence = std::chrono::seconds(15);
  /// From the first connection to the last byte.
  std::chrono::milliseconds whole = std::chrono::seconds(60);
};

/// Fetches HTML and plain text by http and https. It follows redirects to the same or a safer scheme, takes
/// no cookies and gives no passwords.
class NetworkPageTransfer : public QObject, public PageTransfer {
  Q_OBJECT

 public:
  explicit NetworkPageTransfer(PageTransferLimits limits = {}, QObject* parent = nullptr);
  ~NetworkPageTransfer() override;

  void start(const QUrl& address, Done done) override;
  void stop() override;

 private:
  void headersArrived();
  void dataArrived();
  void finished();
  void fail(const QString& why);
  void deliver(const TransferResult& result);

  PageTransferLimits limits_;
  /// Made for the first page: it looks for plug-ins, which no start of the program is to wait for.
  std::optional<QNetworkAccessManager> network_;
  QTimer deadline_;
  /// The manager's; null while nothing is being fetched.
  QNetworkReply* reply_ = nullptr;
  QByteArray body_;
  Done done_;
};

}  // namespace quorvin
