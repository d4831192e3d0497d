// SPDX-License-Identifier: GPL-2.0-or-later

// The server on the wire, spoken to by clients written by hand.
#include "peers/server/peer_server.h"

#include "peers/peer_caller.h"

#include <QTcpServer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/socket.h>

namespace quorvin::test {

namespace {

class PeerServerTest : public testing::Test {
 protected:
  PeerServerTest() {
    if (!server_.start(0)) throw std::runtime_error("no port could be opened");
    QObject::connect(&server_, &PeerServer::faulted, &server_,
                     [this](const QString& description) { faults_ += description; });
  }

  PeerProgram program_;
  PeerServer server_{program_.state, QLocale::c()};
  QStringList faults_;
};

TEST_F(PeerServerTest, DoesNotListenByItself) {
  const PeerServer idle(program_.state, QLocale::c());
  EXPECT_FALSE(idle.isListening());
  EXPECT_EQ(idle.ServConnCount(), 0);
}

TEST_F(PeerServerTest, HoldsAWholeConversation) {
  const QByteArray archive = smallArchive();
  program_.addSource(QStringLiteral("Music"), archive);
  program_.addSource(QStringLiteral("Films"));
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("Connecting from: 10.0.0.1", 3), QByteArray("OK:"));
  EXPECT_EQ(caller.ask("I AM: Eve 40000", 15), QByteArray("I AM: Bob 37622"));
  EXPECT_EQ(caller.ask("Req List Info:", 22), QByteArray("Lists:\r\nMusic\r\nFilms\r\n"));
  EXPECT_EQ(caller.ask("GetList: Music", 15 + archive.size()), "List: Music.zip" + archive);
  EXPECT_EQ(caller.receiveRest(), QByteArray());
}

TEST_F(PeerServerTest, WithoutSourcesTheListsAreEmpty) {
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("Req List Info:", 8), QByteArray("Lists:\r\n"));
  EXPECT_EQ(caller.receiveRest(), QByteArray());
}

TEST_F(PeerServerTest, AnUnknownListGetsItsAnnouncementAndNothingElse) {
  program_.addSource(QStringLiteral("Music"));
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("GetList: Films", 15), QByteArray("List: Films.zip"));
  EXPECT_EQ(caller.receiveRest(), QByteArray());
  EXPECT_EQ(program_.folder.readFile(QStringLiteral(".zip")), QByteArray());
  EXPECT_EQ(caller.ask("Connecting from: x", 3), QByteArray("OK:"));
}

TEST_F(PeerServerTest, AnUnknownListGetsWhatStandsInTheFileThatIsOpened) {
  program_.folder.writeFile(QStringLiteral(".zip"), "kept");
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("GetList: Films", 19), QByteArray("List: Films.zipkept"));
}

TEST_F(PeerServerTest, WhatSharingMadeForARemovedSourceIsNotSentAnyMore) {
  program_.addSource(QStringLiteral("Music"), "music");
  program_.addSource(QStringLiteral("Films"), smallArchive());
  program_.state.OnlineSourceCount = 1;
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("GetList: whatever", 18), QByteArray("List: whatever.zip"));
  EXPECT_EQ(caller.receiveRest(), QByteArray());
  EXPECT_EQ(program_.folder.readFile(QStringLiteral("Films.zip")), QByteArray());
}

TEST_F(PeerServerTest, TheArchiveOfASourceThatIsStillListedStays) {
  const QByteArray archive = smallArchive();
  program_.addSource(QStringLiteral("Music"), archive);
  // As it is left when the first of two rows was deleted.
  program_.state.OnlineSources.set(2, QStringLiteral("Music"), QStringLiteral("/nowhere/"));
  PeerCaller caller(server_.port());
  caller.ask("GetList: whatever", 18);
  EXPECT_EQ(program_.folder.readFile(QStringLiteral("Music.zip")), archive);
}

TEST_F(PeerServerTest, AnArchiveOfTheUsersIsNotRemoved) {
  program_.addSource(QStringLiteral("Films"), "the user's own");
  program_.state.OnlineSourceCount = 0;
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("GetList: whatever", 32), QByteArray("List: whatever.zipthe user's own"));
  EXPECT_EQ(program_.folder.readFile(QStringLiteral("Films.zip")), QByteArray("the user's own"));
}

TEST_F(PeerServerTest, OfTwoSourcesOfANameTheFirstWithAnArchiveIsSent) {
  program_.addSource(QStringLiteral("Music"));
  program_.addSource(QStringLiteral("Music"), "second");
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("GetList: Music", 21), QByteArray("List: Music.zipsecond"));
}

/// Does something when the server goes on after an event.
class BeforeTheServerGoesOn : public QObject {
 public:
  explicit BeforeTheServerGoesOn(std::function<void()> action) : action_(std::move(action)) {
    QCoreApplication::instance()->installEventFilter(this);
  }
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::MetaCall && receiver->inherits("quorvin::PeerConnection")) action_();
    return false;
  }

 private:
  std::function<void()> action_;
};

TEST_F(PeerServerTest, EventsRunBetweenAnAnnouncementAndItsArchive) {
  program_.addSource(QStringLiteral("Music"), "early");
  // A new file, so that an archive that was opened before keeps what it held.
  const BeforeTheServerGoesOn later([this] {
    QFile::remove(program_.folder.pathOf(QStringLiteral("Music.zip")));
    program_.folder.writeFile(QStringLiteral("Music.zip"), "later");
  });
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("GetList: Music", 20), QByteArray("List: Music.ziplater"));
}

