// SPDX-License-Identifier: GPL-2.0-or-later
#include "window_measurements.h"

#include "bare_search.h"
#include "process_memory.h"
#include "search/listing_scan.h"
#include "search_window.h"

#include <QJsonArray>

#include <stdexcept>
#include <string>

namespace quorvin {

namespace {

constexpr double kMillisecondsInSecond = 1e3;
constexpr double kNanosecondsInMillisecond = 1e6;

void prove(const RunFigures& run, const WindowTask& task) {
  if (run.found == task.expected) return;
  throw std::runtime_error(std::to_string(run.found) + " hits for \"" + task.words.toStdString() +
                           "\", expected " + std::to_string(task.expected));
}

QJsonObject asObject(const RunFigures& run, const EventFigures& events) {
  return {{QStringLiteral("seconds"), run.seconds},
          {QStringLiteral("found"), static_cast<qint64>(run.found)},
          {QStringLiteral("searched"), static_cast<qint64>(run.searched)},
          {QStringLiteral("passes"), static_cast<qint64>(events.passes)},
          {QStringLiteral("labelMoves"), static_cast<qint64>(events.labelMoves)},
          {QStringLiteral("longestGap"), static_cast<double>(events.longestGap) / kNanosecondsInMillisecond}};
}

QJsonObject watchedRun(SearchWindow& window, const WindowTask& task) {
  EventFigures events;
  const RunFigures run = window.findWatched(events);
  prove(run, task);
  return asObject(run, events);
}

QJsonObject stoppedRun(SearchWindow& window) {
  const StopFigures stop = window.findAndStop();
  if (stop.searched > kEntriesBetweenYields) {
    throw std::runtime_error("Stop was pressed when events ran first, but " + std::to_string(stop.searched) +
                             " entries were searched");
  }
  return {{QStringLiteral("searched"), static_cast<qint64>(stop.searched)},
          {QStringLiteral("milliseconds"), stop.seconds * kMillisecondsInSecond}};
}

QJsonObject memorySince(const ProcessMemory& before) {
  const ProcessMemory now = processMemory();
  return {{QStringLiteral("before"), static_cast<qint64>(before.resident)},
          {QStringLiteral("after"), static_cast<qint64>(now.resident)},
          {QStringLiteral("ofFiles"), static_cast<qint64>(now.ofFiles)},
          {QStringLiteral("peak"), static_cast<qint64>(now.peak)}};
}

/// The first search of this process, with the memory that it takes.
QJsonObject firstRun(SearchWindow& window, const WindowTask& task) {
  window.type(task.words, task.match);
  const ProcessMemory before = processMemory();
  const QJsonObject run = watchedRun(window, task);
  return {{QStringLiteral("run"), run}, {QStringLiteral("memory"), memorySince(before)}};
}

double secondsInWindow(SearchWindow& window, const WindowTask& task) {
  const RunFigures run = window.find();
  prove(run, task);
  return run.seconds;
}

double secondsBare(BareSearch& bare, const WindowTask& task) {
  const RunFigures run = bare.run(task.words, task.match);
  prove(run, task);
  return run.seconds;
}

/// Takes turns, and changes who begins, so that a machine that grows slower or faster favours neither.
void takeTurns(SearchWindow& window, BareSearch& bare, const WindowTask& task, QJsonObject& result) {
  QJsonArray ofWindow;
  QJsonArray ofBare;
  for (int round = 0; round < task.rounds; ++round) {
    const bool windowFirst = round % 2 == 0;
    if (windowFirst) ofWindow.append(secondsInWindow(window, task));
    ofBare.append(secondsBare(bare, task));
    if (!windowFirst) ofWindow.append(secondsInWindow(window, task));
  }
  result[QStringLiteral("window")] = ofWindow;
  result[QStringLiteral("bare")] = ofBare;
}

}  // namespace

QJsonObject measureFirstSearch(const WindowTask& task) {
  SearchWindow window(task.listing, task.folder, task.locale);
  return firstRun(window, task);
}

QJsonObject measureLaterSearches(const WindowTask& task) {
  SearchWindow window(task.listing, task.folder, task.locale);
  QJsonObject result = firstRun(window, task);
  BareSearch bare(task.listing, window.segments(), task.locale);
  secondsBare(bare, task);
  secondsInWindow(window, task);
  takeTurns(window, bare, task, result);
  result[QStringLiteral("watched")] = watchedRun(window, task);
  result[QStringLiteral("stop")] = stoppedRun(window);
  return result;
}

QJsonObject measureStop(const WindowTask& task) {
  SearchWindow window(task.listing, task.folder, task.locale);
  window.type(task.words, task.match);
  QJsonObject result{{QStringLiteral("stop"), stoppedRun(window)}};
  prove(window.find(), task);
  return result;
}

}  // namespace quorvin
