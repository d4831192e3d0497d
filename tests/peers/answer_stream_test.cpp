// SPDX-License-Identifier: GPL-2.0-or-later

// The stream of a server, split and joined anywhere.
#include "peers/client/answer_stream.h"

#include "faults/runtime_fault.h"
#include "peers/peer_program.h"
#include "support/processor_clock.h"
#include "support/sweep.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

using testing::ElementsAre;

/// Writes down what was found, an archive's bytes as one.
class StreamLog : public AnswerSink {
 public:
  void identityArrived(const QByteArray& message) override { identity = message; }
  bool listNamed(const QByteArray& name) override {
    lines.push_back("name " + name.toStdString());
    return true;
  }
  void archiveAnnounced(const QByteArray& name, const QByteArray& message) override {
    lines.push_back("announced " + name.toStdString() + " by " + message.toStdString());
    archive.clear();
  }
  void archiveBytes(QByteArrayView bytes) override { archive += bytes.toByteArray(); }
  void archiveWhole() override {
    lines.push_back("whole");
    archives.push_back(archive);
  }
  void archiveMissing() override { lines.push_back("missing"); }
  void archiveCut(std::int64_t length) override {
    lines.push_back("cut at " + std::to_string(length));
    rest = archive.mid(static_cast<qsizetype>(length));
  }
  bool requestLost(const QByteArray& name, bool isFirstTime) override {
    lines.push_back((isFirstTime ? "lost " : "lost again ") + name.toStdString());
    return isFirstTime;
  }

  QByteArray identity;
  std::vector<std::string> lines;
  std::vector<QByteArray> archives;
  QByteArray archive;
  QByteArray rest;
};

struct Reading {
  StreamLog log;
  AnswerStream stream{log};
};

class PeerStreamTest : public testing::Test {
 protected:
  QByteArray first_ = smallArchive("first");
  QByteArray second_ = smallArchive("second");
  QByteArray names_ = "OK:I AM: Bob 37622Lists:\r\nA\r\nB\r\n";
  QByteArray whole_ = names_ + "List: A.zip" + first_ + "List: B.zip" + second_;
};

void expectWhole(const Reading& reading, const QByteArray& first, const QByteArray& second) {
  EXPECT_EQ(reading.log.identity, QByteArray("I AM: Bob 37622"));
  EXPECT_THAT(reading.log.lines, ElementsAre("name A", "name B", "announced A by List: A.zip", "whole",
                                             "announced B by List: B.zip", "whole"));
  EXPECT_THAT(reading.log.archives, ElementsAre(first, second));
  EXPECT_TRUE(reading.stream.isComplete());
}

TEST_F(PeerStreamTest, MayComeAsOne) {
  Reading reading;
  reading.stream.feed(whole_);
  expectWhole(reading, first_, second_);
}

TEST_F(PeerStreamTest, MayComeByteByByte) {
  Reading reading;
  for (qsizetype i = 0; i < whole_.size(); ++i) {
    EXPECT_FALSE(reading.stream.isComplete()) << i;
    reading.stream.feed(whole_.mid(i, 1));
  }
  expectWhole(reading, first_, second_);
}

TEST_F(PeerStreamTest, MayBeSplitAtAnyTwoPlaces) {
  for (qsizetype one = 0; one <= whole_.size(); one += sweep(1, 7)) {
    for (qsizetype other = one; other <= whole_.size(); other += sweep(3, 11)) {
      Reading reading;
      reading.stream.feed(whole_.first(one));
      reading.stream.feed(whole_.mid(one, other - one));
      reading.stream.feed(whole_.mid(other));
      expectWhole(reading, first_, second_);
      ASSERT_FALSE(HasFailure()) << one << " and " << other;
    }
  }
}

TEST_F(PeerStreamTest, ListsMayStartWithTheIdentityMissing) {
  Reading reading;
  reading.stream.feed("NA:Lists:\r\nA\r\nList: A.zip" + first_);
  EXPECT_EQ(reading.log.identity, QByteArray());
  EXPECT_THAT(reading.log.archives, ElementsAre(first_));
}

TEST_F(PeerStreamTest, AnEmptyNameIsAName) {
  Reading reading;
  reading.stream.feed("Lists:\r\n\r\nList: .zip" + first_);
  EXPECT_THAT(reading.log.lines, ElementsAre("name ", "announced  by List: .zip", "whole"));
}

TEST_F(PeerStreamTest, AnEmptyListOfNamesIsAFaultOnceItHasSettled) {
  Reading reading;
  reading.stream.feed("OK:I AM: Bob 37622Lists:\r\n");
  try {
    reading.stream.settle();
    ADD_FAILURE() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 5);
  }
}

