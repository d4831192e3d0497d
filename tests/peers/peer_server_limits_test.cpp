// SPDX-License-Identifier: GPL-2.0-or-later

// What a server lets callers take up.
#include "peers/peer_caller.h"
#include "peers/server/peer_server.h"
#include "support/descriptors.h"
#include "support/timer_tick.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace quorvin::test {

namespace {

using Callers = std::vector<std::unique_ptr<PeerCaller>>;

/// One of this machine's many addresses.
QHostAddress loopback(int number) {
  return QHostAddress(QStringLiteral("127.0.0.%1").arg(number));
}

class PeerServerLimitsTest : public testing::Test {
 protected:
  PeerServer& start(const PeerServerLimits& limits = {}) {
    server_ = std::make_unique<PeerServer>(program_.state, QLocale::c(), limits);
    if (!server_->start(0)) throw std::runtime_error("no port could be opened");
    return *server_;
  }
  void addLargeSource() { program_.addSource(QStringLiteral("A"), QByteArray(20000000, 'x')); }

  /// Eight callers from each of these addresses.
  Callers callersFrom(const std::vector<int>& numbers) {
    Callers callers;
    for (const int number : numbers) {
      for (int i = 0; i < 8; ++i) {
        callers.push_back(std::make_unique<PeerCaller>(server_->port(), loopback(number)));
      }
    }
    EXPECT_EVENTUALLY(server_->connectionCount() == static_cast<int>(callers.size()));
    return callers;
  }

