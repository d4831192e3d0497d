// SPDX-License-Identifier: GPL-2.0-or-later

// The source editor for offline list files.
#include "editors/local_loc_fixture.h"

#include <QHeaderView>

namespace quorvin::test {

namespace {

class OfflineEditor : public LocalLocTest {
 protected:
  OfflineEditor() {
    haveOnline(threeFolders());
    haveOffline(twoLists());
  }

  static Entries twoLists() {
    return {{QStringLiteral("Offline"), QStringLiteral("E:\\Lists\\tapes.txt")},
            {QStringLiteral("Old disks"), QStringLiteral("E:\\Lists\\disks.txt")}};
  }
  void edit(const std::function<void(LocalLoc&)>& action) { inOfflineEditor(action); }
};

TEST_F(OfflineEditor, TitleLabelAndTheOneSaveButtonAreItsOwn) {
  edit([](LocalLoc& dialog) {
    const LocalLocControls& all = dialog.controls();
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Offline Search List files"));
    EXPECT_EQ(all.Label2->text(), QStringLiteral("Path to List file"));
    EXPECT_EQ(all.LocalDataFolder->accessibleName(), QStringLiteral("Path to List file"));
    EXPECT_TRUE(all.SaveOffLine->isVisible());
    EXPECT_EQ(all.SaveOffLine->text(), QStringLiteral("Save"));
    EXPECT_FALSE(all.OK->isVisible());
    EXPECT_FALSE(all.OK->isEnabled());
    EXPECT_FALSE(all.Label1->isVisible());
    EXPECT_FALSE(all.Desc->isVisible());
    EXPECT_EQ(dialog.focusWidget(), all.LocalDataFolder);
  });
}

TEST_F(OfflineEditor, ThePathBoxTakesTheRoomOfTheDescription) {
  LocalLoc plain(editing(), LocMode_, nullptr);
  showAndActivate(plain);
  const QRect description = plain.controls().Desc->geometry();
  const QRect path = plain.controls().LocalDataFolder->geometry();
  const int labelLeft = plain.controls().Label1->x();
  plain.hide();
  edit([&](LocalLoc& dialog) {
    const QRect widened = dialog.controls().LocalDataFolder->geometry();
    EXPECT_EQ(widened.width(), path.width() + (path.x() - description.x()));
    EXPECT_EQ(widened.x(), description.x());
    EXPECT_EQ(widened.right(), path.right());
    EXPECT_EQ(dialog.controls().Label2->x(), labelLeft);
  });
}

TEST_F(OfflineEditor, TheColumnHeadersStay) {
  edit([](LocalLoc& dialog) {
    EXPECT_EQ(dialog.entries().headerData(0, Qt::Horizontal).toString(), QStringLiteral("Description"));
    EXPECT_EQ(dialog.entries().headerData(1, Qt::Horizontal).toString(), QStringLiteral("Path"));
  });
}

TEST_F(OfflineEditor, ShowsOnlyOfflineEntriesAfterTheFolderEditor) {
  EXPECT_EQ(edited(), threeFolders());
  dialog().hide();
  edit([](LocalLoc& dialog) { EXPECT_EQ(dialog.entries().entries(), twoLists()); });
}

TEST_F(OfflineEditor, AnAddedEntryIsDescribedAsOffline) {
  edit([](LocalLoc& dialog) {
    type(dialog.controls().LocalDataFolder, QStringLiteral("E:\\Lists\\cds.txt"));
    QTest::keyClick(dialog.controls().LocalDataFolder, Qt::Key_Return);
    EXPECT_EQ(dialog.entries().entries().back(),
              (SourceEntry{QStringLiteral("Offline"), QStringLiteral("E:\\Lists\\cds.txt")}));
  });
}

TEST_F(OfflineEditor, AShortPathIsRefused) {
  edit([](LocalLoc& dialog) {
    type(dialog.controls().LocalDataFolder, QStringLiteral("E:"));
    click(dialog.controls().LocAdd);
    EXPECT_EQ(dialog.entries().entries(), twoLists());
  });
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("The Path must be at lease 3 characters long. (ex: C:\\)")});
}

TEST_F(OfflineEditor, APickedFileIsStoredAsItsFullPath) {
  picker_.pick = QStringLiteral("E:\\Lists\\cds.txt");
  edit([](LocalLoc& dialog) {
    type(dialog.controls().LocalDataFolder, QStringLiteral("E:\\Old"));
    click(dialog.controls().GetListName);
    EXPECT_EQ(dialog.controls().LocalDataFolder->text(), QStringLiteral("E:\\Lists\\cds.txt"));
    click(dialog.controls().LocAdd);
    click(dialog.controls().SaveOffLine);
  });
  ASSERT_EQ(picker_.askedForFile.size(), 1U);
  EXPECT_EQ(picker_.askedForFile[0].fileName, QStringLiteral("All Files"));
  EXPECT_EQ(picker_.askedForFile[0].defaultExtension, QStringLiteral(".txt"));
  EXPECT_EQ(picker_.askedForFile[0].initialFolder, QStringLiteral("E:\\Old"));
  EXPECT_TRUE(picker_.askedForFolder.empty());
  ASSERT_EQ(state_.OfflineSourceCount, 3);
  EXPECT_EQ(state_.OfflineSources.path(3), QStringLiteral("E:\\Lists\\cds.txt"));
}

TEST_F(OfflineEditor, ACancelledOrFailedPickerChangesNothing) {
  edit([this](LocalLoc& dialog) {
    type(dialog.controls().LocalDataFolder, QStringLiteral("E:\\Old"));
    click(dialog.controls().GetListName);
    picker_.fails = true;
    click(dialog.controls().GetListName);
    EXPECT_EQ(dialog.controls().LocalDataFolder->text(), QStringLiteral("E:\\Old"));
  });
  EXPECT_EQ(picker_.askedForFile.size(), 2U);
}

TEST_F(OfflineEditor, SaveStoresTheOfflineListAndAsksNothing) {
  edit([](LocalLoc& dialog) {
    dialog.controls().Online->selectRows({1});
    click(dialog.controls().MvUp);
    click(dialog.controls().SaveOffLine);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(offline(), (Entries{twoLists()[1], twoLists()[0]}));
  EXPECT_EQ(online(), threeFolders());
  EXPECT_TRUE(messages_.asked.empty());
  EXPECT_EQ(refreshes_, 0);
}

TEST_F(OfflineEditor, TheCloseBoxCancelAndEscapeDiscardTheEdits) {
  edit([](LocalLoc& dialog) {
    dialog.controls().Online->selectRows({1});
    click(dialog.controls().LocDel);
    ASSERT_NE(dialog.entries().entries(), twoLists());
    dialog.close();
    EXPECT_FALSE(dialog.isVisible());
  });
  edit([](LocalLoc& dialog) {
    dialog.controls().Online->selectRows({1});
    click(dialog.controls().LocDel);
    click(dialog.controls().Cancel);
    EXPECT_FALSE(dialog.isVisible());
  });
  edit([](LocalLoc& dialog) {
    dialog.controls().Online->selectRows({1});
    click(dialog.controls().LocDel);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(offline(), twoLists());
  EXPECT_EQ(online(), threeFolders());
}

}  // namespace

}  // namespace quorvin::test
