// SPDX-License-Identifier: GPL-2.0-or-later

// The windows that the main window opens: above which window, how often, and how they are closed with it.
#include "app/search_form_windows.h"

#include "editors/dialog_driving.h"
#include "editors/recording_file_picker.h"
#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/temporary_folder.h"

#include <QMainWindow>

#include <vector>

namespace quorvin::test {

namespace {

using Entries = std::vector<SourceEntry>;

class OpenedWindows : public testing::Test {
 protected:
  OpenedWindows() {
    folder_.writeFile(QStringLiteral("cds.txt"), "a listing");
    state_.LocalFolder = folder_.path();
    state_.TextFile = QStringLiteral("cds.txt");
    state_.NickName = QStringLiteral("ann");
    EXPECT_FALSE(storeEntries(threeFolders(), state_.OnlineSources, state_.OnlineSourceCount));
    log(menus_.AddLocal);
    log(menus_.EditOffline);
  }

  static Entries threeFolders() {
    return {{QStringLiteral("Music"), QStringLiteral("/music/")},
            {QStringLiteral("Photos"), QStringLiteral("/photos/")},
            {QStringLiteral("Papers"), QStringLiteral("/papers/")}};
  }
  Entries online() const { return entriesOf(state_.OnlineSources, state_.OnlineSourceCount); }

  void addLocal(const std::function<void(LocalLoc&)>& action) {
    EXPECT_TRUE(duringModal<LocalLoc>([this] { windows_.AddLocal_Click(); }, action));
  }
  void editOffline(const std::function<void(LocalLoc&)>& action) {
    EXPECT_TRUE(duringModal<LocalLoc>([this] { windows_.EditOffline_Click(); }, action));
  }
  void editOptions(const std::function<void(ListOptions&)>& action) {
    EXPECT_TRUE(duringModal<ListOptions>([this] { windows_.OptionsMenu_Click(); }, action));
  }

  /// What happened to the menu items and the lists, in order: "AddLocal off", "refresh".
  QStringList log_;
  std::function<void()> duringRefresh_;
  TemporaryFolder folder_;
  ProgramState state_;
  RecordingMessageBoxes messages_;
  RecordingFilePicker picker_;
  QMainWindow main_;
  SearchFormMenus menus_ = makeMenus(main_.menuBar());
  SearchFormWindows windows_{state_,
                             messages_,
                             menus_,
                             {[this] {
                                log_.append(QStringLiteral("refresh"));
                                if (duringRefresh_) duringRefresh_();
                              },
                              {},
                              {},
                              {}},
                             main_,
                             QLocale(QLocale::English, QLocale::UnitedStates),
                             &picker_};

