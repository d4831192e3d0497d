// What a running search shows, at a pace that people can see.
#pragma once

#include "app/hit_list_model.h"
#include "app/search_form_controls.h"
#include "search/search_run.h"

#include <QElapsedTimer>
#include <QLabel>

#include <cstdint>
#include <optional>

namespace quorvin {

/// Shows a run in the window's controls. Counts and rows are collected and put on the screen 60 times a
/// second at most: a run reports its counts at every 2000th entry, which is up to a million times a second,
/// and writing a label each time would cost more than the search itself.
class SearchFormDisplay : public RunDisplay {
 public:
  /// `controls` and `rows` must outlive the display.
  SearchFormDisplay(const SearchFormControls& controls, HitListModel& rows);

  void setDesMatch(const QString& text) override;
  void runStarted() override;
  void runEnded() override;
  void showFound(std::int64_t count) override { found_ = count; }
  void showSearched(std::int64_t count) override { searched_ = count; }
  void clearHits() override;
  void hitsArrived() override { hasNewRows_ = true; }
  void processEvents() override;

  /// Shows what is new at once.
  void show();

 private:
  const SearchFormControls& controls_;
  HitListModel& rows_;
  std::optional<std::int64_t> found_;
  std::optional<std::int64_t> searched_;
  bool hasNewRows_ = false;
  QElapsedTimer sinceShown_;
};

}  // namespace quorvin
