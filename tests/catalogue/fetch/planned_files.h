// SPDX-License-Identifier: GPL-2.0-or-later

// Wanted files for tests of the plan.
#pragma once

#include "catalogue/fetch/fetch_plan.h"
#include "catalogue/fetch/plain_plan.h"

#include <string>
#include <vector>

namespace quorvin::test {

/// A file of one byte for each, with a copy in a folder of the number 0 on each of its volumes.
inline std::vector<WantedFile> wantedOn(const Holders& holders) {
  std::vector<WantedFile> files;
  for (const std::set<unsigned>& volumes : holders) {
    WantedFile file{"file", 1};
    for (const unsigned volume : volumes) file.copies.push_back({volume, 0, "file"});
    files.push_back(file);
  }
  return files;
}

/// Their plan, which nobody stops.
inline FetchPlan plannedFor(const std::vector<WantedFile>& files, const std::vector<std::string>& volumes) {
  return planFetch(files, volumes, [] { return false; }).value();
}

/// Names in the order of the numbers.
inline std::vector<std::string> namesOfVolumes(unsigned count) {
  std::vector<std::string> names;
  for (unsigned volume = 0; volume < count; ++volume) names.push_back("CD " + std::to_string(1000 + volume));
  return names;
}

}  // namespace quorvin::test
