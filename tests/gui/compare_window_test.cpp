// SPDX-License-Identifier: GPL-2.0-or-later

// The window that compares, as a person comes to it and uses it.
#include "catalogue/compare_window.h"

#include "editors/dialog_driving.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "gui/tree_texts.h"
#include "history/history_window.h"
#include "support/waiting_threads.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>
#include <QTreeWidget>

namespace quorvin::test {

namespace {

enum Shown { Everything, Added, Removed, Changed, Moved };

QTreeView* listOf(const CompareWindow& window) {
  return window.findChild<QTreeView*>(QStringLiteral("Rows"));
}
QPushButton* compareButton(const CompareWindow& window) {
  return window.findChild<QPushButton*>(QStringLiteral("Compare"));
}
QComboBox* boxOf(const CompareWindow& window, const char* name) {
  return window.findChild<QComboBox*>(QString::fromLatin1(name));
}
std::string statusOf(const CompareWindow& window) {
  return window.findChild<QLabel*>(QStringLiteral("Status"))->text().toStdString();
}
bool isWorking(const CompareWindow& window) {
  return compareButton(window)->text() == QStringLiteral("S&top");
}
std::string textsOf(const QComboBox* box) {
  std::string texts;
  for (int i = 0; i < box->count(); ++i) texts += (i == 0 ? "" : ", ") + box->itemText(i).toStdString();
  return texts;
}

std::string rowsOf(const CompareWindow& window) {
  return textsOfTree(*listOf(window)->model());
}

void compareIn(const CompareWindow& window) {
  click(compareButton(window));
  EXPECT_EVENTUALLY(!isWorking(window));
}

class ShownChanges : public SearchFormTest {
 protected:
  ShownChanges() {
    keepVersion(blockHead("Music", "\\m\\live\\") + entryLine("gone.mp3", "100") +
                entryLine("grown.mp3", "200") + entryLine("moved.mp3", "300") + entryLine("same.mp3", "400"));
    listing_ = blockHead("Music", "\\m\\live\\") + entryLine("grown.mp3", "250") +
               entryLine("new.mp3", "500") + entryLine("same.mp3", "400") + blockHead("Music", "\\m\\old\\") +
               entryLine("moved.mp3", "300");
    folder_.writeFile(QStringLiteral("Music.txt"), listing_);
    addOnlineFolder(QStringLiteral("Music"), QStringLiteral("/m"));
  }

  /// As a refresh does it; it dates from 15 January 2004.
  void keepVersion(const QByteArray& listing) {
    QFile file(folder_.writeFile(QStringLiteral("Music.txt"), listing));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime moment(QDate(2004, 1, 15), QTime(10, 20));
    ASSERT_TRUE(file.setFileTime(moment, QFileDevice::FileModificationTime));
    file.close();
    const QString made = folder_.writeFile(QStringLiteral("made"), listing + "\r\n");
    ASSERT_EQ(history_.keep(QStringLiteral("Music.txt"), made, true).fault, QString());
    QFile::remove(made);
  }

  void inWindow(const std::function<void(CompareWindow&)>& action) {
    form();
    EXPECT_TRUE(duringModal<CompareWindow>([this] { form().menus().Compare->trigger(); }, action));
  }
  /// A window apart from the main one.
  CompareWindowParts parts(QThreadPool& threads) {
    return {state_, threads, QLocale(QLocale::English, QLocale::UnitedStates), [this](const HitRow& file) {
              shown_.push_back((file.volume + u'|' + file.folder + u'|' + file.name).toStdString());
              return isThere_;
            }};
  }

