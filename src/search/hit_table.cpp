// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/hit_table.h"

#include "dates/general_number.h"
#include "search/match/search_query.h"
#include "search/segment/segment.h"
#include "texts/texts.h"

#include <algorithm>

namespace quorvin {

QString hitText(const HitRow& row, HitColumn column, const QLocale& locale) {
  switch (column) {
    case HitColumn::Match:
      return matchText(row.match);
    case HitColumn::Volume:
      return row.volume;
    case HitColumn::Folder:
      return row.folder;
    case HitColumn::Name:
      return row.name;
    case HitColumn::Size:
      return mebibytesText(row.size, locale);
    case HitColumn::Date:
      return shortMonthDateText(row.date, locale);
  }
  return {};
}

const FoundEntry& HitTable::hit(std::int64_t row) const {
  return pages_[static_cast<std::size_t>(row / kPageSize)][static_cast<std::size_t>(row % kPageSize)];
}

FoundEntry& HitTable::hit(std::int64_t row) {
  return pages_[static_cast<std::size_t>(row / kPageSize)][static_cast<std::size_t>(row % kPageSize)];
}

const HitTable::SegmentRows& HitTable::segmentRows(std::int64_t row) const {
  const auto next =
      std::upper_bound(segments_.begin(), segments_.end(), row,
                       [](std::int64_t r, const SegmentRows& rows) { return r < rows.firstRow; });
  return *std::prev(next);
}

std::int64_t HitTable::valueRowOf(std::int64_t row) const {
  const auto next =
      std::upper_bound(carried_.begin(), carried_.end(), row,
                       [](std::int64_t r, const CarriedRows& carried) { return r < carried.firstRow; });
  if (next == carried_.begin()) return row;
  const CarriedRows& carried = *std::prev(next);
  if (row >= carried.firstRow + carried.count) return row;
  return carried.beginListing ? kNoRow : carried.firstRow - 1;
}

HitRow HitTable::row(std::int64_t row) const {
  HitRow result;
  result.match = hit(row).match;
  result.kind = segmentRows(row).kind;
  try {
    readRow(row, result);
  } catch (const DamagedSegment&) {
    // What can be read of it stays. The next search finds the damage noted and reads the listing again.
    result.name = Texts::tr("(damaged in the search cache; press Find again)");
  }
  return result;
}

void HitTable::readRow(std::int64_t row, HitRow& result) const {
  const Segment& segment = *segmentRows(row).segment;
  const std::uint32_t entry = hit(row).entry;
  result.volume = segment.volume(entry);
  result.folder = segment.folder(entry);
  result.name = segment.name(entry);
  const EntryValues shown = values(row);
  result.size = shown.size;
  result.date = shown.date;
}

EntryValues HitTable::values(std::int64_t row) const {
  const std::int64_t valueRow = valueRowOf(row);
  if (valueRow == kNoRow) return {};
  return segmentRows(valueRow).segment->values(hit(valueRow).entry);
}

std::optional<std::int64_t> HitTable::rowWithValues(std::int64_t row) const {
  const std::int64_t valueRow = valueRowOf(row);
  return valueRow == kNoRow ? std::nullopt : std::optional(valueRow);
}

HitStretch HitTable::stretchAt(std::int64_t row) const {
  const SegmentRows& rows = segmentRows(row);
  const bool isLast = &rows == &segments_.back();
  const std::int64_t segmentEnd = isLast ? rowCount_ : (&rows + 1)->firstRow;
  const std::int64_t pageEnd = (row / kPageSize + 1) * kPageSize;
  const auto count = static_cast<std::size_t>(std::min(segmentEnd, pageEnd) - row);
  return {row, rows.segment, {&hit(row), count}};
}

std::int64_t HitTable::size(std::int64_t row) const {
  const std::int64_t valueRow = valueRowOf(row);
  if (valueRow == kNoRow) return 0;
  try {
    return segmentRows(valueRow).segment->values(hit(valueRow).entry).size;
  } catch (const DamagedSegment&) {
    return 0;
  }
}

SourceKind HitTable::kind(std::int64_t row) const {
  return segmentRows(row).kind;
}

QString HitTable::listing(std::int64_t row) const {
  return segmentRows(row).listing;
}

void HitTable::clear() {
  ++timesCleared_;
  const auto filled = static_cast<std::size_t>((rowCount_ + kPageSize - 1) / kPageSize);
  pages_.resize(std::min(pages_.size(), std::max(filled, kPagesKept)));
  segments_.clear();
  carried_.clear();
  rowCount_ = 0;
  listingBegins_ = true;
  valuesSeen_ = false;
}

void HitTable::startListing(SourceKind kind, const QString& path) {
  kind_ = kind;
  listing_ = path;
  listingBegins_ = true;
  valuesSeen_ = false;
}

bool HitTable::addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) {
  if (hits.empty()) return true;
  // First what may throw: then none of these hits has been taken.
  const bool allOwn = findOwnValues(*segment, hits);
  if (listingBegins_ || segments_.back().segment != segment)
    segments_.push_back({rowCount_, segment, kind_, listing_});
  listingBegins_ = false;
  if (allOwn) valuesSeen_ = true;
  for (std::size_t i = 0; !allOwn && i < hits.size(); ++i) {
    if (ownValues_[i] != 0) {
      valuesSeen_ = true;
    } else {
      noteCarriedRow(rowCount_ + static_cast<std::int64_t>(i));
    }
  }
  while (!hits.empty()) {
    const auto slot = static_cast<std::size_t>(rowCount_ % kPageSize);
    // Not cleared first: every place is written before it is read.
    if (rowCount_ / kPageSize == static_cast<std::int64_t>(pages_.size())) {
      pages_.push_back(std::make_unique_for_overwrite<FoundEntry[]>(kPageSize));
    }
    const std::size_t count = std::min(hits.size(), static_cast<std::size_t>(kPageSize) - slot);
    std::copy_n(hits.begin(), count, pages_[static_cast<std::size_t>(rowCount_ / kPageSize)].get() + slot);
    rowCount_ += static_cast<std::int64_t>(count);
    hits = hits.subspan(count);
  }
  return true;
}

