#include "bare_search.h"

#include "dropped_hits.h"
#include "recorded_messages.h"
#include "search/search_run.h"
#include "state/program_state.h"

#include <QElapsedTimer>

namespace quorvin {

namespace {

class SilentView : public SearchRunView {
 public:
  void setDesMatch(const QString&) override {}
  QString findCaption() const override { return caption_; }
  void setFindCaption(const QString& caption) override { caption_ = caption; }
  void showFound(std::int64_t) override {}
  void showSearched(std::int64_t) override {}
  void clearHits() override {}
  void hitsArrived() override {}
  void processEvents() override {}
  bool endRequested() const override { return false; }

 private:
  QString caption_ = QStringLiteral("Find");
};

}  // namespace

struct BareSearch::Parts {
  Parts(SegmentStore& segments, const QLocale& locale)
      : run(state, view, messages, hits, &segments, locale) {}

  ProgramState state;
  SilentView view;
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
