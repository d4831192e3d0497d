// SPDX-License-Identifier: GPL-2.0-or-later

// Telling what came from a peer, and adding it to the offline sources.
#include "peers/client/list_offer.h"

#include "archive/archive_maker.h"
#include "faults/runtime_fault.h"
#include "peers/peer_program.h"
#include "state/source_list_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

class PeerOfferTest : public testing::Test {
 protected:
  /// As if the list had come; `files` will be unpacked from its archive.
  void receive(const QString& name, const QStringList& files) {
    const QString archive = program_.folder.writeFile(
        QStringLiteral("Received/nas/") + name + QStringLiteral(".zip"), files.join(u'|').toUtf8());
    outcome_.received.push_back({name, archive});
  }
  bool offer(bool answer = true) {
    program_.messages.answers = {answer};
    return offerReceivedLists(outcome_, program_.state, job(), program_.messages,
                              [this](const QString& archive, const QString& folder) {
                                unpack(archive, folder);
                                return true;
                              });
  }
  Job& job() {
    if (!job_) job_.emplace(*program_.work.start(JobKind::Unpacking));
    return *job_;
  }
  QString path(const QString& name) const {
    return program_.folder.pathOf(QStringLiteral("Received/nas/") + name);
  }
  std::string told(std::size_t index) const { return program_.messages.informed.at(index).toStdString(); }
  std::string asked(std::size_t index = 0) const { return program_.messages.asked.at(index).toStdString(); }

  PeerProgram program_;
  PeerOutcome outcome_{QStringLiteral("nas"), {}, {}, false};

 private:
  std::optional<Job> job_;

  void unpack(const QString& archive, const QString& folder) {
    QFile file(archive);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray names = file.readAll();
    if (names == "broken") throw RuntimeFault(FaultNumber::PathFileAccess, QStringLiteral("It is broken"));
    for (const QByteArray& name : names.split('|')) {
      const QString inside = folder.mid(program_.folder.path().size()) + QString::fromUtf8(name);
      program_.folder.writeFile(inside, "listing");
    }
  }
};

TEST_F(PeerOfferTest, AddsListsToTheOfflineSources) {
  receive(QStringLiteral("Music"), {QStringLiteral("Music.txt")});
  receive(QStringLiteral("Films"), {QStringLiteral("Films.txt")});
  EXPECT_TRUE(offer());
  EXPECT_THAT(asked(), HasSubstr("2 lists came from nas into the folder\r\n"));
  EXPECT_THAT(
      asked(),
      EndsWith("Add the received lists to the offline sources, so that the next search includes them?"));
  ASSERT_EQ(program_.state.OfflineSourceCount, 2);
  EXPECT_EQ(program_.state.OfflineSources.description(1), QStringLiteral("Music from nas"));
  EXPECT_EQ(program_.state.OfflineSources.path(1), path(QStringLiteral("Music/Music.txt")));
  EXPECT_EQ(program_.state.OfflineSources.path(2), path(QStringLiteral("Films/Films.txt")));
  EXPECT_TRUE(program_.messages.informed.empty());
}

TEST_F(PeerOfferTest, TheQuestionSaysHowManyListingsThereAreAndHowMuchRoom) {
  receive(QStringLiteral("Music"), {QStringLiteral("Music.txt")});
  outcome_.listings = 2500;
  offer(false);
  receive(QStringLiteral("Films"), {QStringLiteral("Films.txt")});
  outcome_.listings = 1;
  offer(false);
  program_.state.OfflineSourceCount = 1999;
  outcome_.listings = 2;
  offer(false);
  program_.state.OfflineSourceCount = 2000;
  offer(false);
  EXPECT_THAT(asked(0), HasSubstr("\r\n\r\nThe archive holds 2500 listings. There is room for 2000 more "
                                  "offline sources.\r\n\r\nAdd the received lists"));
  EXPECT_THAT(asked(1), HasSubstr("\r\n\r\nThe archives hold 1 listing.\r\n\r\nAdd the received lists"));
  EXPECT_THAT(asked(2),
              HasSubstr("The archives hold 2 listings. There is room for 1 more offline source.\r\n"));
  EXPECT_THAT(asked(3), HasSubstr(" There is room for 0 more offline sources.\r\n"));
  program_.state.OfflineSourceCount = 1995;
  outcome_.listings = 5;
  offer(false);
  EXPECT_THAT(asked(4), HasSubstr("The archives hold 5 listings.\r\n"));
}

