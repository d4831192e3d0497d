// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/space_job.h"

#include <utility>

namespace quorvin {

SpaceJob::SpaceJob(ProgramState sources, std::vector<QString> listings, QLocale locale)
    : sources_(std::move(sources)),
      wanted_(std::move(listings)),
      locale_(std::move(locale)),
      sums_([this](SourceKind, const QString& path) { watch_.startListing(path); }) {}

bool SpaceJob::work() {
  SegmentStore segments(storeForTwoReadings());
  RunParts parts{sources_, watch_, locale_};
  parts.hits = &sums_;
  parts.segments = &segments;
  parts.display = &watch_;
  parts.endRequested = [this] { return isStopped(); };
  // A file without a size takes no place.
  parts.tellsUnreadable = false;
  SearchRun run(std::move(parts));
  findEveryEntry(run, wanted_);
  if (isStopped()) return false;
  sums_.tree().finish();
  return true;
}

QStringList SpaceJob::lines() const {
  return fault().isEmpty() ? watch_.messageLines() : QStringList{fault()};
}

}  // namespace quorvin