  PeerProgram program_;
  std::unique_ptr<PeerServer> server_;
};

TEST_F(PeerServerLimitsTest, TheNinthCallerOfAnAddressTakesThePlaceOfTheLongestIdle) {
  PeerServer& server = start();
  Callers callers = callersFrom({1});
  PeerCaller elsewhere(server.port(), loopback(2));
  EXPECT_EQ(elsewhere.ask("Connecting from: x", 3), QByteArray("OK:"));
  for (const auto& caller : callers) EXPECT_EQ(caller->ask("Connecting from: x", 3), QByteArray("OK:"));
  // The first has said something since, and so the second has been idle for longest.
  EXPECT_EQ(callers[0]->ask("Connecting from: x", 3), QByteArray("OK:"));
  PeerCaller ninth(server.port(), loopback(1));
  EXPECT_EQ(ninth.ask("Connecting from: x", 3), QByteArray("OK:"));
  EXPECT_TRUE(callers[1]->waitForClose());
  EXPECT_EQ(server.connectionCount(), 9);
  callers.erase(callers.begin() + 1);
  for (const auto& caller : callers) EXPECT_EQ(caller->ask("Connecting from: x", 3), QByteArray("OK:"));
  EXPECT_EQ(elsewhere.ask("Connecting from: x", 3), QByteArray("OK:"));
}

TEST_F(PeerServerLimitsTest, TheSixtyFifthCallerTakesThePlaceOfTheLongestIdle) {
  PeerServer& server = start();
  Callers callers = callersFrom({1, 2, 3, 4, 5, 6, 7, 8});
  EXPECT_EQ(server.connectionCount(), 64);
  for (const auto& caller : callers) EXPECT_EQ(caller->ask("Connecting from: x", 3), QByteArray("OK:"));
  EXPECT_EQ(callers[0]->ask("Connecting from: x", 3), QByteArray("OK:"));
  PeerCaller late(server.port(), loopback(9));
  EXPECT_EQ(late.ask("Connecting from: x", 3), QByteArray("OK:"));
  EXPECT_TRUE(callers[1]->waitForClose());
  EXPECT_EQ(server.connectionCount(), 64);
  EXPECT_EQ(server.ServConnCount(), 65);
  callers.erase(callers.begin() + 1);
  for (const auto& caller : callers) EXPECT_EQ(caller->ask("Connecting from: x", 3), QByteArray("OK:"));
}

TEST_F(PeerServerLimitsTest, AcceptsOneCallerInATurnOfTheEventLoop) {
  const PeerServer& server = start();
  std::vector<std::unique_ptr<QTcpSocket>> callers;
  for (int i = 0; i < 8; ++i) {
    callers.push_back(std::make_unique<QTcpSocket>());
    callers.back()->connectToHost(QHostAddress(QHostAddress::LocalHost), server.port());
  }
  std::int32_t before = 0;
  std::int32_t most = 0;
  ASSERT_EVENTUALLY([&] {
    most = std::max(most, server.ServConnCount() - before);
    before = server.ServConnCount();
    return before == 8;
  }());
  EXPECT_EQ(most, 1);
}

TEST_F(PeerServerLimitsTest, AnArchiveThatIsTakenIsNotCutOffByNewCallers) {
  addLargeSource();
  PeerServer& server = start();
  PeerCaller getting(server.port());
  getting.socket().setReadBufferSize(100000);
  getting.send("GetList: A");
  Callers callers;
  qint64 count = 0;
  while (count < 20000011) {
    ASSERT_EVENTUALLY(getting.socket().bytesAvailable() > 0);
    count += getting.socket().readAll().size();
    if (callers.size() < 30) callers.push_back(std::make_unique<PeerCaller>(server.port()));
  }
  EXPECT_EQ(count, 20000011);
  EXPECT_EQ(callers.size(), 30U);
  EXPECT_EQ(server.connectionCount(), 8);
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
  limits.idle = std::chrono::milliseconds(30);
  PeerCaller idle(start(limits).port());
  EXPECT_TRUE(idle.waitForClose());
}

TEST_F(PeerServerLimitsTest, EachMessageStartsTheIdleTimeAgain) {
  PeerServer& server = start();
  PeerCaller caller(server.port());
  EXPECT_EQ(caller.ask("Connecting from: x", 3), QByteArray("OK:"));
  QTimer& idle = timerOf(server, QStringLiteral("idle"));
  const RestartWatch watch(idle);
  EXPECT_FALSE(watch.hasRestarted());
  EXPECT_EQ(caller.ask("Connecting from: x", 3), QByteArray("OK:"));
  EXPECT_TRUE(watch.hasRestarted());
  EXPECT_EQ(server.connectionCount(), 1);
  tick(idle);
  EXPECT_EQ(server.connectionCount(), 0);
  EXPECT_TRUE(caller.waitForClose());
}

TEST_F(PeerServerLimitsTest, TenMinutesAreTheUsualIdleTime) {
  EXPECT_EQ(PeerServerLimits{}.idle, std::chrono::minutes(10));
  EXPECT_EQ(PeerServerLimits{}.connections, 64);
  EXPECT_EQ(PeerServerLimits{}.connectionsOfAddress, 8);
  EXPECT_EQ(PeerServerLimits{}.messageBytes, 65536);
}

TEST_F(PeerServerLimitsTest, AReaderThatDoesNotReadIsClosedWhenIdle) {
  addLargeSource();
  PeerServerLimits limits;
  limits.idle = std::chrono::milliseconds(30);
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

TEST_F(PeerServerLimitsTest, AsManyMessagesMayWaitAsTheLimitSaysAndOneMoreEndsTheConnection) {
  addLargeSource();
  PeerServerLimits limits;
  limits.waitingMessages = 5;
  PeerServer& server = start(limits);
  PeerCaller caller(server.port());
  caller.socket().setReadBufferSize(1);
  caller.sendAlone("GetList: A");
  for (int i = 0; i < 5; ++i) caller.sendAlone("Connecting from: x");
  EXPECT_EQ(server.connectionCount(), 1);
  caller.sendAlone("Connecting from: x");
  EXPECT_EQ(server.connectionCount(), 0);
}

TEST_F(PeerServerLimitsTest, TooManyMessagesThatWaitEndTheConnection) {
  addLargeSource();
  PeerServerLimits limits;
  limits.waitingMessages = 5;
  PeerServer& server = start(limits);
  PeerCaller caller(server.port());
  caller.socket().setReadBufferSize(1);
  caller.sendAlone("GetList: A");
  for (int i = 0; i < 10; ++i) caller.sendAlone("Connecting from: x");
  EXPECT_TRUE(eventually([&] { return server.connectionCount() == 0; }));
}

TEST_F(PeerServerLimitsTest, AcceptsAgainAfterTheDescriptorsHadRunOut) {
  PeerServerLimits limits;
  limits.acceptPause = std::chrono::milliseconds(1);
  PeerServer& server = start(limits);
  PeerCaller first(server.port());
  EXPECT_EQ(first.ask("Connecting from: x", 3), QByteArray("OK:"));
  QTcpSocket waiting;
  {
    const FewDescriptors few(nextDescriptor() + 1);
    waiting.connectToHost(QHostAddress(QHostAddress::LocalHost), server.port());
    ASSERT_TRUE(eventually([&] { return waiting.state() == QAbstractSocket::ConnectedState; }));
    waiting.write("Connecting from: x");
    // Many turns of the event loop, in which it would be accepted.
    for (int i = 0; i < 20; ++i) EXPECT_EQ(first.ask("Connecting from: x", 3), QByteArray("OK:"));
    EXPECT_EQ(server.connectionCount(), 1);
  }
  ASSERT_TRUE(eventually([&] { return waiting.bytesAvailable() == 3; }));
  EXPECT_EQ(server.connectionCount(), 2);
}

}  // namespace

}  // namespace quorvin::test
