// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/copies_job.h"

#include "catalogue/sum_texts.h"
#include "platform/text_encoding.h"
#include "texts/texts.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

bool isLarger(const CopiesJob::Row& row, const CopiesJob::Row& other) {
  return row.size > other.size;
}

}  // namespace

CopiesJob::CopiesJob(ProgramState sources, CopyWish wish, QLocale locale, std::size_t mostRows)
    : sources_(std::move(sources)), wish_(std::move(wish)), locale_(std::move(locale)), mostRows_(mostRows) {}

QString CopiesJob::progressText() const {
  if (bytesToRead_ > 0) {
    return Texts::tr("Looking into files: %1 of %2")
        .arg(sizeText(bytesRead_, locale_), sizeText(bytesToRead_, locale_));
  }
  return isComparing_ ? Texts::tr("Comparing names and sizes") : watch_.progressText(locale_);
}

CopyFinder::Parts CopiesJob::parts() {
  CopyFinder::Parts parts{sources_, watch_, locale_};
  parts.display = &watch_;
  parts.endRequested = [this] { return isStopped(); };
  parts.comparing = [this] { isComparing_ = true; };
  parts.reading = [this](std::int64_t done, std::int64_t all) {
    bytesRead_ = done;
    bytesToRead_ = all;
  };
  parts.listingStarts = [this](SourceKind kind, const QString& path) { listingStarts(kind, path); };
  return parts;
}

void CopiesJob::listingStarts(SourceKind kind, const QString& path) {
  kinds_.push_back(kind);
  watch_.startListing(path);
}

bool CopiesJob::work() {
  finder_ = std::make_unique<CopyFinder>(wish_, parts());
  if (!finder_->find()) return false;
  makeRows();
  sumLines_ = finder_->sumLines();
  return true;
}

void CopiesJob::makeRows() {
  if (wish_.sumBy == CopyWish::SumBy::Volume) {
    addVolumes();
  } else if (wish_.sumBy == CopyWish::SumBy::Folder) {
    addFolders();
  } else if (wish_.singleOnly) {
    addSingleFiles();
  } else {
    addCopies();
  }
}

void CopiesJob::addCopies() {
  const std::vector<CopyLine> lines = finder_->lines();
  rowsAltogether_ = static_cast<std::int64_t>(lines.size());
  rows_.reserve(std::min(lines.size(), mostRows_));
  for (const CopyLine& line : lines) {
    if (rows_.size() == mostRows_) return;
    if (line.isFolders) {
      const EqualFolders::Set& set = finder_->equalFolders().sets()[line.number];
      rows_.push_back({RowKind::FolderSet, line.number, static_cast<std::int64_t>(set.folders.size()),
                       set.holds.bytes, line.bytesBeyondFirst});
    } else {
      const Copies::Group& group = finder_->copies().groups()[line.number];
      rows_.push_back({RowKind::Group, line.number, group.copies, group.size, line.bytesBeyondFirst});
    }
  }
}

/// The largest ones, those listed first before others of the same size.
void CopiesJob::addSingleFiles() {
  const auto keepLargest = [this] {
    std::ranges::stable_sort(rows_, isLarger);
    if (rows_.size() > mostRows_)
      rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(mostRows_), rows_.end());
  };
  finder_->visitSingle(
      [&](ListedFiles::Visited& file) {
        ++rowsAltogether_;
        rows_.push_back({RowKind::SingleFile, file.folder, 1, file.size, 0, textOfUtf8(file.name().listed)});
        if (rows_.size() >= 2 * mostRows_) keepLargest();
      },
      [this] { return isStopped(); });
  keepLargest();
}

void CopiesJob::addVolumes() {
  const std::vector<FileSum> sums = sumsOfVolumes(finder_->folders(), finder_->inFolders());
  const std::vector<std::uint32_t> volumes = largestFirst(sums);
  rowsAltogether_ = static_cast<std::int64_t>(volumes.size());
  for (const std::uint32_t volume : volumes) {
    if (rows_.size() == mostRows_) return;
    rows_.push_back({RowKind::VolumeSum, volume, sums[volume].files, sums[volume].bytes});
  }
}

void CopiesJob::addFolders() {
  const std::vector<FileSum>& sums = finder_->inFolders();
  const std::vector<std::uint32_t> folders = largestFirst(sums);
  rowsAltogether_ = static_cast<std::int64_t>(folders.size());
  for (const std::uint32_t folder : folders) {
    if (rows_.size() == mostRows_) return;
    rows_.push_back({RowKind::FolderSum, folder, sums[folder].files, sums[folder].bytes});
  }
}

}  // namespace quorvin
