// SPDX-License-Identifier: GPL-2.0-or-later

// Timers under the hands of a test, which does not wait for them.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QTimer>
#include <QTimerEvent>

#include <stdexcept>

namespace quorvin::test {

/// The timer of this name that belongs to `owner`.
inline QTimer& timerOf(const QObject& owner, const QString& name) {
  auto* timer = owner.findChild<QTimer*>(name);
  if (timer == nullptr) throw std::logic_error("there is no such timer");
  return *timer;
}

/// Brings about the next tick of a running timer.
inline void tick(QTimer& timer) {
  if (!timer.isActive()) throw std::logic_error("the timer is not running");
  QTimerEvent event(timer.timerId());
  QCoreApplication::sendEvent(&timer, &event);
}

/// Tells whether a running timer is started again. It is started for the first time by the watch itself.
class RestartWatch {
 public:
  explicit RestartWatch(QTimer& timer) : timer_(timer) {
    if (!timer.isActive()) throw std::logic_error("the timer is not running");
    clock_.start();
    // A coarse one would round its end.
    timer.setTimerType(Qt::PreciseTimer);
    timer.start();
    end_ = end();
    QThread::msleep(kApart);
  }
  bool hasRestarted() const { return end() > end_ + kApart / 2; }

 private:
  /// Far enough apart for milliseconds to be told apart, whatever happens in between.
  static constexpr int kApart = 20;

  /// When the timer ends, by the clock of the watch, in milliseconds.
  qint64 end() const {
    for (;;) {
      const qint64 before = clock_.elapsed();
      const qint64 left = timer_.remainingTime();
      if (clock_.elapsed() == before) return before + left;
    }
  }

  QTimer& timer_;
  QElapsedTimer clock_;
  qint64 end_ = 0;
};

}  // namespace quorvin::test
