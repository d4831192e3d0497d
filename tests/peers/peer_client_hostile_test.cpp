// SPDX-License-Identifier: GPL-2.0-or-later

// The client, with servers that fail or mean ill.
#include "files/full_disk.h"
#include "peers/client/peer_client.h"
#include "peers/peer_program.h"
#include "peers/scripted_server.h"
#include "support/timer_tick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace quorvin::test {

namespace {

using testing::ElementsAre;
using Pieces = std::vector<QByteArray>;

/// Little patience with what may be half an answer, and much with a busy machine.
PeerClientLimits shortLimits() {
  PeerClientLimits limits;
  limits.settle = std::chrono::milliseconds(20);
  limits.stall = std::chrono::milliseconds(40);
  limits.silence = std::chrono::hours(1);
  return limits;
}

class PeerClientHostileTest : public testing::Test {
 protected:
  /// A server with the lists A and B, in whose answers to this message these pieces come instead.
  ScriptedServer::Script answering(const QByteArray& message, const Pieces& pieces) {
    return [this, message, pieces](const QByteArray& asked) {
      return asked == message ? pieces : answers_(asked);
    };
  }
  const PeerOutcome& outcomeWith(ScriptedServer& server) {
    program_.start(server.port());
    EXPECT_TRUE(program_.waitForEnd());
    static const PeerOutcome none;
    return program_.outcome ? *program_.outcome : none;
  }
  QStringList receivedFiles(const ScriptedServer& server) {
    return QDir(program_.folder.pathOf(program_.receivedName({}, server.port())))
        .entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }

  void SetUp() override {
    answers_.add("A", first_);
    answers_.add("B", second_);
  }