  const std::string kAllChanges =
      "\\m\\live\\|1 added, 1 removed, 1 changed|300 bytes||750 bytes||\n"
      "  gone.mp3|removed|100 bytes|1/15/2004 10:20:30 AM|||\n"
      "  grown.mp3|changed|200 bytes|1/15/2004 10:20:30 AM|250 bytes|1/15/2004 10:20:30 AM|\n"
      "  new.mp3|added|||500 bytes|1/15/2004 10:20:30 AM|\n"
      "\\m\\old\\|1 moved|300 bytes||300 bytes||\n"
      "  moved.mp3|moved|300 bytes|1/15/2004 10:20:30 AM|300 bytes|1/15/2004 10:20:30 AM|\\m\\live\\\n";
  ListingHistory history_{folder_.path()};
  QByteArray listing_;
  std::vector<std::string> shown_;
  bool isThere_ = true;
};

TEST_F(ShownChanges, TheNewestVersionAndTheListingComeChosenAndAreCompared) {
  QThreadPool threads;
  CompareWindow window(parts(threads), nullptr);
  const QAbstractItemModelTester tester(listOf(window)->model());
  showAndActivate(window);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Compare"));
  EXPECT_EQ(boxOf(window, "EarlierSource")->currentText(), QStringLiteral("Music"));
  EXPECT_EQ(textsOf(boxOf(window, "EarlierState")),
            "the listing as it is, the folder as it is now, " +
                QLocale(QLocale::English, QLocale::UnitedStates)
                    .toString(QDateTime(QDate(2004, 1, 15), QTime(10, 20)), QLocale::ShortFormat)
                    .toStdString());
  EXPECT_EQ(boxOf(window, "EarlierState")->currentIndex(), 2);
  EXPECT_EQ(boxOf(window, "LaterState")->currentText(), QStringLiteral("the listing as it is"));
  compareIn(window);
  EXPECT_EQ(rowsOf(window), kAllChanges);
  EXPECT_EQ(
      statusOf(window),
      "Added: 1 file, 500 bytes. Removed: 1 file, 100 bytes. Changed: 1 file, 250 bytes. Moved: 1 file, "
      "300 bytes. The same: 1 file, 400 bytes");
  EXPECT_TRUE(listOf(window)->isExpanded(listOf(window)->model()->index(0, 0)));
}

TEST_F(ShownChanges, OneKindOfChangeIsShownOnWish) {
  QThreadPool threads;
  CompareWindow window(parts(threads), nullptr);
  const QAbstractItemModelTester tester(listOf(window)->model());
  showAndActivate(window);
  compareIn(window);
  boxOf(window, "What")->setCurrentIndex(Moved);
  EXPECT_EQ(
      rowsOf(window),
      "\\m\\old\\|1 moved|300 bytes||300 bytes||\n"
      "  moved.mp3|moved|300 bytes|1/15/2004 10:20:30 AM|300 bytes|1/15/2004 10:20:30 AM|\\m\\live\\\n");
  boxOf(window, "What")->setCurrentIndex(Removed);
  EXPECT_EQ(rowsOf(window),
            "\\m\\live\\|1 added, 1 removed, 1 changed|300 bytes||750 bytes||\n"
            "  gone.mp3|removed|100 bytes|1/15/2004 10:20:30 AM|||\n");
  boxOf(window, "What")->setCurrentIndex(Everything);
  EXPECT_EQ(rowsOf(window), kAllChanges);
}

TEST_F(ShownChanges, TheFolderIsComparedAsItIsNow) {
  const QString music = folder_.path() + QStringLiteral("music/");
  ASSERT_TRUE(QDir().mkpath(music + QStringLiteral("live")));
  folder_.writeFile(QStringLiteral("music/live/song.mp3"), "song");
  folder_.writeFile(
      QStringLiteral("Now.txt"),
      blockHead("Now", QString(music).replace(u'/', u'\\').toUtf8() + "live\\") + entryLine("gone.mp3", "4"));
  addOnlineFolder(QStringLiteral("Now"), music);
  QThreadPool threads;
  CompareWindow window(parts(threads), nullptr);
  showAndActivate(window);
  for (const char* box : {"EarlierSource", "LaterSource"}) boxOf(window, box)->setCurrentIndex(1);
  EXPECT_EQ(textsOf(boxOf(window, "LaterState")), "the listing as it is, the folder as it is now");
  boxOf(window, "LaterState")->setCurrentIndex(1);
  compareIn(window);
  EXPECT_TRUE(
      statusOf(window).starts_with("Added: 1 file, 4 bytes. Removed: 1 file, 4 bytes. Changed: 0 files"))
      << statusOf(window);
  EXPECT_NE(rowsOf(window).find("song.mp3|added|"), std::string::npos) << rowsOf(window);
}

TEST_F(ShownChanges, AFolderThatIsNotThereIsNamed) {
  QThreadPool threads;
  CompareWindow window(parts(threads), nullptr);
  showAndActivate(window);
  boxOf(window, "LaterState")->setCurrentIndex(1);
  compareIn(window);
  EXPECT_EQ(rowsOf(window), "");
  EXPECT_NE(statusOf(window).find("/m"), std::string::npos) << statusOf(window);
}

TEST_F(ShownChanges, TwoListingsWithoutAFolderInCommonAreComparedBelowTheirOwn) {
  addOfflineSource(QStringLiteral("copy.txt"),
                   blockHead("Copy", "\\backup\\live\\") + entryLine("grown.mp3", "250") +
                       blockHead("Copy", "\\backup\\old\\") + entryLine("moved.mp3", "300"));
  QThreadPool threads;
  CompareWindow window(parts(threads), nullptr);
  showAndActivate(window);
  boxOf(window, "EarlierState")->setCurrentIndex(0);
  boxOf(window, "LaterSource")->setCurrentIndex(1);
  compareIn(window);
  EXPECT_EQ(
      statusOf(window),
      "Added: 0 files, 0 bytes. Removed: 2 files, 900 bytes. Changed: 0 files, 0 bytes. Moved: 0 files, 0 "
      "bytes. The same: 2 files, 550 bytes\n"
      "Compared below \\m\\ and \\backup\\, since they have no folder in common");
}

TEST_F(ShownChanges, CanBeUsedByKeysAlone) {
  form();
  inDialog<CompareWindow>(
      [] {
        press(Qt::Key_F, Qt::AltModifier);
        press(Qt::Key_M);
      },
      [](CompareWindow& window) {
        EXPECT_EQ(tabStops().toStdString(),
                  "EarlierSource EarlierState LaterSource LaterState What Rows Compare close");
        // The button is pressed for the eye first.
        press(Qt::Key_C, Qt::AltModifier);
        EXPECT_EVENTUALLY(listOf(window)->model()->rowCount() > 0);
        press(Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(focusName(), QStringLiteral("What"));
        tabTo("Rows");
        press(Qt::Key_Return);
        EXPECT_FALSE(listOf(window)->isExpanded(listOf(window)->model()->index(0, 0)));
        press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text().section(u'\t', 0, 1).toStdString(),
                  "\\m\\live\\\t1 added, 1 removed, 1 changed");
        press(Qt::Key_Escape);
      });
}

TEST_F(ShownChanges, EnterAndADoubleClickShowAFileInItsFolder) {
  QThreadPool threads;
  CompareWindow window(parts(threads), nullptr);
  showAndActivate(window);
  compareIn(window);
  QTreeView& list = *listOf(window);
  const QModelIndex live = list.model()->index(0, 0);
  list.setFocus();
  for (const int row : {0, 2}) {
    list.setCurrentIndex(list.model()->index(row, 0, live));
    press(Qt::Key_Return);
  }
  EXPECT_EQ(shown_, (std::vector<std::string>{"Music|\\m\\live\\|gone.mp3", "Music|\\m\\live\\|new.mp3"}));
  EXPECT_FALSE(isWorking(window));
  isThere_ = false;
  const QModelIndex place = list.model()->index(1, 0, live);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(place).center());
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(place).center());
  EXPECT_EQ(shown_.back(), "Music|\\m\\live\\|grown.mp3");
  EXPECT_EQ(statusOf(window), "\\m\\live\\grown.mp3 is not there now, or its listing does not say where.");
}

