// SPDX-License-Identifier: GPL-2.0-or-later

// A fetch plan from the wish to the volumes.
#pragma once

#include "catalogue/fetch/wanted_files.h"
#include "platform/message_box.h"
#include "search/search_run.h"
#include "search/segment/segment_store.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quorvin {

/// Finds where wanted files are, and the fewest volumes to fetch them from. For one thread, which may be any:
/// what it works with must be its own.
class FetchFinder {
 public:
  /// A search whose hits are wanted.
  struct Words {
    QString searchText;
    /// As it was typed; corrected like that of a search.
    QString desiredMatch = QStringLiteral("50");
  };
  /// Those of RunParts.
  struct Parts {
    ProgramState& state;
    MessageBoxes& messages;
    QLocale locale;
    RunDisplay* display = nullptr;
    /// Asked while listings are read, and by what comes after that.
    std::function<bool()> endRequested = [] { return false; };
    std::function<ListingReader(const QString& path)> streamAt = {};
    /// What was read of listings is kept for later, and used.
    bool useCache = true;
  };

  explicit FetchFinder(Parts parts);
  FetchFinder(const FetchFinder&) = delete;
  FetchFinder& operator=(const FetchFinder&) = delete;

  /// To be told of what is wanted, unless it is what a search finds.
  WantedFiles& wanted() { return wanted_; }

  /// Goes over `listings`, or the sources of the state where there are none; to be called once. With `words`
  /// it goes over them twice, which no stream allows: first for what is wanted, then for all its copies.
  /// False where it was ended before the plan was made. Throws fault 9 for more than 101 words, and
  /// RuntimeFault where a listing cannot be read as SearchRun does.
  bool find(const std::optional<Words>& words, const std::vector<QString>& listings);

  // What was found; only after find() has returned true.

  const FetchPlan& plan() const { return plan_; }
  const std::vector<WantedFile>& files() const { return wanted_.files(); }
  const PlanPlaces& places() const { return places_; }

  /// As SearchRun::failedListings(); may be asked however it ended.
  int failedListings() const { return failedListings_; }

 private:
  void run(HitSink& sink, MessageBoxes& messages, const Words& words, const std::vector<QString>& listings);

  Parts parts_;
  std::optional<SegmentStore> segments_;
  WantedFiles wanted_;
  PlanPlaces places_;
  FetchPlan plan_;
  int failedListings_ = 0;
};

}  // namespace quorvin
