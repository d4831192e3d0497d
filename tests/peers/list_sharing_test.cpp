// SPDX-License-Identifier: GPL-2.0-or-later

// Offering the listings of the online sources.
#include "peers/server/list_sharing.h"

#include "archive/archive_packing.h"
#include "archive/archive_reader.h"
#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "peers/peer_caller.h"

#include <QTcpServer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace quorvin::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// The one file in an archive: "NAME: CONTENT".
std::string contentOf(const QString& path) {
  const ArchiveReader archive(path, -1, 10);
  const ArchiveEntry entry = archive.entry(0);
  ArchiveContent content(archive, entry);
  std::string text(entry.size + 1, '\0');
  text.resize(content.read(std::span<char>(text.data(), text.size())));
  EXPECT_EQ(archive.entryCount(), 1U);
  return entry.name.toStdString() + ": " + text;
}

bool neverStop(int) {
  return false;
}

class PeerSharingTest : public testing::Test {
 protected:
  bool start() { return sharing_.start(0); }
  QStringList archives() const {
    return QDir(program_.folder.path()).entryList({QStringLiteral("*.zip")}, QDir::Files, QDir::Name);
  }
  std::string told(std::size_t index) const { return program_.messages.informed.at(index).toStdString(); }

  PeerProgram program_;
  std::function<void()>& onEvents_ = program_.display.onEvents;
  ListSharing sharing_{program_.state, program_.work, program_.messages, QLocale::c()};
};

TEST_F(PeerSharingTest, IsOffAtFirst) {
  EXPECT_FALSE(sharing_.isSharing());
  EXPECT_FALSE(sharing_.server().isListening());
}

TEST_F(PeerSharingTest, MakesAnArchiveOfEachListingAndTellsTheAddress) {
  program_.addListedSource(QStringLiteral("Music"), "music listing");
  program_.addSource(QStringLiteral("Films"));
  program_.addListedSource(QStringLiteral(" Books "), "never");
  program_.folder.writeFile(QStringLiteral("Books.txt"), "book listing");
  EXPECT_TRUE(start());
  EXPECT_EQ(archives(), (QStringList{QStringLiteral(" Books .zip"), QStringLiteral("Films.zip"),
                                     QStringLiteral("Music.zip")}));
  EXPECT_EQ(contentOf(program_.folder.pathOf(QStringLiteral("Music.zip"))), "Music.txt: music listing");
  EXPECT_EQ(contentOf(program_.folder.pathOf(QStringLiteral(" Books .zip"))), "Books.txt: book listing");
  ASSERT_EQ(program_.messages.informed.size(), 1U);
  EXPECT_THAT(told(0),
              HasSubstr("Your lists are shared on port " + std::to_string(sharing_.server().port())));
  EXPECT_THAT(told(0), Not(HasSubstr("Not all could be packed")));
}

TEST_F(PeerSharingTest, TheAddressesAreThoseThatOthersCanReach) {
  EXPECT_TRUE(start());
  EXPECT_THAT(told(0), Not(HasSubstr("127.0.0.1")));
}

TEST_F(PeerSharingTest, CallersGetTheArchives) {
  program_.addListedSource(QStringLiteral("Music"), "music listing");
  ASSERT_TRUE(start());
  const QByteArray archive = program_.folder.readFile(QStringLiteral("Music.zip"));
  PeerCaller caller(sharing_.server().port());
  EXPECT_EQ(caller.ask("GetList: Music", 15 + archive.size()), "List: Music.zip" + archive);
}

TEST_F(PeerSharingTest, AfterARefreshTheArchivesAreMadeAnew) {
  program_.addListedSource(QStringLiteral("Music"), "old");
  program_.addSource(QStringLiteral("Films"));
  ASSERT_TRUE(start());
  program_.folder.writeFile(QStringLiteral("Music.txt"), "new");
  program_.folder.writeFile(QStringLiteral("Films.txt"), "films");
  sharing_.sourcesRefreshed();
  EXPECT_EQ(contentOf(program_.folder.pathOf(QStringLiteral("Music.zip"))), "Music.txt: new");
  EXPECT_EQ(contentOf(program_.folder.pathOf(QStringLiteral("Films.zip"))), "Films.txt: films");
  EXPECT_EQ(program_.messages.informed.size(), 1U);
}

