// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/listed_files.h"

#include "catalogue/entry_sizes.h"
#include "faults/runtime_fault.h"
#include "search/format/listing_line.h"
#include "texts/texts.h"

#include <algorithm>
#include <utility>
#include <xxhash.h>

namespace quorvin {

namespace {

constexpr std::size_t kRecordsInPiece = std::size_t{1} << 11;
/// From this size on a size takes up the last column of the entry text.
constexpr std::int64_t kSizeInText = 1'000'000'000;
constexpr std::uint32_t kVisitsBetweenLooks = 4096;

std::uint64_t maskOf(int bits) {
  return bits == 0 ? 0 : ~std::uint64_t{0} << (64 - bits);
}

/// The bit of each place, for places that come in order.
void setBit(std::vector<std::uint64_t>& bits, std::uint32_t place, bool isSet) {
  if (bits.size() <= place / 64) bits.resize(place / 64 + 1);
  if (isSet) bits[place / 64] |= std::uint64_t{1} << (place % 64);
}

constexpr std::size_t kDigitBits = 8;

/// Sorts by the 24 bits of the hash behind the 8 that the records of a part have in common; what is the same
/// in these stays in order.
void sortByMiddle(std::vector<FileRecord>& records) {
  std::vector<FileRecord> other(records.size());
  for (std::size_t shift = 0; shift < 3 * kDigitBits; shift += kDigitBits) {
    const auto digitOf = [shift](const FileRecord& record) { return record.high >> shift & 0xFF; };
    std::array<std::size_t, 257> starts{};
    for (const FileRecord& record : records) ++starts[digitOf(record) + 1];
    for (std::size_t i = 1; i < starts.size(); ++i) starts[i] += starts[i - 1];
    for (const FileRecord& record : records) other[starts[digitOf(record)]++] = record;
    records.swap(other);
  }
}

void sortByHash(std::vector<FileRecord>& records) {
  sortByMiddle(records);
  // What is left is mostly in order, since it is the same file.
  const auto isBefore = [](const FileRecord& a, const FileRecord& b) { return a.low < b.low; };
  for (auto begin = records.begin(); begin != records.end();) {
    const auto end = std::find_if(
        begin, records.end(), [high = begin->high](const FileRecord& record) { return record.high != high; });
    if (!std::is_sorted(begin, end, isBefore)) std::stable_sort(begin, end, isBefore);
    begin = end;
  }
}

}  // namespace

void checkPlaces(std::uint32_t places, std::uint32_t more) {
  constexpr std::uint32_t kMostPlaces = UINT32_MAX - 1;
  if (more <= kMostPlaces - places) return;
  throw RuntimeFault(FaultNumber::Overflow, Texts::tr("There are more than %1 files").arg(kMostPlaces));
}

std::string_view fileNameIn(std::string_view entryText, std::int64_t size) {
  if (size < kSizeInText || entryText.size() <= kNameColumns) return entryText;
  const std::string_view name = entryText.substr(0, bytesOfCharacters(entryText, kNameColumns));
  if (name.size() == entryText.size()) return entryText;
  return name.substr(0, name.find_last_not_of(' ') + 1);
}

ListedFiles::ListedFiles(Options options)
    : options_(std::move(options)), hashMask_(maskOf(options_.hashBits)) {
  if (options_.words != nullptr) search_ = std::make_unique<SegmentSearch>(*options_.words);
}

void ListedFiles::startListing(SourceKind kind, const QString& path) {
  if (options_.listingStarts) options_.listingStarts(kind, path);
  endListing();
  listings_.push_back(path);
  firstSegments_.push_back(segments_.size());
}

/// Lets go of what would stay in memory, if it can be opened again as it is.
void ListedFiles::endListing() {
  if (listings_.empty() || !options_.segmentsOf) return;
  const auto isInMemory = [](const Listed& listed) {
    return listed.segment && listed.segment->memorySize() > 0;
  };
  if (std::ranges::none_of(segmentsAt(listings_.size() - 1), isInMemory)) return;
  if (!areListed(options_.segmentsOf(listings_.back()), listings_.size() - 1)) return;
  for (std::size_t i = firstSegments_.back(); i < segments_.size(); ++i) segments_[i].segment.reset();
}

/// Whether these are the segments of a listing as they were when they came.
bool ListedFiles::areListed(const SegmentStore::Segments& segments, std::size_t listing) const {
  return std::ranges::equal(segments, segmentsAt(listing), [](const auto& segment, const Listed& listed) {
    return segment->entryCount() == listed.endPlace - listed.firstPlace;
  });
}

std::span<const ListedFiles::Listed> ListedFiles::segmentsAt(std::size_t listing) const {
  const std::size_t first = firstSegments_[listing];
  const std::size_t end =
      listing + 1 < firstSegments_.size() ? firstSegments_[listing + 1] : segments_.size();
  return std::span(segments_).subspan(first, end - first);
}

bool ListedFiles::addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) {
  const std::uint32_t first = hits.front().entry;
  const std::uint32_t last = hits.back().entry + 1;
  checkPlaces(places_, last - first);
  const std::uint32_t base = places_ - first;
  readBatch(*segment, base, first, last);
  // The same listing may come twice in a row, with the same segments.
  const std::size_t listing = listings_.size() - 1;
  const bool goesOn =
      !segments_.empty() && segments_.back().segment == segment && segments_.back().listing == listing;
  if (!goesOn) segments_.push_back({segment, listing, base, places_, places_});
  takeBatch(first, last);
  return true;
}