TEST_F(PeerOfferTest, TheUsualQuestionSaysNothingOfListings) {
  receive(QStringLiteral("Music"), {QStringLiteral("Music.txt")});
  outcome_.listings = 1;
  offer(false);
  EXPECT_THAT(asked(0), testing::Not(HasSubstr("listing")));
  EXPECT_THAT(asked(0), testing::Not(HasSubstr("room")));
}

TEST_F(PeerOfferTest, CountsTheListingsThatUnpackingWouldGive) {
  const auto put = [this](const QString& name, const std::vector<MadeEntry>& entries) {
    outcome_.received.push_back({name, program_.folder.writeFile(name, archiveOf(entries))});
  };
  MadeEntry folder;
  folder.name = "folder.txt/";
  folder.mode = kFolderMode;
  const auto file = [](const QByteArray& name) {
    MadeEntry entry;
    entry.name = name;
    entry.content = "x";
    return entry;
  };
  put(QStringLiteral("a.zip"),
      {file("a.txt"), file("sub/B.TXT"), file("c.doc"), file(".hidden.txt"), file(".sub/d.txt"), folder});
  EXPECT_EQ(countListings(outcome_.received, job()), 2);
  // What would lead out of the folder is not unpacked at all.
  put(QStringLiteral("b.zip"), {file("a.txt"), file("../b.txt")});
  outcome_.received.push_back(
      {QStringLiteral("c"), program_.folder.writeFile(QStringLiteral("c.zip"), "no")});
  EXPECT_EQ(countListings(outcome_.received, job()), 2);
}

TEST_F(PeerOfferTest, TheListsOfAPeerAreReplacedByItsNewOnes) {
  program_.state.OfflineSources.set(1, QStringLiteral("Music from nas"), QStringLiteral("/my/own.txt"));
  program_.state.OfflineSourceCount = 1;
  receive(QStringLiteral("Music"), {QStringLiteral("Music.txt")});
  EXPECT_TRUE(offer());
  outcome_.received.clear();
  receive(QStringLiteral("Music"), {QStringLiteral("Music.txt")});
  receive(QStringLiteral("Films"), {QStringLiteral("Films.txt")});
  EXPECT_TRUE(offer());
  ASSERT_EQ(program_.state.OfflineSourceCount, 3);
  EXPECT_EQ(program_.state.OfflineSources.path(1), QStringLiteral("/my/own.txt"));
  EXPECT_EQ(program_.state.OfflineSources.description(2), QStringLiteral("Music from nas"));
  EXPECT_EQ(program_.state.OfflineSources.path(2), path(QStringLiteral("Music (2)/Music.txt")));
  EXPECT_EQ(program_.state.OfflineSources.description(3), QStringLiteral("Films from nas"));
}

TEST_F(PeerOfferTest, ListsOfTheSameNameThatComeTogetherAreAllAdded) {
  receive(QStringLiteral("All"), {QStringLiteral("a.txt"), QStringLiteral("sub/a.txt")});
  EXPECT_TRUE(offer());
  EXPECT_EQ(program_.state.OfflineSourceCount, 2);
}

TEST_F(PeerOfferTest, AddsNothingThatTheUserDoesNotWant) {
  receive(QStringLiteral("Music"), {QStringLiteral("Music.txt")});
  EXPECT_FALSE(offer(false));
  EXPECT_EQ(program_.state.OfflineSourceCount, 0);
  EXPECT_FALSE(QFile::exists(path(QStringLiteral("Music"))));
  EXPECT_TRUE(QFile::exists(path(QStringLiteral("Music.zip"))));
}

