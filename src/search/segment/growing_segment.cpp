#include "search/segment/growing_segment.h"

#include "search/format/listing_line.h"

namespace quorvin {

namespace {

constexpr std::uint32_t kNoBlock = UINT32_MAX;

}  // namespace

void GrowingSegment::beginBlock(std::string_view volume, std::string_view folder, bool folderIsAscii) {
  const std::uint32_t block = folders_.count();
  folders_.add(folder, folderIsAscii);
  blockStarts_.push_back(entries_.count());
  if (!volumes_.empty()) {
    const SegmentArrays::VolumeRun& last = volumes_[volumes_.size() - 2];
    if (std::string_view(volumeTexts_).substr(last.textStart) == volume) return;
    volumes_.pop_back();
  }
  volumes_.push_back({block, static_cast<std::uint32_t>(volumeTexts_.size())});
  volumeTexts_ += volume;
  volumes_.push_back({kNoBlock, static_cast<std::uint32_t>(volumeTexts_.size())});
}

void GrowingSegment::addEntry(std::string_view name, bool ascii) {
  makeRoomForValues();
  entries_.add(name, ascii);
}

void GrowingSegment::addEntryColumns(const char* line, std::size_t columns, bool trimmed) {
  makeRoomForValues();
  entries_.addColumns(line, columns, trimmed);
}

void GrowingSegment::makeRoomForValues() {
  if (entries_.count() % 64 == 0) notOwn_.push_back(0);
  values_.push_back({0, CompactValues::kAbsent});
}

void GrowingSegment::setValues(std::uint32_t entry, ValueState state, const EntryValues& values,
                               std::int64_t line) {
  const CompactValues compacted = compact(state, values);
  values_[entry] = compacted;
  if (state != ValueState::Own) {
    allOwn_ = false;
    notOwn_[entry / 64] |= std::uint64_t{1} << (entry % 64);
  }
  if (compacted.second == CompactValues::kKeptAside)
    wideValues_.push_back({entry, 0, values.size, values.date});
  if (compacted.second == CompactValues::kUnreadable) unreadable_.push_back({line, entry, 0});
}

void GrowingSegment::publish() {
  arrays_.entries = entries_.table();
  arrays_.folders = folders_.table();
  arrays_.blockStarts = blockStarts_;
  arrays_.volumes = volumes_;
  arrays_.volumeTexts = volumeTexts_;
  arrays_.values = values_;
  arrays_.allOwn = allOwn_;
  arrays_.notOwn = notOwn_;
  arrays_.wideValues = wideValues_;
  arrays_.unreadable = unreadable_;
}

void GrowingSegment::complete() {
  entries_.completeTrigrams();
  folders_.completeTrigrams();
  publish();
}

void GrowingSegment::clear() {
  entries_.clear();
  folders_.clear();
  blockStarts_.clear();
  volumes_.clear();
  volumeTexts_.clear();
  values_.clear();
  allOwn_ = true;
  notOwn_.clear();
  wideValues_.clear();
  unreadable_.clear();
  publish();
}

std::size_t GrowingSegment::memorySize() const {
  return entries_.memorySize() + folders_.memorySize() + volumeTexts_.capacity() +
         blockStarts_.capacity() * sizeof(std::uint32_t) +
         volumes_.capacity() * sizeof(SegmentArrays::VolumeRun) + values_.capacity() * sizeof(CompactValues) +
         notOwn_.capacity() * sizeof(std::uint64_t) +
         wideValues_.capacity() * sizeof(SegmentArrays::WideValues) +
         unreadable_.capacity() * sizeof(SegmentArrays::UnreadableEntry);
}

std::shared_ptr<const Segment> copyOfEntries(const Segment& segment, std::span<const std::uint32_t> chosen) {
  auto copy = std::make_shared<GrowingSegment>();
  std::uint32_t block = kNoBlock;
  std::uint32_t last = UINT32_MAX;
  for (const std::uint32_t entry : chosen) {
    const std::uint32_t own = segment.blockOf(entry);
    if (own != block) {
      const std::string folder = segment.folderOfBlock(own);
      copy->beginBlock(segment.volumeOfBlock(own), folder, isAscii(folder));
    }
    block = own;
    const std::string name = segment.arrays().entries.listedText(entry);
    copy->addEntry(name, isAscii(name));
    copy->setValues(++last, segment.valueState(entry), segment.values(entry), segment.unreadableLine(entry));
  }
  copy->publish();
  return copy;
}

}  // namespace quorvin