TEST_F(PeerSharingTest, ArchivesOfSourcesThatAreNoLongerListedAreNotSent) {
  program_.addListedSource(QStringLiteral("Music"), "music");
  program_.addListedSource(QStringLiteral("Films"), "films");
  ASSERT_TRUE(start());
  // The row after the last one keeps its texts, and it is the one that the look for an unknown list ends at.
  program_.state.OnlineSourceCount = 1;
  program_.folder.writeFile(QStringLiteral("mine.zip"), "the user's own");
  sharing_.sourcesRefreshed();
  EXPECT_EQ(archives(), (QStringList{QStringLiteral("Music.zip"), QStringLiteral("mine.zip")}));
  PeerCaller caller(sharing_.server().port());
  EXPECT_EQ(caller.ask("GetList: whatever", 18), QByteArray("List: whatever.zip"));
  EXPECT_EQ(caller.receiveRest(), QByteArray());
}

TEST_F(PeerSharingTest, TheArchiveOfTheRowBeforeTheFirstSourceIsNotKept) {
  program_.addListedSource(QStringLiteral("Music"), "music");
  program_.addListedSource(QStringLiteral("Films"), "films");
  ASSERT_TRUE(start());
  program_.state.OnlineSourceCount = 1;
  program_.state.OnlineSources.set(0, QStringLiteral("Films"), QStringLiteral("/films/"));
  sharing_.sourcesRefreshed();
  EXPECT_EQ(archives(), QStringList{QStringLiteral("Music.zip")});
}

TEST_F(PeerSharingTest, ASourceWithoutAListingIsNotAnsweredWithTheArchiveOfAnother) {
  program_.addSource(QStringLiteral("Films"));
  program_.addListedSource(QStringLiteral("Music"), "music");
  // As it is left when the first of three rows was deleted.
  program_.state.OnlineSources.set(3, QStringLiteral("Music"), QStringLiteral("/nowhere/"));
  ASSERT_TRUE(start());
  EXPECT_EQ(program_.folder.readFile(QStringLiteral("Films.zip")), QByteArray());
  PeerCaller caller(sharing_.server().port());
  EXPECT_EQ(caller.ask("GetList: Films", 15), QByteArray("List: Films.zip"));
  EXPECT_EQ(caller.receiveRest(), QByteArray());
}

TEST_F(PeerSharingTest, TheEmptyArchiveGoesWithItsSourceAndAnEarlierOneStays) {
  program_.addSource(QStringLiteral("Music"), smallArchive());
  program_.addSource(QStringLiteral("Films"));
  ASSERT_TRUE(start());
  EXPECT_EQ(archives(), (QStringList{QStringLiteral("Films.zip"), QStringLiteral("Music.zip")}));
  EXPECT_NE(program_.folder.readFile(QStringLiteral("Music.zip")), QByteArray());
  program_.state.OnlineSourceCount = 1;
  sharing_.sourcesRefreshed();
  EXPECT_EQ(archives(), QStringList{QStringLiteral("Music.zip")});
}

TEST_F(PeerSharingTest, ARefreshWithoutSharingMakesNothing) {
  program_.addListedSource(QStringLiteral("Music"), "x");
  sharing_.sourcesRefreshed();
  EXPECT_EQ(archives(), QStringList());
}

TEST_F(PeerSharingTest, AnArchiveOfTheUsersIsKeptAndTold) {
  program_.addListedSource(QStringLiteral("Music"), "x");
  program_.addListedSource(QStringLiteral("Films"), "y");
  program_.folder.writeFile(QStringLiteral("Music.zip"), "the user's own");
  EXPECT_TRUE(start());
  EXPECT_EQ(program_.folder.readFile(QStringLiteral("Music.zip")), QByteArray("the user's own"));
  EXPECT_EQ(contentOf(program_.folder.pathOf(QStringLiteral("Films.zip"))), "Films.txt: y");
  ASSERT_EQ(program_.messages.informed.size(), 1U);
  EXPECT_THAT(told(0), HasSubstr("Music.zip was not made by sharing. It was kept"));
}

TEST_F(PeerSharingTest, TheArchiveOfTheMainDataFileIsKept) {
  const TemporaryFolder other;
  packListing(other.writeFile(QStringLiteral("main.txt"), "main"), other.pathOf(QStringLiteral("main.zip")),
              neverStop);
  const QByteArray fromServer = other.readFile(QStringLiteral("main.zip"));
  program_.state.ArchiveFile = QStringLiteral("main.zip");
  program_.folder.writeFile(QStringLiteral("main.zip"), fromServer);
  program_.addListedSource(QStringLiteral("main"), "mine");
  EXPECT_TRUE(start());
  EXPECT_EQ(program_.folder.readFile(QStringLiteral("main.zip")), fromServer);
  EXPECT_THAT(told(0), HasSubstr("main.zip was not made by sharing"));
}

