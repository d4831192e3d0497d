// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_run.h"

#include "app/fault_report.h"
#include "app/status_texts.h"
#include "texts/texts.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace quorvin {

namespace {

constexpr std::int64_t kMillisecondsBetweenShowings = 16;

void showCount(QLabel& label, std::optional<std::int64_t>& count, const QLocale& locale) {
  if (!count) return;
  label.setText(locale.toString(*count));
  count.reset();
}

}  // namespace

SearchFormDisplay::SearchFormDisplay(const SearchFormControls& controls, HitListModel& rows,
                                     SearchFormStatus& status, const QLocale& locale)
    : controls_(controls), rows_(rows), status_(status), locale_(locale) {}

void SearchFormDisplay::setDesMatch(const QString& text) {
  controls_.DesMatch->setText(text);
}

void SearchFormDisplay::runStarted(const SearchQuery& query) {
  query_ = &query;
  controls_.Find->setText(Texts::tr("Stop"));
  controls_.HitList->setEmptyText({});
  status_.runStarted();
  show();
  rows_.setGrowing(true);
}

void SearchFormDisplay::runEnded() {
  controls_.Find->setText(Texts::tr("Find"));
  show();
  rows_.setGrowing(false);
}

void SearchFormDisplay::clearHits() {
  hasNewRows_ = false;
  hasShownRows_ = false;
  rows_.clear(query_ ? *query_ : SearchQuery());
}

bool SearchFormDisplay::isDue() const {
  const bool areFirstRows = hasNewRows_ && !hasShownRows_;
  return areFirstRows || !sinceShown_.isValid() || sinceShown_.hasExpired(kMillisecondsBetweenShowings);
}

void SearchFormDisplay::processEvents() {
  if (isDue()) show();
  QCoreApplication::processEvents();
}

void SearchFormDisplay::show() {
  sinceShown_.start();
  if (found_) status_.setHits(*found_);
  showCount(*controls_.lblFound, found_, locale_);
  showCount(*controls_.lblSearched, searched_, locale_);
  if (!hasNewRows_) return;
  hasNewRows_ = false;
  hasShownRows_ = true;
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
            [this] { return isGivenUp_ || parts_.work.isClosing(); }}) {
  typingPause_.setObjectName(QStringLiteral("TypingPause"));
  typingPause_.setParent(this);
  typingPause_.setSingleShot(true);
  typingPause_.setTimerType(Qt::PreciseTimer);
  typingPause_.setInterval(kTypingPauseMilliseconds);
  connect(&typingPause_, &QTimer::timeout, this, &SearchFormRun::searchTyped);
}

void SearchFormRun::Find_Click() {
  typingPause_.stop();
  start(Manner::Asked);
}

void SearchFormRun::start(Manner manner) {
  const Answer answer = parts_.work.run(JobKind::Search, [this, manner](Job&) { runAll(manner); });
  if (answer != Answer::Stops) return;
  if (!run_.isRunning()) {
    // What it has to report is still on the screen.
    next_ = manner;
  } else if (manner == Manner::Asked) {
    // A press during a search is the request to stop it.
    run_.Find_Click({}, {});
  }
}

void SearchFormRun::enter() {
  typingPause_.stop();
  const bool isOfUse = manner_ == Manner::Asked && !isGivenUp_ && !isForSomethingElse();
  if (run_.isRunning() && !isOfUse) {
    isGivenUp_ = true;
    next_ = Manner::Asked;
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

void SearchFormRun::fieldEdited() {
  if (!parts_.menus.SearchWhileTyping->isChecked()) return;
  if (run_.isRunning()) isGivenUp_ = true;
  typingPause_.start();
}

void SearchFormRun::searchTyped() {
  const bool isComplete =
      !parts_.controls.SearchStr->text().isEmpty() && !parts_.controls.DesMatch->text().isEmpty();
  if (isComplete && run_.isRunning()) {
    next_ = Manner::Typed;
  } else if (isComplete) {
    start(Manner::Typed);
  } else if (isGivenUp_ && !run_.isRunning()) {
    // Its hits stay, and nothing follows.
    parts_.status.setRun(runTexts(run_.report(), parts_.locale));
  }
}

void SearchFormRun::stop() {
  if (run_.isRunning()) parts_.controls.Find->click();
}

void SearchFormRun::runAll(Manner manner) {
  std::optional<Manner> now = manner;
  while (now) {
    isGivenUp_ = false;
    runOnce(*now);
    now = std::exchange(next_, std::nullopt);
    if (parts_.work.isClosing()) break;
  }
  if (!isGivenUp_) parts_.status.setRun(runTexts(run_.report(), parts_.locale));
  Q_EMIT ended();
}

void SearchFormRun::runOnce(Manner manner) {
  manner_ = manner;
  const QString text = parts_.controls.SearchStr->text();
  const QString doing = Texts::tr("searching for \"%1\"").arg(text);
  if (manner == Manner::Typed) {
    reportFaults(parts_.messages, doing, [&] { runQuietly(text); });
    return;
  }
  Q_EMIT confirmed(text);
  reportFaults(parts_.messages, doing, [&] { run_.Find_Click(text, parts_.controls.DesMatch->text()); });
}

/// Without a message even for too many words.
void SearchFormRun::runQuietly(const QString& text) {
  try {
    run_.searchQuietly(text, parts_.controls.DesMatch->text());
  } catch (const RuntimeFault& fault) {
    const bool areTooMany = fault.faultNumber() == FaultNumber::SubscriptOutOfRange;
    parts_.status.setNote(areTooMany ? Texts::tr("not searched: more than %1 words").arg(kMostWords)
                                     : fault.description());
  }
}

QString SearchFormRun::emptyText() const {
  const bool isKnown = !run_.isRunning() && !isGivenUp_ && run_.report().listings > 0;
  if (!isKnown || parts_.hits.rowCount() > 0) return {};
  return emptyResultText(run_.query(), run_.report(), parts_.locale);
}

}  // namespace quorvin
