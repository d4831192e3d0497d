// SPDX-License-Identifier: GPL-2.0-or-later

// The window that turns lists of other programs into listings, as a person comes to it and uses it.
#include "catalogue/import/import_window.h"

#include "editors/dialog_driving.h"
#include "editors/recording_file_picker.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "support/waiting_threads.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

namespace quorvin::test {

namespace {

const QByteArray kDisc =
    "/media/cd:\n"
    "total 8\n"
    "drwxr-xr-x 2 anna anna 4096 2004-11-15 10:20:30.000000000 +0000 songs\n"
    "-rw-r--r-- 1 anna anna 2048 2004-11-15 10:20:30.000000000 +0000 notes.txt\n"
    "\n"
    "/media/cd/songs:\n"
    "total 4\n"
    "-rw-r--r-- 1 anna anna 5 2004-11-15 10:20:30.000000000 +0000 northern harbour.ogg\n";

template <typename Control>
Control* in(const ImportWindow& window, const char* name) {
  return window.findChild<Control*>(QString::fromLatin1(name));
}
QPushButton* button(const ImportWindow& window, const char* name) {
  return in<QPushButton>(window, name);
}
std::string reportOf(const ImportWindow& window) {
  return in<QPlainTextEdit>(window, "Report")->toPlainText().toStdString();
}
bool isWorking(const ImportWindow& window) {
  return button(window, "Import")->text() == QStringLiteral("S&top");
}
void import(const ImportWindow& window) {
  click(button(window, "Import"));
  EXPECT_EVENTUALLY(!isWorking(window));
}
void choose(const ImportWindow& window, const char* box, const char* text) {
  in<QComboBox>(window, box)->setCurrentText(QString::fromLatin1(text));
}

class ImportedInWindow : public SearchFormTest {
 protected:
  ImportedInWindow() {
    picker_ = &picks_;
    lists_.writeFile(QStringLiteral("cd7.lst"), kDisc);
  }

  void inWindow(const std::function<void(ImportWindow&)>& action) {
    form();
    EXPECT_TRUE(duringModal<ImportWindow>([this] { form().menus().Import->trigger(); }, action));
  }
  void add(const ImportWindow& window, const QString& list) {
    picks_.pick = lists_.pathOf(list);
    click(button(window, "Add"));
  }
  std::string pathOf(const char* name) const {
    return folder_.pathOf(QString::fromLatin1(name)).toStdString();
  }
  std::string listOf(const char* name) const {
    return lists_.pathOf(QString::fromLatin1(name)).toStdString();
  }

