#include "app/search_form_display.h"

#include <QString>

namespace quorvin {

namespace {

constexpr std::int64_t kMillisecondsBetweenShowings = 16;

void showCount(QLabel& label, std::optional<std::int64_t>& count) {
  if (!count) return;
  label.setText(QString::number(*count));
  count.reset();
}

}  // namespace

RunDisplay::RunDisplay(QLabel& found, QLabel& searched, HitListModel& rows)
    : foundLabel_(found), searchedLabel_(searched), rows_(rows) {}

void RunDisplay::showIfDue() {
  if (sinceShown_.isValid() && !sinceShown_.hasExpired(kMillisecondsBetweenShowings)) return;
  show();
}

void RunDisplay::show() {
  sinceShown_.start();
  showCount(foundLabel_, found_);
  showCount(searchedLabel_, searched_);
  if (!hasNewRows_) return;
  hasNewRows_ = false;
  rows_.hitsArrived();
}

}  // namespace quorvin
