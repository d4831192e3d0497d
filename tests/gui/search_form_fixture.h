// SPDX-License-Identifier: GPL-2.0-or-later

// The real main window, on a state and a data folder of the test's own.
#pragma once

#include "app/search_form.h"
#include "support/listing_lines.h"
#include "support/memory_settings_store.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/recording_shell.h"
#include "support/temporary_folder.h"

#include <QLocale>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace quorvin::test {

class SearchFormTest : public testing::Test {
 protected:
  SearchFormTest() {
    state_.resetFileNames();
    state_.LocalFolder = folder_.path();
  }

  /// Makes and shows the window; the sources should be there before.
  SearchForm& form() {
    if (form_) return *form_;
    form_ = std::make_unique<SearchForm>(state_, messages_, shell_,
                                         QLocale(QLocale::English, QLocale::UnitedStates), images_, picker_);
    shutdown_ = std::make_unique<Shutdown>(state_, settings_, messages_, form_->frame(),
                                           QLocale(QLocale::English, QLocale::UnitedStates));
    form_->setUnloadHandler([this] { shutdown_->Form_Unload(); });
    form_->show();
    form_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    return *form_;
  }
  const SearchFormControls& controls() { return form().controls(); }

  /// Adds an online source whose listing holds `listing`; without one the listing is missing.
  void addOnlineSource(const QString& description, const QByteArray& listing) {
    folder_.writeFile(description + QStringLiteral(".txt"), listing);
    addMissingOnlineSource(description);
  }
  void addMissingOnlineSource(const QString& description) {
    addOnlineFolder(description, QStringLiteral("/music"));
  }
  /// Adds an online source that has not been indexed yet.
  void addOnlineFolder(const QString& description, const QString& path) {
    state_.OnlineSources.set(++state_.OnlineSourceCount, description, path);
  }
  void setMainDataFile(const QByteArray& listing) {
    folder_.writeFile(QStringLiteral("main.lst"), listing);
    state_.TextFile = QStringLiteral("main.lst");
  }
  void addOfflineSource(const QString& name, const QByteArray& listing) {
    const QString path = folder_.writeFile(name, listing);
    state_.OfflineSources.set(++state_.OfflineSourceCount, name, path);
  }

  static QByteArray listingOf(const QByteArray& volume, int entries, const QByteArray& name) {
    QByteArray listing = blockHead(volume, "\\Music\\");
    for (int entry = 1; entry <= entries; ++entry) {
      listing += entryLine(name + " " + QByteArray::number(entry) + ".mp3");
    }
    return listing;
  }

  /// Types `text` over what is in `edit`, key by key.
  static void type(QLineEdit* edit, const QString& text) {
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
  }
  void find(const QString& text) {
    type(controls().SearchStr, text);
    pressFind();
  }
  void pressFind() { QTest::mouseClick(controls().Find, Qt::LeftButton); }

  /// Does `action` as soon as a run lets events run.
  static void duringTheRun(const std::function<void()>& action) { QTimer::singleShot(0, action); }

  int rows() { return controls().HitList->model()->rowCount(); }
  QString cell(int row, HitColumn column) {
    return controls().HitList->model()->index(row, static_cast<int>(column)).data().toString();
  }
  QStringList rowTexts(int row) {
    QStringList texts;
    for (int column = 0; column < kHitColumnCount; ++column) {
      texts.append(cell(row, static_cast<HitColumn>(column)));
    }
    return texts;
  }
  QStringList volumes() {
    QStringList texts;
    for (int row = 0; row < rows(); ++row) texts.append(cell(row, HitColumn::Volume));
    return texts;
  }
  QColor colour(int row) {
    return controls().HitList->model()->index(row, 0).data(Qt::ForegroundRole).value<QColor>();
  }
  QString found() { return controls().lblFound->text(); }
  QString searched() { return controls().lblSearched->text(); }

  TemporaryFolder folder_;
  ProgramState state_;
  RecordingMessageBoxes messages_;
  RecordingShell shell_;
  MemorySettingsStore settings_;
  /// What keeps listings that were read; may be set before the window is made.
  SegmentStore* images_ = nullptr;
  /// What files are picked with; may be set before the window is made.
  FilePicker* picker_ = nullptr;

 private:
  std::unique_ptr<SearchForm> form_;
  std::unique_ptr<Shutdown> shutdown_;
};

}  // namespace quorvin::test
