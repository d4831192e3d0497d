// SPDX-License-Identifier: GPL-2.0-or-later

// The windows where people write from right to left.
#include "app/main_application.h"
#include "catalogue/copies_window.h"
#include "editors/dialog_driving.h"
#include "editors/local_loc.h"
#include "editors/recording_file_picker.h"
#include "gui/search_form_fixture.h"
#include "history/history_window.h"
#include "history/listing_history.h"
#include "support/eventually.h"
#include "support/recording_message_boxes.h"

#include <QComboBox>
#include <QMessageBox>
#include <QTreeWidget>

namespace quorvin::test {

namespace {

/// Where people write from right to left.
class MirroredWindows : public SearchFormTest {
 protected:
  MirroredWindows() { QApplication::setLayoutDirection(Qt::RightToLeft); }
  ~MirroredWindows() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

TEST_F(MirroredWindows, TheMainWindowIsTheMirrorImage) {
  form();
  for (const int width : {790, 900, 820}) {
    form().resize(width, 500);
    QTest::qWait(0);
    EXPECT_EQ(controls().SearchStr->x(), 0);
    EXPECT_EQ(controls().lblVer->x(), 0);
    EXPECT_EQ(controls().MenuLine->geometry().left(), 0);
    EXPECT_EQ(controls().HitList->geometry().left(), 0);
    EXPECT_EQ(controls().HitList->width(), width);
    EXPECT_GT(controls().searchLabel->x(), controls().SearchStr->geometry().right());
    EXPECT_LT(controls().searchLabel->geometry().right(), width);
    EXPECT_GT(controls().DesMatch->x(), controls().Find->geometry().right());
    EXPECT_GT(controls().Find->x(), controls().foundLabel->geometry().right());
    EXPECT_GT(controls().foundLabel->x(), controls().lblFound->geometry().right());
  }
}

TEST_F(MirroredWindows, NumbersStayInFrontOfTheirWords) {
  addOnlineSource(QStringLiteral("Music"), listingOf("MUSIC", 30, "song"));
  find(QStringLiteral("song"));
  EXPECT_EQ(form().findChild<QLabel*>(QStringLiteral("StatusText"))->text(),
            QStringLiteral(u"\u206630 hits\u2069"));
  form().menus().FilterHits->trigger();
  type(controls().FilterStr, QStringLiteral("7"));
  const QString shown = QStringLiteral(u"\u20663 of 30 shown\u2069");
  EXPECT_TRUE(eventually([&] { return controls().lblShown->text() == shown; }))
      << controls().lblShown->text().toStdString();
  form().progress().setDetail(QStringLiteral("3 files in 1 folder"));
  EXPECT_EQ(form().progress().findChild<QLabel*>(QStringLiteral("Detail"))->text(),
            QStringLiteral(u"\u20663 files in 1 folder\u2069"));
}

TEST_F(MirroredWindows, SizesOfEarlierVersionsStayInFrontOfTheirUnits) {
  folder_.writeFile(QStringLiteral("Music.txt"), listingOf("MUSIC", 30, "song"));
  const QString made = folder_.writeFile(QStringLiteral("made"), listingOf("MUSIC", 31, "song"));
  ListingHistory history(folder_.path());
  ASSERT_EQ(history.keep(QStringLiteral("Music.txt"), made, true).fault, QString());
  HistoryWindow window(history, QLocale::c(), {}, {}, nullptr);
  const auto* versions = window.findChild<QTreeWidget*>(QStringLiteral("Versions"));
  ASSERT_EQ(versions->topLevelItemCount(), 1);
  const QString size = versions->topLevelItem(0)->text(2);
  EXPECT_TRUE(size.startsWith(QChar(u'\u2066')) && size.endsWith(QChar(u'\u2069'))) << size.toStdString();
}

TEST_F(MirroredWindows, SizesOfCopiesStayInFrontOfTheirUnits) {
  addOfflineSource(QStringLiteral("cd1.txt"), listingOf("CD 1", 2, "song"));
  addOfflineSource(QStringLiteral("cd2.txt"), listingOf("CD 2", 2, "song"));
  form();
  EXPECT_TRUE(duringModal<CopiesWindow>(
      [this] { form().menus().Copies->trigger(); },
      [](CopiesWindow& window) {
        const auto* rows = window.findChild<QTreeView*>(QStringLiteral("Rows"));
        click(window.findChild<QPushButton*>(QStringLiteral("Find")));
        ASSERT_EVENTUALLY(rows->model()->rowCount() == 1);
        const QString size = rows->model()->index(0, 2).data().toString();
        EXPECT_TRUE(size.startsWith(QChar(u'\u2066')) && size.endsWith(QChar(u'\u2069')))
            << size.toStdString();
      }));
}

/// A picture of the editor's list with this path in its only row.
QImage listWith(const QString& path, ProgramState& state) {
  state.OnlineSources.set(1, QStringLiteral("Music"), path);
  state.OnlineSourceCount = 1;
  RecordingMessageBoxes messages;
  RecordingFilePicker picker;
  LocalLoc editor({state, messages, picker, [] {}}, QStringLiteral("Online"), nullptr);
  editor.show();
  return editor.controls().Online->grab().toImage();
}

TEST_F(MirroredWindows, APathInTheEditorKeepsItsSeparatorInFront) {
  const QString path = QStringLiteral("/lists/backup.txt");
  const QString isolated = u'\u2066' + path + u'\u2069';
  EXPECT_EQ(listWith(path, state_), listWith(isolated, state_));
}

TEST_F(MirroredWindows, TheCaptionOfTheHelpsAddressIsAboveItsStart) {
  form().menus().HlpGen->trigger();
  const QWidget* caption = nullptr;
  const QWidget* box = nullptr;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() != u"frmBrowser") continue;
    caption = window->findChild<QLabel*>(QStringLiteral("lblAddress"));
    box = window->findChild<QComboBox*>(QStringLiteral("cboAddress"));
  }
  ASSERT_TRUE(caption && box);
  EXPECT_EQ(caption->geometry().right(), box->geometry().right());
}

TEST_F(MirroredWindows, CountsAreBesideTheirCaptions) {
  form();
  for (const QLabel* label : {controls().lblFound, controls().lblSearched, controls().searchLabel}) {
    EXPECT_TRUE(label->alignment().testFlag(Qt::AlignRight)) << label->text().toStdString();
    EXPECT_TRUE(label->alignment().testFlag(Qt::AlignAbsolute)) << label->text().toStdString();
  }
  EXPECT_TRUE(controls().lblVer->alignment().testFlag(Qt::AlignLeft));
}

TEST_F(MirroredWindows, MessagesAreReadFromLeftToRight) {
  QString seen;
  QTimer::singleShot(0, [&seen] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    seen = box->text();
    box->accept();
  });
  WidgetMessageBoxes().inform(QStringLiteral("3 of 4 are gone.\r\nAll is well."));
  EXPECT_EQ(seen, QStringLiteral(u"\u20663 of 4 are gone.\u2069\n\u2066All is well.\u2069"));
}

