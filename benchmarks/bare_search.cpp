// SPDX-License-Identifier: GPL-2.0-or-later
#include "bare_search.h"

#include "dropped_hits.h"
#include "recorded_messages.h"
#include "search/search_run.h"
#include "state/program_state.h"

#include <QElapsedTimer>

namespace quorvin {

struct BareSearch::Parts {
  Parts(SegmentStore& segments, const QLocale& locale) : run({state, messages, locale, &hits, &segments}) {}

  ProgramState state;
  RecordedMessages messages;
  DroppedHits hits;
  SearchRun run;
};

BareSearch::BareSearch(const QString& listing, SegmentStore& segments, const QLocale& locale)
    : parts_(std::make_unique<Parts>(segments, locale)) {
  parts_->state.resetFileNames();
  parts_->state.TextFile = listing;
}

BareSearch::~BareSearch() = default;

RunFigures BareSearch::run(const QString& words, const QString& match) {
  QElapsedTimer clock;
  clock.start();
  parts_->run.Find_Click(words, match);
  const double seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
  parts_->messages.throwIfAny();
  return {seconds, parts_->run.hitCount(), parts_->run.searchedCount()};
}

}  // namespace quorvin
