// SPDX-License-Identifier: GPL-2.0-or-later

// The source editors and the options by keys alone, opened from the menu of the main window.
#include "editors/list_options.h"
#include "editors/local_loc.h"
#include "editors/recording_file_picker.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"

namespace quorvin::test {

namespace {

class EditorsByKeys : public SearchFormTest {
 protected:
  EditorsByKeys() {
    addMissingOnlineSource(QStringLiteral("Music"));
    addMissingOnlineSource(QStringLiteral("Films"));
    folder_.writeFile(QStringLiteral("cds.txt"), "");
    state_.TextFile = QStringLiteral("cds.txt");
    form().show();
  }

  static void choose(int itemsDown) {
    press(Qt::Key_F, Qt::AltModifier);
    press(Qt::Key_Down, {}, itemsDown);
    press(Qt::Key_Return);
  }
  static void inFolders(const std::function<void(LocalLoc&)>& action) {
    inDialog<LocalLoc>([] { choose(0); }, action);
  }
  static void inOfflineLists(const std::function<void(LocalLoc&)>& action) {
    inDialog<LocalLoc>([] { choose(1); }, action);
  }
  static void inOptions(const std::function<void(ListOptions&)>& action) {
    inDialog<ListOptions>([] { choose(9); }, action);
  }
  QString online() const { return textOf(state_.OnlineSources, state_.OnlineSourceCount); }
  QString offline() const { return textOf(state_.OfflineSources, state_.OfflineSourceCount); }

 private:
  static QString textOf(const SourceTable& table, int count) {
    QStringList rows;
    for (int row = 1; row <= count; ++row) rows.append(table.description(row) + u'=' + table.path(row));
    return rows.join(u' ');
  }
};

TEST_F(EditorsByKeys, TabReachesEveryControlOfTheFolders) {
  inFolders([](LocalLoc&) {
    tabTo("Online");
    press(Qt::Key_Home);
    EXPECT_EQ(tabStops().toStdString(),
              "Online MvUp MvDn LocDel Desc LocalDataFolder GetListName LocAdd AddSources OK Cancel");
    press(Qt::Key_Escape);
  });
}

TEST_F(EditorsByKeys, FoldersAreAddedMovedDeletedAndSaved) {
  messages_.answers = {false};
  inFolders([](LocalLoc&) {
    typeOver(QStringLiteral("Photos"));
    press(Qt::Key_Tab);
    typeText(QStringLiteral("/photos/"));
    press(Qt::Key_Return);
    tabTo("Online");
    press(Qt::Key_End);
    tabTo("MvUp");
    press(Qt::Key_Space);
    press(Qt::Key_Space);
    tabTo("MvDn");
    press(Qt::Key_Space);
    tabTo("Online");
    press(Qt::Key_End);
    tabTo("LocDel");
    press(Qt::Key_Space);
    tabTo("OK");
    press(Qt::Key_Space);
  });
  EXPECT_EQ(online(), QStringLiteral("Music=/music Photos=/photos/"));
  ASSERT_EQ(messages_.asked.size(), 1U);
  EXPECT_EQ(messages_.asked[0], QStringLiteral("Rescan Local Search Locations?"));
}

TEST_F(EditorsByKeys, TheMainWindowHasTheKeyboardAfterSaving) {
  messages_.answers = {false};
  QTimer::singleShot(0, [] {
    auto* dialog = qobject_cast<LocalLoc*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    QTest::mouseClick(dialog->controls().OK, Qt::LeftButton);
  });
  form().menus().AddLocal->trigger();
  EXPECT_TRUE(eventually([this] { return QApplication::activeWindow() == &form(); }));
}

TEST_F(EditorsByKeys, AFolderIsLookedForByTheBrowseButton) {
  RecordingFilePicker picker;
  picker.pick = QStringLiteral("/photos");
  SearchForm other(state_, messages_, shell_, QLocale::c(), nullptr, &picker);
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  inFolders([](LocalLoc& dialog) {
    tabTo("GetListName");
    press(Qt::Key_Space);
    EXPECT_EQ(dialog.controls().LocalDataFolder->text(), QStringLiteral("/photos/"));
    press(Qt::Key_Escape);
  });
  EXPECT_EQ(picker.askedForFolder.size(), 1U);
}

TEST_F(EditorsByKeys, EscLeavesTheFoldersAsTheyWere) {
  inFolders([](LocalLoc&) {
    tabTo("Online");
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    press(Qt::Key_Escape);
  });
  EXPECT_EQ(online(), QStringLiteral("Music=/music Films=/music"));
}

TEST_F(EditorsByKeys, TabReachesEveryControlOfTheOfflineLists) {
  addOfflineSource(QStringLiteral("cd.lst"), "");
  inOfflineLists([](LocalLoc&) {
    tabTo("Online");
    press(Qt::Key_Home);
    EXPECT_EQ(tabStops().toStdString(),
              "Online MvUp MvDn LocDel LocalDataFolder GetListName LocAdd AddSources SaveOffLine Cancel");
    press(Qt::Key_Escape);
  });
}

TEST_F(EditorsByKeys, OfflineListsAreAddedMovedDeletedAndSaved) {
  inOfflineLists([](LocalLoc&) {
    for (const char* path : {"/lists/a.txt", "/lists/b.txt", "/lists/c.txt"}) {
      typeOver(QString::fromLatin1(path));
      press(Qt::Key_Return);
    }
    tabTo("Online");
    press(Qt::Key_End);
    press(Qt::Key_Up, Qt::AltModifier);
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    tabTo("SaveOffLine");
    press(Qt::Key_Space);
  });
  EXPECT_EQ(offline(), QStringLiteral("Offline=/lists/c.txt Offline=/lists/b.txt"));
  EXPECT_TRUE(messages_.asked.empty());
}

TEST_F(EditorsByKeys, TabReachesEveryControlOfTheOptions) {
  inOptions([](ListOptions&) {
    EXPECT_EQ(tabStops().toStdString(),
              "LocalDataFolder GetLocalFolder LocalFile GetListName RemoteFile Server JoinD Nic OKButton "
              "CancelButton");
    press(Qt::Key_Escape);
  });
}

TEST_F(EditorsByKeys, OptionsAreTypedAndStored) {
  inOptions([](ListOptions&) {
    tabTo("Server");
    typeOver(QStringLiteral("lists.example"));
    tabTo("Nic");
    typeOver(QStringLiteral("ann"));
    press(Qt::Key_Return);
  });
  EXPECT_EQ(state_.WebServer, QStringLiteral("lists.example"));
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
}

TEST_F(EditorsByKeys, EscLeavesTheOptionsAsTheyWere) {
  inOptions([](ListOptions&) {
    tabTo("Nic");
    typeOver(QStringLiteral("ann"));
    press(Qt::Key_Escape);
  });
  EXPECT_EQ(state_.NickName, QString());
}

TEST_F(EditorsByKeys, ARefusedDateIsMendedAndStored) {
  inOptions([this](ListOptions&) {
    tabTo("JoinD");
    typeOver(QStringLiteral("soon"));
    press(Qt::Key_Return);
    EXPECT_EQ(messages_.informed.size(), 1U);
    EXPECT_EQ(focusName(), QStringLiteral("JoinD"));
    typeOver(QStringLiteral("1/15/2004"));
    press(Qt::Key_Return);
  });
  EXPECT_EQ(state_.JoinDate, 38001.0);
}

}  // namespace

}  // namespace quorvin::test
