// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows the earlier versions of listings, as a person comes to it and uses it.
#include "history/history_window.h"

#include "editors/dialog_driving.h"
#include "files/file_lock.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"

#include <QDateTime>

namespace quorvin::test {

namespace {

class ShownHistory : public SearchFormTest {
 protected:
  /// Replaces the listing of Music as a refresh does; it dates from that day of January 2004.
  void put(int entries, int day, bool isComplete = true) {
    const QByteArray listing = listingOf("MUSIC", entries, "song");
    const QString made = folder_.writeFile(QStringLiteral("made"), listing);
    EXPECT_EQ(history_.keep(kMusic, made, isComplete).fault, QString());
    QFile file(folder_.writeFile(kMusic, listing));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime moment(QDate(2004, 1, day), QTime(10, 20));
    ASSERT_TRUE(file.setFileTime(moment, QFileDevice::FileModificationTime));
  }
  void inWindow(const std::function<void(HistoryWindow&)>& action) {
    form();
    EXPECT_TRUE(duringModal<HistoryWindow>([this] { form().menus().ListingHistory->trigger(); }, action));
  }
  static QTreeWidget* versions(HistoryWindow& window) {
    return window.findChild<QTreeWidget*>(QStringLiteral("Versions"));
  }
  static QStringList rowsOf(HistoryWindow& window) {
    QStringList rows;
    for (int row = 0; row < versions(window)->topLevelItemCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < 4; ++column) cells += versions(window)->topLevelItem(row)->text(column);
      rows += cells.join(QStringLiteral(" | "));
    }
    return rows;
  }
  static QString present(HistoryWindow& window) {
    return window.findChild<QLabel*>(QStringLiteral("Present"))->text();
  }
  static QPushButton* restore(HistoryWindow& window) {
    return window.findChild<QPushButton*>(QStringLiteral("Restore"));
  }
  int entriesNow() { return static_cast<int>(folder_.readFile(kMusic).count(" bytes ")); }

  const QString kMusic = QStringLiteral("Music.txt");
  ListingHistory history_{folder_.path()};
};

TEST_F(ShownHistory, ShowsDateEntriesSizeAndWhetherAVersionIsComplete) {
  put(1500, 15);
  put(2, 16, false);
  put(3, 17);
  inWindow([this](HistoryWindow& window) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Listing History"));
    EXPECT_EQ(window.findChild<QComboBox*>(QStringLiteral("Listing"))->currentText(), kMusic);
    EXPECT_EQ(present(window), QStringLiteral("Now: 1/17/04 10:20 AM, 3 entries, 372 bytes, complete"));
    EXPECT_EQ(rowsOf(window), (QStringList{QStringLiteral("1/16/04 10:20 AM | 2 | 262 bytes | no"),
                                           QStringLiteral("1/15/04 10:20 AM | 1,500 | 161.17 KiB | yes")}));
    const QTreeWidgetItem& titles = *versions(window)->headerItem();
    for (const int numbers : {1, 2}) EXPECT_TRUE(titles.textAlignment(numbers) & Qt::AlignRight) << numbers;
  });
}

TEST_F(ShownHistory, RestorePutsTheSelectedVersionInPlaceAndShowsWhatWasThere) {
  put(5, 15);
  put(2, 16);
  put(3, 17);
  inWindow([this](HistoryWindow& window) {
    versions(window)->setCurrentItem(versions(window)->topLevelItem(1));
    click(restore(window));
    EXPECT_EQ(entriesNow(), 5);
    EXPECT_TRUE(present(window).contains(QStringLiteral(", 5 entries, "))) << present(window).toStdString();
    ASSERT_EQ(rowsOf(window).size(), 3);
    EXPECT_TRUE(rowsOf(window)[0].startsWith(QStringLiteral("1/17/04 10:20 AM | 3 | ")));
  });
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_FALSE(state_.RescanRunning);
  EXPECT_FALSE(state_.RescanAbort);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ShownHistory, TheNextSearchFindsWhatWasRestored) {
  put(5, 15);
  put(2, 16);
  addOnlineFolder(QStringLiteral("Music"), QStringLiteral("/music/"));
  find(QStringLiteral("song"));
  EXPECT_EQ(rows(), 2);
  inWindow([](HistoryWindow& window) { click(restore(window)); });
  find(QStringLiteral("song"));
  EXPECT_EQ(rows(), 5);
}

TEST_F(ShownHistory, CanBeUsedByKeysAlone) {
  put(5, 15);
  put(2, 16);
  put(3, 17);
  form();
  inDialog<HistoryWindow>(
      [] {
        press(Qt::Key_F, Qt::AltModifier);
        press(Qt::Key_H);
      },
      [this](HistoryWindow&) {
        press(Qt::Key_Down);
        press(Qt::Key_R, Qt::AltModifier);
        EXPECT_EVENTUALLY(entriesNow() == 5);
        press(Qt::Key_Escape);
      });
}

TEST_F(ShownHistory, TabGoesFromTheListingsToTheVersionsAndTheButtons) {
  put(5, 15);
  put(2, 16);
  form();
  inDialog<HistoryWindow>([this] { form().menus().ListingHistory->trigger(); },
                          [](HistoryWindow&) {
                            EXPECT_EQ(tabStops().toStdString(), "Versions Restore Compare close Listing");
                            press(Qt::Key_Escape);
                          });
}

TEST_F(ShownHistory, WithoutVersionsItSaysWhenThereWillBeSome) {
  inWindow([](HistoryWindow& window) {
    EXPECT_TRUE(present(window).startsWith(QStringLiteral("There are no earlier versions yet.")));
    EXPECT_FALSE(restore(window)->isEnabled());
    EXPECT_TRUE(rowsOf(window).isEmpty());
  });
}

TEST_F(ShownHistory, AVersionThatIsDamagedIsCalledThatAndCannotBeChosen) {
  put(5, 15);
  put(2, 16);
  put(3, 17);
  QFile::remove(folder_.pathOf(QStringLiteral("history/Music.txt/00000002.version")));
  inWindow([](HistoryWindow& window) {
    ASSERT_EQ(rowsOf(window).size(), 1);
    EXPECT_TRUE(rowsOf(window)[0].endsWith(QStringLiteral(" | damaged")));
    EXPECT_FALSE(restore(window)->isEnabled());
  });
}

TEST_F(ShownHistory, WhatCannotBeRestoredIsReported) {
  put(5, 15);
  put(2, 16);
  const auto refresh = FolderLock::take(folder_.path());
  inWindow([](HistoryWindow& window) {
    click(restore(window));
    EXPECT_TRUE(restore(window)->isEnabled());
  });
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].contains(
      QStringLiteral("The listing cannot be restored now: a refresh is running.")))
      << messages_.informed[0].toStdString();
  EXPECT_EQ(entriesNow(), 2);
}

TEST_F(ShownHistory, AHistoryThatCannotBeReadIsNotCalledEmpty) {
  const QString folder = folder_.pathOf(QStringLiteral("history"));
  ASSERT_TRUE(QFile::link(folder, folder));
  inWindow([&](HistoryWindow& window) {
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("Present"))->text(),
              QStringLiteral("The listing history cannot be read: Path/File access error: ") + folder +
                  QStringLiteral("/"));
    EXPECT_FALSE(restore(window)->isEnabled());
  });
}

TEST_F(ShownHistory, ClosesWithTheProgram) {
  put(5, 15);
  put(2, 16);
  inWindow([this](HistoryWindow& window) {
    form().frame().unloadOtherWindows();
    EXPECT_FALSE(window.isVisible());
  });
}

}  // namespace

}  // namespace quorvin::test