/// True in the usual case that all hits have values of their own. Otherwise fills `ownValues_`.
bool HitTable::findOwnValues(const Segment& segment, std::span<const FoundEntry> hits) {
  if (segment.allOwn(hits.front().entry, hits.back().entry)) return true;
  ownValues_.clear();
  for (const FoundEntry& found : hits) {
    ownValues_.push_back(hasValues(segment.valueState(found.entry)) ? 1 : 0);
  }
  return false;
}

/// The row joins those before it, but for those of a listing before that have values to show.
void HitTable::noteCarriedRow(std::int64_t row) {
  if (!carried_.empty()) {
    CarriedRows& last = carried_.back();
    if (last.firstRow + last.count == row && last.beginListing == !valuesSeen_) {
      ++last.count;
      return;
    }
  }
  carried_.push_back({row, 1, !valuesSeen_});
}

void HitTable::endSegment(const std::shared_ptr<const Segment>& segment,
                          const std::shared_ptr<const Segment>& kept) {
  // The next segment may have come.
  constexpr std::ptrdiff_t kLatest = 2;
  const auto latest = segments_.end() - std::min(kLatest, std::ssize(segments_));
  const auto rows =
      std::find_if(latest, segments_.end(), [&](const SegmentRows& own) { return own.segment == segment; });
  if (rows == segments_.end()) return;
  if (kept) {
    rows->segment = kept;
    return;
  }
  const std::int64_t endRow = std::next(rows) == segments_.end() ? rowCount_ : std::next(rows)->firstRow;
  const auto hits = static_cast<std::size_t>(endRow - rows->firstRow);
  // Where most entries are hits the segment itself is the smallest way to keep them.
  if (hits > segment->entryCount() / 2) return;
  std::vector<std::uint32_t> chosen;
  chosen.reserve(hits);
  for (std::int64_t row = rows->firstRow; row < endRow; ++row) {
    chosen.push_back(hit(row).entry);
    hit(row).entry = static_cast<std::uint32_t>(chosen.size() - 1);
  }
  rows->segment = copyOfEntries(*segment, chosen);
}

}  // namespace quorvin
