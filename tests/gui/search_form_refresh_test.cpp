// SPDX-License-Identifier: GPL-2.0-or-later

// The local list refresh, started and watched in the real window.
#include "files/file_lock.h"
#include "gui/search_form_fixture.h"
#include "preview/res_win.h"
#include "search/segment/segment_store.h"
#include "support/eventually.h"

#include <QApplication>
#include <QPlainTextEdit>

#include <chrono>

namespace quorvin::test {

namespace {

class WindowRefresh : public SearchFormTest {
 protected:
  /// Adds an online source with these files.
  void addFolder(const QString& description, const QStringList& names) {
    for (const QString& name : names) files_.writeFile(description + u'/' + name, "x");
    addOnlineFolder(description, files_.makeFolder(description));
  }
  /// A result window that a test does not expect would wait for a user forever.
  void rescan() {
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [] {
      auto* window = qobject_cast<ResWin*>(QApplication::activeModalWidget());
      if (!window) return;
      ADD_FAILURE() << window->findChild<QPlainTextEdit*>()->toPlainText().toStdString();
      window->hide();
    });
    watch.start(5000);
    form().menus().ReScan->trigger();
  }
  /// Rescans, and gives what the result window shows.
  QString resultsOfRescan() {
    QString shown;
    std::function<void()> look = [&] {
      auto* window = qobject_cast<ResWin*>(QApplication::activeModalWidget());
      if (!window) return QTimer::singleShot(0, &form(), look);
      shown = window->findChild<QPlainTextEdit*>()->toPlainText();
      EXPECT_FALSE(form().progress().isVisible());
      QTest::keyClick(window, Qt::Key_Escape);
    };
    QTimer::singleShot(0, &form(), look);
    rescan();
    return shown;
  }
  QString status() { return form().progress().findChild<QLabel*>(QStringLiteral("Status"))->text(); }
  QString detail() { return form().progress().findChild<QLabel*>(QStringLiteral("Detail"))->text(); }
  QString listing(const QString& description) {
    return QString::fromUtf8(folder_.readFile(description + QStringLiteral(".txt")));
  }
  /// Does `action` while the refresh lets events run in the source of this row.
  void whileInSource(int row, std::function<void()> action) {
    const QString mark = QStringLiteral(" %1 of ").arg(row);
    QTimer::singleShot(0, &form(), [this, row, mark, action = std::move(action)] {
      if (form().progress().windowTitle().contains(mark)) return action();
      whileInSource(row, action);
    });
  }

  TemporaryFolder files_;
};

TEST_F(WindowRefresh, MakesTheListingsAnew) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("song.mp3")});
  addFolder(QStringLiteral("Films"), {QStringLiteral("film.mkv")});
  EXPECT_TRUE(form().menus().ReScan->isEnabled());
  rescan();
  EXPECT_TRUE(listing(QStringLiteral("Music")).contains(QStringLiteral("song.mp3")));
  EXPECT_TRUE(listing(QStringLiteral("Films")).contains(QStringLiteral("film.mkv")));
  EXPECT_TRUE(messages_.informed.empty());
  find(QStringLiteral("song"));
  EXPECT_EQ(rows(), 1);
}

TEST_F(WindowRefresh, WithoutSourcesNothingIsLeftOnTheScreen) {
  form().progress().setWindowTitle(QStringLiteral("before"));
  rescan();
  EXPECT_FALSE(form().progress().isVisible());
  EXPECT_EQ(form().progress().windowTitle(), QStringLiteral("before"));
  EXPECT_EQ(status(), QStringLiteral("Ver:2.5(64)"));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(form().menus().ReScan->isEnabled());
}

TEST_F(WindowRefresh, WithoutSourcesAnErrorLogIsShownAndEmptied) {
  state_.errorLog = QStringLiteral("left from before\r\n");
  form();
  QString shown;
  duringTheRun([&] {
    auto* window = qobject_cast<ResWin*>(QApplication::activeModalWidget());
    ASSERT_NE(window, nullptr);
    shown = window->findChild<QPlainTextEdit*>()->toPlainText();
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("close")), Qt::LeftButton);
  });
  rescan();
  EXPECT_EQ(shown, QStringLiteral("left from before\n"));
  EXPECT_EQ(state_.errorLog, QString());
  EXPECT_EQ(form().findChild<ResWin*>(), nullptr);
}

