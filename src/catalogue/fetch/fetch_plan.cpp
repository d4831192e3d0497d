// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/fetch_plan.h"

#include "catalogue/fetch/volume_cover.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace quorvin {

namespace {

class Planning {
 public:
  Planning(const std::vector<WantedFile>& files, const std::vector<std::string>& names)
      : files_(files), names_(names) {}

  std::optional<FetchPlan> plan(const StopAsked& stop) {
    collectKinds();
    rankVolumes();
    VolumeCover cover(rankedKinds(), static_cast<std::uint32_t>(ranked_.size()));
    if (!cover.choose(stop)) return std::nullopt;
    plan_.isFewest = cover.isFewest();
    for (const std::uint32_t rank : cover.chosen()) chosen_.push_back(ranked_[rank]);
    putInOrder();
    return std::move(plan_);
  }

 private:
  using Volumes = std::vector<std::uint32_t>;

  /// Puts files together that the same volumes hold: to the choice of volumes they are one.
  void collectKinds() {
    for (std::uint32_t file = 0; file < files_.size(); ++file) {
      Volumes volumes;
      for (const FileCopy& copy : files_[file].copies) volumes.push_back(copy.volume);
      std::ranges::sort(volumes);
      volumes.erase(std::unique(volumes.begin(), volumes.end()), volumes.end());
      if (volumes.empty()) {
        plan_.missing.push_back(file);
      } else {
        filesByVolumes_[std::move(volumes)].push_back(file);
      }
    }
  }

  auto byName(std::uint32_t volume) const { return std::tuple(std::cref(names_[volume]).get(), volume); }

  /// Volumes that hold most come first.
  void rankVolumes() {
    std::vector<std::int64_t> held(names_.size());
    for (const auto& [volumes, files] : filesByVolumes_) {
      for (const std::uint32_t volume : volumes) held[volume] += static_cast<std::int64_t>(files.size());
    }
    for (std::uint32_t volume = 0; volume < names_.size(); ++volume) {
      if (held[volume] > 0) ranked_.push_back(volume);
    }
    std::ranges::sort(ranked_, [&](std::uint32_t one, std::uint32_t other) {
      if (held[one] != held[other]) return held[one] > held[other];
      return byName(one) < byName(other);
    });
    ranks_.resize(names_.size());
    for (std::uint32_t rank = 0; rank < ranked_.size(); ++rank) ranks_[ranked_[rank]] = rank;
  }

  std::vector<VolumeCover::Kind> rankedKinds() const {
    std::vector<VolumeCover::Kind> kinds;
    for (const auto& [volumes, files] : filesByVolumes_) {
      VolumeCover::Kind kind{{}, static_cast<std::int64_t>(files.size())};
      for (const std::uint32_t volume : volumes) kind.volumes.push_back(ranks_[volume]);
      std::ranges::sort(kind.volumes);
      kinds.push_back(std::move(kind));
    }
    return kinds;
  }

  /// The files that are not yet to be copied from a volume, and that each of the chosen ones holds.
  std::map<std::uint32_t, std::int64_t> countLeft() const {
    std::map<std::uint32_t, std::int64_t> left;
    for (const std::uint32_t volume : chosen_) left[volume] = 0;
    for (const auto& [volumes, files] : filesByVolumes_) {
      for (const std::uint32_t volume : volumes) {
        const auto found = left.find(volume);
        if (found != left.end()) found->second += static_cast<std::int64_t>(files.size());
      }
    }
    return left;
  }

  void putInOrder() {
    std::map<std::uint32_t, std::int64_t> left = countLeft();
    // What each chosen volume holds, as parts of filesByVolumes_.
    std::map<std::uint32_t, std::vector<const Volumes*>> holds;
    for (const auto& kind : filesByVolumes_) {
      for (const std::uint32_t volume : kind.first) {
        if (left.contains(volume)) holds[volume].push_back(&kind.first);
      }
    }
    while (!left.empty()) {
      const auto next = std::ranges::min_element(left, [&](const auto& one, const auto& other) {
        if (one.second != other.second) return one.second > other.second;
        return byName(one.first) < byName(other.first);
      });
      const std::uint32_t volume = next->first;
      left.erase(next);
      FetchPlan::Volume planned{volume, {}, {}};
      for (const Volumes* kind : holds[volume]) takeFiles(planned, *kind, left);
      finish(planned);
    }
  }

  /// The files of a kind are copied from the volume, unless they are from an earlier one.
  void takeFiles(FetchPlan::Volume& planned, const Volumes& kind,
                 std::map<std::uint32_t, std::int64_t>& left) {
    const std::vector<std::uint32_t> files = std::exchange(filesByVolumes_.at(kind), {});
    for (const std::uint32_t file : files) {
      const auto copy = std::ranges::find(files_[file].copies, planned.volume, &FileCopy::volume);
      planned.files.push_back({file, *copy});
      planned.sum.add(files_[file].sum());
    }
    for (const std::uint32_t other : kind) {
      const auto found = left.find(other);
      if (found != left.end()) found->second -= static_cast<std::int64_t>(files.size());
    }
  }

  void finish(FetchPlan::Volume& planned) {
    std::ranges::sort(planned.files, {},
                      [](const FetchPlan::File& one) { return std::pair(one.copy.folder, one.file); });
    plan_.sum.add(planned.sum);
    plan_.volumes.push_back(std::move(planned));
  }

  const std::vector<WantedFile>& files_;
  const std::vector<std::string>& names_;
  FetchPlan plan_;
  std::map<Volumes, std::vector<std::uint32_t>> filesByVolumes_;
  /// The volumes by rank, and the rank of each.
  Volumes ranked_;
  Volumes ranks_;
  Volumes chosen_;
};

}  // namespace

std::optional<FetchPlan> planFetch(const std::vector<WantedFile>& files,
                                   const std::vector<std::string>& volumeNames, const StopAsked& stop) {
  return Planning(files, volumeNames).plan(stop);
}

}  // namespace quorvin
