// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows volumes, as a person comes to it and uses it.
#include "catalogue/volumes/volumes_window.h"

#include "editors/dialog_driving.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "gui/tree_texts.h"
#include "state/volume_notes.h"
#include "support/waiting_threads.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

namespace quorvin::test {

namespace {

using Column = VolumeColumn;

class ShownVolumes : public SearchFormTest {
 protected:
  ShownVolumes() {
    addOfflineSource(QStringLiteral("cd1.txt"), blockHead("CD 1", "\\Films\\") +
                                                    entryLine("film.avi", "734,003,200") +
                                                    entryLine("notes.txt", "2,048", "3/31/2005 8:00:00 AM"));
    addOfflineSource(QStringLiteral("cds.txt"), blockHead("CD 2", "\\Films\\") +
                                                    entryLine("harbour.avi", "1,572,864") +
                                                    blockHead("<b>CD 3", "\\") + "no size.txt\r\n");
  }

  void inWindow(const std::function<void(VolumesWindow&)>& action) {
    form();
    EXPECT_TRUE(duringModal<VolumesWindow>([this] { form().menus().Volumes->trigger(); }, action));
  }
  /// A window apart from the main one.
  VolumesWindowParts parts(QThreadPool& threads) {
    return {state_, threads, QLocale(QLocale::English, QLocale::UnitedStates), [this](const HitRow& file) {
              shown_.push_back((file.volume + u'|' + file.folder + u'|' + file.name).toStdString());
              return isThere_;
            }};
  }

  static QTreeView& listOf(const VolumesWindow& window) {
    return *window.findChild<QTreeView*>(QStringLiteral("Rows"));
  }
  static std::string statusOf(const VolumesWindow& window) {
    return window.findChild<QLabel*>(QStringLiteral("Status"))->text().toStdString();
  }
  static QPushButton* showButton(const VolumesWindow& window) {
    return window.findChild<QPushButton*>(QStringLiteral("Show"));
  }
  static bool isWorking(const VolumesWindow& window) {
    return showButton(window)->text() == QStringLiteral("S&top");
  }
  static void waitForRows(const VolumesWindow& window) { EXPECT_EVENTUALLY(!isWorking(window)); }
  /// What stands in a column, row by row.
  static std::string columnOf(const VolumesWindow& window, Column column) {
    std::string text;
    for (int row = 0; row < listOf(window).model()->rowCount(); ++row)
      text += cell(window, row, column) + '|';
    return text;
  }
  static std::string cell(const VolumesWindow& window, int row, Column column, int role = Qt::DisplayRole) {
    const QAbstractItemModel& rows = *listOf(window).model();
    return rows.index(row, static_cast<int>(column)).data(role).toString().toStdString();
  }
  QString note(const QString& listing, const QString& volume) {
    VolumeNotes notes(folder_.path());
    notes.refresh();
    return notes.of(folder_.pathOf(listing), volume);
  }
  /// Ends the editing of a note.
  static void endWith(Qt::Key key) {
    press(key);
    // What was typed is taken by an event.
    EXPECT_EVENTUALLY(focusName() == QStringLiteral("Rows"));
  }
  /// Types a note over that in the current row, and ends with `end`.
  static void typeNote(const QString& text, Qt::Key end) {
    press(Qt::Key_F2);
    ASSERT_EQ(focusName(), QStringLiteral("NoteEditor"));
    typeOver(text);
    endWith(end);
  }

