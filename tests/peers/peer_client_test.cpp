// SPDX-License-Identifier: GPL-2.0-or-later

// The client, served by a scripted server.
#include "peers/client/peer_client.h"

#include "peers/peer_program.h"
#include "peers/scripted_server.h"
#include "support/sweep.h"
#include "support/timer_tick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace quorvin::test {

namespace {

using testing::ElementsAre;

class PeerClientTest : public testing::Test {
 protected:
  PeerClientTest() {
    answers_.add("A", first_);
    answers_.add("B", second_);
  }

  QByteArray first_ = smallArchive("first");
  QByteArray second_ = smallArchive("second");
  UsualAnswers answers_;
};

void expectBoth(const GettingProgram& program, quint16 port, const QByteArray& first,
                const QByteArray& second) {
  ASSERT_TRUE(program.outcome.has_value());
  EXPECT_EQ(program.outcome->problems, QStringList());
  ASSERT_EQ(program.outcome->received.size(), 2U);
  EXPECT_EQ(program.folder.readFile(program.receivedName(QStringLiteral("A.zip"), port)), first);
  EXPECT_EQ(program.folder.readFile(program.receivedName(QStringLiteral("B.zip"), port)), second);
}

TEST_F(PeerClientTest, SendsThreeMessagesAndThenOneForEachListOnePerReply) {
  ScriptedServer server(answers_);
  GettingProgram program;
  program.state.NickName = QStringLiteral("Eve");
  program.state.JoinDate = 40000.5;
  program.start(server.port());
  ASSERT_TRUE(program.waitForEnd());
  EXPECT_THAT(server.messages,
              ElementsAre(QByteArray("Connecting from: 127.0.0.1"), QByteArray("I AM: Eve 40000.5"),
                          QByteArray("Req List Info:"), QByteArray("GetList: A"), QByteArray("GetList: B")));
  expectBoth(program, server.port(), first_, second_);
}

TEST_F(PeerClientTest, QueuesExactlyThreeMessagesOnConnecting) {
  ScriptedServer server([](const QByteArray&) { return std::vector<QByteArray>{}; });
  GettingProgram program;
  program.start(server.port());
  ASSERT_TRUE(eventually([&] { return !server.messages.empty(); }));
  EXPECT_EQ(program.queue.SendQueueCount(), 3);
  EXPECT_EQ(program.queue.SendQueueHead(), 1);
  EXPECT_EQ(program.queue.entry(1).Payload, QByteArray("Connecting from: 127.0.0.1"));
  EXPECT_EQ(program.queue.entry(2).Payload, QByteArray("I AM: Bob 37622"));
  EXPECT_EQ(program.queue.entry(3).Payload, QByteArray("Req List Info:"));
}

TEST_F(PeerClientTest, AClientThatGoesAwayReportsNothingAnyMore) {
  ScriptedServer server([](const QByteArray&) { return std::vector<QByteArray>{}; });
  GettingProgram program;
  SendTimer timer(program.work, program.queue, std::chrono::milliseconds(1));
  int ended = 0;
  {
    PeerClient client(program.state, program.queue, timer, QLocale::c());
    QObject::connect(&client, &PeerClient::ended, [&ended] { ++ended; });
    client.start({QStringLiteral("127.0.0.1"), server.port()});
    ASSERT_EVENTUALLY(!server.messages.empty());
  }
  EXPECT_EQ(ended, 0);
}

TEST_F(PeerClientTest, WithoutAReplyNothingMoreIsSent) {
  ScriptedServer server([](const QByteArray&) { return std::vector<QByteArray>{}; });
  GettingProgram program;
  program.start(server.port());
  ASSERT_TRUE(eventually([&] { return !server.messages.empty(); }));
  EXPECT_EQ(server.messages.size(), 1U);
  EXPECT_EQ(program.queue.entry(1).State, 2);
  // Without data nothing starts the timer again, and a tick would send nothing.
  EXPECT_FALSE(program.timer.isEnabled());
  program.timer.enable();
  tick(timerOf(program.timer, QStringLiteral("SndQTime")));
  EXPECT_EQ(program.queue.SendQueueHead(), 1);
}

TEST_F(PeerClientTest, AMessageLeavesWithTheTickAfterTheReply) {
  ScriptedServer server(answers_);
  GettingProgram program;
  SendTimer hourly(program.work, program.queue, std::chrono::hours(1));
  PeerClient client(program.state, program.queue, hourly, QLocale::c());
  client.start({QStringLiteral("127.0.0.1"), server.port()});
  for (std::int32_t sent = 1; sent <= 5; ++sent) {
    ASSERT_EVENTUALLY(hourly.isEnabled());
    EXPECT_EQ(program.queue.SendQueueHead(), sent - 1);
    tick(timerOf(hourly, QStringLiteral("SndQTime")));
    EXPECT_EQ(program.queue.SendQueueHead(), sent);
    EXPECT_FALSE(hourly.isEnabled());
  }
  EXPECT_EVENTUALLY(server.messages.size() == 5);
}

TEST_F(PeerClientTest, KeepsWhatTheServerSaidOfItself) {
  ScriptedServer server(answers_);
  GettingProgram program;
  program.start(server.port());
  ASSERT_TRUE(program.waitForEnd());
  EXPECT_EQ(program.client.PeerIdent(), QStringLiteral("ob 37622"));
  EXPECT_EQ(program.client.PeerAddress(), QStringLiteral("127.0.0.1"));
  EXPECT_EQ(program.client.PeerListName(), QStringLiteral(".zip"));
}

TEST_F(PeerClientTest, EachPartOfAnArchiveLetsTheNextRequestGo) {
  ScriptedServer server([this](const QByteArray& message) -> std::vector<QByteArray> {
    if (message == "GetList: A") return {"List: A.zip", first_.left(10)};
    return answers_(message);
  });
  GettingProgram program;
  program.start(server.port());
  EXPECT_TRUE(eventually([&] { return server.messages.size() == 5; }));
  EXPECT_EQ(server.messages.back(), QByteArray("GetList: B"));
}

/// One conversation in which each answer is split at one place, the same for all.
struct SplitConversation {
  SplitConversation(const UsualAnswers& answers, qsizetype place)
      : server([answers, place](const QByteArray& message) -> std::vector<QByteArray> {
          const QByteArray answer = answers.to(message);
          return {answer.first(qMin(place, answer.size())), answer.mid(place)};
        }) {}