TEST_F(PeerStreamTest, AnArchiveThatIsNotThereIsMissing) {
  Reading reading;
  reading.stream.feed(names_ + "List: A.zip");
  reading.stream.settle();
  EXPECT_EQ(reading.log.lines.back(), "announced A by List: A.zip");
  reading.stream.feed("List: B.zip");
  EXPECT_EQ(reading.log.lines.back(), "announced B by List: B.zip");
  EXPECT_FALSE(reading.stream.isComplete());
  reading.stream.settle();
  EXPECT_TRUE(reading.stream.isComplete());
  EXPECT_THAT(reading.log.lines, ElementsAre("name A", "name B", "announced A by List: A.zip", "missing",
                                             "announced B by List: B.zip", "missing"));
}

TEST_F(PeerStreamTest, AStreamThatEndsBehindAnAnnouncementHasNoArchive) {
  Reading reading;
  reading.stream.feed(names_ + "List: A.zip");
  reading.stream.end();
  EXPECT_EQ(reading.log.lines.back(), "missing");
}

TEST_F(PeerStreamTest, WhatIsNoArchiveIsPassedOver) {
  Reading reading;
  reading.stream.feed(names_ + "List: A.zip<html>List: oops</html>List: B.zip" + second_);
  EXPECT_THAT(reading.log.archives, ElementsAre(second_));
  EXPECT_EQ(reading.log.lines[3], "missing");
}

TEST_F(PeerStreamTest, BytesAfterAnArchiveArePassedOver) {
  for (const qsizetype piece : {1, 2, 5, 1000}) {
    Reading reading;
    const QByteArray all = names_ + "List: A.zip" + first_ + "LiLList: Lrubbish" + "List: B.zip" + second_;
    for (qsizetype at = 0; at < all.size(); at += piece) reading.stream.feed(all.mid(at, piece));
    EXPECT_THAT(reading.log.archives, ElementsAre(first_, second_)) << piece;
  }
}

