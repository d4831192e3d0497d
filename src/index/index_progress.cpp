// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/index_progress.h"

#include "texts/texts.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

/// A file takes up one line of about this many bytes; the block head and the line of a folder take up about
/// as much together.
constexpr double kBytesOfOne = 111;
/// A source that has grown is not done before it says so.
constexpr double kMostBeforeTheEnd = 0.99;

}  // namespace

RefreshShare::RefreshShare(std::vector<std::int64_t> listingSizes) : sizes_(std::move(listingSizes)) {
  double known = 0;
  double knownTotal = 0;
  for (const std::int64_t size : sizes_) {
    if (size <= 0) continue;
    known += 1;
    knownTotal += static_cast<double>(size);
  }
  if (known > 0) usualSize_ = knownTotal / known;
  for (std::size_t source = 0; source < sizes_.size(); ++source) total_ += sizeOf(source);
}

double RefreshShare::sizeOf(std::size_t source) const {
  return sizes_[source] > 0 ? static_cast<double>(sizes_[source]) : usualSize_;
}

void RefreshShare::beginSource(int row) {
  const std::size_t source = std::min(static_cast<std::size_t>(std::max(row, 1)), sizes_.size());
  before_ = 0;
  for (std::size_t other = 0; other + 1 < source; ++other) before_ += sizeOf(other);
  size_ = source > 0 ? sizes_[source - 1] : 0;
  countsBefore_ = counts_;
}

void RefreshShare::indexed(const IndexCounts& counts) {
  counts_ = counts;
}

double RefreshShare::doneInSource() const {
  const auto ones =
      static_cast<double>(counts_.files - countsBefore_.files + counts_.folders - countsBefore_.folders);
  const auto size = static_cast<double>(size_);
  return std::clamp(ones * kBytesOfOne, 0.0, kMostBeforeTheEnd * size);
}

std::optional<int> RefreshShare::percent() {
  if (size_ <= 0) return std::nullopt;
  percent_ = std::max(percent_, static_cast<int>(100 * (before_ + doneInSource()) / total_));
  return percent_;
}

void IndexProgress::enterFolder(std::string_view listedPath) {
  folder_ = listedPath;
  isFolderNew_ = true;
}

void IndexProgress::letEventsRun(const IndexCounts& counts) {
  counts_ = counts;
  share_.indexed(counts);
  if (job_.display().isDue()) show();
  job_.letEventsRun();
}

void IndexProgress::show() {
  WorkDisplay& display = job_.display();
  if (std::exchange(isFolderNew_, false)) {
    display.setStatus(Texts::tr("Indexing: %1").arg(QString::fromStdString(folder_)));
  }
  display.setDetail(countsText());
  if (const std::optional<int> percent = share_.percent()) {
    display.setBar(*percent);
  } else {
    display.setBusy();
  }
}

QString IndexProgress::countsText() const {
  const QString files = (counts_.files == 1 ? Texts::tr("%1 file")
                                            : Texts::tr("%1 files", nullptr, Texts::plural(counts_.files)))
                            .arg(locale_.toString(static_cast<qlonglong>(counts_.files)));
  return (counts_.folders == 1 ? Texts::tr("%1 in %2 folder", "files")
                               : Texts::tr("%1 in %2 folders", "files", Texts::plural(counts_.folders)))
      .arg(files, locale_.toString(static_cast<qlonglong>(counts_.folders)));
}

}  // namespace quorvin
