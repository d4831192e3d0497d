// Every window on a small screen, with large letters, and where people write from right to left: it fits the
// screen, nothing of it is outside, and no caption is cut.
#include "app/main_application.h"
#include "editors/dialog_driving.h"
#include "editors/list_options.h"
#include "editors/local_loc.h"
#include "editors/recording_file_picker.h"
#include "gui/search_form_fixture.h"
#include "help/frm_browser.h"
#include "help/frm_splash.h"
#include "history/history_window.h"
#include "history/listing_history.h"
#include "hits/hit_properties.h"
#include "peers/client/peer_progress.h"
#include "preview/image_preview.h"
#include "preview/res_win.h"
#include "support/eventually.h"
#include "support/recording_message_boxes.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QScreen>
#include <QToolButton>
#include <QTreeWidget>

namespace quorvin::test {

namespace {

struct Setting {
  const char* name;
  int largerByPoints;
  Qt::LayoutDirection direction;
};

void PrintTo(const Setting& setting, std::ostream* out) {
  *out << setting.name;
}

QString described(const QWidget* widget) {
  const QString name = widget->objectName();
  return QString::fromLatin1(widget->metaObject()->className()) + u' ' + name;
}

/// What scrolls may be larger than what is seen of it.
bool scrolls(const QWidget* widget) {
  const auto* area = widget->parentWidget()
                         ? qobject_cast<const QAbstractScrollArea*>(widget->parentWidget()->parentWidget())
                         : nullptr;
  return area && area->viewport() == widget->parentWidget();
}

int textWidth(const QWidget* widget, const QString& text) {
  return widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

/// Whether the text of a label or a button is wider than its place.
bool isCut(const QWidget* widget) {
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    if (label->wordWrap() || !label->toolTip().isEmpty())
      return label->height() < label->heightForWidth(label->width());
    return label->textFormat() != Qt::RichText && textWidth(label, label->text()) > label->width();
  }
  if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
    return textWidth(button, button->text()) > button->width() - 4;
  }
  return false;
}

/// What a title bar and the frame around a window take on usual desktops. The frames of these tests take
/// less.
constexpr QSize kUsualFrame(8, 32);

/// With its frame the window is on the screen.
void expectIsOnScreen(const QWidget& window) {
  const QSize screen = window.screen()->availableGeometry().size();
  QSize outer = window.frameGeometry().size();
  // The main window makes itself smaller by the frame that it gets.
  if (!qobject_cast<const QMainWindow*>(&window)) outer = outer.expandedTo(window.size() + kUsualFrame);
  EXPECT_LE(outer.width(), screen.width()) << described(&window).toStdString();
  EXPECT_LE(outer.height(), screen.height()) << described(&window).toStdString();
}

void expectFits(const QWidget& window) {
  expectIsOnScreen(window);
  int looked = 0;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != &window || scrolls(widget)) continue;
    ++looked;
    EXPECT_TRUE(widget->geometry().isEmpty() || widget->parentWidget()->rect().contains(widget->geometry()))
        << described(widget).toStdString() << " in " << described(widget->parentWidget()).toStdString();
    EXPECT_FALSE(isCut(widget)) << described(widget).toStdString();
  }
  EXPECT_GT(looked, 0) << described(&window).toStdString();
}

class WindowsFit : public SearchFormTest, public testing::WithParamInterface<Setting> {
 protected:
  WindowsFit() : fontBefore_(QApplication::font()) {
    QFont font = fontBefore_;
    font.setPointSize(font.pointSize() + GetParam().largerByPoints);
    QApplication::setFont(font);
    QApplication::setLayoutDirection(GetParam().direction);
    addOnlineSource(QStringLiteral("Music"), listingOf("MUSIC", 30, "song"));
  }
  ~WindowsFit() override {
    QApplication::setFont(fontBefore_);
    QApplication::setLayoutDirection(Qt::LeftToRight);
  }

  static void expectShownFits(QWidget& window) {
    showAndActivate(window);
    QTest::qWait(0);
    expectFits(window);
  }
  void expectDialogFits(QAction* opens) {
    EXPECT_TRUE(duringModal<QDialog>([opens] { opens->trigger(); },
                                     [](QDialog& dialog) {
                                       QTest::qWait(0);
                                       expectFits(dialog);
                                     }));
  }

 private:
  QFont fontBefore_;
};

TEST_P(WindowsFit, TheMainWindowDoes) {
  form();
  find(QStringLiteral("song"));
  expectFits(form());
  EXPECT_LE(controls().lblVer->x() + controls().lblVer->width(), form().centralWidget()->width());
}

TEST_P(WindowsFit, TheEditorsDo) {
  expectDialogFits(form().menus().AddLocal);
  expectDialogFits(form().menus().EditOffline);
}

TEST_P(WindowsFit, OptionsHistoryAndAboutDo) {
  expectDialogFits(form().menus().OptionsMenu);
  expectDialogFits(form().menus().ListingHistory);
  expectDialogFits(form().menus().AboutMenu);
}

