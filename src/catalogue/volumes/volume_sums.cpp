// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/volume_sums.h"

#include "catalogue/entry_sizes.h"
#include "catalogue/listed_files.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr DateValue kFirstDate = 1;

/// What hits of one volume, one behind the other, come to.
struct VolumeStretch {
  std::string volume;
  VolumeSum sum;
};

/// Sums hits, which come block by block.
class HitsOfBlocks {
 public:
  HitsOfBlocks(const Segment& segment, std::span<const FoundEntry> hits)
      : segment_(segment), values_(segment, hits.front().entry, hits.back().entry + 1) {
    const std::span<const std::uint32_t> starts = segment.arrays().blockStarts.all();
    std::uint32_t block = blockAt(starts, hits.front().entry);
    while (!hits.empty()) {
      while (block + 1 < starts.size() && starts[block + 1] <= hits.front().entry) ++block;
      const auto end = block + 1 < starts.size()
                           ? std::ranges::lower_bound(hits, starts[block + 1], {}, &FoundEntry::entry)
                           : hits.end();
      const auto count = static_cast<std::size_t>(end - hits.begin());
      addBlock(block, hits.first(count));
      hits = hits.subspan(count);
    }
  }

  const std::vector<VolumeStretch>& stretches() const { return stretches_; }

 private:
  VolumeSum& sumOf(std::uint32_t block) {
    const std::string_view volume = segment_.volumeOfBlock(block);
    if (stretches_.empty() || stretches_.back().volume != volume) {
      stretches_.push_back({std::string(volume), {}});
    }
    return stretches_.back().sum;
  }

  void addBlock(std::uint32_t block, std::span<const FoundEntry> hits) {
    VolumeSum& sum = sumOf(block);
    DateValue newestDate = sum.newest ? sum.newest->date : kFirstDate;
    const FoundEntry* newest = nullptr;
    for (const FoundEntry& hit : hits) {
      const std::int64_t size = values_.of(hit.entry);
      sum.holds.add(std::max<std::int64_t>(size, 0));
      if (size < 0) {
        ++sum.withoutSize;
        continue;
      }
      const DateValue date = values_.dateOf(hit.entry);
      const bool isNewer = sum.newest || newest != nullptr ? date > newestDate : date >= newestDate;
      if (!isNewer) continue;
      newestDate = date;
      newest = &hit;
    }
    if (newest == nullptr) return;
    ListedWalk names;
    names.start(segment_.arrays().entries);
    const std::string_view text = names.at(newest->entry).listed;
    sum.newest = {newestDate, segment_.folderOfBlock(block),
                  std::string(fileNameIn(text, values_.of(newest->entry)))};
  }

  const Segment& segment_;
  EntrySizes values_;
  std::vector<VolumeStretch> stretches_;
};

}  // namespace

void VolumeSum::add(const VolumeSum& other) {
  holds.add(other.holds);
  withoutSize += other.withoutSize;
  const bool isNewer = other.newest && (!newest || other.newest->date > newest->date);
  if (isNewer) newest = other.newest;
}

void VolumeSums::startListing(SourceKind kind, const QString& path) {
  listingStarts_(kind, path);
  listings_.push_back({kind, path});
  numbers_.clear();
}

bool VolumeSums::addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) {
  // Nothing of it counts before all has been read, which may fail.
  const HitsOfBlocks read(*segment, hits);
  for (const VolumeStretch& stretch : read.stretches()) {
    volumes_[numberOf(stretch.volume)].sum.add(stretch.sum);
  }
  return true;
}

void VolumeSums::endSegment(const std::shared_ptr<const Segment>& segment,
                            const std::shared_ptr<const Segment>& kept) {
  (kept ? kept : segment)->release();
}

std::uint32_t VolumeSums::numberOf(const std::string& name) {
  const auto [known, isNew] = numbers_.try_emplace(name, static_cast<std::uint32_t>(volumes_.size()));
  if (isNew) volumes_.push_back({static_cast<std::uint32_t>(listings_.size() - 1), name, {}});
  return known->second;
}

}  // namespace quorvin
