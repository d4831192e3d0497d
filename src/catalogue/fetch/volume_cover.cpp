// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/volume_cover.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <numeric>
#include <utility>

namespace quorvin {

namespace {

/// For each set of up to kMostCombined volumes, as bits: whether all volumes of some kind are in it.
class SetsWithKinds {
 public:
  explicit SetsWithKinds(std::size_t volumes) : volumes_(volumes), has_(std::size_t{1} << volumes) {}

  void add(std::uint32_t kind) { has_[kind] = true; }

  /// To be called when all are added: a set has what a smaller one in it has.
  void complete() {
    for (std::size_t bit = 1; bit < has_.size(); bit <<= 1U) {
      for (std::size_t set = 0; set < has_.size(); ++set) {
        if ((set & bit) != 0 && has_[set ^ bit]) has_[set] = true;
      }
    }
  }

  /// The smallest set that leaves out all volumes of no kind; of several the largest as a number.
  std::uint32_t smallestCover() const {
    const auto all = static_cast<std::uint32_t>(has_.size() - 1);
    std::uint32_t smallest = all;
    auto fewest = static_cast<int>(volumes_) + 1;
    for (std::uint32_t set = all; set != 0; --set) {
      const int count = std::popcount(set);
      if (count >= fewest || has_[all ^ set]) continue;
      smallest = set;
      fewest = count;
    }
    return smallest;
  }

