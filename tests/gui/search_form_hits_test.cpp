// SPDX-License-Identifier: GPL-2.0-or-later

// Acting on hits with the mouse and the keys of the real window.
#include "gui/window_hits_fixture.h"
#include "support/eventually.h"

#include <QApplication>

namespace quorvin::test {

namespace {

TEST_F(WindowHits, TheMenuHoldsItsItemsInOrderWithNamesAndCaptions) {
  QStringList items;
  for (const QAction* item : menu()->actions().mid(0, 4)) {
    items.append(item->objectName() + u'=' + item->text());
  }
  EXPECT_EQ(menu()->objectName(), QStringLiteral("ItemMenu"));
  EXPECT_EQ(menu()->title(), QStringLiteral("PopUP"));
  EXPECT_EQ(items.join(u'\n'), QStringLiteral("CtLaunch=O&pen\n"
                                              "CTOpFolder=Open Containing &Folder\n"
                                              "ShowPreview=Preview Image\n"
                                              "CTQueue=Enqueue (Winamp)"));
  EXPECT_EQ(menu()->defaultAction(), form().itemMenu().CtLaunch);
}

TEST_F(WindowHits, ARightClickOnAPictureOffersThePreview) {
  EXPECT_EQ(menuFor(QStringLiteral("Holiday.JPG")).mid(0, 4).join(u'|'),
            QStringLiteral("O&pen|Open Containing &Folder|Preview Image|&Copy"));
}

TEST_F(WindowHits, ARightClickOnMusicOffersTheQueue) {
  EXPECT_EQ(menuFor(QStringLiteral("song.MP3")).mid(0, 4).join(u'|'),
            QStringLiteral("O&pen|Open Containing &Folder|Enqueue (Winamp)|&Copy"));
}

TEST_F(WindowHits, ARightClickOnAnotherFileOffersNeither) {
  EXPECT_EQ(menuFor(QStringLiteral("notes.txt")).mid(0, 3).join(u'|'),
            QStringLiteral("O&pen|Open Containing &Folder|&Copy"));
}

TEST_F(WindowHits, TheMenuIsMadeAnewForEachHit) {
  showFiles({QStringLiteral("a.jpg"), QStringLiteral("b.mp3")});
  rightClick(0);
  menu()->close();
  rightClick(1);
  EXPECT_TRUE(form().itemMenu().CTQueue->isVisible());
  EXPECT_FALSE(form().itemMenu().ShowPreview->isVisible());
}

TEST_F(WindowHits, TheMenuComesUpAtTheMouse) {
  showFiles({QStringLiteral("notes.txt")});
  rightClick(0);
  EXPECT_EQ(menu()->pos(), list()->viewport()->mapToGlobal(middleOf(0)));
}

TEST_F(WindowHits, TheMenuKeyAndShiftF10OpenTheMenuToo) {
  showFiles({QStringLiteral("a.txt"), QStringLiteral("b.txt")});
  click(1);
  pressMenuKey();
  EXPECT_TRUE(menu()->isVisible());
  EXPECT_GT(menu()->pos().y(), list()->viewport()->mapToGlobal(middleOf(1)).y());
  menu()->close();
  QTest::keyClick(list(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(menu()->isVisible());
}

TEST_F(WindowHits, TheFirstItemOpensTheHitByKeyAlone) {
  showFiles({QStringLiteral("a.txt"), QStringLiteral("b.txt")});
  click(1);
  pressMenuKey();
  QTest::keyClick(menu(), Qt::Key_P);
  EXPECT_EQ(shell_.calls, std::vector{openCall(QStringLiteral("b.txt"))});
}

TEST_F(WindowHits, ADoubleClickOpensTheFileOnce) {
  showFiles({QStringLiteral("a.txt"), QStringLiteral("b.txt")});
  doubleClick(1);
  EXPECT_EQ(shell_.calls, std::vector{openCall(QStringLiteral("b.txt"))});
}

TEST_F(WindowHits, EnterOpensTheFileOnceAndDoesNotSearch) {
  showFiles({QStringLiteral("a.txt"), QStringLiteral("b.txt")});
  click(0);
  QTest::keyClick(list(), Qt::Key_Return);
  EXPECT_EQ(shell_.calls, std::vector{openCall(QStringLiteral("a.txt"))});
  EXPECT_EQ(list()->currentSelectedRow(), 0);
}

TEST_F(WindowHits, ItemsOfTheMenuActOnTheSelectedHit) {
  showFiles({QStringLiteral("a.mp3"), QStringLiteral("b.mp3")});
  click(1);
  form().itemMenu().CtLaunch->trigger();
  form().itemMenu().CTOpFolder->trigger();
  form().itemMenu().CTQueue->trigger();
  const QString file = files_.pathOf(QStringLiteral("b.mp3"));
  EXPECT_EQ(shell_.calls, (std::vector{openCall(QStringLiteral("b.mp3")),
                                       QStringLiteral("open folder %1 at b.mp3").arg(files_.path()),
                                       QStringLiteral("enqueue %1 in %2").arg(file, files_.path())}));
}

TEST_F(WindowHits, ShowPreviewHandsFolderAndNameToThePreview) {
  showFiles({QStringLiteral("a.jpg")});
  QString shown;
  form().setPreviewOpener([&](const QString& folder, const QString& name) { shown = folder + u'|' + name; });
  click(0);
  form().itemMenu().ShowPreview->trigger();
  EXPECT_EQ(shown, files_.path() + QStringLiteral("|a.jpg"));
}

TEST_F(WindowHits, AFaultOfThePreviewIsReported) {
  showFiles({QStringLiteral("a.jpg")});
  form().setPreviewOpener(
      [](const QString&, const QString&) { throw RuntimeFault(FaultNumber::FileNotFound); });
  click(0);
  form().itemMenu().ShowPreview->trigger();
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(messages_.informed[0],
            QStringLiteral("Run-time error '53': File not found\r\n\r\nThis happened while showing \"%1\".")
                .arg(files_.pathOf(QStringLiteral("a.jpg"))));
}

TEST_F(WindowHits, AMessageSaysWhyAPictureCannotBeShown) {
  showFiles({QStringLiteral("a.jpg")});
  click(0);
  form().itemMenu().ShowPreview->trigger();
  ASSERT_TRUE(eventually([this] { return !messages_.informed.empty(); }));
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("Run-time error '5': %1 cannot be shown: it is not a bitmap, icon, "
                                       "metafile, JPEG or GIF picture.\r\n\r\n"
                                       "This happened while loading the picture %1.")
                            .arg(files_.pathOf(QStringLiteral("a.jpg")))});
}

TEST_F(WindowHits, WithoutAPreviewAMessageSaysSo) {
  form().setPreviewOpener({});
  showFiles({QStringLiteral("a.jpg")});
  click(0);
  form().itemMenu().ShowPreview->trigger();
  EXPECT_EQ(messages_.informed, std::vector{QStringLiteral("The picture preview is not available.")});
}

TEST_F(WindowHits, HitsOfTheMainDataFileAndOfOfflineListingsOpenNothing) {
  files_.writeFile(QStringLiteral("a.txt"), "x");
  const QByteArray listing = blockHead("Music", listed(files_.path())) + entryLine("a.txt");
  addOnlineFolder(QStringLiteral("Music"), files_.path());
  folder_.writeFile(QStringLiteral("Music.txt"), "");
  setMainDataFile(listing);
  addOfflineSource(QStringLiteral("cd.lst"), listing);
  find(QStringLiteral("a.txt"));
  ASSERT_EQ(rows(), 2);
  for (int row = 0; row < 2; ++row) {
    rightClick(row);
    EXPECT_FALSE(menu()->isVisible());
    doubleClick(row);
    QTest::keyClick(list(), Qt::Key_Return);
  }
  EXPECT_TRUE(shell_.calls.empty());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(WindowHits, AFileDeletedAfterIndexingIsSilentlyIgnored) {
  showFiles({QStringLiteral("a.mp3")});
  QFile::remove(files_.pathOf(QStringLiteral("a.mp3")));
  rightClick(0);
  EXPECT_FALSE(menu()->isVisible());
  doubleClick(0);
  form().itemMenu().CTQueue->trigger();
  EXPECT_TRUE(shell_.calls.empty());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(WindowHits, ANameCutInTheListingIsStillOpened) {
  const QString name = QString(70, u'n') + QStringLiteral(".mp3");
  showFiles({name});
  ASSERT_EQ(cell(0, HitColumn::Name).size(), 65);
  doubleClick(0);
  EXPECT_EQ(shell_.calls, std::vector{openCall(name)});
}

TEST_F(WindowHits, WithoutAnyRowNothingHappens) {
  form();
  pressMenuKey();
  QTest::keyClick(list(), Qt::Key_Return);
  form().itemMenu().CtLaunch->trigger();
  EXPECT_FALSE(menu()->isVisible());
  EXPECT_TRUE(shell_.calls.empty());
}

}  // namespace

}  // namespace quorvin::test