  RecordingFilePicker picks_;
  TemporaryFolder lists_;
};

TEST_F(ImportedInWindow, AListBecomesAListingThatIsSearched) {
  inWindow([this](ImportWindow& window) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Import"));
    EXPECT_FALSE(button(window, "Import")->isEnabled());
    add(window, QStringLiteral("cd7.lst"));
    import(window);
    EXPECT_EQ(reportOf(window),
              listOf("cd7.lst") + ": read as ls; " + pathOf("cd7.txt") + " has 2 files, 2 folders");
  });
  ASSERT_EQ(state_.OfflineSourceCount, 1);
  find(QStringLiteral("harbour"));
  ASSERT_EQ(rows(), 1);
  EXPECT_EQ(lists_.readFile(QStringLiteral("cd7.lst")), kDisc);
}

TEST_F(ImportedInWindow, BehindEachListStandsAsWhatItIsGoingToBeRead) {
  lists_.writeFile(QStringLiteral("letter"), "Dear Ann,\n");
  inWindow([this](ImportWindow& window) {
    add(window, QStringLiteral("cd7.lst"));
    add(window, QStringLiteral("letter"));
    auto* lists = in<QListWidget>(window, "Lists");
    EXPECT_EVENTUALLY(lists->item(1)->text().endsWith(u')'));
    EXPECT_EQ(lists->item(0)->text().toStdString(), listOf("cd7.lst") + " (ls)");
    EXPECT_EQ(lists->item(1)->text().toStdString(), listOf("letter") + " (not recognised)");
  });
}

TEST_F(ImportedInWindow, AnotherEncodingIsAnotherLookAtTheLists) {
  inWindow([this](ImportWindow& window) {
    add(window, QStringLiteral("cd7.lst"));
    auto* lists = in<QListWidget>(window, "Lists");
    EXPECT_EVENTUALLY(lists->item(0)->text().endsWith(QStringLiteral(" (ls)")));
    lists_.writeFile(QStringLiteral("cd7.lst"), "Dear Ann,\n");
    choose(window, "Encoding", "cp850");
    EXPECT_EVENTUALLY(lists->item(0)->text().endsWith(QStringLiteral(" (not recognised)")));
  });
}

TEST_F(ImportedInWindow, OnWishTheListingIsMadeOnly) {
  inWindow([this](ImportWindow& window) {
    add(window, QStringLiteral("cd7.lst"));
    click(in<QCheckBox>(window, "Search"));
    import(window);
  });
  EXPECT_EQ(state_.OfflineSourceCount, 0);
  EXPECT_TRUE(folder_.readFile(QStringLiteral("cd7.txt")).contains("northern harbour.ogg"));
}

TEST_F(ImportedInWindow, WhatIsKnownOfAListIsTaken) {
  lists_.writeFile(QStringLiteral("rows"), "5|pieces/northern harbour.ogg\n");
  TemporaryFolder elsewhere;
  inWindow([&](ImportWindow& window) {
    EXPECT_FALSE(in<QLineEdit>(window, "Columns")->isEnabled());
    add(window, QStringLiteral("rows"));
    choose(window, "Format", "find-printf");
    type(in<QLineEdit>(window, "Columns"), QStringLiteral("%s|%p\\n"));
    type(in<QLineEdit>(window, "Folder"), QStringLiteral("/media/cd"));
    type(in<QLineEdit>(window, "Volume"), QStringLiteral("CD 8"));
    picks_.pick = elsewhere.path();
    click(button(window, "Browse"));
    ASSERT_EQ(picks_.askedForFolder.size(), 1U);
    EXPECT_EQ(picks_.askedForFolder[0].initialFolder, state_.LocalFolder);
    import(window);
  });
  const QByteArray listing = elsewhere.readFile(QStringLiteral("CD 8.txt"));
  EXPECT_TRUE(listing.contains("Volume:    CD 8\r\n")) << listing.toStdString();
  EXPECT_TRUE(listing.contains("\\media\\cd\\pieces\\")) << listing.toStdString();
}

TEST_F(ImportedInWindow, WhatIsNotUnderstoodIsShownAndNamesTheControls) {
  lists_.writeFile(QStringLiteral("poem"), "Shall I compare thee\nto a summer's day?\n");
  lists_.writeFile(QStringLiteral("half"), kDisc + "something else altogether\n");
  inWindow([this](ImportWindow& window) {
    add(window, QStringLiteral("poem"));
    add(window, QStringLiteral("half"));
    EXPECT_FALSE(in<QLineEdit>(window, "Volume")->isEnabled());
    choose(window, "Format", "ls");
    import(window);
    EXPECT_NE(
        reportOf(window).find("lines that were not understood: 1\n    line 9: something else altogether"),
        std::string::npos)
        << reportOf(window);
    type(in<QLineEdit>(window, "Made"), QStringLiteral("last year"));
    import(window);
    EXPECT_EQ(reportOf(window), "the value of Made on is a day such as 2004-01-15, not \"last year\"");
  });
  EXPECT_EQ(state_.OfflineSourceCount, 1);
}

TEST_F(ImportedInWindow, AListingThatIsThereStaysUnlessItIsToBeReplaced) {
  folder_.writeFile(QStringLiteral("cd7.txt"), "old");
  inWindow([this](ImportWindow& window) {
    add(window, QStringLiteral("cd7.lst"));
    import(window);
    EXPECT_EQ(reportOf(window),
              pathOf("cd7.txt") + " is there already; nothing was imported of " + listOf("cd7.lst"));
    EXPECT_EQ(folder_.readFile(QStringLiteral("cd7.txt")), "old");
    click(in<QCheckBox>(window, "Replace"));
    import(window);
    EXPECT_TRUE(folder_.readFile(QStringLiteral("cd7.txt")).contains("harbour"));
  });
}

TEST_F(ImportedInWindow, NoListingStandsInThePlaceOfAFileOfTheProgram) {
  state_.OffLineFile = QStringLiteral("OfflineLocations.txt");
  lists_.writeFile(QStringLiteral("OfflineLocations.lst"), kDisc);
  inWindow([this](ImportWindow& window) {
    add(window, QStringLiteral("OfflineLocations.lst"));
    click(in<QCheckBox>(window, "Replace"));
    import(window);
    EXPECT_EQ(reportOf(window), pathOf("OfflineLocations.txt") +
                                    " is a file of the program; nothing was imported of " +
                                    listOf("OfflineLocations.lst"));
  });
  EXPECT_FALSE(folder_.names().contains(QStringLiteral("OfflineLocations.txt")));
}

TEST_F(ImportedInWindow, ListsAreDroppedAndTakenOutAgain) {
  inWindow([this](ImportWindow& window) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(lists_.pathOf(QStringLiteral("cd7.lst"))),
                  QUrl::fromLocalFile(lists_.path()), QUrl(QStringLiteral("https://example.org/list"))});
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    for (int time = 0; time < 2; ++time) {
      QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(&window, &drop);
    }
    auto* lists = in<QListWidget>(window, "Lists");
    ASSERT_EQ(lists->count(), 1);
    EXPECT_EQ(lists->item(0)->text().toStdString(), listOf("cd7.lst"));
    QTest::keyClick(lists, Qt::Key_Delete);
    EXPECT_EQ(lists->count(), 0);
    EXPECT_FALSE(button(window, "Import")->isEnabled());
  });
}

