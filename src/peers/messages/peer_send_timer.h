// The timer that sends what is queued for a peer, and that ends the program.
#pragma once

#include "peers/messages/peer_send_queue.h"
#include "state/program_state.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <functional>

namespace quorvin {

/// `SndQTime`, ticking every 100 ms while it is enabled; at first it is not. Each tick sends at most one
/// message, and none while the reply to the last one is awaited. When the program is closing it sends nothing
/// more, waits until no refresh is running, and then has the program end.
class PeerSendTimer : public QObject {
  Q_OBJECT

 public:
  static constexpr int kInterval = 100;

  /// `state` and `queue` must outlive the timer.
  PeerSendTimer(const ProgramState& state, PeerSendQueue& queue, QObject* parent = nullptr);

  /// What sends a message to the peer.
  void setSender(std::function<void(const QByteArray&)> send) { send_ = std::move(send); }
  /// Called once `QuitPending` is set and no refresh is running: unloads the windows and closes the program.
  void setQuit(std::function<void()> quit) { quit_ = std::move(quit); }

  /// Ticks from now on; a timer that ticks already keeps its pace.
  void enable();
  void disable() { timer_.stop(); }
  bool isEnabled() const { return timer_.isActive(); }

 private:
  void SndQTime_Timer();
  void quitWhenIdle();

  const ProgramState& state_;
  PeerSendQueue& queue_;
  QTimer timer_;
  std::function<void(const QByteArray&)> send_;
  std::function<void()> quit_;
};

}  // namespace quorvin
