// SPDX-License-Identifier: GPL-2.0-or-later

// The searches of the main window: when they start, what is seen of them, and how one gives way to the next.
#pragma once

#include "app/search_form_controls.h"
#include "app/search_form_status.h"
#include "hits/hit_list_model.h"
#include "platform/message_box.h"
#include "search/hit_table.h"
#include "search/search_run.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <optional>

namespace quorvin {

/// Shows a run in the window's controls. Counts and rows are collected and put on the screen 60 times a
/// second at most: a run reports its counts at every 2000th entry, which is up to a million times a second,
/// and writing a label each time would cost more than the search itself. The first rows are shown at once.
class SearchFormDisplay : public RunDisplay {
 public:
  /// All must outlive the display; counts are grouped as in `locale`.
  SearchFormDisplay(const SearchFormControls& controls, HitListModel& rows, SearchFormStatus& status,
                    const QLocale& locale);

  void setDesMatch(const QString& text) override;
  void runStarted(const SearchQuery& query) override;
  void runEnded() override;
  void showFound(std::int64_t count) override { found_ = count; }
  void showSearched(std::int64_t count) override { searched_ = count; }
  void clearHits() override;
  void hitsArrived() override { hasNewRows_ = true; }
  void processEvents() override;

  /// Shows what is new at once.
  void show();

 private:
  bool isDue() const;

  const SearchFormControls& controls_;
  HitListModel& rows_;
  SearchFormStatus& status_;
  const SearchQuery* query_ = nullptr;
  QLocale locale_;
  std::optional<std::int64_t> found_;
  std::optional<std::int64_t> searched_;
  bool hasNewRows_ = false;
  /// Rows of this run have been shown.
  bool hasShownRows_ = false;
  QElapsedTimer sinceShown_;
};

/// The messages of long work: what a run has to show comes first, and a closing window shows none.
class RunMessages : public MessageBoxes {
 public:
  /// `messages` and `display` must outlive the object.
  RunMessages(MessageBoxes& messages, SearchFormDisplay& display, std::function<bool()> isClosing)
      : messages_(messages), display_(display), isClosing_(std::move(isClosing)) {}
  void inform(const QString& text) override;
  bool informOneOfMany(const QString& text) override;
  bool askYesNo(const QString& text) override;
  FaultAnswer askAbortRetryIgnore(const QString& text) override;

 private:
  MessageBoxes& messages_;
  SearchFormDisplay& display_;
  std::function<bool()> isClosing_;
};

/// What searches work with; all of it must outlive SearchFormRun.
struct SearchFormRunParts {
  ProgramState& state;
  RunMessages& messages;
  HitTable& hits;
  /// May be null.
  SegmentStore* segments;
  SearchFormDisplay& display;
  SearchFormStatus& status;
  const SearchFormControls& controls;
  const SearchFormMenus& menus;
  Work& work;
  QLocale locale;
};

/// How long nothing is typed before what was typed is searched for.
inline constexpr int kTypingPauseMilliseconds = 80;

/// Starts searches, one at a time, as jobs of the kind Search.
class SearchFormRun : public QObject {
  Q_OBJECT

 public:
  explicit SearchFormRun(const SearchFormRunParts& parts);

  /// `Find` was pressed: starts a search, or asks the one that runs to stop.
  void Find_Click();
  /// Enter in one of the search fields: presses `Find`, unless a search for something else is running, or one
  /// that nobody has asked for yet. That one ends then, and the new one follows.
  void enter();
  bool isRunning() const { return run_.isRunning(); }
  /// The user has typed in one of the search fields. With `SearchWhileTyping` checked, a running search ends,
  /// and a quiet one starts when nothing was typed for a moment.
  void fieldEdited();
  /// Asks a running search to stop; does nothing while there is none.
  void stop();

  /// Why the list is empty after the last run; empty while one runs, before the first, and where there are
  /// hits.
  QString emptyText() const;

 Q_SIGNALS:
  /// The user has asked for a search for this text.
  void confirmed(const QString& text);
  /// No search runs any more.
  void ended();

 private:
  /// Whether the user has asked for a search, or it only follows what is being typed.
  enum class Manner { Asked, Typed };

  bool isForSomethingElse() const;
  void start(Manner manner);
  void searchTyped();
  void runAll(Manner manner);
  void runOnce(Manner manner);
  void runQuietly(const QString& text);

  SearchFormRunParts parts_;
  /// What the present run, or the last one, is.
  Manner manner_ = Manner::Asked;
  /// The run that is to follow the present one, which is of no use any more.
  std::optional<Manner> next_;
  /// The present run is of no use any more, or the last one was not when it ended.
  bool isGivenUp_ = false;
  QTimer typingPause_;
  SearchRun run_;
};

}  // namespace quorvin