  ScriptedServer server;
  GettingProgram program;
};

TEST_F(PeerClientTest, EachAnswerMayBeSplitAnywhere) {
  std::vector<std::unique_ptr<SplitConversation>> all;
  const qsizetype longest = answers_.to("GetList: B").size();
  for (qsizetype place = 1; place < longest; place += sweep(1, 11)) {
    all.push_back(std::make_unique<SplitConversation>(answers_, place));
    all.back()->program.start(all.back()->server.port());
  }
  for (const auto& one : all) {
    ASSERT_TRUE(one->program.waitForEnd());
    expectBoth(one->program, one->server.port(), first_, second_);
    EXPECT_EQ(one->program.client.PeerIdent(), QStringLiteral("ob 37622"));
  }
}

TEST_F(PeerClientTest, EachAnswerMayComeByteByByte) {
  ScriptedServer server([this](const QByteArray& message) { return bytesOf(answers_.to(message)); });
  GettingProgram program;
  program.start(server.port());
  ASSERT_TRUE(program.waitForEnd());
  expectBoth(program, server.port(), first_, second_);
}

/// All answers of a server come as two pieces, before anything has been asked.
struct JoinedConversation {
  JoinedConversation(const QByteArray& all, qsizetype place)
      : server([](const QByteArray&) { return std::vector<QByteArray>{}; }) {
    server.welcome = {all.first(place), all.mid(place)};
  }

  ScriptedServer server;
  GettingProgram program;
};

TEST_F(PeerClientTest, AllAnswersMayComeJoinedAndSplitAnywhere) {
  const QByteArray all =
      "OK:I AM: Bob 37622" + answers_.listsAnswer() + answers_.to("GetList: A") + answers_.to("GetList: B");
  std::vector<std::unique_ptr<JoinedConversation>> conversations;
  for (qsizetype place = 1; place < all.size(); place += sweep(1, 17)) {
    conversations.push_back(std::make_unique<JoinedConversation>(all, place));
    conversations.back()->program.start(conversations.back()->server.port());
  }
  for (const auto& one : conversations) {
    ASSERT_TRUE(one->program.waitForEnd());
    expectBoth(one->program, one->server.port(), first_, second_);
  }
}

TEST_F(PeerClientTest, ASecondConversationSendsNothingOfTheFirst) {
  ScriptedServer silent([](const QByteArray&) { return std::vector<QByteArray>{}; });
  GettingProgram program;
  program.start(silent.port());
  ASSERT_TRUE(eventually([&] { return !silent.messages.empty(); }));
  program.client.cancel();
  ASSERT_TRUE(program.outcome.has_value());
  EXPECT_TRUE(program.outcome->isCancelled);
  program.outcome.reset();
  ScriptedServer server(answers_);
  program.start(server.port());
  ASSERT_TRUE(program.waitForEnd());
  EXPECT_EQ(server.messages.size(), 5U);
  EXPECT_EQ(server.messages.front(), QByteArray("Connecting from: 127.0.0.1"));
  EXPECT_EQ(program.queue.SendQueueCount(), 8);
}

TEST_F(PeerClientTest, TellsHowFarItHasCome) {
  // The last byte is held back.
  ScriptedServer server([this](const QByteArray& message) {
    const QByteArray answer = answers_.to(message);
    return bytesOf(message == "GetList: B" ? answer.chopped(1) : answer);
  });
  GettingProgram program;
  std::vector<PeerFigures> seen;
  QObject::connect(&program.client, &PeerClient::progressed, &program.client,
                   [&] { seen.push_back(program.client.figures()); });
  program.start(server.port());
  ASSERT_EVENTUALLY(!seen.empty() && seen.back().listNumber == 2 && seen.back().bytes > 0);
  server.connection->write(second_.last(1));
  ASSERT_TRUE(program.waitForEnd());
  EXPECT_EQ(seen.back().list, QStringLiteral("B"));
  EXPECT_EQ(seen.back().listNumber, 2);
  EXPECT_EQ(seen.back().listCount, 2);
  EXPECT_GT(seen.back().bytes, 0);
}

TEST_F(PeerClientTest, RequestsThatReachedTheServerAsOneAreSentAgain) {
  // The server stands still until both requests are there, and takes them for one.
  QByteArray waiting;
  bool isFirst = true;
  ScriptedServer server([&](const QByteArray& message) -> std::vector<QByteArray> {
    if (message == "Req List Info:") return {"Lists:\r\nA\r\n", "B\r\n"};
    if (message.startsWith("GetList") && isFirst) {
      waiting += message;
      // What makes the next request go, as part of an archive would.
      if (waiting == "GetList: A") return {"C\r\n"};
      isFirst = false;
      return {"List: " + waiting.mid(9) + ".zip"};
    }
    return answers_(message);
  });
  answers_.add("C", first_);
  GettingProgram program;
  program.start(server.port());
  ASSERT_TRUE(program.waitForEnd());
  EXPECT_EQ(program.outcome->problems, QStringList());
  EXPECT_EQ(program.outcome->received.size(), 3U);
}

}  // namespace

}  // namespace quorvin::test
