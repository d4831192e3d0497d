#include "app/search_form_run.h"

#include "app/fault_report.h"
#include "app/status_texts.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace quorvin {

namespace {

constexpr std::int64_t kMillisecondsBetweenShowings = 16;

void showCount(QLabel& label, std::optional<std::int64_t>& count) {
  if (!count) return;
  label.setText(QString::number(*count));
  count.reset();
}

}  // namespace

SearchFormDisplay::SearchFormDisplay(const SearchFormControls& controls, HitListModel& rows,
                                     SearchFormStatus& status)
    : controls_(controls), rows_(rows), status_(status) {}

void SearchFormDisplay::setDesMatch(const QString& text) {
  controls_.DesMatch->setText(text);
}

void SearchFormDisplay::runStarted(const SearchQuery& query) {
  query_ = &query;
  controls_.Find->setText(QStringLiteral("Stop"));
  controls_.HitList->setEmptyText({});
  status_.runStarted();
  show();
}

void SearchFormDisplay::runEnded() {
  controls_.Find->setText(QStringLiteral("Find"));
  show();
}

void SearchFormDisplay::clearHits() {
  hasNewRows_ = false;
  rows_.clear(query_ ? *query_ : SearchQuery());
}

bool SearchFormDisplay::isDue() const {
  const bool areFirstRows = hasNewRows_ && rows_.rowCount() == 0;
  return areFirstRows || !sinceShown_.isValid() || sinceShown_.hasExpired(kMillisecondsBetweenShowings);
}

void SearchFormDisplay::processEvents() {
  if (isDue()) show();
  QCoreApplication::processEvents();
}

void SearchFormDisplay::show() {
  sinceShown_.start();
  if (found_) status_.setHits(*found_);
  showCount(*controls_.lblFound, found_);
  showCount(*controls_.lblSearched, searched_);
  if (!hasNewRows_) return;
  hasNewRows_ = false;
  rows_.hitsArrived();
}

void RunMessages::inform(const QString& text) {
  display_.show();
  if (!isClosing_()) messages_.inform(text);
}

bool RunMessages::informOneOfMany(const QString& text) {
  display_.show();
  return !isClosing_() && messages_.informOneOfMany(text);
}

bool RunMessages::askYesNo(const QString& text) {
  display_.show();
  return !isClosing_() && messages_.askYesNo(text);
}

FaultAnswer RunMessages::askAbortRetryIgnore(const QString& text) {
  display_.show();
  return isClosing_() ? FaultAnswer::Abort : messages_.askAbortRetryIgnore(text);
}

SearchFormRun::SearchFormRun(const SearchFormRunParts& parts)
    : parts_(parts),
      run_({parts.state, parts.messages, parts.locale, &parts.hits, parts.segments, &parts.display,
            [this] { return isSuperseded_ || parts_.work.isClosing(); }}) {}

void SearchFormRun::Find_Click() {
  const Answer answer = parts_.work.run(JobKind::Search, [this](Job&) { runAll(); });
  // A press during a search is the request to stop it.
  if (answer == Answer::Stops) runOnce();
}

void SearchFormRun::enter() {
  if (run_.isRunning() && isForSomethingElse()) {
    isSuperseded_ = true;
  } else {
    parts_.controls.Find->click();
  }
}

/// Whether the fields say something else than what the present run searches for.
bool SearchFormRun::isForSomethingElse() const {
  const RunReport& report = run_.report();
  return parts_.controls.SearchStr->text() != report.searchText ||
         parts_.controls.DesMatch->text() != QString::number(report.desiredMatch);
}

void SearchFormRun::stop() {
  if (run_.isRunning()) parts_.controls.Find->click();
}

void SearchFormRun::runAll() {
  do {
    isSuperseded_ = false;
    runOnce();
  } while (isSuperseded_ && !parts_.work.isClosing());
  isSuperseded_ = false;
  parts_.status.setRun(runTexts(run_.report(), parts_.locale));
  Q_EMIT ended();
}

void SearchFormRun::runOnce() {
  const QString text = parts_.controls.SearchStr->text();
  reportFaults(parts_.messages, QStringLiteral("searching for \"%1\"").arg(text),
               [&] { run_.Find_Click(text, parts_.controls.DesMatch->text()); });
}

QString SearchFormRun::emptyText() const {
  if (run_.isRunning() || run_.report().listings == 0 || parts_.hits.rowCount() > 0) return {};
  return emptyResultText(run_.query(), run_.report(), parts_.locale);
}

}  // namespace quorvin
