// SPDX-License-Identifier: GPL-2.0-or-later

// What is dropped, and what becomes a source of it.
#include "editors/source_drops.h"

#include "editors/local_loc_fixture.h"
#include "support/eventually.h"
#include "support/temporary_folder.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace quorvin::test {

namespace {

class Dropped : public testing::Test {
 protected:
  DroppedSources of(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    return droppedSources(data);
  }
  TemporaryFolder folder_;
};

TEST_F(Dropped, AreFoldersWithASeparatorAndFiles) {
  const QString listing = folder_.writeFile(QStringLiteral("a #1.txt"), "x");
  folder_.makeFolder(QStringLiteral("inner"));
  const DroppedSources dropped = of({QUrl::fromLocalFile(listing), QUrl::fromLocalFile(folder_.path()),
                                     QUrl::fromLocalFile(folder_.pathOf(QStringLiteral("inner")))});
  EXPECT_EQ(dropped.files, QStringList(listing));
  EXPECT_EQ(dropped.folders, (QStringList{folder_.path(), folder_.pathOf(QStringLiteral("inner/"))}));
}

TEST_F(Dropped, WhatIsNotThereOrElsewhereIsLeftOut) {
  EXPECT_TRUE(of({QUrl(QStringLiteral("http://host/a.txt")), QUrl::fromLocalFile(QStringLiteral("/no/such")),
                  QUrl::fromLocalFile(QStringLiteral("/dev/null"))})
                  .isEmpty());
}

/// Drops onto the real editors.
class EditorDrops : public LocalLocTest {
 protected:
  EditorDrops() { pathStyle_ = kUnixPaths; }
  static bool drop(QWidget& target, const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &event);
    QCoreApplication::processEvents();
    return event.isAccepted();
  }
  QUrl url(const QString& name) const { return QUrl::fromLocalFile(files_.pathOf(name)); }

  TemporaryFolder files_;
};

TEST_F(EditorDrops, FoldersAreAppendedAndDuplicatesTold) {
  files_.makeFolder(QStringLiteral("Music"));
  EXPECT_TRUE(drop(dialog(), {url(QStringLiteral("Music")), url(QStringLiteral("Music"))}));
  EXPECT_EQ(edited(), (Entries{{QStringLiteral("Music"), files_.pathOf(QStringLiteral("Music/"))}}));
  EXPECT_EQ(messages_.informed, std::vector{files_.pathOf(QStringLiteral("Music/")) +
                                            QStringLiteral(" is in the list already.")});
}

TEST_F(EditorDrops, APathBoxTakesThemToo) {
  files_.makeFolder(QStringLiteral("Music"));
  EXPECT_TRUE(drop(*controls().LocalDataFolder, {url(QStringLiteral("Music"))}));
  EXPECT_EQ(edited().size(), 1U);
  EXPECT_EQ(controls().LocalDataFolder->text(), QString());
}

TEST_F(EditorDrops, FilesAmongFoldersAreSentToTheOtherEditor) {
  files_.writeFile(QStringLiteral("cd.txt"), "x");
  EXPECT_TRUE(drop(dialog(), {url(QStringLiteral("cd.txt"))}));
  EXPECT_EQ(edited(), Entries());
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("Listing files are added in File, Add/Edit Offline List files.")});
}

TEST_F(EditorDrops, TextIsLeftToTheBoxes) {
  QMimeData data;
  data.setText(QStringLiteral("abc"));
  QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(controls().Desc, &enter);
  QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(controls().Desc, &event);
  EXPECT_TRUE(controls().Desc->text().contains(QStringLiteral("abc")));
}

