// SPDX-License-Identifier: GPL-2.0-or-later

// Two programs, each with its own state and folder, that exchange lists.
#include "peers/peer_exchange.h"

#include "archive/archive_maker.h"
#include "peers/peer_program.h"
#include "peers/scripted_server.h"
#include "search/hit_table.h"
#include "search/search_run.h"
#include "support/listing_lines.h"
#include "support/sweep.h"
#include "support/timer_tick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <utility>

namespace quorvin::test {

namespace {

using testing::HasSubstr;

/// A whole program, but for its windows.
struct ExchangingProgram : PeerProgram {
  ExchangingProgram()
      : exchange(state, work, messages, QLocale::c(),
                 [this] {
                   ++attempts;
                   return mayAsk;
                 },
                 {std::chrono::milliseconds(1), std::chrono::milliseconds(1)}) {
    QObject::connect(&exchange, &PeerExchange::gettingBegan, &exchange, [this] { ++begins; });
    QObject::connect(&exchange, &PeerExchange::gettingEnded, &exchange, [this] { ++ends; });
    QObject::connect(&exchange, &PeerExchange::offlineSourcesAdded, &exchange, [this] { ++additions; });
  }

  void getFrom(quint16 port) { exchange.getLists(QStringLiteral("127.0.0.1:%1").arg(port)); }

  QStringList find(const QString& words) {
    HitTable hits;
    SearchRun run({state, messages, QLocale::c(), &hits});
    run.Find_Click(words, QStringLiteral("50"));
    QStringList names;
    for (std::int64_t row = 0; row < hits.rowCount(); ++row) names += hits.row(row).name;
    return names;
  }

  /// What came could be offered now, and at the last attempts has not been.
  void waitForAttempts() {
    const int before = attempts;
    ASSERT_EVENTUALLY(attempts >= before + 3);
  }

  bool mayAsk = true;
  int attempts = 0;
  int begins = 0;
  int ends = 0;
  int additions = 0;
  PeerExchange exchange;
};

/// A listing of about `megabytes` with one file of this name at its end.
QByteArray longListing(int megabytes, const QByteArray& lastName) {
  QByteArray block = blockHead("DISK", "\\Music\\");
  for (int i = 0; block.size() < 1000000; ++i) block += entryLine("Track " + QByteArray::number(i) + ".mp3");
  QByteArray listing;
  listing.reserve((megabytes + 1) * block.size());
  for (int i = 0; i < megabytes; ++i) listing += block;
  return listing + entryLine(lastName);
}

class PeerExchangeTest : public testing::Test {
 protected:
  quint16 share() {
    if (!server_.exchange.sharing().start(0)) throw std::runtime_error("sharing did not begin");
    return server_.exchange.sharing().server().port();
  }
  QString receivedName(const QString& name, quint16 port) const {
    return QStringLiteral("Received/127.0.0.1_%1/").arg(port) + name;
  }

  ExchangingProgram server_;
  ExchangingProgram client_;
};

TEST_F(PeerExchangeTest, WhatOneSharesTheOtherFinds) {
  server_.addListedSource(QStringLiteral("Music"), blockHead("M", "\\M\\") + entryLine("Blue Train.mp3"));
  server_.addListedSource(QStringLiteral("B\u00fccher"),
                          blockHead("B", "\\B\\") + entryLine("Blue Book.pdf"));
  const quint16 port = share();
  client_.messages.answers = {true};
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return client_.additions == 1; }));
  EXPECT_EQ(client_.begins, 1);
  EXPECT_EQ(client_.ends, 1);
  EXPECT_EQ(client_.state.OfflineSourceCount, 2);
  EXPECT_EQ(client_.find(QStringLiteral("blue")),
            (QStringList{QStringLiteral("Blue Train.mp3"), QStringLiteral("Blue Book.pdf")}));
  EXPECT_TRUE(client_.messages.informed.empty());
}

