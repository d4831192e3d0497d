#include "peers/messages/peer_send_queue.h"

#include "faults/runtime_fault.h"

namespace quorvin {

namespace {

constexpr std::int32_t kIdle = 0;
constexpr std::int32_t kReplyAwaited = 2;

}  // namespace

void PeerSendQueue::append(const QByteArray& payload) {
  if (count_ == kLastEntry) throw RuntimeFault(FaultNumber::SubscriptOutOfRange);
  entries_.at(static_cast<std::size_t>(count_) + 1) = {QStringLiteral("sndstr"), payload, kIdle};
  ++count_;
}

const SendQueueEntry& PeerSendQueue::takeNext() {
  SendQueueEntry& next = entries_.at(static_cast<std::size_t>(head_) + 1);
  ++head_;
  next.State = kReplyAwaited;
  return next;
}

void PeerSendQueue::replyArrived() {
  entries_.at(static_cast<std::size_t>(head_)).State = kIdle;
}

void PeerSendQueue::abandon() {
  head_ = count_;
  replyArrived();
}

}  // namespace quorvin