  std::vector<std::string> shown_;
  bool isThere_ = true;
};

TEST_F(ShownVolumes, ComeAtOnceWithWhatIsOnThemAndTheSum) {
  inWindow([](VolumesWindow& window) {
    waitForRows(window);
    EXPECT_EQ(textsOfTree(*listOf(window).model()),
              "CD 1|2|700.00 MB|3/31/2005|today||cd1.txt|\n"
              "CD 2|1|1.50 MB|1/15/2004|today||cds.txt|\n"
              "<b>CD 3|1|0 bytes||today||cds.txt|\n");
    EXPECT_EQ(statusOf(window), "3 volumes: 4 files, 701.50 MB");
    EXPECT_EQ(cell(window, 0, Column::Newest, Qt::ToolTipRole), "\\Films\\notes.txt");
    EXPECT_EQ(focusName(), QStringLiteral("Rows"));
  });
}

TEST_F(ShownVolumes, WordsLimitWhatIsCounted) {
  inWindow([](VolumesWindow& window) {
    waitForRows(window);
    tabTo("Words");
    typeText(QStringLiteral("films avi"));
    press(Qt::Key_Return);
    waitForRows(window);
    EXPECT_EQ(columnOf(window, Column::Volume), "CD 1|CD 2|");
    EXPECT_EQ(columnOf(window, Column::Entries), "1|1|");
  });
}

TEST_F(ShownVolumes, AreSortedByATitleAndKeepTheCurrentOne) {
  inWindow([](VolumesWindow& window) {
    waitForRows(window);
    QTreeView& list = listOf(window);
    list.setCurrentIndex(list.model()->index(1, 0));
    list.sortByColumn(static_cast<int>(Column::Size), Qt::AscendingOrder);
    EXPECT_EQ(columnOf(window, Column::Volume), "<b>CD 3|CD 2|CD 1|");
    list.sortByColumn(static_cast<int>(Column::Volume), Qt::DescendingOrder);
    EXPECT_EQ(columnOf(window, Column::Volume), "CD 2|CD 1|<b>CD 3|");
    EXPECT_EQ(list.currentIndex().row(), 0);
    list.sortByColumn(-1, Qt::AscendingOrder);
    EXPECT_EQ(columnOf(window, Column::Volume), "CD 1|CD 2|<b>CD 3|");
  });
}

TEST_F(ShownVolumes, ANoteIsTypedInPlaceAndKept) {
  inWindow([this](VolumesWindow& window) {
    waitForRows(window);
    press(Qt::Key_Down);
    typeNote(QStringLiteral("blue box, shelf 3"), Qt::Key_Return);
    EXPECT_EQ(columnOf(window, Column::Note), "|blue box, shelf 3||");
    EXPECT_EQ(note(QStringLiteral("cds.txt"), QStringLiteral("CD 2")), QStringLiteral("blue box, shelf 3"));
    EXPECT_FALSE(isWorking(window)) << "Enter means the note";
    typeNote(QStringLiteral("red"), Qt::Key_Escape);
    EXPECT_EQ(columnOf(window, Column::Note), "|blue box, shelf 3||");
    EXPECT_TRUE(window.isVisible());
    press(Qt::Key_F2);
    press(Qt::Key_Backspace);
    endWith(Qt::Key_Return);
    EXPECT_EQ(note(QStringLiteral("cds.txt"), QStringLiteral("CD 2")), QString());
    EXPECT_EQ(columnOf(window, Column::Note), "|||");
  });
}

TEST_F(ShownVolumes, ADoubleClickOnANoteEditsIt) {
  QThreadPool threads;
  VolumesWindow window(parts(threads), nullptr);
  showAndActivate(window);
  waitForRows(window);
  QTreeView& list = listOf(window);
  const QModelIndex place = list.model()->index(2, static_cast<int>(Column::Note));
  list.scrollTo(place);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(place).center());
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(place).center());
  ASSERT_EQ(focusName(), QStringLiteral("NoteEditor"));
  EXPECT_EQ(QApplication::focusWidget()->accessibleName(), QStringLiteral("Note on <b>CD 3"));
  typeText(QStringLiteral("in \"quotes\""));
  endWith(Qt::Key_Return);
  EXPECT_EQ(note(QStringLiteral("cds.txt"), QStringLiteral("<b>CD 3")), QStringLiteral("in \"quotes\""));
}