TEST_F(PeerExchangeTest, ALargeArchiveIsTheSameOnBothSides) {
  // 200 MB where everything is tried.
  QByteArray noise(sweep<qsizetype>(200000000, 20000000), '\0');
  std::mt19937_64 random(1);
  for (qsizetype i = 0; i < noise.size(); i += 8) {
    const std::uint64_t value = random();
    std::memcpy(noise.data() + i, &value, sizeof value);
  }
  server_.addListedSource(QStringLiteral("Noise"), noise);
  const quint16 port = share();
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return !client_.messages.asked.empty(); }));
  const QByteArray sent = server_.folder.readFile(QStringLiteral("Noise.zip"));
  EXPECT_GE(sent.size(), noise.size());
  EXPECT_EQ(client_.folder.readFile(receivedName(QStringLiteral("Noise.zip"), port)) == sent, true);
}

TEST_F(PeerExchangeTest, SendsTenTimesASecondAndOffersFiveTimes) {
  EXPECT_EQ(PeerPace{}.sending, std::chrono::milliseconds(100));
  EXPECT_EQ(PeerPace{}.offering, std::chrono::milliseconds(200));
  EXPECT_EQ(timerOf(client_.exchange.SndQTime(), QStringLiteral("SndQTime")).interval(), 1);
}

TEST_F(PeerExchangeTest, TheQuestionSaysHowManyListingsThereAreAndHowMuchRoom) {
  std::vector<MadeEntry> entries(60);
  for (std::size_t i = 0; i < entries.size(); ++i) entries[i].name = QByteArray::number(i) + ".txt";
  server_.addSource(QStringLiteral("Music"), archiveOf(entries));
  client_.state.OfflineSourceCount = 1990;
  const quint16 port = share();
  client_.messages.answers = {true};
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return client_.additions == 1; }));
  EXPECT_THAT(client_.messages.asked[0].toStdString(),
              HasSubstr("\r\n\r\nThe archive holds 60 listings. There is room for 10 more offline "
                        "sources.\r\n\r\nAdd the received lists"));
  EXPECT_EQ(client_.state.OfflineSourceCount, 2000);
}

TEST_F(PeerExchangeTest, ADialogThatOpensWhileListingsAreCountedIsNotDisturbed) {
  server_.addListedSource(QStringLiteral("Music"), "x");
  const quint16 port = share();
  client_.messages.answers = {true};
  // The timer may have made further attempts before the first events of the counting are over.
  bool isOpened = false;
  client_.display.onEvents = [this, &isOpened] {
    if (client_.attempts == 0 || std::exchange(isOpened, true)) return;
    client_.mayAsk = false;
  };
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return client_.attempts >= 3; }));
  EXPECT_TRUE(client_.messages.asked.empty());
  client_.mayAsk = true;
  EXPECT_TRUE(eventually([&] { return client_.additions == 1; }));
}

TEST_F(PeerExchangeTest, AServerWithoutListsIsTold) {
  const quint16 port = share();
  client_.getFrom(port);
  QTimer& settling = timerOf(client_.exchange.client(), QStringLiteral("settle"));
  ASSERT_TRUE(eventually([&] {
    if (settling.isActive()) tick(settling);
    return !client_.messages.informed.empty();
  }));
  EXPECT_THAT(client_.messages.informed[0].toStdString(), HasSubstr("the answer names no lists"));
}

TEST_F(PeerExchangeTest, AListWithoutArchiveIsToldAndTheOthersCome) {
  server_.addSource(QStringLiteral("Films"));
  server_.addListedSource(QStringLiteral("Music"), blockHead("M", "\\M\\") + entryLine("Blue.mp3"));
  const quint16 port = share();
  client_.messages.answers = {true};
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return client_.additions == 1; }));
  EXPECT_THAT(client_.messages.asked[0].toStdString(), HasSubstr("The peer sent no archive of \"Films\"."));
  EXPECT_EQ(client_.find(QStringLiteral("blue")), QStringList{QStringLiteral("Blue.mp3")});
}

TEST_F(PeerExchangeTest, ABrokenArchiveIsToldWhenItIsToBeUnpacked) {
  QByteArray broken = smallArchive("first");
  broken[40] = static_cast<char>(~broken[40]);
  server_.addSource(QStringLiteral("Music"), broken);
  const quint16 port = share();
  client_.messages.answers = {true};
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return !client_.messages.informed.empty(); }));
  EXPECT_THAT(client_.messages.informed[0].toStdString(), HasSubstr("\"Music\": "));
  EXPECT_EQ(client_.state.OfflineSourceCount, 0);
  EXPECT_EQ(client_.folder.readFile(receivedName(QStringLiteral("Music.zip"), port)), broken);
}