TEST_F(WindowRefresh, ProgressTellsWhereItIs) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("song.mp3")});
  addFolder(QStringLiteral("Films"), {QStringLiteral("film.mkv")});
  form().progress().setWindowTitle(QStringLiteral("before"));
  QString title;
  QString told;
  bool wasVisible = false;
  Qt::CursorShape pointer = Qt::ArrowCursor;
  bool couldRescan = true;
  whileInSource(2, [&] {
    title = form().progress().windowTitle();
    told = status();
    wasVisible = form().progress().isVisible();
    if (QGuiApplication::overrideCursor()) pointer = QGuiApplication::overrideCursor()->shape();
    couldRescan = form().menus().ReScan->isEnabled();
  });
  rescan();
  EXPECT_EQ(title, QStringLiteral(" Updating online file lists... 2 of 2"));
  EXPECT_TRUE(told.startsWith(QStringLiteral("Indexing: "))) << told.toStdString();
  EXPECT_TRUE(wasVisible);
  EXPECT_EQ(pointer, Qt::BusyCursor);
  EXPECT_FALSE(couldRescan);
  EXPECT_FALSE(form().progress().isVisible());
  EXPECT_EQ(form().progress().windowTitle(), QStringLiteral("before"));
  EXPECT_EQ(status(), QStringLiteral("Ver:2.5(64)"));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(WindowRefresh, CountsMoveAndTheBarFollowsTheListingOfLastTime) {
  QStringList names;
  for (int file = 0; file < 1000; ++file) names.append(QStringLiteral("song %1.mp3").arg(file));
  addFolder(QStringLiteral("Music"), names);
  auto* bar = form().progress().findChild<QProgressBar*>();
  std::function<void()> look;
  int busy = 0;
  int known = 0;
  bool ended = false;
  look = [&] {
    if (ended) return;
    (bar->maximum() == 0 ? busy : known) += 1;
    QTest::qSleep(20);
    QTimer::singleShot(0, &form(), look);
  };
  QTimer::singleShot(0, &form(), look);
  rescan();
  EXPECT_GT(busy, 0) << "the first time nothing is known";
  EXPECT_TRUE(detail().endsWith(QStringLiteral(" files in 1 folder"))) << detail().toStdString();
  EXPECT_GT(detail().section(u' ', 0, 0).toInt(), 900);
  busy = 0;
  known = 0;
  rescan();
  ended = true;
  EXPECT_EQ(busy, 0);
  EXPECT_GT(known, 1);
  EXPECT_GT(bar->value(), 80);
}

TEST_F(WindowRefresh, CancelEndsTheWalkAndTheListingIsPutInPlace) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("a/1.mp3"), QStringLiteral("b/2.mp3")});
  whileInSource(1, [&] {
    QTest::mouseClick(form().progress().findChild<QPushButton*>(QStringLiteral("CancelButton")),
                      Qt::LeftButton);
    EXPECT_TRUE(detail().startsWith(QStringLiteral("Stopping...")));
  });
  EXPECT_EQ(resultsOfRescan(),
            QStringLiteral("The listing of Music is incomplete, since the rescan was stopped\n"));
  EXPECT_TRUE(state_.AbortRequested);
  const int blocks = static_cast<int>(listing(QStringLiteral("Music")).count(QStringLiteral("Directory:")));
  EXPECT_GE(blocks, 1);
  EXPECT_LT(blocks, 3);
  EXPECT_FALSE(form().progress().isVisible());
}

TEST_F(WindowRefresh, ARequestToStopThatIsLeftOverIsAskedAboutAndForgotten) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("a/1.mp3"), QStringLiteral("b/2.mp3")});
  state_.AbortRequested = true;
  messages_.answers = {true};
  rescan();
  EXPECT_EQ(messages_.asked, std::vector{QStringLiteral(
                                 "The request to stop an earlier rescan is still in force. With it, most "
                                 "folders would be left out of the listings.\r\n\r\nForget the request, "
                                 "and rescan everything?")});
  EXPECT_FALSE(state_.AbortRequested);
  EXPECT_EQ(listing(QStringLiteral("Music")).count(QStringLiteral("Directory:")), 3);
}

