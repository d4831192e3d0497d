// Opening the source editor from the main window.
#include "editors/local_loc_fixture.h"

#include <QMainWindow>

namespace quorvin::test {

namespace {

class EditorOpening : public LocalLocTest {
 protected:
  EditorOpening() : opener_(editing(), &main_) { haveOnline(threeFolders()); }

  void addLocal(const std::function<void(LocalLoc&)>& action) {
    EXPECT_TRUE(duringModal<LocalLoc>([this] { opener_.AddLocal_Click(); }, action));
  }
  void editOffline(const std::function<void(LocalLoc&)>& action) {
    EXPECT_TRUE(duringModal<LocalLoc>([this] { opener_.EditOffline_Click(); }, action));
  }

  QMainWindow main_;
  LocalLocOpener opener_;
};

const QStringList kItemsOff{QStringLiteral("AddLocal off"), QStringLiteral("EditOffline off")};
const QStringList kItemsOn{QStringLiteral("AddLocal on"), QStringLiteral("EditOffline on")};

TEST_F(EditorOpening, BothMenuItemsAreDisabledWhileFoldersAreEdited) {
  addLocal([this](LocalLoc& dialog) {
    EXPECT_EQ(host_.log, kItemsOff);
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.parentWidget(), &main_);
  });
  EXPECT_EQ(host_.log, kItemsOff + kItemsOn);
}

TEST_F(EditorOpening, BothMenuItemsStayDisabledUntilTheRescanHasEnded) {
  messages_.answers = {true};
  addLocal([](LocalLoc& dialog) { click(dialog.controls().OK); });
  EXPECT_EQ(host_.log, kItemsOff + QStringList(QStringLiteral("refresh")) + kItemsOn);
}

TEST_F(EditorOpening, TheMainWindowCanBeUsedDuringTheRescan) {
  messages_.answers = {true};
  bool isBlocked = true;
  host_.duringRefresh = [&] { isBlocked = QApplication::activeModalWidget() != nullptr; };
  addLocal([](LocalLoc& dialog) { click(dialog.controls().OK); });
  EXPECT_FALSE(isBlocked);
}

TEST_F(EditorOpening, TheOfflineEditorLeavesTheMenuItemsAlone) {
  editOffline([this](LocalLoc&) { EXPECT_EQ(host_.log, QStringList()); });
  EXPECT_EQ(host_.log, QStringList());
}

TEST_F(EditorOpening, TheModeStaysUntilTheNextOpening) {
  EXPECT_EQ(opener_.LocMode(), QString());
  addLocal([this](LocalLoc&) { EXPECT_EQ(opener_.LocMode(), QStringLiteral("Online")); });
  EXPECT_EQ(opener_.LocMode(), QStringLiteral("Online"));
  editOffline([this](LocalLoc&) { EXPECT_EQ(opener_.LocMode(), QStringLiteral("Offline")); });
  EXPECT_EQ(opener_.LocMode(), QStringLiteral("Offline"));
}

TEST_F(EditorOpening, TheOfflineLayoutDoesNotReachIntoALaterOpening) {
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

TEST_F(EditorOpening, EveryOpeningStartsFromTheTable) {
  addLocal([](LocalLoc& dialog) {
    dialog.controls().Online->selectRow(2);
    click(dialog.controls().LocDel);
  });
  addLocal([](LocalLoc& dialog) { EXPECT_EQ(dialog.entries().entries(), threeFolders()); });
}

TEST_F(EditorOpening, UnloadingClosesTheDialogWithoutSaving) {
  addLocal([this](LocalLoc& dialog) {
    dialog.controls().Online->selectRow(2);
    click(dialog.controls().LocDel);
    opener_.unload();
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(online(), threeFolders());
  EXPECT_TRUE(messages_.asked.empty());
  EXPECT_EQ(host_.log, kItemsOff + kItemsOn);
}

TEST_F(EditorOpening, UnloadingDuringTheRescanIsHarmless) {
  messages_.answers = {true};
  host_.duringRefresh = [this] { opener_.unload(); };
  addLocal([](LocalLoc& dialog) { click(dialog.controls().OK); });
  EXPECT_EQ(host_.log.last(), QStringLiteral("EditOffline on"));
}

TEST_F(EditorOpening, UnloadingWithoutADialogDoesNothing) {
  opener_.unload();
  addLocal([](LocalLoc&) {});
  opener_.unload();
  EXPECT_EQ(host_.log, kItemsOff + kItemsOn);
}

}  // namespace

}  // namespace quorvin::test
