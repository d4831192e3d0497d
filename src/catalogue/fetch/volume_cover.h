// SPDX-License-Identifier: GPL-2.0-or-later

// The fewest volumes that hold something of every kind.
#pragma once

#include "catalogue/listed_files.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvin {

/// In a group of so many volumes, or fewer, all combinations are tried.
inline constexpr std::size_t kMostCombined = 20;

/// Chooses volumes. What has only one answer is settled first: volumes that are the only one to hold a kind,
/// and those that hold nothing that another one does not hold too. What is left falls into groups that have
/// no kind in common; those of more than kMostCombined volumes are chosen from greedily. Volumes are numbered
/// by preference: of ways that take equally many, the one with the lowest numbers is chosen.
class VolumeCover {
 public:
  /// Files that the same volumes hold, and no others.
  struct Kind {
    /// Ascending, at least one.
    std::vector<std::uint32_t> volumes;
    std::int64_t files;
  };

  VolumeCover(std::vector<Kind> kinds, std::uint32_t volumeCount);

  /// To be called once. False where `stop` ended it.
  bool choose(const StopAsked& stop);

  /// Ascending.
  const std::vector<std::uint32_t>& chosen() const { return chosen_; }
  /// No fewer volumes would do.
  bool isFewest() const { return isFewest_; }

 private:
  using Volumes = std::vector<std::uint32_t>;

  bool reduce(const StopAsked& stop);
  void takeOnlyOnes();
  bool dropNeedless(const StopAsked& stop);
  bool isNeedless(std::uint32_t volume) const;
  void take(std::uint32_t volume);
  void drop(std::uint32_t volume);
  std::vector<Volumes> groups() const;
  void chooseFewest(const Volumes& group);
  bool chooseGreedily(const Volumes& group, const StopAsked& stop);
  void takeWithoutSpare(const Volumes& picked);

  /// Their volumes are those that may still be chosen.
  std::vector<Kind> kinds_;
  std::vector<bool> isCovered_;
  /// The kinds of each volume.
  std::vector<std::vector<std::uint32_t>> holds_;
  /// Volumes that are neither taken nor dropped.
  std::vector<bool> isOpen_;
  Volumes chosen_;
  bool isFewest_ = true;
};

}  // namespace quorvin
