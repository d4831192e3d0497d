// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/fetch_job.h"

#include "catalogue/fetch/plan_text.h"

#include <utility>

namespace quorvin {

FetchJob::FetchJob(ProgramState sources, WantedFiles wanted, QLocale locale)
    : sources_(std::move(sources)), locale_(std::move(locale)), finder_(parts()) {
  finder_.wanted() = std::move(wanted);
}

FetchFinder::Parts FetchJob::parts() {
  FetchFinder::Parts parts{sources_, watch_, locale_};
  parts.display = &watch_;
  parts.endRequested = [this] { return isStopped(); };
  return parts;
}

QStringList FetchJob::lines() const {
  if (!fault().isEmpty()) return {fault()};
  return planSumLines(finder_.plan(), locale_) + watch_.messageLines();
}

}  // namespace quorvin
