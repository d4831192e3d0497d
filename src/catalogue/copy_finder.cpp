// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/copy_finder.h"

#include "catalogue/every_entry.h"
#include "catalogue/sum_texts.h"
#include "platform/text_encoding.h"
#include "search/match/search_query.h"
#include "texts/texts.h"

#include <utility>

namespace quorvin {

CopyFinder::CopyFinder(const CopyWish& wish, Parts parts)
    : wish_(wish), parts_(std::move(parts)), which_{wish.withEmpty} {
  if (!wish_.searchText.isEmpty()) {
    words_.emplace(simpleLowerCase(wish_.searchText), correctedMatch(wish_.desiredMatch));
  }
  ListedFiles::Options options{words_ ? &*words_ : nullptr};
  options.listingStarts = [this](SourceKind kind, const QString& path) {
    kinds_.push_back(kind);
    if (parts_.listingStarts) parts_.listingStarts(kind, path);
  };
  if (wish_.useCache) {
    segments_.emplace(storeForTwoReadings());
    options.segmentsOf = [this](const QString& listing) { return segmentsOf(listing); };
  }
  files_.emplace(std::move(options));
  copies_.emplace(*files_);
  equalFolders_.emplace(*copies_);
  run_.emplace(runParts());
}

RunParts CopyFinder::runParts() {
  RunParts parts{parts_.state, parts_.messages, parts_.locale};
  parts.hits = &*files_;
  parts.segments = segments_ ? &*segments_ : nullptr;
  parts.display = parts_.display;
  parts.endRequested = parts_.endRequested;
  // They are counted by ourselves.
  parts.tellsUnreadable = false;
  parts.streamAt = parts_.streamAt;
  return parts;
}

SegmentStore::Segments CopyFinder::segmentsOf(const QString& listing) {
  const std::optional<SegmentKey> key = segmentKeyOf(listing, parts_.locale);
  return key ? segments_->find(*key) : SegmentStore::Segments();
}

bool CopyFinder::find(const std::vector<QString>& listings) {
  findEveryEntry(*run_, listings);
  return !parts_.endRequested() && compare();
}

bool CopyFinder::isEnded() const {
  parts_.comparing();
  return parts_.endRequested();
}

bool CopyFinder::compare() {
  const StopAsked stop = [this] { return isEnded(); };
  if (!copies_->find(stop)) return false;
  if (wish_.byContent && !lookInside()) return false;
  if (wish_.singleOnly) {
    inFolders_ = singleFilesInFolders(*copies_, which_, stop);
  } else if (wish_.sumBy != CopyWish::SumBy::Nothing) {
    inFolders_ = copiesInFolders(*copies_, which_);
  } else if (!equalFolders_->find(stop)) {
    // Only the list of copies says which folders are equal.
    return false;
  }
  return !parts_.endRequested();
}

/// Reading goes on at its own pace, and tells of itself.
bool CopyFinder::lookInside() {
  CopyContents contents(*copies_, {parts_.state, kinds_, parts_.reading});
  if (!contents.read(parts_.endRequested)) return false;
  contents_ = contents.counts();
  const auto differing = copies_->takeApart(contents.found(), [this] { return isEnded(); });
  differing_ = differing.value_or(0);
  return differing.has_value();
}

QStringList CopyFinder::sumLines() const {
  const auto number = [this](std::int64_t value) { return parts_.locale.toString(qlonglong{value}); };
  const auto size = [this](std::int64_t bytes) { return sizeText(bytes, parts_.locale); };
  QStringList lines;
  if (wish_.singleOnly) {
    const FileSum single = sumOf(inFolders_);
    lines += Texts::tr("Files on one volume only: %1, of %2 altogether")
                 .arg(number(single.files), size(single.bytes));
  } else {
    const CopyTotals totals = copyTotals(*copies_, which_);
    lines += Texts::tr("Files with copies: %1. Copies beyond the first: %2, of %3 altogether")
                 .arg(number(totals.files), number(totals.beyondFirst.files), size(totals.beyondFirst.bytes));
  }
  if (wish_.byContent) {
    lines += Texts::tr(
                 "Looked into: %1, of %2 altogether. Files that hold something else in spite of the same "
                 "name and size: %3. Not at hand, so judged by name and size: %4")
                 .arg(number(contents_.read.files), size(contents_.read.bytes), number(differing_),
                      number(contents_.notAtHand));
  }
  if (files_->withoutSize() == 0) return lines;
  lines += Texts::tr("Left out, since their exact size is not known: %1").arg(number(files_->withoutSize()));
  return lines;
}

}  // namespace quorvin
