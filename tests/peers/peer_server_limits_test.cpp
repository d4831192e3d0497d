// What a server lets callers take up.
#include "peers/peer_caller.h"
#include "peers/server/peer_server.h"
#include "support/descriptors.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvin::test {

namespace {

class PeerServerLimitsTest : public testing::Test {
 protected:
  PeerServer& start(const PeerServerLimits& limits = {}) {
    server_ = std::make_unique<PeerServer>(program_.state, QLocale::c(), limits);
    if (!server_->start(0)) throw std::runtime_error("no port could be opened");
    return *server_;
  }
  void addLargeSource() { program_.addSource(QStringLiteral("A"), QByteArray(20000000, 'x')); }

  PeerProgram program_;
  std::unique_ptr<PeerServer> server_;
};

using Callers = std::vector<std::unique_ptr<PeerCaller>>;

TEST_F(PeerServerLimitsTest, ServesSixtyFourAndTheNextOneWhenThereIsRoom) {
  PeerServer& server = start();
  Callers callers;
  for (int i = 0; i < 64; ++i) callers.push_back(std::make_unique<PeerCaller>(server.port()));
  for (const auto& caller : callers) EXPECT_EQ(caller->ask("Connecting from: x", 3), QByteArray("OK:"));
  EXPECT_EQ(server.connectionCount(), 64);
  PeerCaller late(server.port());
  late.send("Connecting from: x");
  EXPECT_EQ(late.receiveForAWhile(), QByteArray());
  EXPECT_EQ(server.connectionCount(), 64);
  EXPECT_EQ(server.ServConnCount(), 64);
  callers.pop_back();
  EXPECT_EQ(late.receive(3), QByteArray("OK:"));
  EXPECT_EQ(server.connectionCount(), 64);
}

TEST_F(PeerServerLimitsTest, AMessageOf64KibibytesIsAnsweredAndALongerOneEndsTheConnection) {
  PeerServer& server = start();
  PeerCaller caller(server.port());
  // While the server does not read, the pieces become one message.
  caller.send("x:" + QByteArray(65534, 'x'));
  EXPECT_EQ(caller.receive(3).left(3), QByteArray("NA:"));
  PeerCaller other(server.port());
  other.send("x:" + QByteArray(65535, 'x'));
  EXPECT_TRUE(other.waitForClose());
  EXPECT_TRUE(caller.isConnected());
}

TEST_F(PeerServerLimitsTest, AnIdleConnectionIsClosed) {
  PeerServerLimits limits;
  limits.idle = std::chrono::milliseconds(300);
  PeerServer& server = start(limits);
  PeerCaller idle(server.port());
  PeerCaller busy(server.port());
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(busy.ask("Connecting from: x", 3), QByteArray("OK:"));
    QTest::qWait(100);
  }
  EXPECT_TRUE(idle.waitForClose());
  EXPECT_TRUE(busy.isConnected());
  EXPECT_TRUE(busy.waitForClose());
}

TEST_F(PeerServerLimitsTest, TenMinutesAreTheUsualIdleTime) {
  EXPECT_EQ(PeerServerLimits{}.idle, std::chrono::minutes(10));
  EXPECT_EQ(PeerServerLimits{}.connections, 64);
  EXPECT_EQ(PeerServerLimits{}.messageBytes, 65536);
}

TEST_F(PeerServerLimitsTest, AReaderThatDoesNotReadIsClosedWhenIdle) {
  addLargeSource();
  PeerServerLimits limits;
  limits.idle = std::chrono::milliseconds(300);
  PeerServer& server = start(limits);
  PeerCaller caller(server.port());
  caller.socket().setReadBufferSize(1);
  caller.send("GetList: A");
  EXPECT_TRUE(eventually([&] { return server.connectionCount() == 0; }));
}

TEST_F(PeerServerLimitsTest, ASlowReaderGetsEverything) {
  addLargeSource();
  PeerServer& server = start();
  PeerCaller caller(server.port());
  caller.socket().setReadBufferSize(100000);
  caller.send("GetList: A");
  qint64 count = 0;
  while (count < 20000011) {
    ASSERT_TRUE(eventually([&] { return caller.socket().bytesAvailable() > 0; }));
    count += caller.socket().readAll().size();
  }
  EXPECT_EQ(count, 20000011);
}

TEST_F(PeerServerLimitsTest, TooManyMessagesThatWaitEndTheConnection) {
  addLargeSource();
  PeerServerLimits limits;
  limits.waitingMessages = 5;
  PeerServer& server = start(limits);
  PeerCaller caller(server.port());
  caller.socket().setReadBufferSize(1);
  caller.send("GetList: A");
  for (int i = 0; i < 10 && server.connectionCount() < 2; ++i) {
    QTest::qWait(20);
    caller.send("Connecting from: x");
  }
  EXPECT_TRUE(eventually([&] { return server.connectionCount() == 0; }));
}

TEST_F(PeerServerLimitsTest, AcceptsAgainAfterTheDescriptorsHadRunOut) {
  PeerServerLimits limits;
  limits.acceptPause = std::chrono::milliseconds(100);
  PeerServer& server = start(limits);
  PeerCaller first(server.port());
  EXPECT_EQ(first.ask("Connecting from: x", 3), QByteArray("OK:"));
  QTcpSocket waiting;
  {
    const FewDescriptors few(nextDescriptor() + 1);
    waiting.connectToHost(QHostAddress(QHostAddress::LocalHost), server.port());
    ASSERT_TRUE(eventually([&] { return waiting.state() == QAbstractSocket::ConnectedState; }));
    waiting.write("Connecting from: x");
    QTest::qWait(300);
    EXPECT_EQ(server.connectionCount(), 1);
    EXPECT_EQ(first.ask("Connecting from: x", 3), QByteArray("OK:"));
  }
  ASSERT_TRUE(eventually([&] { return waiting.bytesAvailable() == 3; }));
  EXPECT_EQ(server.connectionCount(), 2);
}

}  // namespace

}  // namespace quorvin::test
