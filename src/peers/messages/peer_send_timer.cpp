#include "peers/messages/peer_send_timer.h"

namespace quorvin {

PeerSendTimer::PeerSendTimer(const ProgramState& state, PeerSendQueue& queue, QObject* parent)
    : QObject(parent), state_(state), queue_(queue) {
  timer_.setObjectName(QStringLiteral("SndQTime"));
  timer_.setInterval(kInterval);
  connect(&timer_, &QTimer::timeout, this, &PeerSendTimer::SndQTime_Timer);
}

void PeerSendTimer::enable() {
  if (!timer_.isActive()) timer_.start();
}

void PeerSendTimer::SndQTime_Timer() {
  if (state_.QuitPending) return quitWhenIdle();
  if (queue_.isDrained()) return disable();
  if (queue_.isReplyAwaited()) return;
  const SendQueueEntry& next = queue_.takeNext();
  if (next.Kind != QStringLiteral("sndstr")) return;
  disable();
  if (send_) send_(next.Payload);
}

void PeerSendTimer::quitWhenIdle() {
  if (state_.RescanRunning) return;
  disable();
  // Last of all: it may end with this object being gone.
  if (quit_) quit_();
}

}  // namespace quorvin
