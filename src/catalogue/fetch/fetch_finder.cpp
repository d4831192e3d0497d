// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/fetch_finder.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

/// What was said of listings in the first run need not be said again.
class NoMessages : public MessageBoxes {
 public:
  void inform(const QString&) override {}
  bool askYesNo(const QString&) override { return false; }
  FaultAnswer askAbortRetryIgnore(const QString&) override { return FaultAnswer::Ignore; }
};

}  // namespace

FetchFinder::FetchFinder(Parts parts) : parts_(std::move(parts)) {
  if (parts_.useCache) segments_.emplace(storeForTwoReadings());
}

bool FetchFinder::find(const std::optional<Words>& words, const std::vector<QString>& listings) {
  NoMessages silence;
  if (words) {
    WantedHits hits(wanted_);
    run(hits, parts_.messages, *words, listings);
    if (parts_.endRequested()) return false;
  }
  if (!wanted_.isEmpty()) {
    WantedCopies copies(wanted_, places_);
    const Words everything{QString::fromUtf16(ListedFiles::kEveryEntry), QStringLiteral("1")};
    run(copies, words ? silence : parts_.messages, everything, listings);
    wanted_.complete();
  }
  if (parts_.endRequested()) return false;
  std::vector<std::string> names;
  for (const FolderTree::Volume& volume : places_.folders.volumes()) names.push_back(volume.name);
  std::optional<FetchPlan> plan = planFetch(wanted_.files(), names, parts_.endRequested);
  if (!plan) return false;
  plan_ = std::move(*plan);
  return true;
}

void FetchFinder::run(HitSink& sink, MessageBoxes& messages, const Words& words,
                      const std::vector<QString>& listings) {
  RunParts parts{parts_.state, messages, parts_.locale};
  parts.hits = &sink;
  parts.segments = segments_ ? &*segments_ : nullptr;
  parts.display = parts_.display;
  parts.endRequested = parts_.endRequested;
  // Only sizes matter, and a file without one is known by its place.
  parts.tellsUnreadable = false;
  parts.streamAt = parts_.streamAt;
  SearchRun search(std::move(parts));
  if (listings.empty()) {
    search.Find_Click(words.searchText, words.desiredMatch);
  } else {
    search.searchListings(words.searchText, words.desiredMatch, listings);
  }
  failedListings_ = std::max(failedListings_, search.failedListings());
}

}  // namespace quorvin