TEST_F(ShownChanges, BeyondTheLimitOnlyTheFirstAreShownAndThatIsSaid) {
  QThreadPool threads;
  CompareWindowParts few = parts(threads);
  few.mostRows = 1;
  CompareWindow window(few, nullptr);
  showAndActivate(window);
  compareIn(window);
  EXPECT_EQ(listOf(window)->model()->rowCount(), 1);
  EXPECT_EQ(listOf(window)->model()->rowCount(listOf(window)->model()->index(0, 0)), 1);
  EXPECT_TRUE(statusOf(window).ends_with("\nOnly the first 1 of 4 rows are shown.")) << statusOf(window);
}

TEST_F(ShownChanges, TheHistoryLeadsToTheChangesSinceAVersion) {
  form();
  const bool wasShown = duringModal<HistoryWindow>(
      [this] { form().menus().ListingHistory->trigger(); },
      [this](HistoryWindow& history) {
        auto* compare = history.findChild<QPushButton*>(QStringLiteral("Compare"));
        EXPECT_TRUE(duringModal<CompareWindow>([compare] { click(compare); },
                                               [this](CompareWindow& window) {
                                                 EXPECT_EQ(boxOf(window, "EarlierState")->currentIndex(), 2);
                                                 compareIn(window);
                                                 EXPECT_NE(rowsOf(window).find("new.mp3|added|"),
                                                           std::string::npos);
                                                 form().frame().unloadOtherWindows();
                                                 EXPECT_FALSE(window.isVisible());
                                               }));
        EXPECT_FALSE(history.isVisible());
      });
  EXPECT_TRUE(wasShown);
}

