// SPDX-License-Identifier: GPL-2.0-or-later

// What a run over listings says while it goes on in another thread.
#pragma once

#include "platform/message_box.h"
#include "search/search_run.h"
#include "state/program_state.h"

#include <QLocale>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <atomic>
#include <cstdint>

namespace quorvin {

/// The sources of `state` alone, for a thread that is to go over them as they are now.
ProgramState sourcesOf(const ProgramState& state);

/// Keeps what a run says, and how far it is. Nobody is asked anything while listings are read. All is for the
/// thread of the run, but progressText() and searched() for any.
class RunWatch : public MessageBoxes, public RunDisplay {
 public:
  /// "cd7.txt: 1,204 searched"; without the listing before the first.
  QString progressText(const QLocale& locale) const;

  /// How many entries have been searched.
  std::int64_t searched() const { return searched_; }

  void startListing(const QString& path);

  /// What was said of single listings, the first hundred of it.
  const QStringList& messages() const { return messages_; }
  /// The first of these, and how many more there are, as lines; none where nothing was said.
  QStringList messageLines() const;

  void inform(const QString& text) override;
  bool askYesNo(const QString&) override { return false; }
  FaultAnswer askAbortRetryIgnore(const QString&) override { return FaultAnswer::Abort; }

  void setDesMatch(const QString&) override {}
  void runStarted(const SearchQuery&) override {}
  void runEnded() override {}
  void showFound(std::int64_t) override {}
  void showSearched(std::int64_t count) override { searched_ = count; }
  void clearHits() override {}
  void hitsArrived() override {}
  void processEvents() override {}

 private:
  QStringList messages_;
  std::atomic<std::int64_t> searched_ = 0;
  mutable QMutex mutex_;
  QString listing_;
};

}  // namespace quorvin
