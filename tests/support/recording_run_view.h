// The view of a search run without a window.
#pragma once

#include "search/hit_table.h"
#include "search/search_run.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace quorvin::test {

/// Records what a run shows; `onEvents` stands for what the user does while events run.
class RecordingRunView : public SearchRunView {
 public:
  explicit RecordingRunView(HitTable& hits) : hits_(hits) {}

  void setDesMatch(const QString& text) override { desMatch = text; }
  QString findCaption() const override { return caption; }
  void setFindCaption(const QString& text) override {
    caption = text;
    captions.push_back(text);
  }
  void showFound(std::int64_t count) override { found.push_back(count); }
  void showSearched(std::int64_t count) override { searched.push_back(count); }
  void clearHits() override {
    hits_.clear();
    ++clearings;
  }
  void hitsArrived() override { rowsAtArrival.push_back(hits_.rowCount()); }
  void processEvents() override {
    ++eventPasses;
    if (onEvents) onEvents();
  }
  bool endRequested() const override { return closing; }

  QString desMatch;
  QString caption = QStringLiteral("Find");
  QStringList captions;
  std::vector<std::int64_t> found;
  std::vector<std::int64_t> searched;
  std::vector<std::int64_t> rowsAtArrival;
  int clearings = 0;
  int eventPasses = 0;
  bool closing = false;
  std::function<void()> onEvents;

 private:
  HitTable& hits_;
};

}  // namespace quorvin::test
