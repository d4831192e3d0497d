// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/readers_at_once.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quorvin {

namespace {

// What is measured is at least so long, or it would be chance.
constexpr std::chrono::milliseconds kLeastMeasured{20};
constexpr std::int64_t kStepsOfAReader = 8;

// More readers cost the machine something, so they have to bring something.
constexpr double kWorthMore = 0.8;
constexpr double kWorthFewer = 1.1;

// In measurements.
constexpr int kFirstRest = 16;
constexpr int kLongerRest = 4;
constexpr int kLongestRest = 256;

}  // namespace

ReadersAtOnce::ReadersAtOnce(int cores, Clock clock) : cores_(cores), clock_(std::move(clock)) {
  start();
}

ReadersAtOnce ReadersAtOnce::always(int count, bool areCallsSlow) {
  ReadersAtOnce readers(count);
  readers.isFixed_ = true;
  readers.count_ = count;
  readers.areCallsSlow_ = areCallsSlow;
  readers.goal_ = std::numeric_limits<std::int64_t>::max();
  return readers;
}

ReadersAtOnce::Clock ReadersAtOnce::steadyClock() {
  return [] { return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()); };
}

void ReadersAtOnce::start() {
  if (isFixed_) return;
  count_ = kept_ = 1;
  // Until more is known, a call may be slow.
  areCallsSlow_ = true;
  attempt_ = last_ = Attempt::None;
  rest_ = 0;
  nextRest_ = kFirstRest;
  startAgain();
}

void ReadersAtOnce::startAgain() {
  if (isFixed_) return;
  steps_ = 0;
  goal_ = attempt_ == Attempt::None ? kStepsOfAReader * count_ : 1;
  since_ = clock_();
}

int ReadersAtOnce::limit() const {
  return areCallsSlow_ ? kMostWaiting : std::clamp(cores_, 1, kMostBusy);
}

bool ReadersAtOnce::measure() {
  const std::chrono::nanoseconds elapsed = clock_() - since_;
  const bool isEnough = elapsed >= kLeastMeasured && steps_ >= kStepsOfAReader * count_;
  if (!isEnough && !hasFailed(elapsed)) {
    // The clock costs as much as a hundredth of a quick call.
    goal_ = attempt_ == Attempt::None ? 2 * steps_ : steps_ + 1;
    return false;
  }
  const double cost = static_cast<double>(elapsed.count()) / static_cast<double>(steps_);
  areCallsSlow_ = cost * count_ > static_cast<double>(std::chrono::nanoseconds(kSlowCall).count());
  judge(cost);
  // What was slow may be in memory by now.
  count_ = std::min(count_, limit());
  kept_ = std::min(kept_, limit());
  startAgain();
  return true;
}

// Whether an attempt has taken as long as all of it may take.
bool ReadersAtOnce::hasFailed(std::chrono::nanoseconds elapsed) const {
  if (attempt_ == Attempt::None) return false;
  const double worth = attempt_ == Attempt::More ? kWorthMore : kWorthFewer;
  const auto least = static_cast<double>(std::chrono::nanoseconds(kLeastMeasured).count());
  const double wholeCost = std::max(keptCost_ * static_cast<double>(kStepsOfAReader * count_), least);
  const double stepsCost = keptCost_ * static_cast<double>(steps_);
  const auto taken = static_cast<double>(elapsed.count());
  return taken > worth * wholeCost && taken > worth * stepsCost;
}

void ReadersAtOnce::judge(double cost) {
  if (attempt_ == Attempt::None) {
    keptCost_ = cost;
    if (rest_ > 0) {
      --rest_;
    } else {
      attempt();
    }
    return;
  }
  if (cost > keptCost_ * (attempt_ == Attempt::More ? kWorthMore : kWorthFewer)) {
    giveUp();
    return;
  }
  kept_ = count_;
  keptCost_ = cost;
  nextRest_ = kFirstRest;
  // Once more into the same direction.
  last_ = attempt_ == Attempt::More ? Attempt::Fewer : Attempt::More;
  attempt();
}

// More and fewer readers in turn, as far as there can be.
void ReadersAtOnce::attempt() {
  const bool canBeMore = count_ < limit();
  const bool canBeFewer = count_ > 1;
  attempt_ = canBeMore && (last_ != Attempt::More || !canBeFewer) ? Attempt::More
             : canBeFewer                                         ? Attempt::Fewer
                                                                  : Attempt::None;
  if (attempt_ == Attempt::More) count_ = std::min(2 * count_, limit());
  if (attempt_ == Attempt::Fewer) count_ /= 2;
  if (attempt_ == Attempt::None) giveUp();
}

void ReadersAtOnce::giveUp() {
  last_ = attempt_;
  attempt_ = Attempt::None;
  count_ = kept_;
  rest_ = nextRest_;
  nextRest_ = std::min(kLongerRest * nextRest_, kLongestRest);
}

}  // namespace quorvin