TEST_F(MirroredWindows, TheEditorIsTheMirrorImage) {
  form();
  EXPECT_TRUE(
      duringModal<LocalLoc>([this] { form().menus().AddLocal->trigger(); },
                            [](LocalLoc& dialog) {
                              const LocalLocControls& all = dialog.controls();
                              for (const int wider : {0, 100, -50}) {
                                dialog.resize(dialog.width() + wider, dialog.height());
                                QTest::qWait(0);
                                EXPECT_GT(all.Online->x(), all.MvUp->geometry().right());
                                EXPECT_EQ(all.Desc->geometry().right(), all.Online->geometry().right());
                                EXPECT_LT(all.LocalDataFolder->geometry().right(), all.Desc->x());
                                EXPECT_EQ(all.GetListName->x(), all.Online->x());
                                EXPECT_EQ(all.Cancel->x(), all.LocAdd->x());
                                EXPECT_GT(all.OK->x(), all.Cancel->geometry().right());
                                EXPECT_EQ(all.AddSources->geometry().right(), all.Online->geometry().right());
                              }
                            }));
  EXPECT_TRUE(duringModal<LocalLoc>(
      [this] { form().menus().EditOffline->trigger(); },
      [](LocalLoc& dialog) {
        const LocalLocControls& all = dialog.controls();
        EXPECT_EQ(all.LocalDataFolder->geometry().right(), all.Online->geometry().right());
        EXPECT_EQ(all.Label2->geometry().right(), all.Online->geometry().right());
        EXPECT_GT(all.LocalDataFolder->x(), all.GetListName->geometry().right());
      }));
}

}  // namespace

}  // namespace quorvin::test
