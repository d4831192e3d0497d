// What a client has to say to its peer, one message after the other.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

namespace quorvin {

struct SendQueueEntry {
  /// "sndstr": to be sent to the peer. Only such entries are sent.
  QString Kind;
  /// The whole message.
  QByteArray Payload;
  /// 0 when no reply is awaited, 2 when the message was sent and its reply is awaited.
  std::int32_t State = 0;
};

/// The send queue of the whole program: entries 1 to 1000, entry 0 being one that nothing is awaited for. It
/// is never wrapped or emptied, so a run of the program can send 1000 messages.
class PeerSendQueue {
 public:
  static constexpr std::int32_t kLastEntry = 1000;

  PeerSendQueue() : entries_(kLastEntry + 1) {}

  /// Appends a message to be sent. Throws fault 9 when there is no entry left; nothing changes then.
  void append(const QByteArray& payload);

  /// The index of the last entry written; 0 at first.
  std::int32_t SendQueueCount() const { return count_; }
  /// The index of the last entry taken for sending; 0 at first.
  std::int32_t SendQueueHead() const { return head_; }
  const SendQueueEntry& entry(std::int32_t index) const {
    return entries_.at(static_cast<std::size_t>(index));
  }

  bool isDrained() const { return head_ >= count_; }
  bool isReplyAwaited() const { return entry(head_).State != 0; }

  /// Takes the next entry, whose reply is awaited from now on. There must be one.
  const SendQueueEntry& takeNext();
  /// The reply to the entry taken last has come.
  void replyArrived();
  /// Passes over everything that has not been sent, and awaits nothing: the conversation is over, and the
  /// next peer must not be sent what was meant for this one.
  void abandon();

 private:
  std::vector<SendQueueEntry> entries_;
  std::int32_t count_ = 0;
  std::int32_t head_ = 0;
};

}  // namespace quorvin