TEST_F(WindowRefresh, ARequestToStopThatIsNotForgottenLeavesEveryListing) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("a/1.mp3"), QStringLiteral("b/2.mp3")});
  folder_.writeFile(QStringLiteral("Music.txt"), "old");
  state_.AbortRequested = true;
  messages_.answers = {false};
  rescan();
  EXPECT_EQ(messages_.asked.size(), 1U);
  EXPECT_TRUE(state_.AbortRequested);
  EXPECT_EQ(listing(QStringLiteral("Music")), QStringLiteral("old"));
  EXPECT_FALSE(state_.RescanRunning);
  EXPECT_TRUE(form().menus().ReScan->isEnabled());
}

TEST_F(WindowRefresh, AnotherProgramThatRefreshesIsNamed) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("song.mp3")});
  const auto another = FolderLock::take(folder_.path());
  rescan();
  EXPECT_EQ(
      messages_.informed,
      std::vector{QStringLiteral("The local lists cannot be refreshed now: another refresh is running.")});
  EXPECT_FALSE(form().progress().isVisible());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(form().menus().ReScan->isEnabled());
}

TEST_F(WindowRefresh, ASearchMeanwhileReadsTheLastFinishedListings) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("new song.mp3")});
  folder_.writeFile(QStringLiteral("Music.txt"), blockHead("Music", "\\m\\") + entryLine("old song.mp3"));
  QStringList seen;
  whileInSource(1, [&] {
    find(QStringLiteral("song"));
    for (int row = 0; row < rows(); ++row) seen.append(cell(row, HitColumn::Name));
  });
  rescan();
  EXPECT_EQ(seen, QStringList(QStringLiteral("old song.mp3")));
  find(QStringLiteral("song"));
  ASSERT_EQ(rows(), 1);
  EXPECT_EQ(cell(0, HitColumn::Name), QStringLiteral("new song.mp3"));
}

TEST_F(WindowRefresh, ListingsThatWereKeptInMemoryAreReadAnewAfterARefresh) {
  const TemporaryFolder cache;
  SegmentStore images({cache.path(), 100'000'000, SegmentUse::Repeated});
  images_ = &images;
  addFolder(QStringLiteral("Music"), {QStringLiteral("first song.mp3")});
  rescan();
  find(QStringLiteral("song"));
  find(QStringLiteral("song"));
  ASSERT_EQ(rows(), 1);
  files_.writeFile(QStringLiteral("Music/other song.mp3"), "x");
  rescan();
  find(QStringLiteral("song"));
  EXPECT_EQ(rows(), 2);
}

TEST_F(WindowRefresh, ARefreshWithinARefreshDoesNothing) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("song.mp3")});
  bool triedWhileRunning = false;
  whileInSource(1, [&] {
    triedWhileRunning = state_.RescanRunning;
    form().jobs().startRefresh();
    EXPECT_TRUE(state_.RescanRunning);
    EXPECT_FALSE(form().menus().ReScan->isEnabled());
  });
  rescan();
  EXPECT_TRUE(triedWhileRunning);
  EXPECT_TRUE(form().menus().ReScan->isEnabled());
}

TEST_F(WindowRefresh, ClosingDuringTheSecondOfFiveSourcesKeepsTheOthers) {
  for (int source = 1; source <= 5; ++source) {
    const QString description = QStringLiteral("S%1").arg(source);
    addFolder(description, {QStringLiteral("a/new.mp3"), QStringLiteral("b/new.mp3")});
    folder_.writeFile(description + QStringLiteral(".txt"), "old");
  }
  whileInSource(2, [&] {
    form().close();
    EXPECT_FALSE(form().progress().isVisible());
  });
  rescan();
  EXPECT_FALSE(form().isVisible());
  EXPECT_FALSE(form().progress().isVisible());
  EXPECT_FALSE(state_.RescanRunning);
  EXPECT_FALSE(state_.RescanAbort);
  EXPECT_TRUE(listing(QStringLiteral("S1")).contains(QStringLiteral("new.mp3")));
  EXPECT_EQ(listing(QStringLiteral("S2")), QStringLiteral("old"));
  EXPECT_TRUE(folder_.has(QStringLiteral("S2.tmp")));
  for (const char16_t* name : {u"S3", u"S4", u"S5"}) {
    EXPECT_EQ(listing(QString::fromUtf16(name)), QStringLiteral("old"));
    EXPECT_FALSE(folder_.has(QString::fromUtf16(name) + QStringLiteral(".tmp")));
  }
}

