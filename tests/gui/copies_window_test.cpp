// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows copies, as a person comes to it and uses it.
#include "catalogue/copies_window.h"

#include "editors/dialog_driving.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "gui/tree_texts.h"
#include "support/waiting_threads.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

namespace quorvin::test {

namespace {

enum What { Wasted, WastedByVolume, WastedByFolder, Single, SingleByVolume, SingleByFolder };

QTreeView* listOf(const CopiesWindow& window) {
  return window.findChild<QTreeView*>(QStringLiteral("Rows"));
}
QPushButton* findButton(const CopiesWindow& window) {
  return window.findChild<QPushButton*>(QStringLiteral("Find"));
}
QLineEdit* wordsOf(const CopiesWindow& window) {
  return window.findChild<QLineEdit*>(QStringLiteral("Words"));
}
QComboBox* whatOf(const CopiesWindow& window) {
  return window.findChild<QComboBox*>(QStringLiteral("What"));
}
std::string statusOf(const CopiesWindow& window) {
  return window.findChild<QLabel*>(QStringLiteral("Status"))->text().toStdString();
}
bool isWorking(const CopiesWindow& window) {
  return findButton(window)->text() == QStringLiteral("S&top");
}

/// A line for each row, with its places below it.
std::string rowsOf(const CopiesWindow& window) {
  return textsOfTree(*listOf(window)->model());
}

void waitForResult(const CopiesWindow& window) {
  EXPECT_EVENTUALLY(!isWorking(window));
}
void findIn(const CopiesWindow& window, What what, const QString& words = {}) {
  type(wordsOf(window), words);
  whatOf(window)->setCurrentIndex(what);
  click(findButton(window));
  waitForResult(window);
}

class ShownCopies : public SearchFormTest {
 protected:
  ShownCopies() {
    addOfflineSource(QStringLiteral("cd1.txt"),
                     blockHead("CD 1", "\\Films\\") + entryLine("film.avi", "734,003,200") +
                         entryLine("notes.txt", "2,048") + blockHead("CD 1", "\\Photos\\2004\\") +
                         entryLine("a.jpg", "1,048,576") + entryLine("b.jpg", "524,288") +
                         entryLine("__init__.py", "0"));
    addOfflineSource(QStringLiteral("cd2.txt"),
                     blockHead("CD 2", "\\Backup\\Films\\") + entryLine("Film.avi", "734,003,200") +
                         blockHead("CD 2", "\\Backup\\Pictures\\") + entryLine("a.jpg", "1,048,576") +
                         entryLine("b.jpg", "524,288") + entryLine("__init__.py", "0") +
                         blockHead("CD 2", "\\") + entryLine("only here.txt", "10") + "no size.txt\r\n");
  }

  void inWindow(const std::function<void(CopiesWindow&)>& action) {
    form();
    EXPECT_TRUE(duringModal<CopiesWindow>([this] { form().menus().Copies->trigger(); }, action));
  }
  /// A window apart from the main one.
  CopiesWindowParts parts(QThreadPool& threads) {
    return {state_, threads, QLocale(QLocale::English, QLocale::UnitedStates), [this](const HitRow& file) {
              shown_.push_back((file.folder + u'|' + file.name).toStdString());
              return isThere_;
            }};
  }