TEST_F(PeerOfferTest, UnpacksIntoAFolderOfItsOwn) {
  receive(QStringLiteral("Music"), {QStringLiteral("Music.txt")});
  program_.folder.writeFile(QStringLiteral("Received/nas/Music/Music.txt"), "the user's own");
  EXPECT_TRUE(offer());
  EXPECT_EQ(program_.folder.readFile(QStringLiteral("Received/nas/Music/Music.txt")),
            QByteArray("the user's own"));
  EXPECT_EQ(program_.state.OfflineSources.path(1), path(QStringLiteral("Music (2)/Music.txt")));
}

TEST_F(PeerOfferTest, EveryTextFileOfAnArchiveIsAList) {
  receive(QStringLiteral("All"),
          {QStringLiteral("b.TXT"), QStringLiteral("sub/a.txt"), QStringLiteral("c.exe")});
  EXPECT_TRUE(offer());
  ASSERT_EQ(program_.state.OfflineSourceCount, 2);
  EXPECT_EQ(program_.state.OfflineSources.description(1), QStringLiteral("b from nas"));
  EXPECT_EQ(program_.state.OfflineSources.description(2), QStringLiteral("a from nas"));
}

TEST_F(PeerOfferTest, AnArchiveThatCannotBeUnpackedIsToldAndTheOthersAreAdded) {
  receive(QStringLiteral("Music"), {QStringLiteral("broken")});
  receive(QStringLiteral("Films"), {QStringLiteral("Films.txt")});
  EXPECT_TRUE(offer());
  EXPECT_EQ(program_.state.OfflineSourceCount, 1);
  EXPECT_THAT(program_.messages.informed, ElementsAre(QStringLiteral("\"Music\": It is broken.")));
  EXPECT_FALSE(QFile::exists(path(QStringLiteral("Music"))));
}

TEST_F(PeerOfferTest, AnArchiveWithoutListingIsTold) {
  receive(QStringLiteral("Music"), {QStringLiteral("readme.doc")});
  EXPECT_FALSE(offer());
  EXPECT_THAT(program_.messages.informed,
              ElementsAre(QStringLiteral("The archive of \"Music\" holds no listing.")));
}

