// SPDX-License-Identifier: GPL-2.0-or-later

// The display of a search run without a window.
#pragma once

#include "search/hit_table.h"
#include "search/search_run.h"

#include <QString>

#include <functional>
#include <vector>

namespace quorvin::test {

/// Records what a run shows; `onEvents` stands for what the user does while events run.
class RecordingRunDisplay : public RunDisplay {
 public:
  explicit RecordingRunDisplay(HitTable& hits) : hits_(hits) {}

  void setDesMatch(const QString& text) override { desMatch = text; }
  void runStarted(const SearchQuery&) override { running.push_back(true); }
  void runEnded() override { running.push_back(false); }
  void showFound(std::int64_t count) override { found.push_back(count); }
  void showSearched(std::int64_t count) override { searched.push_back(count); }
  void clearHits() override {
    hits_.clear();
    ++clearings;
  }
  void hitsArrived() override { rowsAtArrival.push_back(hits_.rowCount()); }
  void processEvents() override {
    ++eventPasses;
    if (onEvents) onEvents();
  }

  QString desMatch;
  /// True for each start of a run, false for each end.
  std::vector<bool> running;
  std::vector<std::int64_t> found;
  std::vector<std::int64_t> searched;
  std::vector<std::int64_t> rowsAtArrival;
  int clearings = 0;
  int eventPasses = 0;
  std::function<void()> onEvents;

 private:
  HitTable& hits_;
};

}  // namespace quorvin::test