  std::vector<std::string> shown_;
  bool isThere_ = true;
};

TEST_F(ShownCopies, WhatWastesSpaceComesWithItsPlacesAndTheSum) {
  inWindow([](CopiesWindow& window) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Copies"));
    EXPECT_EQ(wordsOf(window)->text(), QString());
    click(findButton(window));
    waitForResult(window);
    EXPECT_EQ(rowsOf(window),
              "film.avi|2|700.00 MB|700.00 MB|CD 1, CD 2||\n"
              "  film.avi||||CD 1|\\Films\\|cd1.txt\n"
              "  film.avi||||CD 2|\\Backup\\Films\\|cd2.txt\n"
              "2004 (equal folders, 3 files)|2|1.50 MB|1.50 MB|CD 1, CD 2||\n"
              "  2004||||CD 1|\\Photos\\2004\\|cd1.txt\n"
              "  Pictures||||CD 2|\\Backup\\Pictures\\|cd2.txt\n");
    EXPECT_EQ(statusOf(window),
              "Files with copies: 3. Copies beyond the first: 3, of 701.50 MB altogether\n"
              "Left out, since their exact size is not known: 1");
  });
}

TEST_F(ShownCopies, SumsAreForVolumesOrFolders) {
  inWindow([](CopiesWindow& window) {
    findIn(window, WastedByVolume);
    EXPECT_EQ(rowsOf(window), "CD 2|3|701.50 MB|cd2.txt\n");
    findIn(window, WastedByFolder);
    EXPECT_EQ(rowsOf(window),
              "\\Backup\\Films\\|1|700.00 MB|CD 2|cd2.txt\n"
              "\\Backup\\Pictures\\|2|1.50 MB|CD 2|cd2.txt\n");
  });
}

TEST_F(ShownCopies, WhatIsOnOneVolumeOnlyComesLargestFirst) {
  inWindow([](CopiesWindow& window) {
    findIn(window, Single);
    EXPECT_EQ(rowsOf(window),
              "notes.txt|2.00 kB|CD 1|\\Films\\|cd1.txt\n"
              "only here.txt|10 bytes|CD 2|\\|cd2.txt\n");
    EXPECT_EQ(statusOf(window),
              "Files on one volume only: 2, of 2.01 kB altogether\n"
              "Left out, since their exact size is not known: 1");
    findIn(window, SingleByVolume);
    EXPECT_EQ(rowsOf(window), "CD 1|1|2.00 kB|cd1.txt\nCD 2|1|10 bytes|cd2.txt\n");
    findIn(window, SingleByFolder);
    EXPECT_EQ(rowsOf(window),
              "\\Films\\|1|2.00 kB|CD 1|cd1.txt\n"
              "\\|1|10 bytes|CD 2|cd2.txt\n");
  });
}

TEST_F(ShownCopies, WordsLimitWhatIsShownAndEmptyFilesComeOnWish) {
  inWindow([](CopiesWindow& window) {
    findIn(window, Wasted, QStringLiteral("FILM"));
    EXPECT_TRUE(
        statusOf(window).starts_with("Files with copies: 1. Copies beyond the first: 1, of 700.00 MB"))
        << statusOf(window);
    auto* match = window.findChild<QLineEdit*>(QStringLiteral("Match"));
    EXPECT_EQ(match->text(), QStringLiteral("50"));
    type(match, QStringLiteral("300"));
    click(window.findChild<QCheckBox*>(QStringLiteral("Empty")));
    findIn(window, Wasted);
    EXPECT_EQ(match->text(), QStringLiteral("100"));
    EXPECT_TRUE(
        statusOf(window).starts_with("Files with copies: 4. Copies beyond the first: 4, of 701.50 MB"))
        << statusOf(window);
  });
}

TEST_F(ShownCopies, RowsAreSortedByValueAndStayUnfolded) {
  inWindow([](CopiesWindow& window) {
    click(findButton(window));
    waitForResult(window);
    QTreeView& list = *listOf(window);
    list.expand(list.model()->index(0, 0));
    list.sortByColumn(2, Qt::AscendingOrder);
    EXPECT_TRUE(rowsOf(window).starts_with("2004 (equal")) << rowsOf(window);
    EXPECT_FALSE(list.isExpanded(list.model()->index(0, 0)));
    EXPECT_TRUE(list.isExpanded(list.model()->index(1, 0)));
    list.sortByColumn(0, Qt::DescendingOrder);
    EXPECT_TRUE(rowsOf(window).starts_with("film.avi|")) << rowsOf(window);
    list.sortByColumn(0, Qt::AscendingOrder);
    EXPECT_TRUE(rowsOf(window).starts_with("2004 (equal")) << rowsOf(window);
    click(findButton(window));
    waitForResult(window);
    EXPECT_TRUE(rowsOf(window).starts_with("film.avi|")) << rowsOf(window);
  });
}

TEST_F(ShownCopies, CanBeUsedByKeysAlone) {
  form();
  inDialog<CopiesWindow>(
      [] {
        press(Qt::Key_F, Qt::AltModifier);
        press(Qt::Key_C);
      },
      [](CopiesWindow& window) {
        EXPECT_EQ(tabStops().toStdString(), "Words What Match Empty Content Rows Find close");
        typeText(QStringLiteral("film"));
        press(Qt::Key_Return);
        waitForResult(window);
        press(Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(focusName(), QStringLiteral("What"));
        tabTo("Rows");
        press(Qt::Key_Return);
        EXPECT_TRUE(listOf(window)->isExpanded(listOf(window)->model()->index(0, 0)));
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
                  "film.avi\t2\t700.00 MB\t700.00 MB\tCD 1, CD 2\t\t\n"
                  "film.avi\t\t\t\tCD 1\t\\Films\\\tcd1.txt\n"
                  "film.avi\t\t\t\tCD 2\t\\Backup\\Films\\\tcd2.txt\n");
        press(Qt::Key_Escape);
      });
}

TEST_F(ShownCopies, EnterAndADoubleClickShowAPlaceInItsFolder) {
  QThreadPool threads;
  CopiesWindow window(parts(threads), nullptr);
  showAndActivate(window);
  click(findButton(window));
  waitForResult(window);
  QTreeView& list = *listOf(window);
  list.expandAll();
  list.setFocus();
  for (int row = 0; row < 2; ++row) {
    list.setCurrentIndex(list.model()->index(1, 0, list.model()->index(row, 0)));
    press(Qt::Key_Return);
  }
  EXPECT_EQ(shown_, (std::vector<std::string>{"\\Backup\\Films\\|film.avi", "\\Backup\\Pictures\\|"}));
  EXPECT_FALSE(isWorking(window));
  isThere_ = false;
  const QModelIndex place = list.model()->index(0, 0, list.model()->index(0, 0));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(place).center());
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(place).center());
  EXPECT_EQ(shown_.back(), "\\Films\\|film.avi");
  EXPECT_EQ(statusOf(window), "\\Films\\film.avi is not there now, or its listing does not say where.");
}