TEST_F(PeerServerTest, KeywordsAreComparedExactly) {
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("i am: Eve 1", 3), QByteArray("NA:"));
  EXPECT_EQ(caller.ask("Hello: you", 3), QByteArray("NA:"));
}

TEST_F(PeerServerTest, WhatArrivesAtOnceIsOneMessage) {
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("I AM: Eve 1Req List Info:", 15), QByteArray("I AM: Bob 37622"));
  EXPECT_EQ(caller.receiveRest(), QByteArray());
  EXPECT_EQ(caller.ask("GetList: AGetList: B", 21), QByteArray("List: AGetList: B.zip"));
}

TEST_F(PeerServerTest, TheBytesOfANameComeBackAsTheyWere) {
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask(QByteArray("GetList: M\xfc\0\x01", 13), 14), QByteArray("List: M\xfc\0\x01.zip", 14));
}

TEST_F(PeerServerTest, AMessageWithoutAColonEndsTheConnectionAndNoOther) {
  PeerCaller other(server_.port());
  PeerCaller caller(server_.port());
  caller.send("hello");
  EXPECT_TRUE(caller.waitForClose());
  EXPECT_EQ(faults_, QStringList{QStringLiteral("Invalid procedure call or argument")});
  EXPECT_EQ(other.ask("Connecting from: x", 3), QByteArray("OK:"));
}

TEST_F(PeerServerTest, BeyondAFullTableTheConnectionEndsAfterTheAnnouncement) {
  for (int i = 0; i < 2000; ++i) program_.addSource(QStringLiteral("x"));
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("GetList: y", 11), QByteArray("List: y.zip"));
  EXPECT_TRUE(caller.waitForClose());
  EXPECT_EQ(faults_,
            QStringList{QStringLiteral("Subscript out of range: row 2001, column 1 of a source table")});
}

TEST_F(PeerServerTest, EveryConnectionIsCountedAndNumbersAreNotUsedAgain) {
  {
    PeerCaller caller(server_.port());
    EXPECT_EQ(caller.ask("Connecting from: x", 3), QByteArray("OK:"));
  }
  ASSERT_TRUE(eventually([this] { return server_.connectionCount() == 0; }));
  PeerCaller caller(server_.port());
  EXPECT_EQ(caller.ask("Connecting from: x", 3), QByteArray("OK:"));
  EXPECT_EQ(server_.ServConnCount(), 2);
  EXPECT_EQ(server_.connectionCount(), 1);
}

TEST_F(PeerServerTest, RequestsThatComeDuringAnArchiveAreAnsweredAfterIt) {
  const QByteArray large(3000000, 'x');
  program_.addSource(QStringLiteral("A"), large);
  program_.addSource(QStringLiteral("B"), "second");
  PeerCaller caller(server_.port());
  caller.socket().setReadBufferSize(1000);
  caller.sendAlone("GetList: A");
  caller.sendAlone("GetList: B");
  caller.sendAlone("Connecting from: x");
  caller.socket().setReadBufferSize(0);
  const QByteArray expected = "List: A.zip" + large + "List: B.zipsecondOK:";
  EXPECT_EQ(caller.receive(expected.size()) == expected, true);
}

TEST_F(PeerServerTest, AQuestionIsAnsweredThoughTheCallerHasSaidAll) {
  QTcpSocket caller;
  caller.connectToHost(QHostAddress(QHostAddress::LocalHost), server_.port());
  ASSERT_TRUE(eventually([&] { return caller.state() == QAbstractSocket::ConnectedState; }));
  caller.write("Req List Info:");
  caller.flush();
  ASSERT_EQ(::shutdown(static_cast<int>(caller.socketDescriptor()), SHUT_WR), 0);
  EXPECT_TRUE(eventually([&] { return caller.bytesAvailable() == 8; }));
  EXPECT_EQ(caller.readAll(), QByteArray("Lists:\r\n"));
}

TEST_F(PeerServerTest, StoppingEndsListenerAndConnections) {
  PeerCaller first(server_.port());
  PeerCaller second(server_.port());
  PeerCaller third(server_.port());
  for (PeerCaller* caller : {&first, &second, &third}) {
    EXPECT_EQ(caller->ask("Connecting from: x", 3), QByteArray("OK:"));
  }
  const quint16 port = server_.port();
  server_.stop();
  EXPECT_EQ(server_.connectionCount(), 0);
  for (PeerCaller* caller : {&first, &second, &third}) EXPECT_TRUE(caller->waitForClose());
  EXPECT_FALSE(server_.isListening());
  QTcpServer other;
  EXPECT_TRUE(other.listen(QHostAddress::Any, port));
}

TEST_F(PeerServerTest, ListensOnThisMachineWhateverProxyIsSet) {
  const OnlyThroughAProxy proxy;
  PeerServer server(program_.state, QLocale::c());
  EXPECT_TRUE(server.start(0)) << server.errorText().toStdString();
}

TEST_F(PeerServerTest, APortThatIsTakenIsToldWithTheReason) {
  PeerServer second(program_.state, QLocale::c());
  EXPECT_FALSE(second.start(server_.port()));
  EXPECT_FALSE(second.isListening());
  EXPECT_EQ(second.errorText(), QStringLiteral("The bound address is already in use"));
}

}  // namespace

}  // namespace quorvin::test
