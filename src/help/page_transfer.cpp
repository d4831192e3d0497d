// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/page_transfer.h"

#include "help/page.h"
#include "platform/http_request.h"
#include "texts/texts.h"

#include <QLocale>
#include <QNetworkReply>

#include <utility>

namespace quorvin {

namespace {

QNetworkRequest requestFor(const QUrl& address, std::chrono::milliseconds silence) {
  QNetworkRequest request = anonymousRequest(address, silence);
  request.setRawHeader("Accept", "text/html, text/plain;q=0.9");
  return request;
}

QString statusText(const QNetworkReply& reply) {
  const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const QString reason = reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
  return Texts::tr("The server answered: %1 %2").arg(status).arg(reason).trimmed() + u'.';
}

QString failureOf(const QNetworkReply& reply) {
  const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (status >= 400) return statusText(reply);
  if (reply.error() == QNetworkReply::OperationCanceledError) {
    return Texts::tr("The server stopped sending data.");
  }
  if (reply.error() != QNetworkReply::NoError) return reply.errorString() + u'.';
  return status == 200 ? QString() : statusText(reply);
}

}  // namespace

NetworkPageTransfer::NetworkPageTransfer(PageTransferLimits limits, QObject* parent)
    : QObject(parent), limits_(limits) {
  deadline_.setSingleShot(true);
  connect(&deadline_, &QTimer::timeout, this, [this] { fail(Texts::tr("The page took too long to load.")); });
}

NetworkPageTransfer::~NetworkPageTransfer() {
  stop();
}

void NetworkPageTransfer::start(const QUrl& address, Done done) {
  stop();
  done_ = std::move(done);
  if (!network_) network_.emplace();
  reply_ = network_->get(requestFor(address, limits_.silence));
  reply_->setReadBufferSize(kHttpReadBuffer);
  connect(reply_, &QNetworkReply::metaDataChanged, this, &NetworkPageTransfer::headersArrived);
  connect(reply_, &QNetworkReply::readyRead, this, &NetworkPageTransfer::dataArrived);
  connect(reply_, &QNetworkReply::finished, this, &NetworkPageTransfer::finished);
  deadline_.start(limits_.whole);
}

void NetworkPageTransfer::stop() {
  deadline_.stop();
  done_ = {};
  body_.clear();
  if (!reply_) return;
  QNetworkReply* reply = std::exchange(reply_, nullptr);
  reply->disconnect(this);
  // Not at once: this may be the answer to a signal of the reply itself, which is still at work then.
  QTimer::singleShot(0, reply, [reply] {
    reply->abort();
    reply->deleteLater();
  });
}

/// Anything but a page is refused before its data has come: it may be a film, or a stream without an end.
void NetworkPageTransfer::headersArrived() {
  if (!failureOf(*reply_).isEmpty()) return;
  const QByteArray type = reply_->rawHeader("Content-Type");
  if (pageKind(type) != PageKind::Unknown) return;
  const QString named = type.isEmpty() ? Texts::tr("data of an unknown type") : QString::fromLatin1(type);
  fail(Texts::tr("The server sent %1; only text pages can be shown here.").arg(named));
}

void NetworkPageTransfer::dataArrived() {
  body_ += reply_->readAll();
  if (body_.size() <= limits_.bytes) return;
  fail(Texts::tr("The page is larger than %1.").arg(QLocale::c().formattedDataSize(limits_.bytes, 0)));
}

void NetworkPageTransfer::finished() {
  const QString failure = failureOf(*reply_);
  if (!failure.isEmpty()) {
    fail(failure);
    return;
  }
  const QNetworkReply* reply = reply_;
  dataArrived();
  if (reply_ != reply) return;
  deliver({reply->url(), body_, reply->rawHeader("Content-Type"), {}});
}

void NetworkPageTransfer::fail(const QString& why) {
  deliver({reply_->url(), {}, {}, why});
}

void NetworkPageTransfer::deliver(const TransferResult& result) {
  const Done done = std::move(done_);
  stop();
  if (done) done(result);
}

}  // namespace quorvin
