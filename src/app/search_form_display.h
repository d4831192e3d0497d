// What a running search shows, at a pace that people can see.
#pragma once

#include "app/hit_list_model.h"

#include <QElapsedTimer>
#include <QLabel>

#include <cstdint>
#include <optional>

namespace quorvin {

/// Collects the counts and rows of a run and puts them on the screen 60 times a second at most. A run tells
/// its counts at every 2000th entry, which is up to a million times a second; writing a label each time would
/// cost more than the search itself.
class RunDisplay {
 public:
  /// All of these must outlive the display.
  RunDisplay(QLabel& found, QLabel& searched, HitListModel& rows);

  void setFound(std::int64_t count) { found_ = count; }
  void setSearched(std::int64_t count) { searched_ = count; }
  void rowsArrived() { hasNewRows_ = true; }
  /// Rows that were told of and not shown yet are gone.
  void dropRows() { hasNewRows_ = false; }

  /// Shows what is new, unless something was shown a moment ago.
  void showIfDue();
  /// Shows what is new.
  void show();

 private:
  QLabel& foundLabel_;
  QLabel& searchedLabel_;
  HitListModel& rows_;
  std::optional<std::int64_t> found_;
  std::optional<std::int64_t> searched_;
  bool hasNewRows_ = false;
  QElapsedTimer sinceShown_;
};

}  // namespace quorvin
