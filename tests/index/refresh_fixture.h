// What the tests of the refresh share.
#pragma once

#include "index/local_list_refresh.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/recording_refresh_view.h"
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

  void refresh() { refreshLocalLists(state, view, messages, QLocale::c(), QStringLiteral("Ver:2.5(64)")); }

  bool isListed(const QString& listing, const QByteArray& file) const {
    return data.readFile(listing).contains("\r\n" + file + ' ');
  }

  ProgramState state;
  RecordingRefreshView view;
  RecordingMessageBoxes messages;
  TemporaryFolder data;
  TemporaryFolder folders;

 private:
  int made_ = 0;
};

}  // namespace quorvin::test
