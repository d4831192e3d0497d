// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/segment.h"

#include "platform/text_encoding.h"
#include "search/format/listing_line.h"

#include <algorithm>

namespace quorvin {

namespace {

template <typename Record>
const Record* recordOf(std::span<const Record> records, std::uint32_t entry) {
  const auto found = std::lower_bound(records.begin(), records.end(), entry,
                                      [](const Record& record, std::uint32_t e) { return record.entry < e; });
  return found != records.end() && found->entry == entry ? &*found : nullptr;
}

constexpr std::uint32_t kNoBlock = UINT32_MAX;

}  // namespace

std::string_view Segment::volumeOfBlock(std::uint32_t block) const {
  const auto runs = arrays_.volumes.all();
  const auto next = std::upper_bound(
      runs.begin(), runs.end(), block,
      [](std::uint32_t b, const SegmentArrays::VolumeRun& run) { return b < run.firstBlock; });
  const std::uint32_t start = std::prev(next)->textStart;
  return textOf(arrays_.volumeTexts.part(start, next->textStart - start));
}

QString Segment::volume(std::uint32_t entry) const {
  return textOfUtf8(volumeOfBlock(blockOf(entry)));
}

QString Segment::folder(std::uint32_t entry) const {
  return textOfUtf8(folderOfBlock(blockOf(entry)));
}

QString Segment::name(std::uint32_t entry) const {
  return textOfUtf8(arrays_.entries.listedText(entry));
}

ValueState Segment::valueState(std::uint32_t entry) const {
  if (allOwn(entry, entry)) return ValueState::Own;
  switch (arrays_.values[entry].second) {
    case CompactValues::kAbsent:
      return ValueState::Absent;
    case CompactValues::kUnreadable:
      return ValueState::Unreadable;
    default:
      return ValueState::Carried;
  }
}

bool Segment::allOwn(std::uint32_t first, std::uint32_t last) const {
  if (arrays_.allOwn) return true;
  const auto words = arrays_.notOwn.part(first / 64, last / 64 - first / 64 + 1);
  const std::uint64_t firstBits = ~std::uint64_t{0} << (first % 64);
  const std::uint64_t lastBits = ~std::uint64_t{0} >> (63 - last % 64);
  if (words.size() == 1) return (words.front() & firstBits & lastBits) == 0;
  const auto inside = words.subspan(1, words.size() - 2);
  return (words.front() & firstBits) == 0 && (words.back() & lastBits) == 0 &&
         std::ranges::all_of(inside, [](std::uint64_t word) { return word == 0; });
}

EntryValues Segment::values(std::uint32_t entry) const {
  const CompactValues& compact = arrays_.values[entry];
  if (compact.second != CompactValues::kKeptAside) return expand(compact);
  const auto* wide = recordOf(arrays_.wideValues.all(), entry);
  return wide == nullptr ? EntryValues{} : EntryValues{wide->size, wide->date};
}

std::int64_t Segment::unreadableLine(std::uint32_t entry) const {
  const auto* unreadable = recordOf(arrays_.unreadable.all(), entry);
  return unreadable == nullptr ? 0 : unreadable->line;
}

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
  values_.addEntry();
  entries_.add(name, ascii);
}

void GrowingSegment::addEntryColumns(const char* line, std::size_t columns, bool trimmed) {
  values_.addEntry();
  entries_.addColumns(line, columns, trimmed);
}

void GrowingSegment::publish() {
  arrays_.entries = entries_.table();
  arrays_.folders = folders_.table();
  arrays_.blockStarts = blockStarts_;
  arrays_.volumes = volumes_;
  arrays_.volumeTexts = volumeTexts_;
  arrays_.values = values_.compact();
  arrays_.allOwn = values_.allOwn();
  arrays_.notOwn = values_.notOwn();
  arrays_.wideValues = values_.wide();
  arrays_.unreadable = values_.unreadable();
}

void GrowingSegment::complete() {
  entries_.completeTrigrams();
  folders_.completeTrigrams();
  entries_.giveBackRoom();
  folders_.giveBackRoom();
  publish();
}

void GrowingSegment::clear() {
  entries_.clear();
  folders_.clear();
  blockStarts_.clear();
  volumes_.clear();
  volumeTexts_.clear();
  values_.clear();
  publish();
}

std::size_t GrowingSegment::memorySize() const {
  return entries_.memorySize() + folders_.memorySize() + volumeTexts_.capacity() +
         blockStarts_.capacity() * sizeof(std::uint32_t) +
         volumes_.capacity() * sizeof(SegmentArrays::VolumeRun) + values_.memorySize();
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
    copy->valueArrays().set(++last, segment.valueState(entry), segment.values(entry),
                            segment.unreadableLine(entry));
  }
  copy->publish();
  return copy;
}

}  // namespace quorvin
