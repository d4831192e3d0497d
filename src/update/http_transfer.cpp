// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/http_transfer.h"

#include "platform/http_request.h"
#include "texts/texts.h"

#include <algorithm>
#include <utility>

namespace quorvin {
namespace {

constexpr int kOk = 200;

QNetworkRequest requestFor(const QUrl& address) {
  // The reader may be kept away for long, by a search for example, and that is not the server's silence.
  constexpr std::chrono::milliseconds kNoLimit(0);
  QNetworkRequest request = anonymousRequest(address, kNoLimit);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  return request;
}

int statusOf(const QNetworkReply& reply) {
  return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool isRedirect(int status) {
  return status >= 300 && status < 400;
}

FaultNumber faultOfStatus(int status) {
  constexpr int kUnauthorized = 401;
  constexpr int kForbidden = 403;
  constexpr int kNotFound = 404;
  constexpr int kGone = 410;
  switch (status) {
    case kUnauthorized:
    case kForbidden:
      return FaultNumber::PermissionDenied;
    case kNotFound:
    case kGone:
      return FaultNumber::FileNotFound;
    default:
      return FaultNumber::DeviceError;
  }
}

FaultNumber faultOfError(QNetworkReply::NetworkError error) {
  switch (error) {
    case QNetworkReply::InsecureRedirectError:
    case QNetworkReply::ProtocolUnknownError:
      return FaultNumber::PermissionDenied;
    case QNetworkReply::RemoteHostClosedError:
      return FaultNumber::InputPastEnd;
    default:
      return FaultNumber::DeviceError;
  }
}

/// The announced length; nothing when there is none.
std::optional<std::int64_t> announcedLength(const QNetworkReply& reply) {
  bool isNumber = false;
  const std::int64_t length = reply.rawHeader("Content-Length").trimmed().toLongLong(&isNumber);
  if (!isNumber || reply.hasRawHeader("Transfer-Encoding")) return std::nullopt;
  return length;
}

}  // namespace

HttpNetworkTransfer::HttpNetworkTransfer(HttpLimits limits, std::unique_ptr<QNetworkAccessManager> network)
    : limits_(limits), network_(std::move(network)) {
  headerDeadline_.setSingleShot(true);
  connect(&headerDeadline_, &QTimer::timeout, this,
          [this] { fail(FaultNumber::DeviceError, Texts::tr("the server did not answer in time")); });
  silence_.setSingleShot(true);
  silence_.setInterval(limits.silence);
  connect(&silence_, &QTimer::timeout, this, &HttpNetworkTransfer::silent);
}

HttpNetworkTransfer::~HttpNetworkTransfer() {
  dropReply();
}

void HttpNetworkTransfer::execute(const QUrl& address) {
  cancel();
  reply_ = network_->get(requestFor(address));
  reply_->setReadBufferSize(kHttpReadBuffer);
  connect(reply_, &QNetworkReply::metaDataChanged, this, &HttpNetworkTransfer::headersArrived);
  connect(reply_, &QNetworkReply::finished, this, &HttpNetworkTransfer::finished);
  // By way of this object: what still comes from a reply that was dropped must not start the timer.
  connect(reply_, &QNetworkReply::readyRead, this, [this] { silence_.start(); });
  headerDeadline_.start(limits_.headers);
  silence_.start();
}

bool HttpNetworkTransfer::stillExecuting() const {
  return reply_ != nullptr && !hasHeaders_ && !failure_;
}

QString HttpNetworkTransfer::header(const QString& name) const {
  throwIfFailed();
  const QString plainName = name.endsWith(u':') ? name.chopped(1) : name;
  return reply_ == nullptr ? QString() : QString::fromLatin1(reply_->rawHeader(plainName.toLatin1()));
}

bool HttpNetworkTransfer::chunkIsReady(qsizetype size) const {
  if (failure_ || reply_ == nullptr) return true;
  return hasHeaders_ && (reply_->bytesAvailable() >= size || reply_->isFinished());
}

QByteArray HttpNetworkTransfer::chunk(qsizetype size) {
  throwIfFailed();
  if (reply_ == nullptr) return {};
  const QByteArray bytes = reply_->read(size);
  received_ += bytes.size();
  if (!reply_->isFinished()) silence_.start();
  if (received_ > limits_.bytes) fail(FaultNumber::Overflow, Texts::tr("the document is too large"));
  const bool isEnd = bytes.isEmpty() && !failure_;
  if (isEnd && received_ < announcedLength(*reply_).value_or(0)) {
    fail(FaultNumber::InputPastEnd, Texts::tr("the document ended too early"));
  }
  throwIfFailed();
  return bytes;
}

void HttpNetworkTransfer::cancel() {
  dropReply();
  hasHeaders_ = false;
  received_ = 0;
  failure_.reset();
}

/// Redirects come here too; those that are followed end as headers of another answer.
void HttpNetworkTransfer::headersArrived() {
  const int status = statusOf(*reply_);
  if (isRedirect(status)) return;
  headerDeadline_.stop();
  silence_.start();
  if (status == kOk) {
    hasHeaders_ = true;
    return;
  }
  fail(faultOfStatus(status), Texts::tr("the server answered %1").arg(status));
}

/// A server that has sent all that may lie unread is waiting for the reader.
void HttpNetworkTransfer::silent() {
  if (reply_->bytesAvailable() >= kHttpReadBuffer) return silence_.start();
  fail(FaultNumber::DeviceError, Texts::tr("the server fell silent"));
}

void HttpNetworkTransfer::finished() {
  silence_.stop();
  if (failure_) return;
  const int status = statusOf(*reply_);
  if (reply_->error() != QNetworkReply::NoError) {
    const bool isRefusal = status >= 400;
    fail(isRefusal ? faultOfStatus(status) : faultOfError(reply_->error()), reply_->errorString());
  } else if (!hasHeaders_) {
    fail(faultOfStatus(status), Texts::tr("the server answered %1").arg(status));
  }
}

void HttpNetworkTransfer::fail(FaultNumber number, const QString& why) {
  failure_.emplace(number, describe(number) + QStringLiteral(": ") + why);
  dropReply();
}

void HttpNetworkTransfer::dropReply() {
  headerDeadline_.stop();
  silence_.stop();
  if (reply_ == nullptr) return;
  QNetworkReply* reply = std::exchange(reply_, nullptr);
  reply->disconnect(this);
  // Not at once: the reply may be in the middle of a signal to us.
  QMetaObject::invokeMethod(reply, &QNetworkReply::abort, Qt::QueuedConnection);
  reply->deleteLater();
}

void HttpNetworkTransfer::throwIfFailed() const {
  if (failure_) throw RuntimeFault(*failure_);
}

}  // namespace quorvin
