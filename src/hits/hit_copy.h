// SPDX-License-Identifier: GPL-2.0-or-later

// Many hits as one text.
#pragma once

#include "search/hit_table.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

namespace quorvin {

/// How the making of a text has ended.
enum class CopyEnd : std::uint8_t {
  Whole,
  /// It was stopped.
  Stopped,
  /// The table was cleared, and the rows are no longer there.
  HitsGone,
};

/// Makes a text of rows of a hit table, one line for each, some milliseconds at a time while events run. A
/// few rows are made into text at once. User-interface thread only.
class HitCopy : public QObject {
  Q_OBJECT

 public:
  /// Gives the line of a row of the table, without a line end.
  using LineOf = std::function<QString(int tableRow)>;

  /// What is over sooner needs no word on how far it has come.
  static constexpr std::chrono::milliseconds kUnseen{200};

  /// `table` must outlive the object.
  explicit HitCopy(const HitTable& table);

  /// goesOn() does not come earlier than this after a start.
  void setUnseen(std::chrono::milliseconds unseen) { unseen_ = unseen; }

  /// Makes the text of these rows, in this order. One that is under way is dropped without a word. What
  /// `lineOf` throws ends the text, and is thrown here or out of the event loop.
  void start(std::vector<int> tableRows, LineOf lineOf);
  bool isRunning() const { return lineOf_ != nullptr; }
  /// Ends it, if it is running, by ended(Stopped).
  void stop();
  /// Ends it without a word.
  void drop();

  /// How many rows have been made into text since the last start, and how many there were.
  std::int64_t done() const { return done_; }
  std::int64_t all() const { return all_; }

 Q_SIGNALS:
  /// It takes its time; comes some times a second.
  void goesOn();
  /// `text` has all lines, with a line feed between them, where `end` is Whole; else it is empty.
  void ended(quorvin::CopyEnd end, const QString& text);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void work();
  bool addLines();
  void tellProgress();
  void end(CopyEnd end);

  const HitTable& table_;
  std::chrono::milliseconds unseen_ = kUnseen;
  /// While it is running.
  std::vector<int> rows_;
  LineOf lineOf_;
  QString text_;
  std::int64_t timesCleared_ = 0;
  std::int64_t done_ = 0;
  std::int64_t all_ = 0;
  QElapsedTimer sinceStart_;
  QElapsedTimer sinceTold_;
  QBasicTimer timer_;
};

}  // namespace quorvin
