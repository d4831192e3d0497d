// SPDX-License-Identifier: GPL-2.0-or-later

// What an indexing or a refresh shows, recorded.
#pragma once

#include "index/index_progress.h"
#include "support/recording_work_display.h"

#include <QRegularExpression>

#include <vector>

namespace quorvin::test {

/// Reads the counts and the steps of a refresh back from what is shown: "begins", "source 1 of 2", "ended",
/// "pointer".
class RecordingIndexDisplay : public RecordingWorkDisplay {
 public:
  void begin() override {
    RecordingWorkDisplay::begin();
    steps += QStringLiteral("begins");
  }
  void end() override {
    RecordingWorkDisplay::end();
    steps += QStringLiteral("ended");
  }
  void setTitle(const QString& text) override {
    RecordingWorkDisplay::setTitle(text);
    const QString refreshing = QStringLiteral(" Updating online file lists... ");
    if (text.startsWith(refreshing)) steps += QStringLiteral("source ") + text.mid(refreshing.size());
  }
  void setDetail(const QString& text) override {
    RecordingWorkDisplay::setDetail(text);
    static const QRegularExpression counts(QStringLiteral("^(\\d+) files? in (\\d+) folders?$"));
    const QRegularExpressionMatch match = counts.match(text);
    if (!match.hasMatch()) throw std::logic_error("no counts: " + text.toStdString());
    shown = {match.captured(2).toLongLong(), match.captured(1).toLongLong()};
  }
  void setBusyPointer(bool busy) override {
    RecordingWorkDisplay::setBusyPointer(busy);
    if (!busy) steps += QStringLiteral("pointer");
  }
  void processEvents() override {
    shownAtEvents.push_back(shown);
    RecordingWorkDisplay::processEvents();
  }

  IndexCounts shown;
  std::vector<IndexCounts> shownAtEvents;
  QStringList steps;
  /// Error logs that a test has been given.
  QStringList logs;
};

}  // namespace quorvin::test
