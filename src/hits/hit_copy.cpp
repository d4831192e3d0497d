// SPDX-License-Identifier: GPL-2.0-or-later
#include "hits/hit_copy.h"

#include <QTimerEvent>

#include <utility>

namespace quorvin {

namespace {

constexpr qint64 kMillisecondsOfSlice = 8;
/// So many are never worth a wait.
constexpr std::int64_t kRowsAtOnce = 32;
constexpr qint64 kMillisecondsBetweenWords = 100;

}  // namespace

HitCopy::HitCopy(const HitTable& table) : table_(table) {}

void HitCopy::start(std::vector<int> tableRows, LineOf lineOf) {
  drop();
  rows_ = std::move(tableRows);
  lineOf_ = std::move(lineOf);
  timesCleared_ = table_.timesCleared();
  done_ = 0;
  all_ = std::ssize(rows_);
  sinceStart_.start();
  sinceTold_.invalidate();
  work();
}

void HitCopy::stop() {
  if (isRunning()) end(CopyEnd::Stopped);
}

void HitCopy::drop() {
  timer_.stop();
  rows_ = {};
  lineOf_ = nullptr;
  text_ = QString();
}

void HitCopy::timerEvent(QTimerEvent* event) {
  if (event->timerId() != timer_.timerId()) return QObject::timerEvent(event);
  work();
}

void HitCopy::work() {
  if (table_.timesCleared() != timesCleared_) return end(CopyEnd::HitsGone);
  bool isWhole = false;
  try {
    isWhole = addLines();
  } catch (...) {
    // Else the next event would only bring the same fault again.
    drop();
    throw;
  }
  if (isWhole) return end(CopyEnd::Whole);
  if (!timer_.isActive()) timer_.start(0, this);
  tellProgress();
}

/// One slice; true when all lines are there.
bool HitCopy::addLines() {
  QElapsedTimer slice;
  slice.start();
  while (done_ < all_) {
    if (done_ > 0) text_ += u'\n';
    text_ += lineOf_(rows_[static_cast<std::size_t>(done_)]);
    ++done_;
    if (done_ >= kRowsAtOnce && slice.hasExpired(kMillisecondsOfSlice)) break;
  }
  return done_ == all_;
}

void HitCopy::tellProgress() {
  if (!sinceStart_.hasExpired(unseen_.count())) return;
  if (sinceTold_.isValid() && !sinceTold_.hasExpired(kMillisecondsBetweenWords)) return;
  sinceTold_.start();
  Q_EMIT goesOn();
}

/// Everything is as before a start by the time that others hear of the end.
void HitCopy::end(CopyEnd end) {
  const QString text = std::exchange(text_, {});
  drop();
  Q_EMIT ended(end, end == CopyEnd::Whole ? text : QString());
}

}  // namespace quorvin