TEST_F(ShownCopies, AFileOfAnOwnFolderIsShownWhereItIs) {
  const QString music = folder_.path() + QStringLiteral("music/");
  ASSERT_TRUE(QDir().mkpath(music + QStringLiteral("live")));
  folder_.writeFile(QStringLiteral("music/live/song.mp3"), "song");
  state_.OfflineSourceCount = 0;
  folder_.writeFile(QStringLiteral("Music.txt"),
                    blockHead("Music", QString(music).replace(u'/', u'\\').toUtf8() + "live\\") +
                        entryLine("song.mp3", "4"));
  addOnlineFolder(QStringLiteral("Music"), music);
  inWindow([&](CopiesWindow& window) {
    findIn(window, Single);
    listOf(window)->setFocus();
    press(Qt::Key_Return);
    ASSERT_EQ(shell_.calls.size(), 1U) << statusOf(window);
    EXPECT_EQ(shell_.calls[0], QStringLiteral("open folder %1live/ at song.mp3").arg(music));
    findIn(window, SingleByFolder);
    listOf(window)->setFocus();
    press(Qt::Key_Return);
    ASSERT_EQ(shell_.calls.size(), 2U) << statusOf(window);
    EXPECT_EQ(shell_.calls[1], QStringLiteral("open folder %1live/ at ").arg(music));
  });
}

TEST_F(ShownCopies, FilesAtHandAreLookedIntoOnWish) {
  state_.OfflineSourceCount = 0;
  for (const QString& name : {QStringLiteral("one"), QStringLiteral("two")}) {
    const QString place = folder_.path() + name + u'/';
    ASSERT_TRUE(QDir().mkpath(place));
    folder_.writeFile(name + QStringLiteral("/song.mp3"), "song");
    folder_.writeFile(name + QStringLiteral("/letter.txt"), name.toUtf8());
    folder_.writeFile(name + QStringLiteral(".txt"),
                      blockHead(name.toUtf8(), QString(place).replace(u'/', u'\\').toUtf8()) +
                          entryLine("letter.txt", "3") + entryLine("song.mp3", "4"));
    addOnlineFolder(name, place);
  }
  inWindow([](CopiesWindow& window) {
    findIn(window, Wasted);
    EXPECT_TRUE(rowsOf(window).starts_with("one (equal folders, 2 files)|2|7 bytes|")) << rowsOf(window);
    click(window.findChild<QCheckBox*>(QStringLiteral("Content")));
    findIn(window, Wasted);
    EXPECT_TRUE(rowsOf(window).starts_with("song.mp3|2|4 bytes|")) << rowsOf(window);
    EXPECT_TRUE(
        statusOf(window).find("Looked into: 4, of 14 bytes altogether. Files that hold something else in "
                              "spite of the same name and size: 1. ") != std::string::npos)
        << statusOf(window);
  });
}

