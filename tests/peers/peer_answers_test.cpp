// SPDX-License-Identifier: GPL-2.0-or-later

// What a server answers.
#include "faults/runtime_fault.h"
#include "peers/peer_program.h"
#include "peers/server/peer_server.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

class PeerAnswers : public testing::Test {
 protected:
  PeerAnswer answer(const QByteArray& message) { return answerTo(message, program_.state, QLocale::c()); }

  PeerProgram program_;
};

TEST_F(PeerAnswers, AGreetingIsAnsweredWhateverTheAddress) {
  EXPECT_EQ(answer("Connecting from: 10.0.0.1").message, QByteArray("OK:"));
  EXPECT_EQ(answer("Connecting from:").message, QByteArray("OK:"));
}

TEST_F(PeerAnswers, AnIdentityIsAnsweredWithOurs) {
  EXPECT_EQ(answer("I AM: Eve 40000").message, QByteArray("I AM: Bob 37622"));
}

TEST_F(PeerAnswers, TheListsOfAServerWithoutSourcesAreEmpty) {
  EXPECT_EQ(answer("Req List Info:").message, QByteArray("Lists:\r\n"));
}

TEST_F(PeerAnswers, KeywordsAreComparedExactly) {
  for (const char* message : {"i am: Eve 1", "I AM : Eve 1", " I AM: Eve 1",
                              "req list info:", "getlist: Music", "Connecting From: x", ":", "x:"}) {
    EXPECT_EQ(answer(message), (PeerAnswer{"NA:", std::nullopt})) << message;
  }
}

TEST_F(PeerAnswers, AMessageWithoutAColonIsAFault) {
  try {
    answer("Req List Info");
    ADD_FAILURE() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 5);
    EXPECT_EQ(fault.description(), QStringLiteral("Invalid procedure call or argument"));
  }
}

TEST_F(PeerAnswers, AListIsFoundByItsExactName) {
  program_.addSource(QStringLiteral("music"), "x");
  program_.addSource(QStringLiteral("Music"), "x");
  EXPECT_EQ(answer("GetList: Music"), (PeerAnswer{"List: Music.zip", 2}));
}

TEST_F(PeerAnswers, OfTwoSourcesOfANameTheFirstWithAnArchiveIsSent) {
  program_.addSource(QStringLiteral("Music"));
  program_.addSource(QStringLiteral("Films"), "x");
  program_.addSource(QStringLiteral("Music"));
  EXPECT_EQ(answer("GetList: Music").archiveRow, 4);
  program_.folder.writeFile(QStringLiteral("Music.zip"), "x");
  EXPECT_EQ(answer("GetList: Music").archiveRow, 1);
}

TEST_F(PeerAnswers, AnUnknownListIsAnnouncedAllTheSame) {
  program_.addSource(QStringLiteral("Music"), "x");
  EXPECT_EQ(answer("GetList: Films"), (PeerAnswer{"List: Films.zip", 2}));
  EXPECT_EQ(answer("GetList:"), (PeerAnswer{"List: .zip", 2}));
  EXPECT_EQ(answer("GetList: Music\n"), (PeerAnswer{"List: Music\n.zip", 2}));
}

TEST_F(PeerAnswers, AFolderIsNoArchive) {
  program_.addSource(QStringLiteral("Music"));
  program_.folder.makeFolder(QStringLiteral("Music.zip"));
  EXPECT_EQ(answer("GetList: Music").archiveRow, 2);
}

TEST_F(PeerAnswers, ArchivesStandInTheLocalFolder) {
  program_.addSource(QStringLiteral("Music"));
  EXPECT_EQ(archivePathOf(program_.state, 1), program_.folder.pathOf(QStringLiteral("Music.zip")));
  EXPECT_EQ(archivePathOf(program_.state, 2), program_.folder.pathOf(QStringLiteral(".zip")));
}

TEST_F(PeerAnswers, BeyondAFullTableThereIsNoArchive) {
  for (int i = 0; i < 2000; ++i) program_.addSource(QStringLiteral("x"));
  const PeerAnswer found = answer("GetList: y");
  EXPECT_EQ(found, (PeerAnswer{"List: y.zip", 2001}));
  try {
    archivePathOf(program_.state, *found.archiveRow);
    ADD_FAILURE() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 9);
  }
}

}  // namespace

}  // namespace quorvin::test
