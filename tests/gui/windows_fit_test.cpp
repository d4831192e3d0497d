// SPDX-License-Identifier: GPL-2.0-or-later

// Every window on a small screen, with large letters, where people write from right to left, and in each
// language: it fits the screen, nothing of it is outside, no caption is cut, and each letter of a caption
// leads to one control.
#include "app/main_application.h"
#include "catalogue/compare_window.h"
#include "catalogue/copies_window.h"
#include "catalogue/import/import_window.h"
#include "catalogue/volumes/space_window.h"
#include "catalogue/volumes/volumes_window.h"
#include "editors/dialog_driving.h"
#include "editors/list_options.h"
#include "editors/local_loc.h"
#include "editors/recording_file_picker.h"
#include "gui/fitting.h"
#include "gui/search_form_fixture.h"
#include "help/frm_browser.h"
#include "help/frm_splash.h"
#include "help/help_view.h"
#include "history/history_window.h"
#include "history/listing_history.h"
#include "hits/hit_properties.h"
#include "peers/client/peer_progress.h"
#include "preview/image_preview.h"
#include "preview/res_win.h"
#include "support/eventually.h"
#include "texts/languages.h"
#include "texts/texts.h"

#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTranslator>
#include <QTreeWidget>

#include <algorithm>
#include <cstring>
#include <functional>
#include <optional>
#include <string_view>

namespace quorvin::test {

namespace {

struct Setting {
  const char* name;
  int largerByPoints = 0;
  Qt::LayoutDirection direction = Qt::LeftToRight;
  /// Empty for English.
  const char* language = "";
};

void PrintTo(const Setting& setting, std::ostream* out) {
  *out << setting.name;
}

/// A language with an accent on each vowel, whose texts are longer than the English ones by two fifths.
class LongLanguage : public QTranslator {
 public:
  bool isEmpty() const override { return false; }

