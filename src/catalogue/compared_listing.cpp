// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/compared_listing.h"

#include "catalogue/common_folder.h"
#include "catalogue/copies.h"
#include "catalogue/every_entry.h"
#include "faults/runtime_fault.h"
#include "search/listing_scan.h"
#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <unordered_set>
#include <utility>
#include <xxhash.h>

namespace quorvin {

namespace {

std::uint64_t hashOf(std::string_view text, std::uint64_t seed = 0) {
  return XXH3_64bits_withSeed(text.data(), text.size(), seed);
}

std::uint64_t hashOf(std::uint64_t name, std::uint64_t folder) {
  return XXH3_64bits_withSeed(&name, sizeof name, folder);
}

/// What the line of an entry says itself; nothing where that is carried from another line, or missing.
std::optional<EntryValues> ownValues(const Segment& segment, std::uint32_t entry) {
  if (segment.valueState(entry) != ValueState::Own) return std::nullopt;
  return segment.values(entry);
}

std::uint32_t hashOf(const std::optional<EntryValues>& values) {
  if (!values) return 0;
  // Plus zero and minus zero are one date.
  const std::array<double, 2> parts{static_cast<double>(values->size), values->date + 0.0};
  return static_cast<std::uint32_t>(XXH3_64bits(parts.data(), sizeof parts));
}

}  // namespace

class ComparedListing::Marking : public EveryEntry {
 public:
  explicit Marking(ComparedListing& listing) : listing_(listing) {}

 protected:
  void takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                 std::uint32_t end) override {
    const std::uint32_t folder = listing_.folderOf(segment, block);
    if (listing_.blocks_.empty() || listing_.blocks_.back().folder != folder) {
      listing_.blocks_.push_back({folder, place_});
    }
    names_.start(segment.arrays().entries);
    for (std::uint32_t entry = first; entry < end; ++entry, ++place_) {
      const std::optional<EntryValues> values = ownValues(segment, entry);
      const std::int64_t size = values ? values->size : -1;
      const std::string_view name = fileNameIn(names_.at(entry).listed, size);
      listing_.marks_.push_back({hashOf(name), hashOf(values), place_});
      ++listing_.fileCount_;
      listing_.bytes_ = sumOfBytes(listing_.bytes_, std::max<std::int64_t>(size, 0));
    }
  }

 private:
  ComparedListing& listing_;
  ListedWalk names_;
};

class ComparedListing::Reading : public EveryEntry {
 public:
  Reading(ComparedListing& listing, const std::vector<std::uint32_t>& places)
      : listing_(listing), next_(places.begin()), end_(places.end()) {}

 protected:
  void takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                 std::uint32_t end) override {
    const std::uint32_t base = place_ - first;
    place_ += end - first;
    if (next_ == end_ || *next_ >= place_) return;
    const std::uint32_t folder = listing_.folderOf(segment, block);
    names_.start(segment.arrays().entries);
    for (; next_ != end_ && *next_ < place_; ++next_) take(segment, *next_ - base, folder);
  }

 private:
  void take(const Segment& segment, std::uint32_t entry, std::uint32_t folder) {
    ComparedFile file{*next_, folder, {}, 0, -1, std::nullopt};
    if (const std::optional<EntryValues> values = ownValues(segment, entry)) {
      file.size = values->size;
      file.modified = values->date;
    }
    const ListedWalk::Text text = names_.at(entry);
    file.likeness = hashOf(fileNameIn(text.folded, file.size), static_cast<std::uint64_t>(file.size));
    file.name = listing_.names_.keep(fileNameIn(text.listed, file.size));
    listing_.files_.push_back(file);
  }

  ComparedListing& listing_;
  ListedWalk names_;
  std::vector<std::uint32_t>::const_iterator next_;
  std::vector<std::uint32_t>::const_iterator end_;
};

ComparedListing::ComparedListing(ListingOpener open, QLocale locale)
    : open_(std::move(open)), locale_(std::move(locale)) {}

bool ComparedListing::readMarks(const StopAsked& stop) {
  Marking marking(*this);
  return read(marking, stop);
}

bool ComparedListing::readFiles(const std::vector<std::uint32_t>& places, const StopAsked& stop) {
  if (places.empty()) return true;
  files_.reserve(places.size());
  Reading reading(*this, places);
  if (!read(reading, stop)) return false;
  if (files_.size() == places.size()) return true;
  throw RuntimeFault(FaultNumber::DeviceError,
                     Texts::tr("A listing was changed while it was read. Please try again"));
}

bool ComparedListing::read(HitSink& sink, const StopAsked& stop) {
  // A search that finds every entry.
  const SearchQuery everything(QString::fromUtf16(ListedFiles::kEveryEntry), 1);
  RunCounts counts;
  ScanOutcome outcome;
  scanListing(open_, {everything, locale_, &sink, [&](std::int64_t) { return stop(); }}, counts, outcome);
  isNoText_ = outcome.isNoText;
  return !outcome.stopped && !stop();
}

std::uint32_t ComparedListing::folderOf(const Segment& segment, std::uint32_t block) {
  return folders_.addFolder(folders_.addVolume(0, segment.volumeOfBlock(block)),
                            segment.folderOfBlock(block));
}

std::vector<std::string> ComparedListing::pathsWithFiles() const {
  std::vector<std::string> paths;
  for (const ListedFiles::Block& block : blocks_) paths.push_back(folders_.path(block.folder));
  return paths;
}

std::string ComparedListing::top() const {
  if (blocks_.empty()) return {};
  std::string top = folders_.path(blocks_.front().folder);
  for (const std::string& path : pathsWithFiles()) cutToCommonFolder(top, path);
  return top;
}

bool ComparedListing::sharesFolderWith(const ComparedListing& other) const {
  std::unordered_set<std::string> paths;
  for (std::string& path : other.pathsWithFiles()) paths.insert(std::move(path));
  return std::ranges::any_of(pathsWithFiles(), [&](const std::string& path) { return paths.contains(path); });
}

std::string ComparedListing::pathOf(std::uint32_t folder) const {
  std::string path = folders_.path(folder);
  if (rule_.belowTop) path.erase(0, top_.size());
  if (rule_.withVolume) path.insert(0, folders_.volumes()[folders_.volumeOf(folder)].name + '\n');
  return path;
}

std::vector<FileMark> ComparedListing::takeMarks(const PathRule& rule) {
  rule_ = rule;
  top_ = rule.belowTop ? top() : std::string();
  std::vector<FileMark> marks = std::exchange(marks_, {});
  auto mark = marks.begin();
  for (auto block = blocks_.begin(); block != blocks_.end(); ++block) {
    const std::uint64_t folder = hashOf(pathOf(block->folder));
    const bool isLast = std::next(block) == blocks_.end();
    const std::uint32_t end = isLast ? UINT32_MAX : std::next(block)->firstPlace;
    for (; mark != marks.end() && mark->place < end; ++mark) mark->path = hashOf(mark->path, folder);
  }
  std::ranges::sort(marks, {},
                    [](const FileMark& one) { return std::tuple(one.path, one.values, one.place); });
  return marks;
}

std::uint32_t ComparedListing::fileAt(std::uint32_t place) const {
  return static_cast<std::uint32_t>(std::ranges::lower_bound(files_, place, {}, &ComparedFile::place) -
                                    files_.begin());
}

}  // namespace quorvin
