// Ticks of timers that a test causes instead of waiting for them.
#pragma once

#include <QCoreApplication>
#include <QTimer>
#include <QTimerEvent>

#include <stdexcept>

namespace quorvin::test {

/// The next tick of a timer as it is running now. If the timer is stopped or started again before it happens,
/// it does nothing, as the tick in time would not have come either.
class TimerTick {
 public:
  explicit TimerTick(QTimer& timer) : timer_(timer), id_(timer.timerId()) {
    if (!timer.isActive()) throw std::logic_error("the timer is not running");
  }
  void happen() const {
    QTimerEvent tick(id_);
    QCoreApplication::sendEvent(&timer_, &tick);
  }

 private:
  QTimer& timer_;
  int id_;
};

/// The timer of this name that belongs to `owner`.
inline QTimer& timerOf(const QObject& owner, const QString& name) {
  auto* timer = owner.findChild<QTimer*>(name);
  if (timer == nullptr) throw std::logic_error("there is no such timer");
  return *timer;
}

}  // namespace quorvin::test