TEST_F(PeerSharingTest, AnArchiveThatCannotBeMadeIsTold) {
  program_.addListedSource(QStringLiteral("Music"), "x");
  program_.addSource(QStringLiteral("deep/Films"));
  program_.folder.writeFile(QStringLiteral("deep/Films.txt"), "y");
  program_.folder.makeFolder(QStringLiteral("Music.zip"));
  EXPECT_TRUE(start());
  EXPECT_THAT(told(0), HasSubstr("Not all could be packed:\r\n"));
  EXPECT_THAT(told(0), HasSubstr("Music.zip was not made by sharing"));
  EXPECT_EQ(contentOf(program_.folder.pathOf(QStringLiteral("deep/Films.zip"))), "Films.txt: y");
}

TEST_F(PeerSharingTest, APortThatIsTakenIsToldWithTheReason) {
  QTcpServer other;
  ASSERT_TRUE(other.listen(QHostAddress::Any));
  EXPECT_FALSE(sharing_.start(other.serverPort()));
  EXPECT_FALSE(sharing_.isSharing());
  const std::string port = std::to_string(other.serverPort());
  EXPECT_THAT(program_.messages.informed,
              ElementsAre(QString::fromStdString("Your lists are not shared: port " + port +
                                                 " could not be opened.\r\n\r\nThe bound address is already "
                                                 "in use.")));
}

TEST_F(PeerSharingTest, StoppingOffersNothingAnyMore) {
  program_.addListedSource(QStringLiteral("Music"), "x");
  ASSERT_TRUE(start());
  PeerCaller caller(sharing_.server().port());
  EXPECT_EQ(caller.ask("Connecting from: x", 3), QByteArray("OK:"));
  const quint16 port = sharing_.server().port();
  sharing_.stop();
  EXPECT_TRUE(caller.waitForClose());
  QTcpSocket late;
  late.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
  EXPECT_TRUE(eventually([&] { return late.error() == QAbstractSocket::ConnectionRefusedError; }));
  EXPECT_TRUE(sharing_.start(0));
}

TEST_F(PeerSharingTest, StoppingWhileAnArchiveIsMadeEndsThat) {
  program_.addListedSource(QStringLiteral("Music"), QByteArray(30000000, 'x'));
  program_.addListedSource(QStringLiteral("Films"), "y");
  onEvents_ = [this] { sharing_.stop(); };
  EXPECT_FALSE(start());
  EXPECT_EQ(archives(), QStringList());
  EXPECT_TRUE(program_.messages.informed.empty());
  EXPECT_FALSE(program_.work.isRunning(JobKind::Packing));
}

TEST_F(PeerSharingTest, AClosingProgramStopsMakingArchivesAndTellsNothing) {
  program_.addListedSource(QStringLiteral("Music"), QByteArray(30000000, 'x'));
  onEvents_ = [this] { program_.state.QuitPending = true; };
  start();
  EXPECT_EQ(archives(), QStringList());
  EXPECT_TRUE(program_.messages.informed.empty());
}

TEST_F(PeerSharingTest, ArchivesWaitForAnUpdateAndTheAddressIsToldAtOnce) {
  program_.addListedSource(QStringLiteral("Music"), "x");
  program_.work.run(JobKind::Update, [this](Job&) {
    EXPECT_TRUE(start());
    ASSERT_EQ(program_.messages.informed.size(), 1U);
    EXPECT_TRUE(program_.messages.informed[0].startsWith(QStringLiteral("Your lists are shared on port ")));
    EXPECT_TRUE(program_.messages.informed[0].endsWith(
        QStringLiteral("\r\n\r\nThey are packed when the running work has ended.")));
    EXPECT_EQ(archives(), QStringList());
  });
  EXPECT_EQ(archives(), QStringList{QStringLiteral("Music.zip")});
  EXPECT_EQ(program_.messages.informed.size(), 1U);
}

TEST_F(PeerSharingTest, ARefreshWhileArchivesAreMadeHasThemMadeOnceMore) {
  program_.addListedSource(QStringLiteral("Music"), QByteArray(30000000, 'x'));
  bool isFirst = true;
  onEvents_ = [&] {
    if (!std::exchange(isFirst, false)) return;
    program_.folder.writeFile(QStringLiteral("new.txt"), "new");
    QFile::remove(program_.folder.pathOf(QStringLiteral("Music.txt")));
    QFile::rename(program_.folder.pathOf(QStringLiteral("new.txt")),
                  program_.folder.pathOf(QStringLiteral("Music.txt")));
    sharing_.sourcesRefreshed();
  };
  EXPECT_TRUE(start());
  EXPECT_FALSE(isFirst);
  EXPECT_EQ(contentOf(program_.folder.pathOf(QStringLiteral("Music.zip"))), "Music.txt: new");
}

}  // namespace

}  // namespace quorvin::test
