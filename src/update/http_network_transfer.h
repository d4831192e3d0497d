// HTTP and HTTPS over the network.
#pragma once

#include "faults/runtime_fault.h"
#include "update/http_transfer.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <optional>

namespace quorvin {

struct HttpLimits {
  /// Without any data.
  std::chrono::milliseconds silence = std::chrono::seconds(30);
  /// From the request to the last header, redirects included.
  std::chrono::milliseconds headers = std::chrono::seconds(60);
  /// Of a document.
  std::int64_t bytes = 2'147'483'647;
};

/// Follows redirects to the same or a safer scheme, takes no cookies, gives no passwords, and has nothing
/// packed on the way. An answer other than 200, a document shorter than announced and a certificate that
/// cannot be trusted are failures. Where neither length nor end of a document is given, it ends where the
/// connection does: whoever uses the document must be able to tell whether it is whole.
class HttpNetworkTransfer : public QObject, public HttpTransfer {
  Q_OBJECT

 public:
  explicit HttpNetworkTransfer(HttpLimits limits = {}, QObject* parent = nullptr);
  ~HttpNetworkTransfer() override;

  void execute(const QUrl& address) override;
  bool stillExecuting() const override;
  QString header(const QString& name) const override;
  bool chunkIsReady(qsizetype size) const override;
  QByteArray chunk(qsizetype size) override;
  void cancel() override;

 private:
  void headersArrived();
  void finished();
  void fail(FaultNumber number, const QString& why);
  void dropReply();
  void throwIfFailed() const;

  HttpLimits limits_;
  QNetworkAccessManager network_;
  QTimer headerDeadline_;
  /// The manager's; null while there is no transfer.
  QNetworkReply* reply_ = nullptr;
  bool hasHeaders_ = false;
  std::int64_t received_ = 0;
  std::optional<RuntimeFault> failure_;
};

}  // namespace quorvin