TEST_F(PeerOfferTest, AFullTableIsToldAndNothingIsLost) {
  program_.state.OfflineSourceCount = 1999;
  receive(QStringLiteral("Music"),
          {QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt")});
  EXPECT_TRUE(offer());
  EXPECT_EQ(program_.state.OfflineSourceCount, 2000);
  EXPECT_EQ(program_.state.OfflineSources.path(2000), path(QStringLiteral("Music/a.txt")));
  EXPECT_THAT(program_.messages.informed,
              ElementsAre(QStringLiteral(
                  "There is no room for more than 2000 offline sources. The received lists stay "
                  "unpacked beside its archives.")));
}

TEST_F(PeerOfferTest, NoNameCanWriteRecordsIntoTheFileOfTheSources) {
  receive(QStringLiteral("x"), {QStringLiteral("a.txt")});
  receive(QStringLiteral("y"), {QStringLiteral("b\",\"c.txt")});
  outcome_.received[0].name = QStringLiteral("x\",\"/etc/passwd\"\r\n\"y");
  EXPECT_TRUE(offer());
  ASSERT_EQ(program_.state.OfflineSourceCount, 1);
  EXPECT_THAT(told(0), HasSubstr("has a name that no source can have"));
  const QString file = program_.folder.pathOf(QStringLiteral("OfflineLocations.txt"));
  saveSourceList(file, program_.state.OfflineSources, program_.state.OfflineSourceCount);
  SourceTable read;
  int count = 0;
  loadSourceList(file, read, count);
  EXPECT_EQ(count, 1);
  EXPECT_EQ(read.description(1), QStringLiteral("x','/etc/passwd'  'y from nas"));
  EXPECT_EQ(read.path(1), path(QStringLiteral("x/a.txt")));
}

TEST_F(PeerOfferTest, LinksInAnUnpackedFolderAreNoLists) {
  receive(QStringLiteral("Music"), {QStringLiteral("a.txt")});
  program_.messages.answers = {true};
  EXPECT_FALSE(offerReceivedLists(
      outcome_, program_.state, job(), program_.messages, [](const QString&, const QString& folder) {
        return QFile::link(QStringLiteral("/etc/passwd"), folder + QStringLiteral("p.txt"));
      }));
  EXPECT_EQ(program_.state.OfflineSourceCount, 0);
}

TEST_F(PeerOfferTest, AnUnpackingThatTheUserEndsLeavesNothingOfItsListAndSkipsTheRest) {
  receive(QStringLiteral("Music"), {QStringLiteral("a.txt")});
  receive(QStringLiteral("Talks"), {QStringLiteral("b.txt")});
  program_.messages.answers = {true};
  EXPECT_FALSE(offerReceivedLists(outcome_, program_.state, job(), program_.messages,
                                  [](const QString&, const QString& folder) {
                                    QFile(folder + QStringLiteral("half.txt")).open(QIODevice::WriteOnly);
                                    return false;
                                  }));
  EXPECT_FALSE(QFile::exists(path(QStringLiteral("Music"))));
  EXPECT_FALSE(QFile::exists(path(QStringLiteral("Talks"))));
  EXPECT_EQ(program_.state.OfflineSourceCount, 0);
}

TEST_F(PeerOfferTest, TellsWhyNothingCame) {
  outcome_.problems = {QStringLiteral("The peer could not be reached: Connection refused.")};
  EXPECT_FALSE(offer());
  EXPECT_THAT(
      program_.messages.informed,
      ElementsAre(QStringLiteral("No lists came from nas.\r\n\r\nThe peer could not be reached: Connection "
                                 "refused.")));
  EXPECT_TRUE(program_.messages.asked.empty());
}

TEST_F(PeerOfferTest, ACancelledConversationWithoutListsIsNotTold) {
  outcome_.isCancelled = true;
  EXPECT_FALSE(offer());
  EXPECT_TRUE(program_.messages.informed.empty());
  EXPECT_TRUE(program_.messages.asked.empty());
}

TEST_F(PeerOfferTest, EachArchiveStartsItsOwnBar) {
  const QString archive = program_.folder.writeFile(QStringLiteral("Music.zip"), smallArchive());
  EXPECT_TRUE(unpackingIn(job())(archive, program_.folder.makeFolder(QStringLiteral("Music"))));
  EXPECT_THAT(
      program_.display.log.mid(program_.display.log.indexOf(QStringLiteral("status Unpacking Music.zip")), 3),
      ElementsAre(QStringLiteral("status Unpacking Music.zip"), QStringLiteral("maximum 100"),
                  QStringLiteral("bar 0")));
}

TEST_F(PeerOfferTest, ProblemsOfACancelledConversationAreReported) {
  outcome_.isCancelled = true;
  outcome_.problems = {QStringLiteral("Music did not come.")};
  EXPECT_FALSE(offer());
  EXPECT_THAT(program_.messages.informed,
              ElementsAre(QStringLiteral("No lists came from nas.\r\n\r\nMusic did not come.")));
}

TEST_F(PeerOfferTest, AnEndWithoutListsAndProblemsIsReported) {
  EXPECT_FALSE(offer());
  EXPECT_EQ(program_.messages.informed.size(), 1U);
}

TEST_F(PeerOfferTest, TheQuestionTellsWhatDidNotCome) {
  receive(QStringLiteral("Music"), {QStringLiteral("Music.txt")});
  for (int i = 1; i <= 12; ++i) outcome_.problems += QStringLiteral("Problem %1.").arg(i);
  EXPECT_TRUE(offer());
  EXPECT_THAT(asked(), HasSubstr("Problem 10.\r\nThere were 2 more problems.\r\n"));
  EXPECT_THAT(asked(), HasSubstr("1 list came from nas"));
}

}  // namespace

}  // namespace quorvin::test