// Nothing of the first rescan may stand in the way of leaving during the second.
TEST_F(WindowRefresh, ClosingDuringTheRescanAfterACancelledOneEndsTheProgram) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("a/1.mp3"), QStringLiteral("b/2.mp3")});
  addFolder(QStringLiteral("Films"), {QStringLiteral("a/1.mkv"), QStringLiteral("b/2.mkv")});
  auto* cancel = form().progress().findChild<QPushButton*>(QStringLiteral("CancelButton"));
  whileInSource(1, [&] { QTest::mouseClick(cancel, Qt::LeftButton); });
  EXPECT_NE(resultsOfRescan(), QString());
  messages_.answers = {true};
  whileInSource(1, [&] {
    // Cancelling had given it the keyboard.
    form().progress().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form().progress()));
    QTest::keyClick(&form().progress(), Qt::Key_Q, Qt::ControlModifier);
  });
  rescan();
  EXPECT_EQ(messages_.asked.size(), 1U);
  EXPECT_FALSE(state_.RescanRunning);
  EXPECT_EVENTUALLY(form().hasLeft());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(WindowRefresh, AFaultIsToldAndTheWindowIsUsableAgain) {
  addFolder(QStringLiteral("Music"), {QStringLiteral("song.mp3")});
  folder_.makeFolder(QStringLiteral("Music.tmp"));
  rescan();
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].startsWith(QStringLiteral("Error Refreshing Local Lists:")))
      << messages_.informed[0].toStdString();
  EXPECT_FALSE(form().progress().isVisible());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(form().menus().ReScan->isEnabled());
}

TEST_F(WindowRefresh, AFolderThatIsGoneIsToldInTheResultWindow) {
  addOnlineFolder(QStringLiteral("Stick"), files_.pathOf(QStringLiteral("stick/")));
  folder_.writeFile(QStringLiteral("Stick.txt"), "old");
  EXPECT_EQ(resultsOfRescan(), QStringLiteral("%1 not found; the listing of Stick was kept\n")
                                   .arg(files_.pathOf(QStringLiteral("stick/"))));
  EXPECT_EQ(listing(QStringLiteral("Stick")), QStringLiteral("old"));
}

/// A rescan of one file that counts as long from this duration on.
class NotifiedRescan : public WindowRefresh {
 protected:
  std::vector<QString> notifications(std::chrono::milliseconds least, bool isInFront) {
    addFolder(QStringLiteral("Music"), {QStringLiteral("a.mp3")});
    std::vector<QString> texts;
    form().jobs().setNotify([&texts](const QString& text) { texts.push_back(text); }, least);
    form().jobs().setIsInFront([isInFront] { return isInFront; });
    rescan();
    form().jobs().setNotify({});
    return texts;
  }
};

TEST_F(NotifiedRescan, IsOneThatWasLongAndEndedInTheBackground) {
  EXPECT_EQ(notifications(std::chrono::milliseconds(0), false),
            std::vector{QStringLiteral("1 listing, 1 entry, 1 new, 0 gone")});
}

TEST_F(NotifiedRescan, IsNotOneThatWasWatched) {
  EXPECT_EQ(notifications(std::chrono::milliseconds(0), true), std::vector<QString>());
}

TEST_F(NotifiedRescan, IsNotAShortOne) {
  EXPECT_EQ(notifications(std::chrono::hours(24), false), std::vector<QString>());
}

}  // namespace

}  // namespace quorvin::test
