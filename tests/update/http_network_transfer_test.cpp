// SPDX-License-Identifier: GPL-2.0-or-later

// Transfers from a real server on this machine, well-behaved and not.
#include "update/http_transfer_fixture.h"

#include <QFile>
#include <gmock/gmock.h>

namespace quorvin::test {
namespace {

using testing::AllOf;
using testing::Ge;
using testing::HasSubstr;
using testing::Le;
using testing::Not;

class HttpNetworkTransferTest : public HttpTransferTest {};

/// The answer of a server that has announced 5000 bytes, reported as whole after these.
class ReplyTakenForWhole : public QNetworkReply {
 public:
  ReplyTakenForWhole(QByteArray bytes, QObject* parent) : QNetworkReply(parent), bytes_(std::move(bytes)) {
    setAttribute(QNetworkRequest::HttpStatusCodeAttribute, 200);
    setRawHeader("Content-Length", "5000");
    open(QIODevice::ReadOnly);
    QTimer::singleShot(0, this, [this] {
      Q_EMIT metaDataChanged();
      setFinished(true);
      Q_EMIT finished();
    });
  }
  void abort() override {}
  qint64 bytesAvailable() const override { return bytes_.size() + QNetworkReply::bytesAvailable(); }

 protected:
  qint64 readData(char* data, qint64 most) override {
    const QByteArray part = bytes_.first(std::min<qint64>(most, bytes_.size()));
    bytes_.remove(0, part.size());
    std::copy(part.begin(), part.end(), data);
    return part.size();
  }

 private:
  QByteArray bytes_;
};

class NetworkThatTakesAnyAnswerForWhole : public QNetworkAccessManager {
 public:
  explicit NetworkThatTakesAnyAnswerForWhole(qsizetype size) : size_(size) {}

 protected:
  QNetworkReply* createRequest(Operation, const QNetworkRequest&, QIODevice*) override {
    return new ReplyTakenForWhole(QByteArray(size_, 'x'), this);
  }

 private:
  qsizetype size_;
};

/// More of it has arrived by the time at which it is ended.
class ReplyWithMoreOnTheWay : public QNetworkReply {
 public:
  explicit ReplyWithMoreOnTheWay(QObject* parent) : QNetworkReply(parent) {}
  void abort() override { Q_EMIT readyRead(); }

