// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/space_tree.h"

#include "catalogue/entry_sizes.h"
#include "catalogue/listed_files.h"

#include <algorithm>

namespace quorvin {

void SpaceColours::add(const SpaceColours& other) {
  for (std::size_t i = 0; i < kinds.size(); ++i) kinds[i] += other.kinds[i];
  for (std::size_t i = 0; i < years.size(); ++i) years[i] += other.years[i];
}

FileKind SpaceColours::kind() const {
  return static_cast<FileKind>(std::ranges::max_element(kinds) - kinds.begin());
}

std::uint8_t SpaceColours::yearSpan() const {
  return static_cast<std::uint8_t>(std::ranges::max_element(years) - years.begin());
}

std::uint32_t SpaceTree::folderOf(std::uint32_t listing, std::string_view volume, std::string_view path) {
  return folders_.addFolder(folders_.addVolume(listing, volume), path);
}

void SpaceTree::add(std::uint32_t folder, const FileSum& files, const SpaceColours& colours) {
  sums_.resize(folders_.count());
  colours_.resize(folders_.count());
  sums_[folder].add(files);
  colours_[folder].add(colours);
}

void SpaceTree::finish() {
  const std::uint32_t count = folders_.count();
  sums_.resize(count);
  colours_.resize(count);
  own_.reserve(count);
  for (std::uint32_t folder = 0; folder < count; ++folder) {
    own_.push_back({sums_[folder], colours_[folder].kind(), colours_[folder].yearSpan()});
  }
  starts_.assign(count + 2, 0);
  const auto rowOf = [this](std::uint32_t folder) { return folders_.parent(folder) + 1; };
  static_assert(kTop + 1 == 0);
  // A folder's number is above that of the one it is in.
  for (std::uint32_t folder = count; folder-- > 0;) {
    ++starts_[rowOf(folder) + 1];
    const std::uint32_t parent = folders_.parent(folder);
    if (parent == kTop) continue;
    sums_[parent].add(sums_[folder]);
    colours_[parent].add(colours_[folder]);
  }
  for (std::size_t row = 1; row < starts_.size(); ++row) starts_[row] += starts_[row - 1];
  inside_.resize(count);
  std::vector<std::uint32_t> next(starts_);
  for (std::uint32_t folder = 0; folder < count; ++folder) inside_[next[rowOf(folder)]++] = folder;
}

std::span<const std::uint32_t> SpaceTree::foldersIn(std::uint32_t folder) const {
  const std::uint32_t row = folder + 1;
  return std::span(inside_).subspan(starts_[row], starts_[row + 1] - starts_[row]);
}

SpaceTree::Part SpaceTree::partOf(std::uint32_t folder) const {
  return {folder, false, sums_[folder].bytes, colours_[folder].kind(), colours_[folder].yearSpan()};
}

std::vector<SpaceTree::Part> SpaceTree::partsOf(std::uint32_t folder) const {
  std::vector<Part> parts;
  if (folder != kTop) {
    const Own& own = own_[folder];
    parts.push_back({folder, true, own.files.bytes, own.kind, own.yearSpan});
  }
  for (const std::uint32_t inside : foldersIn(folder)) parts.push_back(partOf(inside));
  std::erase_if(parts, [](const Part& part) { return part.bytes == 0; });
  std::ranges::stable_sort(parts, std::ranges::greater(), &Part::bytes);
  return parts;
}

FileSum SpaceTree::sumOf(std::uint32_t folder) const {
  if (folder != kTop) return sums_[folder];
  FileSum sum;
  for (const std::uint32_t volume : foldersIn(kTop)) sum.add(sums_[volume]);
  return sum;
}

std::uint32_t SpaceTree::firstWithParts(std::uint32_t folder) const {
  while (true) {
    const std::vector<Part> parts = partsOf(folder);
    if (parts.size() != 1 || parts.front().areFiles) return folder;
    folder = parts.front().folder;
  }
}

std::uint32_t SpaceTree::above(std::uint32_t folder) const {
  while (folder != kTop) {
    folder = folders_.parent(folder);
    if (folder != kTop && partsOf(folder).size() > 1) return folder;
  }
  return kTop;
}

void SpaceSums::startListing(SourceKind kind, const QString& path) {
  listingStarts_(kind, path);
  listings_.push_back(path);
}

bool SpaceSums::addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) {
  batch_.clear();
  EveryEntry::addHits(segment, hits);
  const auto listing = static_cast<std::uint32_t>(listings_.size() - 1);
  for (const Block& block : batch_) {
    tree_.add(tree_.folderOf(listing, block.volume, block.folder), block.files, block.colours);
  }
  return true;
}

void SpaceSums::endSegment(const std::shared_ptr<const Segment>& segment,
                           const std::shared_ptr<const Segment>& kept) {
  (kept ? kept : segment)->release();
}

void SpaceSums::takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                          std::uint32_t end) {
  place_ += end - first;
  Block& taken = batch_.emplace_back(
      Block{std::string(segment.volumeOfBlock(block)), segment.folderOfBlock(block), {}, {}});
  const EntrySizes values(segment, first, end);
  TextWalk names(segment.arrays().entries);
  for (std::uint32_t entry = first; entry < end; ++entry) {
    const std::int64_t size = values.of(entry);
    if (size < 0) continue;
    taken.files.add(size);
    const FileKind kind = kindOfName(fileNameIn(names.text(entry), size));
    taken.colours.kinds[static_cast<std::size_t>(kind)] += static_cast<float>(size);
    taken.colours.years[yearSpanOf(values.dateOf(entry))] += static_cast<float>(size);
  }
}

}  // namespace quorvin