TEST_F(PeerStreamTest, ANextAnnouncementInsideAnArchiveIsPartOfIt) {
  // Packed in another archive, which does not compress it, stands what looks like the next message.
  const QByteArray decoy = "List: B.zip" + second_;
  const QByteArray local("PK\x03\x04\x0a\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 30);
  const qsizetype offset = local.size() + decoy.size();
  QByteArray end("PK\x05\x06\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 22);
  end[16] = static_cast<char>(offset & 0xFF);
  end[17] = static_cast<char>(offset >> 8);
  const QByteArray outer = local + decoy + end;
  Reading reading;
  reading.stream.feed(names_ + "List: A.zip" + outer + "List: B.zip" + second_);
  EXPECT_THAT(reading.log.archives, ElementsAre(outer, second_));
}

TEST_F(PeerStreamTest, ABrokenArchiveEndsAtTheNextAnnouncement) {
  // Up to the archive's comment, which takes any bytes.
  const qsizetype lastLength = first_.indexOf("Quorvin Utility");
  for (qsizetype length = 4; length < lastLength; ++length) {
    Reading reading;
    const QByteArray broken = first_.first(length);
    reading.stream.feed(names_ + "List: A.zip" + broken + "List: B.zip" + second_);
    EXPECT_TRUE(reading.stream.mayBeCut());
    reading.stream.end();
    EXPECT_EQ(reading.log.lines.back(), "cut at " + std::to_string(length));
    const QByteArray rest = reading.log.rest;
    reading.stream.feed(rest);
    EXPECT_THAT(reading.log.archives, ElementsAre(second_)) << length;
    EXPECT_TRUE(reading.stream.isComplete());
  }
}

TEST_F(PeerStreamTest, TheNextAnnouncementIsSeenWhereverItIsSplit) {
  const QByteArray broken = first_.first(30);
  const QByteArray next = "List: B.zip" + second_;
  const QByteArray before = names_ + "List: A.zip" + broken;
  for (qsizetype split = 0; split <= 14; ++split) {
    Reading reading;
    reading.stream.feed(before + next.first(split));
    reading.stream.feed(next.mid(split));
    reading.stream.end();
    EXPECT_EQ(reading.log.lines.back(), "cut at 30") << split;
  }
}

TEST_F(PeerStreamTest, ABrokenLastArchiveIsCutWhereTheStreamEnds) {
  Reading reading;
  reading.stream.feed("Lists:\r\nA\r\nList: A.zip" + first_.chopped(1));
  EXPECT_FALSE(reading.stream.mayBeCut());
  reading.stream.end();
  EXPECT_EQ(reading.log.lines.back(), "cut at " + std::to_string(first_.size() - 1));
}

TEST_F(PeerStreamTest, RequestsThatWereTakenForOneAreLost) {
  Reading reading;
  reading.stream.feed(names_ + "List: AGetList: B.zip");
  EXPECT_THAT(reading.log.lines, ElementsAre("name A", "name B", "lost A", "lost B"));
  reading.stream.feed("List: A.zip" + first_ + "List: B.zip" + second_);
  EXPECT_THAT(reading.log.archives, ElementsAre(first_, second_));
  EXPECT_TRUE(reading.stream.isComplete());
}

TEST_F(PeerStreamTest, EightRequestsMayBeTakenForOne) {
  QByteArray names = "Lists:\r\n";
  QByteArray joined = "List: 1";
  for (int number = 1; number <= 9; ++number) names += QByteArray::number(number) + "\r\n";
  for (int number = 2; number <= 8; ++number) joined += "GetList: " + QByteArray::number(number);
  Reading eight;
  eight.stream.feed(names + joined + ".zip");
  ASSERT_EQ(eight.log.lines.size(), 17U);
  EXPECT_EQ(eight.log.lines[9], "lost 1");
  EXPECT_EQ(eight.log.lines.back(), "lost 8");
  // More of them is an answer to none.
  Reading nine;
  nine.stream.feed(names + joined + "GetList: 9.zip");
  EXPECT_EQ(nine.log.lines.size(), 9U);
  Reading later;
  later.stream.feed("Lists:\r\n0\r\n" + names.sliced(8) + "List: 0.zip" + first_ + joined + "GetList: 9.zip");
  EXPECT_EQ(later.log.lines.size(), 12U);
  EXPECT_EQ(later.log.lines.back(), "whole");
}

TEST_F(PeerStreamTest, ARequestIsOnlyLostTwice) {
  Reading reading;
  reading.stream.feed(names_ + "List: AGetList: B.zip" + "List: AGetList: B.zip");
  EXPECT_THAT(reading.log.lines,
              ElementsAre("name A", "name B", "lost A", "lost B", "lost again A", "lost again B"));
  EXPECT_TRUE(reading.stream.isComplete());
}

TEST_F(PeerStreamTest, EachOfTwoListsOfTheSameNameIsAskedForAgain) {
  Reading reading;
  reading.stream.feed("Lists:\r\nA\r\nA\r\nList: AGetList: A.zip");
  EXPECT_THAT(reading.log.lines, ElementsAre("name A", "name A", "lost A", "lost A"));
  reading.stream.feed("List: A.zip" + first_ + "List: A.zip" + second_);
  EXPECT_THAT(reading.log.archives, ElementsAre(first_, second_));
  EXPECT_TRUE(reading.stream.isComplete());
}

TEST_F(PeerStreamTest, ListsOfTheSameNameComeOneAfterTheOther) {
  Reading reading;
  reading.stream.feed("Lists:\r\nA\r\nA\r\nList: A.zip" + first_ + "List: A.zip" + first_);
  EXPECT_THAT(reading.log.archives, ElementsAre(first_, first_));
  EXPECT_TRUE(reading.stream.isComplete());
}

int faultOf(AnswerStream& stream, const QByteArray& bytes, int times) {
  try {
    for (int i = 0; i < times; ++i) stream.feed(bytes);
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

TEST_F(PeerStreamTest, AnAnswerWithoutSenseIsAFaultAfter64Kibibytes) {
  Reading reading;
  EXPECT_EQ(faultOf(reading.stream, QByteArray(1024, 'x'), 64), 0);
  EXPECT_EQ(faultOf(reading.stream, "x", 1), 13);
}

TEST_F(PeerStreamTest, ANameWithoutEndIsAFault) {
  Reading reading;
  reading.stream.feed("Lists:\r\n");
  EXPECT_EQ(faultOf(reading.stream, QByteArray(1024, 'x'), 100), 13);
}

TEST_F(PeerStreamTest, NamesWithoutEndAreAFault) {
  Reading reading;
  reading.stream.feed("Lists:\r\n");
  EXPECT_EQ(faultOf(reading.stream, QByteArray(1022, 'x') + "\r\n", 1024), 0);
  EXPECT_EQ(faultOf(reading.stream, "\r\n", 1), 13);
}

TEST_F(PeerStreamTest, RubbishBetweenArchivesCostsLittle) {
  Reading reading;
  reading.stream.feed(names_ + "List: A.zip" + first_);
  QByteArray rubbish;
  while (rubbish.size() < 65536) rubbish += "List: AList: ";
  ProcessorClock clock;
  clock.start();
  for (int i = 0; i < 16; ++i) reading.stream.feed(rubbish);
  EXPECT_LT(clock.elapsed(), 2000);
  reading.stream.feed("List: B.zip" + second_);
  EXPECT_THAT(reading.log.archives, ElementsAre(first_, second_));
}

}  // namespace

}  // namespace quorvin::test