 private:
  std::size_t volumes_;
  std::vector<bool> has_;
};

}  // namespace

VolumeCover::VolumeCover(std::vector<Kind> kinds, std::uint32_t volumeCount)
    : kinds_(std::move(kinds)), isCovered_(kinds_.size()), holds_(volumeCount), isOpen_(volumeCount, true) {
  for (std::uint32_t kind = 0; kind < kinds_.size(); ++kind) {
    for (const std::uint32_t volume : kinds_[kind].volumes) holds_[volume].push_back(kind);
  }
}

bool VolumeCover::choose(const StopAsked& stop) {
  if (!reduce(stop)) return false;
  for (const Volumes& group : groups()) {
    if (stop()) return false;
    if (group.size() <= kMostCombined) {
      chooseFewest(group);
    } else if (!chooseGreedily(group, stop)) {
      return false;
    }
  }
  std::ranges::sort(chosen_);
  return true;
}

/// Settles what has only one answer, until there is nothing of that kind left.
bool VolumeCover::reduce(const StopAsked& stop) {
  do {
    takeOnlyOnes();
    if (stop()) return false;
  } while (dropNeedless(stop));
  return !stop();
}

/// Takes each volume that is the only one to hold a kind.
void VolumeCover::takeOnlyOnes() {
  for (std::uint32_t kind = 0; kind < kinds_.size(); ++kind) {
    if (!isCovered_[kind] && kinds_[kind].volumes.size() == 1) take(kinds_[kind].volumes.front());
  }
}

/// Drops each volume that another one can stand for. Those least preferred go first, so that of two that hold
/// the same the better one stays. False where there is none.
bool VolumeCover::dropNeedless(const StopAsked& stop) {
  bool hasDropped = false;
  for (auto volume = static_cast<std::uint32_t>(holds_.size()); volume-- > 0;) {
    if (stop()) return false;
    if (!isOpen_[volume] || !isNeedless(volume)) continue;
    drop(volume);
    hasDropped = true;
  }
  return hasDropped;
}

bool VolumeCover::isNeedless(std::uint32_t volume) const {
  Volumes common;
  Volumes both;
  bool isFirst = true;
  for (const std::uint32_t kind : holds_[volume]) {
    if (isCovered_[kind]) continue;
    const Volumes& others = kinds_[kind].volumes;
    if (isFirst) {
      common = others;
    } else {
      both.clear();
      std::ranges::set_intersection(common, others, std::back_inserter(both));
      common.swap(both);
    }
    isFirst = false;
    // Only the volume itself has all that it has so far.
    if (common.size() == 1) return false;
  }
  return true;
}

void VolumeCover::take(std::uint32_t volume) {
  isOpen_[volume] = false;
  chosen_.push_back(volume);
  for (const std::uint32_t kind : holds_[volume]) isCovered_[kind] = true;
}

void VolumeCover::drop(std::uint32_t volume) {
  isOpen_[volume] = false;
  for (const std::uint32_t kind : holds_[volume]) {
    if (!isCovered_[kind]) std::erase(kinds_[kind].volumes, volume);
  }
}

/// The volumes that are left, those together that are joined by kinds. Ascending in each.
std::vector<VolumeCover::Volumes> VolumeCover::groups() const {
  Volumes leader(holds_.size());
  std::iota(leader.begin(), leader.end(), 0U);
  const auto leaderOf = [&leader](std::uint32_t volume) {
    while (leader[volume] != volume) volume = leader[volume] = leader[leader[volume]];
    return volume;
  };
  for (std::uint32_t kind = 0; kind < kinds_.size(); ++kind) {
    if (isCovered_[kind]) continue;
    const std::uint32_t first = leaderOf(kinds_[kind].volumes.front());
    for (const std::uint32_t volume : kinds_[kind].volumes) leader[leaderOf(volume)] = first;
  }
  std::vector<Volumes> byLeader(holds_.size());
  for (std::uint32_t volume = 0; volume < holds_.size(); ++volume) {
    if (isOpen_[volume]) byLeader[leaderOf(volume)].push_back(volume);
  }
  std::erase_if(byLeader, [](const Volumes& group) { return group.empty(); });
  return byLeader;
}

void VolumeCover::chooseFewest(const Volumes& group) {
  // The volume preferred most has the highest bit, so that a larger number is a better set.
  const auto bitOf = [&group](std::uint32_t volume) {
    const auto place = std::ranges::lower_bound(group, volume) - group.begin();
    return std::uint32_t{1} << (group.size() - 1 - static_cast<std::size_t>(place));
  };
  SetsWithKinds sets(group.size());
  for (const std::uint32_t volume : group) {
    for (const std::uint32_t kind : holds_[volume]) {
      if (isCovered_[kind]) continue;
      std::uint32_t bits = 0;
      for (const std::uint32_t other : kinds_[kind].volumes) bits |= bitOf(other);
      sets.add(bits);
    }
  }
  sets.complete();
  const std::uint32_t cover = sets.smallestCover();
  for (const std::uint32_t volume : group) {
    if ((cover & bitOf(volume)) != 0) take(volume);
  }
}

bool VolumeCover::chooseGreedily(const Volumes& group, const StopAsked& stop) {
  isFewest_ = false;
  std::vector<std::int64_t> left(holds_.size());
  std::vector<bool> isFound = isCovered_;
  for (const std::uint32_t volume : group) {
    for (const std::uint32_t kind : holds_[volume]) left[volume] += isFound[kind] ? 0 : kinds_[kind].files;
  }
  Volumes picked;
  while (true) {
    if (stop()) return false;
    const std::uint32_t best = *std::ranges::max_element(group, {}, [&](std::uint32_t v) { return left[v]; });
    if (left[best] == 0) break;
    picked.push_back(best);
    for (const std::uint32_t kind : holds_[best]) {
      if (isFound[kind]) continue;
      isFound[kind] = true;
      for (const std::uint32_t volume : kinds_[kind].volumes) left[volume] -= kinds_[kind].files;
    }
  }
  takeWithoutSpare(picked);
  return true;
}

/// Takes the volumes that were picked, but none of which the others hold all. The last ones picked had least.
void VolumeCover::takeWithoutSpare(const Volumes& picked) {
  std::vector<std::uint32_t> times(kinds_.size());
  for (const std::uint32_t volume : picked) {
    for (const std::uint32_t kind : holds_[volume]) ++times[kind];
  }
  Volumes needed;
  for (auto volume = picked.rbegin(); volume != picked.rend(); ++volume) {
    const std::vector<std::uint32_t>& held = holds_[*volume];
    const bool isSpare =
        std::ranges::all_of(held, [&](auto kind) { return isCovered_[kind] || times[kind] > 1; });
    if (isSpare) {
      for (const std::uint32_t kind : held) --times[kind];
    } else {
      needed.push_back(*volume);
    }
  }
  for (const std::uint32_t volume : needed) take(volume);
}

}  // namespace quorvin
