// The view of an indexing or a refresh without windows.
#pragma once

#include "index/index_view.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace quorvin::test {

/// Records what is shown, in order; `onEvents` stands for what the user does while events run.
class RecordingRefreshView : public RefreshView {
 public:
  void createProgress() override { ++creations; }
  void setStatus(const QString& text) override {
    status = text;
    statuses.push_back(text);
  }
  void showIndexed(const IndexCounts& counts) override { shown = counts; }
  void processEvents() override {
    ++eventPasses;
    shownAtEvents.push_back(shown);
    if (onEvents) onEvents();
  }

  QString progressTitle() const override { return title; }
  void setProgressTitle(const QString& text) override {
    title = text;
    titles.push_back(text);
  }
  void refreshBegins() override { steps.push_back(QStringLiteral("begins")); }
  void refreshEnded() override { steps.push_back(QStringLiteral("ended")); }
  void showSource(int row, int count) override {
    steps.push_back(QStringLiteral("source %1 of %2").arg(row).arg(count));
  }
  void setDefaultPointer() override { steps.push_back(QStringLiteral("pointer")); }
  void showErrorLog(const QString& log) override {
    steps.push_back(QStringLiteral("log"));
    logs.push_back(log);
  }

  int creations = 0;
  QString status;
  QStringList statuses;
  IndexCounts shown;
  int eventPasses = 0;
  std::vector<IndexCounts> shownAtEvents;
  QString title = QStringLiteral("Progress");
  QStringList titles;
  QStringList steps;
  QStringList logs;
  std::function<void()> onEvents;
};

}  // namespace quorvin::test
