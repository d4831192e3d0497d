// SPDX-License-Identifier: GPL-2.0-or-later

// How many threads read the folders of a walk at the same time.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

namespace quorvin {

/// Finds out how many readers help, by trying: twice as many stay if the walk then gets on clearly faster,
/// half as many if it hardly gets slower. An attempt ends as soon as it has taken longer than it should, so
/// that it costs a disk little. It starts with one, which is the walk itself. A share answers many
/// calls at once; the arm of a disk does not, and loses time on the way from one to the other; and where
/// everything is in memory as many help as there are cores free. An attempt that fails is repeated after
/// a rest, which is longer each time.
class ReadersAtOnce {
 public:
  using Clock = std::function<std::chrono::nanoseconds()>;

  /// Calls that take longer wait for something else than a processor.
  static constexpr std::chrono::microseconds kSlowCall{100};
  /// The most readers where calls are slow, and where they are not.
  static constexpr int kMostWaiting = 32;
  static constexpr int kMostBusy = 8;

  /// For a machine with so many `cores`. `clock` is any steady one.
  explicit ReadersAtOnce(int cores, Clock clock = steadyClock());
  /// Always `count` readers, as on a drive whose calls are slow or not.
  static ReadersAtOnce always(int count, bool areCallsSlow);

  int count() const { return count_; }
  bool areCallsSlow() const { return areCallsSlow_; }
  /// More readers than one may be there soon.
  bool mayBecomeMore() const { return count_ > 1 || (limit() > 1 && rest_ == 0); }

  /// A walk starts: nothing is known of its drive.
  void start();
  /// The walk has made one call more, or was given what a reader has found. True when count() may be another
  /// one now.
  bool step() { return ++steps_ >= goal_ && measure(); }
  /// What was seen since the last change is no measure: the walk has rested.
  void startAgain();

 private:
  enum class Attempt { None, More, Fewer };

  static Clock steadyClock();
  int limit() const;
  bool measure();
  bool hasFailed(std::chrono::nanoseconds elapsed) const;
  void judge(double cost);
  void attempt();
  void giveUp();

  int cores_;
  Clock clock_;
  int count_ = 1;
  bool areCallsSlow_ = false;
  bool isFixed_ = false;

  std::chrono::nanoseconds since_{};
  std::int64_t steps_ = 0;
  std::int64_t goal_ = 0;

  // Nanoseconds a step with the readers that are there to stay.
  double keptCost_ = 0;
  int kept_ = 1;
  Attempt attempt_ = Attempt::None;
  Attempt last_ = Attempt::None;
  // Measurements until the next attempt, and those of the next rest.
  int rest_ = 0;
  int nextRest_ = 0;
};

}  // namespace quorvin
