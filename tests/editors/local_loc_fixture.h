// SPDX-License-Identifier: GPL-2.0-or-later

// The source editor on a state of the test's own.
#pragma once

#include "editors/dialog_driving.h"
#include "editors/local_loc.h"
#include "editors/recording_file_picker.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"

#include <memory>
#include <vector>

namespace quorvin {

inline void PrintTo(const SourceEntry& entry, std::ostream* out) {
  *out << '{' << entry.description.toStdString() << ", " << entry.path.toStdString() << '}';
}

}  // namespace quorvin

namespace quorvin::test {

using Entries = std::vector<SourceEntry>;

class LocalLocTest : public testing::Test {
 protected:
  void haveOnline(const Entries& entries) { put(entries, state_.OnlineSources, state_.OnlineSourceCount); }
  void haveOffline(const Entries& entries) { put(entries, state_.OfflineSources, state_.OfflineSourceCount); }
  Entries online() const { return entriesOf(state_.OnlineSources, state_.OnlineSourceCount); }
  Entries offline() const { return entriesOf(state_.OfflineSources, state_.OfflineSourceCount); }

  /// The dialog in the mode for folders, shown; the sources should be there before.
  LocalLoc& dialog() {
    if (dialog_) return *dialog_;
    dialog_ = std::make_unique<LocalLoc>(editing(), LocMode_, nullptr);
    showAndActivate(*dialog_);
    return *dialog_;
  }
  const LocalLocControls& controls() { return dialog().controls(); }
  const Entries& edited() { return dialog().entries().entries(); }

  SourceEditing editing() {
    const auto refresh = [this] {
      ++refreshes_;
      if (duringRefresh_) duringRefresh_();
    };
    return {state_, messages_, picker_, refresh, pathStyle_};
  }
  /// Opens the editor for offline lists and does `action` in it.
  void inOfflineEditor(const std::function<void(LocalLoc&)>& action) {
    LocalLoc dialog(editing(), LocMode_, nullptr);
    dialog.arrangeForOffline();
    EXPECT_TRUE(duringModal<LocalLoc>([&] { dialog.exec(); }, action));
  }

  void add(const QString& description, const QString& path) {
    type(controls().Desc, description);
    type(controls().LocalDataFolder, path);
    click(controls().LocAdd);
  }
  /// Selects a row, counted from 1, by a click on it.
  void select(int row) {
    SourceListView* list = controls().Online;
    const QModelIndex index = list->model()->index(row - 1, 0);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
  }
  /// The selected row, counted from 1; 0 when there is none.
  int selected() {
    const std::vector<int> rows = controls().Online->selectedRows();
    EXPECT_LE(rows.size(), 1U);
    return rows.empty() ? 0 : rows.front() + 1;
  }

  ProgramState state_;
  RecordingMessageBoxes messages_;
  RecordingFilePicker picker_;
  int refreshes_ = 0;
  std::function<void()> duringRefresh_;
  PathStyle pathStyle_ = kWindowsPaths;
  QString LocMode_ = QStringLiteral("Online");

 private:
  static void put(const Entries& entries, SourceTable& table, int& count) {
    ASSERT_FALSE(storeEntries(entries, table, count));
  }

  std::unique_ptr<LocalLoc> dialog_;
};

inline Entries threeFolders() {
  return {{QStringLiteral("Music"), QStringLiteral("D:\\Music\\")},
          {QStringLiteral("Photos"), QStringLiteral("D:\\Photos\\")},
          {QStringLiteral("Papers"), QStringLiteral("E:\\")}};
}

}  // namespace quorvin::test
