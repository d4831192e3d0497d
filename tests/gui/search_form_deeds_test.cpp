// SPDX-License-Identifier: GPL-2.0-or-later

// What can be done with the selected hits, whether their files are there or not.
#include "gui/keys.h"
#include "gui/window_hits_fixture.h"

#include <QMimeData>

namespace quorvin::test {

namespace {

class SelectedHits : public WindowHits {
 protected:
  /// Hits of this name from a main data file, whose disk is not here.
  void showFarHits(int count) {
    setMainDataFile(listingOf("DISK_7", count, "tune"));
    find(QStringLiteral("tune"));
    ASSERT_EQ(rows(), count);
  }
  void selectAll() {
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_A, Qt::ControlModifier);
  }
  /// Chooses an item of the menu bar's menu by its letter.
  void choose(Qt::Key letter) {
    activate(form());
    press(Qt::Key_I, Qt::AltModifier);
    press(letter);
  }
  static QStringList numbered(int count) {
    QStringList names;
    for (int number = 1; number <= count; ++number) names.append(QStringLiteral("song %1.txt").arg(number));
    return names;
  }
};

TEST_F(SelectedHits, TheMenuBarsMenuHoldsItsItemsInOrder) {
  QStringList items;
  for (const QAction* item : form().menus().HitsMenu->actions()) {
    if (!item->isSeparator()) items.append(item->objectName() + u'=' + item->text());
  }
  EXPECT_EQ(items.join(u'\n'), QStringLiteral("OpenHits=&Open\n"
                                              "ShowInFolder=Show in &Folder\n"
                                              "WhichDisk=&Which Disk?\n"
                                              "FetchPlan=Fetch P&lan...\n"
                                              "CopyRows=&Copy\n"
                                              "CopyNames=Copy &Names\n"
                                              "CopyPaths=Copy Full P&ath\n"
                                              "ExportSelected=&Export Selected...\n"
                                              "HitProperties=P&roperties"));
}

TEST_F(SelectedHits, ItsItemsCanBeChosenOnlyWhileSomethingIsSelected) {
  showFiles(numbered(2));
  QMenu& bar = *form().menus().HitsMenu;
  list()->clearSelection();
  press(Qt::Key_I, Qt::AltModifier);
  ASSERT_TRUE(bar.isVisible());
  EXPECT_FALSE(form().itemMenu().CopyRows->isEnabled());
  bar.hide();
  EXPECT_TRUE(form().itemMenu().CopyRows->isEnabled()) << "its key works without the menu";
  click(0);
  press(Qt::Key_I, Qt::AltModifier);
  EXPECT_TRUE(form().itemMenu().CopyRows->isEnabled());
  bar.hide();
}

TEST_F(SelectedHits, TheCurrentRowIsMeantWhereNoneIsSelectedAndTheListHasTheKeyboard) {
  showFiles(numbered(2));
  tabTo("HitList");
  list()->selectionModel()->setCurrentIndex(list()->model()->index(1, 0), QItemSelectionModel::NoUpdate);
  ASSERT_FALSE(list()->selectionModel()->hasSelection());
  choose(Qt::Key_O);
  EXPECT_EQ(shell_.calls, std::vector{openCall(QStringLiteral("song 2.txt"))});
}

TEST_F(SelectedHits, TenAreOpenedUnasked) {
  showFiles(numbered(10));
  selectAll();
  choose(Qt::Key_O);
  EXPECT_EQ(shell_.calls.size(), 10U);
  EXPECT_EQ(shell_.calls.front(), openCall(QStringLiteral("song 1.txt")));
  EXPECT_EQ(shell_.calls.back(), openCall(QStringLiteral("song 10.txt")));
  EXPECT_TRUE(messages_.asked.empty());
}

TEST_F(SelectedHits, ElevenAreOpenedWhenTheUserAgrees) {
  showFiles(numbered(11));
  selectAll();
  messages_.answers = {false, true};
  choose(Qt::Key_O);
  EXPECT_TRUE(shell_.calls.empty());
  choose(Qt::Key_O);
  EXPECT_EQ(shell_.calls.size(), 11U);
  const QString question = QStringLiteral("11 hits are selected. Open all of them?");
  EXPECT_EQ(messages_.asked, (std::vector{question, question}));
}

TEST_F(SelectedHits, MoreThanAThousandAreNotOpened) {
  showFarHits(1001);
  selectAll();
  choose(Qt::Key_O);
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("1,001 hits are selected. At most 1,000 can be opened at once.")});
}

TEST_F(SelectedHits, EnterAndTheMenuOfAHitOpenAllThatAreSelected) {
  showFiles(numbered(3));
  click(0);
  click(2, Qt::ControlModifier);
  QTest::keyClick(list(), Qt::Key_Return);
  form().itemMenu().CtLaunch->trigger();
  const std::vector<QString> both{openCall(QStringLiteral("song 1.txt")),
                                  openCall(QStringLiteral("song 3.txt"))};
  EXPECT_EQ(shell_.calls, (std::vector{both[0], both[1], both[0], both[1]}));
}

TEST_F(SelectedHits, ADoubleClickOnOneOfManyOpensThatOneAlone) {
  showFiles(numbered(3));
  selectAll();
  doubleClick(1);
  EXPECT_EQ(shell_.calls, std::vector{openCall(QStringLiteral("song 2.txt"))});
}

