// SPDX-License-Identifier: GPL-2.0-or-later

// What a client has to say to its peer, one message after the other, and the timer that sends it.
#pragma once

#include "work/work.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <functional>
#include <utility>
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

/// The send queue of the whole program: entries 1 to 1000. Entry 0 stands for nothing sent and nothing
/// awaited. The queue is never wrapped or emptied, so one run of the program can send 1000 messages.
class SendQueue {
 public:
  static constexpr std::int32_t kLastEntry = 1000;

  SendQueue() : entries_(kLastEntry + 1) {}

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
  /// Skips everything that has not been sent, and awaits nothing: the conversation is over, and the next peer
  /// must not get what was meant for this one.
  void abandon();

 private:
  std::vector<SendQueueEntry> entries_;
  std::int32_t count_ = 0;
  std::int32_t head_ = 0;
};

/// `SndQTime`, ticking every 100 ms while it is enabled; at first it is not. Each tick sends at most one
/// message, and none while the reply to the last one is awaited. When the program is closing it sends nothing
/// more, waits until no refresh is running, and then ends the program.
class SendTimer : public QObject {
  Q_OBJECT

 public:
  static constexpr std::chrono::milliseconds kInterval{100};

  /// `work` and `queue` must outlive the timer.
  SendTimer(const Work& work, SendQueue& queue, std::chrono::milliseconds interval = kInterval,
            QObject* parent = nullptr);

  /// What sends a message to the peer.
  void setSender(std::function<void(const QByteArray&)> send) { send_ = std::move(send); }
  /// Called once the program is closing and no refresh is running: unloads the windows and closes the
  /// program.
  void setQuit(std::function<void()> quit) { quit_ = std::move(quit); }

  /// Ticks from now on; a timer that is already ticking keeps its pace.
  void enable();
  void disable() { timer_.stop(); }
  bool isEnabled() const { return timer_.isActive(); }

 private:
  void SndQTime_Timer();
  void quitWhenIdle();

  const Work& work_;
  SendQueue& queue_;
  QTimer timer_{this};
  std::function<void(const QByteArray&)> send_;
  std::function<void()> quit_;
};

}  // namespace quorvin