TEST_P(WindowsFit, TheHelpDoes) {
  form().menus().HlpGen->trigger();
  QWidget* help = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && qobject_cast<frmBrowser*>(window)) help = window;
  }
  ASSERT_NE(help, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(help));
  expectFits(*help);
}

TEST_P(WindowsFit, ProgressAndResultsDo) {
  form().progress().begin();
  QTest::qWait(0);
  expectFits(form().progress());
  PeerProgress peers(QLocale::c());
  peers.begin(QStringLiteral("host"));
  QTest::qWait(0);
  expectFits(peers);
  ResWin results;
  results.setText(QStringLiteral("/m/a File not found"));
  expectShownFits(results);
}

TEST_P(WindowsFit, ThePropertiesOfAHitDo) {
  find(QStringLiteral("song"));
  controls().HitList->setFocus();
  QTest::keyClick(controls().HitList, Qt::Key_End);
  expectDialogFits(form().itemMenu().HitProperties);
}

TEST_P(WindowsFit, TheHistoryDoes) {
  ListingHistory history(folder_.path());
  const QString made = folder_.writeFile(QStringLiteral("made"), listingOf("MUSIC", 31, "song"));
  ASSERT_EQ(history.keep(QStringLiteral("Music.txt"), made, true).fault, QString());
  HistoryWindow window(history, QLocale(QLocale::German), {}, nullptr);
  expectShownFits(window);
  const auto* versions = window.findChild<QTreeWidget*>(QStringLiteral("Versions"));
  ASSERT_EQ(versions->topLevelItemCount(), 1);
  for (int column = 0; column < versions->columnCount(); ++column) {
    const QModelIndex cell = versions->model()->index(0, column);
    EXPECT_GE(versions->columnWidth(column), versions->sizeHintForIndex(cell).width()) << column;
  }
}

TEST_P(WindowsFit, TheDialogsForFilesDo) {
  find(QStringLiteral("song"));
  int boxes = 0;
  EXPECT_TRUE(duringModal<QFileDialog>([this] { form().menus().ExportHits->trigger(); },
                                       [&boxes](QFileDialog& dialog) {
                                         QTest::qWait(0);
                                         expectIsOnScreen(dialog);
                                         for (const auto* box : dialog.findChildren<QComboBox*>()) {
                                           if (box->objectName() != u"fileTypeCombo") continue;
                                           ++boxes;
                                           EXPECT_EQ(box->count(), 3);
                                           EXPECT_LE(textWidth(box, box->currentText()), box->width());
                                         }
                                       }));
  EXPECT_EQ(boxes, 1);
  DialogFilePicker picker;
  EXPECT_TRUE(duringModal<QFileDialog>([&] { picker.pickFolders({}); },
                                       [](QFileDialog& dialog) {
                                         QTest::qWait(0);
                                         expectIsOnScreen(dialog);
                                       }));
}

/// Their abbreviated months differ in width more than others do.
TEST_P(WindowsFit, GermanDatesDo) {
  QByteArray listing = blockHead("MUSIC", "\\Music\\");
  for (int month = 1; month <= 12; ++month) {
    const QByteArray date = "2004-" + QByteArray::number(month).rightJustified(2, '0') + "-28 10:20:30";
    listing += entryLine("date.mp3", "1,024", date);
  }
  folder_.writeFile(QStringLiteral("Music.txt"), listing);
  SearchForm german(state_, messages_, shell_, QLocale(QLocale::German));
  showAndActivate(german);
  german.controls().SearchStr->setText(QStringLiteral("date"));
  german.controls().Find->click();
  HitListView& list = *german.controls().HitList;
  ASSERT_EQ(list.model()->rowCount(), 12);
  const int date = static_cast<int>(HitColumn::Date);
  QStringList dates;
  for (int row = 0; row < 12; ++row) {
    const QModelIndex cell = list.model()->index(row, date);
    dates += cell.data().toString();
    EXPECT_LE(list.sizeHintForIndex(cell).width(), list.header()->sectionSize(date))
        << dates.last().toStdString();
  }
  EXPECT_EQ(dates.at(2), QStringLiteral("M\u00E4r, 28 04"));
}

TEST_P(WindowsFit, ThePreviewDoes) {
  QThreadPool pool;
  ImgPre window(pool, nullptr);
  expectShownFits(window);
  ImgPreLoading loading(QStringLiteral("/music/cover.bmp"), nullptr);
  expectShownFits(loading);
}

INSTANTIATE_TEST_SUITE_P(Settings, WindowsFit,
                         testing::Values(Setting{"usual", 0, Qt::LeftToRight},
                                         Setting{"large letters", 12, Qt::LeftToRight},
                                         Setting{"right to left", 0, Qt::RightToLeft},
                                         Setting{"large letters from right to left", 12, Qt::RightToLeft}));

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
  HistoryWindow window(history, QLocale::c(), {}, nullptr);
  const auto* versions = window.findChild<QTreeWidget*>(QStringLiteral("Versions"));
  ASSERT_EQ(versions->topLevelItemCount(), 1);
  const QString size = versions->topLevelItem(0)->text(2);
  EXPECT_TRUE(size.startsWith(QChar(u'\u2066')) && size.endsWith(QChar(u'\u2069'))) << size.toStdString();
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