TEST_F(ShownCopies, BeyondTheLimitOnlyTheLargestAreShownAndThatIsSaid) {
  QThreadPool threads;
  CopiesWindowParts few = parts(threads);
  few.mostRows = 1;
  CopiesWindow window(few, nullptr);
  showAndActivate(window);
  findIn(window, Single);
  EXPECT_EQ(rowsOf(window), "notes.txt|2.00 kB|CD 1|\\Films\\|cd1.txt\n");
  EXPECT_TRUE(statusOf(window).ends_with("\nOnly the 1 largest of 2 rows are shown.")) << statusOf(window);
  findIn(window, WastedByFolder);
  EXPECT_EQ(rowsOf(window), "\\Backup\\Films\\|1|700.00 MB|CD 2|cd2.txt\n");
  findIn(window, Wasted);
  EXPECT_TRUE(statusOf(window).ends_with("\nOnly the 1 largest of 2 rows are shown.")) << statusOf(window);
}

TEST_F(ShownCopies, AListingThatIsMissingIsNamed) {
  addMissingOnlineSource(QStringLiteral("Gone"));
  inWindow([this](CopiesWindow& window) {
    findIn(window, WastedByVolume);
    EXPECT_EQ(rowsOf(window), "CD 2|3|701.50 MB|cd2.txt\n");
    EXPECT_TRUE(statusOf(window).ends_with("\nListing file not found: " +
                                           folder_.pathOf(QStringLiteral("Gone.txt")).toStdString()))
        << statusOf(window);
  });
}

TEST_F(ShownCopies, WithoutSourcesItSaysSo) {
  state_.OfflineSourceCount = 0;
  inWindow([](CopiesWindow& window) {
    click(findButton(window));
    EXPECT_FALSE(isWorking(window));
    EXPECT_EQ(statusOf(window), "There is nothing to search yet.");
  });
}

TEST_F(ShownCopies, StopDoesNotWaitForADriveThatDoesNotAnswer) {
  WaitingThreads threads;
  CopiesWindow window(parts(threads.pool), nullptr);
  showAndActivate(window);
  click(findButton(window));
  EXPECT_TRUE(isWorking(window));
  EXPECT_EQ(statusOf(window), "0 searched");
  QTest::qWait(120);
  EXPECT_TRUE(isWorking(window));
  click(findButton(window));
  EXPECT_FALSE(isWorking(window));
  EXPECT_EQ(statusOf(window), "Stopped. Only all listings together tell what has copies.");
  threads.letGo();
  EXPECT_EQ(rowsOf(window), "");
  findIn(window, WastedByVolume);
  EXPECT_EQ(rowsOf(window), "CD 2|3|701.50 MB|cd2.txt\n");
}

TEST_F(ShownCopies, TheWindowClosesWhileItWorks) {
  WaitingThreads threads;
  auto window = std::make_unique<CopiesWindow>(parts(threads.pool), nullptr);
  showAndActivate(*window);
  click(findButton(*window));
  press(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(isWorking(*window));
  window.reset();
  threads.letGo();
}

TEST_F(ShownCopies, EndsWithTheProgramWhileItWorks) {
  inWindow([this](CopiesWindow& window) {
    click(findButton(window));
    form().frame().unloadOtherWindows();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(isWorking(window));
  });
}

TEST_F(ShownCopies, AJobEndsInTheMidstOfAListing) {
  constexpr int kEntries = 400'000;
  addOfflineSource(QStringLiteral("large.txt"), listingOf("LARGE", kEntries, "song"));
  CopiesJob job(sourcesOf(state_), {}, QLocale::c());
  QThreadPool threads;
  threads.start([&job] { job.run(); });
  EXPECT_EVENTUALLY(job.watch().searched() > 1000);
  job.stop();
  EXPECT_TRUE(threads.waitForDone(10'000));
  EXPECT_TRUE(job.hasEnded());
  EXPECT_FALSE(job.isComplete());
  EXPECT_LT(job.watch().searched(), kEntries);
  EXPECT_TRUE(job.rows().empty());
}

}  // namespace

}  // namespace quorvin::test
