// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/volume_finder.h"

#include "catalogue/every_entry.h"
#include "platform/text_encoding.h"
#include "search/hit_path.h"
#include "state/volume_notes.h"

#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorvin {

namespace {

using VolumeOrder = std::vector<std::uint32_t>;

/// Puts those that have a value in its order, and the others behind them.
template <typename ValueOf>
void sortByValue(VolumeOrder& order, bool isDescending, ValueOf valueOf) {
  const auto end =
      std::ranges::stable_partition(order, [&](std::uint32_t v) { return valueOf(v).has_value(); });
  std::stable_sort(order.begin(), end.begin(), [&](std::uint32_t a, std::uint32_t b) {
    return isDescending ? *valueOf(b) < *valueOf(a) : *valueOf(a) < *valueOf(b);
  });
}

std::optional<QString> textToSort(const QString& text) {
  return text.isEmpty() ? std::nullopt : std::optional(text.toCaseFolded());
}

}  // namespace

std::vector<std::uint32_t> orderOfVolumes(const std::vector<KnownVolume>& volumes, VolumeColumn column,
                                          bool isDescending) {
  VolumeOrder order(volumes.size());
  std::iota(order.begin(), order.end(), 0U);
  const auto sortBy = [&](auto valueOf) {
    sortByValue(order, isDescending, [&](std::uint32_t v) { return valueOf(volumes[v]); });
  };
  switch (column) {
    case VolumeColumn::Volume:
      sortBy([](const KnownVolume& v) { return textToSort(v.name); });
      break;
    case VolumeColumn::Entries:
      sortBy([](const KnownVolume& v) { return std::optional(v.sum.holds.files); });
      break;
    case VolumeColumn::Size:
      sortBy([](const KnownVolume& v) { return std::optional(v.sum.holds.bytes); });
      break;
    case VolumeColumn::Newest:
      sortBy([](const KnownVolume& v) {
        return v.sum.newest ? std::optional(v.sum.newest->date) : std::nullopt;
      });
      break;
    case VolumeColumn::Listed:
      sortBy(
          [](const KnownVolume& v) { return v.listed.isValid() ? std::optional(v.listed) : std::nullopt; });
      break;
    case VolumeColumn::Free:
      sortBy([](const KnownVolume& v) { return v.freeBytes; });
      break;
    case VolumeColumn::Listing:
      sortBy([](const KnownVolume& v) { return textToSort(QFileInfo(v.listing).fileName()); });
      break;
    case VolumeColumn::Note:
      sortBy([](const KnownVolume& v) { return textToSort(v.note); });
      break;
  }
  return order;
}

std::optional<std::int64_t> VolumeFinder::freeBytesOfDrive(const QString& folder) {
  if (!QFileInfo(folder).isDir()) return std::nullopt;
  const QStorageInfo drive(folder);
  return drive.isValid() && drive.isReady() ? std::optional<std::int64_t>(drive.bytesAvailable())
                                            : std::nullopt;
}

bool VolumeFinder::find(const std::vector<QString>& listings) {
  VolumeSums sums(parts_.listingStarts);
  read(sums, listings);
  if (parts_.endRequested()) return false;
  addFacts(sums);
  return !parts_.endRequested();
}

FileSum VolumeFinder::sum() const {
  FileSum sum;
  for (const KnownVolume& volume : volumes_) sum.add(volume.sum.holds);
  return sum;
}

void VolumeFinder::read(VolumeSums& sums, const std::vector<QString>& listings) {
  std::optional<SegmentStore> segments;
  if (wish_.useCache) segments.emplace(storeForTwoReadings());
  RunParts parts{parts_.state, parts_.messages, parts_.locale};
  parts.hits = &sums;
  parts.segments = segments ? &*segments : nullptr;
  parts.display = parts_.display;
  parts.endRequested = parts_.endRequested;
  // They are counted by ourselves.
  parts.tellsUnreadable = false;
  parts.streamAt = parts_.streamAt;
  SearchRun run(std::move(parts));
  if (wish_.searchText.isEmpty()) {
    findEveryEntry(run, listings);
  } else if (listings.empty()) {
    run.Find_Click(wish_.searchText, wish_.desiredMatch);
  } else {
    run.searchListings(wish_.searchText, wish_.desiredMatch, listings);
  }
  failedListings_ = run.failedListings();
}

void VolumeFinder::addFacts(const VolumeSums& sums) {
  VolumeNotes notes(parts_.state.LocalFolder);
  notes.refresh();
  for (const VolumeSums::Volume& volume : sums.volumes()) {
    if (parts_.endRequested()) return;
    const VolumeSums::Listing& listing = sums.listings()[volume.listing];
    KnownVolume known{textOfUtf8(volume.name), listing.path, listing.kind, volume.sum};
    known.listed = QFileInfo(listing.path).lastModified();
    HitRow any;
    any.kind = known.kind;
    any.volume = known.name;
    known.folder = sourceFolderOf(parts_.state, any);
    if (!known.folder.isEmpty()) known.freeBytes = parts_.freeBytesAt(known.folder);
    known.note = notes.of(known.listing, known.name);
    volumes_.push_back(std::move(known));
  }
}

}  // namespace quorvin
