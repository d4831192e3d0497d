// SPDX-License-Identifier: GPL-2.0-or-later
#include "event_watch.h"

#include <QAbstractEventDispatcher>

#include <algorithm>

namespace quorvin {

// The dispatcher tells that it is awake each time that it is asked to process events, before it handles any.
EventWatch::EventWatch(const QLabel& label) : label_(label), text_(label.text()) {
  const QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
  connection_ = QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, [this] { pass(); });
  clock_.start();
}

EventWatch::~EventWatch() {
  QObject::disconnect(connection_);
}

EventFigures EventWatch::finish() {
  QObject::disconnect(connection_);
  look();
  return figures_;
}

void EventWatch::pass() {
  ++figures_.passes;
  look();
}

void EventWatch::look() {
  const std::int64_t now = clock_.nsecsElapsed();
  figures_.longestGap = std::max(figures_.longestGap, now - lastPass_);
  lastPass_ = now;
  if (label_.text() == text_) return;
  text_ = label_.text();
  ++figures_.labelMoves;
}

}  // namespace quorvin
