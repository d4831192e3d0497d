// SPDX-License-Identifier: GPL-2.0-or-later

// Edits of the source editor that are taken back, and what its rows say of the sources.
#include "editors/local_loc_fixture.h"
#include "support/eventually.h"
#include "support/temporary_folder.h"

#include <QSemaphore>

#include <atomic>

namespace quorvin::test {

namespace {

class EditsTakenBack : public LocalLocTest {
 protected:
  EditsTakenBack() { haveOnline(threeFolders()); }

  void undo() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier); }
  void redo() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  }
};

TEST_F(EditsTakenBack, ByTheKeyboardOneAfterAnother) {
  const Entries all = threeFolders();
  select(2);
  click(controls().LocDel);
  click(controls().LocDel);
  EXPECT_EQ(edited(), Entries{all[2]});
  controls().Online->setFocus();
  undo();
  EXPECT_EQ(edited(), (Entries{all[0], all[2]}));
  undo();
  EXPECT_EQ(edited(), all);
  EXPECT_EQ(selected(), 2);
  undo();
  EXPECT_EQ(edited(), all);
  redo();
  EXPECT_EQ(edited(), (Entries{all[0], all[2]}));
}

TEST_F(EditsTakenBack, MovesOfSeveralRowsAreOneEdit) {
  const Entries all = threeFolders();
  dialog();
  controls().Online->selectRows({0, 1});
  click(controls().MvDn);
  EXPECT_EQ(edited(), (Entries{all[2], all[0], all[1]}));
  controls().Undo->trigger();
  EXPECT_EQ(edited(), all);
  EXPECT_EQ(controls().Online->selectedRows(), (std::vector{0, 1}));
}

TEST_F(EditsTakenBack, AddedEntriesAndWhatWasTypedAreKeptApart) {
  add(QStringLiteral("New"), QStringLiteral("C:\\"));
  EXPECT_EQ(edited().size(), 4U);
  type(controls().Desc, QStringLiteral("Other"));
  undo();
  EXPECT_EQ(edited().size(), 4U);
  EXPECT_NE(controls().Desc->text(), QStringLiteral("Other"));
  controls().Desc->setText(QStringLiteral("set"));
  undo();
  EXPECT_EQ(edited(), threeFolders());
}

TEST_F(EditsTakenBack, OnlyWhatCanBeTakenBackIsOffered) {
  dialog();
  EXPECT_FALSE(controls().Undo->isEnabled());
  EXPECT_FALSE(controls().Redo->isEnabled());
  select(1);
  // Nothing is above the first row.
  QTest::keyClick(controls().Online, Qt::Key_Up, Qt::AltModifier);
  EXPECT_FALSE(controls().Undo->isEnabled());
  click(controls().MvDn);
  EXPECT_TRUE(controls().Undo->isEnabled());
  controls().Undo->trigger();
  EXPECT_FALSE(controls().Undo->isEnabled());
  EXPECT_TRUE(controls().Redo->isEnabled());
}

TEST_F(EditsTakenBack, SavingStoresWhatIsLeft) {
  select(1);
  click(controls().LocDel);
  controls().Undo->trigger();
  click(controls().OK);
  EXPECT_EQ(online(), threeFolders());
}

class SourceRowsSay : public LocalLocTest {
 protected:
  SourceRowsSay() {
    pathStyle_ = kUnixPaths;
    state_.LocalFolder = folder_.path();
    folder_.makeFolder(QStringLiteral("Music"));
    haveOnline({{QStringLiteral("Music"), folder_.pathOf(QStringLiteral("Music/"))},
                {QStringLiteral("Away"), folder_.pathOf(QStringLiteral("Away/"))}});
  }

  static QString said(LocalLoc& dialog, int row) {
    return dialog.entries().data(dialog.entries().index(row, 1), kSourceStatusRole).toString();
  }
  SourceEditing counting(const CountEntries& count) {
    SourceEditing counted = editing();
    counted.countEntries = count;
    counted.lookers = &pool_;
    counted.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    return counted;
  }

  TemporaryFolder folder_;
  QThreadPool pool_;
};

