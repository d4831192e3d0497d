// SPDX-License-Identifier: GPL-2.0-or-later
#include "peers/messages/send_queue.h"

#include "faults/runtime_fault.h"

namespace quorvin {

namespace {

constexpr std::int32_t kIdle = 0;
constexpr std::int32_t kReplyAwaited = 2;

}  // namespace

void SendQueue::append(const QByteArray& payload) {
  if (count_ == kLastEntry) throw RuntimeFault(FaultNumber::SubscriptOutOfRange);
  entries_.at(static_cast<std::size_t>(count_) + 1) = {QStringLiteral("sndstr"), payload, kIdle};
  ++count_;
}

const SendQueueEntry& SendQueue::takeNext() {
  SendQueueEntry& next = entries_.at(static_cast<std::size_t>(head_) + 1);
  ++head_;
  next.State = kReplyAwaited;
  return next;
}

void SendQueue::replyArrived() {
  entries_.at(static_cast<std::size_t>(head_)).State = kIdle;
}

void SendQueue::abandon() {
  head_ = count_;
  replyArrived();
}

SendTimer::SendTimer(const Work& work, SendQueue& queue, std::chrono::milliseconds interval, QObject* parent)
    : QObject(parent), work_(work), queue_(queue) {
  timer_.setObjectName(QStringLiteral("SndQTime"));
  timer_.setInterval(interval);
  connect(&timer_, &QTimer::timeout, this, &SendTimer::SndQTime_Timer);
}

void SendTimer::enable() {
  if (!timer_.isActive()) timer_.start();
}

void SendTimer::SndQTime_Timer() {
  if (work_.isClosing()) return quitWhenIdle();
  if (queue_.isDrained()) return disable();
  if (queue_.isReplyAwaited()) return;
  const SendQueueEntry& next = queue_.takeNext();
  if (next.Kind != QStringLiteral("sndstr")) return;
  disable();
  if (send_) send_(next.Payload);
}

void SendTimer::quitWhenIdle() {
  if (work_.isRunning(JobKind::Refresh)) return;
  disable();
  // Last of all: it may end with this object being gone.
  if (quit_) quit_();
}

}  // namespace quorvin