TEST_F(ShownChanges, AListingThatIsSearchedNoMoreIsComparedByItsHistory) {
  state_.OnlineSourceCount = 0;
  QThreadPool threads;
  CompareWindow window(parts(threads), nullptr);
  showAndActivate(window);
  EXPECT_EQ(statusOf(window), "There is nothing to compare yet.");
  EXPECT_FALSE(compareButton(window)->isEnabled());
  window.chooseVersion(QStringLiteral("Music.txt"),
                       history_.versions(QStringLiteral("Music.txt")).front().number);
  compareIn(window);
  EXPECT_EQ(rowsOf(window), kAllChanges);
}

TEST_F(ShownChanges, AListingThatIsMissingIsNamed) {
  QFile::remove(folder_.pathOf(QStringLiteral("Music.txt")));
  QThreadPool threads;
  CompareWindow window(parts(threads), nullptr);
  showAndActivate(window);
  compareIn(window);
  EXPECT_EQ(rowsOf(window), "");
  EXPECT_NE(statusOf(window).find("Music.txt"), std::string::npos) << statusOf(window);
}

TEST_F(ShownChanges, StopDoesNotWaitForADriveThatDoesNotAnswer) {
  WaitingThreads threads;
  CompareWindow window(parts(threads.pool), nullptr);
  showAndActivate(window);
  click(compareButton(window));
  EXPECT_TRUE(isWorking(window));
  QTest::qWait(120);
  EXPECT_EQ(statusOf(window), "Comparing");
  click(compareButton(window));
  EXPECT_FALSE(isWorking(window));
  EXPECT_EQ(statusOf(window), "Stopped. What has changed is only known at the end.");
  threads.letGo();
  EXPECT_EQ(rowsOf(window), "");
  compareIn(window);
  EXPECT_EQ(rowsOf(window), kAllChanges);
}

TEST_F(ShownChanges, TheWindowClosesWhileItWorks) {
  WaitingThreads threads;
  auto window = std::make_unique<CompareWindow>(parts(threads.pool), nullptr);
  showAndActivate(*window);
  click(compareButton(*window));
  press(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  window.reset();
  threads.letGo();
}

TEST_F(ShownChanges, EndsWithTheProgramWhileItWorks) {
  inWindow([this](CompareWindow& window) {
    click(compareButton(window));
    form().frame().unloadOtherWindows();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(isWorking(window));
  });
}

}  // namespace

}  // namespace quorvin::test