TEST_F(ImportedInWindow, CanBeUsedByKeysAlone) {
  picks_.pick = lists_.pathOf(QStringLiteral("cd7.lst"));
  form();
  inDialog<ImportWindow>(
      [] {
        press(Qt::Key_F, Qt::AltModifier);
        press(Qt::Key_I);
      },
      [](ImportWindow& window) {
        press(Qt::Key_A, Qt::AltModifier);
        EXPECT_EVENTUALLY(focusName() == QStringLiteral("Import"));
        press(Qt::Key_Return);
        EXPECT_EVENTUALLY(!isWorking(window) && reportOf(window).find("read as ls") != std::string::npos);
        EXPECT_EQ(tabStops().toStdString(),
                  "Import close Lists Add Remove Format Encoding Dates Made Folder Volume Bytes Output "
                  "Browse Replace "
                  "Search Report");
        press(Qt::Key_Escape);
      });
  EXPECT_EQ(state_.OfflineSourceCount, 1);
}

TEST_F(ImportedInWindow, StopsAndClosesWhileADriveDoesNotAnswer) {
  WaitingThreads threads;
  const ImportWindowParts parts{threads.pool,
                                folder_.path(),
                                ownFileCheck(state_),
                                [this] { return QStringList{lists_.pathOf(QStringLiteral("cd7.lst"))}; },
                                [](const QString&) { return std::nullopt; },
                                [](const QStringList&) { return QStringLiteral("added"); }};
  auto window = std::make_unique<ImportWindow>(parts, nullptr);
  showAndActivate(*window);
  click(button(*window, "Add"));
  click(button(*window, "Import"));
  EXPECT_TRUE(isWorking(*window));
  EXPECT_FALSE(button(*window, "Add")->isEnabled());
  press(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  window.reset();
  threads.letGo();
  EXPECT_FALSE(folder_.names().contains(QStringLiteral("cd7.txt")));
}

TEST_F(ImportedInWindow, EndsWithTheProgram) {
  inWindow([this](ImportWindow& window) {
    add(window, QStringLiteral("cd7.lst"));
    click(button(window, "Import"));
    form().frame().unloadOtherWindows();
    EXPECT_FALSE(window.isVisible());
  });
}

}  // namespace

}  // namespace quorvin::test
