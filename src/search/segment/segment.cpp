#include "search/segment/segment.h"

#include "platform/text_encoding.h"

#include <algorithm>

namespace quorvin {

namespace {

template <typename Record>
const Record* recordOf(std::span<const Record> records, std::uint32_t entry) {
  const auto found = std::lower_bound(records.begin(), records.end(), entry,
                                      [](const Record& record, std::uint32_t e) { return record.entry < e; });
  return found != records.end() && found->entry == entry ? &*found : nullptr;
}

}  // namespace

std::uint32_t Segment::blockOf(std::uint32_t entry) const {
  const auto& starts = arrays_.blockStarts;
  require(starts.data(), starts.size_bytes());
  return static_cast<std::uint32_t>(std::upper_bound(starts.begin(), starts.end(), entry) - starts.begin()) -
         1;
}

std::string_view Segment::volumeOfBlock(std::uint32_t block) const {
  const auto& runs = arrays_.volumes;
  require(runs.data(), runs.size_bytes());
  const auto next = std::upper_bound(
      runs.begin(), runs.end(), block,
      [](std::uint32_t b, const SegmentArrays::VolumeRun& run) { return b < run.firstBlock; });
  const std::uint32_t start = std::prev(next)->textStart;
  const std::string_view volume = arrays_.volumeTexts.substr(start, next->textStart - start);
  require(volume.data(), volume.size());
  return volume;
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
  require(&arrays_.values[entry], sizeof(CompactValues));
  switch (arrays_.values[entry].second) {
    case CompactValues::kAbsent:
      return ValueState::Absent;
    case CompactValues::kUnreadable:
      return ValueState::Unreadable;
    default:
      return ValueState::Own;
  }
}

bool Segment::allOwn(std::uint32_t first, std::uint32_t last) const {
  if (arrays_.allOwn) return true;
  const std::span<const std::uint64_t> words = arrays_.notOwn.subspan(first / 64, last / 64 - first / 64 + 1);
  require(words.data(), words.size_bytes());
  const std::uint64_t firstBits = ~std::uint64_t{0} << (first % 64);
  const std::uint64_t lastBits = ~std::uint64_t{0} >> (63 - last % 64);
  if (words.size() == 1) return (words.front() & firstBits & lastBits) == 0;
  const auto inside = words.subspan(1, words.size() - 2);
  return (words.front() & firstBits) == 0 && (words.back() & lastBits) == 0 &&
         std::ranges::all_of(inside, [](std::uint64_t word) { return word == 0; });
}

EntryValues Segment::values(std::uint32_t entry) const {
  const CompactValues& compact = arrays_.values[entry];
  require(&compact, sizeof compact);
  if (compact.second != CompactValues::kKeptAside) return expand(compact);
  require(arrays_.wideValues.data(), arrays_.wideValues.size_bytes());
  const auto* wide = recordOf(arrays_.wideValues, entry);
  return wide == nullptr ? EntryValues{} : EntryValues{wide->size, wide->date};
}

std::int64_t Segment::unreadableLine(std::uint32_t entry) const {
  require(arrays_.unreadable.data(), arrays_.unreadable.size_bytes());
  const auto* unreadable = recordOf(arrays_.unreadable, entry);
  return unreadable == nullptr ? 0 : unreadable->line;
}

}  // namespace quorvin
