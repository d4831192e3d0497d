// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/volumes_job.h"

#include "catalogue/volumes/volume_texts.h"

#include <utility>

namespace quorvin {

VolumesJob::VolumesJob(ProgramState sources, VolumeFinder::Wish wish, QLocale locale)
    : sources_(std::move(sources)), locale_(std::move(locale)), finder_(std::move(wish), parts()) {}

VolumeFinder::Parts VolumesJob::parts() {
  VolumeFinder::Parts parts{sources_, watch_, locale_};
  parts.display = &watch_;
  parts.endRequested = [this] { return isStopped(); };
  parts.listingStarts = [this](SourceKind, const QString& path) { watch_.startListing(path); };
  return parts;
}

QStringList VolumesJob::lines() const {
  if (!fault().isEmpty()) return {fault()};
  const auto count = static_cast<std::int64_t>(volumes().size());
  return QStringList{volumesSumText(count, finder_.sum(), locale_)} + watch_.messageLines();
}

}  // namespace quorvin
