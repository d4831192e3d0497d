// SPDX-License-Identifier: GPL-2.0-or-later

// The send queue and its timer.
#include "peers/messages/send_queue.h"

#include "faults/runtime_fault.h"
#include "peers/peer_program.h"
#include "support/timer_tick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(SendQueue, NothingIsAwaitedAtFirst) {
  const SendQueue queue;
  EXPECT_EQ(queue.SendQueueCount(), 0);
  EXPECT_EQ(queue.SendQueueHead(), 0);
  EXPECT_TRUE(queue.isDrained());
  EXPECT_FALSE(queue.isReplyAwaited());
}

TEST(SendQueue, TheFirstEntryIsNumberOne) {
  SendQueue queue;
  queue.append("hello");
  EXPECT_EQ(queue.SendQueueCount(), 1);
  EXPECT_EQ(queue.entry(1).Kind, QStringLiteral("sndstr"));
  EXPECT_EQ(queue.entry(1).Payload, QByteArray("hello"));
  EXPECT_EQ(queue.entry(1).State, 0);
  EXPECT_EQ(queue.entry(0).Kind, QString());
}

TEST(SendQueue, AnEntryThatWasTakenAwaitsItsReply) {
  SendQueue queue;
  queue.append("hello");
  EXPECT_EQ(queue.takeNext().Payload, QByteArray("hello"));
  EXPECT_EQ(queue.SendQueueHead(), 1);
  EXPECT_EQ(queue.entry(1).State, 2);
  EXPECT_TRUE(queue.isReplyAwaited());
  queue.replyArrived();
  EXPECT_EQ(queue.entry(1).State, 0);
  EXPECT_FALSE(queue.isReplyAwaited());
}

TEST(SendQueue, TheMessageAfterTheThousandthIsAFault) {
  SendQueue queue;
  for (int i = 0; i < 1000; ++i) queue.append("x");
  try {
    queue.append("y");
    ADD_FAILURE() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 9);
  }
  EXPECT_EQ(queue.SendQueueCount(), 1000);
  EXPECT_EQ(queue.entry(1000).Payload, QByteArray("x"));
}

TEST(SendQueue, AnAbandonedQueueDoesNotBeginAnew) {
  SendQueue queue;
  queue.append("a");
  queue.append("b");
  queue.append("c");
  queue.takeNext();
  queue.abandon();
  EXPECT_EQ(queue.SendQueueCount(), 3);
  EXPECT_EQ(queue.SendQueueHead(), 3);
  EXPECT_FALSE(queue.isReplyAwaited());
  EXPECT_TRUE(queue.isDrained());
}

class PeerSendTimerTest : public testing::Test {
 protected:
  PeerSendTimerTest() {
    timer_.setSender([this](const QByteArray& payload) { sent_.push_back(payload); });
    timer_.setQuit([this] { ++quits_; });
  }

  QTimer& timer() { return timerOf(timer_, QStringLiteral("SndQTime")); }

  ProgramState state_;
  SendQueue queue_;
  RecordingWorkDisplay display_;
  Work work_{state_, display_};
  SendTimer timer_{work_, queue_};
  std::vector<QByteArray> sent_;
  int quits_ = 0;
};

TEST_F(PeerSendTimerTest, IsOffAtFirst) {
  EXPECT_FALSE(timer_.isEnabled());
}

TEST_F(PeerSendTimerTest, TicksTenTimesASecond) {
  EXPECT_EQ(timer().intervalAsDuration(), std::chrono::milliseconds(100));
  EXPECT_FALSE(timer().isSingleShot());
}

TEST_F(PeerSendTimerTest, TicksByItself) {
  SendTimer quick(work_, queue_, std::chrono::milliseconds(1));
  quick.setSender([this](const QByteArray& payload) { sent_.push_back(payload); });
  queue_.append("a");
  quick.enable();
  EXPECT_EVENTUALLY(sent_.size() == 1);
}

TEST_F(PeerSendTimerTest, SendsAtTheFirstTickAndSwitchesItselfOff) {
  queue_.append("a");
  queue_.append("b");
  timer_.enable();
  EXPECT_TRUE(sent_.empty());
  tick(timer());
  EXPECT_FALSE(timer_.isEnabled());
  EXPECT_THAT(sent_, testing::ElementsAre(QByteArray("a")));
}

TEST_F(PeerSendTimerTest, KeepsTickingWhileAReplyIsAwaited) {
  queue_.append("a");
  queue_.append("b");
  queue_.takeNext();
  timer_.enable();
  for (int i = 0; i < 3; ++i) tick(timer());
  EXPECT_TRUE(timer_.isEnabled());
  EXPECT_TRUE(sent_.empty());
  queue_.replyArrived();
  tick(timer());
  EXPECT_THAT(sent_, testing::ElementsAre(QByteArray("b")));
}

TEST_F(PeerSendTimerTest, SwitchesItselfOffWhenTheQueueIsDrained) {
  timer_.enable();
  tick(timer());
  EXPECT_FALSE(timer_.isEnabled());
}

TEST_F(PeerSendTimerTest, EnablingItAgainKeepsItsPace) {
  queue_.append("a");
  timer_.enable();
  const RestartWatch watch(timer());
  timer_.enable();
  EXPECT_FALSE(watch.hasRestarted());
  tick(timer());
  EXPECT_THAT(sent_, testing::ElementsAre(QByteArray("a")));
}

TEST_F(PeerSendTimerTest, AClosingProgramSendsNothingAndQuitsOnce) {
  queue_.append("a");
  state_.QuitPending = true;
  timer_.enable();
  tick(timer());
  EXPECT_EQ(quits_, 1);
  EXPECT_FALSE(timer_.isEnabled());
  EXPECT_TRUE(sent_.empty());
}

TEST_F(PeerSendTimerTest, QuittingWaitsForTheRefresh) {
  state_.QuitPending = true;
  state_.RescanRunning = true;
  timer_.enable();
  for (int i = 0; i < 3; ++i) tick(timer());
  EXPECT_EQ(quits_, 0);
  EXPECT_TRUE(timer_.isEnabled());
  state_.RescanRunning = false;
  tick(timer());
  EXPECT_EQ(quits_, 1);
}

}  // namespace

}  // namespace quorvin::test
