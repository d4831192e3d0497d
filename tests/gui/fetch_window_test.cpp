// SPDX-License-Identifier: GPL-2.0-or-later

// The window that says which disks to fetch for selected hits, as a person comes to it and uses it.
#include "catalogue/fetch/fetch_window.h"

#include "editors/dialog_driving.h"
#include "editors/recording_file_picker.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "gui/tree_texts.h"
#include "state/volume_notes.h"

namespace quorvin::test {

namespace {

class PlannedInWindow : public SearchFormTest {
 protected:
  PlannedInWindow() {
    picker_ = &picks_;
    addOfflineSource(QStringLiteral("one.txt"), blockHead("CD 1", "\\Films\\") +
                                                    entryLine("harbour.avi", "734,003,200") +
                                                    entryLine("harbour notes.txt", "2,048"));
    addOfflineSource(QStringLiteral("two.txt"),
                     blockHead("CD 2", "\\Copies\\") + entryLine("HARBOUR.AVI", "734,003,200") +
                         blockHead("CD 2", "\\Copies\\b\\") + entryLine("harbour song.mp3", "3,000") +
                         entryLine("other", "1"));
  }

  /// Selects hits by Ctrl+A, and opens the window by its menu item.
  void inWindow(const std::function<void(FetchWindow&)>& action) {
    find(QStringLiteral("harbour"));
    controls().HitList->setFocus();
    controls().HitList->selectAll();
    EXPECT_TRUE(duringModal<FetchWindow>([this] { form().itemMenu().FetchPlan->trigger(); }, action));
  }
  static QTreeView& listOf(const FetchWindow& window) {
    return *window.findChild<QTreeView*>(QStringLiteral("Rows"));
  }
  static QPushButton* button(const FetchWindow& window, const char* name) {
    return window.findChild<QPushButton*>(QString::fromLatin1(name));
  }
  static std::string statusOf(const FetchWindow& window) {
    return window.findChild<QLabel*>(QStringLiteral("Status"))->text().toStdString();
  }
  static void waitForPlan(const FetchWindow& window) {
    EXPECT_EVENTUALLY(button(window, "PlanAgain")->text() != QStringLiteral("S&top"));
  }

  RecordingFilePicker picks_;
};

TEST_F(PlannedInWindow, TheFewestVolumesComeAtOnceWithWhatToCopyFromThem) {
  VolumeNotes(folder_.path())
      .set(folder_.pathOf(QStringLiteral("two.txt")), QStringLiteral("CD 2"), QStringLiteral("blue box"));
  inWindow([](FetchWindow& window) {
    waitForPlan(window);
    EXPECT_EQ(textsOfTree(*listOf(window).model()),
              "1. CD 1|\\Films\\|2 files, 700.00 MB||one.txt\n"
              "  harbour.avi|\\Films\\|700.00 MB||\n"
              "  harbour notes.txt|\\Films\\|2.00 kB||\n"
              "2. CD 2|\\Copies\\|1 file, 2.93 kB|blue box|two.txt\n"
              "  harbour song.mp3|\\Copies\\b\\|2.93 kB||\n");
    EXPECT_EQ(statusOf(window),
              "Volumes to insert: 2. To copy: 3 files, 700.00 MB\nThere is no way with fewer volumes");
    EXPECT_EQ(focusName(), QStringLiteral("Rows"));
  });
}

TEST_F(PlannedInWindow, OnlyWhatIsSelectedIsWanted) {
  find(QStringLiteral("harbour"));
  controls().HitList->setFocus();
  QTest::keyClick(controls().HitList, Qt::Key_Home);
  EXPECT_TRUE(duringModal<FetchWindow>([this] { form().itemMenu().FetchPlan->trigger(); },
                                       [](FetchWindow& window) {
                                         waitForPlan(window);
                                         EXPECT_EQ(listOf(window).model()->rowCount(), 1);
                                       }));
}

TEST_F(PlannedInWindow, ThePlanIsSavedAsText) {
  inWindow([this](FetchWindow& window) {
    waitForPlan(window);
    picks_.pick = folder_.pathOf(QStringLiteral("plan.txt"));
    click(button(window, "SaveText"));
    EXPECT_EQ(statusOf(window), "Saved: " + folder_.pathOf(QStringLiteral("plan.txt")).toStdString());
  });
  const QByteArray text = folder_.readFile(QStringLiteral("plan.txt"));
  EXPECT_TRUE(text.startsWith("1. CD 1: 2 files, 700.00 MB\n")) << text.toStdString();
  EXPECT_TRUE(text.contains("\n    harbour song.mp3, 2.93 kB\n")) << text.toStdString();
}

TEST_F(PlannedInWindow, ThePlanIsSavedAsAScript) {
  inWindow([this](FetchWindow& window) {
    waitForPlan(window);
    // The same answer to both questions.
    picks_.pick = folder_.pathOf(QStringLiteral("it's.sh"));
    click(button(window, "SaveScript"));
  });
  const QByteArray script = folder_.readFile(QStringLiteral("it's.sh"));
  EXPECT_TRUE(script.startsWith("#!/bin/sh\n"));
  EXPECT_TRUE(script.contains("/it'\\''s.sh'\n")) << script.left(300).toStdString();
}

TEST_F(PlannedInWindow, AListingIsNotOverwritten) {
  inWindow([this](FetchWindow& window) {
    waitForPlan(window);
    picks_.pick = folder_.pathOf(QStringLiteral("one.txt"));
    click(button(window, "SaveText"));
    EXPECT_EQ(statusOf(window), folder_.pathOf(QStringLiteral("one.txt")).toStdString() +
                                    " belongs to what is searched. Please choose another name.");
  });
  EXPECT_TRUE(folder_.readFile(QStringLiteral("one.txt")).contains("harbour notes.txt"));
}

TEST_F(PlannedInWindow, AFileThatIsNotThereIsSaid) {
  inWindow([](FetchWindow& window) {
    waitForPlan(window);
    listOf(window).setCurrentIndex(listOf(window).model()->index(0, 0, listOf(window).model()->index(0, 0)));
    press(Qt::Key_Return);
    EXPECT_EQ(statusOf(window), "\\Films\\harbour.avi is not there now, or its listing does not say where.");
  });
}

TEST_F(PlannedInWindow, PlanAgainSeesWhatHasChanged) {
  inWindow([this](FetchWindow& window) {
    waitForPlan(window);
    EXPECT_EQ(listOf(window).model()->rowCount(), 2);
    ASSERT_TRUE(QFile::remove(folder_.pathOf(QStringLiteral("two.txt"))));
    click(button(window, "PlanAgain"));
    waitForPlan(window);
    const QAbstractItemModel& rows = *listOf(window).model();
    ASSERT_EQ(rows.rowCount(), 2);
    EXPECT_EQ(rows.index(0, 0).data().toString(), QStringLiteral("1. CD 1"));
    EXPECT_EQ(rows.index(1, 0).data().toString(), QStringLiteral("Not found"));
    EXPECT_EQ(rows.index(0, 0, rows.index(1, 0)).data().toString(),
              QStringLiteral("harbour song.mp3, 2.93 kB"));
  });
}

}  // namespace
}  // namespace quorvin::test
