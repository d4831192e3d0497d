// Fetching pages over HTTP.
#pragma once

#include "help/page_transfer.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>

#include <chrono>

class QNetworkReply;

namespace quorvin {

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
  QNetworkAccessManager network_;
  QTimer deadline_;
  /// The manager's; null while nothing is being fetched.
  QNetworkReply* reply_ = nullptr;
  QByteArray body_;
  Done done_;
};

}  // namespace quorvin
