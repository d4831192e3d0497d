#include "search/hit_table.h"

#include "platform/general_number.h"
#include "search/growing_image.h"
#include "search/search_words.h"

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

const HitTable::Hit& HitTable::hit(std::int64_t row) const {
  return pages_[static_cast<std::size_t>(row / kPageSize)][static_cast<std::size_t>(row % kPageSize)];
}

HitTable::Hit& HitTable::hit(std::int64_t row) {
  return pages_[static_cast<std::size_t>(row / kPageSize)][static_cast<std::size_t>(row % kPageSize)];
}

HitRow HitTable::row(std::int64_t row) const {
  const Hit& own = hit(row);
  const SearchImage& image = *images_[own.image];
  HitRow result;
  result.match = own.match;
  result.kind = own.kind;
  result.volume = image.volume(own.entry);
  result.folder = image.folder(own.entry);
  result.name = image.name(own.entry);
  if (own.valueRow != kNoRow) {
    const Hit& source = hit(own.valueRow);
    const EntryValues values = images_[source.image]->values(source.entry);
    result.size = values.size;
    result.date = values.date;
  }
  return result;
}

SourceKind HitTable::kind(std::int64_t row) const {
  return hit(row).kind;
}

void HitTable::clear() {
  pages_.clear();
  images_.clear();
  rowCount_ = 0;
  imageFirstRow_ = 0;
  valueRow_ = kNoRow;
}

void HitTable::beginListing(SourceKind kind) {
  kind_ = kind;
  valueRow_ = kNoRow;
}

void HitTable::addHits(const std::shared_ptr<const SearchImage>& image, std::span<const FoundEntry> hits) {
  if (hits.empty()) return;
  if (images_.empty() || images_.back() != image) {
    images_.push_back(image);
    imageFirstRow_ = rowCount_;
  }
  const auto imageNumber = static_cast<std::uint32_t>(images_.size() - 1);
  for (const FoundEntry& found : hits) {
    if (image->valueState(found.entry) == ValueState::Own) valueRow_ = static_cast<std::uint32_t>(rowCount_);
    append({imageNumber, found.entry, valueRow_, found.match, kind_});
  }
}

void HitTable::append(const Hit& hit) {
  const auto slot = static_cast<std::size_t>(rowCount_ % kPageSize);
  if (slot == 0) pages_.push_back(std::make_unique<Hit[]>(kPageSize));
  pages_.back()[slot] = hit;
  ++rowCount_;
}

void HitTable::endImage(const std::shared_ptr<const SearchImage>& image,
                        const std::shared_ptr<const SearchImage>& kept) {
  if (images_.empty() || images_.back() != image) return;
  if (kept) {
    images_.back() = kept;
    return;
  }
  const auto hits = static_cast<std::size_t>(rowCount_ - imageFirstRow_);
  // Where most entries are hits the image itself is the smallest way to keep them.
  if (hits > image->entryCount() / 2) return;
  std::vector<std::uint32_t> chosen;
  chosen.reserve(hits);
  for (std::int64_t row = imageFirstRow_; row < rowCount_; ++row) {
    chosen.push_back(hit(row).entry);
    hit(row).entry = static_cast<std::uint32_t>(chosen.size() - 1);
  }
  images_.back() = copyOfEntries(*image, chosen);
}

}  // namespace quorvin
