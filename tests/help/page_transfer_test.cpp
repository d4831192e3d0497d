// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/page_transfer.h"

#include "help/loopback_server.h"
#include "support/eventually.h"
#include "support/qt_printing.h"

#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace quorvin::test {
namespace {

using std::chrono::milliseconds;

class NetworkPageTransferTest : public testing::Test {
 protected:
  /// Fetches from a server that answers with `answer`, and waits for the result.
  TransferResult fetch(LoopbackServer::Answer answer, const PageTransferLimits& limits = {}) {
    LoopbackServer server(std::move(answer));
    return fetch(server.address(), limits);
  }
  static TransferResult fetch(const QUrl& address, const PageTransferLimits& limits = {}) {
    NetworkPageTransfer transfer(limits);
    std::optional<TransferResult> result;
    transfer.start(address, [&](const TransferResult& came) { result = came; });
    EXPECT_FALSE(result.has_value()) << "the result must not come before start() returns";
    EXPECT_TRUE(eventually([&] { return result.has_value(); }));
    return result.value_or(TransferResult{});
  }
};

TEST_F(NetworkPageTransferTest, BringsThePageAndItsType) {
  const TransferResult result = fetch(sending(htmlAnswer("<h1>Hello</h1>")));
  EXPECT_EQ(result.failure, QString());
  EXPECT_EQ(result.body, "<h1>Hello</h1>");
  EXPECT_EQ(result.contentType, "text/html; charset=utf-8");
}

TEST_F(NetworkPageTransferTest, AsksForPlainBytesAndSendsNoCookie) {
  QByteArray seen;
  fetch([&seen](QTcpSocket& connection, const QByteArray& request) {
    seen = request;
    sending(htmlAnswer("x"))(connection, request);
  });
  EXPECT_TRUE(seen.contains("Accept-Encoding: identity\r\n")) << seen.toStdString();
  EXPECT_FALSE(seen.contains("Cookie")) << seen.toStdString();
}

TEST_F(NetworkPageTransferTest, FollowsARedirectAndTellsTheNewAddress) {
  LoopbackServer target(sending(htmlAnswer("there")));
  const QByteArray redirect = "HTTP/1.1 302 Found\r\nLocation: " + target.address().toEncoded() +
                              "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
  const TransferResult result = fetch(sending(redirect));
  EXPECT_EQ(result.body, "there");
  EXPECT_EQ(result.address, target.address());
}

TEST_F(NetworkPageTransferTest, ARedirectToAFileIsRefused) {
  const TransferResult result =
      fetch(sending("HTTP/1.1 302 Found\r\nLocation: file:///etc/passwd\r\nContent-Length: 0\r\nConnection: "
                    "close\r\n\r\n"));
  EXPECT_NE(result.failure, QString());
  EXPECT_EQ(result.body, "");
}

TEST_F(NetworkPageTransferTest, ALoopOfRedirectsEnds) {
  const TransferResult result = fetch(
      sending("HTTP/1.1 302 Found\r\nLocation: /page\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"));
  EXPECT_NE(result.failure, QString());
}

TEST_F(NetworkPageTransferTest, AStatusOtherThan200IsTold) {
  EXPECT_EQ(fetch(sending("HTTP/1.1 404 Not Found\r\nContent-Type: text/html\r\nContent-Length: 1\r\n"
                          "Connection: close\r\n\r\nx"))
                .failure,
            QStringLiteral("The server answered: 404 Not Found."));
}

TEST_F(NetworkPageTransferTest, AnythingButTextIsRefusedBeforeItHasCome) {
  const TransferResult result = fetch([](QTcpSocket& connection, const QByteArray&) {
    connection.write("HTTP/1.1 200 OK\r\nContent-Type: video/mp4\r\nConnection: close\r\n\r\nxxxx");
  });
  EXPECT_EQ(result.failure, QStringLiteral("The server sent video/mp4; only text pages can be shown here."));
}

TEST_F(NetworkPageTransferTest, APageBeyondTheSizeLimitIsRefused) {
  PageTransferLimits limits;
  limits.bytes = 1024;
  EXPECT_EQ(fetch(sending(htmlAnswer(QByteArray(1024, 'x'))), limits).body.size(), 1024);
  EXPECT_EQ(fetch(sending(htmlAnswer(QByteArray(1025, 'x'))), limits).failure,
            QStringLiteral("The page is larger than 1 KiB."));
}

TEST_F(NetworkPageTransferTest, AServerThatNeverEndsIsEndedByTheDeadline) {
  PageTransferLimits limits;
  limits.whole = milliseconds(200);
  EXPECT_EQ(fetch(sendingForEver(), limits).failure, QStringLiteral("The page took too long to load."));
}

TEST_F(NetworkPageTransferTest, ASilentServerIsEndedByTheTimeout) {
  PageTransferLimits limits;
  limits.silence = milliseconds(200);
  EXPECT_EQ(fetch(silence(), limits).failure, QStringLiteral("The server stopped sending data."));
}

TEST_F(NetworkPageTransferTest, ACutPageIsAFailure) {
  const TransferResult result =
      fetch(sending("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: 1000\r\n\r\nshort"));
  EXPECT_NE(result.failure, QString());
}

TEST_F(NetworkPageTransferTest, NoServerIsAFailure) {
  auto server = std::make_unique<LoopbackServer>(silence());
  const QUrl gone = server->address();
  server.reset();
  EXPECT_NE(fetch(gone).failure, QString());
}

TEST_F(NetworkPageTransferTest, StopEndsTheConnectionAndNothingIsDelivered) {
  LoopbackServer server(sendingForEver());
  NetworkPageTransfer transfer;
  bool delivered = false;
  transfer.start(server.address(), [&](const TransferResult&) { delivered = true; });
  ASSERT_TRUE(eventually([&] { return server.requests == 1; }));
  transfer.stop();
  EXPECT_TRUE(eventually([&] { return server.closed == 1; }));
  QTest::qWait(50);
  EXPECT_FALSE(delivered);
}

TEST_F(NetworkPageTransferTest, ASecondStartEndsTheFirst) {
  LoopbackServer endless(sendingForEver());
  LoopbackServer quick(sending(htmlAnswer("quick")));
  NetworkPageTransfer transfer;
  QByteArray body;
  transfer.start(endless.address(), [&](const TransferResult&) { body = "endless"; });
  ASSERT_TRUE(eventually([&] { return endless.requests == 1; }));
  transfer.start(quick.address(), [&](const TransferResult& result) { body = result.body; });
  EXPECT_TRUE(eventually([&] { return !body.isEmpty(); }));
  EXPECT_EQ(body, "quick");
  EXPECT_TRUE(eventually([&] { return endless.closed == 1; }));
}

}  // namespace
}  // namespace quorvin::test