 private:
  void log(const QAction* item) {
    QObject::connect(item, &QAction::enabledChanged, item, [this, item](bool enabled) {
      log_.append(item->objectName() + (enabled ? QStringLiteral(" on") : QStringLiteral(" off")));
    });
  }
};

const QStringList kItemsOff{QStringLiteral("AddLocal off"), QStringLiteral("EditOffline off")};
const QStringList kItemsOn{QStringLiteral("AddLocal on"), QStringLiteral("EditOffline on")};

TEST_F(OpenedWindows, BothMenuItemsAreDisabledWhileFoldersAreEdited) {
  addLocal([this](LocalLoc& dialog) {
    EXPECT_EQ(log_, kItemsOff);
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.parentWidget(), &main_);
  });
  EXPECT_EQ(log_, kItemsOff + kItemsOn);
}

TEST_F(OpenedWindows, BothMenuItemsStayDisabledUntilTheRescanHasEnded) {
  messages_.answers = {true};
  addLocal([](LocalLoc& dialog) { click(dialog.controls().OK); });
  EXPECT_EQ(log_, kItemsOff + QStringList(QStringLiteral("refresh")) + kItemsOn);
}

TEST_F(OpenedWindows, TheMainWindowCanBeUsedDuringTheRescan) {
  messages_.answers = {true};
  bool isBlocked = true;
  duringRefresh_ = [&] { isBlocked = QApplication::activeModalWidget() != nullptr; };
  addLocal([](LocalLoc& dialog) { click(dialog.controls().OK); });
  EXPECT_FALSE(isBlocked);
}

TEST_F(OpenedWindows, TheOfflineEditorLeavesTheMenuItemsAlone) {
  editOffline([this](LocalLoc&) { EXPECT_EQ(log_, QStringList()); });
  EXPECT_EQ(log_, QStringList());
}

TEST_F(OpenedWindows, TheModeStaysUntilTheNextOpening) {
  EXPECT_EQ(windows_.LocMode(), QString());
  addLocal([this](LocalLoc&) { EXPECT_EQ(windows_.LocMode(), QStringLiteral("Online")); });
  EXPECT_EQ(windows_.LocMode(), QStringLiteral("Online"));
  editOffline([this](LocalLoc&) { EXPECT_EQ(windows_.LocMode(), QStringLiteral("Offline")); });
  EXPECT_EQ(windows_.LocMode(), QStringLiteral("Offline"));
}

TEST_F(OpenedWindows, TheOfflineLayoutDoesNotReachIntoALaterOpening) {
  QRect description;
  QRect path;
  addLocal([&](LocalLoc& dialog) {
    description = dialog.controls().Desc->geometry();
    path = dialog.controls().LocalDataFolder->geometry();
  });
  editOffline([](LocalLoc&) {});
  addLocal([&](LocalLoc& dialog) {
    const LocalLocControls& all = dialog.controls();
    EXPECT_EQ(all.Desc->geometry(), description);
    EXPECT_EQ(all.LocalDataFolder->geometry(), path);
    EXPECT_TRUE(all.Desc->isVisible());
    EXPECT_TRUE(all.OK->isVisible());
    EXPECT_TRUE(all.OK->isEnabled());
    EXPECT_FALSE(all.SaveOffLine->isVisible());
    EXPECT_EQ(all.Desc->text(), QStringLiteral("Online"));
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Local File Search Locations"));
    click(all.GetListName);
  });
  EXPECT_EQ(picker_.askedForFolder.size(), 1U);
}

TEST_F(OpenedWindows, EverySourceEditorStartsFromTheTable) {
  addLocal([](LocalLoc& dialog) {
    dialog.controls().Online->selectRows({2});
    click(dialog.controls().LocDel);
  });
  addLocal([](LocalLoc& dialog) { EXPECT_EQ(dialog.entries().entries(), threeFolders()); });
}

TEST_F(OpenedWindows, UnloadingClosesTheSourceEditorWithoutSaving) {
  addLocal([this](LocalLoc& dialog) {
    dialog.controls().Online->selectRows({2});
    click(dialog.controls().LocDel);
    windows_.unloadSources();
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(online(), threeFolders());
  EXPECT_TRUE(messages_.asked.empty());
  EXPECT_EQ(log_, kItemsOff + kItemsOn);
}

TEST_F(OpenedWindows, UnloadingDuringTheRescanIsHarmless) {
  messages_.answers = {true};
  duringRefresh_ = [this] { windows_.unloadSources(); };
  addLocal([](LocalLoc& dialog) { click(dialog.controls().OK); });
  EXPECT_EQ(log_.last(), QStringLiteral("EditOffline on"));
}

TEST_F(OpenedWindows, UnloadingWithoutADialogDoesNothing) {
  windows_.unloadSources();
  addLocal([](LocalLoc&) {});
  windows_.unloadSources();
  EXPECT_EQ(log_, kItemsOff + kItemsOn);
}

TEST_F(OpenedWindows, TheOptionsAreModalOverTheMainWindow) {
  editOptions([this](ListOptions& dialog) {
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.parentWidget(), &main_);
  });
}

TEST_F(OpenedWindows, TheOptionsShowTheSettingsAsTheyAre) {
  editOptions([](ListOptions& dialog) {
    type(dialog.controls().Nic, QStringLiteral("bob"));
    click(dialog.controls().CancelButton);
  });
  state_.WebServer = QStringLiteral("tapes.example");
  editOptions([](ListOptions& dialog) {
    EXPECT_EQ(dialog.controls().Nic->text(), QStringLiteral("ann"));
    EXPECT_EQ(dialog.controls().Server->text(), QStringLiteral("tapes.example"));
  });
}

TEST_F(OpenedWindows, UnloadingClosesTheOptionsWithoutStoring) {
  editOptions([this](ListOptions& dialog) {
    type(dialog.controls().Nic, QStringLiteral("bob"));
    windows_.unloadOptions();
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
  windows_.unloadOptions();
}

TEST_F(OpenedWindows, TheAboutWindowIsModalOverTheMainWindow) {
  EXPECT_TRUE(duringModal<frmSplash>([this] { windows_.AboutMenu_Click(); },
                                     [this](frmSplash& splash) {
                                       EXPECT_TRUE(splash.isModal());
                                       EXPECT_EQ(splash.parentWidget(), &main_);
                                     }));
}

}  // namespace

}  // namespace quorvin::test