void ListedFiles::endSegment(const std::shared_ptr<const Segment>& segment,
                             const std::shared_ptr<const Segment>& kept) {
  const auto listed = std::find_if(segments_.rbegin(), segments_.rend(),
                                   [&](const Listed& other) { return other.segment == segment; });
  if (listed == segments_.rend()) return;
  if (kept) listed->segment = kept;
  listed->segment->release();
}

void ListedFiles::readBatch(const Segment& segment, std::uint32_t base, std::uint32_t first,
                            std::uint32_t last) {
  batch_.records.clear();
  batch_.blocks.clear();
  batch_.withoutSize = 0;
  markWanted(segment, first, last);
  folderTexts_.start(segment.arrays().folders);
  const std::span<const std::uint32_t> starts = segment.arrays().blockStarts.all();
  std::uint32_t block = blockAt(starts, first);
  for (std::uint32_t entry = first; entry < last; ++block) {
    const std::uint32_t end = block + 1 < starts.size() ? std::min(starts[block + 1], last) : last;
    const auto listing = static_cast<std::uint32_t>(listings_.size() - 1);
    const std::uint32_t volume = folders_.addVolume(listing, segment.volumeOfBlock(block));
    batch_.blocks.push_back({folders_.addFolder(volume, folderTexts_.at(block).listed), base + entry});
    entry = end;
  }
  const EntrySizes sizes(segment, first, last);
  TextWalk names(segment.arrays().entries);
  for (std::uint32_t entry = first; entry < last; ++entry) {
    const std::int64_t size = sizes.of(entry);
    if (size < 0) {
      if (isWantedInBatch(entry, first)) ++batch_.withoutSize;
      continue;
    }
    const std::string_view name = fileNameIn(names.text(entry), size);
    const std::uint64_t hash =
        XXH3_64bits_withSeed(name.data(), name.size(), static_cast<std::uint64_t>(size)) & hashMask_;
    batch_.records.push_back(
        {static_cast<std::uint32_t>(hash >> 32), static_cast<std::uint32_t>(hash), base + entry});
  }
}

void ListedFiles::markWanted(const Segment& segment, std::uint32_t first, std::uint32_t last) {
  batch_.wanted.clear();
  if (!search_) return;
  const std::span<const std::uint64_t> marks = search_->mark(segment, first, last);
  batch_.wanted.assign(marks.begin(), marks.end());
}