TEST_F(EditorDrops, ListingsAreAppendedInTheOfflineEditor) {
  files_.writeFile(QStringLiteral("a.txt"), "x");
  files_.writeFile(QStringLiteral("b.txt"), "x");
  inOfflineEditor([this](LocalLoc& editor) {
    EXPECT_TRUE(drop(editor, {url(QStringLiteral("a.txt")), url(QStringLiteral("b.txt"))}));
    EXPECT_EQ(editor.entries().entries(),
              (Entries{{QStringLiteral("Offline"), files_.pathOf(QStringLiteral("a.txt"))},
                       {QStringLiteral("Offline"), files_.pathOf(QStringLiteral("b.txt"))}}));
  });
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(EditorDrops, SeveralListingsOfOnePickAreAppended) {
  picker_.picks = {QStringLiteral("/l/a.txt"), QStringLiteral("/l/b.txt")};
  inOfflineEditor([](LocalLoc& editor) {
    click(editor.controls().GetListName);
    EXPECT_EQ(editor.entries().entries(), (Entries{{QStringLiteral("Offline"), QStringLiteral("/l/a.txt")},
                                                   {QStringLiteral("Offline"), QStringLiteral("/l/b.txt")}}));
    EXPECT_EQ(editor.controls().LocalDataFolder->text(), QString());
  });
}

/// With dialogs that know only single folders.
TEST_F(EditorDrops, TwoFoldersAreAddedOneAfterTheOtherWithOneClickEach) {
  picker_.pick = QStringLiteral("/m/old/Music");
  click(controls().AddSources);
  picker_.pick = QStringLiteral("/m/old/Films");
  click(controls().AddSources);
  EXPECT_EQ(edited(), (Entries{{QStringLiteral("Music"), QStringLiteral("/m/old/Music/")},
                               {QStringLiteral("Films"), QStringLiteral("/m/old/Films/")}}));
  ASSERT_EQ(picker_.askedForFolder.size(), 2U);
  EXPECT_EQ(picker_.askedForFolder[0].initialFolder, QString());
  EXPECT_EQ(picker_.askedForFolder[1].initialFolder, QStringLiteral("/m/old")) << "the next one is beside it";
  EXPECT_EQ(controls().LocalDataFolder->text(), QString());
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("Online"));
  EXPECT_FALSE(controls().Notice->isVisible());
}

TEST_F(EditorDrops, AddFoldersStartsInTheFolderThatIsTyped) {
  type(controls().LocalDataFolder, QStringLiteral("/typed/"));
  picker_.pick = std::nullopt;
  click(controls().AddSources);
  EXPECT_EQ(picker_.askedForFolder[0].initialFolder, QStringLiteral("/typed/"));
  EXPECT_TRUE(edited().empty());
}

TEST_F(EditorDrops, AddFoldersTakesSeveralAndCanBeTakenBack) {
  picker_.picks = {QStringLiteral("/m/Music"), QStringLiteral("/m/Films")};
  QTest::keyClick(&dialog(), Qt::Key_D, Qt::AltModifier);
  EXPECT_EVENTUALLY(edited().size() == 2U);
  controls().Undo->trigger();
  EXPECT_TRUE(edited().empty());
}

/// Several can be picked in every dialog of the program's own, and in none of most desktops.
TEST_F(EditorDrops, AddFoldersAsksForSeveralAndBrowseInTheWayOfTheDesktop) {
  click(controls().AddSources);
  click(controls().GetListName);
  ASSERT_EQ(picker_.askedForFolder.size(), 2U);
  EXPECT_TRUE(picker_.askedForFolder[0].isForSeveral);
  EXPECT_FALSE(picker_.askedForFolder[1].isForSeveral);
}

TEST_F(EditorDrops, OneListingOfAPickIsAddedAtOnceByAddFiles) {
  picker_.pick = QStringLiteral("/l/a.txt");
  inOfflineEditor([this](LocalLoc& editor) {
    EXPECT_EQ(editor.controls().AddSources->text(), QStringLiteral("Add &Files..."));
    click(editor.controls().AddSources);
    EXPECT_EQ(editor.entries().entries(), (Entries{{QStringLiteral("Offline"), QStringLiteral("/l/a.txt")}}));
    click(editor.controls().AddSources);
    EXPECT_EQ(picker_.askedForFile.back().initialFolder, QStringLiteral("/l"));
  });
  EXPECT_EQ(messages_.informed, std::vector{QStringLiteral("/l/a.txt is in the list already.")});
}

TEST_F(EditorDrops, APickedFolderThatIsNotInTheListYetIsSaidToBeMissingThereUntilItIsAdded) {
  picker_.pick = QStringLiteral("/m/Music");
  click(controls().GetListName);
  EXPECT_TRUE(controls().Notice->isVisible());
  EXPECT_EQ(controls().Notice->toolTip(), QStringLiteral("Not in the list yet: Add puts the folder there."));
  click(controls().LocAdd);
  EXPECT_FALSE(controls().Notice->isVisible());
}

TEST_F(EditorDrops, SeveralFoldersOfOnePickAreAppendedUnderTheirNames) {
  picker_.picks = {QStringLiteral("/m/Music"), QStringLiteral("/m/Films")};
  click(controls().GetListName);
  EXPECT_EQ(edited(), (Entries{{QStringLiteral("Music"), QStringLiteral("/m/Music/")},
                               {QStringLiteral("Films"), QStringLiteral("/m/Films/")}}));
  EXPECT_EQ(controls().LocalDataFolder->text(), QString());
  EXPECT_TRUE(messages_.informed.empty());
}

}  // namespace

}  // namespace quorvin::test