TEST_F(SourceRowsSay, WhetherTheFolderIsThereAndWhatItsListingHas) {
  folder_.writeFile(QStringLiteral("Music.txt"), "x");
  LocalLoc dialog(counting([](const QString&) { return std::optional<std::int64_t>(1234); }), LocMode_,
                  nullptr);
  showAndActivate(dialog);
  EXPECT_EVENTUALLY(said(dialog, 0) == QStringLiteral("1,234 entries, today"));
  EXPECT_EVENTUALLY(said(dialog, 1) == QStringLiteral("not there"));
  const QModelIndex away = dialog.entries().index(1, 0);
  EXPECT_EQ(away.data(Qt::AccessibleDescriptionRole).toString(),
            QStringLiteral("The folder is not there. It has no listing yet; a rescan makes it."));
  EXPECT_EQ(away.data(Qt::ToolTipRole).toString(),
            QStringLiteral("<p style='white-space:pre'>Away\nThe folder is not there.\nIt has no listing "
                           "yet; a rescan makes it.</p>"));
}

TEST_F(SourceRowsSay, TheSameOfListingFiles) {
  const QString list = folder_.writeFile(QStringLiteral("cd.txt"), "x");
  haveOffline({{QStringLiteral("Offline"), list},
               {QStringLiteral("Offline"), folder_.pathOf(QStringLiteral("gone.txt"))}});
  LocalLoc dialog(counting({}), LocMode_, nullptr);
  dialog.arrangeForOffline();
  showAndActivate(dialog);
  EXPECT_EVENTUALLY(said(dialog, 0) == QStringLiteral("today"));
  EXPECT_EVENTUALLY(said(dialog, 1) == QStringLiteral("not there"));
}

TEST_F(SourceRowsSay, SomethingOfAnAddedSourceToo) {
  LocalLoc dialog(counting({}), LocMode_, nullptr);
  showAndActivate(dialog);
  type(dialog.controls().Desc, QStringLiteral("All"));
  type(dialog.controls().LocalDataFolder, folder_.path());
  click(dialog.controls().LocAdd);
  EXPECT_EVENTUALLY(said(dialog, 2) == QStringLiteral("not listed yet"));
}

TEST_F(SourceRowsSay, NothingWhileADriveDoesNotAnswerAndTheDialogIsUsedMeanwhile) {
  folder_.writeFile(QStringLiteral("Music.txt"), "x");
  QSemaphore answer;
  std::atomic<bool> isAsked = false;
  {
    LocalLoc dialog(counting([&](const QString&) {
                      isAsked = true;
                      answer.acquire();
                      return std::optional<std::int64_t>();
                    }),
                    LocMode_, nullptr);
    showAndActivate(dialog);
    EXPECT_EVENTUALLY(isAsked.load());
    EXPECT_EQ(said(dialog, 0), QString());
    dialog.controls().Online->selectRows({0});
    click(dialog.controls().LocDel);
    EXPECT_EQ(dialog.entries().rowCount(), 1);
    click(dialog.controls().Cancel);
    EXPECT_FALSE(dialog.isVisible());
  }
  answer.release();
}

TEST_F(SourceRowsSay, BehindThePathWithoutCoveringIt) {
  LocalLoc dialog(counting({}), LocMode_, nullptr);
  showAndActivate(dialog);
  dialog.resize(1600, 400);
  QTest::qWait(0);
  SourceListView* list = dialog.controls().Online;
  const QModelIndex path = dialog.entries().index(1, 1);
  const auto ink = [&](bool right) {
    const QRect cell = list->visualRect(path);
    const QRect half =
        right ? cell.adjusted(cell.width() / 2, 0, 0, 0) : cell.adjusted(0, 0, -cell.width() / 2, 0);
    const QImage picture = list->viewport()->grab(half).toImage();
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) dark += qGray(picture.pixel(x, y)) < 128 ? 1 : 0;
    }
    return dark;
  };
  dialog.entries().setStatuses([](const SourceEntry&) { return SourceStatus(); });
  const int plainLeft = ink(false);
  EXPECT_EQ(ink(true), 0);
  dialog.entries().setStatuses([](const SourceEntry&) {
    return SourceStatus{QStringLiteral("not there"), {}};
  });
  EXPECT_EQ(ink(false), plainLeft);
  EXPECT_GT(ink(true), 0);
}

}  // namespace

}  // namespace quorvin::test