bool ListedFiles::isWantedInBatch(std::uint32_t entry, std::uint32_t first) const {
  if (!search_) return true;
  const std::uint32_t at = entry - first;
  return at / 64 < batch_.wanted.size() && (batch_.wanted[at / 64] >> (at % 64) & 1U) != 0;
}

void ListedFiles::takeBatch(std::uint32_t first, std::uint32_t last) {
  for (const Block& block : batch_.blocks) {
    if (blocks_.empty() || blocks_.back().folder != block.folder) blocks_.push_back(block);
  }
  for (const FileRecord& record : batch_.records) {
    Part& part = parts_[record.high >> 24];
    const std::size_t at = part.count++ % kRecordsInPiece;
    if (at == 0) part.pieces.push_back(std::make_unique_for_overwrite<FileRecord[]>(kRecordsInPiece));
    part.pieces.back()[at] = record;
  }
  if (search_) {
    for (std::uint32_t entry = first; entry < last; ++entry) {
      setBit(wanted_, places_ + (entry - first), isWantedInBatch(entry, first));
    }
  }
  withoutSize_ += batch_.withoutSize;
  places_ += last - first;
  segments_.back().endPlace = places_;
}

std::uint32_t ListedFiles::folderOf(std::uint32_t place) const {
  const auto next = std::ranges::upper_bound(blocks_, place, {}, &Block::firstPlace);
  return std::prev(next)->folder;
}

std::vector<FileRecord> ListedFiles::takePart(std::size_t number) {
  Part part = std::exchange(parts_[number], {});
  std::vector<FileRecord> records;
  records.reserve(part.count);
  for (auto& piece : part.pieces) {
    const std::size_t count = std::min(kRecordsInPiece, part.count - records.size());
    records.insert(records.end(), piece.get(), piece.get() + count);
    piece.reset();
  }
  sortByHash(records);
  return records;
}

ListedWalk::Text ListedFiles::Visited::name() {
  const ListedWalk::Text text = names_.at(entry_);
  return {fileNameIn(text.listed, size), fileNameIn(text.folded, size)};
}

bool ListedFiles::visitFiles(const std::function<void(Visited&)>& visit, const StopAsked& stop) const {
  SegmentStore::Segments opened;
  for (std::size_t i = 0; i < segments_.size(); ++i) {
    const Listed& listed = segments_[i];
    const std::size_t first = firstSegments_[listed.listing];
    if (!listed.segment && i == first) opened = openedAgain(listed.listing);
    const std::shared_ptr<const Segment> segment = listed.segment ? listed.segment : opened[i - first];
    const bool goesOn = visitSegment(*segment, listed, visit, stop);
    segment->release();
    if (!goesOn) return false;
  }
  return true;
}

/// The segments of a listing that has been let go of.
SegmentStore::Segments ListedFiles::openedAgain(std::size_t listing) const {
  const SegmentStore::Segments segments = options_.segmentsOf(listings_[listing]);
  if (areListed(segments, listing)) return segments;
  throw RuntimeFault(FaultNumber::DeviceError,
                     Texts::tr("%1 was changed while it was read. Please try again").arg(listings_[listing]));
}

bool ListedFiles::visitSegment(const Segment& segment, const Listed& listed,
                               const std::function<void(Visited&)>& visit, const StopAsked& stop) const {
  const EntrySizes sizes(segment, listed.firstPlace - listed.base, listed.endPlace - listed.base);
  Visited visited;
  visited.names_.start(segment.arrays().entries);
  auto next = std::ranges::upper_bound(blocks_, listed.firstPlace, {}, &Block::firstPlace);
  visited.folder = std::prev(next)->folder;
  for (visited.place = listed.firstPlace; visited.place < listed.endPlace; ++visited.place) {
    if (next != blocks_.end() && next->firstPlace == visited.place) visited.folder = next++->folder;
    visited.entry_ = visited.place - listed.base;
    visited.size = sizes.of(visited.entry_);
    if (visited.size >= 0) visit(visited);
    if (visited.place % kVisitsBetweenLooks == 0 && stop()) return false;
  }
  return true;
}

}  // namespace quorvin