TEST_F(ShownVolumes, ANoteThatAnotherProgramHasChangedIsTheOneThatIsEdited) {
  inWindow([this](VolumesWindow& window) {
    waitForRows(window);
    VolumeNotes(folder_.path())
        .set(folder_.pathOf(QStringLiteral("cd1.txt")), QStringLiteral("CD 1"),
             QStringLiteral("by the console"));
    EXPECT_EQ(columnOf(window, Column::Note), "|||");
    press(Qt::Key_F2);
    press(Qt::Key_End);
    typeText(QStringLiteral(", and by me"));
    endWith(Qt::Key_Return);
    EXPECT_EQ(note(QStringLiteral("cd1.txt"), QStringLiteral("CD 1")),
              QStringLiteral("by the console, and by me"));
  });
}

TEST_F(ShownVolumes, ANoteThatCannotBeKeptIsTold) {
  inWindow([this](VolumesWindow& window) {
    waitForRows(window);
    folder_.makeFolder(QStringLiteral("volumes.notes"));
    typeNote(QStringLiteral("blue box"), Qt::Key_Return);
    EXPECT_EQ(columnOf(window, Column::Note), "|||");
    EXPECT_TRUE(statusOf(window).starts_with("The note was not kept: ")) << statusOf(window);
  });
}

TEST_F(ShownVolumes, CanBeUsedByKeysAlone) {
  form();
  inDialog<VolumesWindow>(
      [] {
        press(Qt::Key_F, Qt::AltModifier);
        press(Qt::Key_V);
      },
      [](VolumesWindow& window) {
        waitForRows(window);
        EXPECT_EQ(tabStops().toStdString(), "Rows Show close Words SpaceMap");
        tabTo("Rows");
        press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("CD 1\t2\t700.00 MB\t")));
        press(Qt::Key_Escape);
      });
}

TEST_F(ShownVolumes, TheMenuShowsTheFolderOfAVolumeThatIsThere) {
  const QString music = folder_.path() + QStringLiteral("music/");
  ASSERT_TRUE(QDir().mkpath(music));
  folder_.writeFile(QStringLiteral("Music.txt"),
                    blockHead("Music", QString(music).replace(u'/', u'\\').toUtf8()) + entryLine("a", "4"));
  addOnlineFolder(QStringLiteral("Music"), music);
  QThreadPool threads;
  VolumesWindow window(parts(threads), nullptr);
  showAndActivate(window);
  waitForRows(window);
  EXPECT_NE(cell(window, 0, Column::Free), "");
  EXPECT_EQ(cell(window, 1, Column::Free), "");
  auto* action = window.findChild<QAction*>(QStringLiteral("ShowFolder"));
  action->trigger();
  EXPECT_EQ(shown_, std::vector{"Music|" + QString(music).replace(u'/', u'\\').toStdString() + '|'});
  listOf(window).setCurrentIndex(listOf(window).model()->index(1, 0));
  action->trigger();
  EXPECT_EQ(shown_.size(), 1U);
  EXPECT_EQ(statusOf(window), "CD 1 is not there now, or its listing does not say where.");
  typeNote(QStringLiteral("shelf"), Qt::Key_Return);
  action->trigger();
  EXPECT_EQ(statusOf(window), "CD 1 is not there now. Note: shelf");
}

TEST_F(ShownVolumes, WithoutSourcesItSaysSo) {
  state_.OfflineSourceCount = 0;
  inWindow([](VolumesWindow& window) {
    EXPECT_FALSE(isWorking(window));
    EXPECT_EQ(statusOf(window), "There is nothing to search yet.");
  });
}

TEST_F(ShownVolumes, StopAndClosingDoNotWaitForADriveThatDoesNotAnswer) {
  WaitingThreads threads;
  VolumesWindow window(parts(threads.pool), nullptr);
  showAndActivate(window);
  EXPECT_TRUE(isWorking(window));
  click(showButton(window));
  EXPECT_FALSE(isWorking(window));
  EXPECT_EQ(statusOf(window), "Stopped. What is on a volume is known when its listing has been read.");
  click(showButton(window));
  press(Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
  threads.letGo();
}

}  // namespace

}  // namespace quorvin::test
