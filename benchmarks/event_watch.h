// SPDX-License-Identifier: GPL-2.0-or-later

// How a window fares while a run goes on: how often it comes to its events, and what its label shows.
#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QMetaObject>
#include <QString>

#include <cstdint>

namespace quorvin {

/// What was seen between the start and the end of a watch.
struct EventFigures {
  /// How many times events were let run.
  std::int64_t passes = 0;
  /// How many times the label's text was another one than at the pass before.
  std::int64_t labelMoves = 0;
  /// The longest time without a pass, the start and the end of the watch counted as passes. Nanoseconds.
  std::int64_t longestGap = 0;
};

/// Watches from its making until finish(). It costs well under a microsecond a pass.
class EventWatch {
 public:
  /// `label` must outlive the watch. User-interface thread only.
  explicit EventWatch(const QLabel& label);
  ~EventWatch();
  EventWatch(const EventWatch&) = delete;
  EventWatch& operator=(const EventWatch&) = delete;

  /// Ends the watch.
  EventFigures finish();

 private:
  void pass();
  void look();

  const QLabel& label_;
  QString text_;
  QElapsedTimer clock_;
  std::int64_t lastPass_ = 0;
  EventFigures figures_;
  QMetaObject::Connection connection_;
};

}  // namespace quorvin
