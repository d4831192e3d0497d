// SPDX-License-Identifier: GPL-2.0-or-later

// What the tests of the refresh share.
#pragma once

#include "index/local_list_refresh.h"
#include "index/recording_index_display.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {

/// A local data folder and folders to index. Each source's folder holds one file whose name tells which
/// listing has it.
class RefreshTest : public testing::Test {
 protected:
  RefreshTest() { state.LocalFolder = data.path(); }

  /// Adds a source whose folder has a file named as `file`.
  void addSource(const QString& description, const QString& file) {
    const QString folder = folders.makeFolder(QStringLiteral("source %1").arg(++made_));
    folders.writeFile(QStringLiteral("source %1/").arg(made_) + file, "12345");
    addSourceAt(description, folder);
  }

  void addSourceAt(const QString& description, const QString& folder) {
    state.OnlineSources.set(++state.OnlineSourceCount, description, folder);
  }

  /// Refreshes and shows what came of it, as the window does; nothing while a refresh is running.
  void refresh() {
    std::optional<Job> job = work.start(JobKind::Refresh);
    if (!job) return;
    refreshed = refreshLocalLists(state, *job, messages, QLocale::c(), QStringLiteral("Ver:2.5(64)"));
    job.reset();
    if (!refreshed.fault.isEmpty()) messages.inform(refreshed.fault);
    if (refreshed.errorLog.isEmpty()) return;
    view.steps += QStringLiteral("log");
    view.logs += refreshed.errorLog;
  }

  bool isListed(const QString& listing, const QByteArray& file) const {
    return data.readFile(listing).contains("\r\n" + file + ' ');
  }

  ProgramState state;
  RecordingIndexDisplay view;
  Work work{state, view};
  RecordingMessageBoxes messages;
  /// Of the last refresh.
  RefreshOutcome refreshed;
  TemporaryFolder data;
  TemporaryFolder folders;

 private:
  int made_ = 0;
};

}  // namespace quorvin::test
