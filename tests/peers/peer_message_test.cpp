// SPDX-License-Identifier: GPL-2.0-or-later

// The messages of the exchange, byte for byte.
#include "peers/messages/peer_message.h"

#include "peers/peer_program.h"
#include "support/fault_number.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(PeerMessage, TheClientGreetsWithItsAddress) {
  EXPECT_EQ(greetingMessage(QStringLiteral("192.168.1.7")), QByteArray("Connecting from: 192.168.1.7"));
}

TEST(PeerMessage, AnIdentityIsTheNicknameAndTheJoinDateAsANumber) {
  const PeerProgram program;
  EXPECT_EQ(identityMessage(program.state, QLocale::c()), QByteArray("I AM: Bob 37622"));
}

TEST(PeerMessage, ADateWithATimeHasAFraction) {
  EXPECT_EQ(dayNumberText(37622.5, QLocale::c()), QStringLiteral("37622.5"));
  EXPECT_EQ(dayNumberText(37622.123456789, QLocale::c()), QStringLiteral("37622.123456789"));
}

TEST(PeerMessage, ADayNumberHasFifteenDigitsAtMost) {
  EXPECT_EQ(dayNumberText(37622.0 + 1.0 / 3.0, QLocale::c()), QStringLiteral("37622.3333333333"));
}

TEST(PeerMessage, ADayNumberHasTheDecimalSignOfTheLocaleAndNoGrouping) {
  const QLocale german(QLocale::German, QLocale::Germany);
  EXPECT_EQ(dayNumberText(1037622.5, german), QStringLiteral("1037622,5"));
}

TEST(PeerMessage, ADayBeforeTheFirstHasAMinusSign) {
  EXPECT_EQ(dayNumberText(-1.25, QLocale::c()), QStringLiteral("-1.25"));
}

TEST(PeerMessage, ListsAreTheDescriptionsInTableOrder) {
  PeerProgram program;
  program.addSource(QStringLiteral("Music"));
  program.addSource(QStringLiteral("B\u00fccher"));
  program.addSource(QStringLiteral("Music"));
  EXPECT_EQ(listsMessage(program.state), QByteArray("Lists:\r\nMusic\r\nB\xc3\xbc"
                                                    "cher\r\nMusic\r\n"));
}

TEST(PeerMessage, WithoutSourcesThereAreNoNames) {
  const PeerProgram program;
  EXPECT_EQ(listsMessage(program.state), QByteArray("Lists:\r\n"));
}

TEST(PeerMessage, AnAnnouncementTakesTheNameAsItCame) {
  EXPECT_EQ(announcementMessage("M\xfcsic"), QByteArray("List: M\xfcsic.zip"));
}

TEST(PeerMessage, TheKeywordStandsBeforeTheFirstColon) {
  EXPECT_EQ(keywordOf("GetList: a:b").toByteArray(), QByteArray("GetList"));
  EXPECT_EQ(keywordOf(":x").toByteArray(), QByteArray(""));
}

TEST(PeerMessage, WithoutAColonThereIsNoKeyword) {
  EXPECT_EQ(faultNumberOf([] { keywordOf("GetList"); }), 5);
  EXPECT_EQ(faultNumberOf([] { keywordOf(""); }), 5);
}

TEST(PeerMessage, TheServerSkipsOneCharacterAfterTheColon) {
  EXPECT_EQ(argumentOf("GetList: Music", ArgumentOffset::Server).toByteArray(), QByteArray("Music"));
  EXPECT_EQ(argumentOf("GetList:Music", ArgumentOffset::Server).toByteArray(), QByteArray("usic"));
  EXPECT_EQ(argumentOf("GetList:", ArgumentOffset::Server).toByteArray(), QByteArray(""));
}

TEST(PeerMessage, TheClientSkipsTwoCharactersAfterTheColon) {
  EXPECT_EQ(argumentOf("I AM: Bob 37622", ArgumentOffset::Client).toByteArray(), QByteArray("ob 37622"));
  EXPECT_EQ(argumentOf("Lists:\r\nMusic\r\n", ArgumentOffset::Client).toByteArray(), QByteArray("Music\r\n"));
  EXPECT_EQ(argumentOf("I AM:", ArgumentOffset::Client).toByteArray(), QByteArray(""));
}

TEST(PeerMessage, ACharacterOfSeveralBytesIsSkippedAsAWhole) {
  EXPECT_EQ(argumentOf("I AM: \xc3\x89va 1", ArgumentOffset::Client).toByteArray(), QByteArray("va 1"));
  EXPECT_EQ(argumentOf("I AM: \xc9va 1", ArgumentOffset::Client).toByteArray(), QByteArray("va 1"));
}

}  // namespace

}  // namespace quorvin::test
