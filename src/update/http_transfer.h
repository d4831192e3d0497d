// SPDX-License-Identifier: GPL-2.0-or-later

// Getting a document by HTTP.
#pragma once

#include "faults/runtime_fault.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

namespace quorvin {

/// One transfer at a time: it is started, polled while window events run, and read in chunks. All calls
/// return at once.
class HttpTransfer {
 public:
  virtual ~HttpTransfer() = default;

  /// Asks for the document at `address`, with GET. A transfer that is still going on is cancelled.
  virtual void execute(const QUrl& address) = 0;

  /// True until the answer's headers have arrived, or the transfer has failed.
  virtual bool stillExecuting() const = 0;

  /// The value of the answer's header `name`, which may be written with a colon at its end; empty when the
  /// answer has no such header. Throws RuntimeFault when the transfer has failed.
  virtual QString header(const QString& name) const = 0;

  /// Whether chunk() would give `size` bytes, or the rest, or would throw.
  virtual bool chunkIsReady(qsizetype size) const = 0;

  /// The next `size` bytes of the document, fewer only at its end and none behind it. To be called when
  /// chunkIsReady(). Throws RuntimeFault when the transfer has failed: 53 for a document that the server does
  /// not have, 62 for one that ended too early, 6 for one of more than 2,147,483,647 bytes, 70 for an answer
  /// that forbids it and for a redirect that may not be followed, 57 for anything else.
  virtual QByteArray chunk(qsizetype size) = 0;

  /// Ends the transfer; nothing more is received. Does nothing when there is none.
  virtual void cancel() = 0;
};

struct HttpLimits {
  /// Without any data, though the reader has taken what came before.
  std::chrono::milliseconds silence = std::chrono::seconds(30);
  /// From the request to the last header, redirects included.
  std::chrono::milliseconds headers = std::chrono::seconds(60);
  /// Of a document.
  std::int64_t bytes = 2'147'483'647;
};

/// HTTP and HTTPS over the network. Follows redirects to the same or a safer scheme, takes no cookies, gives
/// no passwords, and has nothing packed on the way. An answer other than 200, a document shorter than
/// announced and a certificate that cannot be trusted are failures. Where neither length nor end of a
/// document is announced, it ends where the connection does: whoever uses the document must be able to tell
/// whether it is whole.
class HttpNetworkTransfer : public QObject, public HttpTransfer {
  Q_OBJECT

 public:
  /// What `network` says of a document is not trusted either: Qt takes some broken answers for whole.
  explicit HttpNetworkTransfer(HttpLimits limits = {}, std::unique_ptr<QNetworkAccessManager> network =
                                                           std::make_unique<QNetworkAccessManager>());
  ~HttpNetworkTransfer() override;

  void execute(const QUrl& address) override;
  bool stillExecuting() const override;
  QString header(const QString& name) const override;
  bool chunkIsReady(qsizetype size) const override;
  QByteArray chunk(qsizetype size) override;
  void cancel() override;

 private:
  void headersArrived();
  void silent();
  void finished();
  void fail(FaultNumber number, const QString& why);
  void dropReply();
  void throwIfFailed() const;

  HttpLimits limits_;
  std::unique_ptr<QNetworkAccessManager> network_;
  QTimer headerDeadline_;
  QTimer silence_;
  /// The manager's; null while there is no transfer.
  QNetworkReply* reply_ = nullptr;
  bool hasHeaders_ = false;
  std::int64_t received_ = 0;
  std::optional<RuntimeFault> failure_;
};

}  // namespace quorvin