TEST_F(PeerExchangeTest, UnpackingIsShownAndMayBeCancelled) {
  server_.addListedSource(QStringLiteral("Long"), longListing(20, "x"));
  const quint16 port = share();
  client_.messages.answers = {true};
  client_.display.onEvents = [this] { client_.state.AbortRequested = true; };
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return !client_.messages.informed.empty(); }));
  EXPECT_EQ(client_.messages.informed[0],
            QStringLiteral("1 list was left out, since unpacking was cancelled. "
                           "The archives stay in the folder."));
  EXPECT_EQ(client_.display.status, QStringLiteral("Unpacking Long.zip"));
  EXPECT_EQ(client_.display.log.count(QStringLiteral("progress shown")), 1);
  EXPECT_EQ(client_.display.log.count(QStringLiteral("progress unloaded")), 1);
  EXPECT_FALSE(client_.state.AbortRequested);
  EXPECT_EQ(client_.state.OfflineSourceCount, 0);
}

TEST_F(PeerExchangeTest, ReceivedListsWaitForSearchRefreshAndUpdate) {
  server_.addListedSource(QStringLiteral("Music"), "x");
  const quint16 port = share();
  client_.messages.answers = {true};
  std::optional<Job> refresh = client_.work.start(JobKind::Refresh);
  std::optional<Job> search = client_.work.start(JobKind::Search);
  ASSERT_TRUE(refresh && search);
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return client_.ends == 1; }));
  client_.waitForAttempts();
  search.reset();
  client_.waitForAttempts();
  EXPECT_TRUE(client_.messages.asked.empty());
  client_.getFrom(port);
  EXPECT_EQ(client_.messages.informed,
            std::vector<QString>{QStringLiteral("Lists are already being received.")});
  refresh.reset();
  ASSERT_TRUE(eventually([&] { return client_.additions == 1; }));
  EXPECT_FALSE(client_.work.isRunning(JobKind::Getting));
}

TEST_F(PeerExchangeTest, TheUserIsNotAskedWhileADialogIsOpen) {
  server_.addListedSource(QStringLiteral("Music"), "x");
  const quint16 port = share();
  client_.mayAsk = false;
  client_.messages.answers = {true};
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return client_.ends == 1; }));
  client_.waitForAttempts();
  EXPECT_TRUE(client_.messages.asked.empty());
  client_.mayAsk = true;
  EXPECT_TRUE(eventually([&] { return client_.additions == 1; }));
}

TEST_F(PeerExchangeTest, AClosingProgramAsksNothing) {
  server_.addListedSource(QStringLiteral("Music"), "x");
  const quint16 port = share();
  client_.mayAsk = false;
  client_.getFrom(port);
  ASSERT_TRUE(eventually([&] { return client_.ends == 1; }));
  client_.state.QuitPending = true;
  client_.mayAsk = true;
  client_.waitForAttempts();
  EXPECT_TRUE(client_.messages.asked.empty());
}

TEST_F(PeerExchangeTest, OneConversationAtATime) {
  ScriptedServer silent([](const QByteArray&) { return std::vector<QByteArray>{}; });
  client_.getFrom(silent.port());
  client_.getFrom(silent.port());
  EXPECT_EQ(client_.begins, 1);
  ASSERT_EQ(client_.messages.informed.size(), 1U);
  EXPECT_EQ(client_.messages.informed[0], QStringLiteral("Lists are already being received."));
  client_.exchange.client().cancel();
  EXPECT_EQ(client_.ends, 1);
}

TEST_F(PeerExchangeTest, ANameThatIsNoAddressIsTold) {
  client_.exchange.getLists(QStringLiteral("http://<b>nas</b>"));
  ASSERT_EQ(client_.messages.informed.size(), 1U);
  EXPECT_EQ(client_.messages.informed[0],
            QStringLiteral("\"http://<b>nas</b>\" is not the name or address of a computer."));
  EXPECT_EQ(client_.begins, 0);
}

TEST_F(PeerExchangeTest, AProgramMayGetFromItself) {
  server_.addListedSource(QStringLiteral("Music"), "x");
  const quint16 port = share();
  server_.messages.answers = {true};
  server_.getFrom(port);
  EXPECT_TRUE(eventually([&] { return server_.additions == 1; }));
}

}  // namespace

}  // namespace quorvin::test
