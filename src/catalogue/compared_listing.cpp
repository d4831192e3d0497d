#include "catalogue/compared_listing.h"

#include "catalogue/copies.h"
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

constexpr std::uint32_t kMostPlaces = UINT32_MAX - 1;

std::uint64_t hashOf(std::string_view text, std::uint64_t seed) {
  return XXH3_64bits_withSeed(text.data(), text.size(), seed);
}

/// Whether a folder ends in a backslash says nothing.
std::string_view withoutLastSeparator(std::string_view folder) {
  if (folder.ends_with('\\')) folder.remove_suffix(1);
  return folder;
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

/// Takes all entries of a listing, block by block.
class EveryEntry : public HitSink {
 public:
  void startListing(SourceKind, const QString&) override {}
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override {
    const std::uint32_t first = hits.front().entry;
    const std::uint32_t end = hits.back().entry + 1;
    if (end - first > kMostPlaces - place_) {
      throw RuntimeFault(FaultNumber::Overflow, Texts::tr("There are more than %1 files").arg(kMostPlaces));
    }
    const std::span<const std::uint32_t> starts = segment->arrays().blockStarts.all();
    std::uint32_t block = blockAt(starts, first);
    for (std::uint32_t entry = first; entry < end; ++block) {
      const std::uint32_t last = block + 1 < starts.size() ? std::min(starts[block + 1], end) : end;
      takeBlock(*segment, block, entry, last);
      entry = last;
    }
    return true;
  }
  void endSegment(const std::shared_ptr<const Segment>&, const std::shared_ptr<const Segment>&) override {}

 protected:
  /// Entries from `first` to `end` - 1 of a block. Each is to be counted in `place_`.
  virtual void takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                         std::uint32_t end) = 0;

  std::uint32_t place_ = 0;
};

}  // namespace

class ComparedListing::Marking : public EveryEntry {
 public:
  explicit Marking(ComparedListing& listing) : listing_(listing) {}

 protected:
  void takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                 std::uint32_t end) override {
    const std::uint64_t volume = hashOf(segment.volumeOfBlock(block), 0);
    if (volumes_.insert(volume).second) ++listing_.volumeCount_;
    if (listing_.blocks_.empty() || listing_.blocks_.back().volume != volume) {
      listing_.blocks_.push_back({place_, volume});
    }
    const std::uint64_t folder = hashOf(withoutLastSeparator(segment.folderOfBlock(block)), 0);
    names_.start(segment.arrays().entries);
    for (std::uint32_t entry = first; entry < end; ++entry, ++place_) {
      const std::optional<EntryValues> values = ownValues(segment, entry);
      const std::int64_t size = values ? values->size : -1;
      const std::string_view name = fileNameIn(names_.at(entry).listed, size);
      listing_.marks_.push_back({hashOf(name, folder), hashOf(values), place_});
      ++listing_.fileCount_;
      listing_.bytes_ = sumOfBytes(listing_.bytes_, std::max<std::int64_t>(size, 0));
    }
  }

 private:
  ComparedListing& listing_;
  ListedWalk names_;
  std::unordered_set<std::uint64_t> volumes_;
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
    const std::uint32_t volume = listing_.folders_.addVolume(0, segment.volumeOfBlock(block));
    const std::uint32_t folder = listing_.folders_.addFolder(volume, segment.folderOfBlock(block));
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

std::vector<FileMark> ComparedListing::takeMarks(bool volumeCounts) {
  std::vector<FileMark> marks = std::exchange(marks_, {});
  auto block = blocks_.begin();
  for (FileMark& mark : marks) {
    if (!volumeCounts) break;
    while (std::next(block) != blocks_.end() && std::next(block)->firstPlace <= mark.place) ++block;
    mark.path ^= block->volume;
  }
  std::ranges::sort(marks, {},
                    [](const FileMark& mark) { return std::tuple(mark.path, mark.values, mark.place); });
  return marks;
}

std::uint32_t ComparedListing::fileAt(std::uint32_t place) const {
  return static_cast<std::uint32_t>(std::ranges::lower_bound(files_, place, {}, &ComparedFile::place) -
                                    files_.begin());
}

}  // namespace quorvin