TEST_F(SelectedHits, OpeningSaysHowManyAreNotThere) {
  showFiles(numbered(3));
  QFile::remove(files_.pathOf(QStringLiteral("song 2.txt")));
  selectAll();
  choose(Qt::Key_O);
  EXPECT_EQ(shell_.calls.size(), 2U);
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("1 of 3 could not be found on a connected drive.")});
}

TEST_F(SelectedHits, AFaultEndsTheOpeningAndIsToldOnce) {
  showFiles(numbered(3));
  shell_.fault = RuntimeFault(FaultNumber::FileNotFound);
  selectAll();
  choose(Qt::Key_O);
  EXPECT_EQ(shell_.calls.size(), 1U);
  EXPECT_EQ(messages_.informed, std::vector{QStringLiteral("Launch Error: 53File not found")});
}

TEST_F(SelectedHits, ShowInFolderOpensTheFolderOrSaysThatItIsNotThere) {
  showFiles(numbered(1));
  click(0);
  choose(Qt::Key_F);
  EXPECT_EQ(shell_.calls, std::vector{QStringLiteral("open folder %1 at song 1.txt").arg(files_.path())});
  QFile::remove(files_.pathOf(QStringLiteral("song 1.txt")));
  choose(Qt::Key_F);
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("1 of 1 could not be found on a connected drive.")});
}

TEST_F(SelectedHits, NamesAreCopiedByControlAltC) {
  showFiles(numbered(3));
  click(0);
  click(1, Qt::ShiftModifier);
  QTest::keyClick(list(), Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(clipboard(), QStringLiteral("song 1.txt\nsong 2.txt"));
}

TEST_F(SelectedHits, WhichDiskNamesTheVolumeItsListingAndWhereTheFileIsOnIt) {
  showFarHits(1);
  click(0);
  choose(Qt::Key_W);
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("The file is on the volume \"DISK_7\". Insert that disk to get at it."
                                       "\r\n\r\nIn the catalogue: \\Music\\tune 1.mp3\r\nListing: ") +
                        folder_.pathOf(QStringLiteral("main.lst"))});
}

/// Dragging, up to where the window system takes over.
class DraggedHits : public SelectedHits {
 protected:
  DraggedHits() {
    form().setDragStarter([this](std::unique_ptr<QMimeData> data) { dragged_ = std::move(data); });
  }
  /// Presses on a row, moves far enough down, and lets go.
  void drag(int row) {
    const QPoint start = middleOf(row);
    QTest::mousePress(list()->viewport(), Qt::LeftButton, {}, start);
    for (int step = 1; step <= 3; ++step) {
      const QPoint place = start + QPoint(0, step * QApplication::startDragDistance());
      QMouseEvent move(QEvent::MouseMove, place, list()->viewport()->mapToGlobal(place), Qt::NoButton,
                       Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(list()->viewport(), &move);
    }
    QTest::mouseRelease(list()->viewport(), Qt::LeftButton, {}, start);
  }

  std::unique_ptr<QMimeData> dragged_;
};

TEST_F(DraggedHits, AreFilesWhereTheFilesAreThereAndTextInAnyCase) {
  showFiles(numbered(3));
  QFile::remove(files_.pathOf(QStringLiteral("song 2.txt")));
  selectAll();
  drag(1);
  ASSERT_NE(dragged_, nullptr);
  EXPECT_EQ(dragged_->urls(),
            (QList<QUrl>{QUrl::fromLocalFile(files_.pathOf(QStringLiteral("song 1.txt"))),
                         QUrl::fromLocalFile(files_.pathOf(QStringLiteral("song 3.txt")))}));
  EXPECT_EQ(dragged_->text(), files_.pathOf(QStringLiteral("song 1.txt")) + QStringLiteral("\nMusic:") +
                                  QString::fromUtf8(listed(files_.path())) + QStringLiteral("song 2.txt\n") +
                                  files_.pathOf(QStringLiteral("song 3.txt")));
}

TEST_F(DraggedHits, FromElsewhereAreTextOnly) {
  showFarHits(1);
  click(0);
  drag(0);
  ASSERT_NE(dragged_, nullptr);
  EXPECT_FALSE(dragged_->hasUrls());
  EXPECT_EQ(dragged_->text(), QStringLiteral("DISK_7:\\Music\\tune 1.mp3"));
}

TEST_F(DraggedHits, AreAtMostAHundredThousandAndTheStatusLineSaysSo) {
  showFarHits(100'001);
  selectAll();
  drag(0);
  EXPECT_EQ(dragged_, nullptr);
  EXPECT_EQ(list()->selectionModel()->selectedRows().size(), 100'001);
  EXPECT_TRUE(form().status().text().contains(
      QStringLiteral("At most 100,000 hits can be dragged at once. Nothing was dragged.")))
      << form().status().text().toStdString();
}

TEST_F(DraggedHits, PressingOnARowThatIsNotSelectedSelectsRowsAsBefore) {
  showFiles(numbered(3));
  list()->clearSelection();
  drag(0);
  EXPECT_EQ(dragged_, nullptr);
  EXPECT_GE(list()->selectionModel()->selectedRows().size(), 2);
}

TEST_F(DraggedHits, AClickOnOneOfManySelectsThatOneAlone) {
  showFiles(numbered(3));
  selectAll();
  click(1);
  EXPECT_EQ(dragged_, nullptr);
  EXPECT_EQ(list()->selectionModel()->selectedRows().size(), 1);
}

}  // namespace

}  // namespace quorvin::test