  QString translate(const char* context, const char* source, const char*, int) const override {
    if (std::strcmp(context, "Texts") != 0) return {};
    QString text = QString::fromUtf8(source);
    QString more;
    for (qsizetype length = 0; 5 * length < 2 * text.size(); ++length)
      more += length % 8 == 7 ? u' ' : u'\u00F3';
    const QString plain = QStringLiteral("aeiouAEIOU");
    const QString accented = QStringLiteral(u"\u00E1\u00E9\u00ED\u00F3\u00FA\u00C1\u00C9\u00CD\u00D3\u00DA");
    for (QChar& letter : text) {
      if (const qsizetype vowel = plain.indexOf(letter); vowel >= 0) letter = accented[vowel];
    }
    // At the front: what a filter for files names is at its end.
    return more + u' ' + text;
  }
};
constexpr char kLongLanguage[] = "long";

class WindowsFit : public SearchFormTest, public testing::WithParamInterface<Setting> {
 protected:
  WindowsFit() : fontBefore_(QApplication::font()) {
    QFont font = fontBefore_;
    font.setPointSize(font.pointSize() + GetParam().largerByPoints);
    QApplication::setFont(font);
    QApplication::setLayoutDirection(GetParam().direction);
    if (std::string_view(GetParam().language) == kLongLanguage) {
      QCoreApplication::installTranslator(&longLanguage_);
    } else {
      language_.emplace(QString::fromLatin1(GetParam().language));
    }
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
  LongLanguage longLanguage_;
  std::optional<SpokenLanguage> language_;
};

TEST_P(WindowsFit, TheMainWindowDoes) {
  form();
  find(QStringLiteral("song"));
  expectFits(form());
  EXPECT_LE(controls().lblVer->x() + controls().lblVer->width(), form().centralWidget()->width());
}

TEST_P(WindowsFit, TheMainWindowOfTheFirstStartDoes) {
  ProgramState empty;
  empty.resetFileNames();
  SearchForm first(empty, messages_, shell_, QLocale::c());
  expectShownFits(first);
}

TEST_P(WindowsFit, TheMenusDo) {
  int menus = 0;
  for (QMenu* menu : form().findChildren<QMenu*>()) {
    if (menu->isEmpty()) continue;
    menu->popup(form().pos());
    QTest::qWait(0);
    EXPECT_LE(menu->sizeHint().width(), menu->width()) << described(menu).toStdString();
    EXPECT_LE(menu->width(), menu->screen()->availableGeometry().width()) << described(menu).toStdString();
    menu->close();
    ++menus;
  }
  EXPECT_GT(menus, 5);
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
  QTest::keyClick(help, Qt::Key_F, Qt::ControlModifier);
  QTest::qWait(0);
  ASSERT_TRUE(help->findChild<FindBar*>()->isVisible());
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

TEST_P(WindowsFit, ThePropertiesOfAHitAndTheFetchPlanDo) {
  find(QStringLiteral("song"));
  controls().HitList->setFocus();
  QTest::keyClick(controls().HitList, Qt::Key_End);
  expectDialogFits(form().itemMenu().HitProperties);
  expectDialogFits(form().itemMenu().FetchPlan);
}

TEST_P(WindowsFit, TheHistoryDoes) {
  ListingHistory history(folder_.path());
  const QString made = folder_.writeFile(QStringLiteral("made"), listingOf("MUSIC", 31, "song"));
  ASSERT_EQ(history.keep(QStringLiteral("Music.txt"), made, true).fault, QString());
  HistoryWindow window(history, QLocale(QLocale::German), {}, {}, nullptr);
  expectShownFits(window);
  const auto* versions = window.findChild<QTreeWidget*>(QStringLiteral("Versions"));
  ASSERT_EQ(versions->topLevelItemCount(), 1);
  for (int column = 0; column < versions->columnCount(); ++column) {
    const QModelIndex cell = versions->model()->index(0, column);
    EXPECT_GE(versions->columnWidth(column), versions->sizeHintForIndex(cell).width()) << column;
  }
}

/// The window fits while it does what the button `start` begins, and when that is done.
void expectFitsAtWork(QWidget& window, const char* start, const std::function<bool()>& isDone) {
  click(window.findChild<QPushButton*>(QString::fromLatin1(start)));
  expectFits(window);
  EXPECT_EVENTUALLY(isDone());
  QTest::qWait(0);
  expectFits(window);
}

TEST_P(WindowsFit, CopiesDoWithAndWithoutResults) {
  addOfflineSource(QStringLiteral("disk.txt"), listingOf("DISK", 30, "song"));
  addMissingOnlineSource(QStringLiteral("A drive that is in a drawer"));
  form();
  EXPECT_TRUE(duringModal<CopiesWindow>([this] { form().menus().Copies->trigger(); },
                                        [](CopiesWindow& window) {
                                          QTest::qWait(0);
                                          expectFits(window);
                                          auto* rows = window.findChild<QTreeView*>(QStringLiteral("Rows"));
                                          expectFitsAtWork(window, "Find",
                                                           [rows] { return rows->model()->rowCount() > 0; });
                                        }));
}

TEST_P(WindowsFit, VolumesDoWithAndWithoutResults) {
  addOfflineSource(QStringLiteral("disk.txt"), listingOf("DISK", 30, "song"));
  addMissingOnlineSource(QStringLiteral("A drive that is in a drawer"));
  form();
  EXPECT_TRUE(duringModal<VolumesWindow>([this] { form().menus().Volumes->trigger(); },
                                         [](VolumesWindow& window) {
                                           auto* rows = window.findChild<QTreeView*>(QStringLiteral("Rows"));
                                           EXPECT_EVENTUALLY(rows->model()->rowCount() > 0);
                                           expectFitsAtWork(window, "Show",
                                                            [rows] { return rows->model()->rowCount() > 0; });
                                         }));
}

TEST_P(WindowsFit, TheSpaceMapDoes) {
  addOfflineSource(QStringLiteral("disk.txt"), listingOf("DISK", 30, "song"));
  form();
  EXPECT_TRUE(duringModal<VolumesWindow>(
      [this] { form().menus().Volumes->trigger(); },
      [](VolumesWindow& window) {
        EXPECT_TRUE(duringModal<SpaceWindow>(
            [&window] { click(window.findChild<QPushButton*>(QStringLiteral("SpaceMap"))); },
            [](SpaceWindow& space) {
              const auto* map = space.findChild<SpaceMap*>(QStringLiteral("Map"));
              EXPECT_EVENTUALLY(map->count() > 0);
              QTest::qWait(0);
              expectFits(space);
              space.findChild<QComboBox*>(QStringLiteral("Colours"))->setCurrentIndex(1);
              QTest::qWait(0);
              expectFits(space);
            }));
      }));
}

TEST_P(WindowsFit, CompareDoesWithAndWithoutResults) {
  addOfflineSource(QStringLiteral("A disk with quite a long name in a drawer"),
                   listingOf("DISK", 30, "song"));
  addOfflineSource(QStringLiteral("other.txt"), listingOf("DISK", 20, "tune"));
  form();
  EXPECT_TRUE(duringModal<CompareWindow>(
      [this] { form().menus().Compare->trigger(); },
      [](CompareWindow& window) {
        QTest::qWait(0);
        expectFits(window);
        auto* later = window.findChild<QComboBox*>(QStringLiteral("LaterSource"));
        later->setCurrentIndex(later->count() - 1);
        auto* rows = window.findChild<QTreeView*>(QStringLiteral("Rows"));
        expectFitsAtWork(window, "Compare", [rows] { return rows->model()->rowCount() > 0; });
      }));
}

TEST_P(WindowsFit, ImportDoesWithAndWithoutResults) {
  RecordingFilePicker picks;
  picks.pick = folder_.writeFile(QStringLiteral("a list of quite a long name.lst"), "unknown\n/media/cd:\n");
  picker_ = &picks;
  form();
  EXPECT_TRUE(duringModal<ImportWindow>(
      [this] { form().menus().Import->trigger(); },
      [](ImportWindow& window) {
        QTest::qWait(0);
        expectFits(window);
        auto* import = window.findChild<QPushButton*>(QStringLiteral("Import"));
        const QString caption = import->text();
        click(window.findChild<QPushButton*>(QStringLiteral("Add")));
        expectFitsAtWork(window, "Import", [&] { return import->text() == caption; });
      }));
}

TEST_P(WindowsFit, TheQuestionForAPeerDoes) {
  form();
  EXPECT_TRUE(duringModal<QInputDialog>([this] { form().menus().GetLists->trigger(); },
                                        [](QInputDialog& dialog) {
                                          QTest::qWait(0);
                                          expectFits(dialog);
                                        }));
}

/// Runs `asks`, which shows a message, and looks whether it fits.
void expectMessageFits(const std::function<void()>& asks) {
  EXPECT_TRUE(duringModal<QMessageBox>(asks, [](QMessageBox& box) {
    QTest::qWait(0);
    expectFits(box);
  }));
}

TEST_P(WindowsFit, MessagesDo) {
  const QString path =
      QStringLiteral("/media/anna/") + QStringLiteral("a folder with a long name/").repeated(8);
  WidgetMessageBoxes boxes;
  expectMessageFits([&] { boxes.inform(Texts::tr("Listing file not found: %1").arg(path)); });
  expectMessageFits([&] { boxes.informOneOfMany(path); });
  expectMessageFits([&] { boxes.askYesNo(path); });
  expectMessageFits([&] { boxes.askAbortRetryIgnore(path); });
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
                                         Setting{"large letters from right to left", 12, Qt::RightToLeft},
                                         Setting{"German", 0, Qt::LeftToRight, "de"},
                                         Setting{"Spanish", 0, Qt::LeftToRight, "es"},
                                         Setting{"French", 0, Qt::LeftToRight, "fr"},
                                         Setting{"German in larger letters", 6, Qt::LeftToRight, "de"},
                                         Setting{"a long language", 0, Qt::LeftToRight, kLongLanguage}));

}  // namespace

}  // namespace quorvin::test