  QByteArray first_ = smallArchive("first");
  QByteArray second_ = smallArchive("second");
  UsualAnswers answers_;
  GettingProgram program_{shortLimits()};
};

TEST_F(PeerClientHostileTest, AServerThatSaysNothingIsGivenUp) {
  ScriptedServer server([](const QByteArray&) { return Pieces{}; });
  GettingProgram program{PeerClientLimits{}};
  program.start(server.port());
  ASSERT_EVENTUALLY(!server.messages.empty());
  tick(timerOf(program.client, QStringLiteral("silence")));
  ASSERT_TRUE(program.outcome.has_value());
  EXPECT_THAT(program.outcome->problems,
              ElementsAre(QStringLiteral("The peer has not sent anything for 60 seconds.")));
  EXPECT_TRUE(eventually([&] { return server.isClosed; }));
}

TEST_F(PeerClientHostileTest, EachAnswerStartsTheSilenceAgain) {
  ScriptedServer server([](const QByteArray&) { return Pieces{"x"}; });
  SendTimer hourly(program_.work, program_.queue, std::chrono::hours(1));
  PeerClient client(program_.state, program_.queue, hourly, QLocale::c());
  client.start({QStringLiteral("127.0.0.1"), server.port()});
  QTimer& silence = timerOf(client, QStringLiteral("silence"));
  ASSERT_EVENTUALLY(hourly.isEnabled());
  for (int i = 0; i < 2; ++i) {
    const RestartWatch watch(silence);
    tick(timerOf(hourly, QStringLiteral("SndQTime")));
    EXPECT_FALSE(watch.hasRestarted());
    // The reply starts it.
    ASSERT_EVENTUALLY(hourly.isEnabled());
    EXPECT_TRUE(watch.hasRestarted());
  }
}

TEST_F(PeerClientHostileTest, ASilenceEndsTheConversationByItself) {
  PeerClientLimits limits = shortLimits();
  limits.silence = std::chrono::milliseconds(50);
  GettingProgram program(limits);
  ScriptedServer server([](const QByteArray&) { return Pieces{}; });
  program.start(server.port());
  EXPECT_TRUE(program.waitForEnd());
}

TEST_F(PeerClientHostileTest, APortWithoutServerIsToldWithTheReason) {
  QTcpServer closed;
  ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
  const quint16 port = closed.serverPort();
  closed.close();
  program_.start(port);
  ASSERT_TRUE(program_.waitForEnd());
  EXPECT_THAT(program_.outcome->problems,
              ElementsAre(QStringLiteral("The peer could not be reached: Connection refused.")));
}

TEST_F(PeerClientHostileTest, AServerWithoutListsIsAFault) {
  ScriptedServer server(answering("Req List Info:", {"Lists:\r\n"}));
  EXPECT_THAT(outcomeWith(server).problems,
              ElementsAre(QStringLiteral(
                  "Run-time error '5': Invalid procedure call or argument: the answer names no lists.")));
}

TEST_F(PeerClientHostileTest, AServerThatClosesAtOnceIsTold) {
  ScriptedServer server([](const QByteArray&) { return Pieces{}; });
  server.welcome = {"OK:"};
  server.closeWhenSent = true;
  EXPECT_THAT(outcomeWith(server).problems,
              ElementsAre(QStringLiteral("The peer ended the connection before everything had arrived.")));
}

TEST_F(PeerClientHostileTest, AResetInAnArchiveLeavesWhatHadComeBefore) {
  bool isLast = false;
  ScriptedServer server([&](const QByteArray& asked) -> Pieces {
    isLast = asked == "GetList: A";
    return {isLast ? answers_.to(asked) + "List: B.zip" + second_.chopped(9) : answers_.to(asked)};
  });
  server.resetsWhenSent = [&isLast] { return isLast; };
  const PeerOutcome& outcome = outcomeWith(server);
  ASSERT_EQ(outcome.received.size(), 1U);
  EXPECT_EQ(outcome.received[0].name, QStringLiteral("A"));
  EXPECT_THAT(outcome.problems,
              ElementsAre(QStringLiteral("The archive of \"B\" did not arrive complete, and was not kept.")));
  EXPECT_EQ(receivedFiles(server), QStringList{QStringLiteral("A.zip")});
}

TEST_F(PeerClientHostileTest, ABrokenArchiveDoesNotTakeTheNextOneWithIt) {
  ScriptedServer server(answering("GetList: A", {"List: A.zip" + first_.left(80)}));
  const PeerOutcome& outcome = outcomeWith(server);
  ASSERT_EQ(outcome.received.size(), 1U);
  EXPECT_EQ(outcome.received[0].name, QStringLiteral("B"));
  EXPECT_THAT(outcome.problems,
              ElementsAre(QStringLiteral("The archive of \"A\" did not arrive complete, and was not kept.")));
  EXPECT_EQ(receivedFiles(server), QStringList{QStringLiteral("B.zip")});
  EXPECT_EQ(program_.folder.readFile(program_.receivedName(QStringLiteral("B.zip"), server.port())), second_);
}

TEST_F(PeerClientHostileTest, ALongBrokenArchiveIsReadAgainFromWhereItBroke) {
  const QByteArray broken = first_.left(40) + QByteArray(500000, 'x');
  ScriptedServer server(answering("GetList: A", {"List: A.zip" + broken}));
  const PeerOutcome& outcome = outcomeWith(server);
  ASSERT_EQ(outcome.received.size(), 1U);
  EXPECT_EQ(receivedFiles(server), QStringList{QStringLiteral("B.zip")});
}

TEST_F(PeerClientHostileTest, MoreMayComeAfterWhatFollowedABrokenArchive) {
  const QByteArray firstHalf = "List: B.zip" + second_.left(50);
  ScriptedServer server([&](const QByteArray& asked) -> Pieces {
    if (asked == "GetList: A") return {"List: A.zip" + first_.left(80)};
    return {asked == "GetList: B" ? firstHalf : answers_.to(asked)};
  });
  program_.start(server.port());
  ASSERT_EVENTUALLY(program_.client.figures().listNumber == 2);
  // The rest has been read to its end a few turns later, and is not read again.
  for (int turn = 0; turn < 20; ++turn) QCoreApplication::processEvents();
  ASSERT_FALSE(timerOf(program_.client, QStringLiteral("restPiece")).isActive());
  server.connection->write(second_.mid(50));
  ASSERT_TRUE(program_.waitForEnd());
  EXPECT_EQ(program_.outcome->received.size(), 1U);
  EXPECT_EQ(program_.folder.readFile(program_.receivedName(QStringLiteral("B.zip"), server.port())), second_);
}

TEST_F(PeerClientHostileTest, NothingIsReadAgainAfterACancel) {
  const QByteArray longAnswer = "List: B.zip" + first_.left(40) + QByteArray(500000, 'x');
  ScriptedServer server([&](const QByteArray& asked) -> Pieces {
    if (asked == "GetList: A") return {"List: A.zip" + first_.left(80)};
    return {asked == "GetList: B" ? longAnswer : answers_.to(asked)};
  });
  program_.start(server.port());
  const QTimer& restPiece = timerOf(program_.client, QStringLiteral("restPiece"));
  ASSERT_EVENTUALLY(restPiece.isActive());
  program_.client.cancel();
  ASSERT_FALSE(restPiece.isActive());
  program_.outcome.reset();
  ScriptedServer next(answers_);
  const PeerOutcome& outcome = outcomeWith(next);
  EXPECT_EQ(outcome.received.size(), 2U);
  EXPECT_EQ(outcome.problems, QStringList());
}

TEST_F(PeerClientHostileTest, AnArchiveThatIsNotThereIsToldAndTheNextComes) {
  ScriptedServer server(answering("GetList: A", {"List: A.zip"}));
  const PeerOutcome& outcome = outcomeWith(server);
  ASSERT_EQ(outcome.received.size(), 1U);
  EXPECT_THAT(outcome.problems, ElementsAre(QStringLiteral("The peer sent no archive of \"A\".")));
}

TEST_F(PeerClientHostileTest, TheLastArchiveMayBeTheOneThatIsNotThere) {
  ScriptedServer server(answering("GetList: B", {"List: B.zip"}));
  const PeerOutcome& outcome = outcomeWith(server);
  ASSERT_EQ(outcome.received.size(), 1U);
  EXPECT_THAT(outcome.problems, ElementsAre(QStringLiteral("The peer sent no archive of \"B\".")));
}

TEST_F(PeerClientHostileTest, AnArchiveWithoutEndIsGivenUp) {
  PeerClientLimits limits = shortLimits();
  limits.archiveBytes = 1000000;
  GettingProgram program(limits);
  ScriptedServer server(answering("GetList: A", {"List: A.zip" + first_.left(40), QByteArray(2000000, 'x')}));
  program.start(server.port());
  ASSERT_TRUE(program.waitForEnd());
  EXPECT_THAT(program.outcome->problems,
              ElementsAre(QStringLiteral("Run-time error '6': The archive of \"A\" has no end.")));
  EXPECT_FALSE(program.folder.has(program.receivedName(QStringLiteral("A.zip.part"), server.port())));
}

TEST_F(PeerClientHostileTest, FourGibibytesAreTheUsualLimit) {
  EXPECT_EQ(PeerClientLimits{}.archiveBytes, 4294967296);
}

TEST_F(PeerClientHostileTest, AnAnswerWithoutEndIsGivenUp) {
  ScriptedServer server([](const QByteArray&) { return Pieces{QByteArray(200000, 'x')}; });
  EXPECT_THAT(outcomeWith(server).problems,
              ElementsAre(QStringLiteral("Run-time error '13': The answer is not that of a list exchange.")));
}

TEST_F(PeerClientHostileTest, NamesAreTextAndNeverPaths) {
  UsualAnswers bad;
  bad.add("../../../evil", first_);
  bad.add("/etc/passwd", second_);
  bad.add("<b>x</b>\x1b[1m", first_);
  ScriptedServer server(bad);
  const PeerOutcome& outcome = outcomeWith(server);
  EXPECT_EQ(outcome.received.size(), 3U);
  EXPECT_EQ(receivedFiles(server),
            (QStringList{QStringLiteral("_.._.._evil.zip"), QStringLiteral("_b_x__b__[1m.zip"),
                         QStringLiteral("_etc_passwd.zip")}));
  EXPECT_EQ(program_.folder.names(), QStringList{QStringLiteral("Received")});
}

TEST_F(PeerClientHostileTest, AFileOfTheUsersIsNeverReplaced) {
  ScriptedServer server(answers_);
  const QString name = program_.receivedName(QStringLiteral("A.zip"), server.port());
  program_.folder.writeFile(name, "the user's own");
  const PeerOutcome& outcome = outcomeWith(server);
  EXPECT_EQ(outcome.problems, QStringList());
  EXPECT_EQ(program_.folder.readFile(name), QByteArray("the user's own"));
  EXPECT_EQ(program_.folder.readFile(program_.receivedName(QStringLiteral("A (2).zip"), server.port())),
            first_);
}

TEST_F(PeerClientHostileTest, TheSameArchiveIsKeptOnce) {
  ScriptedServer server(answers_);
  outcomeWith(server);
  program_.outcome.reset();
  const PeerOutcome& outcome = outcomeWith(server);
  EXPECT_EQ(outcome.received.size(), 2U);
  EXPECT_EQ(receivedFiles(server), (QStringList{QStringLiteral("A.zip"), QStringLiteral("B.zip")}));
}

TEST_F(PeerClientHostileTest, AFullDiskEndsTheConversationWithTheReason) {
  answers_.add("C", QByteArray());
  const QByteArray large = first_.left(40) + QByteArray(3000000, 'x');
  ScriptedServer server(answering("GetList: B", {"List: B.zip" + large}));
  program_.start(server.port());
  {
    const FullDisk full(1000000);
    ASSERT_TRUE(program_.waitForEnd());
  }
  ASSERT_EQ(program_.outcome->problems.size(), 1);
  EXPECT_TRUE(program_.outcome->problems[0].startsWith(QStringLiteral("Run-time error '61': Disk full")))
      << program_.outcome->problems[0].toStdString();
  EXPECT_EQ(receivedFiles(server), QStringList{QStringLiteral("A.zip")});
}

TEST_F(PeerClientHostileTest, AfterAThousandMessagesTheOtherListsAreTold) {
  for (int i = 0; i < 994; ++i) program_.queue.append("x");
  program_.queue.abandon();
  for (int i = 0; i < 10; ++i) answers_.add("more " + QByteArray::number(i), first_);
  ScriptedServer server(answers_);
  const PeerOutcome& outcome = outcomeWith(server);
  EXPECT_EQ(program_.queue.SendQueueCount(), 1000);
  EXPECT_EQ(outcome.received.size(), 3U);
  ASSERT_EQ(outcome.problems.size(), 1);
  EXPECT_TRUE(outcome.problems[0].startsWith(QStringLiteral("Run-time error '9': Subscript out of range")));
}

TEST_F(PeerClientHostileTest, AFullQueueEndsTheConversationAtOnce) {
  for (int i = 0; i < 999; ++i) program_.queue.append("x");
  program_.queue.abandon();
  ScriptedServer server(answers_);
  EXPECT_THAT(outcomeWith(server).problems,
              ElementsAre(QStringLiteral("Run-time error '9': Subscript out of range.")));
}

TEST_F(PeerClientHostileTest, CancellingLeavesWhatHadComeAndNothingHalf) {
  ScriptedServer server(answering("GetList: B", {"List: B.zip" + second_.left(50)}));
  program_.start(server.port());
  ASSERT_TRUE(eventually([&] { return program_.client.figures().listNumber == 2; }));
  program_.client.cancel();
  ASSERT_TRUE(program_.outcome.has_value());
  EXPECT_TRUE(program_.outcome->isCancelled);
  EXPECT_EQ(program_.outcome->received.size(), 1U);
  EXPECT_EQ(receivedFiles(server), QStringList{QStringLiteral("A.zip")});
  EXPECT_TRUE(eventually([&] { return server.isClosed; }));
}

/// One conversation in which a byte of some answers is another one.
struct GarbledConversation {
  GarbledConversation(const UsualAnswers& answers, unsigned seed)
      : random(seed), server([this, answers](const QByteArray& asked) -> Pieces {
          QByteArray answer = answers.to(asked);
          if (below(3) == 0) answer[below(static_cast<int>(answer.size()))] = static_cast<char>(below(256));
          return {answer};
        }) {}

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

  std::mt19937 random;
  ScriptedServer server;
  static PeerClientLimits impatient() {
    PeerClientLimits limits = shortLimits();
    limits.silence = std::chrono::milliseconds(100);
    return limits;
  }
  GettingProgram program{impatient()};
};

TEST_F(PeerClientHostileTest, GarbageInEveryAnswerNeverHangsTheClient) {
  std::vector<std::unique_ptr<GarbledConversation>> all;
  for (unsigned seed = 0; seed < 200; ++seed) {
    all.push_back(std::make_unique<GarbledConversation>(answers_, seed));
    all.back()->program.start(all.back()->server.port());
  }
  for (const auto& one : all) {
    ASSERT_TRUE(one->program.waitForEnd());
    for (const ReceivedList& list : one->program.outcome->received) {
      EXPECT_TRUE(QFile::exists(list.archivePath));
    }
  }
}

}  // namespace

}  // namespace quorvin::test