 protected:
  qint64 readData(char*, qint64) override { return 0; }
};

class NetworkWithMoreOnTheWay : public QNetworkAccessManager {
 protected:
  QNetworkReply* createRequest(Operation, const QNetworkRequest&, QIODevice*) override {
    return new ReplyWithMoreOnTheWay(this);
  }
};

QByteArray bodyOf(qsizetype size) {
  QByteArray body;
  while (body.size() < size) body += QByteArray::number(body.size()) + ' ';
  return body.first(size);
}

TEST_F(HttpNetworkTransferTest, GivesHeadersWithAndWithoutColon) {
  server_.emplace(std::vector{sends(goodAnswer("body"))});
  HttpNetworkTransfer transfer;
  transfer.execute(server_->address());
  EXPECT_TRUE(transfer.stillExecuting());
  ASSERT_TRUE(eventually([&] { return !transfer.stillExecuting(); }));
  EXPECT_EQ(transfer.header(u"Last-Modified:"_qs), u"Mon, 15 Nov 2004 10:20:30 GMT"_qs);
  EXPECT_EQ(transfer.header(u"Content-Length"_qs), u"4"_qs);
  EXPECT_EQ(transfer.header(u"Missing:"_qs), QString());
}

TEST_F(HttpNetworkTransferTest, AsksPlainlyAndTellsNothingPersonal) {
  EXPECT_EQ(get({sends(goodAnswer("body"))}).body, QByteArray("body"));
  ASSERT_EQ(server_->requests.size(), 1U);
  const std::string request = server_->requests[0].toStdString();
  EXPECT_TRUE(request.starts_with("GET /main.zip HTTP/1.1\r\n"));
  EXPECT_THAT(request, HasSubstr("Accept-Encoding: identity\r\n"));
  EXPECT_THAT(request, Not(HasSubstr("Cookie")));
}

TEST_F(HttpNetworkTransferTest, GivesTheBodyInWholeChunks) {
  const QByteArray body = bodyOf(300'000);
  const Outcome outcome = get({sends(goodAnswer(body))});
  EXPECT_EQ(outcome.fault, 0);
  EXPECT_EQ(outcome.body, body);
}

TEST_F(HttpNetworkTransferTest, GivesAChunkedBody) {
  const Outcome outcome =
      get({sends(headersOf("Transfer-Encoding: chunked\r\n") + "5\r\nhello\r\n6\r\n world\r\n0\r\n\r\n")});
  EXPECT_EQ(outcome.fault, 0);
  EXPECT_EQ(outcome.body, QByteArray("hello world"));
}

TEST_F(HttpNetworkTransferTest, GivesALargeBodyToASlowReader) {
  const QByteArray body = bodyOf(5 << 20);
  server_.emplace(std::vector{sends(goodAnswer(body))});
  HttpNetworkTransfer transfer;
  transfer.execute(server_->address());
  ASSERT_TRUE(eventually([&] { return !transfer.stillExecuting(); }));
  QElapsedTimer pause;
  pause.start();
  eventually([&] { return pause.hasExpired(300); });
  QByteArray received;
  while (true) {
    ASSERT_TRUE(eventually([&] { return transfer.chunkIsReady(1024); }));
    const QByteArray chunk = transfer.chunk(1024);
    if (chunk.isEmpty()) break;
    ASSERT_TRUE(chunk.size() == 1024 || received.size() + chunk.size() == body.size());
    received += chunk;
  }
  EXPECT_EQ(received, body);
}

TEST_F(HttpNetworkTransferTest, AReaderThatIsKeptAwayIsNotTheServersSilence) {
  const QByteArray body = bodyOf(3 << 20);
  server_.emplace(std::vector{sends(goodAnswer(body))});
  HttpNetworkTransfer transfer(shortLimits());
  transfer.execute(server_->address());
  ASSERT_TRUE(eventually([&] { return !transfer.stillExecuting(); }));
  QElapsedTimer pause;
  pause.start();
  eventually([&] { return pause.hasExpired(3 * shortLimits().silence.count()); });
  QByteArray received;
  while (true) {
    ASSERT_TRUE(eventually([&] { return transfer.chunkIsReady(1024); }));
    const QByteArray chunk = transfer.chunk(1024);
    if (chunk.isEmpty()) break;
    received += chunk;
  }
  EXPECT_EQ(received, body);
}

TEST_F(HttpNetworkTransferTest, CancelClosesTheConnection) {
  server_.emplace(std::vector{sendsForEver(headersOf("Content-Length: 1000000\r\n"), "x", 5)});
  HttpNetworkTransfer transfer;
  transfer.execute(server_->address());
  ASSERT_TRUE(eventually([&] { return !transfer.stillExecuting(); }));
  transfer.cancel();
  EXPECT_TRUE(eventually([&] { return server_->closedConnections == 1; }));
  EXPECT_EQ(transfer.header(u"Content-Length:"_qs), QString());
}

TEST_F(HttpNetworkTransferTest, WhatArrivesAfterCancelIsNoSilenceLater) {
  HttpLimits limits;
  limits.silence = std::chrono::milliseconds(1);
  HttpNetworkTransfer transfer(limits, std::make_unique<NetworkWithMoreOnTheWay>());
  transfer.execute(QUrl(u"http://host.invalid/main.zip"_qs));
  transfer.cancel();
  bool isLater = false;
  QTimer::singleShot(100, &transfer, [&] { isLater = true; });
  ASSERT_TRUE(eventually([&] { return isLater; }));
  EXPECT_EQ(transfer.header(u"Content-Length"_qs), QString()) << "nothing has failed";
}

TEST_F(HttpNetworkTransferTest, FollowsARedirect) {
  server_.emplace(std::vector{sends(redirectTo("/other.zip")), sends(goodAnswer("body"))});
  HttpNetworkTransfer transfer;
  const Outcome outcome = HttpTransferTest::get(transfer, server_->address());
  EXPECT_EQ(outcome.body, QByteArray("body"));
  EXPECT_TRUE(server_->requests[1].startsWith("GET /other.zip "));
}

TEST_F(HttpNetworkTransferTest, EndsARedirectLoop) {
  EXPECT_EQ(get({sends(redirectTo("/main.zip"))}).fault, 57);
  // Ten redirects are followed. The network library may send a request once more when its connection changes
  // under it, so that the server can see some of the eleven requests twice.
  EXPECT_THAT(server_->requests.size(), AllOf(Ge(11U), Le(22U)));
}

TEST_F(HttpNetworkTransferTest, DoesNotFollowARedirectOutOfTheWeb) {
  for (const QByteArray& address :
       {QByteArray("file:///etc/passwd"), QByteArray("ftp://127.0.0.1/x"), QByteArray("data:,x"),
        QByteArray("qrc:/x"), QByteArray("javascript:x")}) {
    const Outcome outcome = get({sends(redirectTo(address))});
    EXPECT_EQ(outcome.fault, 70) << address.toStdString();
    EXPECT_EQ(outcome.body, QByteArray());
  }
}

TEST_F(HttpNetworkTransferTest, FailsOnARedirectThatLeadsNowhere) {
  EXPECT_EQ(get({sends("HTTP/1.1 302 Found\r\nContent-Length: 0\r\n\r\n")}).fault, 70);
  EXPECT_EQ(get({sends("HTTP/1.1 304 Not Modified\r\n\r\n")}).fault, 57);
}

TEST_F(HttpNetworkTransferTest, EndsARedirectWithABodyThatNeverEnds) {
  const QByteArray headers =
      "HTTP/1.1 302 Found\r\nLocation: /main.zip\r\nContent-Length: 1000000000\r\n\r\n";
  const Outcome outcome = get({sendsForEver(headers, QByteArray(1000, 'x'), 1)}, shortLimits());
  EXPECT_EQ(outcome.fault, 57);
}

TEST_F(HttpNetworkTransferTest, TellsRefusalsByTheirNumber) {
  const auto refusal = [](int status) {
    return sends("HTTP/1.1 " + QByteArray::number(status) + " No\r\nContent-Length: 2\r\n\r\nno");
  };
  EXPECT_EQ(get({refusal(404)}).fault, 53);
  EXPECT_EQ(get({refusal(410)}).fault, 53);
  EXPECT_EQ(get({refusal(403)}).fault, 70);
  EXPECT_EQ(get({refusal(401)}).fault, 70);
  EXPECT_EQ(get({refusal(500)}).fault, 57);
  EXPECT_EQ(get({refusal(204)}).fault, 57);
  EXPECT_EQ(get({refusal(206)}).fault, 57);
}

TEST_F(HttpNetworkTransferTest, DoesNotWaitForTheRestOfAnAnswerThatIsNoDocument) {
  for (const int status : {299, 400, 404, 500}) {
    const QByteArray number = QByteArray::number(status);
    const Outcome outcome =
        get({sendsAndWaits("HTTP/1.1 " + number + " Other\r\nContent-Length: 1000\r\n\r\nthe first of it")});
    EXPECT_TRUE(outcome.description.endsWith(u": the server answered %1"_qs.arg(status)))
        << outcome.description.toStdString();
  }
}

TEST_F(HttpNetworkTransferTest, FailsWithoutAServer) {
  QUrl address;
  {
    const ScriptedWebServer gone({isSilent()});
    address = gone.address();
  }
  HttpNetworkTransfer transfer;
  EXPECT_EQ(HttpTransferTest::get(transfer, address).fault, 57);
}

TEST_F(HttpNetworkTransferTest, FailsOnABodyThatEndsTooEarly) {
  EXPECT_EQ(get({sends(headersOf("Content-Length: 5000\r\n") + QByteArray(2000, 'x'))}).fault, 62);
}

TEST_F(HttpNetworkTransferTest, FailsOnABodyThatEndsTooEarlyThoughTheNetworkTakesItForWhole) {
  const QUrl address(u"http://127.0.0.1/main.zip"_qs);
  HttpNetworkTransfer cut({}, std::make_unique<NetworkThatTakesAnyAnswerForWhole>(4999));
  EXPECT_EQ(HttpTransferTest::get(cut, address).fault, 62);
  HttpNetworkTransfer whole({}, std::make_unique<NetworkThatTakesAnyAnswerForWhole>(5000));
  EXPECT_EQ(HttpTransferTest::get(whole, address).body.size(), 5000);
}

TEST_F(HttpNetworkTransferTest, FailsOnALargeBodyThatEndsTooEarly) {
  const Outcome outcome = get({sends(headersOf("Content-Length: 5000000\r\n") + bodyOf(3'000'000))});
  EXPECT_EQ(outcome.fault, 62);
  EXPECT_LE(outcome.body.size(), 3'000'000);
}

TEST_F(HttpNetworkTransferTest, FailsOnAnAnswerThatIsNone) {
  EXPECT_NE(get({sends("no http at all\r\n\r\n")}).fault, 0);
  EXPECT_NE(get({sends("")}).fault, 0);
  EXPECT_NE(get({sends("HTTP/1.1 200 OK\r\nContent-Le")}).fault, 0);
  EXPECT_NE(get({sends(QByteArray(100'000, '\0'))}).fault, 0);
}

TEST_F(HttpNetworkTransferTest, FailsOnASilentServer) {
  EXPECT_EQ(get({isSilent()}, shortLimits()).fault, 57);
}

TEST_F(HttpNetworkTransferTest, FailsOnHeadersThatDripForEver) {
  EXPECT_EQ(get({sendsForEver("HTTP/1.1 200 OK\r\nX-Long: ", "x", 20)}, shortLimits()).fault, 57);
  EXPECT_EQ(get({sendsForEver("HTTP/1.1 200 OK\r\n", "X-More: x\r\n", 20)}, shortLimits()).fault, 57);
}

TEST_F(HttpNetworkTransferTest, FailsOnABodyThatFallsSilent) {
  EXPECT_EQ(get({sendsAndWaits(headersOf("Content-Length: 5000\r\n") + QByteArray(2000, 'x'))}, shortLimits())
                .fault,
            57);
}

TEST_F(HttpNetworkTransferTest, FailsOnABodyBeyondTheLimit) {
  HttpLimits limits = shortLimits();
  limits.bytes = 100'000;
  const Outcome outcome = get({sendsForEver(headersOf(""), QByteArray(10'000, 'x'))}, limits);
  EXPECT_EQ(outcome.fault, 6);
  EXPECT_LE(outcome.body.size(), 100'000);
}

TEST_F(HttpNetworkTransferTest, TakesABodyOfExactlyTheLimit) {
  HttpLimits limits = shortLimits();
  limits.bytes = 4;
  EXPECT_EQ(get({sends(goodAnswer("body"))}, limits).body, QByteArray("body"));
  EXPECT_EQ(get({sends(goodAnswer("body!"))}, limits).fault, 6);
}

TEST_F(HttpNetworkTransferTest, GoesOnAfterAnAnswerThatFailed) {
  server_.emplace(
      std::vector{sends("HTTP/1.1 404 No\r\nContent-Length: 2\r\n\r\nno"), sends(goodAnswer("body"))});
  HttpNetworkTransfer transfer;
  EXPECT_EQ(HttpTransferTest::get(transfer, server_->address()).fault, 53);
  EXPECT_EQ(HttpTransferTest::get(transfer, server_->address()).body, QByteArray("body"));
}

TEST_F(HttpNetworkTransferTest, EndsWithTheConnectionWhenNoLengthIsTold) {
  EXPECT_EQ(get({sends(headersOf("") + "all there is")}).body, QByteArray("all there is"));
  // Nothing tells a reset from an end: who uses the document must look at it.
  const Outcome reset = get({sendsAndResets(headersOf("") + "half of it")});
  EXPECT_TRUE(reset.fault != 0 || reset.body == "half of it");
}

TEST_F(HttpNetworkTransferTest, NeverGivesMoreThanWasSentInBadChunks) {
  for (const char* body : {"zz\r\nhello\r\n0\r\n\r\n", "5\r\nhel", "-5\r\nhello\r\n0\r\n\r\n",
                           "FFFFFFFFFFFFFFFFFF\r\nhello", "5\r\nhelloXX5\r\nworld\r\n0\r\n\r\n", "5"}) {
    const Outcome outcome = get({sends(headersOf("Transfer-Encoding: chunked\r\n") + body)}, shortLimits());
    EXPECT_LE(outcome.body.size(), 40) << body;
  }
}

TEST_F(HttpNetworkTransferTest, DoesNotUnpackABody) {
  const Outcome outcome =
      get({sends(headersOf("Content-Encoding: gzip\r\nContent-Length: 9\r\n") + "not gzip!")});
  EXPECT_EQ(outcome.body, QByteArray("not gzip!"));
}

}  // namespace
}  // namespace quorvin::test
