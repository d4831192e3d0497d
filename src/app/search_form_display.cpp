#include "app/search_form_display.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
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

SearchFormDisplay::SearchFormDisplay(const SearchFormControls& controls, HitListModel& rows)
    : controls_(controls), rows_(rows) {}

void SearchFormDisplay::setDesMatch(const QString& text) {
  controls_.DesMatch->setText(text);
}

void SearchFormDisplay::runStarted() {
  controls_.Find->setText(QStringLiteral("Stop"));
  show();
}

void SearchFormDisplay::runEnded() {
  controls_.Find->setText(QStringLiteral("Find"));
  show();
}

void SearchFormDisplay::clearHits() {
  hasNewRows_ = false;
  rows_.clear();
}

void SearchFormDisplay::processEvents() {
  if (!sinceShown_.isValid() || sinceShown_.hasExpired(kMillisecondsBetweenShowings)) show();
  QCoreApplication::processEvents();
}

void SearchFormDisplay::show() {
  sinceShown_.start();
  showCount(*controls_.lblFound, found_);
  showCount(*controls_.lblSearched, searched_);
  if (!hasNewRows_) return;
  hasNewRows_ = false;
  rows_.hitsArrived();
}

}  // namespace quorvin
