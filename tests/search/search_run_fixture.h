// SPDX-License-Identifier: GPL-2.0-or-later

// A search run over a temporary data folder.
#pragma once

#include "search/search_run.h"
#include "support/recording_message_boxes.h"
#include "support/recording_run_display.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {

class SearchRunFixture : public ::testing::Test {
 protected:
  SearchRunFixture()
      : display_(hits_),
        run_({state_, messages_, QLocale::c(), &hits_, nullptr, &display_, [this] { return closing_; }}) {
    state_.LocalFolder = folder_.path();
  }

  void addOnline(const QString& description) {
    state_.OnlineSources.set(++state_.OnlineSourceCount, description, QStringLiteral("/nowhere/"));
  }
  void addOffline(const QString& path) {
    state_.OfflineSources.set(++state_.OfflineSourceCount, QStringLiteral("Offline"), path);
  }
  void find(const char16_t* words, const char16_t* desMatch = u"50") {
    run_.Find_Click(QString::fromUtf16(words), QString::fromUtf16(desMatch));
  }
  QStringList names() const {
    QStringList all;
    for (std::int64_t row = 0; row < hits_.rowCount(); ++row) all += hits_.row(row).name;
    return all;
  }

  TemporaryFolder folder_;
  ProgramState state_;
  HitTable hits_;
  RecordingRunDisplay display_;
  RecordingMessageBoxes messages_;
  bool closing_ = false;
  SearchRun run_;
};

}  // namespace quorvin::test
